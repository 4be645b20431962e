#include "lookupstage.h"
#include "support/filesizelimit.h"
#include "support/suite.h"
#include "support/unprivileged.h"

#include <filesystem>

/// The portrait of a character that was found: whatever becomes of it, the character is stored.
class tst_portraitdownload : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsStoredBeforeThePortraitHasCome();
    void aPortraitTakesThePlaceOfTheOldOne_data();
    void aPortraitTakesThePlaceOfTheOldOne();
    void aPortraitThatDoesNotComeLeavesWhatIsThere_data();
    void aPortraitThatDoesNotComeLeavesWhatIsThere();
    void aRedirectedPortraitHasTheFirstName();
    void aNameThatIsNoneOfAPortraitIsNotWritten_data();
    void aNameThatIsNoneOfAPortraitIsNotWritten();
    void aNameMayBeAsLongAsAFilesOwn();
    void aPathThatDoesNotFitIsNotAskedFor_data();
    void aPathThatDoesNotFitIsNotAskedFor();
    void aPortraitThatCannotBeWrittenIsLogged_data();
    void aPortraitThatCannotBeWrittenIsLogged();
};

namespace {

constexpr char kPortraitName[] = "123-avatar.jpg";

/// A lookup whose reply names that portrait.
struct PortraitDownloadStage : LookupStage
{
    using LookupStage::LookupStage;

    void askWithPortrait(const QByteArray &thumbnail)
    {
        service.answer(kCharacter, characterAnswer("8", "60", thumbnail));
        ask();
    }
    void put(const char *name, const QByteArray &bytes) const
    {
        QFile file(QString::fromStdString(portraitFile(name)));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write the test's file");
    }
    Character found(const std::string &name = kPortraitName) const
    {
        return {60, "Mage", portraitFile(name.c_str())};
    }
};

} // namespace

void tst_portraitdownload::nothingIsStoredBeforeThePortraitHasCome()
{
    PortraitDownloadStage stage;
    stage.askWithPortrait("a/123-avatar.jpg");
    WebVisit &visit = stage.visit(1);
    visit.send(webHead("200 OK", "Content-Length: 8\r\n") + "port");
    stage.service.settle();
    QCOMPARE(characterOf(0), (Character{0, "", ""}));
    QVERIFY(stage.entries().isEmpty());
    visit.finish("rait");
    QTRY_COMPARE(characterOf(0), stage.found());
    QCOMPARE(stage.bytesOf(kPortraitName), QByteArray("portrait"));
}

void tst_portraitdownload::aPortraitTakesThePlaceOfTheOldOne_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("text") << QByteArray("new");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("anything") << QByteArray("\0\r\n\xFF", 4);
    QTest::newRow("the most") << QByteArray(8 << 20, 'x');
}

void tst_portraitdownload::aPortraitTakesThePlaceOfTheOldOne()
{
    QFETCH(QByteArray, bytes);
    PortraitDownloadStage stage;
    stage.put(kPortraitName, "the old one");
    stage.service.answerAll(webAnswer(bytes));
    stage.askWithPortrait("a/123-avatar.jpg");
    QTRY_COMPARE(characterOf(0), stage.found());
    QVERIFY(stage.bytesOf(kPortraitName) == bytes);
    QCOMPARE(stage.entries(), QStringList{QLatin1String(kPortraitName)});
}

void tst_portraitdownload::aPortraitThatDoesNotComeLeavesWhatIsThere_data()
{
    QTest::addColumn<WebServer::Answer>("answer");
    const auto sends = [](const QByteArray &bytes) {
        return WebServer::Answer([bytes](WebVisit &visit) { visit.finish(bytes); });
    };
    QTest::newRow("404") << sends(webAnswer("no portrait", "404 Not Found"));
    QTest::newRow("500") << sends(webAnswer("no portrait", "500 Broken"));
    QTest::newRow("400") << sends(webAnswer("no portrait", "400 Bad"));
    QTest::newRow("cut off") << sends(webHead("200 OK", "Content-Length: 100\r\n") + "part");
    QTest::newRow("garbage") << sends("garbage\r\n\r\n");
    QTest::newRow("too long") << sends(webAnswer(QByteArray(1 + (8 << 20), 'x')));
    QTest::newRow("never-ending") << WebServer::Answer([](WebVisit &visit) {
        visit.send(webHead("200 OK"));
        visit.flood();
    });
    QTest::newRow("reset") << WebServer::Answer([](WebVisit &visit) { visit.reset(); });
    QTest::newRow("silent") << WebServer::Answer(
        [](WebVisit &visit) { visit.send(webHead("200 OK", "Content-Length: 100\r\n") + "part"); });
    QTest::newRow("redirect to a file")
        << sends(webAnswer("", "302 Found", "Location: file:///etc/passwd\r\n"));
}

