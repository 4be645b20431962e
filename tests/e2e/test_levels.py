"""The sensor levels and the lighting of a profile, set in the left and the bottom bar by pointer,
wheel and keyboard: after Apply the whole settings file is compared with what it must hold."""

import unittest

from leveltests import (CPI_1600, CPI_2400, CPI_3200, EDITED, LOW, OFF, ORANGE_COLOUR,
                        VIOLET_COLOUR, Bars, OpenBars, light)
from lightingbars import (BOTTOM, COLOR, CPI, INTENSITY, LEFT, ORANGE, PULSATION, SLIDERS, TITLES,
                          VIOLET)
from settingsfile import SENSOR, differences
from stage import MAIN_TITLE, wait_for

RIGHT = "Button Functions"
UP, DOWN = 4, 5  # the wheel's buttons


class Pointer(OpenBars):
    current_profile = 1

    def test_eleven_values_of_a_profile_are_set_and_applied(self):
        self.switch_to(EDITED)
        wait_for(lambda: self.bottom.shown_colour() == (40, 80, 100), "the profile's colour")
        self.left.choose(CPI, CPI_2400)
        self.left.click_slider("DBCLICK_SPEED", 7)
        self.left.click_slider("SCROLL_SPEED", 1)
        self.left.click_slider("SENSITIVITY", 8)
        self.left.drag_slider("ADVANCED_SEN_X", 5, 9)
        self.left.drag_slider("ADVANCED_SEN_Y", 2, 10)
        self.left.drag_slider("SCROLL_SPEED", 1, 10)
        self.left.drag_slider("DBCLICK_SPEED", 3, 9)
        self.assertEqual(self.bottom.pick(ORANGE), ORANGE_COLOUR)
        wait_for(lambda: self.bottom.shown_colour() == ORANGE_COLOUR, "an orange button")
        self.assertEqual(self.bottom.pick(VIOLET), VIOLET_COLOUR)
        self.bottom.choose(INTENSITY, OFF)
        self.bottom.choose(PULSATION, LOW)
        self.assertEqual(self.file_state(), self.untouched, "nothing is written before Apply")
        self.apply()
        values = dict(zip(SENSOR, (CPI_2400, 9, 10, 8, 9, 10))) | light(VIOLET_COLOUR)
        values |= {"LED_INTENSITY": OFF, "LED_PULSATION": LOW}
        self.assert_file(PROFILE_ID=EDITED - 1, PROFILE_4=values)
        self.assertEqual(len(differences(self.file(), self.settings)), 12, "each value is another")
        for key, value in values.items():
            self.assertIn(f" {key}={value} ", self.taken()[0])
        # Messages keep their order: a second change would have been taken before this answer.
        self.told_to_mouse("org.kt7r4.VirtualMouse.Describe")
        self.assertEqual(len(self.taken()), 1)


class Sliders(OpenBars):
    def test_every_level_is_reached(self):
        """Also those past the end of a slider; the lowest one is 1."""
        for key in SLIDERS:
            self.left.drag_slider(key, 5, 0)
        self.assert_profile(**dict.fromkeys(SLIDERS, 1))
        for level, key in enumerate(SLIDERS, 2):
            self.left.click_slider(key, level)
        self.assert_profile(**{key: level for level, key in enumerate(SLIDERS, 2)})
        for level, key in zip((7, 8, 9, 10, 9), SLIDERS):
            self.left.drag_slider(key, 3, level)
        self.assert_profile(**dict(zip(SLIDERS, (7, 8, 9, 10, 9))))

    def test_a_drag_leaves_the_windows_where_they_are(self):
        windows = [self.stage.frame(title) for title in (MAIN_TITLE, LEFT)]
        for key in SLIDERS:
            self.left.drag_slider(key, 1, 10)
        self.apply()
        self.assertEqual([self.stage.frame(title) for title in (MAIN_TITLE, LEFT)], windows)

    def test_the_wheel_moves_the_slider_below_the_pointer(self):
        # 3 and 6 at first.
        self.stage.move_to(*self.left.slider_point("ADVANCED_SEN_X", 2))
        for count, button in enumerate((UP, UP, DOWN, UP), 1):
            self.stage.output("xdotool", "click", str(button))
            self.wait_for_count("IDC_PROGRESSBAR_ADVSENSX", count)
        self.stage.move_to(*self.left.slider_point("DBCLICK_SPEED", 2))
        self.stage.output("xdotool", "click", str(DOWN))
        self.wait_for_count("IDC_PROGRESSBAR_DBCLICK", 1)
        self.assert_profile(ADVANCED_SEN_X=5, DBCLICK_SPEED=5)


