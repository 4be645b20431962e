#include "editorstage.h"
#include "support/suite.h"

/// Keys and the pointer in the macro editor, beside its buttons.
class tst_editorkeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClickOnTheBackgroundEndsTheEditing_data();
    void aClickOnTheBackgroundEndsTheEditing();
    void aClickOnTheBackgroundTakesTheCountOfALoop_data();
    void aClickOnTheBackgroundTakesTheCountOfALoop();
    void onlyTheLeftButtonEndsTheEditing();
    void aDragByTheBackgroundMovesTheWindow();
    void aDragInAControlMovesNothing_data();
    void aDragInAControlMovesNothing();
    void returnInAFieldEndsTheEditing_data();
    void returnInAFieldEndsTheEditing();
    void returnInTheTextIsALine();
    void returnWithoutAControlDoesNothing();
    void aKeyPressesTheButtonWithTheKeyboard_data();
    void aKeyPressesTheButtonWithTheKeyboard();
    void aRecorderTakesEveryKey_data();
    void aRecorderTakesEveryKey();
    void aLoopCountThatIsNotUsedCannotBeTyped();
};

namespace {

MacroInfo loopMacro(std::uint32_t flag)
{
    MacroInfo macro = namedMacro("loop");
    macro.bLOOP = flag;
    macro.MACRO_LOOP = 5;
    return macro;
}

/// The mode in which a control shows.
const char *modeOf(const QByteArray &control)
{
    const bool isPasted = control.contains("Start") || control.contains("Copy");
    return isPasted ? "ButtonCopy" : "ButtonText";
}

/// Drags by a point of a control; says how far the window went.
QPoint dragged(const EditorStage &stage, const QWidget &control, QPoint at)
{
    const QPoint before = stage.window->pos();
    const QPoint start = control.mapToGlobal(at);
    pointer::press(control, at);
    for (const QPoint way : {QPoint(20, 15), QPoint(40, 30)})
        pointer::move(*stage.window, stage.window->mapFromGlobal(start + way));
    pointer::release(*stage.window, stage.window->mapFromGlobal(start + QPoint(40, 30)));
    return stage.window->pos() - before;
}

} // namespace

void tst_editorkeys::aClickOnTheBackgroundEndsTheEditing_data()
{
    QTest::addColumn<QByteArray>("field");
    for (const char *field : {"pTextfieldMacroName", "pLoopTextfield", "pMacroDisplayView",
                              "pCopyTextfield", "pStartDisplayView"})
        QTest::newRow(field) << QByteArray(field);
}

void tst_editorkeys::aClickOnTheBackgroundEndsTheEditing()
{
    QFETCH(QByteArray, field);
    const EditorStage stage;
    stage.click(modeOf(field));
    stage.click(field.constData());
    QVERIFY(stage.find(field.constData()).hasFocus());
    stage.clickBackground();
    QCOMPARE(QApplication::focusWidget(), stage.view.data());
}

void tst_editorkeys::aClickOnTheBackgroundTakesTheCountOfALoop_data()
{
    QTest::addColumn<std::uint32_t>("flag");
    QTest::addColumn<QString>("count");
    QTest::newRow("off") << 0U << QStringLiteral("5");
    QTest::newRow("on") << 1U << QStringLiteral("42");
    QTest::newRow("wild") << 2U << QStringLiteral("5");
}

/// Seen after a change of mode, which shows the copy again.
void tst_editorkeys::aClickOnTheBackgroundTakesTheCountOfALoop()
{
    QFETCH(std::uint32_t, flag);
    const EditorStage stage(loopMacro(flag));
    stage.loop().setText(QStringLiteral("42"));
    stage.clickBackground();
    stage.click("ButtonNoDelay");
    QTEST(stage.loop().text(), "count");
}

void tst_editorkeys::onlyTheLeftButtonEndsTheEditing()
{
    const EditorStage stage;
    pointer::click(stage.name());
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        pointer::click(*stage.view, {5, 200}, button);
        QVERIFY(stage.name().hasFocus());
    }
}

void tst_editorkeys::aDragByTheBackgroundMovesTheWindow()
{
    const EditorStage stage;
    pointer::click(stage.name());
    QCOMPARE(dragged(stage, *stage.view, {5, 200}), QPoint(40, 30));
    QVERIFY(!stage.name().hasFocus());
}

void tst_editorkeys::aDragInAControlMovesNothing_data()
{
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<QByteArray>("control");
    for (const char *control :
         {"pTextfieldMacroName", "pLoopTextfield", "pMacroDisplayView", "pCopyTextfield",
          "pStartDisplayView", "ButtonStartKey", "ButtonLoop", "ButtonClear"})
        QTest::newRow(control) << QByteArray(modeOf(control)) << QByteArray(control);
    QTest::newRow("a key that is not used")
        << QByteArray("ButtonCopy") << QByteArray("pSendDisplayView");
}

