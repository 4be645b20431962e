#include "settingskeys.h"
#include "storefixture.h"
#include "support/suite.h"

#include <memory>

/// Every key of the settings file against the member it stands for.
class tst_storekeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aKeyIsReadIntoItsMemberAndNowhereElse_data();
    void aKeyIsReadIntoItsMemberAndNowhereElse();
    void aTextIsCutToItsFieldAndChangesNoOther_data();
    void aTextIsCutToItsFieldAndChangesNoOther();
    void aListIsCutToItsSlotsAndChangesNoOther_data();
    void aListIsCutToItsSlotsAndChangesNoOther();
    void everyMemberIsWrittenUnderItsKeyAndNothingElse();
    void aValueOfAnotherTypeReadsAsMissing_data();
    void aValueOfAnotherTypeReadsAsMissing();
    void aNestedDictionaryOfAnotherTypeReadsAsMissing_data();
    void aNestedDictionaryOfAnotherTypeReadsAsMissing();
    void anEmptyFileReadsAsZeros_data();
    void anEmptyFileReadsAsZeros();
    void unknownKeysAreIgnored();
    void anIntegerIsCutToItsLow32Bits_data();
    void anIntegerIsCutToItsLow32Bits();
    void anIntegerIsWrittenAsASigned32BitNumber_data();
    void anIntegerIsWrittenAsASigned32BitNumber();
    void aProfileNumberOutsideShowsTheFirstProfile_data();
    void aProfileNumberOutsideShowsTheFirstProfile();
};

Q_DECLARE_METATYPE(Key)

