#include "lookupstage.h"
#include "support/suite.h"

/// Lookups that fail: that is logged, and the profile stays as it was.
class tst_characterlookupfailures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFailureIsLoggedAndChangesNothing_data();
    void aFailureIsLoggedAndChangesNothing();
    void silenceIsAFailure();
    void afterAFailureTheNextLookupWorks();
};

void tst_characterlookupfailures::aFailureIsLoggedAndChangesNothing_data()
{
    QTest::addColumn<WebServer::Answer>("answer");
    const auto sends = [](const QByteArray &bytes) {
        return WebServer::Answer([bytes](WebVisit &visit) { visit.finish(bytes); });
    };
    const QByteArray text = characterText();
    QTest::newRow("cut off") << sends(webHead("200 OK", "Content-Length: 1000\r\n") + text);
    QTest::newRow("cut off in a chunk")
        << sends(webHead("200 OK", "Transfer-Encoding: chunked\r\n") + "400\r\n" + text);
    QTest::newRow("garbage") << sends(text + "\r\n\r\n");
    QTest::newRow("redirect loop")
        << sends(webAnswer(text, "302 Found", "Location: " + QByteArray(kCharacter) + "\r\n"));
    QTest::newRow("redirect to a file")
        << sends(webAnswer(text, "302 Found", "Location: file:///etc/passwd\r\n"));
    QTest::newRow("too long") << sends(webAnswer(text + QByteArray(8 << 20, '\n')));
    QTest::newRow("never-ending") << WebServer::Answer([text](WebVisit &visit) {
        visit.send(webHead("200 OK") + text);
        visit.flood();
    });
    QTest::newRow("reset") << WebServer::Answer([](WebVisit &visit) { visit.reset(); });
}

void tst_characterlookupfailures::aFailureIsLoggedAndChangesNothing()
{
    QFETCH(WebServer::Answer, answer);
    LookupStage stage(smallSettings());
    const auto before = profileFilled();
    stage.service.answer(kCharacter, answer);
    stage.ask();
    QTRY_COMPARE(stage.log.lines.size(), std::size_t{1});
    QVERIFY(stage.hasLogged(kFailed));
    QCOMPARE(stage.requested().front(), QByteArray(kCharacter));
    QVERIFY(std::memcmp(before.get(), &m_Config, sizeof m_Config) == 0);
    QCOMPARE(stage.settings.bytes(), smallSettings());
}

void tst_characterlookupfailures::silenceIsAFailure()
{
    LookupStage stage;
    stage.restart(std::chrono::milliseconds(200));
    stage.service.answer(kCharacter, [](WebVisit &visit) {
        visit.send(webHead("200 OK", "Content-Length: 1000\r\n") + characterText());
    });
    stage.ask();
    QTRY_VERIFY(stage.hasLogged(kFailed));
    QVERIFY(stage.log.lines.front().ends_with(' ' + stage.service.url(kCharacter)));
    QCOMPARE(characterOf(0), (Character{0, "", ""}));
}

void tst_characterlookupfailures::afterAFailureTheNextLookupWorks()
{
    LookupStage stage;
    const QByteArray long8(1 + (8 << 20), 'x');
    stage.service.answer(kCharacter, webAnswer(long8));
    stage.ask();
    QTRY_COMPARE(stage.log.lines,
                 std::vector<std::string>{kFailed + std::string("the answer is too long ") +
                                          stage.service.url(kCharacter)});
    const QByteArray text = characterText();
    stage.service.answer(kCharacter, webAnswer(text));
    stage.service.answerAll(webAnswer("portrait"));
    stage.ask();
    QTRY_COMPARE(characterOf(0), (Character{60, "Mage", stage.portraitFile()}));
    QCOMPARE(stage.log.lines[1], received(static_cast<std::size_t>(text.size())));
}

KYR_GUI_TEST(tst_characterlookupfailures)
#include "tst_characterlookupfailures.moc"
