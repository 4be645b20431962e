#include "driver/driverlink.h"

#include "platform/notificationcenter.h"

namespace driver {

namespace {

QString text(const char *ascii)
{
    return QString::fromLatin1(ascii);
}

} // namespace

void DriverLink::request(RequestType type)
{
    m_center.post(text(kNotificationName), text(kSettingChange),
                  {{text(kTypeKey), static_cast<std::int32_t>(type)}});
}

void DriverLink::request(RequestType type, const char *key, std::int32_t value)
{
    m_center.post(text(kNotificationName), text(kSettingChange),
                  {{text(kTypeKey), static_cast<std::int32_t>(type)}, {text(key), value}});
}

void DriverLink::observe(const Report &report, std::function<void(std::int32_t)> receiver)
{
    m_center.addObserver(
        text(kNotificationName), text(report.object),
        [key = text(report.key), receiver = std::move(receiver)](const QVariantMap &userInfo) {
            if (const auto value = integerValue(userInfo, key))
                receiver(*value);
        });
}

} // namespace driver
