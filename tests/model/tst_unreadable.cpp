#include "storefixture.h"
#include "support/filesizelimit.h"
#include "support/plistxml.h"
#include "support/suite.h"
#include "support/unprivileged.h"

#include <sys/stat.h>

#include <filesystem>
#include <memory>

/// What becomes of an unreadable settings file when settings are written.
class tst_unreadable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itIsKeptBeforeTheFirstWrite();
    void aSecondOneDoesNotReplaceTheFirst();
    void aMissingFileLeavesNothingAside();
    void aGoodFileIsNotKept();
    void oneThatIsGoneSinceIsForgotten();
    void aGoodOneInItsPlaceIsKeptToo();
    void oneThatCannotBeKeptStopsTheWrite();
    void oneInAFolderThatCannotBeSearchedStaysThere();
    void oneThatIsKeptIsKeptOnceThoughTheWriteFails();
    void whatIsNoFileIsKeptToo_data();
    void whatIsNoFileIsKeptToo();
    void aLinkToNowhereIsKeptAsALink();
};

namespace {

const QString kKept = QStringLiteral("KT7R4Setting.xml.unreadable");

QByteArray bytesOf(const StoreFixture &fixture, const QString &name)
{
    QFile file(fixture.settings.folder() + QLatin1Char('/') + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

qlonglong writtenPollingRate(const StoreFixture &fixture)
{
    return readPlist(fixture.settings.bytes())[QStringLiteral("POLLING_RATE")].toLongLong();
}

/// A fixture with an unreadable file already loaded.
struct UnreadableFixture : StoreFixture
{
    UnreadableFixture() { loadUnreadable("junk"); }
    void loadUnreadable(const QByteArray &bytes)
    {
        settings.put(bytes);
        store.LoadConfigFile();
        log.lines.clear();
    }
    bool saysKeptAs(const QString &name) const
    {
        return log.lines ==
               std::vector{settings.path() + " could not be read and is kept as " +
                           (settings.folder() + QLatin1Char('/') + name).toStdString()};
    }
};

} // namespace

void tst_unreadable::itIsKeptBeforeTheFirstWrite()
{
    UnreadableFixture fixture;
    QCOMPARE(entries(fixture), QStringList{kSettingsName}); // not yet: nothing is written at load
    m_Config.POLLING_RATE = 2;
    fixture.store.WriteConfigFile();
    QVERIFY(fixture.saysKeptAs(kKept));
    QCOMPARE(entries(fixture), (QStringList{kSettingsName, kKept}));
    QCOMPARE(bytesOf(fixture, kKept), QByteArray("junk"));
    QCOMPARE(writtenPollingRate(fixture), 2);

    m_Config.POLLING_RATE = 3;
    fixture.store.WriteConfigFile();
    QCOMPARE(entries(fixture), (QStringList{kSettingsName, kKept}));
    QCOMPARE(writtenPollingRate(fixture), 3);
}

void tst_unreadable::aSecondOneDoesNotReplaceTheFirst()
{
    UnreadableFixture fixture;
    fixture.store.WriteConfigFile();
    fixture.loadUnreadable("second");
    fixture.store.WriteConfigFile();
    const QString second = kKept + QStringLiteral(".2");
    QVERIFY(fixture.saysKeptAs(second));
    QCOMPARE(bytesOf(fixture, kKept), QByteArray("junk"));
    QCOMPARE(bytesOf(fixture, second), QByteArray("second"));
}

void tst_unreadable::aMissingFileLeavesNothingAside()
{
    StoreFixture fixture;
    fixture.store.LoadConfigFile();
    fixture.store.WriteConfigFile();
    QCOMPARE(entries(fixture), QStringList{kSettingsName});
    QVERIFY(fixture.log.lines.empty());
}

void tst_unreadable::aGoodFileIsNotKept()
{
    UnreadableFixture fixture;
    fixture.load(plistOf("")); // good again before anything was written
    fixture.store.WriteConfigFile();
    QCOMPARE(entries(fixture), QStringList{kSettingsName});
    QVERIFY(fixture.log.lines.empty());
}

void tst_unreadable::oneThatIsGoneSinceIsForgotten()
{
    UnreadableFixture fixture;
    QVERIFY(QFile::remove(QString::fromStdString(fixture.settings.path())));
    for (const std::uint32_t rate : {2U, 3U}) {
        m_Config.POLLING_RATE = rate;
        fixture.store.WriteConfigFile();
        QVERIFY(fixture.log.lines.empty());
        QCOMPARE(entries(fixture), QStringList{kSettingsName});
        QCOMPARE(writtenPollingRate(fixture), rate);
    }
}

void tst_unreadable::aGoodOneInItsPlaceIsKeptToo()
{
    UnreadableFixture fixture;
    const QByteArray good = plistOf(plistEntry("GAME_MODE", "<integer>1</integer>"));
    fixture.settings.put(good);
    fixture.store.WriteConfigFile();
    QVERIFY(fixture.saysKeptAs(kKept));
    fixture.store.WriteConfigFile();
    QCOMPARE(entries(fixture), (QStringList{kSettingsName, kKept}));
    QCOMPARE(bytesOf(fixture, kKept), good);
    QCOMPARE(fixture.log.lines.size(), std::size_t{1});
}

void tst_unreadable::oneThatCannotBeKeptStopsTheWrite()
{
    UnreadableFixture fixture;
    setFolderMode(fixture, 0555);
    {
        const Unprivileged nobody;
        fixture.store.WriteConfigFile();
    }
    setFolderMode(fixture, 0755);
    QCOMPARE(fixture.log.lines, std::vector{kWriteFail});
    QCOMPARE(fixture.settings.bytes(), QByteArray("junk"));

    fixture.log.lines.clear();
    fixture.store.WriteConfigFile();
    QVERIFY(fixture.saysKeptAs(kKept));
}

void tst_unreadable::oneInAFolderThatCannotBeSearchedStaysThere()
{
    StoreFixture fixture;
    fixture.settings.put("mine");
    const auto record = std::make_unique<ConfigData>();
    setFolderMode(fixture, 0);
    {
        const Unprivileged nobody;
        fixture.load();
        *record = m_Config;
        fixture.store.WriteConfigFile();
    }
    setFolderMode(fixture, 0700);
    QCOMPARE(fixture.log.lines,
             (std::vector{fixture.settings.path() + " cannot be read, starting with defaults",
                          kWriteFail}));
    QVERIFY(sameRecord(m_Config, *record));
    QCOMPARE(entries(fixture), QStringList{kSettingsName});
    QCOMPARE(fixture.settings.bytes(), QByteArray("mine"));

    fixture.store.WriteConfigFile();
    QCOMPARE(entries(fixture), (QStringList{kSettingsName, kKept}));
    QCOMPARE(bytesOf(fixture, kKept), QByteArray("mine"));
}

void tst_unreadable::oneThatIsKeptIsKeptOnceThoughTheWriteFails()
{
    UnreadableFixture fixture;
    {
        const FileSizeLimit limit(1000);
        fixture.store.WriteConfigFile();
    }
    QCOMPARE(fixture.log.lines.size(), std::size_t{2});
    QCOMPARE(fixture.log.lines.back(), kWriteFail);
    QCOMPARE(entries(fixture), (QStringList{kSettingsName, kKept}));
    QCOMPARE(fixture.settings.bytes(), QByteArray("junk"));
    QCOMPARE(bytesOf(fixture, kKept), QByteArray("junk"));

    fixture.log.lines.clear();
    fixture.store.WriteConfigFile();
    QVERIFY(fixture.log.lines.empty());
    QCOMPARE(entries(fixture), (QStringList{kSettingsName, kKept}));
    QCOMPARE(bytesOf(fixture, kKept), QByteArray("junk"));
    QCOMPARE(writtenPollingRate(fixture), 1);
}

void tst_unreadable::whatIsNoFileIsKeptToo_data()
{
    QTest::addColumn<bool>("isFolder");
    QTest::newRow("folder") << true;
    QTest::newRow("named pipe") << false;
}

void tst_unreadable::whatIsNoFileIsKeptToo()
{
    QFETCH(bool, isFolder);
    StoreFixture fixture;
    const std::string path = fixture.settings.path();
    if (isFolder)
        std::filesystem::create_directories(path + "/inner");
    else
        QCOMPARE(::mkfifo(path.c_str(), 0600), 0);
    fixture.store.LoadConfigFile();
    fixture.store.WriteConfigFile();
    QCOMPARE(entries(fixture), (QStringList{kSettingsName, kKept}));
    QCOMPARE(std::filesystem::exists(path + ".unreadable/inner"), isFolder);
    QCOMPARE(writtenPollingRate(fixture), 1);
}

void tst_unreadable::aLinkToNowhereIsKeptAsALink()
{
    StoreFixture fixture;
    const std::string path = fixture.settings.path();
    std::filesystem::create_symlink("nowhere", path);
    fixture.store.LoadConfigFile();
    fixture.store.WriteConfigFile();
    QCOMPARE(std::filesystem::read_symlink(path + ".unreadable").string(), std::string("nowhere"));
    QCOMPARE(writtenPollingRate(fixture), 1);
}

KYR_PLAIN_TEST(tst_unreadable)
#include "tst_unreadable.moc"
