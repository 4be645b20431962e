#include "support/binaryplist.h"
#include "support/logcapture.h"
#include "support/plistxml.h"
#include "support/suite.h"
#include "support/testsettings.h"

#include <QtCore/QElapsedTimer>

#include <algorithm>
#include <cstring>
#include <memory>
#include <random>

/// Damaged settings and profile files: whatever they hold, loading comes back, every text of the
/// record is terminated UTF-8, and what was loaded can be saved and loaded again. The seeds are
/// fixed, so a failure comes back with the same row.
class fuzz_settings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDamagedFileLeavesAValidRecord_data();
    void aDamagedFileLeavesAValidRecord();
    void aDamagedProfileIsImportedWholeOrNotAtAll_data();
    void aDamagedProfileIsImportedWholeOrNotAtAll();
    void aHostileFileIsDoneWithSoon_data();
    void aHostileFileIsDoneWithSoon();
};

namespace {

using Random = std::mt19937;

qsizetype below(Random &random, qsizetype limit)
{
    return limit > 0 ? static_cast<qsizetype>(random() % static_cast<std::uint64_t>(limit)) : 0;
}

/// What a profile's dictionary holds: most keys of it and of two macros, and a few texts worth
/// damaging.
QByteArray profileEntries()
{
    const QByteArray text = "<string>R\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80 &amp; &#233;</string>";
    const QByteArray events = "<string>56,1,3,56,2,0,</string>";
    const QByteArray integer = "<integer>3</integer>";
    QByteArray macro;
    for (const char *key : {"MACRO_NAME", "COPY_PASTER"})
        macro += plistEntry(key, text);
    for (const char *key : {"KEYMAP", "STARTKEY", "SENDKEY"})
        macro += plistEntry(key, events);
    for (const char *key : {"MODE", "MACRO_LOOP", "bSTARTKEY", "bSENDKEY", "bLOOP"})
        macro += plistEntry(key, integer);
    QByteArray character;
    for (const char *key : {"SERVER", "NAME", "CLASS", "RACE"})
        character += plistEntry(key, text);
    QByteArray profile = plistEntry("CHARACTER_INFO", plistDictionary(character));
    for (const char *key : {"MACRO_1", "MACRO_50"})
        profile += plistEntry(key, plistDictionary(macro));
    for (const char *key : {"DPI_VALUE", "LED_PULSATION", "BUTTON_1", "BUTTON_14"})
        profile += plistEntry(key, integer);
    return profile;
}

/// A settings file.
QByteArray sample()
{
    const QByteArray profile = plistDictionary(profileEntries());
    return plistOf(plistEntry("PROFILE_ID", "<integer>-1</integer>") +
                   plistEntry("PROFILE_1", profile) + plistEntry("PROFILE_10", profile));
}

/// What mutations put in: bytes that end, open, count or escape something in one of the forms.
const QByteArray kTokens[] = {
    "<dict>",
    "</dict>",
    "<dict/>",
    "<array>",
    "</array>",
    "<key>",
    "</key>",
    "<string>",
    "</string>",
    "<integer>",
    "</integer>",
    "<integer/>",
    "<real>1e999",
    "<true/>",
    "<data>AA==</data>",
    "<date>x",
    "<uid/>",
    "</plist>",
    "<!--",
    "-->",
    "<![CDATA[",
    "]]>",
    "<!DOCTYPE [",
    "<?",
    "&#0;",
    "&#x110000;",
    "&amp",
    "&lt;dict&gt;",
    "\"",
    "-99999999999999999999",
    "4294967296",
    "0x",
    ",,,,,,,",
    "-1,-1,-1,",
    "bplist00",
    QByteArray(1, '\0'),
    "\x80",
    "\xED\xA0\x80",
    "\xF4\x90\x80\x80",
    "\xFF",
    "\xFF\xFF\xFF\xFF",
    "\xD0",
    "\xDF\x13",
    "\xAF\x10\xFF",
    "\x5F\x10\xFF",
    "\x6F\x11\xFF\xFF",
    "\x13\xFF",
    "\x14",
    "\x80\x00",
    QByteArray(40, 'A'),
    QByteArray(300, '7'),
};

using Mutation = void (*)(QByteArray &bytes, Random &random);

const Mutation kMutations[] = {
    [](QByteArray &bytes, Random &random) {
        const auto at = below(random, bytes.size());
        bytes[at] = static_cast<char>(bytes[at] ^ (1 << below(random, 8)));
    },
    [](QByteArray &bytes, Random &random) {
        bytes[below(random, bytes.size())] = static_cast<char>(random());
    },
    // The binary form keeps all that leads elsewhere in its last bytes.
    [](QByteArray &bytes, Random &random) {
        const auto back = below(random, std::min<qsizetype>(bytes.size(), 200));
        bytes[bytes.size() - 1 - back] = static_cast<char>(random());
    },
    [](QByteArray &bytes, Random &random) {
        bytes.remove(below(random, bytes.size()), 1 + below(random, 40));
    },
    [](QByteArray &bytes, Random &random) { bytes.truncate(1 + below(random, bytes.size())); },
    [](QByteArray &bytes, Random &random) {
        const auto piece = bytes.mid(below(random, bytes.size()), below(random, 400));
        bytes.insert(below(random, bytes.size()), piece);
    },
    [](QByteArray &bytes, Random &random) {
        const auto token = below(random, std::ssize(kTokens));
        bytes.insert(below(random, bytes.size()), kTokens[token]);
    },
    [](QByteArray &bytes, Random &random) {
        const QByteArray &token = kTokens[below(random, std::ssize(kTokens))];
        bytes.replace(below(random, bytes.size()), token.size(), token);
    },
};

QByteArray damaged(QByteArray bytes, qsizetype mostTimes, Random &random)
{
    const auto times = 1 + below(random, mostTimes);
    for (qsizetype i = 0; i < times && !bytes.isEmpty(); ++i)
        kMutations[below(random, std::ssize(kMutations))](bytes, random);
    return bytes;
}

bool isText(std::span<const char> field)
{
    const auto end = std::ranges::find(field, '\0');
    return end != field.end() && QByteArrayView(field.data(), end - field.begin()).isValidUtf8();
}

bool isValid(const ProfileInfo &profile)
{
    const CharacterInfo &character = profile.CHARACTER_INFO;
    return isText(character.SERVER) && isText(character.NAME) && isText(character.CLASS) &&
           isText(character.RACE) && std::ranges::all_of(profile.MACRO, [](const MacroInfo &macro) {
               return isText(macro.MACRO_NAME) && isText(macro.COPY_PASTER);
           });
}

bool isValid(const ConfigData &config)
{
    return std::ranges::all_of(config.PROFILE, [](const ProfileInfo &p) { return isValid(p); });
}

bool survivesSaving(xmlconfig &store, const LogCapture &log)
{
    const auto before = std::make_unique<ConfigData>(m_Config);
    store.WriteConfigFile();
    store.LoadConfigFile();
    // A kind of 0 ends what is written of a list, so the lists themselves may get shorter.
    const bool isSame = m_Config.PROFILE_ID == before->PROFILE_ID &&
                        std::ranges::equal(m_Config.PROFILE[9].CHARACTER_INFO.NAME,
                                           before->PROFILE[9].CHARACTER_INFO.NAME) &&
                        std::ranges::equal(m_Config.PROFILE[9].MACRO[49].COPY_PASTER,
                                           before->PROFILE[9].MACRO[49].COPY_PASTER);
    return isSame && isValid(m_Config) && !log.contains("write fail!");
}

void addForms(const QByteArray &text)
{
    QTest::addColumn<QByteArray>("whole");
    QTest::addColumn<unsigned>("seed");
    for (unsigned seed = 1; seed <= 5; ++seed) {
        QTest::addRow("text %u", seed) << text << seed;
        QTest::addRow("binary %u", seed) << binaryPlist(text) << seed;
    }
}

/// Whether the records are the same but for the fourth profile.
bool isSameBesideTheFourth(const ConfigData &a, const ConfigData &b)
{
    const auto other = std::make_unique<ConfigData>(b);
    other->PROFILE[3] = a.PROFILE[3];
    return std::memcmp(&a, other.get(), sizeof a) == 0;
}

} // namespace

