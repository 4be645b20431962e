#include "badfile.h"
#include "storefixture.h"
#include "support/binaryplist.h"
#include "support/plistxml.h"
#include "support/suite.h"
#include "support/unprivileged.h"

#include <sys/stat.h>

#include <filesystem>
#include <memory>

/// Loading what is no settings file.
class tst_badfiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bytesThatAreNoPropertyListGiveDefaults_data();
    void bytesThatAreNoPropertyListGiveDefaults();
    void aBinaryFileThatSharesObjectsIsRead_data();
    void aBinaryFileThatSharesObjectsIsRead();
    void whatIsNoReadableFileGivesDefaults_data();
    void whatIsNoReadableFileGivesDefaults();
    void aMissingFileGivesDefaultsWithoutAWord_data();
    void aMissingFileGivesDefaultsWithoutAWord();
    void aFileWithoutPermissionGivesDefaults();
    void aTextFileCutShortIsReadWholeOrNotAtAll();
    void aBinaryFileCutShortIsNotRead();
    void defaultsLeaveCharactersAndMacrosAsTheyAre();
};

namespace {

const char kInteger[] = "<integer>1</integer>";

/// A binary property list of a dictionary {"a": array} whose arrays refer to the next one `width`
/// times, `levels` deep, or back to the first when `isCircle`.
QByteArray arraysOfArrays(int levels, int width, bool isCircle)
{
    QByteArray bytes = "bplist00";
    QByteArray table;
    const auto twoBytes = [](qsizetype number) {
        return QByteArray(1, static_cast<char>(number >> 8)) + static_cast<char>(number & 0xFF);
    };
    const auto add = [&](const QByteArray &object) {
        table += twoBytes(bytes.size());
        bytes += object;
    };
    add(QByteArray("\xD1\x01\x02", 3));
    add("\x51"
        "a");
    for (int level = 0; level < levels; ++level) {
        const bool isLast = level == levels - 1;
        const int next = isLast && isCircle ? 2 : level + 3;
        add("\xAF\x11" + twoBytes(width) + QByteArray(width, static_cast<char>(next)));
    }
    add(QByteArray("\x10\x07", 2));
    const auto tableAt = bytes.size();
    bytes += table + QByteArray(6, '\0') + "\x02\x01" + QByteArray(7, '\0') +
             static_cast<char>(levels + 3) + QByteArray(8, '\0') + QByteArray(6, '\0');
    return bytes + twoBytes(tableAt);
}

/// The record of a first start.
const ConfigData &firstStart()
{
    static const auto record = [] {
        const auto loaded = std::make_unique<ConfigData>(m_Config);
        m_Config = {};
        xmlconfig().InitialConfigData();
        auto made = std::make_unique<ConfigData>(m_Config);
        m_Config = *loaded;
        return made;
    }();
    return *record;
}

void loadIntoZeros(StoreFixture &fixture)
{
    m_Config = {};
    fixture.log.lines.clear();
    fixture.store.LoadConfigFile();
}

bool saysThatItCannotBeRead(const StoreFixture &fixture)
{
    return fixture.log.lines ==
           std::vector{fixture.settings.path() + " cannot be read, starting with defaults"};
}

/// A settings file with something on every level.
QByteArray smallSettings()
{
    const QByteArray macro = plistEntry("MACRO_NAME", "<string>m &amp; n</string>") +
                             plistEntry("KEYMAP", "<string>7,1,2,</string>");
    const QByteArray character = plistEntry("SERVER", "<string>Realm</string>");
    return plistOf(
        plistEntry("PROFILE_ID", "<integer>9</integer>") +
        plistEntry("PROFILE_10",
                   plistDictionary(plistEntry("CHARACTER_INFO", plistDictionary(character)) +
                                   plistEntry("MACRO_1", plistDictionary(macro)) +
                                   plistEntry("BUTTON_14", "<integer>256</integer>"))) +
        plistEntry("GAME_MODE", kInteger));
}

bool isSmallSettings(const ConfigData &config)
{
    const auto expected = std::make_unique<ConfigData>();
    ProfileInfo &profile = expected->PROFILE[9];
    expected->PROFILE_ID = 9;
    expected->GAME_MODE = 1;
    profile.BUTTON[13] = 256;
    profile.MACRO[0].KEYMAP[0] = {7, 1, 2};
    std::strcpy(profile.MACRO[0].MACRO_NAME, "m & n");
    std::strcpy(profile.CHARACTER_INFO.SERVER, "Realm");
    return sameRecord(config, *expected);
}

} // namespace

