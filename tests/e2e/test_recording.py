"""Keys recorded in the macro editor from a real keyboard: what comes to it, what the settings file
holds of them, and who has the keyboard before and after."""

import time
import unittest

from macroeditor import EDITOR, EVENTS
from macrokeys import (CAPS_LOCK, MARKS, MOST_EVENTS, NAMES, PRESS, RELEASE, chord, key_codes, tap,
                       taps, text_of)
from macrotests import Recording

# The display's name of a key where it is another than ours; the others are ours in small letters or
# as they are.
DISPLAY_NAMES = {"Enter": "Return", "Space": "space", "ESC": "Escape", "Pageup": "Prior",
                 "Pagedown": "Next", "Delete": "BackSpace", "Ins": "Insert", "Del": "Delete",
                 "Capslock": "Caps_Lock", "=": "equal", "-": "minus", "]": "bracketright",
                 "[": "bracketleft", "'": "apostrophe", ";": "semicolon", "\\": "backslash",
                 ",": "comma", "/": "slash", ".": "period", "`": "grave", "clear": "Num_Lock",
                 "(*)": "KP_Multiply", "(+)": "KP_Add", "(-)": "KP_Subtract", "(/)": "KP_Divide"}
MODIFIERS = {"Super_L": 55, "Shift_L": 56, "Alt_L": 58, "Control_L": 59}
MODIFIER_NAMES = {NAMES[code] for code in MODIFIERS.values()}
NO_DISPLAY_NAMES = MODIFIER_NAMES | {"Fn", "(.)", "(=)"} | {f"F{key}" for key in range(13, 20)} | {
    f"({digit})" for digit in range(10)}
A, B, C, E, TAB, COMMAND, SHIFT, ALT, CONTROL, OTHER_SHIFT, F4, LEFT = (
    0, 11, 8, 14, 48, 55, 56, 58, 59, 60, 118, 123)
RIGHT_SHIFT = 62  # by the display's number: with the name the tool would hold the left one too
# Of the display, without a virtual key code: Print, Pause and Scroll Lock.
UNKNOWN_KEYS = 107, 127, 78
HELD_SECONDS = 1.2
BURST = 2500  # times two keys
BURST_EVENTS = 4 * BURST
OTHER_TITLE = "Event Tester"


def keys_by_name():
    """The virtual key code of each key that the display has a name for."""
    keys = {DISPLAY_NAMES.get(name, name.lower() if len(name) == 1 else name): code
            for code, name in NAMES.items() if name not in NO_DISPLAY_NAMES}
    return keys | MODIFIERS


class Keys(Recording):
    def test_every_key_of_the_keyboard_is_recorded(self):
        keys = key_codes()
        events = taps(*keys.values())
        self.assertTrue(len(keys) > 100 and len(events) <= MOST_EVENTS)
        # Where a number is a key's name as well, the tool takes the name.
        self.editor.record("Escape" if scan == 9 else scan for scan in keys)
        self.assert_recorded(events)

    def test_every_key_has_the_code_of_its_name(self):
        keys = keys_by_name()
        self.assertGreater(len(keys), 80)
        self.editor.record(keys)
        self.assert_recorded(taps(*keys.values()))

    def test_a_key_without_a_code_is_ignored(self):
        self.assertFalse(key_codes().keys() & set(UNKNOWN_KEYS))
        self.editor.record(["a", *UNKNOWN_KEYS, "b"])
        self.assert_recorded(taps(A, B))
        for key in UNKNOWN_KEYS:
            line = f"no virtual key code for scan code {key}"
            self.assertEqual(self.utility.lines().count(line), 1)

    def test_caps_lock_is_a_whole_tap_each_time(self):
        self.editor.record(["Caps_Lock"] * 3)
        self.assert_recorded(3 * tap(CAPS_LOCK))


