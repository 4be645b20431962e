#include "editorstage.h"
#include "support/suite.h"

/// Which loop counts OK takes, and what becomes of a dialog whose count it refuses.
class tst_editorloopcount : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFlagThatIsNeitherAsksForNoCount();
    void aCountOutOfBoundsIsRefused_data();
    void aCountOutOfBoundsIsRefused();
    void aCountOfAFileOutOfBoundsIsRefused_data();
    void aCountOfAFileOutOfBoundsIsRefused();
    void aCountWithinBoundsIsStored_data();
    void aCountWithinBoundsIsStored();
    void withoutALoopAnyCountIsStored_data();
    void withoutALoopAnyCountIsStored();
    void aRefusedOKHasTakenNameTextAndCount();
    void aRefusedOKHasNotTakenTheEvents();
    void aRefusedDialogGoesOnAfterACorrection();
    void aCountThatIsRefusedOutOfSightCanBeCorrected();

private:
    static void isRefused(EditorStage &stage);
};

namespace {

MacroInfo countingMacro(std::uint32_t count, std::uint32_t isOn = 1)
{
    MacroInfo macro = namedMacro("looping");
    macro.bLOOP = isOn;
    macro.MACRO_LOOP = count;
    return macro;
}

} // namespace

/// OK leaves the dialog open, with the keyboard in the loop field, and changes nothing outside.
void tst_editorloopcount::isRefused(EditorStage &stage)
{
    const ConfigData before = m_Config;
    stage.run([&](const OpenDialog &dialog) {
        dialog.click("ButtonOK");
        QCoreApplication::processEvents();
        QVERIFY(stage.window && stage.window->isVisible());
        QVERIFY(stage.loop().hasFocus());
        QCOMPARE(stage.target.came, QStringList());
        dialog.click("ButtonCancel");
    });
    QCOMPARE(stage.target.came, QStringList(QStringLiteral("Cancel")));
    QVERIFY(isUnchanged(before));
}

void tst_editorloopcount::aCountOutOfBoundsIsRefused_data()
{
    QTest::addColumn<QByteArray>("typed");
    for (const char *typed : {"0", "abc", "", "-5", "-0", " ", "x1", "00"})
        QTest::addRow("'%s'", typed) << QByteArray(typed);
}

void tst_editorloopcount::aCountOutOfBoundsIsRefused()
{
    QFETCH(QByteArray, typed);
    EditorStage stage(countingMacro(5));
    stage.type(stage.loop(), typed.constData());
    isRefused(stage);
}

/// There more characters are possible than can be typed.
void tst_editorloopcount::aCountOfAFileOutOfBoundsIsRefused_data()
{
    QTest::addColumn<std::uint32_t>("count");
    for (const std::uint32_t count : {1000U, 1001U, 65537U, 2147483647U, 2147483648U, 4294967295U})
        QTest::addRow("%u", count) << count;
}

void tst_editorloopcount::aCountOfAFileOutOfBoundsIsRefused()
{
    QFETCH(std::uint32_t, count);
    EditorStage stage(countingMacro(count));
    isRefused(stage);
}

void tst_editorloopcount::aCountWithinBoundsIsStored_data()
{
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<std::uint32_t>("count");
    const auto row = [](const char *typed, std::uint32_t count) {
        QTest::addRow("'%s'", typed) << QByteArray(typed) << count;
    };
    row("1", 1);
    row("999", 999);
    row("007", 7);
    row("5x", 5);
    row("1.5", 1);
    row(" 8", 8);
    row("1000", 100); // the fourth character is not taken
}

void tst_editorloopcount::aCountWithinBoundsIsStored()
{
    QFETCH(QByteArray, typed);
    QFETCH(std::uint32_t, count);
    EditorStage stage(countingMacro(5));
    stage.type(stage.loop(), typed.constData());
    stage.run([](const OpenDialog &dialog) { dialog.click("ButtonOK"); });
    QCOMPARE(stage.target.came, QStringList(QStringLiteral("OK")));
    QCOMPARE(m_Config.PROFILE[0].MACRO[0].MACRO_LOOP, count);
}

void tst_editorloopcount::withoutALoopAnyCountIsStored_data()
{
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<std::uint32_t>("count");
    QTest::newRow("none") << QByteArray("0") << 0U;
    QTest::newRow("no number") << QByteArray("abc") << 0U;
    QTest::newRow("nothing") << QByteArray() << 0U;
    QTest::newRow("below none") << QByteArray("-5") << 4294967291U;
}