void tst_badfiles::bytesThatAreNoPropertyListGiveDefaults_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char *name, const QByteArray &bytes) {
        QTest::newRow(name) << bytes;
    };
    row("empty", "");
    row("one byte", "<");
    row("text", "PROFILE_ID = 3\n");
    row("NULs", QByteArray(4096, '\0'));
    row("another XML", "<?xml version=\"1.0\"?><html><body/></html>");
    row("an XML head only", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
    row("an empty plist", plistWithRoot(""));
    row("array at root", plistWithRoot("<array><dict/></array>"));
    row("text at root", plistWithRoot("<string>PROFILE_ID</string>"));
    row("integer at root", plistWithRoot(kInteger));
    row("value without key", plistOf(kInteger));
    row("unknown element", plistOf(plistEntry("PROFILE_ID", "<number>1</number>")));
    row("wrong nesting", plistWithRoot("<dict><key>a</dict></key>"));
    row("NUL reference", plistOf(plistEntry("SERVER", "<string>a&#0;b</string>")));
    row("binary head only", "bplist00");
    row("binary head and zeros", "bplist00" + QByteArray(64, '\0'));
    row("binary head and ones", "bplist00" + QByteArray(64, '\xFF'));
    row("binary array at root", binaryPlist(plistWithRoot("<array><dict/></array>")));
    row("deep arrays", nested("<array>", "</array>", 200'000));
    row("deep dictionaries", nested("<dict><key>a</key>", "</dict>", 200'000));
    row("deep and unclosed", nested("<dict><key>a</key>", "", 200'000));
    row("many arrays",
        plistOf(plistEntry("a", "<array>" + QByteArray("<array/>").repeated(5000) + "</array>")));
    row("doubling arrays", arraysOfArrays(100, 2, false));
    row("widening arrays", arraysOfArrays(5, 14, false));
    row("two wide arrays", arraysOfArrays(2, 600, false));
    row("three wide arrays", arraysOfArrays(3, 50, false));
    row("arrays in a circle", arraysOfArrays(100, 1, true));
}

void tst_badfiles::bytesThatAreNoPropertyListGiveDefaults()
{
    QFETCH(QByteArray, bytes);
    StoreFixture fixture;
    fixture.settings.put(bytes);
    loadIntoZeros(fixture);
    QVERIFY(sameRecord(m_Config, firstStart()));
    QVERIFY(saysThatItCannotBeRead(fixture));
    QCOMPARE(fixture.settings.bytes(), bytes);
    QCOMPARE(entries(fixture), QStringList{kSettingsName});
}

void tst_badfiles::aBinaryFileThatSharesObjectsIsRead_data()
{
    QTest::addColumn<int>("levels");
    QTest::addColumn<int>("width");
    QTest::newRow("a few doubling arrays") << 5 << 2;
    QTest::newRow("deep") << 100 << 1;
    QTest::newRow("two wide arrays") << 2 << 400;
}

void tst_badfiles::aBinaryFileThatSharesObjectsIsRead()
{
    QFETCH(int, levels);
    QFETCH(int, width);
    StoreFixture fixture;
    fixture.load(arraysOfArrays(levels, width, false));
    QVERIFY(sameRecord(m_Config, *std::make_unique<ConfigData>()));
}

void tst_badfiles::whatIsNoReadableFileGivesDefaults_data()
{
    QTest::addColumn<Maker>("make");
    const auto row = [](const char *name, Maker make) { QTest::newRow(name) << make; };
    row("folder", [](const std::string &path) { std::filesystem::create_directory(path); });
    row("named pipe", [](const std::string &path) { QCOMPARE(::mkfifo(path.c_str(), 0600), 0); });
    row("device",
        [](const std::string &path) { std::filesystem::create_symlink("/dev/zero", path); });
    row("link to nowhere",
        [](const std::string &path) { std::filesystem::create_symlink("nowhere", path); });
    row("link in a circle",
        [](const std::string &path) { std::filesystem::create_symlink(path, path); });
    row("too large", [](const std::string &path) {
        QFile file(QString::fromStdString(path));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(plistOf("")) > 0);
        QVERIFY(file.resize((64 << 20) + 1));
    });
}

void tst_badfiles::whatIsNoReadableFileGivesDefaults()
{
    QFETCH(Maker, make);
    StoreFixture fixture;
    make(fixture.settings.path());
    loadIntoZeros(fixture);
    QVERIFY(sameRecord(m_Config, firstStart()));
    QVERIFY(saysThatItCannotBeRead(fixture));
    QCOMPARE(entries(fixture), QStringList{kSettingsName});
}

void tst_badfiles::aMissingFileGivesDefaultsWithoutAWord_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no file") << QStringLiteral("/none.xml");
    QTest::newRow("no folder") << QStringLiteral("/none/none.xml");
    QTest::newRow("a file for a folder") << QStringLiteral("/KT7R4Setting.xml/none.xml");
}

void tst_badfiles::aMissingFileGivesDefaultsWithoutAWord()
{
    QFETCH(QString, name);
    StoreFixture fixture;
    fixture.settings.put("x");
    const auto before = entries(fixture);
    fixture.store.setConfigfileName((fixture.settings.folder() + name).toStdString());
    loadIntoZeros(fixture);
    QVERIFY(sameRecord(m_Config, firstStart()));
    QVERIFY(fixture.log.lines.empty());
    QCOMPARE(entries(fixture), before);
}

void tst_badfiles::aFileWithoutPermissionGivesDefaults()
{
    StoreFixture fixture;
    fixture.settings.put(smallSettings());
    setFolderMode(fixture, 0755);
    std::filesystem::permissions(fixture.settings.path(), std::filesystem::perms::none);
    {
        const Unprivileged nobody;
        loadIntoZeros(fixture);
    }
    QVERIFY(sameRecord(m_Config, firstStart()));
    QVERIFY(saysThatItCannotBeRead(fixture));
}

void tst_badfiles::aTextFileCutShortIsReadWholeOrNotAtAll()
{
    const QByteArray whole = smallSettings();
    const auto complete = whole.lastIndexOf("</dict>") + 7;
    StoreFixture fixture;
    for (qsizetype length = 0; length <= whole.size(); ++length) {
        fixture.settings.put(whole.left(length));
        loadIntoZeros(fixture);
        const bool isAsExpected = length < complete ? sameRecord(m_Config, firstStart()) &&
                                                          saysThatItCannotBeRead(fixture)
                                                    : isSmallSettings(m_Config);
        QVERIFY2(isAsExpected, QByteArray::number(length));
    }
}

void tst_badfiles::aBinaryFileCutShortIsNotRead()
{
    const QByteArray whole = binaryPlist(smallSettings());
    StoreFixture fixture;
    fixture.settings.put(whole);
    loadIntoZeros(fixture);
    QVERIFY(isSmallSettings(m_Config));
    for (qsizetype length = 0; length < whole.size(); ++length) {
        fixture.settings.put(whole.left(length));
        loadIntoZeros(fixture);
        QVERIFY2(sameRecord(m_Config, firstStart()), QByteArray::number(length));
        QVERIFY2(saysThatItCannotBeRead(fixture), QByteArray::number(length));
    }
}

void tst_badfiles::defaultsLeaveCharactersAndMacrosAsTheyAre()
{
    StoreFixture fixture;
    m_Config = {};
    m_Config.PROFILE[4].MACRO[5].MODE = 3;
    m_Config.PROFILE[4].CHARACTER_INFO.LEVEL = 80;
    fixture.store.LoadConfigFile();
    QCOMPARE(m_Config.PROFILE[4].MACRO[5].MODE, 3U);
    QCOMPARE(m_Config.PROFILE[4].CHARACTER_INFO.LEVEL, 80U);
    QCOMPARE(m_Config.PROFILE[4].BUTTON[13], 9U);
}

KYR_PLAIN_TEST(tst_badfiles)
#include "tst_badfiles.moc"
