#include "support/drop.h"
#include "support/mainwindow.h"
#include "support/suite.h"

/// Selecting mouse buttons and giving them functions.
class tst_assignment : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClickSelectsExactlyThatButton_data() { buttonRows(); }
    void aClickSelectsExactlyThatButton();
    void aClickOnTheSelectedButtonKeepsItSelected();
    void aClickAssignsNothing();
    void theSelectionOutlivesAProfileChange();
    void aFunctionGoesToTheSelectedButton_data();
    void aFunctionGoesToTheSelectedButton();
    void withoutASelectionAFunctionGoesNowhere();
    void aFunctionGoesIntoTheCurrentProfile();
    void aDropGoesToTheButtonUnderThePointer_data() { buttonRows(); }
    void aDropGoesToTheButtonUnderThePointer();
    void aDropLeavesTheSelectionAlone();
    void theDroppedNumberIsTakenAsItComes_data();
    void theDroppedNumberIsTakenAsItComes();
    void otherControlsTakeNoDrops_data();
    void otherControlsTakeNoDrops();
    void anAssignmentMovesTheMemoryGauge();
    void handlesAreGivenByNumber_data();
    void handlesAreGivenByNumber();

private:
    static void buttonRows()
    {
        QTest::addColumn<int>("number");
        for (int number = 1; number <= 14; ++number)
            QTest::addRow("%d", number) << number;
    }
};

namespace {

std::vector<FunctionCode> codes()
{
    const auto &buttons = m_Config.PROFILE[m_Config.PROFILE_ID].BUTTON;
    return {std::begin(buttons), std::end(buttons)};
}

std::vector<FunctionCode> firstCodesBut(int number, FunctionCode code)
{
    std::vector<FunctionCode> expected = {1, 2, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9};
    expected[static_cast<std::size_t>(number - 1)] = code;
    return expected;
}

constexpr FunctionCode kJump = 0x1008;

} // namespace

void tst_assignment::aClickSelectsExactlyThatButton()
{
    QFETCH(int, number);
    const MainWindowStage stage;
    pointer::click(stage.mouseButton(number % 14 + 1));
    pointer::click(stage.mouseButton(number));
    QCOMPARE(stage.buttonsOn(), std::vector{number});
    QCOMPARE(stage.view().currentButton(), number - 1);
}

void tst_assignment::aClickOnTheSelectedButtonKeepsItSelected()
{
    const MainWindowStage stage;
    pointer::click(stage.mouseButton(4));
    pointer::click(stage.mouseButton(4));
    QCOMPARE(stage.buttonsOn(), std::vector{4});
}

void tst_assignment::aClickAssignsNothing()
{
    const MainWindowStage stage;
    pointer::click(stage.mouseButton(1));
    QCOMPARE(codes(), firstCodesBut(1, 1));
    QVERIFY(!stage.applyIsEnabled());
    QVERIFY(stage.requestsSinceStart().empty());
}

void tst_assignment::theSelectionOutlivesAProfileChange()
{
    MainWindowStage stage;
    pointer::click(stage.mouseButton(6));
    stage.reportProfile(3);
    QCOMPARE(stage.buttonsOn(), std::vector{6});
    QCOMPARE(stage.view().currentButton(), 5);
}

void tst_assignment::aFunctionGoesToTheSelectedButton_data()
{
    QTest::addColumn<FunctionCode>("code");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<std::string>("logged");
    const auto row = [](FunctionCode code, const char *caption, const char *hex) {
        QTest::addRow("%s", hex) << code << QString::fromLatin1(caption)
                                 << "changeCurrentButtonFunction:" + std::string(hex);
    };
    row(9, "Disable/Clear", "9");
    row(18, "CPI 2400", "12");
    row(43, "Profile DOWN", "2b");
    row(kJump, "Jump", "1008");
    row(0, "", "0");
    row(0xFFFFFFFF, "", "ffffffff");
}

void tst_assignment::aFunctionGoesToTheSelectedButton()
{
    QFETCH(FunctionCode, code);
    QFETCH(std::string, logged);
    const MainWindowStage stage;
    pointer::click(stage.mouseButton(1));
    stage.view().changeCurrentButtonFunction(code);
    QCOMPARE(codes(), firstCodesBut(1, code));
    QTEST(stage.mouseButton(1).captionText(), "caption");
    QVERIFY(stage.applyIsEnabled());
    QCOMPARE(stage.log.count(logged), 1L);
}

void tst_assignment::withoutASelectionAFunctionGoesNowhere()
{
    const MainWindowStage stage;
    stage.view().changeCurrentButtonFunction(kJump);
    QCOMPARE(codes(), firstCodesBut(1, 1));
    QVERIFY(!stage.applyIsEnabled());
    QVERIFY(stage.log.contains("changeCurrentButtonFunction:1008"));
}

