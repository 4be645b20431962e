#include "storefixture.h"
#include "support/plistxml.h"
#include "support/suite.h"
#include "support/unprivileged.h"

#include <QtCore/QDir>

#include <sys/stat.h>

#include <filesystem>
#include <memory>

/// How the settings file is written, and what happens when it cannot be.
class tst_storewrite : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePathIsKeptInTheGlobal();
    void theFileIsAnXmlPropertyList();
    void everyProfileAndMacroIsWrittenUsedOrNot();
    void aFullListIsWrittenInFull();
    void loadingAGoodFileWritesNothing();
    void aNewFileIsReadableByTheDriverProcess();
    void permissionsAreKept_data();
    void permissionsAreKept();
    void aReaderOfTheOldFileSeesAllOfIt();
    void noTemporaryFileIsLeft();
    void aWriteThatFailsIsLoggedAndChangesNothing_data();
    void aWriteThatFailsIsLoggedAndChangesNothing();
    void aReadOnlyFolderKeepsTheOldFile();
    void aWriteSucceedsAfterOneThatFailed();
};

namespace {

unsigned permissionsOf(const std::string &path)
{
    struct stat about = {};
    return ::stat(path.c_str(), &about) == 0 ? about.st_mode & 07777U : 0;
}

} // namespace

void tst_storewrite::thePathIsKeptInTheGlobal()
{
    std::string path = "/some/where.xml";
    xmlconfig().setConfigfileName(path);
    path = "changed";
    QCOMPARE(pConfigFileName, std::string("/some/where.xml"));
}

