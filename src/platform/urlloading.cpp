#include "platform/urlloading.h"

#include "platform/urlconnection.h"

namespace {

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

bool UrlLoader::start(const std::string &url, UrlConnectionDelegate &delegate)
{
    return start(url, false, delegate);
}

void UrlLoader::fetch(const std::string &url, const std::function<void(const Content &)> &done)
{
    auto *const gathering = new Gathering(this, done);
    if (!start(url, true, *gathering))
        gathering->didFailWithError({});
}

bool UrlLoader::start(const std::string &url, bool isFresh, UrlConnectionDelegate &delegate)
{
    if (!UrlConnection::isAddress(url))
        return false;
    new UrlConnection(this, {url, isFresh, m_timeout}, delegate);
    return true;
}
