"""The left and the bottom bar with a profile's levels and lighting: where everything in them and in
the lists they open lies on the screen, and what a player does with it."""

from controlwindow import ControlWindow
from stage import ROW_HEIGHT, control_rectangles, let_time_pass, wait_for

# Each bar's title, the place of its handle from the main window's upper left corner, its open size.
LEFT_BAR = "Mouse Properties", (-8, 320), (202, 452)
BOTTOM_BAR = "Illumination Settings", (327, 648), (466, 101)
LEFT, BOTTOM = LEFT_BAR[0], BOTTOM_BAR[0]

CPI, COLOR, INTENSITY, PULSATION = "btnDPI", "btnColorButton", "btnIntensity", "btnPulsation"
# The title of what each button opens.
TITLES = {CPI: "CPI value", COLOR: "Color", INTENSITY: "Intensity", PULSATION: "Pulsation"}
ROWS = {CPI: 6, INTENSITY: 4, PULSATION: 4}
# The colour picture's left edge from its button's, and its upper edge from the button's lower one.
PICTURE_OFF = 4, -3
PICTURE_SIZE = 118, 96
# Plain colours in the picture: where each lies from its upper left corner.
ORANGE, VIOLET, WHITE = (18, 86), (76, 86), (100, 86)
SWATCH = 4, 3, 94, 20  # within the colour button, where it shows the colour

# The sliders, by the settings' names for what they change.
SLIDERS = {"DBCLICK_SPEED": "dbClickSpeedBar", "SCROLL_SPEED": "scrollSpeedBar",
           "SENSITIVITY": "pointSpeedBar", "ADVANCED_SEN_X": "advSensXBar",
           "ADVANCED_SEN_Y": "advSensYBar"}
LEVELS = 9  # that the length of a slider is divided into
SAME_PRESS = 0.2  # seconds


def let_pass():
    """Lets the time pass in which a press may be the one that has just taken the keyboard from a
    list: such a press opens nothing."""
    let_time_pass(SAME_PRESS)


class LevelBar(ControlWindow):
    """A bar with buttons that open lists."""

    def __init__(self, stage, bar, controls):
        title, self.handle, self.size = bar
        super().__init__(stage, title, controls)

    def open(self):
        self.stage.open_bar(self.title, self.handle, self.size)

    def open_list(self, button):
        """By a click on its button."""
        self.click(button)
        self.stage.wait_for_active(TITLES[button])

    def list_place(self, button):
        """Where the list of a button belongs: directly below it."""
        x, y, width, height = self.box_of(button)
        return x, y + height, width, self.stage.scale * ROW_HEIGHT * ROWS[button]

    def choose(self, button, row):
        """A row of the list of a button, which closes on that."""
        self.open_list(button)
        self.stage.click_list_row(row, TITLES[button])
        self.stage.wait_for_no_window(TITLES[button])


class MouseProperties(LevelBar):
    """The left bar."""

    def __init__(self, stage):
        super().__init__(stage, LEFT_BAR, control_rectangles("panels/leftbarcontrols.h"))

    def slider_point(self, key, level):
        """Where on the screen a slider stands for a level: past its end for the last ones."""
        x, y, width, height = self.box_of(SLIDERS[key])
        share = (level + 0.5) / LEVELS
        if width > height:
            return x + int(width * share), y + height // 2
        return x + width // 2, y + height - int(height * share)

    def click_slider(self, key, level):
        self.stage.click(*self.slider_point(key, level))

    def drag_slider(self, key, first, level):
        """Presses at one level and releases at another."""
        self.stage.drag(self.slider_point(key, first), self.slider_point(key, level))


class Illumination(LevelBar):
    """The bottom bar."""

    def __init__(self, stage):
        super().__init__(stage, BOTTOM_BAR, control_rectangles("panels/bottombarcontrols.h"))

    def picture_place(self):
        """Where the colour picture belongs."""
        x, y, _, height = self.box_of(COLOR)
        scale = self.stage.scale
        return (x + scale * PICTURE_OFF[0], y + height + scale * PICTURE_OFF[1],
                *(scale * length for length in PICTURE_SIZE))

    def picture_pixel(self, point, off=(0, 0)):
        """A point of the open picture on the screen, or a finer pixel in it."""
        left, top, _, _ = self.stage.frame(TITLES[COLOR])
        scale = self.stage.scale
        return left + scale * point[0] + off[0], top + scale * point[1] + off[1]

    def colour_at(self, pixel):
        return tuple(self.stage.pixels((*pixel, 1, 1)))

    def wait_for_picture(self):
        """Until it is painted."""
        white = self.picture_pixel(WHITE)
        wait_for(lambda: self.colour_at(white) == (255, 255, 255), "the painted picture")

    def open_picture(self):
        self.open_list(COLOR)
        self.wait_for_picture()

    def pick(self, point, off=(0, 0)):
        """Takes what is at a point of the picture, which closes on that; gives the colour."""
        self.open_picture()
        pixel = self.picture_pixel(point, off)
        colour = self.colour_at(pixel)
        self.stage.click(*pixel)
        self.stage.wait_for_no_window(TITLES[COLOR])
        return colour

    def shown_colour(self):
        """What the colour button shows."""
        x, y, _, _ = self.place(COLOR)
        left, top, width, height = self.box((x + SWATCH[0], y + SWATCH[1], *SWATCH[2:]))
        return self.colour_at((left + width // 2, top + height // 2))