void fuzz_settings::aDamagedFileLeavesAValidRecord_data()
{
    addForms(sample());
}

void fuzz_settings::aDamagedFileLeavesAValidRecord()
{
    QFETCH(QByteArray, whole);
    QFETCH(unsigned, seed);
    constexpr int files = 300;
    const TestSettings settings;
    const LogCapture log;
    Random random(seed);
    xmlconfig store;
    store.setConfigfileName(settings.path());
    int read = 0;
    for (int file = 0; file < files; ++file) {
        settings.put(damaged(whole, 6, random));
        m_Config = {};
        read += store.ReadConfigFile() == ConfigRead::Ok;
        QVERIFY2(isValid(m_Config), QByteArray::number(file));
        if (file % 60 == 0)
            QVERIFY2(survivesSaving(store, log), QByteArray::number(file));
    }
    // Damage that always or never shows would test one half only.
    QVERIFY2(read > files / 50 && read < files, QByteArray::number(read));
}

void fuzz_settings::aDamagedProfileIsImportedWholeOrNotAtAll_data()
{
    addForms(plistOf(profileEntries()));
}

void fuzz_settings::aDamagedProfileIsImportedWholeOrNotAtAll()
{
    QFETCH(QByteArray, whole);
    QFETCH(unsigned, seed);
    constexpr int files = 300;
    const TestSettings settings;
    const LogCapture log;
    Random random(seed);
    xmlconfig store;
    std::memset(&m_Config, 0xA5, sizeof m_Config);
    const auto before = std::make_unique<ConfigData>(m_Config);
    int read = 0;
    for (int file = 0; file < files; ++file) {
        settings.put(damaged(whole, 2, random));
        m_Config.PROFILE[3] = before->PROFILE[3];
        store.ReadProfileFromFile(3, settings.path());
        const bool isUntouched = std::memcmp(&m_Config, before.get(), sizeof m_Config) == 0;
        read += !isUntouched;
        QVERIFY2(isUntouched || isValid(m_Config.PROFILE[3]), QByteArray::number(file));
    }
    QVERIFY(isSameBesideTheFourth(m_Config, *before));
    QVERIFY2(read > files / 50 && read < files, QByteArray::number(read));
    QCOMPARE(log.lines.size(), static_cast<std::size_t>(files - read));
}

