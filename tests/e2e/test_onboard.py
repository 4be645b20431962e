"""Save On Board with the real driver process, also when that is slow, dies or was never there; what
the driver process reports of the mouse, and what the Tools menu tells it."""

import os
import pathlib
import plistlib
import signal
import subprocess
import sys
import unittest

from settingsfile import changed, rich_settings
from stage import MAIN_TITLE, MENU_TITLES, Stage, wait_for
from test_main_job import PROGRAMS, TOOLS, RunningPrograms

PROGRESS = "Applying profile to on-board memory..."
ERROR = "Error!"
TOOLS_MENU = "BtnToolsMenu"
POLLING_ROW, LIFT_ROW = 0, 1
CHANGE_PROFILE, FIRST_MACRO = 32, 256
COPY_PASTE, NO_DELAY = 0, 1
ONE_CORE = {min(os.sched_getaffinity(0))}


def settled_pixels(stage, frame):
    """The pixels of a window, once it is painted: twice the same, and not all black."""
    pictures = [b""]

    def settled():
        pictures.append(stage.pixels(frame))
        return any(pictures[-1]) and pictures[-1] == pictures[-2]
    wait_for(settled, "a painted window")
    return pictures[-1]


class OnBoard(RunningPrograms):
    def save_on_board(self):
        self.stage.click_control("ButtonSaveToDevice")

    def wait_for_progress(self):
        """Waits for the progress window; its pixels."""
        return settled_pixels(self.stage, self.stage.frame(PROGRESS))

    def described(self):
        """What the driver process says of the mouse; it has done all that came before."""
        return self.told_to_mouse("org.kt7r4.VirtualMouse.Describe").splitlines()[-1]

    def saves_done(self):
        return sum("is on board" in line for line in self.driver.lines())

    def edit_and_apply(self, button="Button6"):
        self.assign(button)
        wait_for(self.apply_changed, "an enabled Apply")
        self.stage.click_control("ButtonApply")
        self.stage.move_to(0, 0)
        wait_for(lambda: not self.apply_changed(), "a disabled Apply")

    def assert_saves(self):
        """Saves; the progress window closes by itself and the mouse has what the file holds."""
        before = self.saves_done()
        self.save_on_board()
        wait_for(lambda: self.saves_done() > before, "a profile on board")
        self.stage.wait_for_no_window(PROGRESS)
        profile = self.file()["PROFILE_1"]
        for button in range(1, 15):
            self.assertIn(f" BUTTON_{button}={profile[f'BUTTON_{button}']}", self.described())

    def about_picture(self):
        """Opens the About box, takes its pixels, closes it."""
        self.stage.choose("BtnHelpMenu", 1)
        self.stage.wait_for_active("About")
        self.stage.move_to(0, 0)
        picture = settled_pixels(self.stage, self.stage.frame("About"))
        self.stage.click_dialog("AboutView", "About", "ButtonClose")
        return picture

    def report_firmware(self, number):
        self.stage.start(TOOLS / "driverreport", "Kt7R4DeviceFWVersion", "Kt7R4FWNumber",
                         str(number)).wait_for_end()


