#include "model/xmlconfig.h"
#include "support/suite.h"

#include <cstring>

/// What a first start and "Restore Defaults" put into the record.
class tst_defaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aFirstStartSetsTheGlobalFields();
    void bothGiveTheSameSensorAndLightingValues_data();
    void bothGiveTheSameSensorAndLightingValues();
    void buttonsDiffer_data();
    void buttonsDiffer();
    void aFirstStartLeavesCharactersAndMacrosAsTheyAre();
    void restoringAProfileTouchesNothingElse_data();
    void restoringAProfileTouchesNothingElse();
    void restoringAProfileOutsideRestoresTheFirst();
};

namespace {

constexpr int kFill = 0xA5;
constexpr std::uint32_t kFilled = 0xA5A5A5A5;

/// Where a profile's sensor, lighting and button fields begin and end.
constexpr std::size_t kDefaultsBegin = 808;
constexpr std::size_t kDefaultsEnd = 908;

const char *bytesOf(const ProfileInfo &profile)
{
    return reinterpret_cast<const char *>(&profile);
}

bool isFilled(const char *begin, std::size_t size)
{
    return std::all_of(begin, begin + size, [](char byte) { return byte == char(kFill); });
}

bool isFilledOutsideTheDefaults(const ProfileInfo &profile)
{
    return isFilled(bytesOf(profile), kDefaultsBegin) &&
           isFilled(bytesOf(profile) + kDefaultsEnd, sizeof profile - kDefaultsEnd);
}

} // namespace

void tst_defaults::init()
{
    std::memset(&m_Config, kFill, sizeof m_Config);
}

void tst_defaults::aFirstStartSetsTheGlobalFields()
{
    xmlconfig().InitialConfigData();
    QCOMPARE(m_Config.PROFILE_ID, 0U);
    QCOMPARE(m_Config.POLLING_RATE, 1U);
    QCOMPARE(m_Config.MACRODEL_CONFIRM, 0U);
    QCOMPARE(m_Config.GAME_MODE, 0U);
}

using Member = std::uint32_t ProfileInfo::*;
Q_DECLARE_METATYPE(Member)

void tst_defaults::bothGiveTheSameSensorAndLightingValues_data()
{
    QTest::addColumn<Member>("member");
    QTest::addColumn<std::uint32_t>("value");
    QTest::newRow("DPI_VALUE") << &ProfileInfo::DPI_VALUE << 2U;
    QTest::newRow("DBCLICK_SPEED") << &ProfileInfo::DBCLICK_SPEED << 10U;
    QTest::newRow("SCROLL_SPEED") << &ProfileInfo::SCROLL_SPEED << 3U;
    QTest::newRow("SENSITIVITY") << &ProfileInfo::SENSITIVITY << 6U;
    QTest::newRow("ADVANCED_SEN_X") << &ProfileInfo::ADVANCED_SEN_X << 10U;
    QTest::newRow("ADVANCED_SEN_Y") << &ProfileInfo::ADVANCED_SEN_Y << 10U;
    QTest::newRow("LED_COLOR_R") << &ProfileInfo::LED_COLOR_R << 255U;
    QTest::newRow("LED_COLOR_G") << &ProfileInfo::LED_COLOR_G << 60U;
    QTest::newRow("LED_COLOR_B") << &ProfileInfo::LED_COLOR_B << 0U;
    QTest::newRow("LED_INTENSITY") << &ProfileInfo::LED_INTENSITY << 1U;
    QTest::newRow("LED_PULSATION") << &ProfileInfo::LED_PULSATION << 1U;
}

void tst_defaults::bothGiveTheSameSensorAndLightingValues()
{
    QFETCH(Member, member);
    QFETCH(std::uint32_t, value);
    xmlconfig().InitialConfigData();
    for (const ProfileInfo &profile : m_Config.PROFILE)
        QCOMPARE(profile.*member, value);

    init();
    xmlconfig().InitialProfile(6);
    QCOMPARE(m_Config.PROFILE[6].*member, value);
}

void tst_defaults::buttonsDiffer_data()
{
    QTest::addColumn<std::size_t>("button");
    QTest::addColumn<FunctionCode>("firstStart");
    QTest::addColumn<FunctionCode>("restored");
    const auto row = [](std::size_t button, FunctionCode firstStart, FunctionCode restored) {
        QTest::addRow("button %zu", button) << button << firstStart << restored;
    };
    row(1, 1, 1);
    row(2, 2, 2);
    row(3, 9, 6);
    row(4, 9, 16400);
    row(5, 9, 20487);
    row(6, 9, 20497);
    row(7, 9, 16385);
    row(8, 9, 5);
    row(9, 9, 4);
    row(10, 9, 16387);
    row(11, 9, 16399);
    row(12, 9, 16404);
    row(13, 9, 20500);
    row(14, 9, 16389);
}

void tst_defaults::buttonsDiffer()
{
    QFETCH(std::size_t, button);
    QFETCH(FunctionCode, firstStart);
    QFETCH(FunctionCode, restored);
    xmlconfig().InitialConfigData();
    for (const ProfileInfo &profile : m_Config.PROFILE)
        QCOMPARE(profile.BUTTON[button - 1], firstStart);

    xmlconfig().InitialProfile(6);
    QCOMPARE(m_Config.PROFILE[6].BUTTON[button - 1], restored);
    QCOMPARE(m_Config.PROFILE[5].BUTTON[button - 1], firstStart);
}

void tst_defaults::aFirstStartLeavesCharactersAndMacrosAsTheyAre()
{
    xmlconfig().InitialConfigData();
    for (const ProfileInfo &profile : m_Config.PROFILE)
        QVERIFY(isFilledOutsideTheDefaults(profile));
}

void tst_defaults::restoringAProfileTouchesNothingElse_data()
{
    QTest::addColumn<std::uint32_t>("index");
    for (std::uint32_t index = 0; index < 10; ++index)
        QTest::addRow("profile %u", index + 1) << index;
}

void tst_defaults::restoringAProfileTouchesNothingElse()
{
    QFETCH(std::uint32_t, index);
    xmlconfig().InitialProfile(index);
    QCOMPARE(m_Config.PROFILE[index].BUTTON[13], 16389U);
    QVERIFY(isFilledOutsideTheDefaults(m_Config.PROFILE[index]));
    for (std::uint32_t other = 0; other < 10; ++other)
        QVERIFY(other == index || isFilled(bytesOf(m_Config.PROFILE[other]), sizeof(ProfileInfo)));
    QCOMPARE(m_Config.PROFILE_ID, kFilled);
    QCOMPARE(m_Config.POLLING_RATE, kFilled);
    QCOMPARE(m_Config.MACRODEL_CONFIRM, kFilled);
    QCOMPARE(m_Config.GAME_MODE, kFilled);
}

void tst_defaults::restoringAProfileOutsideRestoresTheFirst()
{
    xmlconfig().InitialProfile(10);
    QCOMPARE(m_Config.PROFILE[0].BUTTON[13], 16389U);
    for (std::uint32_t other = 1; other < 10; ++other)
        QVERIFY(isFilled(bytesOf(m_Config.PROFILE[other]), sizeof(ProfileInfo)));
}

KYR_PLAIN_TEST(tst_defaults)
#include "tst_defaults.moc"