namespace {

/// A value of its own for every member of the record.
int numberFor(const Key &key, Place place)
{
    const auto index = static_cast<int>(&key - kSettingsKeys.data());
    return static_cast<int>(place.profile) * 100'000 + static_cast<int>(place.macro) * 1000 +
           index + 1;
}

QVariant valueFor(const Key &key, Place place)
{
    const int number = numberFor(key, place);
    if (key.holds == Holds::Integer)
        return qlonglong(number);
    if (key.holds == Holds::Text)
        return QStringLiteral("%1 of %2").arg(QLatin1String(key.name)).arg(number);
    return QStringLiteral("%1,1,2,5,2,%1,").arg(number);
}

void putValue(ConfigData &config, const Key &key, Place place)
{
    const auto number = static_cast<std::uint32_t>(numberFor(key, place));
    const auto member = memberAt(config, key, place);
    const KeymapEvent events[] = {{number, 1, 2}, {5, 2, number}};
    const QByteArray text = valueFor(key, place).toByteArray();
    if (key.holds == Holds::Integer)
        std::memcpy(member.data(), &number, sizeof number);
    else if (key.holds == Holds::Text)
        std::ranges::copy(text, member.begin());
    else
        std::memcpy(member.data(), events, sizeof events);
}

QByteArray elementFor(const Key &key, Place place)
{
    const QByteArray tag = key.holds == Holds::Integer ? "integer" : "string";
    return '<' + tag + '>' + valueFor(key, place).toByteArray() + "</" + tag + '>';
}

void putEveryValue(ConfigData &config)
{
    for (const Key &key : kSettingsKeys) {
        const unsigned profiles = key.level == Level::Root ? 1 : 10;
        const unsigned macros = key.level == Level::Macro ? 50 : 1;
        for (unsigned i = 0; i < profiles * macros; ++i)
            putValue(config, key, {i / macros, i % macros});
    }
}

/// The dictionary that a whole record of putEveryValue() must be written as.
QVariantMap everyValue(Level level, Place place)
{
    QVariantMap result;
    for (const Key &key : kSettingsKeys) {
        if (key.level == level)
            result[QLatin1String(key.name)] = valueFor(key, place);
    }
    return result;
}

QVariantMap everyProfileValue(unsigned profile)
{
    QVariantMap result = everyValue(Level::Profile, {profile});
    result[QStringLiteral("CHARACTER_INFO")] = everyValue(Level::Character, {profile});
    for (unsigned macro = 0; macro < 50; ++macro)
        result[QString::fromLatin1(numbered("MACRO_", macro))] =
            everyValue(Level::Macro, {profile, macro});
    return result;
}

/// The values of every key of a level, but `element` under one of them.
QByteArray everyElementBut(const Key &one, const QByteArray &element, Level level, Place place)
{
    QByteArray entries;
    for (const Key &key : kSettingsKeys) {
        if (key.level == level)
            entries += plistEntry(key.name, &key == &one ? element : elementFor(key, place));
    }
    return entries;
}

/// A file that says something about everything in one profile and one macro of it, and `element`
/// under one of the keys.
QByteArray fullFileBut(const Key &one, const QByteArray &element, Place place)
{
    const auto entries = [&](Level level) { return everyElementBut(one, element, level, place); };
    const auto nested = [](const QByteArray &key, const QByteArray &inner) {
        return plistEntry(key, plistDictionary(inner));
    };
    const QByteArray profile = entries(Level::Profile) +
                               nested("CHARACTER_INFO", entries(Level::Character)) +
                               nested(numbered("MACRO_", place.macro), entries(Level::Macro));
    return plistOf(entries(Level::Root) + nested(numbered("PROFILE_", place.profile), profile));
}

/// Loads that file; then `bytes` must be all that the key's member holds, and every other member
/// must hold what the file says about it.
void compareFullFileBut(const Key &one, const QByteArray &element, const QByteArray &bytes)
{
    const Place place = {4, 7};
    StoreFixture fixture;
    fixture.load(fullFileBut(one, element, place));

    const auto expected = std::make_unique<ConfigData>();
    for (const Key &key : kSettingsKeys)
        putValue(*expected, key, place);
    const auto member = memberAt(*expected, one, place);
    std::ranges::fill(member, '\0');
    std::ranges::copy(bytes, member.begin());
    for (const Key &key : kSettingsKeys)
        QVERIFY2(
            std::ranges::equal(memberAt(m_Config, key, place), memberAt(*expected, key, place)),
            key.name);
    QVERIFY(sameRecord(m_Config, *expected));
}

/// Rows for the keys that hold such values: the length the file gives and the one that is kept.
void lengthRows(Holds holds, qsizetype elementSize, qsizetype terminator)
{
    QTest::addColumn<const Key *>("key");
    QTest::addColumn<qsizetype>("length");
    QTest::addColumn<qsizetype>("kept");
    for (const Key &key : kSettingsKeys) {
        if (key.holds != holds)
            continue;
        const qsizetype most = static_cast<qsizetype>(key.size) / elementSize - terminator;
        for (const qsizetype more : {0, 1, 1000})
            QTest::addRow("%s, %d too long", key.name, static_cast<int>(more))
                << &key << most + more << most;
    }
}

/// A value of every type that a property list knows.
const QByteArray kElements[] = {
    "<integer>7</integer>",
    "<string>7,7,7,</string>",
    "<real>7.5</real>",
    "<true/>",
    "<false/>",
    "<date>2001-02-03T04:05:06Z</date>",
    "<data>Nyw3LDcs</data>",
    "<array><integer>7</integer><string>7,7,7,</string></array>",
    "<dict><key>MODE</key><array/></dict>",
};

bool isOfType(const QByteArray &element, const Key &key)
{
    return element.startsWith(key.holds == Holds::Integer ? "<integer" : "<string");
}

const ConfigData &zeros()
{
    static const ConfigData record = {};
    return record;
}

} // namespace

void tst_storekeys::aKeyIsReadIntoItsMemberAndNowhereElse_data()
{
    QTest::addColumn<const Key *>("key");
    QTest::addColumn<unsigned>("profile");
    QTest::addColumn<unsigned>("macro");
    for (const Key &key : kSettingsKeys) {
        for (const auto &place : {Place{0, 0}, Place{6, 33}, Place{9, 49}})
            QTest::addRow("%s at %u, %u", key.name, place.profile, place.macro)
                << &key << place.profile << place.macro;
    }
}

void tst_storekeys::aKeyIsReadIntoItsMemberAndNowhereElse()
{
    QFETCH(const Key *, key);
    QFETCH(unsigned, profile);
    QFETCH(unsigned, macro);
    const Place place = {profile, macro};
    StoreFixture fixture;
    fixture.load(plistAt(key->level, place, plistEntry(key->name, elementFor(*key, place))));

    const auto expected = std::make_unique<ConfigData>();
    putValue(*expected, *key, place);
    QVERIFY(sameRecord(m_Config, *expected));
}