class Save(OnBoard):
    def test_the_window_closes_by_itself_when_the_profile_is_on_board(self):
        self.assign()
        self.driver.process.send_signal(signal.SIGSTOP)
        self.save_on_board()
        self.wait_for_progress()
        self.assertEqual(self.file()["PROFILE_1"]["BUTTON_5"], 4)
        self.assertEqual(self.taken(), [])
        self.driver.process.send_signal(signal.SIGCONT)
        self.stage.wait_for_no_window(PROGRESS)
        self.driver.wait_for_line("profile 1 is on board")
        self.assertIn(" BUTTON_5=4 ", self.described())
        self.stage.move_to(0, 0)
        wait_for(lambda: not self.apply_changed(), "a disabled Apply")

    def test_the_window_stands_in_the_middle_and_leaves_the_keyboard(self):
        self.driver.process.send_signal(signal.SIGSTOP)
        self.save_on_board()
        self.wait_for_progress()
        self.assertEqual(self.stage.frame(PROGRESS), (512, 475, 256, 74))
        button = self.stage.control_box("BtnHelp")
        before = self.stage.pixels(button)
        self.stage.key("Tab")
        wait_for(lambda: self.stage.pixels(button) != before, "the keyboard on another button")
        self.assertEqual(self.stage.active_title(), MAIN_TITLE)
        self.driver.process.send_signal(signal.SIGCONT)

    def test_the_utility_works_on_while_the_window_is_open(self):
        self.driver.process.send_signal(signal.SIGSTOP)
        self.save_on_board()
        self.wait_for_progress()
        self.edit_and_apply()
        self.assertEqual(self.file()["PROFILE_1"]["BUTTON_6"], 4)
        self.assertTrue(self.stage.window(PROGRESS))
        self.driver.process.send_signal(signal.SIGCONT)
        self.stage.wait_for_no_window(PROGRESS)

    def test_one_save_after_another(self):
        for button in ("Button3", "Button4", "Button5"):
            self.assign(button)
            self.assert_saves()

    def test_ending_the_utility_does_not_end_the_save(self):
        self.assign()
        self.driver.process.send_signal(signal.SIGSTOP)
        self.save_on_board()
        self.wait_for_progress()
        self.stage.click_control("ButtonCancel")
        self.assertEqual(self.utility.wait_for_end(), 0)
        self.driver.process.send_signal(signal.SIGCONT)
        self.driver.wait_for_line("profile 1 is on board")
        self.assertIn(" BUTTON_5=4 ", self.described())


class DyingDriver(OnBoard):
    def slow_down(self):
        """Leaves the driver process what a busy core has left: a save then takes seconds."""
        busy = subprocess.Popen([sys.executable, "-c", "while True: pass"])
        self.addCleanup(busy.wait)
        self.addCleanup(busy.kill)
        os.sched_setaffinity(busy.pid, ONE_CORE)
        for task in pathlib.Path(f"/proc/{self.driver.process.pid}/task").iterdir():
            os.sched_setaffinity(int(task.name), ONE_CORE)
            os.sched_setscheduler(int(task.name), os.SCHED_IDLE, os.sched_param(0))

    def kill_in_the_middle(self):
        """Kills the driver process once the progress window shows a first step."""
        self.driver.process.send_signal(signal.SIGSTOP)
        self.save_on_board()
        at_first = self.wait_for_progress()
        frame = self.stage.frame(PROGRESS)
        self.slow_down()
        self.driver.process.send_signal(signal.SIGCONT)
        wait_for(lambda: self.stage.pixels(frame) != at_first, "progress", seconds=120)
        self.driver.process.kill()
        self.driver.process.wait()
        self.assertNotIn("is on board", self.driver.lines()[-1], "killed too late")

    def test_the_window_stays_and_the_utility_works_on(self):
        self.assign()
        self.kill_in_the_middle()
        self.edit_and_apply()
        self.assertTrue(self.stage.window(PROGRESS))
        buttons = self.file()["PROFILE_1"]
        self.assertEqual((buttons["BUTTON_5"], buttons["BUTTON_6"]), (4, 4))
        self.stage.click_control("ButtonOK")
        self.assertEqual(self.utility.wait_for_end(), 0)

    def test_a_new_driver_process_finishes_the_next_save(self):
        self.assert_saves()
        before = self.described()
        self.assign()
        self.kill_in_the_middle()
        self.start_driver()
        self.assertEqual(self.described(), before, "half a save leaves the mouse as it was")
        self.assertTrue(self.stage.window(PROGRESS))
        self.assert_saves()
        self.assertIn(" BUTTON_5=4 ", self.described())


class NoDriver(OnBoard):
    def setUp(self):
        super().setUp()
        self.driver.stop()

    def test_the_window_stays_until_a_save_with_a_driver_process(self):
        self.save_on_board()
        self.wait_for_progress()
        self.edit_and_apply()
        self.save_on_board()
        self.start_driver()
        # The question comes after the save: what it would have done is done.
        self.assertNotIn("BUTTON_6=4", self.described())
        self.assertTrue(self.stage.window(PROGRESS))
        self.assert_saves()

    def test_the_firmware_version_is_unknown(self):
        self.stage.click_control("ButtonCancel")
        self.utility.wait_for_end()
        self.start_utility()
        unknown = self.about_picture()
        self.report_firmware(0)
        self.assertEqual(self.about_picture(), unknown)
        self.report_firmware(0x0102)
        self.assertNotEqual(self.about_picture(), unknown)


