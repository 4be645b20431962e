#include "platform/files.h"

#include "support/filesizelimit.h"
#include "support/suite.h"
#include "support/unprivileged.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>

#include <sys/stat.h>

namespace {

constexpr std::size_t kMost = 100;

mode_t permissionsOf(const std::string &path)
{
    struct stat about = {};
    return ::stat(path.c_str(), &about) == 0 ? about.st_mode & 07777U : 0;
}

} // namespace

class tst_files : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void whatIsWrittenIsReadBack();
    void aNewFileIsForEveryoneToRead();
    void anOldFileKeepsItsPermissions();
    void theOldFileIsReplacedNotOverwritten();
    void withoutWaitingForTheDiskItIsReplacedInOneStepToo();
    void writingOverAFolderLeavesNothingBehind();
    void writingIntoAMissingFolderFails();
    void aWriteThatRunsOutOfRoomKeepsTheOldFile();
    void aMissingFileIsMissing();
    void aFileBelowAFileIsMissing();
    void aFolderIsUnreadable();
    void aLinkToNowhereIsUnreadable();
    void aNamedPipeIsUnreadableAtOnce();
    void aDeviceIsUnreadable();
    void aFileOfTheMostBytesIsReadAndOneMoreIsUnreadable();
    void readingDropsWhatTheBufferHeld();
    void whatIsThereIsPresent();
    void whatCannotBeToldIsPresent();
    void aFileIsKeptUnderASecondName();
    void aFileIsKeptUnderTheFirstFreeName();
    void aFolderIsKeptByMovingIt();
    void whatCannotBeKeptStaysAsItIs();

