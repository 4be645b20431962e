"""The main job end to end: the programs as processes on a private stage, real pointer events, the
file read by another reader than ours, the driver process asked what it took."""

import pathlib
import plistlib
import sys
import unittest

from stage import LIST_TITLE, MAIN_TITLE, VIEW_HEIGHT, Stage, wait_for

PROGRAMS = pathlib.Path(sys.argv.pop(1)).resolve()
TOOLS = pathlib.Path(sys.argv.pop(1)).resolve()
MOUSE_BUTTON_4_ROW = 3
LIST_HEIGHT = 140
ROWS = ((0, 1), (1, 2), (2, 3), (3, 4), (4, 5), (5, 6), (6, 9))


class RunningPrograms(unittest.TestCase):
    """Both programs on a stage, and what a player does with them."""

    def setUp(self):
        self.stage = self.new_stage()
        self.addCleanup(self.stage.close)
        self.start_driver()
        self.start_utility()

    def new_stage(self):
        return Stage()

    def start_driver(self):
        self.driver = self.stage.start(*self.driver_command())
        self.driver.wait_for_line("ready")

    def driver_command(self):
        return (PROGRAMS / "kt7r4d", "--settings", self.stage.settings,
                "--state-dir", self.stage.folder / "state")

    def utility_command(self):
        return TOOLS / "kyrgm_at", self.stage.settings

    def start_utility(self):
        self.utility = self.stage.start(*self.utility_command())
        self.stage.wait_for_main_window()
        self.idle_apply = self.stage.pixels(self.stage.control_box("ButtonApply"))

    def open_list(self, button):
        self.stage.click_control(button, button=3)
        self.stage.wait_for_active(LIST_TITLE)

    def assign(self, button="Button5", row=MOUSE_BUTTON_4_ROW):
        self.open_list(button)
        self.stage.click_list_row(row)
        self.stage.wait_for_no_window(LIST_TITLE)
        self.stage.wait_for_active(MAIN_TITLE)

    def apply_changed(self):
        return self.stage.pixels(self.stage.control_box("ButtonApply")) != self.idle_apply

    def file(self):
        return plistlib.loads(self.stage.settings.read_bytes())

    def taken(self):
        return [line for line in self.driver.lines() if "BUTTON_1=" in line]

    def wait_for_list_under(self, button):
        x, y, width, height = self.stage.control_box(button)
        place = (x, y + height, width, self.stage.scale * LIST_HEIGHT)
        wait_for(lambda: self.stage.window(LIST_TITLE) and self.stage.frame(LIST_TITLE) == place,
                 f"the list under {button}")

    def told_to_mouse(self, *arguments):
        return self.stage.output("dbus-send", "--session", "--print-reply",
                                 "--dest=org.kt7r4.Driver", "/org/kt7r4/Driver", *arguments)


