"""The dialog that names a profile's game character and the badge that shows it: where they lie on
the screen, and what a player does there."""

from controlwindow import DialogWindow
from portraits import SIZE
from stage import control_rectangles

TITLE, REGIONS_TITLE = "Add a Kyr Character", "Region"
REALM_FIELD = "pTextfieldRealm"
EUROPE = 1  # row of the regions
# From the main window's upper left corner.
BADGE = 58, 152, 141, 65
PORTRAIT = 58, 152, 68, 65
AREA_MIDDLE = 128, 185


def badge_box(stage, part=BADGE):
    """On the screen, y downwards."""
    x, y, width, height = part
    return *stage.at((x, y)), stage.scale * width, stage.scale * height


def portrait_pixel(stage, point):
    """Where on the screen a point of the portrait's file is."""
    x, y, width, height = badge_box(stage, PORTRAIT)
    return x + point[0] * width // SIZE, y + point[1] * height // SIZE


def open_dialog(stage):
    """By a click where the badge has its place."""
    stage.click(*stage.at(AREA_MIDDLE))
    return CharacterDialog(stage)


class CharacterDialog(DialogWindow):
    def __init__(self, stage):
        super().__init__(stage, TITLE, control_rectangles("panels/charinfocontrols.h")
                         | control_rectangles("panels/charInfoView.cpp"))

    def type(self, text):
        """Into the field that has the keyboard."""
        self.stage.output("xdotool", "type", "--delay", "4", text)

    def open_regions(self):
        self.click("ButtonRegion")
        self.stage.wait_for_active(REGIONS_TITLE)

    def choose_region(self, row):
        self.open_regions()
        self.stage.click_list_row(row, REGIONS_TITLE)
        self.stage.wait_for_no_window(REGIONS_TITLE)
        self.stage.wait_for_active(TITLE)

    def enter(self, realm, name):
        """Into the empty dialog."""
        self.type(f"{realm}\t{name}")

    def confirm_by_key(self):
        self.stage.key("Return")
        self.stage.wait_for_no_window(TITLE)
