"""The idle utility, its window shown, does not wake up: no thread of it runs for five seconds."""

import pathlib
import sys
import time
import unittest

from stage import Stage, wait_for

PROGRAMS = pathlib.Path(sys.argv.pop(1)).resolve()
TOOLS = pathlib.Path(sys.argv.pop(1)).resolve()
MEASURED_SECONDS = 5
MOST_RESIDENT_KIB = 60 * 1024


def status_numbers(program, name):
    tasks = pathlib.Path(f"/proc/{program.process.pid}/task")
    lines = "".join((task / "status").read_text() for task in tasks.iterdir()).splitlines()
    return [int(line.split()[1]) for line in lines if line.startswith(name)]


def wake_ups(program):
    return sum(status_numbers(program, "voluntary_ctxt_switches"))


def settled(program):
    before = wake_ups(program)
    time.sleep(1)
    return wake_ups(program) == before


class Idle(unittest.TestCase):
    def setUp(self):
        stage = Stage()
        self.addCleanup(stage.close)
        driver = stage.start(PROGRAMS / "kt7r4d", "--settings", stage.settings, "--state-dir",
                             stage.folder / "state")
        driver.wait_for_line("ready")
        self.utility = stage.start(TOOLS / "kyrgm_at", stage.settings)
        stage.wait_for_main_window()
        self.programs = {"KyrGM": self.utility, "kt7r4d": driver}
        wait_for(lambda: all(map(settled, self.programs.values())), "both programs at rest")

    def test_nothing_wakes_up(self):
        before = {name: wake_ups(program) for name, program in self.programs.items()}
        time.sleep(MEASURED_SECONDS)  # the measurement itself
        after = {name: wake_ups(program) for name, program in self.programs.items()}
        self.assertEqual(after, before)

    def test_memory_stays_small(self):
        resident = status_numbers(self.utility, "VmRSS")[0]
        self.assertLess(resident, MOST_RESIDENT_KIB)


if __name__ == "__main__":
    unittest.main(verbosity=2)