void tst_assignment::aFunctionGoesIntoTheCurrentProfile()
{
    MainWindowStage stage;
    stage.reportProfile(10);
    pointer::click(stage.mouseButton(14));
    stage.view().changeCurrentButtonFunction(kJump);
    QCOMPARE(m_Config.PROFILE[9].BUTTON[13], kJump);
    QCOMPARE(m_Config.PROFILE[0].BUTTON[13], 9U);
}

void tst_assignment::aDropGoesToTheButtonUnderThePointer()
{
    QFETCH(int, number);
    const MainWindowStage stage;
    QVERIFY(dropText(stage.mouseButton(number), QStringLiteral("4104")));
    QCOMPARE(codes(), firstCodesBut(number, kJump));
    QCOMPARE(stage.mouseButton(number).captionText(), QStringLiteral("Jump"));
    QVERIFY(stage.applyIsEnabled());
    QCOMPARE(stage.log.lines, std::vector<std::string>{"DragDropButtonAction"});
}

void tst_assignment::aDropLeavesTheSelectionAlone()
{
    const MainWindowStage stage;
    dropText(stage.mouseButton(9), QStringLiteral("16"));
    QCOMPARE(stage.buttonsOn(), std::vector<int>{});
    pointer::click(stage.mouseButton(2));
    dropText(stage.mouseButton(9), QStringLiteral("4104"));
    QCOMPARE(stage.buttonsOn(), std::vector{2});
    QCOMPARE(stage.view().currentButton(), 1);
    QCOMPARE(codes(), firstCodesBut(9, kJump));
    QCOMPARE(stage.mouseButton(9).captionText(), QStringLiteral("Jump"));
    QCOMPARE(stage.mouseButton(2).captionText(), QStringLiteral("Right-Click"));
}

void tst_assignment::theDroppedNumberIsTakenAsItComes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<FunctionCode>("code");
    QTest::addColumn<QString>("caption");
    const auto row = [](const char *text, FunctionCode code, const char *caption) {
        QTest::newRow(text) << QString::fromLatin1(text) << code << QString::fromLatin1(caption);
    };
    row("3", 3, "Double Click");
    row("17", 17, "CPI 1600");
    row("41", 41, "Profile 10");
    row("abc", 0, "");
    row("-1", 0xFFFFFFFF, "");
    row("4095", 4095, "");
}

void tst_assignment::theDroppedNumberIsTakenAsItComes()
{
    QFETCH(QString, text);
    QFETCH(FunctionCode, code);
    const MainWindowStage stage;
    QVERIFY(dropText(stage.mouseButton(5), text));
    QCOMPARE(codes(), firstCodesBut(5, code));
    QTEST(stage.mouseButton(5).captionText(), "caption");
}

void tst_assignment::otherControlsTakeNoDrops_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"ButtonOK", "ButtonCancel", "BtnProfile2", "chkGameMode", "BtnClose"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_assignment::otherControlsTakeNoDrops()
{
    QFETCH(QString, name);
    const MainWindowStage stage;
    QVERIFY(!dropText(stage.button(name), QStringLiteral("4104")));
    QCOMPARE(codes(), firstCodesBut(1, 1));
    QVERIFY(!stage.applyIsEnabled());
}

void tst_assignment::anAssignmentMovesTheMemoryGauge()
{
    const MainWindowStage stage;
    MacroInfo &macro = m_Config.PROFILE[0].MACRO[0];
    macro.MODE = 3;
    std::ranges::fill(macro.KEYMAP, KeymapEvent{1, 1, 0});
    dropText(stage.mouseButton(1), QStringLiteral("256"));
    QCOMPARE(stage.view().memoryUsage(), 8U); // 75 + 1002 bytes
    pointer::click(stage.mouseButton(1));
    stage.view().changeCurrentButtonFunction(1);
    QCOMPARE(stage.view().memoryUsage(), 0U);
}

void tst_assignment::handlesAreGivenByNumber_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("name");
    const auto row = [](int id, const char *name) {
        QTest::addRow("%d", id) << id << QString::fromLatin1(name);
    };
    row(0, "Button1");
    row(13, "Button14");
    row(4116, "BtnProfile1");
    row(4125, "BtnProfile10");
    for (int id : {-1, 14, 17, 4096, 4109, 4115, 4126, INT_MAX, INT_MIN})
        row(id, "");
}

void tst_assignment::handlesAreGivenByNumber()
{
    QFETCH(int, id);
    const MainWindowStage stage;
    const HoverButton *const handle = stage.view().GetButtonHandle(id);
    QTEST(handle ? handle->objectName() : QString(), "name");
}

KYR_GUI_TEST(tst_assignment)
#include "tst_assignment.moc"
