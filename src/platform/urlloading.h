#pragma once

#include <QtCore/QObject>

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

struct UrlError
{
    std::string description; ///< for the reader of a log
    std::string failingUrl;  ///< the address that failed, after redirects
};

/// Is told how a request fares, on the user-interface thread.
class UrlConnectionDelegate
{
public:
    /// The head of an answer has come: any data before it belonged to another one.
    virtual void didReceiveResponse(int statusCode) = 0;
    virtual void didReceiveData(std::string_view data) = 0;
    /// One of these two ends the request. An answer that refuses what was asked for, like "404",
    /// finishes like any other.
    virtual void didFailWithError(const UrlError &error) = 0;
    virtual void connectionDidFinishLoading() = 0;

protected:
    ~UrlConnectionDelegate() = default;
};

/// Loads from addresses of the web, any number of requests at a time, each over a connection of its
/// own. Redirects are followed, also to a secure connection.
///
/// The toolkit's own loader is not used, because anyone can answer a plain request: one whose head
/// never ends holds that up for seconds and its thread for good, a redirect to a silent host for as
/// long as the host likes, and it writes addresses in another way than they were given.
class UrlLoader : public QObject
{
public:
    /// A longer body fails its request.
    static constexpr std::size_t kMostBytes = 8U << 20U;

    /// A request fails when nothing comes for `timeout`. The end of the loader ends what is under
    /// way; nobody is told.
    explicit UrlLoader(std::chrono::milliseconds timeout) : m_timeout(timeout) {}

    /// Starts a request; its delegate outlives it or the loader. False, and nobody is told
    /// anything, when the text is no address of the web.
    bool start(const std::string &url, UrlConnectionDelegate &delegate);

    /// The whole content at an address, from its server and not from a cache between; nothing when
    /// it cannot be had, or the server refuses it.
    using Content = std::optional<std::string>;
    /// Fetches a content and calls `done` with it; at once when the text is no address of the web.
    void fetch(const std::string &url, const std::function<void(const Content &)> &done);

private:
    bool start(const std::string &url, bool isFresh, UrlConnectionDelegate &delegate);

    const std::chrono::milliseconds m_timeout;
};
