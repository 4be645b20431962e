"""Both programs on a file in which every value is set, and what a player does in the left and the
bottom bar."""

import plistlib

from lightingbars import COLOR, CPI, LEFT, Illumination, MouseProperties
from settingsfile import rich_settings
from stage import MAIN_TITLE, Stage, wait_for
from test_profiles import RichSettings

EDITED = 4  # the number of the profile that is edited
ORANGE_COLOUR, VIOLET_COLOUR = (255, 60, 0), (128, 0, 255)
CPI_1600, CPI_2400, CPI_3200 = 1, 2, 3
LOW, OFF = 2, 3
LINE_BELOW = 7  # from the lower edge of a profile's key to the middle of the line in its colour


def light(colour):
    return dict(zip(("LED_COLOR_R", "LED_COLOR_G", "LED_COLOR_B"), colour))


class Bars(RichSettings):
    current_profile = EDITED
    screen = {}

    def new_stage(self):
        stage = Stage(**self.screen)
        self.settings = rich_settings() | {"PROFILE_ID": self.current_profile - 1}
        stage.settings.write_bytes(plistlib.dumps(self.settings))
        return stage

    def setUp(self):
        super().setUp()
        self.left, self.bottom = MouseProperties(self.stage), Illumination(self.stage)
        self.untouched = self.file_state()

    def bar_of(self, button):
        return self.left if button == CPI else self.bottom

    def key_window(self, button):
        """Who has the keyboard after what the button opens."""
        return LEFT if button == CPI else MAIN_TITLE

    def place_of(self, button):
        """Where on the screen belongs what the button opens."""
        if button == COLOR:
            return self.bottom.picture_place()
        return self.bar_of(button).list_place(button)

    def line_colour(self):
        """Of the line below the key of the profile."""
        x, y, width, height = self.stage.control_box(f"BtnProfile{EDITED}")
        below = y + height + self.stage.scale * LINE_BELOW
        return tuple(self.stage.pixels((x + width // 2, below, 1, 1)))

    def count(self, line):
        return self.utility.lines().count(line)

    def wait_for_count(self, line, count):
        wait_for(lambda: self.count(line) == count, f"{count} times {line!r}")

    def closings(self):
        return self.count("CloseListBox")

    def assert_profile(self, **values):
        self.apply()
        self.assert_file(**{f"PROFILE_{EDITED}": values})


class OpenBars(Bars):
    def setUp(self):
        super().setUp()
        for bar in self.left, self.bottom:
            bar.open()
