#pragma once

#include "daemon/onboardwrite.h"
#include "driver/driverprotocol.h"
#include "model/xmlconfig.h"

#include <QtCore/QVariantMap>

class NotificationCenter;
class VirtualMouse;

/// The driver's end of the link to the settings utility: takes requests, moves the mouse and posts
/// reports. What a request does is said in one log line, and so is why one is ignored:
///
///     profile 1: DPI_VALUE=2 ... BUTTON_14=9      the settings taken, see describeProfile()
///     profile 1 is on board                       the write that followed is done
///     PATH is missing: the mouse stays as it is   or "cannot be read", "is not a property list"
///     PollingRate is now 2
///     SetLiftDistance is now 0
///     PollingRate 9 is out of range and ignored
///     a request of type 2 without an integer PollingRate is ignored
///     a request of unknown type 5 is ignored
///     a request without an integer Kt7R4SettingChangeType is ignored
///     the active profile is now 2
class DriverProcess
{
public:
    /// Observes requests from now on; `center` and `mouse` must outlive it. The store's settings
    /// file (xmlconfig::setConfigfileName()) is read when a request says so, into m_Config.
    DriverProcess(NotificationCenter &center, VirtualMouse &mouse);

    /// The profile button: goes to the next profile and reports it. The new number, 1..10.
    std::int32_t pressProfileButton();
    /// Makes a profile the active one and reports it. False for a number outside 1..10.
    bool setActiveProfile(std::int32_t number);
    /// See VirtualMouse::description().
    std::string describe() const;

private:
    using Setter = bool (VirtualMouse::*)(std::int32_t value);

    void receive(const QVariantMap &request);
    void takeSettings();
    void set(const QVariantMap &request, const char *key, Setter setter);
    void report(const driver::Report &report, std::int32_t value);
    void reportProgress(int percent);

    NotificationCenter &m_center;
    VirtualMouse &m_mouse;
    xmlconfig m_config;
    OnboardWrite m_write;
    unsigned m_numberWritten = 0; ///< of the profile being written, 1-based
};
