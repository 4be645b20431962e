"""What lies behind the see-through parts of a window shows: where no compositing manager runs the
window is cut out, where one runs it is blended, and the utility follows one that comes or goes."""

import pathlib
import sys
import unittest
import zlib

from stage import MAIN_TITLE, Stage, wait_for

TOOLS = pathlib.Path(sys.argv.pop(1)).resolve()
SKIN = TOOLS.parent / "src/resources/skin"
BEHIND = (255, 0, 255)
SLOPE = (0, 200, 0)
# A bar by its title: its handle from the main window's upper left corner, its size, its picture.
BARS = {"Mouse Properties": ((-8, 320), (202, 452), "leftBar"),
        "Button Functions": ((662, 320), (200, 461), "rightN"),
        "Illumination Settings": ((327, 648), (466, 101), "bottomBar")}
ABOUT_ROW = 1


def first_alpha(name):
    """The opacity of a picture's upper left pixel, which no filter of the file's form changes."""
    data = (SKIN / f"{name}.png").read_bytes()
    at, packed = 8, b""
    while at < len(data):
        length = int.from_bytes(data[at:at + 4], "big")
        if data[at + 4:at + 8] == b"IDAT":
            packed += data[at + 8:at + 8 + length]
        at += 12 + length
    has_alpha = data[25] == 6
    return zlib.decompress(packed)[4] if has_alpha else 255


class ShapeStage(unittest.TestCase):
    SCALE = 1

    def setUp(self):
        self.stage = Stage(size="2600x2040" if self.SCALE == 2 else "1280x1024", scale=self.SCALE)
        self.addCleanup(self.stage.close)
        self.stage.start(TOOLS / "shapestage")
        self.stage.wait_for_active("Backdrop")
        self.stage.wait_for_window("Slope")

    def start_compositing(self):
        return self.stage.start("xcompmgr", "-n")

    def colours(self, box):
        data = self.stage.pixels(box)
        return [tuple(data[at:at + 3]) for at in range(0, len(data), 3)]


class Slope(ShapeStage):
    """A picture of which every pixel is known."""

    def steps(self):
        """The colours of the slope's window, each with how far it is from the slope's first pixel,
        which is not quite half opaque."""
        left, top, width, height = self.stage.frame("Slope")
        whole = 120 * self.SCALE
        colours = iter(self.colours((left, top, width, height)))
        return [(x + whole - width - y, next(colours)) for y in range(height)
                for x in range(width)]

    def is_cut_out(self):
        def expected(step, colour):
            if step <= 0:
                return colour == BEHIND
            return colour != BEHIND if step == 1 else colour == SLOPE
        return all(expected(*step) for step in self.steps())

    def is_blended(self):
        def expected(step, colour):
            if step in (0, 1):
                return all(a < b < c or a > b > c for a, b, c in zip(BEHIND, colour, SLOPE))
            return colour == (BEHIND if step < 0 else SLOPE)
        return all(expected(*step) for step in self.steps())

    def resize(self, width):
        left, top, now, _ = self.stage.frame("Slope")
        self.stage.click(left + now - 2, top + 1)
        wait_for(lambda: self.stage.frame("Slope")[2] == width * self.SCALE, "another width")
        self.stage.move_to(0, 0)

    def test_it_is_cut_out_to_the_pixel_at_every_size(self):
        wait_for(self.is_cut_out, "a window that is cut out")
        for width in (70, 120, 70):
            self.resize(width)
            wait_for(self.is_cut_out, f"a window that is cut out, {width} wide")

    def test_a_compositing_manager_is_followed(self):
        for _ in range(2):
            manager = self.start_compositing()
            wait_for(self.is_blended, "a blended window")
            self.resize(70)
            wait_for(self.is_blended, "a narrower blended window")
            manager.stop()
            wait_for(self.is_cut_out, "a window that is cut out")
            self.resize(120)
            wait_for(self.is_cut_out, "a wide window that is cut out")


class FineSlope(Slope):
    """The same on a screen of twice the resolution."""

    SCALE = 2


class Utility(ShapeStage):
    """The utility's windows."""

    def start_utility(self):
        self.stage.start(TOOLS / "kyrgm_at", self.stage.settings)
        self.stage.wait_for_active(MAIN_TITLE)
        wait_for(lambda: BEHIND not in self.colours(self.stage.control_box("ButtonApply")),
                 "a painted window")

    def corner(self, title):
        """The colour at the upper left corner of a window."""
        left, top, _, _ = self.stage.frame(title)
        return self.colours((left, top, 1, 1))[0]

    def wait_for_corner(self, title, picture):
        """Behind a picture's see-through corner is what lies there, which no opaque one shows."""
        shows = first_alpha(picture) < 128
        wait_for(lambda: (self.corner(title) == BEHIND) == shows,
                 lambda: f"the corner of {title!r}, now {self.corner(title)}")

    def wait_for_main_window(self, is_cut_out):
        shape = "Window shape extents" if is_cut_out else "No window shape defined"
        window = self.stage.wait_for_window(MAIN_TITLE)
        wait_for(lambda: shape in self.stage.output("xwininfo", "-shape", "-id", window), shape)
        self.wait_for_corner(MAIN_TITLE, "mainbk")

    def check_all_windows(self):
        self.wait_for_corner(MAIN_TITLE, "mainbk")
        for title, (handle, size, picture) in BARS.items():
            self.stage.open_bar(title, handle, size)
            self.wait_for_corner(title, picture)
        self.stage.choose("BtnHelpMenu", ABOUT_ROW)
        # From before the main window to where the other one shows behind it.
        self.stage.output("xdotool", "windowmove", self.stage.wait_for_window("About"), "200", "20")
        wait_for(lambda: self.stage.frame("About")[:2] == (200, 20), "the dialog elsewhere")
        self.wait_for_corner("About", "About_n")

    def test_the_windows_are_cut_out(self):
        self.start_utility()
        self.check_all_windows()

    def test_the_windows_are_blended(self):
        self.start_compositing()
        self.start_utility()
        self.wait_for_main_window(is_cut_out=False)
        self.check_all_windows()

    def test_a_compositing_manager_is_followed(self):
        self.start_utility()
        self.wait_for_main_window(is_cut_out=True)
        manager = self.start_compositing()
        self.wait_for_main_window(is_cut_out=False)
        manager.stop()
        self.wait_for_main_window(is_cut_out=True)


class FineUtility(Utility):
    """The same on a screen of twice the resolution."""

    SCALE = 2


if __name__ == "__main__":
    unittest.main(verbosity=2)
