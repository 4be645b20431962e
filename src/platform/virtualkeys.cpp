#include "platform/virtualkeys.h"

#include <QtGui/QKeyEvent>

#include <algorithm>

namespace {

/// Fn has a number above those that X11 can deliver.
constexpr KeyCodeRow kRows[] = {
    {30, 0},    // A
    {31, 1},    // S
    {32, 2},    // D
    {33, 3},    // F
    {35, 4},    // H
    {34, 5},    // G
    {44, 6},    // Z
    {45, 7},    // X
    {46, 8},    // C
    {47, 9},    // V
    {86, 10},   // beside the left Shift
    {48, 11},   // B
    {16, 12},   // Q
    {17, 13},   // W
    {18, 14},   // E
    {19, 15},   // R
    {21, 16},   // Y
    {20, 17},   // T
    {2, 18},    // 1
    {3, 19},    // 2
    {4, 20},    // 3
    {5, 21},    // 4
    {7, 22},    // 6
    {6, 23},    // 5
    {13, 24},   // =
    {10, 25},   // 9
    {8, 26},    // 7
    {12, 27},   // -
    {9, 28},    // 8
    {11, 29},   // 0
    {27, 30},   // ]
    {24, 31},   // O
    {22, 32},   // U
    {26, 33},   // [
    {23, 34},   // I
    {25, 35},   // P
    {28, 36},   // Return
    {38, 37},   // L
    {36, 38},   // J
    {40, 39},   // '
    {37, 40},   // K
    {39, 41},   // ;
    {43, 42},   // backslash
    {51, 43},   // ,
    {53, 44},   // /
    {49, 45},   // N
    {50, 46},   // M
    {52, 47},   // .
    {15, 48},   // Tab
    {57, 49},   // Space
    {41, 50},   // `
    {14, 51},   // backspace
    {1, 53},    // Escape
    {126, 54},  // right Super
    {125, 55},  // left Super
    {42, 56},   // left Shift
    {58, 57},   // Caps Lock
    {56, 58},   // left Alt
    {29, 59},   // left Control
    {54, 60},   // right Shift
    {100, 61},  // right Alt
    {97, 62},   // right Control
    {464, 63},  // Fn
    {187, 64},  // F17
    {83, 65},   // keypad .
    {55, 67},   // keypad *
    {78, 69},   // keypad +
    {69, 71},   // Num Lock; Clear on a Mac
    {115, 72},  // volume up
    {114, 73},  // volume down
    {113, 74},  // mute
    {98, 75},   // keypad /
    {96, 76},   // keypad Enter
    {74, 78},   // keypad -
    {188, 79},  // F18
    {189, 80},  // F19
    {117, 81},  // keypad =
    {82, 82},   // keypad 0
    {79, 83},   // keypad 1
    {80, 84},   // keypad 2
    {81, 85},   // keypad 3
    {75, 86},   // keypad 4
    {76, 87},   // keypad 5
    {77, 88},   // keypad 6
    {71, 89},   // keypad 7
    {190, 90},  // F20
    {72, 91},   // keypad 8
    {73, 92},   // keypad 9
    {124, 93},  // yen
    {89, 94},   // Japanese underscore
    {121, 95},  // keypad ,
    {63, 96},   // F5
    {64, 97},   // F6
    {65, 98},   // F7
    {61, 99},   // F3
    {66, 100},  // F8
    {67, 101},  // F9
    {123, 102}, // Eisu
    {87, 103},  // F11
    {122, 104}, // Kana
    {183, 105}, // F13
    {186, 106}, // F16
    {184, 107}, // F14
    {68, 109},  // F10
    {127, 110}, // menu
    {88, 111},  // F12
    {185, 113}, // F15
    {110, 114}, // Insert; Help on a Mac
    {102, 115}, // Home
    {104, 116}, // Pageup
    {111, 117}, // Delete
    {62, 118},  // F4
    {107, 119}, // End
    {60, 120},  // F2
    {109, 121}, // Pagedown
    {59, 122},  // F1
    {105, 123}, // Left
    {106, 124}, // Right
    {108, 125}, // Down
    {103, 126}, // Up
};

#ifndef Q_OS_MACOS
/// Display servers count keys from here.
constexpr std::uint32_t kScanCodeOffset = 8;

std::optional<std::uint16_t> keyCodeAt(std::uint32_t scanCode)
{
    const auto *const row = std::ranges::find(kRows, scanCode, &KeyCodeRow::scanCode);
    if (row == std::end(kRows))
        return {};
    return row->keyCode;
}
#endif

} // namespace

std::span<const KeyCodeRow> keyCodeRows()
{
    return kRows;
}

std::optional<std::uint16_t> virtualKeyCode(const QKeyEvent &event)
{
#ifdef Q_OS_MACOS
    return static_cast<std::uint16_t>(event.nativeVirtualKey());
#else
    const std::uint32_t code = event.nativeScanCode();
    return code < kScanCodeOffset ? std::nullopt : keyCodeAt(code - kScanCodeOffset);
#endif
}
