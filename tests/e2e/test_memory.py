"""The utility stays small with its three bars open, on either scale."""

import pathlib
import sys
import unittest

from gallery import BARS, SCREENS
from processes import settled, status_numbers
from stage import Stage, wait_for

PROGRAMS = pathlib.Path(sys.argv.pop(1)).resolve()
TOOLS = pathlib.Path(sys.argv.pop(1)).resolve()
MOST_RESIDENT_MIB = {1: 60, 2: 100}


class Memory(unittest.TestCase):
    def measure(self, scale):
        with Stage(size=SCREENS[scale], scale=scale) as stage:
            driver = stage.start(PROGRAMS / "kt7r4d", "--settings", stage.settings,
                                 "--state-dir", stage.folder / "state")
            driver.wait_for_line("ready")
            utility = stage.start(TOOLS / "kyrgm_at", stage.settings, "localhost")
            stage.wait_for_main_window()
            for bar in BARS.values():
                stage.open_bar(*bar)
            wait_for(lambda: settled(utility), "the utility at rest")
            resident = status_numbers(utility, "VmRSS")[0] / 1024
            own = status_numbers(utility, "RssAnon")[0] / 1024
            print(f"scale {scale}: {resident:.1f} MiB, of which {own:.1f} MiB no file holds")
            self.assertLess(resident, MOST_RESIDENT_MIB[scale])

    def test_at_scale_1(self):
        self.measure(1)

    def test_at_scale_2(self):
        self.measure(2)


if __name__ == "__main__":
    unittest.main(verbosity=2)
