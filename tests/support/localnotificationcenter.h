#pragma once

#include "platform/notificationcenter.h"

#include <utility>
#include <vector>

/// A notification centre within the process: delivers to its own observers at once and keeps what
/// was posted.
class LocalNotificationCenter : public NotificationCenter
{
public:
    struct Posted
    {
        QString name;
        QString object;
        QVariantMap userInfo;
        bool operator==(const Posted &) const = default;
    };

    void post(const QString &name, const QString &object, const QVariantMap &userInfo) override
    {
        posted.push_back({name, object, userInfo});
        const auto observers = m_observers; // a handler may add or post
        for (const auto &observer : observers) {
            if (observer.name == name && observer.object == object)
                observer.handler(userInfo);
        }
    }

    void addObserver(const QString &name, const QString &object, Handler handler) override
    {
        m_observers.push_back({name, object, std::move(handler)});
    }

    std::vector<Posted> posted;

private:
    struct Observer
    {
        QString name;
        QString object;
        Handler handler;
    };
    std::vector<Observer> m_observers;
};
