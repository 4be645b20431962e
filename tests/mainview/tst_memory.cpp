#include "functions/gamecommands.h"
#include "model/fixedtext.h"
#include "support/drop.h"
#include "support/mainwindow.h"
#include "support/pictures.h"
#include "support/screen.h"
#include "support/skinpictures.h"
#include "support/suite.h"

/// What functions take in the mouse's memory, and the gauge that shows it.
class tst_memory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_Config = {}; }

    void aFunctionHasItsSize_data();
    void aFunctionHasItsSize();
    void everyGameCommandHasItsSize();
    void basicFunctionsTakeNothingButTheDoubleClick();
    void aMacroHasItsSize_data();
    void aMacroHasItsSize();
    void theMacroIsThatOfTheCurrentProfile();
    void aTextThatFillsItsFieldIsCountedToItsEnd();
    void theGaugeShowsTheProfile_data();
    void theGaugeShowsTheProfile();
    void unitsAreCutDown_data();
    void unitsAreCutDown();
    void thePercentageIsWrittenBesideTheBar_data();
    void thePercentageIsWrittenBesideTheBar();
    void inGameModeThePercentageIsZero();
    void theGaugeIsDrawnAgainAfterAnAssignment();
    void anUnknownCurrentProfileCountsAsTheFirst();
};

namespace {

using Fill = std::function<void(MacroInfo &)>;

/// Makes the first `count` events press or release in turn, with a delay.
void fillEvents(MacroInfo &macro, std::uint32_t mode, std::size_t count, std::uint32_t delay)
{
    macro.MODE = mode;
    for (std::size_t i = 0; i < count; ++i)
        macro.KEYMAP[i] = {4, static_cast<std::uint32_t>(1 + i % 2), delay};
}

void fillText(MacroInfo &macro, const char *text, std::uint32_t start, std::uint32_t send)
{
    macro.MODE = 0;
    macro.bSTARTKEY = start;
    macro.bSENDKEY = send;
    SetText(macro.COPY_PASTER, text);
}

constexpr QRect kPercentPlace(154, 640 - 350 - 15, 45, 15);

QImage percentage(const QString &text)
{
    return withText(skin("mainbk"), text, kPercentPlace, 10);
}

/// The 14 buttons of the first profile, all with one code, the macro in slot 0 of 500 events.
void setAllButtons(FunctionCode code)
{
    std::ranges::fill(m_Config.PROFILE[0].BUTTON, code);
    fillEvents(m_Config.PROFILE[0].MACRO[0], 2, 500, 1);
}

} // namespace

void tst_memory::aFunctionHasItsSize_data()
{
    QTest::addColumn<FunctionCode>("code");
    QTest::addColumn<std::uint32_t>("size");
    const auto row = [](FunctionCode code, std::uint32_t size) {
        QTest::addRow("%x", code) << code << size;
    };
    row(0, 0);
    row(1, 0);
    row(3, 10);
    row(9, 0);
    row(23, 0);
    row(43, 0);
    row(255, 0);
    row(256, 0);  // an empty macro
    row(306, 0);  // no such slot
    row(4095, 0); // no such slot
    row(0x1000, 0);
    row(0x1001, 0);
    row(0x1002, 4);
    row(0x2009, 12);
    row(0x4002, 8);
    row(0x4004, 12);
    row(0x6003, 0);
    row(0x7009, 4);
    row(0x700A, 0);
    row(0x8001, 0);
    row(0xFFFF, 0);
    // Only the low 16 bits count.
    row(0x10003, 10);
    row(0xFFFF0003, 10);
    row(0x80002009, 12);
    row(0x10000, 0);
}

void tst_memory::aFunctionHasItsSize()
{
    QFETCH(FunctionCode, code);
    QTEST(MainView::GetMacroBlockInfo(code), "size");
}

void tst_memory::everyGameCommandHasItsSize()
{
    for (const KnownCommand &command : kKnownCommands)
        QCOMPARE(MainView::GetMacroBlockInfo(command.code), command.size);
}

void tst_memory::basicFunctionsTakeNothingButTheDoubleClick()
{
    for (FunctionCode code = 0; code <= 255; ++code)
        QCOMPARE(MainView::GetMacroBlockInfo(code), code == 3 ? 10U : 0U);
}

