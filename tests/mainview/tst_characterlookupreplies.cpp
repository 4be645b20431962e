#include "lookupstage.h"
#include "support/suite.h"

/// What the program makes of a reply of the game service.
class tst_characterlookupreplies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aReplyIsLoggedUntilAllIsKnown();
    void aReplyIsSearchedLineByLine_data();
    void aReplyIsSearchedLineByLine();
    void aReplyThatLacksSomethingChangesNothing_data();
    void aReplyThatLacksSomethingChangesNothing();
    void aClassIsStoredByItsName_data();
    void aClassIsStoredByItsName();
    void anErrorPageIsReadLikeAnyOther_data();
    void anErrorPageIsReadLikeAnyOther();
    void aRedirectIsFollowedWithoutItsBody();
    void theProfileHasToHaveARegionWhenTheReplyComes();
};

namespace {

constexpr char kPortraits[] = "/static-render/us/";

} // namespace

void tst_characterlookupreplies::aReplyIsLoggedUntilAllIsKnown()
{
    LookupStage stage;
    const QByteArray text = characterText();
    stage.service.answer(kCharacter, webAnswer(text));
    stage.service.answerAll(webAnswer("portrait"));
    stage.lookUp(QStringLiteral("Realm"), QStringLiteral("Name"));
    QTRY_COMPARE(characterOf(0).level, 60U);
    QCOMPARE(stage.log.lines,
             (std::vector<std::string>{received(static_cast<std::size_t>(text.size())), "{",
                                       "  \"class\": 8,", "  \"level\": 60,",
                                       "  \"thumbnail\":\"realm/12/123-avatar.jpg\","}));
}

void tst_characterlookupreplies::aReplyIsSearchedLineByLine_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<std::uint32_t>("level");
    QTest::addColumn<QByteArray>("className");
    QTest::addColumn<QByteArray>("asked"); ///< below the region's portraits
    const auto row = [](const char *name, const char *text, std::uint32_t level,
                        const char *className, const char *asked) {
        QTest::newRow(name) << QByteArray(text) << level << QByteArray(className)
                            << QByteArray(asked);
    };
    row("one line", R"({"class":8,"level":60,"thumbnail":"r/1/2-avatar.jpg"})", 8, "Mage", ",");
    row("one line, name first", R"({"name":"Someone","class":8,"level":60,"thumbnail":"x"})", 0, "",
        "Someone");
    row("any order", "\"thumbnail\":\"t\"\n\"level\":7,\n\"class\":1,", 7, "Warrior", "t");
    row("blanks before the numbers", "class:   3,\nlevel: \t12,\nthumbnail:\"t\"", 12, "Hunter",
        "t");
    row("texts for numbers", "class:\"8\",\nlevel:\"60\",\nthumbnail:\"t\"", 0, "", "t");
    row("nothing for numbers", "class:,\nlevel:,\nthumbnail:\"t\"", 0, "", "t");
    row("digits, then more", "class:4x,\nlevel:6 0,\nthumbnail:\"t\"", 6, "Rogue", "t");
    row("words within words", "subclass_1:5,\nmaxlevels:80,\nmy thumbnails:\"t\"", 80, "Priest",
        "t");
    row("later lines overwrite", "class:1,\nclass:2,\nlevel:1,\nlevel:2,\nthumbnail:\"t\"", 2,
        "Paladin", "t");
    row("once complete no more is read",
        "class:1,\nlevel:2,\nthumbnail:\"t\"\nclass:5,\nlevel:9,\nthumbnail:\"u\"", 2, "Warrior",
        "t");
    row("no comma, then one", "class:1\nclass:2,\nlevel:2,\nthumbnail:\"t\"", 2, "Paladin", "t");
    row("a match stays after none", "class:1,\nclass\nclass,:5\nclass:9\nlevel:2,\nthumbnail:\"t\"",
        2, "Warrior", "t");
    row("thumbnail without its end, then one",
        "class:1,\nlevel:2,\nthumbnail:\"half\nthumbnail:\"whole\"", 2, "Warrior", "whole");
    row("one that is no quote", "class:1,\nlevel:2,\nthumbnail:'some text\"", 2, "Warrior",
        "some%20text");
    row("blank before the quote", "class:1,\nlevel:2,\nthumbnail: \"t\"", 2, "Warrior", "");
    row("another colon", "class:1:2,\nlevel:2,\nthumbnail:\"a:b\"", 2, "Warrior", "a:b");
    row("one line, two values", "class level: 6,\nthumbnail:\"t\"", 6, "Death Knight", "t");
    row("line ends of another system", "class:1,\r\nlevel:2,\r\nthumbnail:\"t\"\r\n", 2, "Warrior",
        "t");
    row("large numbers", "class:99999999999,\nlevel:99999999999,\nthumbnail:\"t\"", 2147483647, "",
        "t");
    row("less than nothing", "class:-1,\nlevel:-1,\nthumbnail:\"t\"", 0xFFFFFFFF, "", "t");
    row("other letters", "class:1,\nlevel:2,\nthumbnail:\"\xC3\xA4/x\"", 2, "Warrior", "%C3%A4/x");
}

