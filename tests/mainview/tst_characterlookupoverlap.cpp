#include "lookupstage.h"
#include "support/suite.h"

/// Several lookups at a time, and profiles that change meanwhile.
class tst_characterlookupoverlap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstToFinishTakesWhatBothHaveFed();
    void theNewersResponseEmptiesWhatTheOlderHasFed();
    void whatTheOlderHadBeforeIsLost();
    void aFailureDropsWhatBothHaveFed();
    void theProfileThatIsCurrentAtTheEndGetsTheCharacter();
    void aSwitchDuringThePortraitChangesNothing();
    void theRegionOfTheProfileAtTheEndCounts();
    void theLookupThatWasAnsweredLaterWins_data();
    void theLookupThatWasAnsweredLaterWins();
    void lookupsOfTwoProfilesKeepApart();
    void whatIsLoadedAnewMayBeLookedUpAgain();
};

namespace {

constexpr char kFirstPath[] = "/api/kyr/character/Realm/First";
constexpr char kSecondPath[] = "/api/kyr/character/Realm/Second";

struct OverlapStage : LookupStage
{
    WebVisit &askFor(const std::string &name, std::uint32_t region = 0)
    {
        const std::size_t number = service.count();
        setCharacter("Realm", name, region);
        ask();
        return visit(number);
    }
    /// Sends part of a body, and waits until the program has it.
    void feed(WebVisit &visit, const QByteArray &bytes)
    {
        visit.send(bytes);
        service.settle();
    }
    void respond(WebVisit &visit, const QByteArray &lines = {})
    {
        feed(visit, webHead("200 OK", lines));
    }
};

} // namespace

void tst_characterlookupoverlap::theFirstToFinishTakesWhatBothHaveFed()
{
    OverlapStage stage;
    WebVisit &older = stage.askFor("First");
    stage.respond(older);
    WebVisit &newer = stage.askFor("Second");
    stage.respond(newer);
    stage.feed(older, "class:1,\nlev");
    stage.feed(newer, "el:2,\nthumb");
    stage.feed(older, "nail:\"a/b.jpg\"");
    older.close();
    QTRY_COMPARE(stage.log.lines, (std::vector<std::string>{received(37), "class:1,", "level:2,",
                                                            "thumbnail:\"a/b.jpg\""}));
    stage.visit(2).finish(webAnswer("portrait"));
    QTRY_COMPARE(characterOf(0), (Character{2, "Warrior", stage.portraitFile("b.jpg")}));

    stage.log.lines.clear();
    stage.feed(newer, characterText());
    newer.close();
    QTRY_COMPARE(stage.log.lines, (std::vector<std::string>{received(0), ""}));
    QCOMPARE(stage.requested().size(), std::size_t{3});
    QCOMPARE(characterOf(0), (Character{2, "Warrior", stage.portraitFile("b.jpg")}));
}

void tst_characterlookupoverlap::theNewersResponseEmptiesWhatTheOlderHasFed()
{
    OverlapStage stage;
    WebVisit &older = stage.askFor("First");
    stage.respond(older);
    WebVisit &newer = stage.askFor("Second");
    stage.feed(older, "class:1,\n");
    newer.finish(webAnswer("level:2,\nthumbnail:\"a/b.jpg\"\n"));
    QTRY_COMPARE(stage.log.lines.size(), std::size_t{4});
    QCOMPARE(stage.log.lines.front(), received(29));
    QCOMPARE(stage.requested(), (std::vector<QByteArray>{kFirstPath, kSecondPath}));
    QCOMPARE(characterOf(0), (Character{0, "", ""}));
}

void tst_characterlookupoverlap::whatTheOlderHadBeforeIsLost()
{
    OverlapStage stage;
    WebVisit &older = stage.askFor("First");
    stage.respond(older);
    stage.feed(older, "class:1,\n");
    stage.askFor("Second");
    stage.feed(older, "level:2,\nthumbnail:\"a/b.jpg\"\n");
    older.close();
    QTRY_COMPARE(stage.log.lines.size(), std::size_t{4});
    QCOMPARE(stage.log.lines.front(), received(29));
    QCOMPARE(stage.requested(), (std::vector<QByteArray>{kFirstPath, kSecondPath}));
    QCOMPARE(characterOf(0), (Character{0, "", ""}));
}

void tst_characterlookupoverlap::aFailureDropsWhatBothHaveFed()
{
    OverlapStage stage;
    WebVisit &older = stage.askFor("First");
    stage.respond(older, "Content-Length: 100\r\n");
    WebVisit &newer = stage.askFor("Second");
    stage.respond(newer);
    stage.feed(newer, characterText());
    older.close();
    QTRY_VERIFY(stage.hasLogged(kFailed));
    stage.feed(newer, characterText());
    newer.close();
    QTRY_VERIFY(stage.log.contains(received(0)));
    QCOMPARE(stage.requested(), (std::vector<QByteArray>{kFirstPath, kSecondPath}));
    QCOMPARE(characterOf(0), (Character{0, "", ""}));
}

