"""Export and import of a profile through the desktop's file panels; closing the programs while a
panel or a dialog is open."""

import plistlib
import signal
import unittest

from closewindow import close_window
from settingsfile import changed, differences
from stage import MAIN_TITLE, wait_for
from test_profiles import EDITED, QUESTION, RichSettings

MENU = "BtnProfileMenu"
EXPORT, IMPORT = "Export Profile", "Import Profile"
ROWS = {EXPORT: 0, IMPORT: 1}
TOOLS_MENU, POLLING_ROW = "BtnToolsMenu", 0


class Panels(RichSettings):
    def open_panel(self, title):
        self.stage.choose(MENU, ROWS[title])
        self.stage.wait_for_active(title)

    def cancel_panel(self, title):
        self.stage.key("Escape")
        self.stage.wait_for_no_window(title)

    def answer_panel(self, title, path):
        self.open_panel(title)
        self.stage.output("xdotool", "type", str(path))
        self.stage.key("Return")
        self.stage.wait_for_no_window(title)

    def import_from(self, path):
        """Imports, and waits until the settings file is written, as it is after every import."""
        before = self.file_state()
        self.answer_panel(IMPORT, path)
        wait_for(lambda: self.file_state() != before, "the settings file written anew")

    def assert_plain_folder(self):
        """No half-written file lies beside the settings."""
        names = {path.name for path in self.stage.settings.parent.glob("*Setting*")}
        self.assertEqual(names, {self.stage.settings.name})


class Export(Panels):
    current_profile = 3

    def assert_exported(self, path, number):
        exported = wait_for(lambda: path.exists() and plistlib.loads(path.read_bytes()), str(path))
        self.assertEqual(differences(exported, self.settings[f"PROFILE_{number}"]), {})

    def test_it_writes_the_profile_where_the_player_says_and_nothing_else(self):
        untouched = self.file_state()
        self.answer_panel(EXPORT, self.stage.folder / "mine.xml")
        self.assert_exported(self.stage.folder / "mine.xml", 3)
        self.assert_untouched(untouched)
        self.assertFalse(self.apply_changed())

    def test_it_proposes_the_index_and_adds_the_type(self):
        self.open_panel(EXPORT)
        self.stage.key("Return")
        self.assert_exported(self.stage.folder / "Profile2.XML", 3)
        self.answer_panel(EXPORT, self.stage.folder / "named")
        self.assert_exported(self.stage.folder / "named.XML", 3)

    def test_it_exports_what_is_edited_and_not_yet_written(self):
        self.assign()
        self.answer_panel(EXPORT, self.stage.folder / "edited.xml")
        self.settings = changed(self.settings, PROFILE_3=EDITED)
        self.assert_exported(self.stage.folder / "edited.xml", 3)

    def test_escape_writes_nothing(self):
        untouched = self.file_state()
        self.open_panel(EXPORT)
        self.cancel_panel(EXPORT)
        self.assert_untouched(untouched)
        self.assertEqual(list(self.stage.folder.glob("Profile*")), [])

    def test_a_failed_export_is_logged_only(self):
        (self.stage.folder / "gone").mkdir()
        self.open_panel(EXPORT)
        self.stage.output("xdotool", "type", str(self.stage.folder / "gone/mine.xml"))
        (self.stage.folder / "gone").rmdir()
        self.stage.key("Return")
        self.stage.wait_for_no_window(EXPORT)
        self.utility.wait_for_line("write fail!")
        self.assign()
        self.apply()


