#include "platform/httpreader.h"
#include "support/suite.h"

using State = HttpReader::State;

class tst_httpreader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anAnswerIsReadHoweverItIsCut_data();
    void anAnswerIsReadHoweverItIsCut();
    void whatIsNoAnswerIsBroken_data();
    void whatIsNoAnswerIsBroken();
    void theHeadSaysWhereToAskInstead();
    void whatHasNotEndedIsBrokenWhenClosed_data();
    void whatHasNotEndedIsBrokenWhenClosed();
    void aBodyWithoutALengthEndsWithTheConnection();
    void whatFollowsTheEndIsNotRead();
    void onlySoMuchIsNoBody_data();
    void onlySoMuchIsNoBody();
    void anyNumberOfChunksIsRead();
};

namespace {

struct Reading
{
    State state{};
    std::string body;
    int status = 0;
};

Reading readInPieces(const std::string &bytes, std::size_t piece)
{
    HttpReader reader;
    Reading reading;
    for (std::size_t at = 0; at < bytes.size(); at += piece)
        reading.state = reader.read(std::string_view(bytes).substr(at, piece), reading.body);
    reading.status = reader.head().status;
    return reading;
}

const std::string kChunked = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";
const std::string kLong(100'000, 'x');

} // namespace

void tst_httpreader::anAnswerIsReadHoweverItIsCut_data()
{
    QTest::addColumn<std::string>("bytes");
    QTest::addColumn<std::string>("body");
    QTest::addColumn<int>("status");
    const auto row = [](const char *name, const std::string &bytes, const char *body,
                        int status = 200) {
        QTest::newRow(name) << bytes << std::string(body) << status;
    };
    row("length", "HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\nbody", "body");
    row("of the older kind", "HTTP/1.0 200 OK\r\nContent-Length: 4\r\n\r\nbody", "body");
    row("no length at all", "HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n", "");
    row("no reason", "HTTP/1.1 200\r\nContent-Length: 4\r\n\r\nbody", "body");
    row("lines ended shortly", "HTTP/1.1 200 OK\nContent-Length: 4\n\nbody", "body");
    row("names in other letters", "HTTP/1.1 200 OK\r\ncontent-LENGTH:4  \r\n\r\nbody", "body");
    row("a line without a colon", "HTTP/1.1 200 OK\r\nnothing\r\nContent-Length: 4\r\n\r\nbody",
        "body");
    row("a refusal", "HTTP/1.1 404 No\r\nContent-Length: 4\r\n\r\nbody", "body", 404);
    row("no content", "HTTP/1.1 204 No\r\nContent-Length: 4\r\n\r\n", "", 204);
    row("not modified", "HTTP/1.1 304 No\r\n\r\n", "", 304);
    row("to go on first",
        "HTTP/1.1 100 Continue\r\nContent-Length: 9\r\n\r\n"
        "HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\nbody",
        "body");
    row("chunks", kChunked + "2\r\nbo\r\n2\r\ndy\r\n0\r\n\r\n", "body");
    row("a chunk with more", kChunked + "4;a=b\r\nbody\r\n0\r\n\r\n", "body");
    row("a long chunk's size", kChunked + "00004\r\nbody\r\n0;x\r\n\r\n", "body");
    row("what follows chunks", kChunked + "4\r\nbody\r\n0\r\nA: b\r\nC: d\r\n\r\n", "body");
    row("chunks beside a length",
        "HTTP/1.1 200 OK\r\nContent-Length: 1\r\nTransfer-Encoding: Chunked"
        "\r\n\r\n4\r\nbody\r\n0\r\n\r\n",
        "body");
    row("a length beside chunks",
        "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\nContent-Length: 1"
        "\r\n\r\n4\r\nbody\r\n0\r\n\r\n",
        "body");
    row("as it is",
        "HTTP/1.1 200 OK\r\nTransfer-Encoding: identity\r\nContent-Length: 4\r\n\r\nbody", "body");
}

void tst_httpreader::anAnswerIsReadHoweverItIsCut()
{
    QFETCH(std::string, bytes);
    for (const std::size_t piece : {bytes.size(), std::size_t{1}, std::size_t{7}}) {
        const Reading reading = readInPieces(bytes, piece);
        QCOMPARE(reading.state, State::Ended);
        QTEST(reading.body, "body");
        QTEST(reading.status, "status");
    }
}

void tst_httpreader::whatIsNoAnswerIsBroken_data()
{
    QTest::addColumn<std::string>("bytes");
    const auto row = [](const char *name, const std::string &bytes) {
        QTest::newRow(name) << bytes;
    };
    row("another protocol", "SSH-2.0-x\r\n");
    row("another version", "HTTP/2 200 OK\r\n");
    row("no blank", "HTTP/1.1-200 OK\r\n");
    row("no number", "HTTP/1.1 2x0 OK\r\n");
    row("short", "HTTP/1.1 20\r\n");
    row("empty", "\r\n");
    row("no length", "HTTP/1.1 200 OK\r\nContent-Length: x\r\n\r\n");
    row("a length below none", "HTTP/1.1 200 OK\r\nContent-Length: -1\r\n\r\n");
    row("a length and more", "HTTP/1.1 200 OK\r\nContent-Length: 4, 4\r\n\r\n");
    row("a length beyond any", "HTTP/1.1 200 OK\r\nContent-Length: 99999999999999999999\r\n\r\n");
    row("packed", "HTTP/1.1 200 OK\r\nTransfer-Encoding: gzip, chunked\r\n\r\n");
    row("no chunk's size", kChunked + "\r\n");
    row("a chunk's size in words", kChunked + "four\r\n");
    row("a chunk beyond any size", kChunked + "fffffffffffffffff\r\n");
    row("a chunk that goes on", kChunked + "4\r\nbodymore\r\n");
}

void tst_httpreader::whatIsNoAnswerIsBroken()
{
    QFETCH(std::string, bytes);
    QCOMPARE(readInPieces(bytes, bytes.size()).state, State::Broken);
    QCOMPARE(readInPieces(bytes, 1).state, State::Broken);
}

void tst_httpreader::theHeadSaysWhereToAskInstead()
{
    HttpReader reader;
    std::string body;
    reader.read("HTTP/1.1 302 Found\r\nLocation:  /there \r\nContent-Length: 3\r\n\r\n", body);
    QCOMPARE(reader.state(), State::Body);
    QCOMPARE(reader.head().status, 302);
    QCOMPARE(reader.head().location, std::string("/there"));
}

void tst_httpreader::whatHasNotEndedIsBrokenWhenClosed_data()
{
    QTest::addColumn<std::string>("bytes");
    for (const std::string &bytes :
         {std::string(), std::string("HTTP/1.1 200 OK\r\n"),
          std::string("HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\nbod"), kChunked,
          kChunked + "4\r\nbod", kChunked + "4\r\nbody\r\n", kChunked + "4\r\nbody\r\n0\r\n"})
        QTest::newRow(bytes.c_str()) << bytes;
}

void tst_httpreader::whatHasNotEndedIsBrokenWhenClosed()
{
    QFETCH(std::string, bytes);
    HttpReader reader;
    std::string body;
    reader.read(bytes, body);
    QCOMPARE(reader.close(), State::Broken);
}

void tst_httpreader::aBodyWithoutALengthEndsWithTheConnection()
{
    HttpReader reader;
    std::string body;
    QCOMPARE(reader.read("HTTP/1.1 200 OK\r\n\r\nbo", body), State::Body);
    QCOMPARE(reader.read("dy", body), State::Body);
    QCOMPARE(reader.close(), State::Ended);
    QCOMPARE(body, std::string("body"));
}

void tst_httpreader::whatFollowsTheEndIsNotRead()
{
    HttpReader reader;
    std::string body;
    QCOMPARE(reader.read("HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\nbodymore", body),
             State::Ended);
    QCOMPARE(reader.read("HTTP/1.1 500 No\r\n\r\n", body), State::Ended);
    QCOMPARE(reader.close(), State::Ended);
    QCOMPARE(body, std::string("body"));
    QCOMPARE(reader.head().status, 200);
}

void tst_httpreader::onlySoMuchIsNoBody_data()
{
    QTest::addColumn<std::string>("begin");
    QTest::addColumn<std::string>("again");
    QTest::newRow("status") << std::string() << std::string("H");
    QTest::newRow("a line") << std::string("HTTP/1.1 200 OK\r\nX: ") << std::string("x");
    QTest::newRow("lines") << std::string("HTTP/1.1 200 OK\r\n") << std::string("X: y\r\n");
    QTest::newRow("to go on") << std::string() << std::string("HTTP/1.1 100 Continue\r\n\r\n");
    QTest::newRow("a chunk's line") << kChunked + "4;" << std::string("x");
    QTest::newRow("after chunks") << kChunked + "0\r\n" << std::string("X: y\r\n");
}

void tst_httpreader::onlySoMuchIsNoBody()
{
    QFETCH(std::string, begin);
    QFETCH(std::string, again);
    HttpReader reader;
    std::string body;
    reader.read(begin, body);
    std::size_t sent = 0;
    while (sent < kLong.size() && reader.state() != State::Broken) {
        reader.read(again, body);
        sent += again.size();
    }
    QCOMPARE(reader.state(), State::Broken);
    QVERIFY(sent > 60'000);
    QVERIFY(body.empty());
}

void tst_httpreader::anyNumberOfChunksIsRead()
{
    HttpReader reader;
    std::string body;
    reader.read(kChunked, body);
    for (int chunk = 0; chunk < 100'000; ++chunk)
        reader.read("1\r\nx\r\n", body);
    QCOMPARE(reader.read("0\r\n\r\n", body), State::Ended);
    QCOMPARE(body.size(), std::size_t{100'000});
}

KYR_PLAIN_TEST(tst_httpreader)
#include "tst_httpreader.moc"
