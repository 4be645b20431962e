#include "support/suite.h"
#include "webdelegate.h"

#include <netinet/in.h>
#include <unistd.h>

/// How much the loader takes, how long it waits, and its own end.
class tst_urlloadinglimits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theMostBytesAreDeliveredAndNoMore_data();
    void theMostBytesAreDeliveredAndNoMore();
    void anEndlessBodyFailsAfterTheMostBytes();
    void anEndlessHeadFails_data();
    void anEndlessHeadFails();
    void anEndlessRedirectIsFollowedAtOnce();
    void silenceFails_data();
    void silenceFails();
    void aHostThatTakesNoConnectionIsSilent();
    void aByteNowAndThenIsNoSilence();
    void aSlowHeadIsNoSilence();
    void theLoadersEndIsToldToNobody_data();
    void theLoadersEndIsToldToNobody();
    void theLoaderMayGoWhileItTells_data();
    void theLoaderMayGoWhileItTells();
};

namespace {

using namespace std::chrono_literals;

constexpr qsizetype kMostOfABody = UrlLoader::kMostBytes;

/// A port where more have connected than the system lets wait.
class BusyHost
{
public:
    BusyHost()
    {
        socklen_t size = sizeof m_address;
        m_address.sin_family = AF_INET;
        m_address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        if (::bind(m_listening, address(), size) != 0 || ::listen(m_listening, 0) != 0 ||
            ::getsockname(m_listening, address(), &size) != 0)
            qFatal("no port for the test's busy host");
        for (const int guest : m_guests) {
            if (::connect(guest, address(), size) != 0 && errno != EINPROGRESS)
                qFatal("nobody comes to the test's busy host");
        }
    }
    ~BusyHost()
    {
        for (const int guest : m_guests)
            ::close(guest);
        ::close(m_listening);
    }
    BusyHost(const BusyHost &) = delete;
    BusyHost &operator=(const BusyHost &) = delete;

    int port() const { return ntohs(m_address.sin_port); }

private:
    static int newSocket() { return ::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0); }
    sockaddr *address() { return reinterpret_cast<sockaddr *>(&m_address); }

    sockaddr_in m_address = {};
    const int m_listening = newSocket();
    const std::array<int, 4> m_guests{newSocket(), newSocket(), newSocket(), newSocket()};
};

QByteArray chunkOf(qsizetype size)
{
    return QByteArray::number(size, 16) + "\r\n" + QByteArray(size, 'x') + "\r\n";
}

} // namespace

void tst_urlloadinglimits::theMostBytesAreDeliveredAndNoMore_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<bool>("isDelivered");
    const QByteArray most(kMostOfABody, 'x');
    const QByteArray chunks = webHead("200 OK", "Transfer-Encoding: chunked\r\n");
    QTest::newRow("the most") << webAnswer(most) << true;
    QTest::newRow("one more") << webAnswer(most + 'x') << false;
    QTest::newRow("the most, no length") << webHead("200 OK") + most << true;
    QTest::newRow("one more, no length") << webHead("200 OK") + most + 'x' << false;
    QTest::newRow("the most, a chunk") << chunks + chunkOf(kMostOfABody) + "0\r\n\r\n" << true;
    QTest::newRow("one more, two chunks")
        << chunks + chunkOf(kMostOfABody) + chunkOf(1) + "0\r\n\r\n"
        << false;
    QTest::newRow("one more, a refusal") << webAnswer(most + 'x', "404 No") << false;
}

void tst_urlloadinglimits::theMostBytesAreDeliveredAndNoMore()
{
    QFETCH(QByteArray, answer);
    QFETCH(bool, isDelivered);
    LoaderStage stage;
    QVERIFY(stage.loadAnswered(answer));
    QVERIFY(stage.delegate.told <= std::size_t{kMostOfABody});
    QCOMPARE(stage.delegate.hasFinished(), isDelivered);
    if (isDelivered)
        QCOMPARE(stage.delegate.body, std::string(kMostOfABody, 'x'));
    else
        QCOMPARE(stage.delegate.error->description, std::string("the answer is too long"));
}

