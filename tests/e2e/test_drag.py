"""A row dragged from a list onto a button with the real pointer arrives as its function code."""

import pathlib
import sys
import unittest

from stage import Stage, wait_for

TOOLS = pathlib.Path(sys.argv.pop(1)).resolve()
TITLE = "Drag Stage"
ROW = 20


class Drag(unittest.TestCase):
    def setUp(self):
        self.stage = Stage()
        self.addCleanup(self.stage.close)
        self.program = self.stage.start(TOOLS / "dragstage")
        self.stage.wait_for_active(TITLE)
        self.left, self.top, _, _ = self.stage.frame(TITLE)

    def drag_row(self, row, target_x):
        """Drags a macro row onto a button as a person does, who sees its picture come along."""
        start = self.left + 50, self.top + row * ROW + ROW // 2
        end = self.left + target_x, self.top + 150
        windows = self.windows()
        self.stage.move_to(*start)
        self.stage.output("xdotool", "mousedown", "1")
        self.stage.move_to(start[0], start[1] + 2 * ROW)
        picture = wait_for(lambda: self.windows() - windows, "the row's picture").pop()
        self.stage.move_to(*end)
        arrived = end[0] - (start[0] - self.left), end[1] - ROW // 2
        wait_for(lambda: self.stage.frame_of(picture)[:2] == arrived, "the picture on the button")
        self.stage.output("xdotool", "mouseup", "1")
        wait_for(lambda: self.windows() == windows, "the end of the drag")

    def windows(self):
        return set(self.stage.output("xdotool", "search", "--onlyvisible", "--class",
                                     "dragstage").split())

    def test_the_third_macro_row_carries_258(self):
        self.drag_row(2, 50)
        self.program.wait_for_line("dropped 258")

    def test_the_row_under_the_pointer_is_the_one_dragged(self):
        self.drag_row(0, 50)
        self.program.wait_for_line("dropped 256")
        self.drag_row(1, 50)
        self.program.wait_for_line("dropped 257")

    def test_a_disabled_button_takes_no_drop(self):
        self.drag_row(2, 150)
        self.drag_row(1, 50)
        self.program.wait_for_line("dropped 257")
        self.assertNotIn("dropped 258", self.program.lines())

    def test_a_quick_list_row_cannot_be_dragged(self):
        self.stage.drag((self.left + 150, self.top + ROW // 2), (self.left + 50, self.top + 150))
        self.drag_row(0, 50)
        self.program.wait_for_line("dropped 256")
        wait_for(lambda: len([x for x in self.program.lines() if "dropped" in x]) == 1, "one drop")


if __name__ == "__main__":
    unittest.main(verbosity=2)