void tst_characterlookupreplies::aReplyIsSearchedLineByLine()
{
    QFETCH(QByteArray, text);
    QFETCH(std::uint32_t, level);
    QFETCH(QByteArray, className);
    QFETCH(QByteArray, asked);
    LookupStage stage;
    stage.service.answer(kCharacter, webAnswer(text));
    stage.ask();
    QCOMPARE(stage.visit(1).path(), kPortraits + asked);
    stage.visit(1).finish(webAnswer("no", "404 No"));
    const QByteArray name = QByteArray::fromPercentEncoding(asked).split('/').back();
    QTRY_COMPARE(characterOf(0),
                 (Character{level, className.toStdString(), stage.portraitFile(name)}));
}

void tst_characterlookupreplies::aReplyThatLacksSomethingChangesNothing_data()
{
    QTest::addColumn<QByteArray>("text");
    const auto row = [](const char *name, const QByteArray &text) { QTest::newRow(name) << text; };
    row("empty", "");
    row("line ends", "\n\n\n");
    row("class", "level:2,\nthumbnail:\"t\"\n");
    row("level", "class:1,\nthumbnail:\"t\"\n");
    row("thumbnail", "class:1,\nlevel:2,\n");
    row("comma after class", "class:1\nlevel:2,\nthumbnail:\"t\"");
    row("comma after level", "class:1,\nlevel:2\nthumbnail:\"t\"");
    row("colon of class", "class 1,\nlevel:2,\nthumbnail:\"t\"");
    row("colon of level", "class:1,\nlevel 2,\nthumbnail:\"t\"");
    row("colon before the comma", "class,1:\nlevel:2,\nthumbnail:\"t\"");
    row("colon of thumbnail", "class:1,\nlevel:2,\nthumbnail \"t\"");
    row("quote at the end", "class:1,\nlevel:2,\nthumbnail:\"t\nmore\"");
    row("anything after the colon", "class:1,\nlevel:2,\nthumbnail:");
    row("anything after the quote", "class:1,\nlevel:2,\nthumbnail:\"");
    row("small letters", "Class:1,\nLEVEL:2,\nThumbnail:\"t\"");
}

void tst_characterlookupreplies::aReplyThatLacksSomethingChangesNothing()
{
    QFETCH(QByteArray, text);
    LookupStage stage(smallSettings());
    const auto before = profileFilled();
    stage.service.answer(kCharacter, webAnswer(text));
    stage.ask();
    const auto lines = static_cast<std::size_t>(text.count('\n')) + 1;
    QTRY_COMPARE(stage.log.lines.size(), lines + 1);
    QCOMPARE(stage.log.lines.front(), received(static_cast<std::size_t>(text.size())));
    QCOMPARE(stage.requested(), std::vector<QByteArray>{kCharacter});
    QVERIFY(std::memcmp(before.get(), &m_Config, sizeof m_Config) == 0);
}