void tst_editorkeys::aDragInAControlMovesNothing()
{
    QFETCH(QByteArray, mode);
    QFETCH(QByteArray, control);
    const EditorStage stage;
    stage.click(mode.constData());
    if (control == "pSendDisplayView")
        stage.click("ButtonSendKey");
    QCOMPARE(dragged(stage, stage.find(control.constData()), {5, 5}), QPoint(0, 0));
    QVERIFY(!stage.view->hasFocus()); // nor was it a click on the background
}

void tst_editorkeys::returnInAFieldEndsTheEditing_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<Qt::Key>("key");
    for (const char *field : {"pTextfieldMacroName", "pLoopTextfield"}) {
        QTest::addRow("%s, Return", field) << QByteArray(field) << Qt::Key_Return;
        QTest::addRow("%s, Enter", field) << QByteArray(field) << Qt::Key_Enter;
    }
}

void tst_editorkeys::returnInAFieldEndsTheEditing()
{
    QFETCH(QByteArray, field);
    QFETCH(Qt::Key, key);
    EditorStage stage(loopMacro(1));
    stage.run([&](const OpenDialog &dialog) {
        stage.type(stage.find(field.constData()), "9");
        dialog.key(key);
        QCoreApplication::processEvents();
        QVERIFY(stage.window && stage.window->isVisible());
        QCOMPARE(QApplication::focusWidget(), stage.view.data());
        dialog.click("ButtonCancel");
    });
    QCOMPARE(stage.target.came, QStringList(QStringLiteral("Cancel")));
}

void tst_editorkeys::returnInTheTextIsALine()
{
    const EditorStage stage;
    stage.click("ButtonCopy");
    stage.type(stage.text(), "one");
    keyboard::press(Qt::Key_Return);
    QTest::keyClick(stage.window->windowHandle(), '2');
    QVERIFY(stage.text().hasFocus());
    QCOMPARE(pastedTextOf(stage.confirmed()), QStringLiteral("one\n2"));
}

void tst_editorkeys::returnWithoutAControlDoesNothing()
{
    EditorStage stage;
    stage.run([&](const OpenDialog &dialog) {
        stage.clickBackground();
        dialog.key(Qt::Key_Return);
        QCoreApplication::processEvents();
        QVERIFY(stage.window && stage.window->isVisible());
        dialog.click("ButtonCancel");
    });
    QCOMPARE(stage.target.came, QStringList(QStringLiteral("Cancel")));
}

void tst_editorkeys::aKeyPressesTheButtonWithTheKeyboard_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
    QTest::newRow("Space") << Qt::Key_Space;
}

void tst_editorkeys::aKeyPressesTheButtonWithTheKeyboard()
{
    QFETCH(Qt::Key, key);
    const EditorStage stage;
    keyboard::tabTo(stage.button("ButtonNoDelay"));
    keyboard::press(key);
    QVERIFY(stage.button("ButtonNoDelay").isChecked());
    QVERIFY(!stage.button("ButtonText").isChecked());
    keyboard::tabTo(stage.button("ButtonCopy"));
    keyboard::press(key);
    QVERIFY(stage.text().isVisible());
}

void tst_editorkeys::aRecorderTakesEveryKey_data()
{
    QTest::addColumn<QByteArray>("mode");
    QTest::newRow("pMacroDisplayView") << QByteArray("ButtonText");
    QTest::newRow("pStartDisplayView") << QByteArray("ButtonCopy");
    QTest::newRow("pSendDisplayView") << QByteArray("ButtonCopy");
}

void tst_editorkeys::aRecorderTakesEveryKey()
{
    QFETCH(QByteArray, mode);
    const char *const name = QTest::currentDataTag();
    EditorStage stage;
    stage.run([&](const OpenDialog &dialog) {
        dialog.click(mode.constData());
        const MacroDisplay &recorder = stage.display(name);
        for (const keystroke::HardwareKey &key :
             {keystroke::kReturn, keystroke::kEscape, keystroke::kTab}) {
            pointer::click(recorder);
            keystroke::tap(key);
            QCOMPARE(recorder.count(), 2U);
            QVERIFY(recorder.hasFocus());
            QVERIFY(stage.window->isVisible());
        }
        QCOMPARE(stage.target.came, QStringList());
        dialog.click("ButtonCancel");
    });
    QCOMPARE(stage.target.came, QStringList(QStringLiteral("Cancel")));
}

void tst_editorkeys::aLoopCountThatIsNotUsedCannotBeTyped()
{
    const EditorStage stage(loopMacro(0));
    stage.type(stage.loop(), "7");
    QCOMPARE(stage.loop().text(), QStringLiteral("5"));
    stage.click("ButtonLoop");
    stage.type(stage.loop(), "7");
    QCOMPARE(stage.loop().text(), QStringLiteral("7"));
}

KYR_GUI_TEST(tst_editorkeys)
#include "tst_editorkeys.moc"
