#include "daemon/driverprocess.h"

#include "daemon/onboardprofile.h"
#include "daemon/virtualmouse.h"
#include "platform/notificationcenter.h"
#include "platform/systemlog.h"

namespace {

constexpr std::int32_t kFirmwareVersion = 0x0102;

QString text(const char *ascii)
{
    return QString::fromLatin1(ascii);
}

const char *explain(ConfigRead failure)
{
    switch (failure) {
    case ConfigRead::Missing:
        return "is missing";
    case ConfigRead::NotPropertyList:
        return "is not a property list";
    case ConfigRead::Unreadable:
    case ConfigRead::Ok:
        break;
    }
    return "cannot be read";
}

/// PROFILE_ID as the record's accessor bounds it, 1-based.
unsigned currentProfileNumber()
{
    return m_Config.PROFILE_ID < kProfileCount ? m_Config.PROFILE_ID + 1 : 1;
}

} // namespace

DriverProcess::DriverProcess(NotificationCenter &center, VirtualMouse &mouse)
    : m_center(center),
      m_mouse(mouse),
      m_write(mouse.memory(), [this](int percent) { reportProgress(percent); })
{
    m_center.addObserver(text(driver::kNotificationName), text(driver::kSettingChange),
                         [this](const QVariantMap &request) { receive(request); });
}

void DriverProcess::receive(const QVariantMap &request)
{
    using driver::RequestType;
    const auto type = integerValue(request, text(driver::kTypeKey));
    if (!type) {
        systemLog("a request without an integer %s is ignored", driver::kTypeKey);
        return;
    }
    switch (static_cast<RequestType>(*type)) {
    case RequestType::TakeSettings:
        return takeSettings();
    case RequestType::SetPollingRate:
        return set(request, driver::kPollingRateKey, &VirtualMouse::setPollingRate);
    case RequestType::ReportFirmware:
        return report(driver::kFirmwareReport, kFirmwareVersion);
    case RequestType::ReportLiftDistance:
        return report(driver::kLiftDistanceReport, m_mouse.state().liftDistance);
    case RequestType::SetLiftDistance:
        return set(request, driver::kSetLiftDistanceKey, &VirtualMouse::setLiftDistance);
    }
    systemLog("a request of unknown type %d is ignored", *type);
}

void DriverProcess::takeSettings()
{
    const ConfigRead result = m_config.ReadConfigFile();
    if (result != ConfigRead::Ok) {
        systemLog("%s %s: the mouse stays as it is", pConfigFileName.c_str(), explain(result));
        return;
    }
    m_numberWritten = currentProfileNumber();
    std::string bytes = encodeProfile(CurrentProfile(), m_numberWritten);
    systemLog("%s", describeProfile(bytes).c_str());
    m_mouse.setActiveProfile(static_cast<std::int32_t>(m_numberWritten));
    m_write.start(std::move(bytes));
}

void DriverProcess::set(const QVariantMap &request, const char *key, Setter setter)
{
    const auto value = integerValue(request, text(key));
    if (!value) {
        systemLog("a request of type %d without an integer %s is ignored",
                  integerValue(request, text(driver::kTypeKey)).value_or(0), key);
        return;
    }
    const bool taken = (m_mouse.*setter)(*value);
    systemLog(taken ? "%s is now %d" : "%s %d is out of range and ignored", key, *value);
}

std::int32_t DriverProcess::pressProfileButton()
{
    setActiveProfile(m_mouse.nextProfile());
    return m_mouse.state().activeProfile;
}

bool DriverProcess::setActiveProfile(std::int32_t number)
{
    if (!m_mouse.setActiveProfile(number))
        return false;
    systemLog("the active profile is now %d", number);
    report(driver::kProfileReport, number);
    return true;
}

std::string DriverProcess::describe() const
{
    return m_mouse.description();
}

void DriverProcess::report(const driver::Report &report, std::int32_t value)
{
    m_center.post(text(driver::kNotificationName), text(report.object),
                  {{text(report.key), value}});
}

void DriverProcess::reportProgress(int percent)
{
    constexpr int done = 100;
    if (percent == done)
        systemLog("profile %u is on board", m_numberWritten);
    report(driver::kProgressReport, percent);
}