void tst_urlloadinglimits::anEndlessBodyFailsAfterTheMostBytes()
{
    LoaderStage stage;
    QVERIFY(stage.load("/", [](WebVisit &visit) {
        visit.send(webHead("200 OK"));
        visit.flood();
    }));
    QVERIFY(stage.delegate.hasFailed());
    QCOMPARE(stage.delegate.error->description, std::string("the answer is too long"));
    QVERIFY(stage.delegate.told <= std::size_t{kMostOfABody});
    QTRY_VERIFY(!stage.server.last().isOpen());
    // Beyond what was told, no more than the buffers on the way hold.
    QVERIFY(stage.server.last().sent() < 3 * kMostOfABody);
}

void tst_urlloadinglimits::anEndlessHeadFails_data()
{
    QTest::addColumn<QByteArray>("begin");
    QTest::addColumn<QByteArray>("piece");
    QTest::newRow("line") << QByteArray("HTTP/1.1 200 OK\r\nX: ") << QByteArray(1 << 16, 'x');
    QTest::newRow("lines") << QByteArray("HTTP/1.1 200 OK\r\n")
                           << QByteArray("X: some value\r\n").repeated(4096);
    QTest::newRow("answers to come first")
        << QByteArray() << QByteArray("HTTP/1.1 100 Continue\r\n\r\n").repeated(2048);
    const QByteArray chunks = webHead("200 OK", "Transfer-Encoding: chunked\r\n");
    QTest::newRow("chunk size") << chunks + "1;" << QByteArray(1 << 16, 'x');
    QTest::newRow("trailer") << chunks + "0\r\n" << QByteArray("X: some value\r\n").repeated(4096);
    QTest::newRow("status") << QByteArray() << QByteArray(1 << 16, 'x');
}

void tst_urlloadinglimits::anEndlessHeadFails()
{
    QFETCH(QByteArray, begin);
    QFETCH(QByteArray, piece);
    LoaderStage stage;
    QVERIFY(stage.load("/", [&](WebVisit &visit) {
        visit.send(begin);
        visit.flood(piece);
    }));
    QVERIFY(stage.delegate.hasFailed());
    QCOMPARE(stage.delegate.told, std::size_t{0});
    QTRY_VERIFY(!stage.server.last().isOpen());
    QVERIFY(stage.server.last().sent() < kMostOfABody); // what the buffers on the way hold
}

void tst_urlloadinglimits::anEndlessRedirectIsFollowedAtOnce()
{
    LoaderStage stage;
    stage.server.answer("/there", webAnswer("body"));
    QVERIFY(stage.load("/", [](WebVisit &visit) {
        visit.send(webHead("302 Found", "Location: /there\r\n"));
        visit.flood();
    }));
    QVERIFY(stage.delegate.hasFinished());
    QCOMPARE(stage.delegate.body, std::string("body"));
    QTRY_VERIFY(!stage.server.visit(0).isOpen());
}

void tst_urlloadinglimits::silenceFails_data()
{
    QTest::addColumn<QByteArray>("said");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("part of a head") << QByteArray("HTTP/1.1 200 OK\r\nCont");
    QTest::newRow("head") << webHead("200 OK", "Content-Length: 10\r\n");
    QTest::newRow("part of a body") << webHead("200 OK", "Content-Length: 10\r\n") + "short";
    QTest::newRow("part of a chunk")
        << webHead("200 OK", "Transfer-Encoding: chunked\r\n") + "a\r\nshort";
}

void tst_urlloadinglimits::silenceFails()
{
    QFETCH(QByteArray, said);
    LoaderStage stage(200ms);
    QVERIFY(stage.load("/", [&](WebVisit &visit) { visit.send(said); }));
    QVERIFY(stage.delegate.hasFailed());
    QTRY_VERIFY(!stage.server.last().isOpen());
}

