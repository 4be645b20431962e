#include "macroeditstage.h"
#include "support/suite.h"

/// Macros made, edited and deleted by keyboard.
class tst_macrokeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void spaceOnNewMakesAMacro();
    void spaceOnDeleteDeletes();
    void theWarningIsAnsweredByKey_data();
    void theWarningIsAnsweredByKey();
    void otherKeysOfTheListOpenNoEditor_data();
    void otherKeysOfTheListOpenNoEditor();
    void f2EditsTheSelectedMacro();
    void aRowSelectedByKeyCanBeDeleted();
    void theKeyThatOpenedADialogDoesNotAnswerIt_data();
    void theKeyThatOpenedADialogDoesNotAnswerIt();
};

void tst_macrokeyboard::spaceOnNewMakesAMacro()
{
    const MacroEditStage stage(1);
    const DialogVisitor visitor([](const OpenDialog &editor) {
        typeName(editor, "Heal");
        keyboard::tabTo(editor.button("ButtonOK"));
        editor.key(Qt::Key_Space);
    });
    keyboard::tabTo(stage.headerButton("btnNew"));
    keyboard::press(Qt::Key_Space);
    QCOMPARE(visitor.count(), 1);
    QCOMPARE(stage.rows(), macroRows(1) << QStringLiteral("   * Heal"));
}

void tst_macrokeyboard::spaceOnDeleteDeletes()
{
    const MacroEditStage stage(3);
    stage.select(0);
    keyboard::tabTo(stage.headerButton("btnDelete"));
    for (int left = 2; left >= 0; --left) {
        keyboard::press(Qt::Key_Space);
        QCOMPARE(stage.macros().getCount(), left);
    }
    QVERIFY(stage.headerButton("btnDelete").hasFocus());
}

void tst_macrokeyboard::theWarningIsAnsweredByKey_data()
{
    QTest::addColumn<int>("tabs");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("deletes");
    QTest::addColumn<unsigned>("confirm");
    QTest::newRow("OK") << 0 << Qt::Key_Return << true << 1U;
    QTest::newRow("Cancel") << 1 << Qt::Key_Return << false << 1U;
    QTest::newRow("the box") << 2 << Qt::Key_Return << false << 0U;
    QTest::newRow("Escape") << 2 << Qt::Key_Escape << false << 1U;
}

void tst_macrokeyboard::theWarningIsAnsweredByKey()
{
    QFETCH(int, tabs);
    QFETCH(Qt::Key, key);
    const keyboard::GivenBack givenBack;
    const MacroEditStage stage(3);
    m_Config.MACRODEL_CONFIRM = 1;
    stage.select(0);
    const DialogVisitor visitor([&](const OpenDialog &warning) {
        for (int tab = 0; tab < tabs; ++tab)
            warning.key(Qt::Key_Tab);
        warning.key(key);
        if (warning.window().isVisible())
            warning.key(Qt::Key_Escape);
    });
    keyboard::tabTo(stage.headerButton("btnDelete"));
    keyboard::press(Qt::Key_Space);
    QCOMPARE(visitor.count(), 1);
    QFETCH(bool, deletes);
    QCOMPARE(stage.macros().getCount(), deletes ? 2 : 3);
    QTEST(m_Config.MACRODEL_CONFIRM, "confirm");
}

void tst_macrokeyboard::otherKeysOfTheListOpenNoEditor_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("gives");
    QTest::newRow("Return") << Qt::Key_Return << true;
    QTest::newRow("Enter") << Qt::Key_Enter << true;
    QTest::newRow("Space") << Qt::Key_Space << false;
    QTest::newRow("Delete") << Qt::Key_Delete << false;
    QTest::newRow("Escape") << Qt::Key_Escape << false;
}

/// Return gives the row's function, like a click.
void tst_macrokeyboard::otherKeysOfTheListOpenNoEditor()
{
    QFETCH(Qt::Key, key);
    QFETCH(bool, gives);
    MacroEditStage stage(3);
    stage.find(9, 9);
    stage.clickHeader(PanelId::Macro);
    const DialogVisitor visitor([](const OpenDialog &editor) { editor.click("ButtonCancel"); });
    keyboard::tabTo(stage.macros());
    keyboard::press(Qt::Key_Down);
    keyboard::press(Qt::Key_Down);
    for (int time = 0; time < 2; ++time)
        keyboard::press(key);
    QCoreApplication::processEvents();
    QCOMPARE(visitor.count(), 0);
    QCOMPARE(PanelsStage::code(9), gives ? 257U : 9U);
    QCOMPARE(stage.rows(), macroRows(3));
}

void tst_macrokeyboard::f2EditsTheSelectedMacro()
{
    MacroEditStage stage(3);
    stage.find(9, 9);
    stage.clickHeader(PanelId::Macro);
    const DialogVisitor visitor([](const OpenDialog &editor) {
        typeName(editor, "Heal");
        editor.click("ButtonOK");
    });
    keyboard::tabTo(stage.macros());
    keyboard::press(Qt::Key_Down);
    keyboard::press(Qt::Key_Down);
    keyboard::press(Qt::Key_F2);
    QCOMPARE(visitor.count(), 1);
    QCOMPARE(stage.rows().at(1), QStringLiteral("   * Heal"));
    QCOMPARE(PanelsStage::code(9), 9U);
}

void tst_macrokeyboard::aRowSelectedByKeyCanBeDeleted()
{
    const MacroEditStage stage(3);
    keyboard::tabTo(stage.macros());
    keyboard::press(Qt::Key_Down);
    keyboard::press(Qt::Key_Down);
    keyboard::press(Qt::Key_Backtab);
    QVERIFY(stage.headerButton("btnDelete").hasFocus());
    keyboard::press(Qt::Key_Space);
    QCOMPARE(stage.rows(), QStringList({QStringLiteral("   * M 0"), QStringLiteral("   * M 2")}));
}

void tst_macrokeyboard::theKeyThatOpenedADialogDoesNotAnswerIt_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("New") << QByteArray("btnNew");
    QTest::newRow("Delete") << QByteArray("btnDelete");
}

/// A key is released in the window that has the keyboard by then.
void tst_macrokeyboard::theKeyThatOpenedADialogDoesNotAnswerIt()
{
    QFETCH(QByteArray, button);
    const MacroEditStage stage(3);
    m_Config.MACRODEL_CONFIRM = 1;
    stage.select(0);
    const DialogVisitor visitor([](const OpenDialog &dialog) {
        QTest::keyRelease(dialog.window().windowHandle(), Qt::Key_Space);
        QCoreApplication::processEvents();
        QVERIFY(dialog.window().isVisible());
        dialog.click("ButtonCancel");
    });
    keyboard::tabTo(stage.headerButton(button.constData()));
    keyboard::press(Qt::Key_Space);
    QCOMPARE(visitor.count(), 1);
    QCOMPARE(stage.rows(), macroRows(3));
}

KYR_GUI_TEST(tst_macrokeyboard)
#include "tst_macrokeyboard.moc"
