"""Keys as macros hold them, told without the programs: what every key of the keyboard gives, how a
list of events is written in the settings file, and how it reads as text."""

import re

from stage import ROOT

PRESS, RELEASE = 1, 2
DELAY_UNIT = 50  # milliseconds
MOST_EVENTS = 300
INSERT, CAPS_LOCK = 114, 57
ENTER_TAP = "36,1,0,36,2,0,"
SCAN_CODE_OFFSET = 8  # the display counts keys from here
LAST_SCAN_CODE = 255

NAMES = {
    0: "A", 1: "S", 2: "D", 3: "F", 4: "H", 5: "G", 6: "Z", 7: "X", 8: "C", 9: "V", 11: "B",
    12: "Q", 13: "W", 14: "E", 15: "R", 16: "Y", 17: "T", 18: "1", 19: "2", 20: "3", 21: "4",
    22: "6", 23: "5", 24: "=", 25: "9", 26: "7", 27: "-", 28: "8", 29: "0", 30: "]", 31: "O",
    32: "U", 33: "[", 34: "I", 35: "P", 36: "Enter", 37: "L", 38: "J", 39: "'", 40: "K", 41: ";",
    42: "\\", 43: ",", 44: "/", 45: "N", 46: "M", 47: ".", 48: "Tab", 49: "Space", 50: "`",
    51: "Delete", 53: "ESC", 54: "Command", 55: "Command", 56: "Shift", 57: "Capslock", 58: "Alt",
    59: "Control", 60: "Shift", 61: "Alt", 62: "Control", 63: "Fn", 64: "F17", 65: "(.)",
    67: "(*)", 69: "(+)", 71: "clear", 75: "(/)", 78: "(-)", 79: "F18", 80: "F19", 81: "(=)",
    82: "(0)", 83: "(1)", 84: "(2)", 85: "(3)", 86: "(4)", 87: "(5)", 88: "(6)", 89: "(7)",
    91: "(8)", 92: "(9)", 96: "F5", 97: "F6", 98: "F7", 99: "F3", 100: "F8", 101: "F9", 103: "F11",
    105: "F13", 106: "F16", 107: "F14", 109: "F10", 113: "F15", 114: "Ins", 115: "Home",
    116: "Pageup", 117: "Del", 118: "F4", 119: "End", 120: "F2", 121: "Pagedown", 122: "F1",
    123: "Left", 124: "Right", 125: "Down", 126: "Up"}
MARKS = {PRESS: "|", RELEASE: "^"}


def key_codes():
    """The virtual key code of each key of the display that has one, by the display's number."""
    table = (ROOT / "src/platform/virtualkeys.cpp").read_text()
    rows = re.findall(r"^ +\{(\d+), (\d+)\},", table, re.MULTILINE)
    codes = {SCAN_CODE_OFFSET + int(scan): int(key) for scan, key in rows}
    return {scan: key for scan, key in codes.items() if scan <= LAST_SCAN_CODE}


def tap(key):
    """What pressing and releasing a key adds to a list."""
    return [(key, PRESS)] if key == INSERT else [(key, PRESS), (key, RELEASE)]


def taps(*keys):
    return [event for key in keys for event in tap(key)]


def chord(*keys):
    """What keys held down together add, released as they were pressed."""
    return [(key, kind) for kind in (PRESS, RELEASE) for key in keys]


def text_of(events):
    """With the marks of presses and releases, without delays."""
    return "".join(NAMES.get(key, "") + MARKS[kind] for key, kind in events)


def stored_events(text):
    """The (key, kind, delay) of each event in the settings file's text."""
    numbers = [int(number) for number in text.split(",") if number]
    return list(zip(*[iter(numbers)] * 3, strict=True))


def without_delays(events):
    return [(key, kind) for key, kind, _ in events]
