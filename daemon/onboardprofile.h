#pragma once

#include "model/settings.h"

#include <string>
#include <string_view>

/// A profile in the form in which it lies in the mouse's on-board memory: a property list of the
/// profile's number, its levels, its button codes and the macros that its buttons play.

/// The on-board form of a profile; `number` is 1-based.
std::string encodeProfile(const ProfileInfo &profile, unsigned number);

/// One line for logs and scripts: "profile N:" and KEY=VALUE for every integer key of a profile in
/// the settings file, each after a blank, the levels first, then BUTTON_1 to BUTTON_14:
///
///     profile 1: DPI_VALUE=2 DBCLICK_SPEED=10 ... LED_PULSATION=1 BUTTON_1=1 ... BUTTON_14=9
///
/// An empty memory, or bytes that are no on-board profile, show as profile 0 with all values 0.
std::string describeProfile(std::string_view onboardBytes);