void tst_memory::aMacroHasItsSize_data()
{
    QTest::addColumn<Fill>("fill");
    QTest::addColumn<std::uint32_t>("size");
    const auto row = [](const char *name, const Fill &fill, std::uint32_t size) {
        QTest::newRow(name) << fill << size;
    };
    row(
        "recorded, 100 events", [](MacroInfo &m) { fillEvents(m, 2, 100, 5); }, 402);
    row(
        "no delay, 100 events", [](MacroInfo &m) { fillEvents(m, 3, 100, 5); }, 202);
    row(
        "text, 100 events", [](MacroInfo &m) { fillEvents(m, 1, 100, 5); }, 202);
    row(
        "another mode", [](MacroInfo &m) { fillEvents(m, 77, 100, 5); }, 202);
    row(
        "recorded without delays", [](MacroInfo &m) { fillEvents(m, 2, 100, 0); }, 202);
    row(
        "full", [](MacroInfo &m) { fillEvents(m, 2, 500, 1); }, 2002);
    row(
        "full, with start and send keys behind",
        [](MacroInfo &m) {
            fillEvents(m, 2, 500, 1);
            m.bSTARTKEY = m.bSENDKEY = 1;
            for (auto *const keys : {&m.STARTKEY, &m.SENDKEY})
                std::ranges::fill(*keys, KeymapEvent{1, 1, 1});
        },
        2002);
    row(
        "no events", [](MacroInfo &m) { fillEvents(m, 2, 0, 0); }, 0);
    row(
        "events behind an empty slot",
        [](MacroInfo &m) { fillEvents(m, 2, 10, 1), m.KEYMAP[2].kind = 0; }, 10);
    row(
        "a delay in the empty slot",
        [](MacroInfo &m) {
            m.MODE = 2, m.KEYMAP[0] = {0, 0, 9};
        },
        0);
    row(
        "an event of another kind",
        [](MacroInfo &m) { fillEvents(m, 3, 2, 0), m.KEYMAP[0].kind = 3; }, 4);
    row(
        "the delay of another kind",
        [](MacroInfo &m) {
            m.MODE = 2, m.KEYMAP[0] = {0, 3, 9};
        },
        4);
    row(
        "copy & paste", [](MacroInfo &m) { fillText(m, "abc", 1, 1); }, 22);
    row(
        "copy & paste, no keys", [](MacroInfo &m) { fillText(m, "abc", 0, 0); }, 14);
    row(
        "copy & paste, start key", [](MacroInfo &m) { fillText(m, "", 7, 0); }, 6);
    row(
        "copy & paste, send key", [](MacroInfo &m) { fillText(m, "", 0, 1); }, 6);
    row(
        "copy & paste, nothing", [](MacroInfo &m) { fillText(m, "", 0, 0); }, 0);
    row(
        "copy & paste counts bytes", [](MacroInfo &m) { fillText(m, "\xC3\xBC", 0, 0); }, 10);
    row(
        "copy & paste ignores events",
        [](MacroInfo &m) { fillEvents(m, 2, 9, 1), fillText(m, "a", 0, 0); }, 6);
}

void tst_memory::aMacroHasItsSize()
{
    QFETCH(Fill, fill);
    fill(m_Config.PROFILE[0].MACRO[49]);
    QTEST(MainView::GetMacroBlockInfo(305), "size");
    QTEST(MainView::GetMacroBlockInfo(0xABCD0000 + 305), "size");
    QCOMPARE(MainView::GetMacroBlockInfo(304), 0U);
}

void tst_memory::theMacroIsThatOfTheCurrentProfile()
{
    fillEvents(m_Config.PROFILE[3].MACRO[0], 3, 1, 0);
    QCOMPARE(MainView::GetMacroBlockInfo(256), 0U);
    m_Config.PROFILE_ID = 3;
    QCOMPARE(MainView::GetMacroBlockInfo(256), 4U);
}

void tst_memory::aTextThatFillsItsFieldIsCountedToItsEnd()
{
    MacroInfo &macro = m_Config.PROFILE[0].MACRO[0];
    std::ranges::fill(macro.COPY_PASTER, 'x');
    macro.bLOOP = 0x78787878;
    QCOMPARE(MainView::GetMacroBlockInfo(256), 4U * 260 + 2);
}

void tst_memory::theGaugeShowsTheProfile_data()
{
    QTest::addColumn<FunctionCode>("code");
    QTest::addColumn<bool>("gameMode");
    QTest::addColumn<std::uint32_t>("usage");
    QTest::addColumn<int>("position");
    QTest::newRow("plain buttons") << FunctionCode{1} << false << 0U << 0;
    QTest::newRow("double clicks") << FunctionCode{3} << false << 1U << 1; // 215 bytes
    QTest::newRow("large macros") << FunctionCode{256} << false << 219U << 64;
    QTest::newRow("in game") << FunctionCode{256} << true << 0U << 0;
    QTest::newRow("low 16 bits") << FunctionCode{0x70100} << false << 219U << 64;
}

