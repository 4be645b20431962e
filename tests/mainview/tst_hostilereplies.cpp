#include "lookupstage.h"
#include "support/looppauses.h"
#include "support/suite.h"

/// Replies that are made to hurt: the windows go on, the profile stays, and the program can end at
/// any moment.
class tst_hostilereplies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aReplyThatIsNoTextIsNotRead_data();
    void aReplyThatIsNoTextIsNotRead();
    void aLargeReplyHoldsNothingUp_data();
    void aLargeReplyHoldsNothingUp();
    void aLongLineIsLoggedInPart();
    void whatComesLastInAMillionLinesIsFound();
    void aPortraitThatTakesLongHoldsNothingUp();
    void aSecondReplyIsReadBesidesALongOne();
    void theProgramMayEndAtAnyMoment_data();
    void theProgramMayEndAtAnyMoment();
};

namespace {

constexpr qsizetype kMostOfAReply = 8 << 20;
constexpr qint64 kLongestPause = 50;

QByteArray repeated(const QByteArray &text)
{
    return text.repeated(kMostOfAReply / text.size());
}

} // namespace

void tst_hostilereplies::aReplyThatIsNoTextIsNotRead_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("at the end") << characterText() + "\xFF";
    QTest::newRow("at the beginning") << "\x80" + characterText();
    QTest::newRow("in a value") << characterText("8", "60", "a/\xE4.jpg");
    QTest::newRow("cut off") << characterText() + "\xE2\x82";
    QTest::newRow("too long a form") << characterText() + "\xC0\x8A";
    QTest::newRow("half of a pair") << characterText() + "\xED\xA0\x80";
}

void tst_hostilereplies::aReplyThatIsNoTextIsNotRead()
{
    QFETCH(QByteArray, text);
    LookupStage stage;
    stage.service.answer(kCharacter, webAnswer(text));
    stage.ask();
    QTRY_COMPARE(stage.log.lines.size(), std::size_t{2});
    QVERIFY(stage.hasLogged(kReceived));
    QCOMPARE(stage.log.lines.back(), std::string("the reply is no text"));
    QCOMPARE(stage.requested(), std::vector<QByteArray>{kCharacter});
    QCOMPARE(characterOf(0), (Character{0, "", ""}));
}

void tst_hostilereplies::aLargeReplyHoldsNothingUp_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<std::size_t>("lines");
    const auto row = [](const char *name, const QByteArray &text) {
        QTest::newRow(name) << text << static_cast<std::size_t>(text.count('\n')) + 1;
    };
    row("a million lines", QByteArray("1234567\n").repeated(1'000'000));
    row("no line end", QByteArray(kMostOfAReply, 'x'));
    row("no line end, nearly words", repeated("levethumbnaiclas"));
    row("no line end, zeros", QByteArray(kMostOfAReply, '\0'));
    row("no line end, colons", "class level thumbnail" + QByteArray(kMostOfAReply - 21, ':'));
    row("no line end, commas", "class level thumbnail" + QByteArray(kMostOfAReply - 21, ','));
    row("line ends", QByteArray(1'000'000, '\n'));
    row("matches without an end", repeated("class:1,\nlevel:2,\n"));
}

