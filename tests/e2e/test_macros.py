"""Macros made, edited, put on a button and deleted by a player: after Apply the whole settings file
is compared with what it must hold."""

import signal
import time
import unittest
from itertools import pairwise

from closewindow import close_window
from macroeditor import (COPY_PASTE, EDITOR, NAME, PASTED, RECORD_DELAY, START_KEY, TEXT,
                         DeletionWarning, click_list_button, edit_macro, new_macro)
from macrokeys import DELAY_UNIT, ENTER_TAP, stored_events, taps, without_delays
from macrotests import FIRST_MACRO_CODE, KEPT_MACROS, MacroList
from sidepanels import MACROS
from stage import MAIN_TITLE, wait_for

PAUSES = 0.12, 1.0, 0.3, 0  # seconds, after each event
A, B, TAB = 0, 11, 48
FREE_SLOT = KEPT_MACROS + 1
NEW_MACRO = {"MACRO_NAME": "Custom", "MODE": 1, "MACRO_LOOP": 1, "bSTARTKEY": 1, "bSENDKEY": 1,
             "bLOOP": 0, "COPY_PASTER": "", "KEYMAP": "", "STARTKEY": ENTER_TAP,
             "SENDKEY": ENTER_TAP}
# What an event macro that is stored again has in the fields that the editor does not show.
NOT_SHOWN = {"COPY_PASTER": "", "STARTKEY": ENTER_TAP, "SENDKEY": ENTER_TAP}


def units(seconds):
    """As a delay counts them; the display's clock has no parts of a millisecond."""
    return round(1000 * seconds) // DELAY_UNIT


class MacroJobs(MacroList):
    def drop_on_button(self, row, button):
        before = self.utility.lines().count("DragDropButtonAction")
        self.panels.begin_drag(MACROS, row).drop_at(*self.stage.middle_of(button))
        wait_for(lambda: self.utility.lines().count("DragDropButtonAction") > before, "the drop")

    def make_macro_for_button_9(self):
        editor = new_macro(self.panels)
        editor.type_into(NAME, "Heal and run")
        editor.loop(25)
        editor.take_keyboard()
        editor.record(["a", "Tab"])
        editor.close_by("ButtonOK")
        self.drop_on_button(KEPT_MACROS, "Button9")
        self.apply()
        events = self.stored(FREE_SLOT)["KEYMAP"]
        self.assertEqual(without_delays(stored_events(events)), taps(A, TAB))
        self.assert_macro(KEYMAP=events, MACRO_NAME="Heal and run", MODE=2, MACRO_LOOP=25, bLOOP=1)
        self.driver.wait_for_line(f"BUTTON_9={FIRST_MACRO_CODE + KEPT_MACROS}")

    def assert_macro(self, **values):
        """Nothing else in the file is other than before: a new macro is on button 9."""
        self.assert_profile({f"MACRO_{FREE_SLOT}": NEW_MACRO | values,
                             "BUTTON_9": FIRST_MACRO_CODE + KEPT_MACROS})

    def assert_profile(self, changes, **others):
        self.assert_file(PROFILE_1=self.settings["PROFILE_1"] | changes, **others)


class Making(MacroJobs):
    def test_a_recorded_macro_reaches_file_and_driver(self):
        self.make_macro_for_button_9()

    def send(self, action, key):
        """When it was sent, between two times."""
        begin = time.monotonic()
        self.stage.output("xdotool", action, key)
        return begin, time.monotonic()

    def test_pauses_are_recorded(self):
        editor = new_macro(self.panels)
        editor.take_keyboard()
        sent = []
        actions = [(action, key) for key in "ab" for action in ("keydown", "keyup")]
        for (action, key), pause in zip(actions, PAUSES, strict=True):
            sent.append(self.send(action, key))
            time.sleep(pause)
        editor.close_by("ButtonOK")
        self.drop_on_button(KEPT_MACROS, "Button9")
        self.apply()
        events = self.stored(FREE_SLOT)["KEYMAP"]
        self.assert_macro(KEYMAP=events, MODE=2)
        keys = stored_events(events)
        self.assertEqual(without_delays(keys), taps(A, B))
        *delays, last = (delay for _, _, delay in keys)
        self.assertEqual(last, 0)
        for delay, (one, next_one) in zip(delays, pairwise(sent), strict=True):
            self.assertGreaterEqual(delay, units(next_one[0] - one[1]))
            self.assertLessEqual(delay, units(next_one[1] - one[0]))

    def test_a_text_to_paste_is_stored(self):
        editor = new_macro(self.panels, COPY_PASTE)
        editor.type_into(PASTED, "/say hello & good-bye")
        editor.click("ButtonSendKey")
        editor.take_keyboard(START_KEY)
        editor.record(["b", "a"])  # of which there is room for the first
        editor.close_by("ButtonOK")
        self.apply()
        start_key = self.stored(FREE_SLOT)["STARTKEY"]
        self.assertEqual(without_delays(stored_events(start_key)), taps(B))
        self.assert_profile({f"MACRO_{FREE_SLOT}": NEW_MACRO | {
            "MODE": 0, "bSENDKEY": 0, "COPY_PASTER": "/say hello & good-bye",
            "STARTKEY": start_key}})


