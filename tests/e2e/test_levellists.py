"""The lists and the colour picture that the buttons of the left and the bottom bar open: where they
open, what closes them, and who has the keyboard then."""

import unittest

from closewindow import close_window
from leveltests import CPI_1600, CPI_2400, VIOLET_COLOUR, OpenBars, light
from lightingbars import (COLOR, CPI, INTENSITY, LEFT, PULSATION, SLIDERS, TITLES, VIOLET, let_pass)
from stage import MAIN_TITLE, VIEW_HEIGHT, wait_for
from test_main_job import TOOLS

OTHER_TITLE = "Drag Stage"
BACKGROUND = 330, 570  # of the main window
SCREEN_HEIGHT = 1024


class OpenLists(OpenBars):
    def open_each_below_its_button(self):
        for button in TITLES:
            self.bar_of(button).open_list(button)
            self.assertEqual(self.stage.frame(TITLES[button]), self.place_of(button))
            self.stage.key("Escape")
            self.stage.wait_for_active(self.key_window(button))


class Lists(OpenLists):
    def test_each_opens_below_its_button(self):
        self.open_each_below_its_button()

    def test_each_opens_above_its_button_at_the_lower_edge_of_the_screen(self):
        bar_top = SCREEN_HEIGHT - self.bottom.size[1]
        self.stage.output("xdotool", "windowmove", self.stage.wait_for_window(MAIN_TITLE), "300",
                          str(bar_top - VIEW_HEIGHT))
        wait_for(lambda: self.bottom.frame()[1] == bar_top, "the moved bar")
        for button in COLOR, INTENSITY, PULSATION:
            self.bottom.open_list(button)
            x, y, width, height = self.place_of(button)
            _, top, _, button_height = self.bottom.box_of(button)
            gap = y - (top + button_height)
            self.assertEqual(self.stage.frame(TITLES[button]),
                             (x, top - gap - height, width, height))
            self.stage.key("Escape")
            self.stage.wait_for_active(MAIN_TITLE)
        self.assertEqual(self.bottom.pick(VIOLET), VIOLET_COLOUR)
        self.assert_profile(**light(VIOLET_COLOUR))

    def test_a_click_on_a_button_closes_what_is_open_and_opens_nothing(self):
        pairs = ((INTENSITY, PULSATION), (PULSATION, COLOR), (COLOR, INTENSITY), (CPI, CPI),
                 (INTENSITY, INTENSITY))
        for number, (first, second) in enumerate(pairs):
            bar = self.bar_of(first)
            bar.open_list(first)
            bar.click(second)
            self.stage.wait_for_active(self.key_window(first))
            self.stage.wait_for_no_window(TITLES[first])
            self.assertEqual(self.closings(), 2 * number + 1)
            # The next click opens: of the last one nothing is left.
            bar.open_list(second)
            self.assertEqual(self.closings(), 2 * number + 1)
            self.stage.key("Escape")
            self.wait_for_count("CloseListBox", 2 * number + 2)
            self.stage.wait_for_no_window(TITLES[second])
        self.assert_untouched(self.untouched)
        self.assertFalse(self.apply_changed())

    def test_a_list_of_the_other_bar_opens_at_once_and_stays(self):
        order = CPI, INTENSITY, CPI, COLOR, CPI
        for button in order:
            self.bar_of(button).open_list(button)
            let_pass()
        self.wait_for_count("CloseListBox", len(order) - 1)
        self.stage.wait_for_window_manager()
        self.assertEqual(self.stage.active_title(), TITLES[CPI])
        self.stage.click_list_row(CPI_1600, TITLES[CPI])
        self.stage.wait_for_active(LEFT)
        self.assert_profile(DPI_VALUE=CPI_1600)

    def test_a_click_on_the_main_window_closes_them(self):
        for count, button in enumerate(TITLES, 1):
            self.bar_of(button).open_list(button)
            self.stage.click(*self.stage.at(BACKGROUND))
            self.stage.wait_for_no_window(TITLES[button])
            self.wait_for_count("windowKeyChange", count)
            self.assertEqual(self.closings(), count)
            let_pass()
        self.assertEqual(self.file_state(), self.untouched)
        self.assertFalse(self.apply_changed())

    def test_another_program_takes_the_keyboard_and_keeps_it(self):
        self.stage.start(TOOLS / "dragstage")
        self.stage.wait_for_active(OTHER_TITLE)
        for count, button in enumerate(TITLES, 1):
            self.bar_of(button).open_list(button)
            self.stage.key("alt+Tab")
            self.stage.wait_for_active(OTHER_TITLE)
            self.stage.wait_for_no_window(TITLES[button])
            self.assertEqual(self.closings(), count)
            self.stage.wait_for_window_manager()
            self.assertEqual(self.stage.active_title(), OTHER_TITLE)
            let_pass()

    def test_the_desktop_may_close_them(self):
        for count, button in enumerate(TITLES, 1):
            self.bar_of(button).open_list(button)
            window = int(self.stage.window(TITLES[button]))
            close_window(self.stage.environment["DISPLAY"], window)
            self.stage.wait_for_no_window(TITLES[button])
            self.stage.wait_for_active(self.key_window(button))
            self.assertEqual(self.closings(), count)
            let_pass()
        self.assertFalse(self.apply_changed())

    def test_a_double_click_on_a_row_moves_no_slider_below(self):
        self.left.open_list(CPI)
        x, y, width, height = self.left.box_of(SLIDERS["DBCLICK_SPEED"])
        row = x + width // 2, y + height // 2
        self.stage.move_to(*row)
        self.stage.output("xdotool", "click", "--repeat", "2", "--delay", "80", "1")
        self.stage.wait_for_no_window(TITLES[CPI])
        self.assert_profile(DPI_VALUE=CPI_2400)
        self.assertEqual(self.count("IDC_PROGRESSBAR_DBCLICK"), 0)


class FineScreen(OpenLists):
    """The same on a screen of twice the resolution."""

    screen = {"size": "2400x2000", "scale": 2}

    def test_each_opens_below_its_button(self):
        self.open_each_below_its_button()


if __name__ == "__main__":
    unittest.main(verbosity=2)