void tst_characterlookupoverlap::theProfileThatIsCurrentAtTheEndGetsTheCharacter()
{
    OverlapStage stage;
    WebVisit &visit = stage.askFor("First");
    stage.respond(visit);
    stage.feed(visit, characterText());
    stage.reportProfile(5);
    visit.close();
    stage.visit(1).finish(webAnswer("portrait"));
    QTRY_COMPARE(characterOf(4), (Character{60, "Mage", stage.portraitFile()}));
    QCOMPARE(characterOf(0), (Character{0, "", ""}));
    QCOMPARE(GetText(m_Config.PROFILE[4].CHARACTER_INFO.NAME), std::string_view());
}

void tst_characterlookupoverlap::aSwitchDuringThePortraitChangesNothing()
{
    OverlapStage stage;
    stage.askFor("First").finish(characterAnswer());
    WebVisit &portrait = stage.visit(1);
    stage.reportProfile(5);
    QCOMPARE(m_Config.PROFILE_ID, 4U);
    portrait.finish(webAnswer("portrait"));
    QTRY_COMPARE(characterOf(0), (Character{60, "Mage", stage.portraitFile()}));
    QCOMPARE(characterOf(4), (Character{0, "", ""}));
}

void tst_characterlookupoverlap::theRegionOfTheProfileAtTheEndCounts()
{
    OverlapStage stage;
    WebVisit &visit = stage.askFor("First", 1);
    m_Config.PROFILE[4].CHARACTER_INFO.REGION = 3;
    stage.reportProfile(5);
    visit.finish(characterAnswer());
    QCOMPARE(stage.visit(1).path(), QByteArray("/static-render/tw/realm/12/123-avatar.jpg"));
}

void tst_characterlookupoverlap::theLookupThatWasAnsweredLaterWins_data()
{
    QTest::addColumn<bool>("isOlderPortraitLast");
    QTest::newRow("portraits in order") << false;
    QTest::newRow("portraits in the wrong order") << true;
}

void tst_characterlookupoverlap::theLookupThatWasAnsweredLaterWins()
{
    QFETCH(bool, isOlderPortraitLast);
    OverlapStage stage;
    stage.askFor("First").finish(characterAnswer("1", "1", "a/older.jpg"));
    WebVisit &older = stage.visit(1);
    stage.askFor("Second").finish(characterAnswer("2", "2", "a/newer.jpg"));
    WebVisit &newer = stage.visit(3);
    QCOMPARE(newer.path(), QByteArray("/static-render/us/a/newer.jpg"));
    const Character newest{2, "Paladin", stage.portraitFile("newer.jpg")};

    (isOlderPortraitLast ? newer : older).finish(webAnswer("portrait"));
    if (isOlderPortraitLast)
        QTRY_COMPARE(characterOf(0), newest);
    else
        QTRY_COMPARE(characterOf(0), (Character{1, "Warrior", stage.portraitFile("older.jpg")}));
    (isOlderPortraitLast ? older : newer).finish(webAnswer("portrait"));
    QTRY_COMPARE(stage.bytesOf("older.jpg"), QByteArray("portrait"));
    QTRY_COMPARE(stage.bytesOf("newer.jpg"), QByteArray("portrait"));
    QTRY_COMPARE(characterOf(0), newest);
}

void tst_characterlookupoverlap::lookupsOfTwoProfilesKeepApart()
{
    OverlapStage stage;
    stage.askFor("First").finish(characterAnswer("1", "1", "a/first.jpg"));
    WebVisit &first = stage.visit(1);
    stage.reportProfile(2);
    stage.askFor("Second").finish(characterAnswer("2", "2", "a/second.jpg"));
    stage.visit(3).finish(webAnswer("portrait"));
    QTRY_COMPARE(characterOf(1), (Character{2, "Paladin", stage.portraitFile("second.jpg")}));
    first.finish(webAnswer("portrait"));
    QTRY_COMPARE(characterOf(0), (Character{1, "Warrior", stage.portraitFile("first.jpg")}));
    QCOMPARE(characterOf(1), (Character{2, "Paladin", stage.portraitFile("second.jpg")}));
}

void tst_characterlookupoverlap::whatIsLoadedAnewMayBeLookedUpAgain()
{
    OverlapStage stage;
    for (const char *level : {"1", "2", "3"}) {
        stage.askFor("First").finish(characterAnswer("1", level));
        stage.visit(stage.service.count()).finish(webAnswer(level));
        QTRY_COMPARE(characterOf(0).level, QByteArray(level).toUInt());
        QCOMPARE(stage.bytesOf("123-avatar.jpg"), QByteArray(level));
    }
}

KYR_GUI_TEST(tst_characterlookupoverlap)
#include "tst_characterlookupoverlap.moc"
