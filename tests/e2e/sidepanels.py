"""The right bar with its four panels: where everything in it lies on the screen, and what a player
does with it."""

from rowdrag import RowDrag
from stage import wait_for

RIGHT_BAR = "Button Functions"
# The place of the closed bar's handle from the main window's upper left corner, and the open size.
HANDLE, OPEN_SIZE = (662, 320), (200, 461)
PANELS_TOP = 55  # from the bar's upper edge
CONTENT_WIDTH = 175
TREE_TOGGLE = 156, PANELS_TOP, 17, 22  # with room for both its places
HEADER_MIDDLE = 10
ARROW = 5  # from a tree row's left end
SELECTED_ROW = bytes((41, 41, 41))

TREE, CPI, PROFILES, MACROS = range(4)
# Heights of each panel: collapsed, which is also where its rows begin, expanded, and of a row.
HEIGHTS = ((30, 250, 18), (30, 250, 20), (30, 250, 18), (50, 290, 20))


class SidePanels:
    """Keeps count of which panel is expanded."""

    def __init__(self, stage):
        self.stage = stage
        self.expanded = None

    def open(self):
        self.stage.open_bar(RIGHT_BAR, HANDLE, OPEN_SIZE)

    def wait_until_open(self):
        self.stage.wait_for_size(RIGHT_BAR, OPEN_SIZE)

    def box(self, x, y, width, height):
        """A part of the bar, given from its upper left corner, on the screen."""
        left, top, _, _ = self.stage.frame(RIGHT_BAR)
        x, y, width, height = (self.stage.scale * length for length in (x, y, width, height))
        return left + x, top + y, width, height

    def whole(self):
        return self.box(0, 0, *OPEN_SIZE)

    def panel_top(self, panel):
        above = range(panel)
        return PANELS_TOP + sum(HEIGHTS[other][other == self.expanded] for other in above)

    def row(self, panel, row):
        """A visible row of the expanded panel, counted from its first one in sight."""
        begin, _, height = HEIGHTS[panel]
        return self.box(0, self.panel_top(panel) + begin + row * height, CONTENT_WIDTH, height)

    def toggle(self):
        """The plus or minus of the topmost panel."""
        return self.box(*TREE_TOGGLE)

    def click_shown(self, box):
        """Clicks the middle of a part of the bar, and waits until the bar shows the effect."""
        x, y, width, height = box
        self.stage.move_to(x + width // 2, y + height // 2)
        before = self.stage.pixels(self.whole())
        self.stage.output("xdotool", "click", "1")
        wait_for(lambda: self.stage.pixels(self.whole()) != before, "the click's effect")

    def expand(self, panel):
        """By a click on its header; the panel that was expanded collapses."""
        header = 0, self.panel_top(panel), CONTENT_WIDTH, 2 * HEADER_MIDDLE
        self.click_shown(self.box(*header))
        self.expanded = panel

    def open_category(self, row):
        """By a click on the arrow of that row of the tree."""
        x, y, _, height = self.row(TREE, row)
        self.click_shown((x, y, 2 * ARROW * self.stage.scale, height))

    def choose(self, panel, row):
        self.click_shown(self.row(panel, row))

    def is_selected(self, panel, row):
        """Whether the row has the colour of a selected one, left of its text and clear of the frame
        that shows the keyboard."""
        x, y, _, height = self.row(panel, row)
        margin = 2 * self.stage.scale
        place = x + margin, y + margin, margin, height - 2 * margin
        return self.stage.pixels(place) == SELECTED_ROW * place[2] * place[3]

    def wait_until_selected(self, panel, row):
        wait_for(lambda: self.is_selected(panel, row), f"row {row} of panel {panel} selected")

    def begin_drag(self, panel, row):
        return RowDrag(self.stage, self.row(panel, row))
