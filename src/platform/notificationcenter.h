#pragma once

#include <QtCore/QVariantMap>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

/// Distributed notifications: messages to every process of the session that observes the same name
/// and object. Fire and forget, no answer and no error. Handlers run on the user-interface thread,
/// from the event loop.
class NotificationCenter
{
public:
    using Handler = std::function<void(const QVariantMap &userInfo)>;

    NotificationCenter() = default;
    virtual ~NotificationCenter() = default;
    NotificationCenter(const NotificationCenter &) = delete;
    NotificationCenter &operator=(const NotificationCenter &) = delete;

    /// Sends the message; it has left the process when the call returns. Without a bus it goes
    /// nowhere.
    virtual void post(const QString &name, const QString &object, const QVariantMap &userInfo) = 0;
    /// Calls `handler` for every message posted under exactly this name and object, as long as
    /// the centre lives.
    virtual void addObserver(const QString &name, const QString &object, Handler handler) = 0;

    /// The platform's own centre (D-Bus signals on the session bus).
    static std::unique_ptr<NotificationCenter> distributed();
};

/// The integer under `key`, of any integer type, cut to its low 32 bits. Nothing when the key is
/// missing or holds anything else.
std::optional<std::int32_t> integerValue(const QVariantMap &userInfo, const QString &key);
