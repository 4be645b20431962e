"""The utility has its window hardly later than a program with nothing but an empty window."""

import json
import pathlib
import subprocess
import sys
import unittest

from gallery import SCREENS
from stage import Stage

BENCHMARK = pathlib.Path(sys.argv.pop(1)).resolve()
MOST_TIMES_BARE = 1.5


class Start(unittest.TestCase):
    def measure(self, scale):
        with Stage(size=SCREENS[scale], scale=scale) as stage:
            # Taken in turns, so that what else the machine does weighs on both alike.
            run = subprocess.run([BENCHMARK, "--benchmark_format=json",
                                  "--benchmark_enable_random_interleaving=true"],
                                 env=stage.environment, capture_output=True, check=True)
        rows = [row for row in json.loads(run.stdout)["benchmarks"]
                if row.get("aggregate_name") == "median"]
        median = {row["run_name"].split("/iterations")[0]: row for row in rows}
        for name, row in sorted(median.items()):
            print(f"{name} at scale {scale}: {row['real_time']:.1f} ms, "
                  f"{row['resident_KiB']:.0f} KiB")
        self.assertLess(median["KyrGM/mapped"]["real_time"],
                        MOST_TIMES_BARE * median["bareWindow/mapped"]["real_time"])

    def test_the_window_is_there_as_soon_as_a_bare_one(self):
        self.measure(1)

    def test_so_it_is_on_a_fine_screen(self):
        self.measure(2)


if __name__ == "__main__":
    unittest.main(verbosity=2)