void tst_storewrite::theFileIsAnXmlPropertyList()
{
    StoreFixture fixture;
    fixture.store.WriteConfigFile();
    QVERIFY(fixture.settings.bytes().startsWith(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE plist "));
    QVERIFY(fixture.settings.bytes().contains("<plist version=\"1.0\">"));
    QVERIFY(fixture.log.lines.empty());
}

void tst_storewrite::everyProfileAndMacroIsWrittenUsedOrNot()
{
    StoreFixture fixture;
    fixture.store.WriteConfigFile();
    const QVariantMap root = readPlist(fixture.settings.bytes());
    QCOMPARE(root.size(), 4 + 10);
    const QVariantMap profile = root[QStringLiteral("PROFILE_10")].toMap();
    QCOMPARE(profile.size(), 11 + 14 + 1 + 50);
    const QVariantMap macro = profile[QStringLiteral("MACRO_50")].toMap();
    QCOMPARE(macro.size(), 10);
    QCOMPARE(macro[QStringLiteral("KEYMAP")], QVariant(QStringLiteral("")));
    QCOMPARE(macro[QStringLiteral("STARTKEY")], QVariant(QStringLiteral("0,0,0,0,0,0,")));
    QCOMPARE(macro[QStringLiteral("SENDKEY")], QVariant(QStringLiteral("0,0,0,0,0,0,")));
}

void tst_storewrite::aFullListIsWrittenInFull()
{
    StoreFixture fixture;
    MacroInfo &macro = m_Config.PROFILE[9].MACRO[49];
    std::uint32_t number = 0;
    for (KeymapEvent &event : macro.KEYMAP)
        event = {number + 1, number + 2, number + 3}, number += 3;
    macro.bSTARTKEY = 1;
    macro.STARTKEY[0] = {7, 1, 2};
    fixture.store.WriteConfigFile();

    const QVariantMap profile =
        readPlist(fixture.settings.bytes())[QStringLiteral("PROFILE_10")].toMap();
    const QVariantMap written = profile[QStringLiteral("MACRO_50")].toMap();
    QStringList expected;
    for (int i = 1; i <= 1500; ++i)
        expected += QString::number(i);
    expected += QString(); // behind the last comma
    QCOMPARE(written[QStringLiteral("KEYMAP")].toString().split(QLatin1Char(',')), expected);
    QCOMPARE(written[QStringLiteral("STARTKEY")], QVariant(QStringLiteral("7,1,2,0,0,0,")));
}

void tst_storewrite::loadingAGoodFileWritesNothing()
{
    StoreFixture fixture;
    const QByteArray bytes = plistOf(plistEntry("GAME_MODE", "<integer>1</integer>"));
    fixture.load(bytes);
    QCOMPARE(fixture.settings.bytes(), bytes);
    QCOMPARE(entries(fixture), QStringList{kSettingsName});
}

void tst_storewrite::aNewFileIsReadableByTheDriverProcess()
{
    StoreFixture fixture;
    const mode_t before = ::umask(077);
    fixture.store.WriteConfigFile();
    ::umask(before);
    QCOMPARE(permissionsOf(fixture.settings.path()), 0644U);
}

void tst_storewrite::permissionsAreKept_data()
{
    QTest::addColumn<unsigned>("mode");
    for (const unsigned mode : {0600U, 0640U, 0644U, 0664U, 0666U})
        QTest::addRow("%o", mode) << mode;
}

void tst_storewrite::permissionsAreKept()
{
    QFETCH(unsigned, mode);
    StoreFixture fixture;
    fixture.settings.put("old");
    std::filesystem::permissions(fixture.settings.path(), std::filesystem::perms{mode});
    fixture.store.WriteConfigFile();
    QCOMPARE(permissionsOf(fixture.settings.path()), mode);
    QVERIFY(fixture.settings.bytes() != "old");
}

void tst_storewrite::aReaderOfTheOldFileSeesAllOfIt()
{
    StoreFixture fixture;
    const QByteArray old = QByteArray("old ").repeated(1000);
    fixture.settings.put(old);
    QFile reader(QString::fromStdString(fixture.settings.path()));
    QVERIFY(reader.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    const QByteArray begin = reader.read(100);
    fixture.store.WriteConfigFile();
    QCOMPARE(begin + reader.readAll(), old);
}

void tst_storewrite::noTemporaryFileIsLeft()
{
    StoreFixture fixture;
    fixture.store.WriteConfigFile();
    QCOMPARE(entries(fixture), QStringList{kSettingsName});
}

void tst_storewrite::aWriteThatFailsIsLoggedAndChangesNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing folder") << QStringLiteral("/none/KT7R4Setting.xml");
    QTest::newRow("a file for a folder") << QStringLiteral("/plain/KT7R4Setting.xml");
    QTest::newRow("a folder for the file") << QStringLiteral("/full");
    QTest::newRow("a name too long") << QString(u'/' + QString(300, u'x'));
}

void tst_storewrite::aWriteThatFailsIsLoggedAndChangesNothing()
{
    QFETCH(QString, name);
    StoreFixture fixture;
    const QDir folder(fixture.settings.folder());
    QVERIFY(folder.mkpath(QStringLiteral("full/inner")));
    QVERIFY(QFile(folder.filePath(QStringLiteral("plain"))).open(QIODevice::WriteOnly));
    const auto before = entries(fixture);
    std::memset(&m_Config, 0x31, sizeof m_Config);
    const auto record = std::make_unique<ConfigData>(m_Config);

    fixture.store.setConfigfileName((folder.path() + name).toStdString());
    fixture.store.WriteConfigFile();
    QCOMPARE(fixture.log.lines, std::vector{kWriteFail});
    QVERIFY(sameRecord(m_Config, *record));
    QCOMPARE(entries(fixture), before);
}

void tst_storewrite::aReadOnlyFolderKeepsTheOldFile()
{
    StoreFixture fixture;
    fixture.settings.put("old");
    setFolderMode(fixture, 0555);
    {
        const Unprivileged nobody;
        fixture.store.WriteConfigFile();
    }
    setFolderMode(fixture, 0755);
    QCOMPARE(fixture.log.lines, std::vector{kWriteFail});
    QCOMPARE(fixture.settings.bytes(), QByteArray("old"));
    QCOMPARE(entries(fixture), QStringList{kSettingsName});
}

void tst_storewrite::aWriteSucceedsAfterOneThatFailed()
{
    StoreFixture fixture;
    const QString folder = fixture.settings.folder() + QStringLiteral("/later");
    fixture.store.setConfigfileName((folder + QStringLiteral("/KT7R4Setting.xml")).toStdString());
    fixture.store.WriteConfigFile();
    QVERIFY(QDir().mkdir(folder));
    fixture.store.WriteConfigFile();
    QCOMPARE(fixture.log.lines, std::vector{kWriteFail});
    QVERIFY(QFile::exists(folder + QStringLiteral("/KT7R4Setting.xml")));
}

KYR_PLAIN_TEST(tst_storewrite)
#include "tst_storewrite.moc"
