#include "platform/urlconnection.h"

#include <QtNetwork/QSslSocket>

namespace {

constexpr int kMostRedirects = 20;
constexpr int kHttpPort = 80;
constexpr int kHttpsPort = 443;

/// What is taken from a connection at a time, so that the windows are never held up.
constexpr qint64 kAtATime = 64 << 10;

QUrl parsed(const std::string &url)
{
    return QUrl::fromEncoded(QByteArray::fromStdString(url));
}

bool isSecure(const QUrl &url)
{
    return url.scheme() == QLatin1String("https");
}

/// Where the host's name and port end and the path begins.
std::size_t pathAt(std::string_view url)
{
    constexpr std::string_view mark = "://";
    const std::size_t host = url.find(mark) + mark.size();
    return std::min(url.find_first_of("/?#", host), url.size());
}

/// The rest of the address as a request names it: as it was written, but for what cannot stand in a
/// line of ASCII.
QByteArray targetOf(std::string_view url)
{
    constexpr char del = 0x7F;
    std::string_view rest = url.substr(pathAt(url));
    rest = rest.substr(0, rest.find('#'));
    QByteArray target = rest.starts_with('/') ? "" : "/";
    for (const char c : rest) {
        if (c > ' ' && c < del)
            target += c;
        else
            target += '%' + QByteArray(1, c).toHex().toUpper();
    }
    return target;
}

QByteArray requestText(const std::string &url, bool isFresh)
{
    const QString host = parsed(url).authority(QUrl::FullyEncoded).section(u'@', -1);
    QByteArray text = "GET " + targetOf(url) + " HTTP/1.1\r\nHost: " + host.toLatin1() +
                      "\r\nUser-Agent: KyrMGUI2\r\nAccept: */*\r\n";
    // A small packed body can hold a huge one.
    text += "Accept-Encoding: identity\r\nConnection: close\r\n";
    if (isFresh)
        text += "Cache-Control: no-cache\r\nPragma: no-cache\r\n";
    return text + "\r\n";
}

} // namespace

bool UrlConnection::isAddress(const std::string &url)
{
    const QUrl address = parsed(url);
    return (address.scheme() == QLatin1String("http") || isSecure(address)) &&
           !address.host().isEmpty();
}

UrlConnection::UrlConnection(QObject *parent, Request request, UrlConnectionDelegate &delegate)
    : QObject(parent), m_request(std::move(request)), m_delegate(delegate)
{
    m_silence.setSingleShot(true);
    m_silence.setInterval(m_request.timeout);
    connect(&m_silence, &QTimer::timeout, this, [this] { fail("the host is silent"); });
    open(m_request.url);
}

UrlConnection::~UrlConnection()
{
    dropSocket();
}

void UrlConnection::open(const std::string &url)
{
    m_url = url;
    m_reader = {};
    m_silence.start();
    const QUrl address = parsed(url);
    if (isSecure(address))
        m_socket = std::make_unique<QSslSocket>();
    else
        m_socket = std::make_unique<QTcpSocket>();
    m_socket->setReadBufferSize(kAtATime);
    connect(m_socket.get(), &QIODevice::readyRead, this, &UrlConnection::take);
    connect(m_socket.get(), &QAbstractSocket::disconnected, this, &UrlConnection::closed);
    connect(m_socket.get(), &QAbstractSocket::errorOccurred, this, &UrlConnection::socketFailed);
    connectTo(address);
}

void UrlConnection::connectTo(const QUrl &address)
{
    if (auto *const secure = qobject_cast<QSslSocket *>(m_socket.get())) {
        connect(secure, &QSslSocket::encrypted, this, &UrlConnection::send);
        secure->connectToHostEncrypted(address.host(),
                                       static_cast<quint16>(address.port(kHttpsPort)));
    } else {
        connect(m_socket.get(), &QAbstractSocket::connected, this, &UrlConnection::send);
        m_socket->connectToHost(address.host(), static_cast<quint16>(address.port(kHttpPort)));
    }
}

void UrlConnection::send()
{
    m_silence.start();
    m_socket->write(requestText(m_url, m_request.isFresh));
}

void UrlConnection::take()
{
    m_silence.start();
    const QByteArray bytes = m_socket->read(kAtATime);
    std::string data;
    const auto state = m_reader.read({bytes.data(), static_cast<std::size_t>(bytes.size())}, data);
    act(state, data);
}

/// The host has said all that it will say.
void UrlConnection::closed()
{
    while (m_socket && m_socket->bytesAvailable() > 0)
        take();
    if (m_socket)
        act(m_reader.close(), {});
}

void UrlConnection::socketFailed(QAbstractSocket::SocketError error)
{
    // That is how some answers end; the socket is disconnected then.
    if (error != QAbstractSocket::RemoteHostClosedError)
        fail(m_socket->errorString().toStdString());
}

void UrlConnection::act(HttpReader::State state, const std::string &data)
{
    switch (state) {
    case HttpReader::State::Head:
        return;
    case HttpReader::State::Broken:
        return fail("the answer is broken or cut off");
    case HttpReader::State::Body:
    case HttpReader::State::Ended:
        break;
    }
    if (isRedirect())
        return redirect();
    deliver(data);
    if (m_received > UrlLoader::kMostBytes)
        return fail("the answer is too long");
    if (state == HttpReader::State::Ended)
        finish();
}

void UrlConnection::deliver(const std::string &data)
{
    if (!m_hasResponded) {
        m_hasResponded = true;
        m_delegate.didReceiveResponse(m_reader.head().status);
    }
    m_received += data.size();
    if (!data.empty() && m_received <= UrlLoader::kMostBytes)
        m_delegate.didReceiveData(data);
}

bool UrlConnection::isRedirect() const
{
    switch (m_reader.head().status) {
    case 301: // moved permanently
    case 302: // found
    case 303: // see other
    case 307: // temporary redirect
    case 308: // permanent redirect
        return !m_reader.head().location.empty();
    default:
        return false;
    }
}

void UrlConnection::redirect()
{
    const QUrl there = parsed(m_reader.head().location);
    const std::string url = parsed(m_url).resolved(there).toEncoded().toStdString();
    if (!isAddress(url))
        return fail("redirected to no address of the web");
    if (++m_redirects > kMostRedirects)
        return fail("redirected too often");
    dropSocket();
    open(url);
}

/// It may be what calls: it goes later.
void UrlConnection::dropSocket()
{
    if (!m_socket)
        return;
    m_socket->disconnect(this);
    m_socket->abort();
    m_socket->setParent(this);
    m_socket.release()->deleteLater();
}

void UrlConnection::finish()
{
    m_silence.stop();
    dropSocket();
    deleteLater();
    m_delegate.connectionDidFinishLoading();
}

void UrlConnection::fail(const std::string &description)
{
    m_silence.stop();
    dropSocket();
    deleteLater();
    m_delegate.didFailWithError({description, m_url});
}
