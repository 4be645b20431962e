"""The program has its icon once its window is there, and desktops find what is installed."""

import pathlib
import re
import subprocess
import sys
import unittest

from stage import MAIN_TITLE, ROOT, Stage, wait_for

TOOLS = pathlib.Path(sys.argv.pop(1)).resolve()
SHOWN_SIZES = [16, 24, 32, 48, 64, 128, 256]
INSTALLED_SIZES = sorted([*SHOWN_SIZES, 22, 512])


def size_of(png):
    """A picture's width and height, from the head of its file."""
    head = png.read_bytes()[16:24]
    return int.from_bytes(head[:4], "big"), int.from_bytes(head[4:], "big")


class Icon(unittest.TestCase):
    def test_the_window_has_it_in_all_sizes(self):
        with Stage() as stage:
            stage.start(TOOLS / "kyrgm_at", stage.settings)
            window = stage.wait_for_window(MAIN_TITLE)

            def sizes():
                text = stage.output("xprop", "-len", "4000000", "-id", window, "_NET_WM_ICON")
                found = re.findall(r"Icon \((\d+) x (\d+)\)", text)
                return sorted(int(width) for width, height in found if width == height)
            wait_for(lambda: sizes() == SHOWN_SIZES, lambda: f"the icons, now {sizes()}")

    def test_its_files_have_their_sizes(self):
        for size in INSTALLED_SIZES:
            file = TOOLS.parent / f"share/icons/hicolor/{size}x{size}/apps/KyrGM.png"
            self.assertEqual(size_of(file), (size, size))

    def test_the_desktop_file_is_valid(self):
        run = subprocess.run(["desktop-file-validate", ROOT / "src/resources/KyrGM.desktop"],
                             capture_output=True, text=True, check=False)
        self.assertEqual((run.returncode, run.stdout), (0, ""))


if __name__ == "__main__":
    unittest.main(verbosity=2)