class Invalid(OnBoard):
    """Profiles that the mouse cannot store: 1 changes profiles, 2 pastes, 3 repeats too often."""

    def new_stage(self):
        stage = Stage()
        self.settings = changed(
            rich_settings(),
            PROFILE_1={"BUTTON_14": CHANGE_PROFILE},
            PROFILE_2={"BUTTON_1": FIRST_MACRO, "MACRO_1": {"MODE": COPY_PASTE}},
            PROFILE_3={"BUTTON_7": FIRST_MACRO + 49,
                       "MACRO_50": {"MODE": NO_DELAY, "MACRO_LOOP": 257}},
            PROFILE_4={"BUTTON_7": FIRST_MACRO + 49,
                       "MACRO_50": {"MODE": NO_DELAY, "MACRO_LOOP": 256}})
        stage.settings.write_bytes(plistlib.dumps(self.settings))
        return stage

    def assert_refused(self, button):
        before = self.stage.settings.stat().st_ino
        self.save_on_board()
        self.stage.wait_for_active(ERROR)
        self.stage.click_dialog("WarnOneView", ERROR, button)
        self.assertIsNone(self.stage.window(PROGRESS))
        self.assertEqual(self.stage.settings.stat().st_ino, before, "the file was written")

    def test_each_is_refused_and_nothing_is_written(self):
        self.assert_refused("ButtonOK")
        for number, button in ((2, "ButtonClose"), (3, "ButtonOK")):
            self.stage.click_control(f"BtnProfile{number}")
            self.assert_refused(button)
        self.described()
        self.assertEqual(self.taken(), [])

    def test_what_can_be_stored_is_stored_afterwards(self):
        self.assert_refused("ButtonOK")
        self.stage.click_control("BtnProfile4")
        self.save_on_board()
        self.driver.wait_for_line("profile 4 is on board")
        self.stage.wait_for_no_window(PROGRESS)


class Mouse(OnBoard):
    """What the driver process says of the mouse, and what it is told."""

    def test_the_about_box_shows_the_firmware_version_of_the_mouse(self):
        shown = self.about_picture()
        for number in (0, 0x0202, 0x0101):
            self.report_firmware(number)
            self.assertNotEqual(self.about_picture(), shown, f"reported {number:#x}")
        self.report_firmware(0x0102)
        self.assertEqual(self.about_picture(), shown)

    def test_the_polling_rate_reaches_mouse_and_file_at_once(self):
        def in_file():
            return self.stage.settings.exists() and self.file()["POLLING_RATE"]

        for row, code in ((0, 3), (1, 2), (2, 1)):
            self.stage.choose(TOOLS_MENU, POLLING_ROW, row)
            self.driver.wait_for_line(f"PollingRate is now {code}")
            self.assertIn(f"POLLING_RATE={code} ", self.described())
            wait_for(lambda: in_file() == code, f"code {code} in the file")

    def test_the_lift_distance_reaches_the_mouse_and_no_file(self):
        for row, code in ((2, 0), (1, 1), (0, 2)):
            self.stage.choose(TOOLS_MENU, LIFT_ROW, row)
            self.driver.wait_for_line(f"SetLiftDistance is now {code}")
            self.assertIn(f"LIFT_DISTANCE={code} ", self.described())
        self.assertFalse(self.stage.settings.exists())

    def lift_menu_picture(self):
        frame = self.stage.frame_of(self.stage.open_menu(TOOLS_MENU, LIFT_ROW))
        picture = settled_pixels(self.stage, frame)
        for _ in ("submenu", "menu"):
            self.stage.key("Escape")
        self.stage.wait_for_no_window(MENU_TITLES[TOOLS_MENU])
        return picture

    def test_the_next_start_marks_the_lift_distance_of_the_mouse(self):
        at_first = self.lift_menu_picture()
        self.stage.choose(TOOLS_MENU, LIFT_ROW, 2)
        self.driver.wait_for_line("SetLiftDistance is now 0")
        lowest = self.lift_menu_picture()
        self.assertNotEqual(lowest, at_first)
        self.stage.click_control("ButtonCancel")
        self.utility.wait_for_end()
        self.start_utility()
        self.assertEqual(self.lift_menu_picture(), lowest)


if __name__ == "__main__":
    unittest.main(verbosity=2)