void tst_memory::theGaugeShowsTheProfile()
{
    QFETCH(FunctionCode, code);
    QFETCH(bool, gameMode);
    MainWindowStage stage;
    setAllButtons(code);
    m_Config.GAME_MODE = gameMode ? 1 : 0;
    stage.reportProfile(1);
    QTEST(stage.view().memoryUsage(), "usage");
    const auto *const bar =
        stage.view().findChild<pngProgressBar *>(QStringLiteral("MSMemoryUsageBar"));
    QTEST(bar->getPos(), "position");
}

void tst_memory::unitsAreCutDown_data()
{
    using Codes = std::vector<FunctionCode>;
    QTest::addColumn<Codes>("codes");
    QTest::addColumn<std::uint32_t>("usage");
    QTest::newRow("85 bytes") << Codes{3} << 0U;
    QTest::newRow("125 bytes") << Codes(5, 3) << 0U;
    QTest::newRow("127 bytes") << Codes{3, 3, 0x2009, 3, 3} << 0U;
    QTest::newRow("129 bytes") << Codes{0x4004, 3, 3, 3, 0x2009} << 1U;
    QTest::newRow("135 bytes") << Codes(6, 3) << 1U;
}

void tst_memory::unitsAreCutDown()
{
    QFETCH(std::vector<FunctionCode>, codes);
    MainWindowStage stage;
    std::ranges::copy(codes, m_Config.PROFILE[0].BUTTON);
    stage.reportProfile(1);
    QTEST(stage.view().memoryUsage(), "usage");
}

void tst_memory::thePercentageIsWrittenBesideTheBar_data()
{
    QTest::addColumn<std::size_t>("macros"); ///< of 2002 bytes, one a button
    QTest::addColumn<int>("events");         ///< of another macro, 2 bytes each
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << std::size_t{0} << 0 << QStringLiteral("0%");
    QTest::newRow("1 of 64") << std::size_t{0} << 30 << QStringLiteral("1%");
    QTest::newRow("63 of 64") << std::size_t{4} << 0 << QStringLiteral("98%");
    QTest::newRow("64 of 64") << std::size_t{4} << 60 << QStringLiteral("100%");
    QTest::newRow("219 of 64") << std::size_t{14} << 0 << QStringLiteral("342%");
}

void tst_memory::thePercentageIsWrittenBesideTheBar()
{
    QFETCH(std::size_t, macros);
    QFETCH(int, events);
    QFETCH(QString, text);
    MainWindowStage stage;
    setAllButtons(1);
    ProfileInfo &profile = m_Config.PROFILE[0];
    std::fill_n(profile.BUTTON, macros, 256U);
    if (events > 0) {
        fillEvents(profile.MACRO[1], 3, static_cast<std::size_t>(events), 0);
        profile.BUTTON[13] = 257;
    }
    stage.reportProfile(1);
    QCOMPARE(shown(stage.view()).copy(kPercentPlace), percentage(text));
}

void tst_memory::inGameModeThePercentageIsZero()
{
    MainWindowStage stage;
    setAllButtons(256);
    stage.reportProfile(1);
    QCOMPARE(shown(stage.view()).copy(kPercentPlace), percentage(QStringLiteral("342%")));
    pointer::click(stage.button("chkGameMode"));
    stage.reportProfile(1);
    QCOMPARE(shown(stage.view()).copy(kPercentPlace), percentage(QStringLiteral("0%")));
}

/// Text and bar, on the screen.
void tst_memory::theGaugeIsDrawnAgainAfterAnAssignment()
{
    const MainWindowStage stage;
    fillEvents(m_Config.PROFILE[0].MACRO[0], 2, 500, 1);
    const QRect bar(60, 640 - 350 - 18, 90, 18);
    const QImage empty = onScreen(stage.window()).copy(bar);
    for (int number = 1; number <= 4; ++number)
        dropText(stage.mouseButton(number), QStringLiteral("256"));
    const QImage now = onScreen(stage.window());
    QCOMPARE(now.copy(kPercentPlace), percentage(QStringLiteral("98%"))); // 75 + 4 * 2002 bytes
    QVERIFY(now.copy(bar) != empty);
    for (int number = 1; number <= 4; ++number)
        dropText(stage.mouseButton(number), QStringLiteral("1"));
    const QImage after = onScreen(stage.window());
    QCOMPARE(after.copy(kPercentPlace), percentage(QStringLiteral("0%")));
    QCOMPARE(after.copy(bar), empty);
}

void tst_memory::anUnknownCurrentProfileCountsAsTheFirst()
{
    MainWindowStage stage;
    setAllButtons(256);
    stage.reportProfile(77);
    QCOMPARE(stage.view().memoryUsage(), 219U);
    stage.reportProfile(2);
    QCOMPARE(stage.view().memoryUsage(), 0U);
}

KYR_GUI_TEST(tst_memory)
#include "tst_memory.moc"