class Colours(OpenBars):
    def test_a_picked_colour_is_shown_and_applied(self):
        self.assertNotEqual(self.line_colour(), ORANGE_COLOUR)
        self.assertEqual(self.bottom.pick(ORANGE), ORANGE_COLOUR)
        wait_for(lambda: self.bottom.shown_colour() == ORANGE_COLOUR, "an orange button")
        wait_for(lambda: self.line_colour() == ORANGE_COLOUR, "an orange line")
        self.assert_profile(**light(ORANGE_COLOUR))

    def test_the_pixel_below_the_pointer_is_picked(self):
        """Up to the frame, which lies over the outermost two points."""
        for point in (2, 2), (70, 12), (33, 50), (115, 70), (115, 93):
            colour = self.bottom.pick(point)
            wait_for(lambda: self.line_colour() == colour, f"a line of {colour}")
            self.assert_profile(**light(colour))


class Keyboard(Bars):
    """Every control is reached with the tab key."""

    def keys(self, *names):
        for name in names:
            self.stage.key(name)

    def go(self, *ways):
        """Through the windows with the tab key: (key, the title of the next one)."""
        for key, title in ways:
            self.keys(key)
            self.stage.wait_for_active(title)

    def open_bar(self, bar):
        """By its handle, which has the keyboard."""
        self.keys("space")
        self.stage.wait_for_size(bar.title, bar.size)

    def open_by_space(self, button):
        self.keys("space")
        self.stage.wait_for_active(TITLES[button])

    def end_by(self, button, *names):
        """The last of these keys ends what the button has opened."""
        self.keys(*names)
        self.stage.wait_for_active(self.key_window(button))
        self.stage.wait_for_no_window(TITLES[button])

    def test_everything_is_set_and_applied(self):
        back = "shift+Tab"
        self.go((back, BOTTOM))
        self.open_bar(self.bottom)
        self.keys("Tab")
        self.open_by_space(COLOR)
        self.end_by(COLOR, *["Down"] * 9, "Right", "Return")
        self.go((back, BOTTOM))
        self.open_by_space(PULSATION)
        self.end_by(PULSATION, "Down", "Down", "Down", "Up", "Return")
        self.go((back, BOTTOM))
        self.keys(back)
        self.open_by_space(INTENSITY)
        self.end_by(INTENSITY, "End", "Return")
        self.go((back, BOTTOM))
        self.keys(*[back] * 3)
        self.go((back, RIGHT), (back, LEFT))
        self.open_bar(self.left)
        self.keys("Tab")
        self.open_by_space(CPI)
        self.end_by(CPI, "Up", "Up", "Return")
        self.keys("Tab", "Left", "Tab", "Right", "Right", "Tab", "End", "Tab", "Up", "Tab", "Home")
        self.keys(*[back] * 6)
        self.go((back, MAIN_TITLE))
        wait_for(self.apply_changed, "an enabled Apply")
        self.keys("space")
        wait_for(self.taken, "the driver process taking the settings")
        self.assert_file(PROFILE_4=dict(zip(SENSOR, (CPI_3200, 5, 3, 10, 4, 1))) |
                         light((0, 0, 255)) | {"LED_INTENSITY": OFF, "LED_PULSATION": LOW})

    def test_escape_leaves_everything_as_it_was(self):
        self.go(("shift+Tab", BOTTOM))
        self.open_bar(self.bottom)
        self.keys("Tab")
        for button in COLOR, PULSATION:
            self.open_by_space(button)
            self.end_by(button, "Down", "Escape")
            self.go(("shift+Tab", BOTTOM))
        self.keys(*["shift+Tab"] * 3)
        self.go(("shift+Tab", RIGHT), ("shift+Tab", LEFT))
        self.open_bar(self.left)
        self.keys("Tab")
        self.open_by_space(CPI)
        self.end_by(CPI, "Up", "Escape")
        self.assert_untouched(self.untouched)
        self.assertFalse(self.apply_changed())


class FineScreen(OpenBars):
    """The same on a screen of twice the resolution."""

    screen = {"size": "2400x1800", "scale": 2}

    def test_a_point_of_the_picture_has_the_same_colour(self):
        for point, expected in (ORANGE, ORANGE_COLOUR), (VIOLET, VIOLET_COLOUR):
            for off in (0, 0), (1, 1):
                self.assertEqual(self.bottom.pick(point, off), expected)
                wait_for(lambda: self.line_colour() == expected, f"a line of {expected}")
        self.assert_profile(**light(VIOLET_COLOUR))

    def test_each_pixel_of_a_point_is_picked(self):
        for off in (0, 0), (1, 0), (0, 1), (1, 1):
            colour = self.bottom.pick((70, 12), off)
            wait_for(lambda: self.line_colour() == colour, f"a line of {colour}")
        self.assert_profile(**light(colour))

    def test_levels_are_set(self):
        self.left.choose(CPI, CPI_1600)
        self.left.click_slider("SENSITIVITY", 6)
        self.left.drag_slider("ADVANCED_SEN_Y", 2, 10)
        self.bottom.choose(PULSATION, OFF)
        self.assert_profile(DPI_VALUE=CPI_1600, SENSITIVITY=6, ADVANCED_SEN_Y=10,
                            LED_PULSATION=OFF)


if __name__ == "__main__":
    unittest.main(verbosity=2)
