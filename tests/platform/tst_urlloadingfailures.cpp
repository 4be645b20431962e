#include "support/suite.h"
#include "webdelegate.h"

/// Answers that are not as they should be, and none at all. Each request is told to have failed,
/// once, with the address that failed.
class tst_urlloadingfailures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aBrokenAnswerFails_data();
    void aBrokenAnswerFails();
    void aChunkSizeThatIsNoneFails();
    void nobodyListeningFails();
    void aResetBeforeTheAnswerFails();
    void aResetInTheHeadFails();
    void aResetInTheBodyFails();
    void aRedirectElsewhereThanTheWebFails_data();
    void aRedirectElsewhereThanTheWebFails();
    void aRedirectLoopFails();
    void theAddressThatFailedIsTheLastOne();
    void aFailureIsForgottenByTheNextRequest();
};

void tst_urlloadingfailures::aBrokenAnswerFails_data()
{
    QTest::addColumn<QByteArray>("answer");
    const QByteArray chunks = webHead("200 OK", "Transfer-Encoding: chunked\r\n");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("cut off in the status") << QByteArray("HTTP/1.1 2");
    QTest::newRow("cut off in the head") << QByteArray("HTTP/1.1 200 OK\r\nConten");
    QTest::newRow("cut off in the body") << webHead("200 OK", "Content-Length: 10\r\n") + "short";
    QTest::newRow("cut off before the body") << webHead("200 OK", "Content-Length: 10\r\n");
    QTest::newRow("cut off in a refusal") << webHead("404 No", "Content-Length: 10\r\n") + "short";
    QTest::newRow("cut off in a chunk") << chunks + "a\r\nshort";
    QTest::newRow("cut off between chunks") << chunks + "5\r\nshort\r\n";
    QTest::newRow("another protocol") << QByteArray("SSH-2.0-Something_1.0\r\n\r\n");
    QTest::newRow("no status") << QByteArray("HTTP/1.1 text\r\n\r\nbody");
    QTest::newRow("garbage") << QByteArray(100'000, '\xFE') + "\r\n\r\n";
    QTest::newRow("zeros") << QByteArray(1000, '\0');
}

void tst_urlloadingfailures::aBrokenAnswerFails()
{
    QFETCH(QByteArray, answer);
    LoaderStage stage;
    QVERIFY(stage.loadAnswered(answer));
    QVERIFY(stage.delegate.hasFailed());
    QCOMPARE(stage.delegate.error->failingUrl, stage.server.url("/"));
}

void tst_urlloadingfailures::aChunkSizeThatIsNoneFails()
{
    LoaderStage stage;
    QVERIFY(stage.loadAnswered(webHead("200 OK", "Transfer-Encoding: chunked\r\n") +
                               "5\r\nshort\r\nzz\r\nmore\r\n"));
    QVERIFY(stage.delegate.hasFailed());
}

void tst_urlloadingfailures::nobodyListeningFails()
{
    LoaderStage stage;
    stage.server.shut();
    QVERIFY(stage.load());
    QVERIFY(stage.delegate.hasFailed());
    QVERIFY(stage.delegate.statuses.empty());
}

void tst_urlloadingfailures::aResetBeforeTheAnswerFails()
{
    LoaderStage stage;
    QVERIFY(stage.load("/", [](WebVisit &visit) { visit.reset(); }));
    QVERIFY(stage.delegate.hasFailed());
    QVERIFY(stage.delegate.statuses.empty());
}

void tst_urlloadingfailures::aResetInTheHeadFails()
{
    LoaderStage stage;
    QVERIFY(stage.load("/", [](WebVisit &visit) {
        visit.send("HTTP/1.1 200 OK\r\nContent-Le");
        visit.reset();
    }));
    QVERIFY(stage.delegate.hasFailed());
}

void tst_urlloadingfailures::aResetInTheBodyFails()
{
    LoaderStage stage;
    WebVisit &visit = stage.visit();
    visit.send(webHead("200 OK", "Content-Length: 10\r\n") + "short");
    QTRY_COMPARE(stage.delegate.body, std::string("short"));
    visit.reset();
    QVERIFY(stage.delegate.waitForEnd());
    QVERIFY(stage.delegate.hasFailed());
}

void tst_urlloadingfailures::aRedirectElsewhereThanTheWebFails_data()
{
    QTest::addColumn<QByteArray>("address");
    for (const char *address : {"file:///etc/passwd", "ftp://HOST/x", "data:,text", "qrc:/x",
                                "http:///nowhere", "mailto:a@b.example"})
        QTest::newRow(address) << QByteArray(address);
}

void tst_urlloadingfailures::aRedirectElsewhereThanTheWebFails()
{
    QFETCH(QByteArray, address);
    LoaderStage stage;
    address.replace("HOST", QByteArray::fromStdString(stage.server.host()));
    QVERIFY(stage.loadAnswered(webAnswer("", "302 Found", "Location: " + address + "\r\n")));
    QVERIFY(stage.delegate.hasFailed());
    QCOMPARE(stage.delegate.error->description, std::string("redirected to no address of the web"));
    QCOMPARE(stage.delegate.told, std::size_t{0});
    QCOMPARE(stage.server.count(), std::size_t{1});
}

void tst_urlloadingfailures::aRedirectLoopFails()
{
    LoaderStage stage;
    stage.server.answer("/", webAnswer("one", "302 Found", "Location: /other\r\n"));
    stage.server.answer("/other", webAnswer("other", "302 Found", "Location: /\r\n"));
    QVERIFY(stage.load());
    QVERIFY(stage.delegate.hasFailed());
    QVERIFY(stage.server.count() < 100);
}

void tst_urlloadingfailures::theAddressThatFailedIsTheLastOne()
{
    LoaderStage stage;
    stage.server.answer("/", webAnswer("", "302 Found", "Location: /there\r\n"));
    stage.server.answer("/there", "garbage\r\n\r\n");
    QVERIFY(stage.load());
    QVERIFY(stage.delegate.hasFailed());
    QCOMPARE(stage.delegate.error->failingUrl, stage.server.url("/there"));
}

void tst_urlloadingfailures::aFailureIsForgottenByTheNextRequest()
{
    LoaderStage stage;
    QVERIFY(stage.loadAnswered("garbage\r\n\r\n"));
    QVERIFY(stage.delegate.hasFailed());
    stage.server.answer("/", webAnswer("body"));
    WebDelegate second;
    QVERIFY(stage.loader->start(stage.server.url("/"), second));
    QVERIFY(second.waitForEnd());
    QVERIFY(second.hasFinished());
    QCOMPARE(second.body, std::string("body"));
}

KYR_CORE_TEST(tst_urlloadingfailures)
#include "tst_urlloadingfailures.moc"