void tst_portraitdownload::aPortraitThatDoesNotComeLeavesWhatIsThere()
{
    QFETCH(WebServer::Answer, answer);
    PortraitDownloadStage stage;
    stage.restart(std::chrono::milliseconds(500));
    stage.service.answerAll(answer);
    stage.askWithPortrait("a/123-avatar.jpg");
    QTRY_COMPARE(characterOf(0), stage.found());
    QVERIFY(stage.entries().isEmpty());

    m_Config.PROFILE[0].CHARACTER_INFO.LEVEL = 0;
    stage.put(kPortraitName, "the old one");
    stage.ask();
    QTRY_COMPARE(characterOf(0), stage.found());
    QCOMPARE(stage.bytesOf(kPortraitName), QByteArray("the old one"));
}

void tst_portraitdownload::aRedirectedPortraitHasTheFirstName()
{
    PortraitDownloadStage stage;
    stage.service.answer("/static-render/us/a/123-avatar.jpg",
                         webAnswer("", "302 Found", "Location: /other/name.png\r\n"));
    stage.service.answer("/other/name.png", webAnswer("portrait"));
    stage.askWithPortrait("a/123-avatar.jpg");
    QTRY_COMPARE(characterOf(0), stage.found());
    QCOMPARE(stage.bytesOf(kPortraitName), QByteArray("portrait"));
    QCOMPARE(stage.entries(), QStringList{QLatin1String(kPortraitName)});
}

void tst_portraitdownload::aNameThatIsNoneOfAPortraitIsNotWritten_data()
{
    QTest::addColumn<std::string>("name");
    QTest::newRow("empty") << std::string();
    QTest::newRow("folder") << std::string(".");
    QTest::newRow("folder above") << std::string("..");
    QTest::newRow("tab") << std::string("a\tb.jpg");
    QTest::newRow("escape") << std::string("\x1B[2J.jpg");
    QTest::newRow("delete") << std::string("a\x7F.jpg");
    QTest::newRow("Latin 1 control") << std::string("a\xC2\x85.jpg");
    QTest::newRow("settings") << std::string("KT7R4Setting.xml");
    QTest::newRow("settings, letters") << std::string("kt7r4setting.XML");
    QTest::newRow("kept settings") << std::string("KT7R4Setting.xml.unreadable");
    QTest::newRow("kept settings, letters") << std::string("kt7r4setting.XML.unreadable");
    QTest::newRow("profile") << std::string("x.xml");
    QTest::newRow("profile, letters") << std::string("x.Xml");
}

void tst_portraitdownload::aNameThatIsNoneOfAPortraitIsNotWritten()
{
    QFETCH(std::string, name);
    PortraitDownloadStage stage(smallSettings());
    LookupStage::setCharacter("Realm", "Name");
    stage.put("x.xml", "a profile");
    stage.put("KT7R4Setting.xml.unreadable", "kept");
    const QStringList before = stage.entries();
    stage.service.answerAll(webAnswer("a portrait"));
    stage.askWithPortrait("a/" + QByteArray::fromStdString(name));
    // As far as the profile, and a file, can hold it.
    CharacterInfo held = {};
    SetText(held.RACE, stage.portraitFile(name.c_str()));
    QTRY_COMPARE(characterOf(2), (Character{60, "Mage", std::string(GetText(held.RACE))}));
    QVERIFY(stage.log.lines.back().ends_with(" is no name for a portrait"));
    QCOMPARE(stage.entries(), before);
    QCOMPARE(stage.settings.bytes(), smallSettings());
    QCOMPARE(stage.bytesOf("x.xml"), QByteArray("a profile"));
    QCOMPARE(stage.bytesOf("KT7R4Setting.xml.unreadable"), QByteArray("kept"));
}