void tst_hostilereplies::aLargeReplyHoldsNothingUp()
{
    QFETCH(QByteArray, text);
    QFETCH(std::size_t, lines);
    LookupStage stage;
    std::size_t logged = 0;
    setSystemLogSink([&](const std::string & /*line*/) { ++logged; });
    stage.service.answer(kCharacter, webAnswer(text));
    stage.ask();
    LoopPauses pauses;
    QTRY_COMPARE_WITH_TIMEOUT(logged, lines + 1, 60'000);
    if (LoopPauses::isTelling())
        QVERIFY2(pauses.longest() < kLongestPause, qPrintable(QString::number(pauses.longest())));
    QCOMPARE(stage.requested(), std::vector<QByteArray>{kCharacter});
    QCOMPARE(characterOf(0), (Character{0, "", ""}));
}

void tst_hostilereplies::aLongLineIsLoggedInPart()
{
    LookupStage stage;
    stage.service.answer(kCharacter, webAnswer(QByteArray(kMostOfAReply, 'x')));
    stage.ask();
    QTRY_COMPARE(stage.log.lines.size(), std::size_t{2});
    QCOMPARE(stage.log.lines.back(), std::string(std::size_t{16} * 1024, 'x'));
}

void tst_hostilereplies::whatComesLastInAMillionLinesIsFound()
{
    LookupStage stage;
    setSystemLogSink([](const std::string & /*line*/) {});
    stage.service.answer(kCharacter,
                         webAnswer(QByteArray("more\n").repeated(1'000'000) + characterText()));
    stage.ask();
    QTRY_COMPARE_WITH_TIMEOUT(stage.service.count(), std::size_t{2}, 60'000);
    stage.visit(1).finish(webAnswer("portrait"));
    QTRY_COMPARE(characterOf(0), (Character{60, "Mage", stage.portraitFile()}));
}

/// The only test of the lookup in which time has to pass.
void tst_hostilereplies::aPortraitThatTakesLongHoldsNothingUp()
{
    using namespace std::chrono_literals;
    LookupStage stage;
    const QByteArray portrait(500'000, 'p');
    stage.service.answer(kCharacter, characterAnswer());
    stage.service.answerAll([&](WebVisit &visit) {
        visit.trickle(webAnswer(portrait), portrait.size() / 50 + 2, 100ms);
    });
    QElapsedTimer taken;
    taken.start();
    stage.ask();
    LoopPauses pauses;
    stage.visit(1);
    pointer::click(stage.profileKey(5)); // a player goes on meanwhile
    QCOMPARE(stage.profileKeysOn(), std::vector{5});
    QTRY_COMPARE_WITH_TIMEOUT(characterOf(0), (Character{60, "Mage", stage.portraitFile()}),
                              60'000);
    QVERIFY(taken.elapsed() >= 4900);
    if (LoopPauses::isTelling())
        QVERIFY2(pauses.longest() < kLongestPause, qPrintable(QString::number(pauses.longest())));
    QVERIFY(stage.bytesOf("123-avatar.jpg") == portrait);
    QCOMPARE(characterOf(4), (Character{0, "", ""}));
}

void tst_hostilereplies::aSecondReplyIsReadBesidesALongOne()
{
    LookupStage stage;
    setSystemLogSink([](const std::string & /*line*/) {});
    stage.service.answer(kCharacter, webAnswer(QByteArray("more\n").repeated(1'600'000)));
    stage.service.answer("/api/kyr/character/Realm/Other", characterAnswer());
    stage.service.answerAll(webAnswer("portrait"));
    stage.ask();
    stage.visit(0);
    LookupStage::setCharacter("Realm", "Other");
    stage.ask();
    QTRY_COMPARE(characterOf(0), (Character{60, "Mage", stage.portraitFile()}));
}

void tst_hostilereplies::theProgramMayEndAtAnyMoment_data()
{
    QTest::addColumn<WebServer::Answer>("character");
    QTest::addColumn<WebServer::Answer>("portrait");
    QTest::addColumn<std::string>("last"); ///< logged line before the end
    const auto sends = [](const QByteArray &bytes) {
        return WebServer::Answer([bytes](WebVisit &visit) { visit.send(bytes); });
    };
    const QByteArray part = webHead("200 OK") + "more\n";
    const WebServer::Answer none;
    QTest::newRow("during the request") << none << none << std::string();
    QTest::newRow("during the reply") << sends(part) << none << std::string();
    QTest::newRow("while it is read") << WebServer::Answer([](WebVisit &visit) {
        visit.finish(webAnswer(QByteArray("more\n").repeated(1'000'000)));
    }) << none << std::string("more");
    QTest::newRow("before the portrait")
        << sends(characterAnswer()) << none << std::string("  \"thumbnail\"");
    QTest::newRow("during the portrait")
        << sends(characterAnswer()) << sends(part) << std::string("  \"thumbnail\"");
}

void tst_hostilereplies::theProgramMayEndAtAnyMoment()
{
    QFETCH(WebServer::Answer, character);
    QFETCH(WebServer::Answer, portrait);
    QFETCH(std::string, last);
    LookupStage stage(smallSettings());
    LookupStage::setCharacter("Realm", "Name");
    const Character before = characterOf(2);
    if (character)
        stage.service.answer(kCharacter, character);
    if (portrait)
        stage.service.answerAll(portrait);
    stage.ask();
    stage.visit(0);
    QTRY_VERIFY(last.empty() || stage.hasLogged(last));
    if (portrait)
        stage.visit(1);
    stage.interface.reset();
    const std::size_t logged = stage.log.lines.size();
    QTRY_VERIFY(!stage.service.last().isOpen());
    QCoreApplication::processEvents();
    QCOMPARE(stage.log.lines.size(), logged);
    QCOMPARE(characterOf(2), before);
    QCOMPARE(stage.entries(), QStringList{QStringLiteral("KT7R4Setting.xml")});
}

KYR_GUI_TEST(tst_hostilereplies)
#include "tst_hostilereplies.moc"
