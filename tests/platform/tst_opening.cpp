#include "platform/opening.h"
#include "support/logcapture.h"
#include "support/suite.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>

/// Handing files and addresses to the desktop.
class tst_opening : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFileIsHandedOver_data();
    void aFileIsHandedOver();
    void aMissingFileIsOnlyLogged_data();
    void aMissingFileIsOnlyLogged();
    void aFileThatNothingOpensIsOnlyLogged();
    void anAddressIsHandedOver();
    void anAddressThatNothingOpensIsOnlyLogged();
};

namespace {

/// What opens everything of one scheme while it lives.
class Opener : public QObject
{
    Q_OBJECT

public:
    explicit Opener(const QString &scheme) : m_scheme(scheme)
    {
        QDesktopServices::setUrlHandler(scheme, this, "open");
    }
    ~Opener() override { QDesktopServices::unsetUrlHandler(m_scheme); }
    Opener(const Opener &) = delete;
    Opener &operator=(const Opener &) = delete;

    Q_INVOKABLE void open(const QUrl &url) { opened.append(url); }

    QList<QUrl> opened;

private:
    QString m_scheme;
};

std::string pathOf(const QTemporaryDir &folder, const QString &name)
{
    return QFile::encodeName(folder.filePath(name)).toStdString();
}

void put(const std::string &path)
{
    QFile file(QFile::decodeName(path.c_str()));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write the test's file");
}

} // namespace

void tst_opening::aFileIsHandedOver_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"UserGuide.pdf", "User Guide.pdf", "50%20 #1?.pdf", "Anf\u00E4nger.pdf"})
        QTest::newRow(name) << QString::fromUtf8(name);
}

void tst_opening::aFileIsHandedOver()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const LogCapture log;
    const Opener opener(QStringLiteral("file"));
    put(pathOf(folder, name));
    openFile(pathOf(folder, name));
    QCOMPARE(opener.opened.size(), 1);
    QCOMPARE(opener.opened.front().toLocalFile(), folder.filePath(name));
    QVERIFY(log.lines.empty());
}

void tst_opening::aMissingFileIsOnlyLogged_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no file") << QStringLiteral("UserGuide.pdf");
    QTest::newRow("no folder") << QStringLiteral("missing/UserGuide.pdf");
    QTest::newRow("a folder") << QStringLiteral(".");
}

void tst_opening::aMissingFileIsOnlyLogged()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const LogCapture log;
    const Opener opener(QStringLiteral("file"));
    openFile(pathOf(folder, name));
    QVERIFY(opener.opened.isEmpty());
    QCOMPARE(log.lines, std::vector{"no file " + pathOf(folder, name)});
}

void tst_opening::aFileThatNothingOpensIsOnlyLogged()
{
    const QTemporaryDir folder;
    const LogCapture log;
    const std::string path = pathOf(folder, QStringLiteral("UserGuide.pdf"));
    put(path);
    openFile(path);
    QCOMPARE(log.lines, std::vector{"nothing opens " + path});
}

void tst_opening::anAddressIsHandedOver()
{
    const LogCapture log;
    const Opener opener(QStringLiteral("https"));
    openAddress("https://profiles.example/kyr?page=1#top");
    QCOMPARE(opener.opened,
             QList<QUrl>{QUrl(QStringLiteral("https://profiles.example/kyr?page=1#top"))});
    QVERIFY(log.lines.empty());
}

void tst_opening::anAddressThatNothingOpensIsOnlyLogged()
{
    const LogCapture log;
    for (const std::string address : {"https://profiles.example/", "nonsense:", ""}) {
        openAddress(address);
        QCOMPARE(log.lines.back(), "nothing opens " + address);
    }
    QCOMPARE(log.lines.size(), std::size_t{3});
}

KYR_GUI_TEST(tst_opening)
#include "tst_opening.moc"
