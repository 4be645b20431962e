"""Switching between profiles with and without edits, and Restore Defaults: after every answer the
whole settings file is compared with what it must hold."""

import plistlib
import unittest

from settingsfile import changed, differences, factory_values, rich_settings
from stage import Stage, wait_for
from test_main_job import RunningPrograms

QUESTION = "Warnning!"
EDITED = {"BUTTON_5": 4}


class RichSettings(RunningPrograms):
    """Both programs, the utility started on a file in which every value is set."""

    current_profile = 1

    def new_stage(self):
        stage = Stage()
        self.settings = changed(rich_settings(), PROFILE_ID=self.current_profile - 1)
        stage.settings.write_bytes(plistlib.dumps(self.settings))
        return stage

    def file_state(self):
        """Stays the same until the file is written: then another one takes its place."""
        return self.stage.settings.stat().st_ino, self.stage.settings.read_bytes()

    def switch_to(self, number):
        self.stage.click_control(f"BtnProfile{number}")

    def answer(self, button):
        self.stage.click_dialog("WarnTwoView", QUESTION, button)

    def apply(self):
        """Applies once Apply is enabled, and waits until the driver process has taken it."""
        wait_for(self.apply_changed, "an enabled Apply")
        before = len(self.taken())
        self.stage.click_control("ButtonApply")
        wait_for(lambda: len(self.taken()) > before, "the driver process taking the settings")

    def assert_file(self, **changes):
        self.assertEqual(differences(self.file(), changed(self.settings, **changes)), {})

    def assert_untouched(self, state):
        # The programs answer events in order: with this done, all that came before is done.
        self.stage.choose("BtnHelpMenu", 1)
        self.stage.click_dialog("AboutView", "About", "ButtonClose")
        self.assertEqual(self.file_state(), state)
        self.assertEqual(self.taken(), [])


class SaveQuestion(RichSettings):
    """An edit in profile 1, then the key of another profile."""

    def setUp(self):
        super().setUp()
        self.untouched = self.file_state()
        self.assign()

    def edit_and_switch(self, number=4):
        self.switch_to(number)
        self.stage.wait_for_active(QUESTION)
        self.assertEqual(self.file_state(), self.untouched, "nothing is written before the answer")

    def test_ok_writes_the_edit_and_then_switches(self):
        self.edit_and_switch()
        self.answer("ButtonOK")
        self.assert_file(PROFILE_1=EDITED)
        self.assertEqual(self.taken(), [], "the driver process is told by Apply only")
        self.apply()
        self.assert_file(PROFILE_1=EDITED, PROFILE_ID=3)

    def test_cancel_drops_the_edit_and_switches(self):
        self.edit_and_switch()
        self.answer("ButtonCancel")
        self.assert_untouched(self.untouched)
        self.apply()
        self.assert_file(PROFILE_ID=3)

    def test_the_close_button_keeps_the_edit_unwritten_and_switches(self):
        self.edit_and_switch()
        self.answer("ButtonClose")
        self.assert_untouched(self.untouched)
        self.apply()
        self.assert_file(PROFILE_1=EDITED, PROFILE_ID=3)

    def test_cancel_drops_the_edits_of_every_profile(self):
        self.edit_and_switch(4)
        self.answer("ButtonClose")
        self.assign("Button6")
        self.edit_and_switch(7)
        self.answer("ButtonCancel")
        self.apply()
        self.assert_file(PROFILE_ID=6)

    def test_the_question_comes_for_the_profile_shown_too(self):
        self.edit_and_switch(1)
        self.answer("ButtonCancel")
        self.apply()
        self.assert_file()

    def test_the_sixth_profile_leaves_apply_disabled(self):
        self.edit_and_switch(6)
        self.answer("ButtonOK")
        state = self.file_state()
        self.stage.click_control("ButtonApply")
        self.assert_untouched(state)
        self.stage.move_to(0, 0)
        self.assertFalse(self.apply_changed())
        self.stage.click_control("ButtonOK")
        self.assertEqual(self.utility.wait_for_end(), 0)
        self.assert_file(PROFILE_1=EDITED, PROFILE_ID=5)

    def test_the_mouse_switches_without_the_question_and_keeps_the_edit(self):
        key = self.stage.control_box("BtnProfile8")
        released = self.stage.pixels(key)
        self.told_to_mouse("org.kt7r4.VirtualMouse.SetActiveProfile", "int32:8")
        wait_for(lambda: self.stage.pixels(key) != released, "profile key 8 pressed")
        self.assertIsNone(self.stage.window(QUESTION))
        self.assertEqual(self.file_state(), self.untouched)
        self.apply()
        self.assert_file(PROFILE_1=EDITED, PROFILE_ID=7)


class NothingEdited(RichSettings):
    def test_switches_ask_nothing_and_enable_apply(self):
        for number in (2, 9):
            self.switch_to(number)
        self.apply()
        self.assert_file(PROFILE_ID=8)

    def test_after_apply_there_is_nothing_to_save(self):
        self.assign()
        self.apply()
        self.switch_to(2)
        self.apply()
        self.assert_file(PROFILE_1=EDITED, PROFILE_ID=1)

    def test_an_edit_lands_in_the_profile_switched_to(self):
        self.switch_to(10)
        self.assign()
        self.apply()
        self.assert_file(PROFILE_10=EDITED, PROFILE_ID=9)


class RestoreDefaults(RichSettings):
    current_profile = 3

    def test_it_changes_one_profile_and_leaves_its_macros_and_character(self):
        untouched = self.file_state()
        self.stage.click_control("ButtonRestore")
        self.assert_untouched(untouched)
        self.apply()
        self.assert_file(PROFILE_3=factory_values())

    def test_it_is_taken_back_by_cancelling_the_save_question(self):
        self.stage.click_control("ButtonRestore")
        self.switch_to(4)
        self.stage.wait_for_active(QUESTION)
        self.answer("ButtonCancel")
        self.switch_to(3)
        self.apply()
        self.assert_file()


if __name__ == "__main__":
    unittest.main(verbosity=2)