private:
    std::string path(const char *name) const
    {
        return m_folder->filePath(QLatin1String(name)).toStdString();
    }
    QStringList names() const
    {
        return QDir(m_folder->path())
            .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden | QDir::System);
    }
    void setFolderMode(mode_t mode) const
    {
        if (::chmod(m_folder->path().toLocal8Bit().constData(), mode) != 0)
            qFatal("cannot set the permissions of the test's folder");
    }
    static std::string contents(const std::string &path)
    {
        std::string bytes;
        return readFile(path, kMost, bytes) == ReadStatus::Ok ? bytes : "not read";
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_files::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void tst_files::whatIsWrittenIsReadBack()
{
    const std::string bytes("a\0b\n\xFF", 5);
    QVERIFY(writeFileAtomically(path("file"), bytes));
    QCOMPARE(contents(path("file")), bytes);
    QVERIFY(writeFileAtomically(path("file"), ""));
    QCOMPARE(contents(path("file")), std::string());
    QCOMPARE(names(), QStringList{QStringLiteral("file")});
}

void tst_files::aNewFileIsForEveryoneToRead()
{
    const mode_t mask = ::umask(077);
    const bool written = writeFileAtomically(path("file"), "new");
    ::umask(mask);
    QVERIFY(written);
    QCOMPARE(permissionsOf(path("file")), mode_t{0644});
}

void tst_files::anOldFileKeepsItsPermissions()
{
    QVERIFY(writeFileAtomically(path("file"), "old"));
    QCOMPARE(::chmod(path("file").c_str(), 0640), 0);
    QVERIFY(writeFileAtomically(path("file"), "new"));
    QCOMPARE(permissionsOf(path("file")), mode_t{0640});
    QCOMPARE(contents(path("file")), std::string("new"));
}

void tst_files::theOldFileIsReplacedNotOverwritten()
{
    QVERIFY(writeFileAtomically(path("file"), "old"));
    // Who has the old file open goes on reading the old bytes.
    QFile reader(QString::fromStdString(path("file")));
    QVERIFY(reader.open(QIODevice::ReadOnly));
    QVERIFY(writeFileAtomically(path("file"), "new bytes"));
    QCOMPARE(reader.readAll(), QByteArray("old"));
    QCOMPARE(contents(path("file")), std::string("new bytes"));
}

void tst_files::withoutWaitingForTheDiskItIsReplacedInOneStepToo()
{
    QVERIFY(writeFileAtomically(path("file"), "old", Flush::Later));
    QCOMPARE(::chmod(path("file").c_str(), 0640), 0);
    QFile reader(QString::fromStdString(path("file")));
    QVERIFY(reader.open(QIODevice::ReadOnly));
    QVERIFY(writeFileAtomically(path("file"), "new bytes", Flush::Later));
    QCOMPARE(reader.readAll(), QByteArray("old"));
    QCOMPARE(contents(path("file")), std::string("new bytes"));
    QCOMPARE(permissionsOf(path("file")), mode_t{0640});
    bool written = true;
    {
        const FileSizeLimit limit(50);
        written = writeFileAtomically(path("file"), std::string(51, 'x'), Flush::Later);
    }
    QVERIFY(!written);
    QCOMPARE(contents(path("file")), std::string("new bytes"));
    QCOMPARE(names(), QStringList{QStringLiteral("file")});
}

void tst_files::writingOverAFolderLeavesNothingBehind()
{
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder")));
    QVERIFY(!writeFileAtomically(path("folder"), "bytes"));
    QCOMPARE(names(), QStringList{QStringLiteral("folder")});
    QVERIFY(QDir(QString::fromStdString(path("folder"))).isEmpty());
}

void tst_files::writingIntoAMissingFolderFails()
{
    QVERIFY(!writeFileAtomically(path("missing/file"), "bytes"));
    QCOMPARE(names(), QStringList());
}

void tst_files::aWriteThatRunsOutOfRoomKeepsTheOldFile()
{
    QVERIFY(writeFileAtomically(path("file"), "old"));
    bool written = true;
    {
        const FileSizeLimit limit(50);
        written = writeFileAtomically(path("file"), std::string(51, 'x'));
    }
    QVERIFY(!written);
    QCOMPARE(contents(path("file")), std::string("old"));
    QCOMPARE(names(), QStringList{QStringLiteral("file")});
}

void tst_files::aMissingFileIsMissing()
{
    std::string bytes;
    QCOMPARE(readFile(path("file"), kMost, bytes), ReadStatus::Missing);
}

void tst_files::aFileBelowAFileIsMissing()
{
    QVERIFY(writeFileAtomically(path("file"), "bytes"));
    std::string bytes;
    QCOMPARE(readFile(path("file/below"), kMost, bytes), ReadStatus::Missing);
}

void tst_files::aFolderIsUnreadable()
{
    std::string bytes;
    QCOMPARE(readFile(m_folder->path().toStdString(), kMost, bytes), ReadStatus::Unreadable);
}

void tst_files::aLinkToNowhereIsUnreadable()
{
    QCOMPARE(::symlink("nowhere", path("link").c_str()), 0);
    std::string bytes;
    QCOMPARE(readFile(path("link"), kMost, bytes), ReadStatus::Unreadable);
}

void tst_files::aNamedPipeIsUnreadableAtOnce()
{
    QCOMPARE(::mkfifo(path("pipe").c_str(), 0600), 0);
    std::string bytes;
    QCOMPARE(readFile(path("pipe"), kMost, bytes), ReadStatus::Unreadable);
}

void tst_files::aDeviceIsUnreadable()
{
    std::string bytes;
    QCOMPARE(readFile("/dev/zero", kMost, bytes), ReadStatus::Unreadable);
}

void tst_files::aFileOfTheMostBytesIsReadAndOneMoreIsUnreadable()
{
    std::string bytes;
    QVERIFY(writeFileAtomically(path("file"), std::string(kMost, 'x')));
    QCOMPARE(readFile(path("file"), kMost, bytes), ReadStatus::Ok);
    QCOMPARE(bytes, std::string(kMost, 'x'));
    QVERIFY(writeFileAtomically(path("file"), std::string(kMost + 1, 'x')));
    QCOMPARE(readFile(path("file"), kMost, bytes), ReadStatus::Unreadable);
}

void tst_files::readingDropsWhatTheBufferHeld()
{
    std::string bytes = "old";
    QCOMPARE(readFile(path("file"), kMost, bytes), ReadStatus::Missing);
    QCOMPARE(bytes, std::string());
}

void tst_files::whatIsThereIsPresent()
{
    QVERIFY(!isPresent(path("file")));
    QVERIFY(writeFileAtomically(path("file"), "bytes"));
    QVERIFY(isPresent(path("file")));
    QVERIFY(!isPresent(path("file/below")));
    QVERIFY(!isPresent(path("missing/file")));
    QVERIFY(isPresent(m_folder->path().toStdString()));
    QCOMPARE(::symlink("nowhere", path("link").c_str()), 0);
    QVERIFY(isPresent(path("link")));
}

void tst_files::whatCannotBeToldIsPresent()
{
    bool present = false;
    setFolderMode(0);
    {
        const Unprivileged nobody;
        present = isPresent(path("file"));
    }
    setFolderMode(0700);
    QVERIFY(present);
}

void tst_files::aFileIsKeptUnderASecondName()
{
    QVERIFY(writeFileAtomically(path("file"), "old"));
    QCOMPARE(keepBeside(path("file"), ".old").value_or(""), path("file.old"));
    QCOMPARE(names(), (QStringList{QStringLiteral("file"), QStringLiteral("file.old")}));
    QCOMPARE(contents(path("file")), std::string("old"));
    QCOMPARE(contents(path("file.old")), std::string("old"));

    QVERIFY(writeFileAtomically(path("file"), "new"));
    QCOMPARE(contents(path("file.old")), std::string("old"));
}

void tst_files::aFileIsKeptUnderTheFirstFreeName()
{
    const char *const expected[] = {"file.old", "file.old.2", "file.old.4"};
    QCOMPARE(::symlink("nowhere", path("file.old.3").c_str()), 0); // taken by what leads nowhere
    for (const char *const name : expected) {
        QVERIFY(writeFileAtomically(path("file"), name));
        QCOMPARE(keepBeside(path("file"), ".old").value_or(""), path(name));
    }
    for (const char *const name : expected)
        QCOMPARE(contents(path(name)), std::string(name));
    QCOMPARE(names().size(), 5);
}

void tst_files::aFolderIsKeptByMovingIt()
{
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("folder/inner")));
    QCOMPARE(keepBeside(path("folder"), ".old").value_or(""), path("folder.old"));
    QCOMPARE(names(), QStringList{QStringLiteral("folder.old")});
    QVERIFY(isPresent(path("folder.old/inner")));
}

void tst_files::whatCannotBeKeptStaysAsItIs()
{
    QVERIFY(!keepBeside(path("file"), ".old")); // nothing there
    QCOMPARE(names(), QStringList());

    QVERIFY(writeFileAtomically(path("file"), "bytes"));
    std::optional<std::string> kept;
    setFolderMode(0555);
    {
        const Unprivileged nobody;
        kept = keepBeside(path("file"), ".old");
    }
    setFolderMode(0700);
    QVERIFY(!kept);
    QCOMPARE(names(), QStringList{QStringLiteral("file")});
    QCOMPARE(contents(path("file")), std::string("bytes"));
}

KYR_CORE_TEST(tst_files)
#include "tst_files.moc"
