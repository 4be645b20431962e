"""Windows of the screen and the controls in them."""


class ControlWindow:
    """The controls are given as (x, y, width, height), y upwards."""

    def __init__(self, stage, title, controls):
        self.stage, self.title, self.controls = stage, title, controls

    def frame(self):
        return self.stage.frame(self.title)

    def place(self, name):
        return self.controls[name]

    def box(self, place):
        """On the screen, y downwards."""
        left, top, _, window_height = self.frame()
        x, y, width, height = (self.stage.scale * length for length in place)
        return left + x, top + window_height - y - height, width, height

    def box_of(self, name):
        return self.box(self.place(name))

    def click_place(self, place):
        x, y, width, height = self.box(place)
        self.stage.click(x + width // 2, y + height // 2)

    def click(self, name):
        self.click_place(self.place(name))


class DialogWindow(ControlWindow):
    """One that has the keyboard from its beginning."""

    def __init__(self, stage, title, controls):
        super().__init__(stage, title, controls)
        stage.wait_for_active(title)

    def close_by(self, name):
        self.click(name)
        self.stage.wait_for_no_window(self.title)