class Import(Panels):
    def exported(self, number=3):
        path = self.stage.folder / "shared.xml"
        path.write_bytes(plistlib.dumps(self.settings[f"PROFILE_{number}"]))
        return path

    def test_it_fills_the_current_profile_and_writes_the_settings(self):
        self.switch_to(7)
        self.import_from(self.exported())
        self.assert_file(PROFILE_7=self.settings["PROFILE_3"], PROFILE_ID=6)
        self.assertEqual(self.taken(), [], "the driver process is told by Apply only")
        self.apply()
        self.assertIn(f"BUTTON_1={self.settings['PROFILE_3']['BUTTON_1']} ", self.taken()[-1])

    def test_an_exported_profile_comes_back(self):
        path = self.stage.folder / "mine.xml"
        self.answer_panel(EXPORT, path)
        wait_for(path.exists, "the exported profile")
        self.switch_to(10)
        self.import_from(path)
        self.assert_file(PROFILE_10=self.settings["PROFILE_1"], PROFILE_ID=9)

    def test_escape_writes_the_settings_unchanged(self):
        before = self.file_state()
        self.open_panel(IMPORT)
        self.cancel_panel(IMPORT)
        wait_for(lambda: self.file_state() != before, "the settings file written anew")
        self.assert_file()

    def test_a_file_that_is_no_property_list_changes_nothing(self):
        path = self.exported()
        path.write_bytes(path.read_bytes()[:2000])
        self.import_from(path)
        self.assert_file()

    def test_a_property_list_of_something_else_empties_the_profile(self):
        path = self.exported()
        path.write_bytes(plistlib.dumps({"unknown": 1}))
        self.import_from(path)
        profile = self.file()["PROFILE_1"]
        self.assertEqual([profile[f"BUTTON_{number}"] for number in range(1, 15)], [0] * 14)
        self.assertEqual(profile["MACRO_50"]["KEYMAP"], "")
        self.assertEqual(profile.keys(), self.settings["PROFILE_1"].keys())
        others = changed(self.file(), PROFILE_1=self.settings["PROFILE_1"])
        self.assertEqual(differences(others, self.settings), {})


class Closing(Panels):
    """The utility is told to end, or its windows are, while something is open above it."""

    def open_question(self):
        self.assign()
        self.switch_to(2)
        self.stage.wait_for_active(QUESTION)

    def open_about(self):
        self.stage.choose("BtnHelpMenu", 1)
        self.stage.wait_for_active("About")

    def open_submenu(self):
        self.stage.open_menu(TOOLS_MENU, POLLING_ROW)

    def close(self, title):
        close_window(self.stage.environment["DISPLAY"], int(self.stage.wait_for_window(title)))
        self.stage.wait_for_window_manager()

    def commit_and_quit_by_desktop(self):
        self.stage.wait_for_active(MAIN_TITLE)
        self.close(MAIN_TITLE)
        self.assertEqual(self.utility.wait_for_end(), 0)

    def test_the_signal_to_end_leaves_the_file_as_it_is(self):
        openings = (lambda: self.open_panel(EXPORT), lambda: self.open_panel(IMPORT),
                    self.open_question, self.open_about, self.open_submenu)
        untouched = self.file_state()
        for opening in openings:
            opening()
            self.utility.process.terminate()
            self.assertEqual(self.utility.wait_for_end(), -signal.SIGTERM)
            self.assertEqual(self.file_state(), untouched)
            self.assert_plain_folder()
            self.start_utility()

    def test_the_main_window_stays_while_a_panel_or_dialog_is_open(self):
        for title, opening in ((EXPORT, lambda: self.open_panel(EXPORT)),
                               (IMPORT, lambda: self.open_panel(IMPORT)),
                               ("About", self.open_about), (QUESTION, self.open_question)):
            opening()
            untouched = self.file_state()
            self.close(MAIN_TITLE)
            self.cancel_panel(title)
            self.assertIsNone(self.utility.process.poll())
            if title != IMPORT:
                self.assertEqual(self.file_state(), untouched)
        self.commit_and_quit_by_desktop()
        self.assert_file(PROFILE_1=EDITED, PROFILE_ID=1)
        self.assert_plain_folder()

    def test_closing_the_question_answers_neither(self):
        untouched = self.file_state()
        self.open_question()
        self.close(QUESTION)
        self.stage.wait_for_no_window(QUESTION)
        self.assert_untouched(untouched)
        self.commit_and_quit_by_desktop()
        self.assert_file(PROFILE_1=EDITED, PROFILE_ID=1)

    def test_closing_a_panel_cancels_it(self):
        untouched = self.file_state()
        self.open_panel(EXPORT)
        self.close(EXPORT)
        self.stage.wait_for_no_window(EXPORT)
        self.assert_untouched(untouched)
        self.open_panel(IMPORT)
        self.close(IMPORT)
        wait_for(lambda: self.file_state() != untouched, "the settings file written anew")
        self.assert_file()

    def test_closing_the_main_window_under_a_menu_commits_and_quits(self):
        self.assign()
        self.open_submenu()
        self.close(MAIN_TITLE)
        self.assertEqual(self.utility.wait_for_end(), 0)
        self.assert_file(PROFILE_1=EDITED)


if __name__ == "__main__":
    unittest.main(verbosity=2)
