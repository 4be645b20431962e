#pragma once

#include "platform/urlloading.h"
#include "support/webserver.h"

#include <QtCore/QEventLoop>
#include <QtTest/QTest>

/// Keeps what it is told of a request.
struct WebDelegate final : UrlConnectionDelegate
{
    void didReceiveResponse(int statusCode) override
    {
        statuses.push_back(statusCode);
        body.clear();
    }
    void didReceiveData(std::string_view data) override
    {
        body += data;
        told += data.size();
    }
    void didFailWithError(const UrlError &failure) override
    {
        error = failure;
        end();
    }
    void connectionDidFinishLoading() override { end(); }

    /// False when the end does not come in time. It is waited for on an event loop of its own:
    /// Qt Test's sleeps between its turns, and a long body takes many.
    bool waitForEnd()
    {
        QTimer::singleShot(std::chrono::seconds(30), &m_waiting, &QEventLoop::quit);
        if (ends == 0)
            m_waiting.exec();
        return ends > 0;
    }
    bool hasFinished() const { return ends == 1 && !error; }
    bool hasFailed() const { return ends == 1 && error && !error->description.empty(); }

    std::vector<int> statuses;
    std::string body;     ///< since the last response
    std::size_t told = 0; ///< bytes in all
    std::function<void()> atEnd;
    std::optional<UrlError> error;
    int ends = 0;

private:
    void end()
    {
        ++ends;
        m_waiting.quit();
        if (atEnd)
            atEnd();
    }

    QEventLoop m_waiting;
};

/// A web server, a loader that gives up after `timeout` of silence, and a delegate.
struct LoaderStage
{
    explicit LoaderStage(std::chrono::milliseconds timeout = std::chrono::seconds(60))
        : loader(std::make_unique<UrlLoader>(timeout))
    {
    }

    void start(const std::string &path = "/")
    {
        if (!loader->start(server.url(path), delegate))
            qFatal("the request does not start");
    }
    /// False when it has not come to its end in time.
    bool load(const std::string &path = "/")
    {
        start(path);
        return delegate.waitForEnd();
    }
    bool load(const std::string &path, const WebServer::Answer &answer)
    {
        server.answer(QByteArray::fromStdString(path), answer);
        return load(path);
    }
    /// The same, with an answer after which the connection is closed.
    bool loadAnswered(const QByteArray &answer)
    {
        server.answer("/", answer);
        return load();
    }
    /// Starts, and waits for the server to have the request.
    WebVisit &visit()
    {
        start();
        if (!QTest::qWaitFor([this] { return server.count() == 1; }))
            qFatal("the request does not arrive");
        return server.last();
    }

    WebServer server;
    WebDelegate delegate;
    std::unique_ptr<UrlLoader> loader;
};
