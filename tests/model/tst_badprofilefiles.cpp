#include "badfile.h"
#include "fakefilepanels.h"
#include "randomrecord.h"
#include "storefixture.h"
#include "support/filesizelimit.h"
#include "support/suite.h"
#include "support/unprivileged.h"

#include <QtCore/QElapsedTimer>

#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <memory>

/// Importing what is no profile, and exporting to where nothing can be written.
class tst_badprofilefiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bytesThatAreNoPropertyListChangeNothing_data();
    void bytesThatAreNoPropertyListChangeNothing();
    void whatIsNoReadableFileChangesNothing_data();
    void whatIsNoReadableFileChangesNothing();
    void aFileWithoutPermissionChangesNothing();
    void aHugeFileIsRefusedWithoutReadingIt();
    void aFileCutShortIsReadWholeOrNotAtAll();
    void anUnreadableProfileLeavesTheSettingsFileInPlace();
    void anExportThatFailsIsLoggedAndChangesNothing_data();
    void anExportThatFailsIsLoggedAndChangesNothing();
    void anExportToAReadOnlyFolderKeepsTheOldFile();
    void anExportThatRunsOutOfRoomKeepsTheOldFile();
    void anExportToAFullDiskKeepsTheOldFile();
};

namespace {

const QString kProfileName = QStringLiteral("Profile.XML");

/// A store, a full record and the path of a profile's file.
struct ProfileFixture : StoreFixture
{
    ProfileFixture() { fillRecord(20); }

