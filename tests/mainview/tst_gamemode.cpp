#include "faces.h"
#include "support/drop.h"
#include "support/mainwindow.h"
#include "support/suite.h"

/// The in-game mode.
class tst_gamemode : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theCheckBoxFlipsTheMode();
    void theMouseButtonsAreDisabledWhileItIsOn();
    void anyNumberButZeroMeansThatItIsOn_data();
    void anyNumberButZeroMeansThatItIsOn();
    void disabledMouseButtonsShowTheirDisabledFace_data() { buttonRows(); }
    void disabledMouseButtonsShowTheirDisabledFace();
    void disabledMouseButtonsIgnoreEverything_data() { buttonRows(); }
    void disabledMouseButtonsIgnoreEverything();
    void nothingElseIsDisabled();
    void captionsStayCurrent();
    void theModeIsNeitherSavedNorAChange();
    void theModeIsSavedWithTheNextCommit();
    void theGaugeFollowsWithTheNextRecount();

private:
    static void buttonRows()
    {
        QTest::addColumn<int>("number");
        for (int number = 1; number <= 14; ++number)
            QTest::addRow("%d", number) << number;
    }
};

namespace {

/// The numbers of the mouse buttons that are enabled.
std::vector<int> enabledButtons(const MainWindowStage &stage)
{
    std::vector<int> numbers;
    for (int number = 1; number <= 14; ++number) {
        if (stage.mouseButton(number).isEnabled())
            numbers.push_back(number);
    }
    return numbers;
}

struct GameStage : MainWindowStage
{
    GameStage() { toggle(); }
    void toggle() const { pointer::click(button("chkGameMode")); }
};

} // namespace

void tst_gamemode::theCheckBoxFlipsTheMode()
{
    const GameStage stage;
    QCOMPARE(m_Config.GAME_MODE, 1U);
    QVERIFY(stage.button("chkGameMode").isChecked());
    stage.toggle();
    QCOMPARE(m_Config.GAME_MODE, 0U);
    QVERIFY(!stage.button("chkGameMode").isChecked());
}

void tst_gamemode::theMouseButtonsAreDisabledWhileItIsOn()
{
    const GameStage stage;
    QCOMPARE(enabledButtons(stage), std::vector<int>{});
    stage.toggle();
    QCOMPARE(enabledButtons(stage).size(), std::size_t{14});
}

void tst_gamemode::anyNumberButZeroMeansThatItIsOn_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("isOn");
    QTest::newRow("0") << 0 << false;
    QTest::newRow("1") << 1 << true;
    QTest::newRow("2") << 2 << true;
    QTest::newRow("-1") << -1 << true;
}

void tst_gamemode::anyNumberButZeroMeansThatItIsOn()
{
    QFETCH(int, number);
    QFETCH(bool, isOn);
    const MainWindowStage stage(settingsWith({{"GAME_MODE", number}}));
    QCOMPARE(stage.button("chkGameMode").isChecked(), isOn);
    QCOMPARE(enabledButtons(stage).empty(), isOn);
    pointer::click(stage.button("chkGameMode"));
    QCOMPARE(m_Config.GAME_MODE, isOn ? 0U : 1U);
}

void tst_gamemode::disabledMouseButtonsShowTheirDisabledFace()
{
    QFETCH(int, number);
    const GameStage stage;
    HoverButton &button = stage.mouseButton(number);
    const QRect part = downward(kKnownControls[number - 1]);
    QCOMPARE(shownFace(button), faceOf(button, "mainDis", part));
    stage.toggle();
    QCOMPARE(shownFace(button), faceOf(button, "mainbk", part));
    QVERIFY(faceOf(button, "mainbk", part) != faceOf(button, "mainDis", part));
}

void tst_gamemode::disabledMouseButtonsIgnoreEverything()
{
    QFETCH(int, number);
    const GameStage stage;
    HoverButton &button = stage.mouseButton(number);
    const auto before = m_Config.PROFILE[0].BUTTON[number - 1];
    pointer::click(button);
    pointer::rightClick(button);
    QVERIFY(!dropText(button, QStringLiteral("4104")));
    QCOMPARE(stage.buttonsOn(), std::vector<int>{});
    QVERIFY(stage.view().currentButton() < 0);
    QCOMPARE(m_Config.PROFILE[0].BUTTON[number - 1], before);
    QVERIFY(!stage.window().findChild<QWidget *>(QStringLiteral("pListbox")));
    QVERIFY(!stage.applyIsEnabled());
}

void tst_gamemode::nothingElseIsDisabled()
{
    const GameStage stage;
    for (const char *name : {"ButtonOK", "ButtonCancel", "BtnClose", "BtnMin", "chkGameMode"})
        QVERIFY2(stage.button(name).isEnabled(), name);
}

void tst_gamemode::captionsStayCurrent()
{
    GameStage stage;
    m_Config.PROFILE[1].BUTTON[3] = 0x7009;
    stage.reportProfile(2);
    QCOMPARE(stage.mouseButton(4).captionText(), QStringLiteral("Screen Shot"));
    QCOMPARE(enabledButtons(stage), std::vector<int>{});
}

void tst_gamemode::theModeIsNeitherSavedNorAChange()
{
    const GameStage stage;
    QVERIFY(!stage.applyIsEnabled());
    QVERIFY(stage.settings.bytes().isEmpty());
    QVERIFY(stage.requestsSinceStart().empty());
    stage.toggle();
    dropText(stage.mouseButton(3), QStringLiteral("1"));
    QVERIFY(stage.applyIsEnabled());
    stage.toggle();
    QVERIFY(stage.applyIsEnabled());
}

void tst_gamemode::theModeIsSavedWithTheNextCommit()
{
    const GameStage stage;
    pointer::click(stage.button("ButtonOK"));
    QCOMPARE(stage.written()[QStringLiteral("GAME_MODE")], 1);
}

void tst_gamemode::theGaugeFollowsWithTheNextRecount()
{
    GameStage stage;
    stage.toggle();
    for (FunctionCode &code : m_Config.PROFILE[0].BUTTON)
        code = 3;
    stage.reportProfile(1);
    QCOMPARE(stage.view().memoryUsage(), 1U); // 75 + 14 * 10 bytes
    stage.toggle();
    QCOMPARE(stage.view().memoryUsage(), 1U);
    stage.reportProfile(1);
    QCOMPARE(stage.view().memoryUsage(), 0U);
}

KYR_GUI_TEST(tst_gamemode)
#include "tst_gamemode.moc"
