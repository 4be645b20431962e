#include "support/suite.h"
#include "webdelegate.h"

/// What the loader sends and what it makes of answers that are as they should be.
class tst_urlloading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRequestIsTheseLines();
    void aContentIsFetchedPastCaches();
    void noCookieComesBack();
    void anAddressGoesOutAsItStands_data();
    void anAddressGoesOutAsItStands();
    void aWholeBodyIsToldOf_data();
    void aWholeBodyIsToldOf();
    void aRefusalFinishesLikeAnyOther_data();
    void aRefusalFinishesLikeAnyOther();
    void whatIsPackedStaysPacked();
    void aRedirectIsFollowedWithoutItsBody_data();
    void aRedirectIsFollowedWithoutItsBody();
    void aRedirectToASecureConnectionAsksForOne();
};

namespace {

/// The lines of a request, but for the one of the locale.
QByteArrayList headLines(const WebVisit &visit)
{
    QByteArrayList lines = visit.request().split('\n');
    for (QByteArray &line : lines)
        line = line.trimmed();
    lines.removeIf([](const QByteArray &line) {
        return line.isEmpty() || line.startsWith("Accept-Language:");
    });
    return lines;
}

/// An answer in chunks of these sizes.
QByteArray chunked(const QByteArrayList &chunks)
{
    QByteArray answer = webHead("200 OK", "Transfer-Encoding: chunked\r\n");
    for (const QByteArray &chunk : chunks)
        answer += QByteArray::number(chunk.size(), 16) + "\r\n" + chunk + "\r\n";
    return answer + "0\r\n\r\n";
}

} // namespace

void tst_urlloading::aRequestIsTheseLines()
{
    LoaderStage stage;
    stage.server.answerAll(webAnswer("body"));
    QVERIFY(stage.load("/a/path"));
    const QByteArray host = QByteArray::fromStdString(stage.server.host());
    QByteArrayList expected{"GET /a/path HTTP/1.1",      "Host: " + host,
                            "User-Agent: KyrMGUI2",      "Accept: */*",
                            "Accept-Encoding: identity", "Connection: close"};
    QByteArrayList lines = headLines(stage.server.last());
    QCOMPARE(lines.front(), expected.front());
    std::ranges::sort(lines);
    std::ranges::sort(expected);
    QCOMPARE(lines, expected);
}

void tst_urlloading::aContentIsFetchedPastCaches()
{
    LoaderStage stage;
    stage.server.answerAll(webAnswer("body"));
    QVERIFY(stage.load("/asked"));
    bool done = false;
    stage.loader->fetch(stage.server.url("/asked"), [&](const auto &) { done = true; });
    QTRY_VERIFY(done);
    QByteArrayList fetched = headLines(stage.server.last());
    for (const QByteArray &line : headLines(stage.server.visit(0)))
        QVERIFY(fetched.removeOne(line));
    std::ranges::sort(fetched);
    QCOMPARE(fetched, (QByteArrayList{"Cache-Control: no-cache", "Pragma: no-cache"}));
}

void tst_urlloading::noCookieComesBack()
{
    LoaderStage stage;
    stage.server.answer(
        "/", webAnswer("", "302 Found", "Set-Cookie: name=value; Path=/\r\nLocation: /there\r\n"));
    stage.server.answer("/there", webAnswer("body", "200 OK", "Set-Cookie: name=value\r\n"));
    QVERIFY(stage.load("/"));
    WebDelegate second;
    QVERIFY(stage.loader->start(stage.server.url("/there"), second));
    QVERIFY(second.waitForEnd());
    QCOMPARE(stage.server.count(), std::size_t{3});
    for (std::size_t visit = 0; visit < 3; ++visit)
        QVERIFY(!stage.server.visit(visit).request().toLower().contains("cookie"));
}

void tst_urlloading::anAddressGoesOutAsItStands_data()
{
    QTest::addColumn<std::string>("path");
    QTest::addColumn<QByteArray>("sent");
    QTest::newRow("plus") << std::string("/two+words/x") << QByteArray("/two+words/x");
    QTest::newRow("text") << std::string("/\u00e4/\u6c34") << QByteArray("/%C3%A4/%E6%B0%B4");
    QTest::newRow("bytes") << std::string("/%e4%72%9") << QByteArray("/%e4%72%9");
    QTest::newRow("perhaps not for a path")
        << std::string("/\"<>\\^`{|}~") << QByteArray("/\"<>\\^`{|}~");
    QTest::newRow("folders") << std::string("/a/../b/./c//d") << QByteArray("/a/../b/./c//d");
    QTest::newRow("no path") << std::string() << QByteArray("/");
    QTest::newRow("no path but a query") << std::string("?a") << QByteArray("/?a");
    QTest::newRow("query") << std::string("/a?b=c&d") << QByteArray("/a?b=c&d");
    QTest::newRow("fragment") << std::string("/a#b") << QByteArray("/a");
    QTest::newRow("blank") << std::string("/a b") << QByteArray("/a%20b");
    QTest::newRow("line ends") << std::string("/a\r\nX: y") << QByteArray("/a%0D%0AX:%20y");
}

void tst_urlloading::anAddressGoesOutAsItStands()
{
    QFETCH(std::string, path);
    LoaderStage stage;
    stage.server.answerAll(webAnswer("body"));
    QVERIFY(stage.load(path));
    QTEST(stage.server.last().path(), "sent");
}