void tst_editorloopcount::withoutALoopAnyCountIsStored()
{
    QFETCH(QByteArray, typed);
    QFETCH(std::uint32_t, count);
    EditorStage stage(countingMacro(5));
    stage.type(stage.loop(), typed.constData());
    stage.click("ButtonLoop");
    stage.run([](const OpenDialog &dialog) { dialog.click("ButtonOK"); });
    QCOMPARE(stage.target.came, QStringList(QStringLiteral("OK")));
    QCOMPARE(m_Config.PROFILE[0].MACRO[0].MACRO_LOOP, count);
    const EditorStage fromFile(countingMacro(70000, 0));
    QCOMPARE(fromFile.confirmed().MACRO_LOOP, 70000U);
}

void tst_editorloopcount::aRefusedOKHasTakenNameTextAndCount()
{
    const EditorStage stage(countingMacro(5));
    stage.click("ButtonCopy");
    stage.type(stage.text(), "taken text");
    stage.click("ButtonText");
    stage.type(stage.name(), "taken");
    stage.type(stage.loop(), "-5");
    stage.click("ButtonOK");
    stage.type(stage.loop(), "7");
    // A change of mode shows the copy.
    stage.click("ButtonNoDelay");
    QCOMPARE(stage.name().text(), QStringLiteral("taken"));
    QCOMPARE(stage.loop().text(), QStringLiteral("-5"));
    stage.click("ButtonCopy");
    QCOMPARE(stage.text().toPlainText(), QStringLiteral("taken text"));
}

void tst_editorloopcount::aRefusedOKHasNotTakenTheEvents()
{
    MacroInfo macro = countingMacro(5);
    putEvents(macro.KEYMAP, {{53, 1, 2}, {53, 2, 3}});
    const EditorStage stage(macro);
    stage.type(stage.loop(), "0");
    stage.click("pMacroDisplayView");
    keystroke::tap(keystroke::kB);
    stage.click("ButtonOK");
    stage.click("ButtonNoDelay");
    QCOMPARE(listed(stage.events().getKeymapInfo(), 2), QStringLiteral("53/1/2 53/2/3"));
}

void tst_editorloopcount::aRefusedDialogGoesOnAfterACorrection()
{
    EditorStage stage(countingMacro(5));
    stage.type(stage.loop(), "0");
    stage.run([&](const OpenDialog &dialog) {
        dialog.click("ButtonOK");
        stage.pressWithControl(Qt::Key_A);
        dialog.key(Qt::Key_9);
        dialog.click("ButtonOK");
    });
    QCOMPARE(stage.target.came, QStringList(QStringLiteral("OK")));
    QCOMPARE(m_Config.PROFILE[0].MACRO[0].MACRO_LOOP, 9U);
}

/// The text's layout has no loop field, and checks it all the same.
void tst_editorloopcount::aCountThatIsRefusedOutOfSightCanBeCorrected()
{
    EditorStage stage(countingMacro(5));
    stage.type(stage.loop(), "0");
    stage.click("ButtonCopy");
    stage.run([&](const OpenDialog &dialog) {
        dialog.click("ButtonOK");
        QCoreApplication::processEvents();
        QVERIFY(stage.window && stage.window->isVisible());
        QCOMPARE(stage.target.came, QStringList());
        keyboard::press(Qt::Key_7); // reaches nothing that does not show
        QCOMPARE(stage.loop().text(), QStringLiteral("0"));
        dialog.click("ButtonText");
        QCOMPARE(stage.loop().text(), QStringLiteral("1"));
        dialog.click("ButtonOK");
    });
    QCOMPARE(stage.target.came, QStringList(QStringLiteral("OK")));
}

/// As a file may have it: only a 1 counts as on.
void tst_editorloopcount::aFlagThatIsNeitherAsksForNoCount()
{
    MacroInfo macro = countingMacro(1000);
    macro.bLOOP = 2;
    const EditorStage stage(macro);
    stage.type(stage.name(), "saved");
    const MacroInfo &stored = stage.confirmed();
    QCOMPARE(nameOf(stored), QStringLiteral("saved"));
    QCOMPARE(stored.MACRO_LOOP, 1000U);
    QCOMPARE(stored.bLOOP, 2U);
}

KYR_GUI_TEST(tst_editorloopcount)
#include "tst_editorloopcount.moc"