    std::string path() const { return settings.folder().toStdString() + "/Profile.XML"; }
    void put(const QByteArray &bytes) const { putInto(QString::fromStdString(path()), bytes); }
    static void putInto(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    static QByteArray bytesOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QByteArray bytes() const { return bytesOf(QString::fromStdString(path())); }
    /// Imports into the fourth profile; whether nothing came of it but a line in the log.
    bool isRefused()
    {
        const auto before = std::make_unique<ConfigData>(m_Config);
        FakeFilePanels panels;
        panels.answer = path();
        log.lines.clear();
        store.setFilePanels(&panels);
        const bool isConfirmed = store.ImportProfile(3);
        store.setFilePanels(nullptr);
        return isConfirmed && sameRecord(m_Config, *before) &&
               log.lines == std::vector{path() + " cannot be read as a profile"};
    }
};

} // namespace

void tst_badprofilefiles::bytesThatAreNoPropertyListChangeNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char *name, const QByteArray &bytes) {
        QTest::newRow(name) << bytes;
    };
    QByteArray garbage;
    for (int i = 0; i < 100'000; ++i)
        garbage += static_cast<char>((i * 7919) >> 5);
    row("empty", "");
    row("text", "DPI_VALUE = 3\n");
    row("garbage", garbage);
    row("garbage behind a binary head", "bplist00" + garbage);
    row("another XML", "<?xml version=\"1.0\"?><html><body/></html>");
    row("array at root", plistWithRoot("<array><dict/></array>"));
    row("text at root", plistWithRoot("<string>DPI_VALUE</string>"));
    row("deep dictionaries", nested("<dict><key>a</key>", "</dict>", 200'000));
    row("deep arrays in a dictionary",
        plistOf(plistEntry("MACRO_1", QByteArray("<array>").repeated(200'000) +
                                          QByteArray("</array>").repeated(200'000))));
    row("deep and unclosed", nested("<dict><key>a</key>", "", 200'000));
}

void tst_badprofilefiles::bytesThatAreNoPropertyListChangeNothing()
{
    QFETCH(QByteArray, bytes);
    ProfileFixture fixture;
    fixture.put(bytes);
    QVERIFY(fixture.isRefused());
    QCOMPARE(entries(fixture), QStringList{kProfileName});
}

void tst_badprofilefiles::whatIsNoReadableFileChangesNothing_data()
{
    QTest::addColumn<Maker>("make");
    const auto row = [](const char *name, Maker make) { QTest::newRow(name) << make; };
    row("missing", [](const std::string &) {});
    row("folder", [](const std::string &path) { std::filesystem::create_directory(path); });
    row("named pipe", [](const std::string &path) { QCOMPARE(::mkfifo(path.c_str(), 0600), 0); });
    row("device",
        [](const std::string &path) { std::filesystem::create_symlink("/dev/zero", path); });
    row("link to nowhere",
        [](const std::string &path) { std::filesystem::create_symlink("nowhere", path); });
}

void tst_badprofilefiles::whatIsNoReadableFileChangesNothing()
{
    QFETCH(Maker, make);
    ProfileFixture fixture;
    make(fixture.path());
    const auto before = entries(fixture);
    QVERIFY(fixture.isRefused());
    QCOMPARE(entries(fixture), before);
}

void tst_badprofilefiles::aFileWithoutPermissionChangesNothing()
{
    ProfileFixture fixture;
    fixture.put(plistOf(""));
    setFolderMode(fixture, 0755);
    std::filesystem::permissions(fixture.path(), std::filesystem::perms::none);
    const Unprivileged nobody;
    QVERIFY(fixture.isRefused());
}

void tst_badprofilefiles::aHugeFileIsRefusedWithoutReadingIt()
{
    ProfileFixture fixture;
    fixture.put({});
    std::filesystem::resize_file(fixture.path(), 1ULL << 30U);
    rusage before = {};
    rusage after = {};
    QCOMPARE(::getrusage(RUSAGE_SELF, &before), 0);
    QElapsedTimer timer;
    timer.start();
    QVERIFY(fixture.isRefused());
    QVERIFY(timer.elapsed() < 1000);
    QCOMPARE(::getrusage(RUSAGE_SELF, &after), 0);
    // In kilobytes; the copy of the record that the test makes counts too.
    QVERIFY(after.ru_maxrss - before.ru_maxrss < 20L * 1024);
}

void tst_badprofilefiles::aFileCutShortIsReadWholeOrNotAtAll()
{
    ProfileFixture fixture;
    fixture.store.WriteProfileToFile(8, fixture.path());
    const QByteArray whole = fixture.bytes();
    const auto complete = whole.lastIndexOf("</dict>") + 7;
    for (const qsizetype length :
         {qsizetype{1}, whole.indexOf("<dict>") + 6, whole.size() / 3, complete - 1}) {
        fixture.put(whole.left(length));
        QVERIFY2(fixture.isRefused(), QByteArray::number(length));
    }
    fixture.put(whole);
    fixture.store.ReadProfileFromFile(3, fixture.path());
    QVERIFY(std::memcmp(&m_Config.PROFILE[3], &m_Config.PROFILE[8], sizeof(ProfileInfo)) == 0);
}

void tst_badprofilefiles::anUnreadableProfileLeavesTheSettingsFileInPlace()
{
    ProfileFixture fixture;
    fixture.store.WriteConfigFile();
    fixture.put("junk");
    QVERIFY(fixture.isRefused());
    fixture.store.WriteConfigFile();
    QCOMPARE(entries(fixture), (QStringList{kSettingsName, kProfileName}));
}

void tst_badprofilefiles::anExportThatFailsIsLoggedAndChangesNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing folder") << QStringLiteral("/none/Profile.XML");
    QTest::newRow("a file for a folder") << QStringLiteral("/plain/Profile.XML");
    QTest::newRow("a folder for the file") << QStringLiteral("/full");
    QTest::newRow("a name too long") << QString(u'/' + QString(300, u'x'));
}

void tst_badprofilefiles::anExportThatFailsIsLoggedAndChangesNothing()
{
    QFETCH(QString, name);
    ProfileFixture fixture;
    const QDir folder(fixture.settings.folder());
    QVERIFY(folder.mkpath(QStringLiteral("full/inner")));
    QVERIFY(QFile(folder.filePath(QStringLiteral("plain"))).open(QIODevice::WriteOnly));
    const auto before = entries(fixture);
    const auto record = std::make_unique<ConfigData>(m_Config);
    FakeFilePanels panels;
    panels.answer = (folder.path() + name).toStdString();
    fixture.store.setFilePanels(&panels);

    QVERIFY(fixture.store.ExportProfile(4));
    QCOMPARE(fixture.log.lines, std::vector{kWriteFail});
    QVERIFY(sameRecord(m_Config, *record));
    QCOMPARE(entries(fixture), before);
}

void tst_badprofilefiles::anExportToAReadOnlyFolderKeepsTheOldFile()
{
    ProfileFixture fixture;
    fixture.put("old");
    setFolderMode(fixture, 0555);
    {
        const Unprivileged nobody;
        fixture.store.WriteProfileToFile(0, fixture.path());
    }
    setFolderMode(fixture, 0755);
    QCOMPARE(fixture.log.lines, std::vector{kWriteFail});
    QCOMPARE(fixture.bytes(), QByteArray("old"));
    QCOMPARE(entries(fixture), QStringList{kProfileName});
}

void tst_badprofilefiles::anExportThatRunsOutOfRoomKeepsTheOldFile()
{
    ProfileFixture fixture;
    fixture.put("old");
    {
        const FileSizeLimit limit(1000);
        fixture.store.WriteProfileToFile(0, fixture.path());
    }
    QCOMPARE(fixture.log.lines, std::vector{kWriteFail});
    QCOMPARE(fixture.bytes(), QByteArray("old"));
    QCOMPARE(entries(fixture), QStringList{kProfileName});
}

void tst_badprofilefiles::anExportToAFullDiskKeepsTheOldFile()
{
    const QTemporaryDir disk;
    const QByteArray place = disk.path().toLocal8Bit();
    if (::mount("tmpfs", place.constData(), "tmpfs", 0, "size=32k") != 0)
        QSKIP("no disk may be mounted here");
    ProfileFixture fixture;
    const QString path = disk.filePath(kProfileName);
    ProfileFixture::putInto(path, "old");
    fixture.store.WriteProfileToFile(0, path.toStdString());
    const QByteArray left = ProfileFixture::bytesOf(path);
    const QStringList names = QDir(disk.path()).entryList(QDir::Files | QDir::Hidden);
    QCOMPARE(::umount(place.constData()), 0);
    QCOMPARE(fixture.log.lines, std::vector{kWriteFail});
    QCOMPARE(left, QByteArray("old"));
    QCOMPARE(names, QStringList{kProfileName});
}

KYR_PLAIN_TEST(tst_badprofilefiles)
#include "tst_badprofilefiles.moc"
