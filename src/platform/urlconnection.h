#pragma once

#include "platform/httpreader.h"
#include "platform/urlloading.h"

#include <QtCore/QTimer>
#include <QtCore/QUrl>
#include <QtNetwork/QTcpSocket>

#include <memory>

/// A request under way. It deletes itself when it has told its delegate how it ended.
class UrlConnection : public QObject
{
public:
    struct Request
    {
        std::string url;
        bool isFresh; ///< no cache on the way may answer
        std::chrono::milliseconds timeout;
    };

    UrlConnection(QObject *parent, Request request, UrlConnectionDelegate &delegate);
    ~UrlConnection() override;

    /// Whether a request can be made of the text: an address of the web with a host.
    static bool isAddress(const std::string &url);

private:
    void open(const std::string &url);
    void connectTo(const QUrl &address);
    void send();
    void take();
    void closed();
    void socketFailed(QAbstractSocket::SocketError error);
    void act(HttpReader::State state, const std::string &data);
    void deliver(const std::string &data);
    bool isRedirect() const;
    void redirect();
    void dropSocket();
    void finish();
    void fail(const std::string &description);

    const Request m_request;
    UrlConnectionDelegate &m_delegate;
    std::string m_url; ///< of the request, or what it was redirected to
    std::unique_ptr<QTcpSocket> m_socket;
    QTimer m_silence;
    HttpReader m_reader;
    bool m_hasResponded = false;
    std::size_t m_received = 0; ///< of the body
    int m_redirects = 0;
};
