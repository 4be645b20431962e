#include "model/settings.h"
#include "support/suite.h"

#include <algorithm>
#include <cstring>

/// The layout of the record and the bounded ways to its profiles and macros.
class tst_settings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFieldHasItsPlace_data();
    void everyFieldHasItsPlace();
    void aProfileNumberFromOutsideIsBounded_data();
    void aProfileNumberFromOutsideIsBounded();
    void theCurrentProfileIsTheOneNamedByProfileId_data();
    void theCurrentProfileIsTheOneNamedByProfileId();
    void aMacroSlotWithinTheProfileIsItsMacro();
    void aMacroSlotOutsideReadsAsAnEmptyMacro_data();
    void aMacroSlotOutsideReadsAsAnEmptyMacro();
};

void tst_settings::everyFieldHasItsPlace_data()
{
    QTest::addColumn<std::size_t>("offset");
    QTest::addColumn<std::size_t>("expected");
    const auto row = [](const char *name, std::size_t offset, std::size_t expected) {
        QTest::newRow(name) << offset << expected;
    };
    row("event keycode", offsetof(KeymapEvent, keycode), 0);
    row("event kind", offsetof(KeymapEvent, kind), 4);
    row("event delay", offsetof(KeymapEvent, delay), 8);

    row("MACRO_NAME", offsetof(MacroInfo, MACRO_NAME), 0);
    row("MODE", offsetof(MacroInfo, MODE), 100);
    row("KEYMAP", offsetof(MacroInfo, KEYMAP), 104);
    row("bSTARTKEY", offsetof(MacroInfo, bSTARTKEY), 6104);
    row("STARTKEY", offsetof(MacroInfo, STARTKEY), 6108);
    row("bSENDKEY", offsetof(MacroInfo, bSENDKEY), 6132);
    row("SENDKEY", offsetof(MacroInfo, SENDKEY), 6136);
    row("COPY_PASTER", offsetof(MacroInfo, COPY_PASTER), 6160);
    row("bLOOP", offsetof(MacroInfo, bLOOP), 6420);
    row("MACRO_LOOP", offsetof(MacroInfo, MACRO_LOOP), 6424);
    row("end of macro", sizeof(MacroInfo), 6428);

    row("REGION", offsetof(CharacterInfo, REGION), 0);
    row("SERVER", offsetof(CharacterInfo, SERVER), 4);
    row("NAME", offsetof(CharacterInfo, NAME), 204);
    row("LEVEL", offsetof(CharacterInfo, LEVEL), 404);
    row("CLASS", offsetof(CharacterInfo, CLASS), 408);
    row("RACE", offsetof(CharacterInfo, RACE), 608);
    row("end of character", sizeof(CharacterInfo), 808);

    row("CHARACTER_INFO", offsetof(ProfileInfo, CHARACTER_INFO), 0);
    row("DPI_VALUE", offsetof(ProfileInfo, DPI_VALUE), 808);
    row("DBCLICK_SPEED", offsetof(ProfileInfo, DBCLICK_SPEED), 812);
    row("SCROLL_SPEED", offsetof(ProfileInfo, SCROLL_SPEED), 816);
    row("SENSITIVITY", offsetof(ProfileInfo, SENSITIVITY), 820);
    row("ADVANCED_SEN_X", offsetof(ProfileInfo, ADVANCED_SEN_X), 824);
    row("ADVANCED_SEN_Y", offsetof(ProfileInfo, ADVANCED_SEN_Y), 828);
    row("LED_COLOR_R", offsetof(ProfileInfo, LED_COLOR_R), 832);
    row("LED_COLOR_G", offsetof(ProfileInfo, LED_COLOR_G), 836);
    row("LED_COLOR_B", offsetof(ProfileInfo, LED_COLOR_B), 840);
    row("LED_INTENSITY", offsetof(ProfileInfo, LED_INTENSITY), 844);
    row("LED_PULSATION", offsetof(ProfileInfo, LED_PULSATION), 848);
    row("BUTTON", offsetof(ProfileInfo, BUTTON), 852);
    row("MACRO", offsetof(ProfileInfo, MACRO), 908);
    row("end of profile", sizeof(ProfileInfo), 322308);

    row("PROFILE_ID", offsetof(ConfigData, PROFILE_ID), 0);
    row("POLLING_RATE", offsetof(ConfigData, POLLING_RATE), 4);
    row("MACRODEL_CONFIRM", offsetof(ConfigData, MACRODEL_CONFIRM), 8);
    row("GAME_MODE", offsetof(ConfigData, GAME_MODE), 12);
    row("PROFILE", offsetof(ConfigData, PROFILE), 16);
    row("end of record", sizeof(ConfigData), 3223096);
}

void tst_settings::everyFieldHasItsPlace()
{
    QFETCH(std::size_t, offset);
    QTEST(offset, "expected");
}

namespace {

void addProfileRows()
{
    QTest::addColumn<std::uint32_t>("index");
    QTest::addColumn<std::uint32_t>("expected");
    QTest::newRow("first") << 0U << 0U;
    QTest::newRow("fourth") << 3U << 3U;
    QTest::newRow("tenth") << 9U << 9U;
    QTest::newRow("one past the end") << 10U << 0U;
    QTest::newRow("minus one") << UINT32_MAX << 0U;
    QTest::newRow("4000000000") << 4000000000U << 0U;
}

} // namespace

void tst_settings::aProfileNumberFromOutsideIsBounded_data()
{
    addProfileRows();
}

void tst_settings::aProfileNumberFromOutsideIsBounded()
{
    QFETCH(std::uint32_t, index);
    QFETCH(std::uint32_t, expected);
    QCOMPARE(&ProfileAt(index), &m_Config.PROFILE[expected]);
}

void tst_settings::theCurrentProfileIsTheOneNamedByProfileId_data()
{
    addProfileRows();
}

void tst_settings::theCurrentProfileIsTheOneNamedByProfileId()
{
    QFETCH(std::uint32_t, index);
    QFETCH(std::uint32_t, expected);
    m_Config.PROFILE_ID = index;
    QCOMPARE(&CurrentProfile(), &m_Config.PROFILE[expected]);
    QCOMPARE(CurrentProfileIndex(), expected);
    QCOMPARE(m_Config.PROFILE_ID, index);
}

void tst_settings::aMacroSlotWithinTheProfileIsItsMacro()
{
    const ProfileInfo &profile = m_Config.PROFILE[2];
    for (std::uint32_t slot = 0; slot < 50; ++slot)
        QCOMPARE(&MacroAt(profile, slot), &profile.MACRO[slot]);
}

void tst_settings::aMacroSlotOutsideReadsAsAnEmptyMacro_data()
{
    QTest::addColumn<std::uint32_t>("slot");
    QTest::newRow("one past the end") << 50U;
    QTest::newRow("far out") << 3840U;
    QTest::newRow("minus one") << UINT32_MAX;
}

void tst_settings::aMacroSlotOutsideReadsAsAnEmptyMacro()
{
    QFETCH(std::uint32_t, slot);
    std::memset(&m_Config, 0xA5, sizeof m_Config);
    const MacroInfo &macro = MacroAt(m_Config.PROFILE[0], slot);
    const auto *bytes = reinterpret_cast<const char *>(&macro);
    QVERIFY(std::all_of(bytes, bytes + sizeof macro, [](char byte) { return byte == 0; }));
    m_Config = {};
}

KYR_PLAIN_TEST(tst_settings)
#include "tst_settings.moc"
