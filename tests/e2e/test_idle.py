"""The idle utility, its window shown, does not wake up: no thread of it runs for five seconds, also
after it was on the web."""

import pathlib
import sys
import time
import unittest

from characterdialog import badge_box, open_dialog
from gameservice import NAME, REALM, GameService
from processes import settled, status_numbers, wake_ups
from stage import Stage, wait_for

PROGRAMS = pathlib.Path(sys.argv.pop(1)).resolve()
TOOLS = pathlib.Path(sys.argv.pop(1)).resolve()
MEASURED_SECONDS = 5
MOST_RESIDENT_KIB = 60 * 1024


class Idle(unittest.TestCase):
    def setUp(self):
        service = GameService()
        self.addCleanup(service.close)
        self.stage = Stage()
        self.addCleanup(self.stage.close)
        driver = self.stage.start(PROGRAMS / "kt7r4d", "--settings", self.stage.settings,
                                  "--state-dir", self.stage.folder / "state")
        driver.wait_for_line("ready")
        self.utility = self.stage.start(TOOLS / "kyrgm_at", self.stage.settings, service.host)
        self.stage.wait_for_main_window()
        self.programs = {"KyrGM": self.utility, "kt7r4d": driver}
        self.wait_for_rest()

    def wait_for_rest(self):
        wait_for(lambda: all(map(settled, self.programs.values())), "both programs at rest")

    def assert_no_wake_up(self):
        before = {name: wake_ups(program) for name, program in self.programs.items()}
        time.sleep(MEASURED_SECONDS)  # the measurement itself
        after = {name: wake_ups(program) for name, program in self.programs.items()}
        self.assertEqual(after, before)

    def test_nothing_wakes_up(self):
        self.assert_no_wake_up()

    def test_nothing_wakes_up_after_a_lookup(self):
        empty = self.stage.pixels(badge_box(self.stage))
        dialog = open_dialog(self.stage)
        dialog.enter(REALM, NAME)
        dialog.confirm_by_key()
        wait_for(lambda: self.stage.pixels(badge_box(self.stage)) != empty, "the badge")
        self.wait_for_rest()
        self.assert_no_wake_up()

    def test_memory_stays_small(self):
        resident = status_numbers(self.utility, "VmRSS")[0]
        self.assertLess(resident, MOST_RESIDENT_KIB)


if __name__ == "__main__":
    unittest.main(verbosity=2)
