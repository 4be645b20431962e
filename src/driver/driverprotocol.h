#pragma once

#include <cstdint>

/// The messages between the utility and the driver process, as both programs use them. Every
/// message has the same notification name; its kind stands in the object.
namespace driver {

inline constexpr char kNotificationName[] = "QuarnsetKt7R4";

/// Requests, utility to driver process: one object, told apart by an integer under kTypeKey.
inline constexpr char kSettingChange[] = "Kt7R4SettingChange";
inline constexpr char kTypeKey[] = "Kt7R4SettingChangeType";

enum class RequestType : std::int32_t {
    TakeSettings = 0,        ///< the settings file has just been rewritten
    SetPollingRate = 2,      ///< kPollingRateKey: 1 = 1000 Hz, 2 = 500 Hz, 3 = 250 Hz
    ReportFirmware = 9,      ///< answered with kFirmwareReport
    ReportLiftDistance = 11, ///< answered with kLiftDistanceReport
    SetLiftDistance = 12,    ///< kSetLiftDistanceKey: 0 = lowest, 1 = lower, 2 = default
};

inline constexpr char kPollingRateKey[] = "PollingRate";
inline constexpr char kSetLiftDistanceKey[] = "SetLiftDistance";

/// A report, driver process to utility: its object and the key of its one integer.
struct Report
{
    const char *object;
    const char *key;
};

/// The profile now active in the mouse, 1..10.
inline constexpr Report kProfileReport{"Kt7R4ProfileChange", "ProfileNumber"};
/// Progress of the on-board write, 0..100 per cent.
inline constexpr Report kProgressReport{"Kt7R4WriteToDeviceChange", "PosNumber"};
/// The firmware version number.
inline constexpr Report kFirmwareReport{"Kt7R4DeviceFWVersion", "Kt7R4FWNumber"};
/// The lift distance code 0..2; object and key are the same text.
inline constexpr Report kLiftDistanceReport{"Kt7R4LiftDistance", "Kt7R4LiftDistance"};

} // namespace driver
