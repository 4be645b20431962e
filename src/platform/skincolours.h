#pragma once

#include <QtGui/QColor>

/// The colours of the skin that is drawn by code: menus, pop-ups, scroll bars, frames of fields,
/// and what the toolkit draws by itself.

/// The letters, and the line that shows where the keyboard is.
inline constexpr QColor kGold(255, 180, 0);
inline constexpr QColor kWhite(255, 255, 255);
/// Letters that only inform: to be read, but without a call.
inline constexpr QColor kPale(222, 198, 150);
/// Letters of what is disabled.
inline constexpr QColor kFaint(150, 148, 142);

/// Gold trims, from the shade to the light.
inline constexpr QColor kGoldDeep(90, 68, 32);
inline constexpr QColor kGoldDark(107, 81, 39);
inline constexpr QColor kGoldMiddle(150, 116, 60);
inline constexpr QColor kGoldLight(201, 162, 92);
inline constexpr QColor kGoldBright(240, 207, 134);

/// The ground under text that cannot be changed: black letters stand on it.
inline constexpr QColor kPaperGrey(170, 170, 170);

/// Forged metal, from the gap around a part to its lit edge.
inline constexpr QColor kRim(5, 5, 6);
inline constexpr QColor kMetalRecess(11, 12, 14);
inline constexpr QColor kMetalDark(20, 22, 25);
inline constexpr QColor kMetal(30, 32, 36);
inline constexpr QColor kMetalRaised(42, 44, 48);
/// The light from above on a part's upper edge.
inline constexpr QColor kBevel(222, 232, 240, 28);

/// The light from within, from where it is bright to where it fades.
inline constexpr QColor kMoonBody(111, 216, 198);
inline constexpr QColor kMoonDeep(15, 77, 72);
inline constexpr QColor kMoonDark(7, 39, 36);