void tst_storekeys::aTextIsCutToItsFieldAndChangesNoOther_data()
{
    lengthRows(Holds::Text, 1, 1);
}

void tst_storekeys::aTextIsCutToItsFieldAndChangesNoOther()
{
    QFETCH(const Key *, key);
    QFETCH(qsizetype, length);
    QFETCH(qsizetype, kept);
    compareFullFileBut(*key, "<string>" + QByteArray(length, 'x') + "</string>",
                       QByteArray(kept, 'x'));
}

void tst_storekeys::aListIsCutToItsSlotsAndChangesNoOther_data()
{
    lengthRows(Holds::Events, sizeof(KeymapEvent), 0);
}

void tst_storekeys::aListIsCutToItsSlotsAndChangesNoOther()
{
    QFETCH(const Key *, key);
    QFETCH(qsizetype, length);
    QFETCH(qsizetype, kept);
    const KeymapEvent event = {1001, 1002, 1003};
    const QByteArray bytes(reinterpret_cast<const char *>(&event), sizeof event);
    compareFullFileBut(*key,
                       "<string>" + QByteArray("1001,1002,1003,").repeated(length) + "</string>",
                       bytes.repeated(kept));
}

void tst_storekeys::everyMemberIsWrittenUnderItsKeyAndNothingElse()
{
    StoreFixture fixture;
    putEveryValue(m_Config);
    fixture.store.WriteConfigFile();

    QVariantMap written = readPlist(fixture.settings.bytes());
    for (unsigned profile = 0; profile < 10; ++profile) {
        const auto key = QString::fromLatin1(numbered("PROFILE_", profile));
        QCOMPARE(written.take(key).toMap(), everyProfileValue(profile));
    }
    QCOMPARE(written, everyValue(Level::Root, {}));
}

void tst_storekeys::aValueOfAnotherTypeReadsAsMissing_data()
{
    QTest::addColumn<const Key *>("key");
    QTest::addColumn<QByteArray>("element");
    for (const Key &key : kSettingsKeys) {
        for (const QByteArray &element : kElements) {
            if (!isOfType(element, key))
                QTest::addRow("%s as %s", key.name, element.constData()) << &key << element;
        }
    }
}

void tst_storekeys::aValueOfAnotherTypeReadsAsMissing()
{
    QFETCH(const Key *, key);
    QFETCH(QByteArray, element);
    StoreFixture fixture;
    fixture.load(plistAt(key->level, {2, 3}, plistEntry(key->name, element)));
    QVERIFY(sameRecord(m_Config, zeros()));
    QVERIFY(fixture.log.lines.empty());
}

void tst_storekeys::aNestedDictionaryOfAnotherTypeReadsAsMissing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    for (const QByteArray &element : kElements) {
        const auto row = [&](Level level, const char *key) {
            QTest::addRow("%s as %s", key, element.constData())
                << plistAt(level, {0, 0}, plistEntry(key, element));
        };
        if (element.startsWith("<dict"))
            continue;
        row(Level::Root, "PROFILE_1");
        row(Level::Profile, "CHARACTER_INFO");
        row(Level::Profile, "MACRO_50");
    }
}

void tst_storekeys::aNestedDictionaryOfAnotherTypeReadsAsMissing()
{
    QFETCH(QByteArray, bytes);
    StoreFixture fixture;
    fixture.load(bytes);
    QVERIFY(sameRecord(m_Config, zeros()));
}

void tst_storekeys::anEmptyFileReadsAsZeros_data()
{
    QTest::addColumn<QByteArray>("entries");
    QTest::newRow("no keys") << QByteArray();
    QTest::newRow("a key without a value") << QByteArray("<key>GAME_MODE</key>");
    QTest::newRow("an empty integer") << plistEntry("GAME_MODE", "<integer/>");
    QTest::newRow("empty dictionaries")
        << plistEntry("PROFILE_1", "<dict/>") +
               plistEntry("PROFILE_2", plistDictionary(plistEntry("MACRO_1", "<dict/>")));
}

void tst_storekeys::anEmptyFileReadsAsZeros()
{
    QFETCH(QByteArray, entries);
    StoreFixture fixture;
    fixture.load(plistOf(entries));
    QVERIFY(sameRecord(m_Config, zeros()));
}

