"""The bars around the main window with a real window manager: they travel with the main window,
slide open and shut, come and go with it, and stay out of the task switcher."""

import pathlib
import re
import sys
import unittest

from stage import MAIN_TITLE, Stage, let_time_pass, wait_for

TOOLS = pathlib.Path(sys.argv.pop(1)).resolve()
LEFT = "Mouse Properties"
RIGHT = "Button Functions"
BOTTOM = "Illumination Settings"
BARS = (LEFT, RIGHT, BOTTOM)
OTHER_TITLE = "Drag Stage"
# The right bar's handle comes with the end of its slide, a few steps after the one that brings the
# bar to its place. In seconds, in which a whole slide takes place.
LAST_STEPS = 0.2
# Places off all controls, from the window's upper left corner.
BACKGROUND = {MAIN_TITLE: (330, 570), LEFT: (5, 8), RIGHT: (5, 8), BOTTOM: (8, 5)}


def place(bar, is_open):
    """Where a bar belongs, from the main window's upper left corner, y downwards."""
    if bar == LEFT:
        reach = 202 if is_open else 16
        return -reach, 94, reach, 452
    if bar == RIGHT:
        return 654, 90, 200 if is_open else 16, 461
    return 94, 640, 466, 101 if is_open else 16


def handle(bar, is_open):
    """Where its handle shows, from its own upper left corner, y downwards."""
    if bar == LEFT:
        return 1, 130, 15, 192
    if bar == RIGHT:
        return 185 if is_open else 0, 133, 15, 195
    return 137, 83 if is_open else 0, 192, 15


