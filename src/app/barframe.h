#pragma once

#include "platform/uprect.h"

/// The sides of the main window from which a bar slides out.
enum class BarSide { Left, Right, Bottom };

/// What a shut bar shows of itself, in points: the handle that opens it.
inline constexpr int kBarHandle = 16;

/// How far a bar reaches out of the main window when it is open, in points. Left and right differ
/// on purpose.
constexpr int barReach(BarSide side)
{
    switch (side) {
    case BarSide::Left:
        return 202;
    case BarSide::Right:
        return 200;
    case BarSide::Bottom:
        break;
    }
    return 101;
}

/// Where a bar lies, on the screen: flush with its side of the main window and centred along it,
/// as far out as `openShare` says (0 = shut, 1 = open; values outside are taken as the nearer of
/// the two). `bar` is where the bar lies now: its extent along the side is kept.
UpRect barFrame(BarSide side, UpRect main, UpRect bar, double openShare);