void tst_urlloadinglimits::aHostThatTakesNoConnectionIsSilent()
{
    const BusyHost host;
    UrlLoader loader(200ms);
    WebDelegate delegate;
    QVERIFY(loader.start("http://127.0.0.1:" + std::to_string(host.port()) + '/', delegate));
    QVERIFY(delegate.waitForEnd());
    QCOMPARE(delegate.error.value_or(UrlError()).description, std::string("the host is silent"));
}

void tst_urlloadinglimits::aByteNowAndThenIsNoSilence()
{
    LoaderStage stage(200ms);
    QVERIFY(stage.load("/", [](WebVisit &visit) {
        visit.send(webHead("200 OK", "Content-Length: 10\r\n"));
        visit.trickle("ten bytes.", 1, 60ms);
    }));
    QVERIFY(stage.delegate.hasFinished());
    QCOMPARE(stage.delegate.body, std::string("ten bytes."));
}

void tst_urlloadinglimits::aSlowHeadIsNoSilence()
{
    LoaderStage stage(200ms);
    QVERIFY(stage.load("/", [](WebVisit &visit) { visit.trickle(webAnswer("body"), 6, 50ms); }));
    QVERIFY(stage.delegate.hasFinished());
    QCOMPARE(stage.delegate.body, std::string("body"));
}

void tst_urlloadinglimits::theLoadersEndIsToldToNobody_data()
{
    QTest::addColumn<QByteArray>("said");
    QTest::addColumn<QByteArray>("unsaid");
    QTest::newRow("before the answer") << QByteArray() << webAnswer("body");
    QTest::newRow("in the head") << QByteArray("HTTP/1.1 200") << QByteArray(" OK\r\n\r\nbody");
    QTest::newRow("in the body") << webHead("200 OK") + "bo" << QByteArray("dy");
    QTest::newRow("all is there") << webAnswer("body") << QByteArray();
}

void tst_urlloadinglimits::theLoadersEndIsToldToNobody()
{
    QFETCH(QByteArray, said);
    QFETCH(QByteArray, unsaid);
    LoaderStage stage;
    int fetched = 0;
    stage.loader->fetch(stage.server.url("/"), [&](const auto &) { ++fetched; });
    WebDelegate other;
    QVERIFY(stage.loader->start(stage.server.url("/"), other));
    QTRY_COMPARE(stage.server.count(), std::size_t{2});
    for (std::size_t visit = 0; visit < 2; ++visit)
        stage.server.visit(visit).send(said);
    stage.loader.reset();
    for (std::size_t visit = 0; visit < 2; ++visit)
        stage.server.visit(visit).finish(unsaid);
    QTRY_VERIFY(!stage.server.visit(0).isOpen() && !stage.server.visit(1).isOpen());
    QCoreApplication::processEvents();
    QCOMPARE(fetched, 0);
    QCOMPARE(other.ends, 0);
    QVERIFY(other.statuses.empty());
}

void tst_urlloadinglimits::theLoaderMayGoWhileItTells_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::newRow("end") << webAnswer("body");
    QTest::newRow("failure") << QByteArray("garbage\r\n\r\n");
    QTest::newRow("too long") << webAnswer(QByteArray(kMostOfABody + 1, 'x'));
}

void tst_urlloadinglimits::theLoaderMayGoWhileItTells()
{
    QFETCH(QByteArray, answer);
    LoaderStage stage;
    stage.delegate.atEnd = [&] { stage.loader.release()->deleteLater(); };
    QVERIFY(stage.loadAnswered(answer));
    QTRY_VERIFY(!stage.server.last().isOpen());
    QCoreApplication::processEvents();
    QCOMPARE(stage.delegate.ends, 1);
}

KYR_CORE_TEST(tst_urlloadinglimits)
#include "tst_urlloadinglimits.moc"