class MainJob(RunningPrograms):
    def test_an_applied_assignment_reaches_file_and_driver(self):
        self.assign()
        wait_for(self.apply_changed, "an enabled Apply")
        self.assertFalse(self.stage.settings.exists(), "nothing is written before Apply")
        self.stage.click_control("ButtonApply")
        self.driver.wait_for_line("BUTTON_5=4")
        self.driver.wait_for_line("is on board")
        self.assertEqual(self.file()["PROFILE_1"]["BUTTON_5"], 4)
        self.stage.move_to(0, 0)
        wait_for(lambda: not self.apply_changed(), "a disabled Apply")

    def test_every_row_of_the_quick_list_writes_its_code(self):
        for (row, _), number in zip(ROWS, range(3, 10)):
            self.assign(f"Button{number}", row)
        self.stage.click_control("ButtonApply")
        self.driver.wait_for_line("is on board")
        buttons = self.file()["PROFILE_1"]
        self.assertEqual([buttons[f"BUTTON_{number}"] for number in range(3, 10)],
                         [code for _, code in ROWS])

    def test_ok_commits_and_quits(self):
        self.assign()
        self.stage.click_control("ButtonOK")
        self.assertEqual(self.utility.wait_for_end(), 0)
        self.driver.wait_for_line("BUTTON_5=4")
        self.assertEqual(self.file()["PROFILE_1"]["BUTTON_5"], 4)

    def test_the_close_button_commits_and_quits(self):
        self.assign()
        self.stage.click_control("BtnClose")
        self.assertEqual(self.utility.wait_for_end(), 0)
        self.driver.wait_for_line("BUTTON_5=4")
        self.assertEqual(self.file()["PROFILE_1"]["BUTTON_5"], 4)

    def test_closing_by_the_desktop_commits_and_quits(self):
        self.assign()
        self.stage.key("alt+F4")
        self.assertEqual(self.utility.wait_for_end(), 0)
        self.driver.wait_for_line("BUTTON_5=4")

    def test_cancel_quits_without_writing_or_telling(self):
        self.assign()
        self.stage.click_control("ButtonCancel")
        self.assertEqual(self.utility.wait_for_end(), 0)
        self.assertIn("Button 1 was clicked", self.utility.lines())
        self.assertFalse(self.stage.settings.exists())
        # Messages keep their order: a settings change would have been taken before this answer.
        self.told_to_mouse("org.kt7r4.VirtualMouse.Describe")
        self.assertEqual(self.taken(), [])

    def test_what_was_committed_is_there_at_the_next_start(self):
        self.assign()
        self.stage.click_control("ButtonOK")
        self.utility.wait_for_end()
        self.start_utility()
        self.assign("Button6")
        self.stage.click_control("ButtonOK")
        self.utility.wait_for_end()
        buttons = self.file()["PROFILE_1"]
        self.assertEqual((buttons["BUTTON_5"], buttons["BUTTON_6"]), (4, 4))

    def test_the_list_opens_under_its_button(self):
        for button in ("Button1", "Button5", "Button13"):
            self.open_list(button)
            self.wait_for_list_under(button)

    def test_a_click_elsewhere_closes_the_list(self):
        self.open_list("Button5")
        left, top, _, _ = self.stage.frame(MAIN_TITLE)
        self.stage.click(left + 330, top + VIEW_HEIGHT - 70)
        self.stage.wait_for_no_window(LIST_TITLE)
        self.assertIn("windowKeyChange", self.utility.lines())
        self.assertFalse(self.apply_changed())

    def test_escape_closes_the_list(self):
        self.open_list("Button5")
        self.stage.key("Escape")
        self.stage.wait_for_no_window(LIST_TITLE)
        self.stage.wait_for_active(MAIN_TITLE)

    def test_the_list_works_by_keyboard(self):
        self.open_list("Button5")
        for name in ("Down", "Down", "Down", "Down", "Return"):
            self.stage.key(name)
        self.stage.wait_for_no_window(LIST_TITLE)
        self.stage.wait_for_active(MAIN_TITLE)
        self.stage.click_control("ButtonApply")
        self.driver.wait_for_line("BUTTON_5=4")

    def move_keyboard_on(self):
        """With the tab key, until another control shows that it has the keyboard."""
        window = self.stage.frame(MAIN_TITLE)
        before = self.stage.pixels(window)
        self.stage.key("Tab")
        wait_for(lambda: self.stage.pixels(window) != before, "the next control after Tab")

    def test_a_button_is_reached_selected_and_assigned_by_keyboard(self):
        box = self.stage.control_box("Button2")
        faces = [self.stage.pixels(box)]
        while self.stage.pixels(box) in faces:
            self.move_keyboard_on()
        faces.append(self.stage.pixels(box))
        self.stage.key("space")
        wait_for(lambda: self.stage.pixels(box) not in faces, "another face after a press")
        self.stage.key("Menu")
        self.stage.wait_for_active(LIST_TITLE)
        self.wait_for_list_under("Button2")
        for key in ("Down", "Return"):
            self.stage.key(key)
        self.stage.wait_for_no_window(LIST_TITLE)
        self.stage.wait_for_active(MAIN_TITLE)
        self.stage.click_control("ButtonApply")
        self.driver.wait_for_line("BUTTON_2=1")

    def test_a_double_click_on_a_row_selects_no_button_below(self):
        below = self.stage.control_box("Button11")  # under the row
        plain = self.stage.pixels(below)
        self.open_list("Button5")
        x, y, width, _ = self.stage.frame(LIST_TITLE)
        row = y + MOUSE_BUTTON_4_ROW * 20 + 10
        self.assertTrue(below[1] < row < below[1] + below[3])
        self.stage.move_to(x + width // 2, row)
        self.stage.output("xdotool", "click", "--repeat", "2", "--delay", "80", "1")
        self.stage.wait_for_no_window(LIST_TITLE)
        self.stage.click_control("ButtonApply")
        self.driver.wait_for_line("BUTTON_5=4")
        self.stage.move_to(0, 0)
        wait_for(lambda: self.stage.pixels(below) == plain, "an unselected button below")

    def test_a_quick_right_click_after_a_choice_opens_a_list(self):
        self.open_list("Button5")
        self.stage.click_list_row(MOUSE_BUTTON_4_ROW)
        self.stage.wait_for_no_window(LIST_TITLE)
        self.stage.output("xdotool", "click", "3")  # on button 11, which stood below the row
        x, y, width, height = self.stage.control_box("Button11")
        wait_for(lambda: self.stage.window(LIST_TITLE) and
                 self.stage.frame(LIST_TITLE) == (x, y + height, width, 140), "the new list")

    def test_another_right_click_opens_a_new_list(self):
        self.open_list("Button5")
        self.stage.click_control("Button3", button=3)
        self.wait_for_list_under("Button3")
        ids = self.stage.output("xdotool", "search", "--onlyvisible", "--name", LIST_TITLE).split()
        self.assertEqual(len(ids), 1)

    def test_the_window_is_dragged_by_its_background(self):
        left, top, width, height = self.stage.frame(MAIN_TITLE)
        start = (left + 330, top + height - 70)
        self.stage.drag(start, (start[0] + 60, start[1] + 35))
        wait_for(lambda: self.stage.frame(MAIN_TITLE) == (left + 60, top + 35, width, height),
                 "the window 60 right and 35 down")

    def test_the_window_never_leaves_the_screen_at_the_top(self):
        left, top, _, height = self.stage.frame(MAIN_TITLE)
        start = (left + 330, top + height - 70)
        self.stage.drag(start, (start[0], start[1] - top - 100))
        wait_for(lambda: self.stage.frame(MAIN_TITLE)[1] == 0, "the top edge at the screen's top")

    def test_a_drag_on_a_button_leaves_the_window(self):
        frame = self.stage.frame(MAIN_TITLE)
        # Apply is disabled.
        for button in ("ButtonOK", "BtnProfile3", "ButtonRestore", "ButtonApply"):
            x, y, width, height = self.stage.control_box(button)
            self.stage.drag((x + width // 2, y + height // 2), (x + 5, y + 140))
        # The window answers events in order: with this one done, the drags are done too.
        self.assign()
        self.assertEqual(self.stage.frame(MAIN_TITLE), frame)

    def test_the_minimise_button_minimises(self):
        self.stage.click_control("BtnMin")
        self.stage.wait_for_no_window(MAIN_TITLE)
        self.assertIsNone(self.utility.process.poll())

    def test_the_mouse_switches_the_profile(self):
        second = self.stage.control_box("BtnProfile2")
        released = self.stage.pixels(second)
        self.told_to_mouse("org.kt7r4.VirtualMouse.PressProfileButton")
        wait_for(lambda: self.stage.pixels(second) != released, "profile key 2 pressed")
        self.assertFalse(self.stage.settings.exists())
        self.stage.click_control("ButtonOK")
        self.utility.wait_for_end()
        self.assertEqual(self.file()["PROFILE_ID"], 1)

    def test_a_settings_file_that_cannot_be_read_is_kept(self):
        self.stage.click_control("ButtonCancel")
        self.utility.wait_for_end()
        self.stage.settings.write_bytes(b"not a property list")
        self.start_utility()
        self.stage.click_control("ButtonOK")
        self.assertEqual(self.utility.wait_for_end(), 0)
        kept = self.stage.settings.with_name(self.stage.settings.name + ".unreadable")
        self.assertEqual(kept.read_bytes(), b"not a property list")
        self.assertEqual(self.file()["PROFILE_1"]["BUTTON_1"], 1)

    def test_everything_works_without_a_driver_process(self):
        self.driver.stop()
        self.assign()
        self.stage.click_control("ButtonOK")
        self.assertEqual(self.utility.wait_for_end(), 0)
        self.assertEqual(self.file()["PROFILE_1"]["BUTTON_5"], 4)


class FineScreen(RunningPrograms):
    """The same on a screen of twice the resolution."""

    def new_stage(self):
        return Stage(size="1600x1400", scale=2)

    def test_the_list_opens_under_its_button(self):
        self.assertEqual(self.stage.frame(MAIN_TITLE)[2:], (2 * 654, 2 * VIEW_HEIGHT))
        for button in ("Button1", "Button14"):
            self.open_list(button)
            self.wait_for_list_under(button)

    def test_an_applied_assignment_reaches_the_driver(self):
        self.assign()
        self.stage.click_control("ButtonApply")
        self.driver.wait_for_line("BUTTON_5=4")


if __name__ == "__main__":
    unittest.main(verbosity=2)