class HeldKeys(Recording):
    def hold(self, key):
        self.stage.output("xdotool", "keydown", key)
        time.sleep(HELD_SECONDS)  # by which the display repeats it
        self.stage.output("xdotool", "keyup", key)

    def repeats(self, key):
        return self.utility.lines().count(f"Get Keydown Event:keycode:{key:x},type:a")

    def test_a_held_key_is_one_press_and_one_release(self):
        self.hold("c")
        self.stage.output("xdotool", "keydown", "Shift_L")
        self.hold("a")
        self.stage.output("xdotool", "keyup", "Shift_L")
        self.assert_recorded([*tap(C), (SHIFT, PRESS), *tap(A), (SHIFT, RELEASE)])
        for key in C, A:
            self.assertGreater(self.repeats(key), 5)

    def test_both_shifts_are_one_modifier(self):
        for action in "keydown", "keyup":
            for key in "Shift_L", RIGHT_SHIFT:
                self.stage.output("xdotool", action, str(key))
        # The left one was released while the right one was still held.
        self.assert_recorded([(SHIFT, PRESS), (OTHER_SHIFT, PRESS), (SHIFT, PRESS),
                              (OTHER_SHIFT, RELEASE)])

    def test_a_burst_fills_the_list_and_no_more(self):
        self.stage.output("xdotool", "key", "--delay", "0", "--repeat", str(BURST), "a", "b")
        self.assertEqual(len(self.saved_events()), MOST_EVENTS)
        lines = self.utility.lines()
        heard = [line for line in lines if line.startswith(("Get Keydown", "Get keyUp"))]
        self.assertEqual(len(heard), BURST_EVENTS)
        self.assertIn(text_of(taps(A, B) * (MOST_EVENTS // 4)), lines)


class Keyboard(Recording):
    def other_window(self):
        """A program that says which keys it gets."""
        other = self.stage.start("xev", "-event", "keyboard")
        self.stage.wait_for_active(OTHER_TITLE)
        return other, self.stage.window(OTHER_TITLE)

    def give_keyboard_to(self, window):
        self.stage.output("xdotool", "windowfocus", "--sync", window)
        self.editor.wait_for_keyboard(EVENTS, held=False)

    def test_the_keys_of_the_desktop_and_of_dialogs_are_recorded(self):
        chords = {"alt+Tab": (ALT, TAB), "alt+F4": (ALT, F4), "Escape": (53,), "Tab": (TAB,),
                  "shift+Tab": (SHIFT, TAB), "Return": (36,), "space": (49,), "super": (COMMAND,),
                  "super+e": (COMMAND, E), "ctrl+alt+Left": (CONTROL, ALT, LEFT)}
        events = [event for keys in chords.values() for event in chord(*keys)]
        self.editor.record(chords)
        self.wait_for_events(events)
        self.assertEqual(self.stage.active_title(), EDITOR)
        self.assertTrue(self.editor.has_keyboard(EVENTS))
        self.assert_recorded(events)

    def test_after_a_click_on_the_background_the_desktop_has_its_keys_back(self):
        untouched = self.file_state()
        self.editor.record("a")
        self.editor.click_background()
        self.stage.key("b")
        self.stage.key("alt+F4")
        self.stage.wait_for_no_window(EDITOR)
        self.utility.wait_for_line("MacroCancelAction")
        self.assertNotIn(text_of(taps(A, B)), self.utility.lines())
        self.assert_untouched(untouched)

    def test_a_key_released_in_another_window_is_not_held_any_more(self):
        other, window = self.other_window()
        self.editor.take_keyboard()
        self.stage.output("xdotool", "keydown", "Shift_L")
        self.wait_for_events([(SHIFT, PRESS)])
        self.give_keyboard_to(window)
        self.stage.output("xdotool", "keyup", "Shift_L", "key", "alt", "key", "b")
        for key in "Shift_L", "b":
            other.wait_for_line(f", {key})")
        self.assertNotIn(NAMES[B] + MARKS[PRESS], "".join(self.utility.lines()))
        self.editor.click_background()
        self.editor.take_keyboard()
        self.editor.record([RIGHT_SHIFT, "a"])
        self.assert_recorded(taps(OTHER_SHIFT, A))


if __name__ == "__main__":
    unittest.main(verbosity=2)