void tst_characterlookupreplies::aClassIsStoredByItsName_data()
{
    QTest::addColumn<QByteArray>("id");
    QTest::addColumn<std::string>("name");
    const std::pair<const char *, const char *> classes[] = {
        {"0", ""},       {"1", "Warrior"},      {"2", "Paladin"}, {"3", "Hunter"}, {"4", "Rogue"},
        {"5", "Priest"}, {"6", "Death Knight"}, {"7", "Shaman"},  {"8", "Mage"},   {"9", "Warlock"},
        {"10", ""},      {"11", "Druid"},       {"12", ""},       {"-1", ""},      {"abc", ""}};
    for (const auto &[id, name] : classes)
        QTest::newRow(id) << QByteArray(id) << std::string(name);
}

void tst_characterlookupreplies::aClassIsStoredByItsName()
{
    QFETCH(QByteArray, id);
    QFETCH(std::string, name);
    LookupStage stage;
    SetText(m_Config.PROFILE[0].CHARACTER_INFO.CLASS, "Before");
    stage.service.answer(kCharacter, characterAnswer(id));
    stage.service.answerAll(webAnswer("portrait"));
    stage.ask();
    QTRY_COMPARE(characterOf(0), (Character{60, name, stage.portraitFile()}));
}

void tst_characterlookupreplies::anErrorPageIsReadLikeAnyOther_data()
{
    QTest::addColumn<QByteArray>("status");
    QTest::newRow("404") << QByteArray("404 Not Found");
    QTest::newRow("500") << QByteArray("500 Broken");
}

void tst_characterlookupreplies::anErrorPageIsReadLikeAnyOther()
{
    QFETCH(QByteArray, status);
    LookupStage stage;
    stage.service.answer(kCharacter, webAnswer("<h1>" + status + "</h1>", status));
    stage.ask();
    QTRY_COMPARE(stage.log.lines.size(), std::size_t{2});
    QCOMPARE(stage.log.lines.back(), "<h1>" + status.toStdString() + "</h1>");
    QCOMPARE(stage.requested(), std::vector<QByteArray>{kCharacter});
    QCOMPARE(characterOf(0), (Character{0, "", ""}));

    stage.service.answer(kCharacter, webAnswer(characterText(), status));
    stage.service.answerAll(webAnswer("portrait"));
    stage.ask();
    QTRY_COMPARE(characterOf(0), (Character{60, "Mage", stage.portraitFile()}));
}

void tst_characterlookupreplies::aRedirectIsFollowedWithoutItsBody()
{
    LookupStage stage;
    stage.service.answer(
        kCharacter, webAnswer(characterText("1", "1"), "302 Found", "Location: /elsewhere\r\n"));
    const QByteArray text = characterText();
    stage.service.answer("/elsewhere", webAnswer(text));
    stage.ask();
    QTRY_COMPARE(stage.service.count(), std::size_t{3});
    stage.visit(2).finish(webAnswer("portrait"));
    QTRY_COMPARE(characterOf(0), (Character{60, "Mage", stage.portraitFile()}));
    QCOMPARE(stage.log.lines.front(), received(static_cast<std::size_t>(text.size())));
}

void tst_characterlookupreplies::theProfileHasToHaveARegionWhenTheReplyComes()
{
    LookupStage stage;
    stage.ask();
    WebVisit &visit = stage.visit(0);
    m_Config.PROFILE[0].CHARACTER_INFO.REGION = 5;
    visit.finish(characterAnswer());
    QTRY_VERIFY(stage.hasLogged("  \"thumbnail\""));
    QCOMPARE(stage.requested(), std::vector<QByteArray>{kCharacter});
    QCOMPARE(characterOf(0), (Character{0, "", ""}));
}

KYR_GUI_TEST(tst_characterlookupreplies)
#include "tst_characterlookupreplies.moc"
