"""A row dragged from a list onto a button with the real pointer arrives as its function code."""

import pathlib
import sys
import unittest

from rowdrag import RowDrag
from stage import Stage, wait_for

TOOLS = pathlib.Path(sys.argv.pop(1)).resolve()
TITLE = "Drag Stage"
ROW = 20
LIST_WIDTH = 100


class Drag(unittest.TestCase):
    def setUp(self):
        self.stage = Stage()
        self.addCleanup(self.stage.close)
        self.program = self.stage.start(TOOLS / "dragstage")
        self.stage.wait_for_active(TITLE)
        self.left, self.top, _, _ = self.stage.frame(TITLE)

    def drag_row(self, row, target_x):
        box = self.left, self.top + row * ROW, LIST_WIDTH, ROW
        RowDrag(self.stage, box, of="dragstage").drop_at(self.left + target_x, self.top + 150)

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