class RunningProgram(unittest.TestCase):
    """The program with its bars, and what a player does with them."""

    def setUp(self):
        self.stage = self.new_stage()
        self.addCleanup(self.stage.close)
        self.stage.start(TOOLS / "kyrgm_at", self.stage.settings)
        self.stage.wait_for_main_window()
        self.open = dict.fromkeys(BARS, False)
        self.wait_for_arrangement()

    def new_stage(self):
        return Stage()

    def scaled(self, lengths):
        return tuple(self.stage.scale * length for length in lengths)

    def main(self):
        return self.stage.frame(MAIN_TITLE)

    def frame_of(self, bar, main):
        """A bar's frame on the screen beside the main window's."""
        x, y, width, height = self.scaled(place(bar, self.open[bar]))
        return main[0] + x, main[1] + y, width, height

    def is_arranged(self, main):
        return self.main() == main and \
            all(self.stage.frame(bar) == self.frame_of(bar, main) for bar in BARS)

    def wait_for_arrangement(self, main=None):
        main = main or self.main()
        wait_for(lambda: self.is_arranged(main),
                 lambda: f"bars, open {self.open}, around {main}: {self.frames()}")

    def frames(self):
        return {title: self.stage.frame(title) for title in (MAIN_TITLE, *BARS)}

    def handle_box(self, bar):
        left, top, _, _ = self.frame_of(bar, self.main())
        x, y, width, height = self.scaled(handle(bar, self.open[bar]))
        return left + x, top + y, width, height

    def click_handle(self, bar, *options):
        x, y, width, height = self.handle_box(bar)
        self.stage.move_to(x + width // 2, y + height // 2)
        self.stage.output("xdotool", "click", *options, "1")
        self.stage.move_to(0, 0)

    def toggle(self, bar):
        self.click_handle(bar)
        self.open[bar] = not self.open[bar]
        self.wait_for_arrangement()
        if bar == RIGHT:
            let_time_pass(LAST_STEPS)

    def open_all(self):
        for bar in BARS:
            self.toggle(bar)

    def drag(self, window, steps):
        """Drags the window by its background to points beside its place, and checks the whole
        arrangement at each of them."""
        left, top, width, height = self.main()
        start = tuple(a + b for a, b in zip(self.stage.frame(window),
                                            self.scaled(BACKGROUND[window])))
        self.stage.move_to(*start)
        self.stage.output("xdotool", "mousedown", "1")
        for x, y in steps:
            self.stage.move_to(start[0] + x, start[1] + y)
            self.wait_for_arrangement((left + x, top + y, width, height))
        self.stage.output("xdotool", "mouseup", "1")

    def identity(self, title):
        return int(self.stage.wait_for_window(title))

    def property(self, window, name):
        return self.stage.output("xprop", "-id", str(window), name)

    def stacking(self):
        """The windows from the lowest to the topmost."""
        text = self.stage.output("xprop", "-root", "_NET_CLIENT_LIST_STACKING")
        return [int(number, 16) for number in re.findall(r"0x[0-9a-f]+", text)]

    def are_above(self):
        order = self.stacking()
        return all(order.index(self.identity(bar)) > order.index(self.identity(MAIN_TITLE))
                   for bar in BARS)


class Bars(RunningProgram):
    def test_every_bar_slides_open_and_shut(self):
        for bar in BARS:
            self.toggle(bar)
            self.toggle(bar)

    def test_all_bars_can_be_open(self):
        self.open_all()
        for bar in BARS:
            self.toggle(bar)

    def test_the_handle_shows_whether_the_bar_is_open(self):
        for bar in BARS:
            shut = self.stage.pixels(self.handle_box(bar))
            self.toggle(bar)
            wait_for(lambda: self.stage.pixels(self.handle_box(bar)) != shut, "another handle")
            self.toggle(bar)
            wait_for(lambda: self.stage.pixels(self.handle_box(bar)) == shut, "the handle again")

    def test_two_quick_clicks_leave_a_bar_at_one_of_its_ends(self):
        for bar in BARS:
            faces = {self.open[bar]: self.stage.pixels(self.handle_box(bar))}
            self.toggle(bar)
            wait_for(lambda: self.stage.pixels(self.handle_box(bar)) != faces[False], "a handle")
            faces[True] = self.stage.pixels(self.handle_box(bar))
            self.toggle(bar)
            wait_for(lambda: self.stage.pixels(self.handle_box(bar)) == faces[False], "a handle")
            main = self.main()
            # The second click finds the handle, or where it has slid away from.
            self.click_handle(bar, "--repeat", "2", "--delay", "20")

            def rests():
                for self.open[bar], face in faces.items():
                    if self.is_arranged(main) and self.stage.pixels(self.handle_box(bar)) == face:
                        return True
                return False
            wait_for(rests, f"{bar} at rest")
            self.toggle(bar)
            self.assertEqual(self.main(), main)

    def test_a_bar_is_turned_round_under_way(self):
        self.travel_to(LEFT)
        self.stage.output("xdotool", "key", "--delay", "5", "space", "space", "space")
        self.open[LEFT] = True
        self.wait_for_arrangement()
        self.stage.output("xdotool", "key", "--delay", "5", "space", "space")
        # Whether it set out or is back is seen by what comes after it.
        self.toggle(BOTTOM)
        wait_for(lambda: self.stage.frame(LEFT) == self.frame_of(LEFT, self.main()), "an open bar")

    def travel_to(self, title):
        def arrives():
            self.stage.key("Tab")
            return self.stage.active_title() == title
        wait_for(arrives, f"the tab key in {title!r}")

    def test_the_tab_key_goes_through_all_windows(self):
        for title in (LEFT, RIGHT, BOTTOM, MAIN_TITLE):
            self.travel_to(title)

    def test_the_handle_reached_by_the_tab_key_shows_it(self):
        plain = self.stage.pixels(self.handle_box(LEFT))
        self.travel_to(LEFT)
        wait_for(lambda: self.stage.pixels(self.handle_box(LEFT)) != plain, "a framed handle", 3)

    def test_the_bars_travel_with_a_drag_of_the_main_window(self):
        steps = ((5, 5), (40, 12), (-60, 50), (-61, 49), (-20, -90), (30, -40))
        self.drag(MAIN_TITLE, steps)
        self.open_all()
        self.drag(MAIN_TITLE, steps)

    def test_a_drag_of_a_bar_takes_everything_along(self):
        for bar in BARS:
            self.drag(bar, ((12, 6), (40, -12), (-30, 20)))
            self.toggle(bar)
            self.drag(bar, ((-12, 6), (-40, -12), (30, 20)))

    def test_dragged_up_the_main_window_stops_at_the_top(self):
        for window in (MAIN_TITLE, *BARS):
            left, top, width, height = self.main()
            x, y = (a + b for a, b in zip(self.stage.frame(window), BACKGROUND[window]))
            self.stage.drag((x, y), (x, y - top - 60))
            self.wait_for_arrangement((left, 0, width, height))
            self.drag(MAIN_TITLE, ((0, 50),))

    def test_a_panel_at_the_top_of_the_screen_is_kept_clear(self):
        panel = 40
        self.stage.start(TOOLS / "dragstage")
        self.stage.wait_for_active(OTHER_TITLE)
        taken = f"0, 0, {panel}, 0, 0, 0, 0, 0, 0, 1279, 0, 0"
        self.stage.output("xprop", "-id", self.stage.wait_for_window(OTHER_TITLE), "-f",
                          "_NET_WM_STRUT_PARTIAL", "32c", "-set", "_NET_WM_STRUT_PARTIAL", taken)
        wait_for(lambda: f"= 0, {panel}," in
                 self.stage.output("xprop", "-root", "_NET_WORKAREA"), "a smaller work area")
        for window in (MAIN_TITLE, *BARS):
            left, top, width, height = self.main()
            x, y = (a + b for a, b in zip(self.stage.frame(window), BACKGROUND[window]))
            self.stage.drag((x, y), (x, y - top - 60))
            self.wait_for_arrangement((left, panel, width, height))
            self.drag(MAIN_TITLE, ((0, 50),))

    def test_the_bars_travel_when_the_window_manager_moves_the_window(self):
        window = self.stage.wait_for_window(MAIN_TITLE)
        for is_open in (False, True):
            # Not so far out that the window manager keeps a bar on the screen.
            for x, y in ((250, 60), (40, 200), (590, 330)):
                self.stage.output("xdotool", "windowmove", window, str(x), str(y))
                self.wait_for_arrangement((x, y, 654, 640))
            self.stage.output("xdotool", "windowmove", window, "300", "100")
            if not is_open:
                self.wait_for_arrangement((300, 100, 654, 640))
                self.open_all()

    def test_all_windows_are_minimised_and_come_back_together(self):
        self.open_all()
        main = self.main()
        window = self.stage.wait_for_window(MAIN_TITLE)
        for _ in range(2):
            self.stage.click_control("BtnMin")
            for title in (MAIN_TITLE, *BARS):
                self.stage.wait_for_no_window(title)
            self.stage.output("xdotool", "windowactivate", window)
            self.stage.wait_for_active(MAIN_TITLE)
            self.wait_for_arrangement(main)
            wait_for(self.are_above, "bars above the main window")
        self.toggle(LEFT)

    def test_the_bars_are_attached_windows(self):
        main = self.identity(MAIN_TITLE)
        for bar in BARS:
            window = self.identity(bar)
            kinds = re.findall(r"_NET_WM_WINDOW_TYPE_\w+",
                               self.property(window, "_NET_WM_WINDOW_TYPE"))
            self.assertEqual(kinds[0], "_NET_WM_WINDOW_TYPE_UTILITY")
            owner = re.search(r"0x[0-9a-f]+", self.property(window, "WM_TRANSIENT_FOR"))
            self.assertEqual(int(owner.group(), 16), main)

    def test_the_bars_are_not_in_the_task_switcher(self):
        self.open_all()
        self.stage.start(TOOLS / "dragstage")
        self.stage.wait_for_active(OTHER_TITLE)
        for title in (MAIN_TITLE, OTHER_TITLE, MAIN_TITLE):
            self.stage.key("alt+Tab")
            self.stage.wait_for_active(title)
        # There are two windows to switch between: three steps lead to the other one.
        for steps, title in ((3, OTHER_TITLE), (3, MAIN_TITLE)):
            self.stage.output("xdotool", "keydown", "alt", *["key", "Tab"] * steps, "keyup", "alt")
            self.stage.wait_for_active(title)

    def test_the_bars_stay_above_the_main_window(self):
        wait_for(self.are_above, "bars above the main window")
        left, top, _, _ = self.main()
        self.stage.click(left + BACKGROUND[MAIN_TITLE][0], top + BACKGROUND[MAIN_TITLE][1])
        self.stage.wait_for_active(MAIN_TITLE)
        self.assertTrue(self.are_above())
        self.open_all()
        self.assertTrue(self.are_above())

    def test_the_bars_leave_the_keyboard_to_the_main_window(self):
        self.assertEqual(self.stage.active_title(), MAIN_TITLE)


class FineScreen(RunningProgram):
    """The same on a screen of twice the resolution."""

    def new_stage(self):
        return Stage(size="2400x1800", scale=2)

    def test_every_bar_slides_open_and_travels(self):
        self.drag(MAIN_TITLE, ((-20, 10), (32, 16)))
        self.open_all()
        self.drag(MAIN_TITLE, ((20, 10), (-32, 16)))
        self.drag(LEFT, ((20, 10), (0, -30)))


if __name__ == "__main__":
    unittest.main(verbosity=2)
