#pragma once

#include <QtCore/QTimer>
#include <QtNetwork/QNetworkProxyFactory>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>
#include <QtTest/QTest>

#include <sys/socket.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <vector>

/// A request as a web server sees it, and what is sent for it. The connection stays open until one
/// side ends it; what is sent is bytes, so that an answer may be as wrong as it likes.
class WebVisit : public QObject
{
public:
    explicit WebVisit(QTcpSocket *socket) : m_socket(socket)
    {
        socket->setParent(this);
        socket->setSocketOption(QAbstractSocket::LowDelayOption, 1); // small pieces go out at once
    }

    /// The request's bytes, with the empty line that ends them.
    const QByteArray &request() const { return m_request; }
    /// Its first line, like "GET /path HTTP/1.1".
    QByteArray requestLine() const { return m_request.left(m_request.indexOf('\r')); }
    QByteArray path() const { return requestLine().split(' ').value(1); }
    /// Whether neither side has ended the connection.
    bool isOpen() const { return m_socket->state() == QAbstractSocket::ConnectedState; }
    quint16 peerPort() const { return m_socket->peerPort(); }
    /// How much has gone out.
    qint64 sent() const { return m_sent; }

    void send(const QByteArray &bytes)
    {
        m_socket->write(bytes);
        m_socket->flush();
    }
    /// Ends the connection as soon as all has gone out.
    void close() { m_socket->disconnectFromHost(); }
    void finish(const QByteArray &bytes)
    {
        send(bytes);
        close();
    }
    /// Ends the connection so that the other side sees an error.
    void reset()
    {
        const linger atOnce{1, 0};
        ::setsockopt(static_cast<int>(m_socket->socketDescriptor()), SOL_SOCKET, SO_LINGER, &atOnce,
                     sizeof atOnce);
        m_socket->abort();
    }
    /// Sends without end, as fast as the other side takes it.
    void flood(const QByteArray &piece = QByteArray(1 << 16, 'x'))
    {
        connect(m_socket, &QTcpSocket::bytesWritten, this, [this, piece] {
            if (m_socket->bytesToWrite() < piece.size())
                m_socket->write(piece);
        });
        send(piece);
    }
    /// Sends a piece of that size at every interval, and closes.
    void trickle(const QByteArray &bytes, qsizetype piece, std::chrono::milliseconds interval)
    {
        m_toTrickle = bytes;
        connect(&m_clock, &QTimer::timeout, this, [this, piece] {
            send(m_toTrickle.left(piece));
            m_toTrickle.remove(0, piece);
            if (!m_toTrickle.isEmpty())
                return;
            m_clock.stop();
            close();
        });
        m_clock.start(interval);
    }

    /// Calls `answer` once the request is whole.
    void receive(const std::function<void()> &answer)
    {
        connect(m_socket, &QTcpSocket::bytesWritten, this, [this](qint64 size) { m_sent += size; });
        connect(m_socket, &QTcpSocket::readyRead, this, [this, answer] {
            const bool wasWhole = isWhole();
            m_request += m_socket->readAll();
            if (isWhole() && !wasWhole)
                answer();
        });
    }

private:
    bool isWhole() const { return m_request.endsWith("\r\n\r\n"); }

    QTcpSocket *const m_socket;
    QByteArray m_request;
    QByteArray m_toTrickle;
    QTimer m_clock;
    qint64 m_sent = 0;
};

/// A web server on the loopback interface and the test's own event loop. It keeps the requests and
/// answers each as its path was told to be; a path without an answer is held: the test sends what
/// it likes, when it likes. No connection serves two requests.
class WebServer : public QObject
{
public:
    using Answer = std::function<void(WebVisit &visit)>;

    WebServer()
    {
        // A proxy that the machine has would get the requests.
        QNetworkProxyFactory::setUseSystemConfiguration(false);
        connect(&m_server, &QTcpServer::newConnection, this, &WebServer::welcome);
        if (!m_server.listen(QHostAddress::LocalHost))
            qFatal("no port for the test's web server");
    }

    /// "127.0.0.1:" and the port.
    std::string host() const { return "127.0.0.1:" + std::to_string(m_server.serverPort()); }
    std::string url(const std::string &path) const { return "http://" + host() + path; }
    /// Nobody listens at its port any more.
    void shut() { m_server.close(); }

    /// How a request for the path is answered from now on.
    void answer(const QByteArray &path, const Answer &answer) { m_answers[path] = answer; }
    /// The same, with bytes after which the connection is closed.
    void answer(const QByteArray &path, const QByteArray &bytes)
    {
        answer(path, [bytes](WebVisit &visit) { visit.finish(bytes); });
    }
    /// How a request is answered whose path has no answer of its own.
    void answerAll(const Answer &answer) { m_anyAnswer = answer; }
    void answerAll(const QByteArray &bytes)
    {
        answerAll([bytes](WebVisit &visit) { visit.finish(bytes); });
    }

    /// The requests so far, in the order in which they became whole.
    std::size_t count() const { return m_visits.size(); }
    WebVisit &visit(std::size_t number) const { return *m_visits.at(number); }
    WebVisit &last() const { return *m_visits.back(); }
    /// What was asked for, in that order.
    std::vector<QByteArray> paths() const
    {
        std::vector<QByteArray> paths;
        for (const WebVisit *visit : m_visits)
            paths.push_back(visit->path());
        return paths;
    }
    /// How many have connected, whether or not they asked for anything.
    std::size_t connections() const { return m_guests.size() - m_probes; }

    /// Returns when all has come that others had begun to send before: they connect, ask and read
    /// on the same event loop.
    void settle()
    {
        // Connections are welcomed in the order in which they were begun.
        QTcpSocket probe;
        probe.connectToHost(QHostAddress(QHostAddress::LocalHost), m_server.serverPort());
        ++m_probes;
        const auto isHere = [&] {
            return std::ranges::any_of(m_guests, [&](const auto &guest) {
                return guest->peerPort() == probe.localPort();
            });
        };
        if (!QTest::qWaitFor(isHere) || !QTest::qWaitFor([&] { return count() == connections(); }))
            qFatal("the test's web server does not come to rest");
    }

private:
    void welcome()
    {
        while (QTcpSocket *const socket = m_server.nextPendingConnection()) {
            m_guests.push_back(std::make_unique<WebVisit>(socket));
            WebVisit &visit = *m_guests.back();
            visit.receive([this, &visit] { serve(visit); });
        }
    }
    void serve(WebVisit &visit)
    {
        m_visits.push_back(&visit);
        const auto own = m_answers.find(visit.path());
        // A copy: an answer may say how the next request is answered.
        const Answer answer = own == m_answers.end() ? m_anyAnswer : own->second;
        if (answer)
            answer(visit);
    }

    QTcpServer m_server;
    std::map<QByteArray, Answer> m_answers;
    Answer m_anyAnswer;
    std::vector<std::unique_ptr<WebVisit>> m_guests;
    std::vector<WebVisit *> m_visits;
    std::size_t m_probes = 0;
};

/// The head of an answer: its status, like "200 OK", and lines of its own, each ended by "\r\n".
inline QByteArray webHead(const QByteArray &status, const QByteArray &lines = {})
{
    return "HTTP/1.1 " + status + "\r\nConnection: close\r\n" + lines + "\r\n";
}

/// A whole answer with the body's true length.
inline QByteArray webAnswer(const QByteArray &body, const QByteArray &status = "200 OK",
                            const QByteArray &lines = {})
{
    return webHead(status, lines + "Content-Length: " + QByteArray::number(body.size()) + "\r\n") +
           body;
}
