#pragma once

#include "model/settings.h"

#include <QtCore/QString>

#include <span>

/// What a delay counts, in milliseconds.
inline constexpr std::uint32_t kDelayUnit = 50;

/// How many events a macro's list has, and each of its two short ones for the start and the send
/// key.
inline constexpr std::uint32_t kMostMacroEvents = 300;
inline constexpr std::uint32_t kMostKeyEvents = 2;

/// Signs of the text form, for which arrows are drawn.
inline constexpr QChar kPressSign = u'|';
inline constexpr QChar kReleaseSign = u'^';

/// What the text form of events shows beside the keys' names.
struct EventTextStyle
{
    bool showsDelays = true;
    bool showsUpAndDown = true; ///< without, only presses are named
};

/// The events as one line of text: each one's key, kind and delay.
QString eventText(std::span<const KeymapEvent> events, EventTextStyle style);