void tst_urlloading::aWholeBodyIsToldOf_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<std::string>("body");
    const std::string told("one\0two\n\xFF", 9);
    const QByteArray sent = QByteArray::fromStdString(told);
    const QByteArray length = "Content-Length: 9\r\n";
    QTest::newRow("length") << webAnswer(sent) << told;
    QTest::newRow("empty") << webAnswer("") << std::string();
    QTest::newRow("no length") << webHead("200 OK") + sent << told;
    QTest::newRow("more than the length") << webHead("200 OK", length) + sent + "more" << told;
    QTest::newRow("chunk") << chunked({sent}) << told;
    QTest::newRow("chunks") << chunked({sent.left(1), sent.mid(1, 7), sent.mid(8)}) << told;
    QTest::newRow("old protocol") << QByteArray("HTTP/1.0 200 OK\r\n\r\n") + sent << told;
}

/// Whole, and byte by byte, which splits heads and chunk sizes anywhere.
void tst_urlloading::aWholeBodyIsToldOf()
{
    QFETCH(QByteArray, answer);
    LoaderStage stage;
    QVERIFY(stage.loadAnswered(answer));
    QVERIFY(stage.delegate.hasFinished());
    QTEST(stage.delegate.body, "body");
    QCOMPARE(stage.delegate.statuses, std::vector{200});

    LoaderStage slow;
    QVERIFY(slow.load(
        "/", [&](WebVisit &visit) { visit.trickle(answer, 1, std::chrono::milliseconds(0)); }));
    QVERIFY(slow.delegate.hasFinished());
    QTEST(slow.delegate.body, "body");
}

void tst_urlloading::aRefusalFinishesLikeAnyOther_data()
{
    QTest::addColumn<int>("status");
    for (const int status : {400, 401, 403, 404, 405, 407, 409, 410, 418, 500, 501, 503, 599})
        QTest::addRow("%d", status) << status;
}

void tst_urlloading::aRefusalFinishesLikeAnyOther()
{
    QFETCH(int, status);
    LoaderStage stage;
    QVERIFY(stage.loadAnswered(webAnswer("what is wrong", QByteArray::number(status) + " No")));
    QVERIFY(stage.delegate.hasFinished());
    QCOMPARE(stage.delegate.body, std::string("what is wrong"));
    QCOMPARE(stage.delegate.statuses, std::vector{status});
}

void tst_urlloading::whatIsPackedStaysPacked()
{
    const QByteArray packed =
        QByteArray::fromHex("1f8b08000000000000034bca4fa9040086ed9c9e04000000");
    LoaderStage stage;
    QVERIFY(stage.loadAnswered(webAnswer(packed, "200 OK", "Content-Encoding: gzip\r\n")));
    QVERIFY(stage.delegate.hasFinished());
    QCOMPARE(QByteArray::fromStdString(stage.delegate.body), packed);
}

void tst_urlloading::aRedirectIsFollowedWithoutItsBody_data()
{
    QTest::addColumn<QByteArray>("status");
    for (const char *status : {"301 Moved", "302 Found", "303 Other", "307 There", "308 There"})
        QTest::newRow(status) << QByteArray(status);
}

void tst_urlloading::aRedirectIsFollowedWithoutItsBody()
{
    QFETCH(QByteArray, status);
    const QByteArray longBody(100'000, 'r');
    LoaderStage stage;
    WebServer other;
    const auto to = [](const std::string &url) {
        return "Location: " + QByteArray::fromStdString(url) + "\r\n";
    };
    stage.server.answer("/", webAnswer(longBody, status, to("/second")));
    stage.server.answer("/second", webAnswer(longBody, status, to(other.url("/third"))));
    other.answer("/third", webAnswer("body"));
    QVERIFY(stage.load());
    QVERIFY(stage.delegate.hasFinished());
    QCOMPARE(stage.delegate.body, std::string("body"));
    QCOMPARE(stage.delegate.statuses, std::vector{200});
    QCOMPARE(stage.server.paths(), (std::vector<QByteArray>{"/", "/second"}));
    QCOMPARE(other.paths(), std::vector<QByteArray>{"/third"});
    QVERIFY(other.last().request().contains("User-Agent: KyrMGUI2\r\n"));
}

/// A server that does not speak the secure protocol sees its greeting.
void tst_urlloading::aRedirectToASecureConnectionAsksForOne()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    QByteArray greeting;
    connect(&server, &QTcpServer::newConnection, &server, [&] {
        QTcpSocket *const guest = server.nextPendingConnection();
        connect(guest, &QIODevice::readyRead, guest, [&greeting, guest] {
            greeting += guest->readAll();
            guest->disconnectFromHost();
        });
    });
    const QByteArray there = "https://127.0.0.1:" + QByteArray::number(server.serverPort()) + "/x";
    LoaderStage stage;
    stage.server.answer("/", webAnswer("here", "302 Found", "Location: " + there + "\r\n"));
    QVERIFY(stage.load());
    QVERIFY(stage.delegate.hasFailed());
    QCOMPARE(stage.delegate.error->failingUrl, there.toStdString());
    QVERIFY2(greeting.startsWith("\x16\x03"), greeting.toHex());
}

KYR_CORE_TEST(tst_urlloading)
#include "tst_urlloading.moc"
