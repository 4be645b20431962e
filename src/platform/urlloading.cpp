#include "platform/urlloading.h"

#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>

namespace {

/// What is taken from the network ahead of its reader.
constexpr qint64 kReadAhead = 256 * 1024;

QNetworkRequest requestFor(const QUrl &url, std::chrono::milliseconds timeout)
{
    QNetworkRequest request(url);
    request.setRawHeader("User-Agent", "KyrMGUI2");
    // A small packed body can hold a huge one, and unpacking holds up the windows.
    request.setRawHeader("Accept-Encoding", "identity");
    request.setTransferTimeout(static_cast<int>(timeout.count()));
    return request;
}

/// Whether the toolkit takes the status of a complete answer for an error.
bool isRefusal(const QNetworkReply &reply)
{
    constexpr int firstRefusal = 400;
    if (reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() < firstRefusal)
        return false;
    switch (reply.error()) {
    case QNetworkReply::ContentAccessDenied:
    case QNetworkReply::ContentOperationNotPermittedError:
    case QNetworkReply::ContentNotFoundError:
    case QNetworkReply::AuthenticationRequiredError:
    case QNetworkReply::ContentConflictError:
    case QNetworkReply::ContentGoneError:
    case QNetworkReply::UnknownContentError:
    case QNetworkReply::ProtocolInvalidOperationError:
    case QNetworkReply::InternalServerError:
    case QNetworkReply::OperationNotImplementedError:
    case QNetworkReply::ServiceUnavailableError:
    case QNetworkReply::UnknownServerError:
        return true;
    default:
        return false;
    }
}

/// A request under way: tells its delegate, and goes with its reply.
class UrlConnection final : public QObject
{
public:
    UrlConnection(QNetworkReply &reply, UrlConnectionDelegate &delegate)
        : QObject(&reply), m_reply(reply), m_delegate(delegate)
    {
        connect(&reply, &QNetworkReply::metaDataChanged, this, &UrlConnection::responded);
        connect(&reply, &QNetworkReply::readyRead, this, &UrlConnection::take);
        connect(&reply, &QNetworkReply::finished, this, &UrlConnection::finished);
    }

private:
    void responded()
    {
        m_received = 0;
        const auto status = m_reply.attribute(QNetworkRequest::HttpStatusCodeAttribute);
        m_delegate.didReceiveResponse(status.toInt());
    }

    void take()
    {
        const QByteArray data = m_reply.readAll();
        m_received += static_cast<std::size_t>(data.size());
        if (m_received > UrlLoader::kMostBytes)
            return m_reply.abort(); // which comes to its end at once
        if (!data.isEmpty())
            m_delegate.didReceiveData({data.data(), static_cast<std::size_t>(data.size())});
    }

    void finished()
    {
        if (m_received <= UrlLoader::kMostBytes)
            take();
        if (m_received > UrlLoader::kMostBytes)
            return fail("the answer is too long");
        if (m_reply.error() != QNetworkReply::NoError && !isRefusal(m_reply))
            return fail(m_reply.errorString().toStdString());
        m_delegate.connectionDidFinishLoading();
    }

    void fail(const std::string &description)
    {
        m_delegate.didFailWithError({description, m_reply.url().toEncoded().toStdString()});
    }

    QNetworkReply &m_reply;
    UrlConnectionDelegate &m_delegate;
    std::size_t m_received = 0; ///< of this answer's body
};

/// Gathers an answer for fetch() and is gone after it.
class Gathering final : public QObject, public UrlConnectionDelegate
{
public:
    Gathering(QObject *parent, std::function<void(const UrlLoader::Content &)> done)
        : QObject(parent), m_done(std::move(done))
    {
    }

    void didReceiveResponse(int statusCode) override
    {
        constexpr int firstRefusal = 400;
        m_isRefused = statusCode >= firstRefusal;
        m_content.clear();
    }
    void didReceiveData(std::string_view data) override { m_content += data; }
    void didFailWithError(const UrlError & /*error*/) override { end({}); }
    void connectionDidFinishLoading() override
    {
        end(m_isRefused ? UrlLoader::Content() : std::move(m_content));
    }

private:
    void end(const UrlLoader::Content &content)
    {
        deleteLater();
        m_done(content);
    }

    std::function<void(const UrlLoader::Content &)> m_done;
    std::string m_content;
    bool m_isRefused = false;
};

} // namespace

UrlLoader::UrlLoader(std::chrono::milliseconds timeout) : m_timeout(timeout) {}

UrlLoader::~UrlLoader() = default;

bool UrlLoader::start(const std::string &url, UrlConnectionDelegate &delegate)
{
    return start(url, Cache::AsTheProtocol, delegate);
}

void UrlLoader::fetch(const std::string &url, const std::function<void(const Content &)> &done)
{
    auto *const gathering = new Gathering(this, done);
    if (!start(url, Cache::None, *gathering))
        gathering->didFailWithError({});
}

bool UrlLoader::start(const std::string &url, Cache cache, UrlConnectionDelegate &delegate)
{
    const QUrl address = QUrl::fromEncoded(QByteArray::fromStdString(url));
    if (address.scheme() != QLatin1String("http") || address.host().isEmpty())
        return false;
    QNetworkRequest request = requestFor(address, m_timeout);
    if (cache == Cache::None)
        request.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                             QNetworkRequest::AlwaysNetwork);
    if (!m_manager)
        m_manager = std::make_unique<QNetworkAccessManager>();
    QNetworkReply *const reply = m_manager->get(request);
    reply->setReadBufferSize(kReadAhead);
    new UrlConnection(*reply, delegate);
    ++m_running;
    connect(reply, &QNetworkReply::finished, this, &UrlLoader::ended);
    connect(reply, &QNetworkReply::finished, reply, &QObject::deleteLater);
    return true;
}

/// The manager would keep connections open, and a timer for them.
void UrlLoader::ended()
{
    if (--m_running > 0)
        return;
    m_manager->setParent(this);
    m_manager.release()->deleteLater(); // it is still telling of the end
}
