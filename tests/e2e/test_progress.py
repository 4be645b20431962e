"""The progress window comes up in the middle of the screen and leaves the keyboard where it is."""

import pathlib
import sys
import unittest

from stage import MAIN_TITLE, Stage, wait_for

TOOLS = pathlib.Path(sys.argv.pop(1)).resolve()
PROGRESS_TITLE = "Applying profile to on-board memory..."
SCREEN = (1280, 1024)
SIZE = (256, 74)


class Progress(unittest.TestCase):
    def setUp(self):
        self.stage = Stage(size="{}x{}".format(*SCREEN))
        self.addCleanup(self.stage.close)
        self.stage.start(TOOLS / "progressstage", self.stage.settings)
        self.stage.wait_for_main_window()
        self.stage.wait_for_window(PROGRESS_TITLE)

    def test_it_stands_in_the_middle(self):
        middle = tuple((screen - size) // 2 for screen, size in zip(SCREEN, SIZE))
        wait_for(lambda: self.stage.frame(PROGRESS_TITLE) == middle + SIZE, "the middle")

    def test_the_main_window_keeps_the_keyboard(self):
        button = self.stage.control_box("BtnHelp")
        before = self.stage.pixels(button)
        self.stage.key("Tab")
        wait_for(lambda: self.stage.pixels(button) != before, "the keyboard on another button")
        self.assertEqual(self.stage.active_title(), MAIN_TITLE)


if __name__ == "__main__":
    unittest.main(verbosity=2)
