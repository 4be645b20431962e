#pragma once

#include "driver/driverprotocol.h"

#include <functional>

class NotificationCenter;

namespace driver {

/// The utility's end of the link: posts requests and hands out the integers of reports. Nothing is
/// answered, repeated or timed out; without a driver process requests go nowhere.
class DriverLink
{
public:
    /// `center` must outlive the link.
    explicit DriverLink(NotificationCenter &center) : m_center(center) {}

    void request(RequestType type);
    /// A request with one further integer.
    void request(RequestType type, const char *key, std::int32_t value);
    /// Calls `receiver` with the integer of every such report. A report without its key, or with
    /// something else than an integer under it, is ignored.
    void observe(const Report &report, std::function<void(std::int32_t)> receiver);

private:
    NotificationCenter &m_center;
};

} // namespace driver