void fuzz_settings::aHostileFileIsDoneWithSoon_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char *name, const QByteArray &bytes) {
        QTest::newRow(name) << bytes;
    };
    constexpr qsizetype many = 300'000;
    const QByteArray text = "<string>" + QByteArray("\xEF\xBF\xBE").repeated(many) + "</string>";
    QByteArray keys;
    for (int i = 0; i < many / 10; ++i)
        keys += plistEntry("K" + QByteArray::number(i), "<true/>");
    QByteArray macros;
    for (int i = 0; i < 1900; ++i)
        macros += plistEntry("M" + QByteArray::number(i), "<dict/>");
    const auto wrapped = [](const QByteArray &name, const QByteArray &element) {
        return plistOf(plistEntry(
            "PROFILE_1", plistDictionary(plistEntry("CHARACTER_INFO",
                                                    plistDictionary(plistEntry(name, element))))));
    };
    row("a long text of what must be replaced", wrapped("NAME", text));
    row("a long integer", wrapped("LEVEL", "<integer>" + QByteArray(many, '9') + "</integer>"));
    row("a long key", wrapped(QByteArray(many, 'K'), "<integer>1</integer>"));
    row("many keys", plistOf(keys));
    row("many dictionaries", plistOf(macros));
    row("a key many times",
        plistOf(plistEntry("GAME_MODE", "<integer>1</integer>").repeated(many / 10)));
    row("many comments", plistWithRoot(QByteArray("<!-- -->").repeated(many) + "<dict/>"));
    row("many entities",
        wrapped("NAME", "<string>" + QByteArray("&amp;").repeated(5 * many) + "</string>"));
    row("many sections",
        wrapped("NAME",
                "<string>" + QByteArray("<![CDATA[x]]>").repeated(many / 10) + "</string>"));
    row("opened only",
        "<?xml version=\"1.0\"?><plist version=\"1.0\">" + QByteArray("<dict>").repeated(many));
    row("closed only", plistWithRoot(QByteArray("</dict>").repeated(many)));
}

void fuzz_settings::aHostileFileIsDoneWithSoon()
{
    QFETCH(QByteArray, bytes);
    const TestSettings settings;
    const LogCapture log;
    settings.put(bytes);
    xmlconfig store;
    store.setConfigfileName(settings.path());
    QElapsedTimer timer;
    timer.start();
    store.LoadConfigFile();
    // Most take milliseconds; what grows with the square of the file takes minutes.
    QVERIFY2(timer.elapsed() < 10'000, QByteArray::number(timer.elapsed()));
    QVERIFY(isValid(m_Config));
}

KYR_PLAIN_TEST(fuzz_settings)
#include "fuzz_settings.moc"
