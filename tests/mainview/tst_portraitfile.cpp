#include "mainview/portraitfile.h"

#include "support/logcapture.h"
#include "support/suite.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>

/// Where portraits are kept, and what may not be written in the place of one.
class tst_portraitfile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPortraitLiesBesideTheSettings_data();
    void aPortraitLiesBesideTheSettings();
    void aPlainNameIsAPortraits_data();
    void aPlainNameIsAPortraits();
    void aPortraitIsWritten();
    void aPortraitReplacesAnOlderOne();
    void whatHasNoPortraitsNameIsRefused_data();
    void whatHasNoPortraitsNameIsRefused();
    void whatCannotBeWrittenIsLogged();
};

namespace {

/// A folder with a settings file.
struct PortraitFolder
{
    PortraitFolder() { put("KT7R4Setting.xml", "settings"); }

    std::string path(const char *name) const
    {
        return folder.filePath(QString::fromUtf8(name)).toStdString();
    }
    void put(const char *name, const QByteArray &bytes) const
    {
        QFile file(QString::fromStdString(path(name)));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", name);
    }
    QByteArray bytes(const char *name) const
    {
        QFile file(QString::fromStdString(path(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("nothing");
    }
    void save(const char *name, std::string_view bytes) const
    {
        savePortrait(path(name), path("KT7R4Setting.xml"), bytes);
    }
    QStringList names() const
    {
        return QDir(folder.path())
            .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden);
    }

    QTemporaryDir folder;
    LogCapture log;
};

void nameRow(const QByteArray &name, bool isPortrait)
{
    QTest::newRow(name.left(40).constData()) << name << isPortrait;
}

void nameRows()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("isPortrait");
    for (const char *name : {"123-avatar.jpg", "a", "...", ".hidden", "a b.png", "..a", "été.png",
                             "%2F", "a\\b", "avatar.xml.jpg", "xml", "KT7R4.jpg"})
        nameRow(name, true);
    nameRow(QByteArray(255, 'n'), true);
    nameRow("e" + QByteArray("\xCC\x81").repeated(127), true); // 255 bytes

    nameRow("", false);
    nameRow(".", false);
    nameRow("..", false);
    nameRow(QByteArray(256, 'm'), false);
    nameRow(QByteArray("é").repeated(128), false);
    nameRow("a\nb", false);
    nameRow("a\x1b[1m", false);
    nameRow("a\x7f", false);
    nameRow("a\xC2\x85"
            "b",
            false);
    nameRow(QByteArray("a\0b", 3), false);
    for (const char *name : {"KT7R4Setting.xml", "kt7r4setting.XML", "KT7R4Setting.xml.unreadable",
                             "KT7R4SETTING.XML.unreadable.2", "KT7R4Setting.xml.jpg", "Warrior.xml",
                             "Warrior.XmL", ".xml"})
        nameRow(name, false);
}

} // namespace

void tst_portraitfile::aPortraitLiesBesideTheSettings_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QByteArray>("url");
    QTest::addColumn<QByteArray>("path");
    const auto row = [](const char *settings, const char *url, const char *path) {
        QTest::newRow(url) << QByteArray(settings) << QByteArray(url) << QByteArray(path);
    };
    row("/a/b/Setting.xml", "http://host/static-render/eu/realm/1/123-avatar.jpg",
        "/a/b/123-avatar.jpg");
    row("/Setting.xml", "http://host/x.png?y=z", "/x.png?y=z");
    row("Setting.xml", "http://host/x.png", "x.png");
    row("/a/Setting.xml", "http://host/", "/a/");
    row("/a/Setting.xml", "http://host/x/..", "/a/..");
    row("/a/Setting.xml", "x.png", "/a/x.png");
}

void tst_portraitfile::aPortraitLiesBesideTheSettings()
{
    QFETCH(QByteArray, settings);
    QFETCH(QByteArray, url);
    QTEST(QByteArray::fromStdString(portraitPath(settings.toStdString(), url.toStdString())),
          "path");
}

void tst_portraitfile::aPlainNameIsAPortraits_data()
{
    nameRows();
}

void tst_portraitfile::aPlainNameIsAPortraits()
{
    QFETCH(QByteArray, name);
    QTEST(isPortraitName(name.toStdString(), "KT7R4Setting.xml"), "isPortrait");
}

void tst_portraitfile::aPortraitIsWritten()
{
    const PortraitFolder folder;
    folder.save("1-avatar.jpg", std::string_view("a\0b", 3));
    QCOMPARE(folder.bytes("1-avatar.jpg"), QByteArray("a\0b", 3));
    QCOMPARE(folder.bytes("KT7R4Setting.xml"), QByteArray("settings"));
    QCOMPARE(folder.names().size(), 2);
    QVERIFY(folder.log.lines.empty());
}

void tst_portraitfile::aPortraitReplacesAnOlderOne()
{
    const PortraitFolder folder;
    folder.put("1-avatar.jpg", "a longer old one");
    folder.save("1-avatar.jpg", "new");
    QCOMPARE(folder.bytes("1-avatar.jpg"), QByteArray("new"));
    folder.save("1-avatar.jpg", "");
    QCOMPARE(folder.bytes("1-avatar.jpg"), QByteArray());
    QVERIFY(folder.log.lines.empty());
}

void tst_portraitfile::whatHasNoPortraitsNameIsRefused_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : {"KT7R4Setting.xml", "kt7r4setting.xml", "KT7R4Setting.xml.unreadable",
                             "Warrior.xml", "Warrior.XML"})
        QTest::newRow(name) << QByteArray(name);
}

void tst_portraitfile::whatHasNoPortraitsNameIsRefused()
{
    QFETCH(QByteArray, name);
    const PortraitFolder folder;
    folder.put(name.constData(), "a player's own");
    const QStringList before = folder.names();
    folder.save(name.constData(), "an attacker's");
    QCOMPARE(folder.bytes(name.constData()), QByteArray("a player's own"));
    QCOMPARE(folder.names(), before);
    QCOMPARE(folder.log.lines,
             std::vector{folder.path(name.constData()) + " is no name for a portrait"});
}

void tst_portraitfile::whatCannotBeWrittenIsLogged()
{
    const PortraitFolder folder;
    QVERIFY(QDir(folder.folder.path()).mkdir(QStringLiteral("folder")));
    folder.save("folder", "bytes");
    QCOMPARE(folder.log.lines, std::vector{folder.path("folder") + " cannot be written"});
    QCOMPARE(folder.names().size(), 2);
    QVERIFY(QDir(QString::fromStdString(folder.path("folder"))).isEmpty());
}

KYR_CORE_TEST(tst_portraitfile)
#include "tst_portraitfile.moc"