void tst_storekeys::unknownKeysAreIgnored()
{
    StoreFixture fixture;
    const QByteArray integer = "<integer>7</integer>";
    QByteArray entries = plistEntry("GAME_MODE", "<integer>1</integer>");
    for (const char *key : {"PROFILE_0", "PROFILE_11"})
        entries += plistEntry(key, plistDictionary(plistEntry("DPI_VALUE", integer)));
    for (const char *key : {"game_mode", "", "PROFILE_%d", "DPI_VALUE"})
        entries += plistEntry(key, integer);
    entries += plistEntry("PROFILE_1", plistDictionary(plistEntry("BUTTON_0", integer) +
                                                       plistEntry("BUTTON_15", integer) +
                                                       plistEntry("MACRO_51", "<dict/>")));
    fixture.load(plistOf(entries));

    const auto expected = std::make_unique<ConfigData>();
    expected->GAME_MODE = 1;
    QVERIFY(sameRecord(m_Config, *expected));
}

void tst_storekeys::anIntegerIsCutToItsLow32Bits_data()
{
    QTest::addColumn<QByteArray>("digits");
    QTest::addColumn<std::uint32_t>("value");
    const auto row = [](const char *digits, std::uint32_t value) {
        QTest::newRow(digits) << QByteArray(digits) << value;
    };
    row("10", 10);
    row("-1", 4294967295);
    row("-2147483648", 2147483648);
    row("4000000000", 4000000000);
    row("4294967295", 4294967295);
    row("4294967296", 0);
    row("4294967303", 7);
    row("-4294967289", 7);
    row("9223372036854775807", 4294967295);
    row("-9223372036854775808", 0);
    row("18446744073709551615", 4294967295);
}

void tst_storekeys::anIntegerIsCutToItsLow32Bits()
{
    QFETCH(QByteArray, digits);
    QFETCH(std::uint32_t, value);
    StoreFixture fixture;
    fixture.load(plistOf(plistEntry("POLLING_RATE", "<integer>" + digits + "</integer>")));
    QCOMPARE(m_Config.POLLING_RATE, value);
    QCOMPARE(m_Config.PROFILE_ID, 0U);
    QCOMPARE(m_Config.MACRODEL_CONFIRM, 0U);
}

void tst_storekeys::anIntegerIsWrittenAsASigned32BitNumber_data()
{
    QTest::addColumn<std::uint32_t>("value");
    QTest::addColumn<qlonglong>("written");
    QTest::newRow("0") << 0U << 0LL;
    QTest::newRow("greatest") << 2147483647U << 2147483647LL;
    QTest::newRow("2147483648") << 2147483648U << -2147483648LL;
    QTest::newRow("4294967295") << 4294967295U << -1LL;
}

void tst_storekeys::anIntegerIsWrittenAsASigned32BitNumber()
{
    QFETCH(std::uint32_t, value);
    StoreFixture fixture;
    m_Config.POLLING_RATE = value;
    fixture.store.WriteConfigFile();
    QTEST(readPlist(fixture.settings.bytes())[QStringLiteral("POLLING_RATE")].toLongLong(),
          "written");

    fixture.load();
    QCOMPARE(m_Config.POLLING_RATE, value);
}

void tst_storekeys::aProfileNumberOutsideShowsTheFirstProfile_data()
{
    QTest::addColumn<QByteArray>("digits");
    QTest::newRow("10") << QByteArray("10");
    QTest::newRow("-1") << QByteArray("-1");
    QTest::newRow("4000000000") << QByteArray("4000000000");
    QTest::newRow("beyond 64 bits") << QByteArray("99999999999999999999999");
}

void tst_storekeys::aProfileNumberOutsideShowsTheFirstProfile()
{
    QFETCH(QByteArray, digits);
    StoreFixture fixture;
    const QByteArray dpi = plistDictionary(plistEntry("DPI_VALUE", "<integer>3</integer>"));
    fixture.load(plistOf(plistEntry("PROFILE_ID", "<integer>" + digits + "</integer>") +
                         plistEntry("PROFILE_1", dpi)));
    QVERIFY(m_Config.PROFILE_ID > 9);
    QCOMPARE(CurrentProfile().DPI_VALUE, 3U);
}

KYR_PLAIN_TEST(tst_storekeys)
#include "tst_storekeys.moc"
