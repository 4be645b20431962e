"""The utility has its window hardly later than a program with nothing but an empty window, on the
screen and painted."""

import json
import pathlib
import subprocess
import sys
import unittest

from gallery import SCREENS
from stage import Stage

BENCHMARK = pathlib.Path(sys.argv.pop(1)).resolve()
# By scale: how many times as long as the bare window it may take. The bare one has nothing to paint.
MOST_TIMES_BARE = {scale: {"mapped": 1.5, "painted": 2.0} for scale in SCREENS}
# What else the machine does may weigh on one measurement; a start that is slow is so in each.
MEASUREMENTS = 5


class Start(unittest.TestCase):
    def medians(self, scale):
        """By program and moment, in milliseconds."""
        with Stage(size=SCREENS[scale], scale=scale) as stage:
            # Taken in turns, so that what else the machine does weighs on both alike.
            run = subprocess.run([BENCHMARK, "--benchmark_format=json",
                                  "--benchmark_enable_random_interleaving=true"],
                                 env=stage.environment, capture_output=True, check=True)
        rows = [row for row in json.loads(run.stdout)["benchmarks"]
                if row.get("aggregate_name") == "median"]
        for row in rows:
            print(f"{row['run_name'].split('/iterations')[0]} at scale {scale}: "
                  f"{row['real_time']:.1f} ms, {row['resident_KiB']:.0f} KiB")
        return {row["run_name"].split("/iterations")[0]: row["real_time"] for row in rows}

    def times_bare(self, scale):
        """How many times as long as the bare window it takes, by moment."""
        taken = self.medians(scale)
        return {until: taken[f"KyrGM/{until}"] / taken[f"bareWindow/{until}"]
                for until in MOST_TIMES_BARE[scale]}

    def measure(self, scale):
        most = MOST_TIMES_BARE[scale]
        least = dict.fromkeys(most, float("inf"))
        for _ in range(MEASUREMENTS):
            times = self.times_bare(scale)
            least = {until: min(least[until], times[until]) for until in most}
            if all(least[until] < most[until] for until in most):
                return
        self.fail(f"times as long as a bare window: {least}, which may be {most}")

    def test_the_window_is_there_as_soon_as_a_bare_one(self):
        self.measure(1)

    def test_so_it_is_on_a_fine_screen(self):
        self.measure(2)


if __name__ == "__main__":
    unittest.main(verbosity=2)