void tst_portraitdownload::aNameMayBeAsLongAsAFilesOwn()
{
    PortraitDownloadStage stage;
    const std::size_t most = sizeof(CharacterInfo::RACE) - 1;
    const std::string name(most - stage.portraitFile("").size(), 'n');
    stage.service.answerAll(webAnswer("portrait"));
    stage.askWithPortrait(QByteArray::fromStdString(name));
    QTRY_COMPARE(characterOf(0), stage.found(name));
    QCOMPARE(characterOf(0).portrait.size(), most);
    QCOMPARE(stage.bytesOf(name.c_str()), QByteArray("portrait"));
}

void tst_portraitdownload::aPathThatDoesNotFitIsNotAskedFor_data()
{
    QTest::addColumn<int>("more"); ///< than fit
    QTest::newRow("one") << 1;
    QTest::newRow("a name that is too long for a file") << 256;
    QTest::newRow("a megabyte") << (1 << 20);
}

void tst_portraitdownload::aPathThatDoesNotFitIsNotAskedFor()
{
    QFETCH(int, more);
    PortraitDownloadStage stage(smallSettings());
    LookupStage::setCharacter("Realm", "Name");
    const Character before = characterOf(2);
    const auto fits = static_cast<int>(sizeof(CharacterInfo::RACE) - 1);
    const int length = fits - static_cast<int>(stage.portraitFile("").size()) + more;
    stage.askWithPortrait("a/" + QByteArray(length, 'n'));
    QTRY_VERIFY(stage.log.contains("the character does not fit into the profile"));
    QCOMPARE(stage.requested(), std::vector<QByteArray>{kCharacter});
    QCOMPARE(characterOf(2), before);
}

using PortraitHindrance =
    std::function<void(const PortraitDownloadStage &stage, const std::function<void()> &act)>;

void tst_portraitdownload::aPortraitThatCannotBeWrittenIsLogged_data()
{
    QTest::addColumn<PortraitHindrance>("during");
    QTest::newRow("folder missing") << PortraitHindrance(
        [](const PortraitDownloadStage &stage, const std::function<void()> &act) {
            QDir(stage.settings.folder()).removeRecursively();
            act();
            QVERIFY(!QDir(stage.settings.folder()).exists());
        });
    QTest::newRow("read-only") << PortraitHindrance(
        [](const PortraitDownloadStage &stage, const std::function<void()> &act) {
            const std::filesystem::path folder = stage.settings.folder().toStdString();
            std::filesystem::permissions(folder, std::filesystem::perms{0555});
            {
                const Unprivileged nobody;
                act();
            }
            std::filesystem::permissions(folder, std::filesystem::perms{0755});
            QVERIFY(stage.entries().isEmpty());
        });
    QTest::newRow("full") << PortraitHindrance(
        [](const PortraitDownloadStage &stage, const std::function<void()> &act) {
            {
                const FileSizeLimit limit(100);
                act();
            }
            QVERIFY(stage.entries().isEmpty());
        });
    QTest::newRow("a folder in its place") << PortraitHindrance(
        [](const PortraitDownloadStage &stage, const std::function<void()> &act) {
            QVERIFY(QDir(stage.settings.folder()).mkdir(QLatin1String(kPortraitName)));
            act();
            QCOMPARE(stage.entries(), QStringList{QLatin1String(kPortraitName)});
        });
}

void tst_portraitdownload::aPortraitThatCannotBeWrittenIsLogged()
{
    QFETCH(PortraitHindrance, during);
    PortraitDownloadStage stage;
    stage.askWithPortrait("a/123-avatar.jpg");
    WebVisit &visit = stage.visit(1);
    during(stage, [&] {
        visit.finish(webAnswer(QByteArray(1000, 'x')));
        QTRY_COMPARE(characterOf(0), stage.found());
    });
    QCOMPARE(stage.log.lines.back(), stage.portraitFile() + " cannot be written");
}

KYR_GUI_TEST(tst_portraitdownload)
#include "tst_portraitdownload.moc"