class Editing(MacroJobs):
    def test_a_double_click_edits_and_cancel_drops(self):
        editor = edit_macro(self.panels, 1, RECORD_DELAY)
        editor.type_into(NAME, "Renamed")
        editor.close_by("ButtonOK")
        editor = edit_macro(self.panels, 2, TEXT)
        editor.type_into(NAME, "Dropped")
        editor.close_by("ButtonCancel")
        self.utility.wait_for_line("MacroCancelAction")
        self.apply()
        self.assert_profile({"MACRO_2": self.settings["PROFILE_1"]["MACRO_2"] |
                             NOT_SHOWN | {"MACRO_NAME": "Renamed"}})

    def test_a_new_name_is_shown_in_the_list(self):
        row = self.panels.row(MACROS, 0)
        before = self.stage.pixels(row)
        editor = edit_macro(self.panels, 0, TEXT)
        editor.type_into(NAME, "W")
        editor.close_by("ButtonOK")
        self.stage.move_to(0, 0)
        wait_for(lambda: self.stage.pixels(row) != before, "the new name")


class Deleting(MacroJobs):
    def delete_row(self, row):
        self.panels.choose(MACROS, row)
        click_list_button(self.panels, "btnDelete")

    def wait_for_deletions(self, count):
        wait_for(lambda: self.utility.lines().count("deletebuttonAction") == count,
                 f"{count} deletions")

    def rows(self):
        """How many of the rows at first show something."""
        plain = self.stage.pixels(self.panels.row(MACROS, KEPT_MACROS))
        boxes = [self.panels.row(MACROS, row) for row in range(KEPT_MACROS)]
        return sum(self.stage.pixels(box) != plain for box in boxes)

    def test_a_deletion_is_asked_for_until_the_player_has_enough_of_it(self):
        macros = [self.settings["PROFILE_1"][f"MACRO_{slot}"] for slot in range(1, 51)]
        self.delete_row(0)
        DeletionWarning(self.stage).close_by("ButtonCancel")
        self.assertEqual(self.rows(), KEPT_MACROS)
        click_list_button(self.panels, "btnDelete")
        warning = DeletionWarning(self.stage)
        warning.click("CheckButtonDel")
        warning.close_by("ButtonOK")
        self.wait_for_deletions(1)
        wait_for(lambda: self.rows() == 2, "two rows")
        self.delete_row(1)
        self.wait_for_deletions(2)
        wait_for(lambda: self.rows() == 1, "one row")
        self.assertIsNone(self.stage.window("Warning"))
        self.apply()
        left = [macros[1], *macros[3:]]
        found = self.file()["PROFILE_1"]
        stored = [found[f"MACRO_{slot}"] for slot in range(1, 51)]
        self.assertEqual(stored[:len(left)], left)
        self.assertEqual([macro["MACRO_NAME"] for macro in stored[len(left):]], ["", ""])
        moved = {f"MACRO_{slot}": macro for slot, macro in enumerate(stored, 1)}
        self.assert_profile(moved, MACRODEL_CONFIRM=0)


class Ending(MacroJobs):
    def setUp(self):
        super().setUp()
        self.untouched = self.file_state()
        self.editor = new_macro(self.panels)

    def test_the_main_window_does_not_close_below_the_editor(self):
        close_window(self.stage.environment["DISPLAY"], int(self.stage.window(MAIN_TITLE)))
        self.stage.wait_for_window_manager()
        self.editor.take_keyboard()
        self.editor.record(["a"])
        self.utility.wait_for_line("A|A^")
        self.assertEqual(self.stage.active_title(), EDITOR)
        self.editor.close_by("ButtonClose")
        self.utility.wait_for_line("MacroCancelAction")
        self.assert_untouched(self.untouched)

    def test_the_program_can_be_told_to_end_while_it_records(self):
        self.editor.take_keyboard()
        self.utility.process.terminate()
        self.assertEqual(self.utility.wait_for_end(), -signal.SIGTERM)
        self.assertEqual(self.file_state(), self.untouched)


class FineScreen(MacroJobs):
    """The same on a screen of twice the resolution."""

    screen = {"size": "2400x1800", "scale": 2}

    def test_a_recorded_macro_reaches_file_and_driver(self):
        self.make_macro_for_button_9()


if __name__ == "__main__":
    unittest.main(verbosity=2)
