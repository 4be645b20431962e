#include "platform/files.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <sys/stat.h>

namespace {

constexpr std::size_t kMost = 100;

mode_t permissionsOf(const std::string &path)
{
    struct stat about = {};
    return ::stat(path.c_str(), &about) == 0 ? about.st_mode & 07777U : 0;
}

} // namespace

class TestFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void whatIsWrittenIsReadBack();
    void aNewFileIsForEveryoneToRead();
    void anOldFileKeepsItsPermissions();
    void theOldFileIsReplacedNotOverwritten();
    void writingOverAFolderLeavesNothingBehind();
    void writingIntoAMissingFolderFails();
    void aMissingFileIsMissing();
    void aFileBelowAFileIsMissing();
    void aFolderIsUnreadable();
    void aNamedPipeIsUnreadableAtOnce();
    void aDeviceIsUnreadable();
    void aFileOfTheMostBytesIsReadAndOneMoreIsUnreadable();
    void readingDropsWhatTheBufferHeld();
    void filesAreMovedAsideUnderTheFirstFreeName();
    void nothingIsMovedAsideWhenThereIsNothing();

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
    static std::string contents(const std::string &path)
    {
        std::string bytes;
        return readFile(path, kMost, bytes) == ReadStatus::Ok ? bytes : "not read";
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestFiles::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void TestFiles::whatIsWrittenIsReadBack()
{
    const std::string bytes("a\0b\n\xFF", 5);
    QVERIFY(writeFileAtomically(path("file"), bytes));
    QCOMPARE(contents(path("file")), bytes);
    QVERIFY(writeFileAtomically(path("file"), ""));
    QCOMPARE(contents(path("file")), std::string());
    QCOMPARE(names(), QStringList{QStringLiteral("file")});
}

void TestFiles::aNewFileIsForEveryoneToRead()
{
    const mode_t mask = ::umask(077);
    const bool written = writeFileAtomically(path("file"), "new");
    ::umask(mask);
    QVERIFY(written);
    QCOMPARE(permissionsOf(path("file")), mode_t{0644});
}

void TestFiles::anOldFileKeepsItsPermissions()
{
    QVERIFY(writeFileAtomically(path("file"), "old"));
    QCOMPARE(::chmod(path("file").c_str(), 0640), 0);
    QVERIFY(writeFileAtomically(path("file"), "new"));
    QCOMPARE(permissionsOf(path("file")), mode_t{0640});
    QCOMPARE(contents(path("file")), std::string("new"));
}

void TestFiles::theOldFileIsReplacedNotOverwritten()
{
    QVERIFY(writeFileAtomically(path("file"), "old"));
    // Who has the old file open goes on reading the old bytes.
    QFile reader(QString::fromStdString(path("file")));
    QVERIFY(reader.open(QIODevice::ReadOnly));
    QVERIFY(writeFileAtomically(path("file"), "new bytes"));
    QCOMPARE(reader.readAll(), QByteArray("old"));
    QCOMPARE(contents(path("file")), std::string("new bytes"));
}

void TestFiles::writingOverAFolderLeavesNothingBehind()
{
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder")));
    QVERIFY(!writeFileAtomically(path("folder"), "bytes"));
    QCOMPARE(names(), QStringList{QStringLiteral("folder")});
    QVERIFY(QDir(QString::fromStdString(path("folder"))).isEmpty());
}

void TestFiles::writingIntoAMissingFolderFails()
{
    QVERIFY(!writeFileAtomically(path("missing/file"), "bytes"));
    QCOMPARE(names(), QStringList());
}

void TestFiles::aMissingFileIsMissing()
{
    std::string bytes;
    QCOMPARE(readFile(path("file"), kMost, bytes), ReadStatus::Missing);
}

void TestFiles::aFileBelowAFileIsMissing()
{
    QVERIFY(writeFileAtomically(path("file"), "bytes"));
    std::string bytes;
    QCOMPARE(readFile(path("file/below"), kMost, bytes), ReadStatus::Missing);
}

void TestFiles::aFolderIsUnreadable()
{
    std::string bytes;
    QCOMPARE(readFile(m_folder->path().toStdString(), kMost, bytes), ReadStatus::Unreadable);
}

void TestFiles::aNamedPipeIsUnreadableAtOnce()
{
    QCOMPARE(::mkfifo(path("pipe").c_str(), 0600), 0);
    std::string bytes;
    QCOMPARE(readFile(path("pipe"), kMost, bytes), ReadStatus::Unreadable);
}

void TestFiles::aDeviceIsUnreadable()
{
    std::string bytes;
    QCOMPARE(readFile("/dev/zero", kMost, bytes), ReadStatus::Unreadable);
}

void TestFiles::aFileOfTheMostBytesIsReadAndOneMoreIsUnreadable()
{
    std::string bytes;
    QVERIFY(writeFileAtomically(path("file"), std::string(kMost, 'x')));
    QCOMPARE(readFile(path("file"), kMost, bytes), ReadStatus::Ok);
    QCOMPARE(bytes, std::string(kMost, 'x'));
    QVERIFY(writeFileAtomically(path("file"), std::string(kMost + 1, 'x')));
    QCOMPARE(readFile(path("file"), kMost, bytes), ReadStatus::Unreadable);
}

void TestFiles::readingDropsWhatTheBufferHeld()
{
    std::string bytes = "old";
    QCOMPARE(readFile(path("file"), kMost, bytes), ReadStatus::Missing);
    QCOMPARE(bytes, std::string());
}

void TestFiles::filesAreMovedAsideUnderTheFirstFreeName()
{
    const char *const expected[] = {"file.old", "file.old.2", "file.old.3"};
    for (const char *const name : expected) {
        QVERIFY(writeFileAtomically(path("file"), name));
        QCOMPARE(moveAside(path("file"), ".old").value_or(""), path(name));
    }
    for (const char *const name : expected)
        QCOMPARE(contents(path(name)), std::string(name));
    QCOMPARE(names().size(), 3);
}

void TestFiles::nothingIsMovedAsideWhenThereIsNothing()
{
    QVERIFY(!moveAside(path("file"), ".old"));
    QCOMPARE(names(), QStringList());
}

QTEST_GUILESS_MAIN(TestFiles)
#include "tst_files.moc"
