"""A row dragged with the real pointer as a person does it, who sees its picture come along."""

from stage import wait_for

PRESSED_AT = 50  # from the row's left end: no arrow of a tree is there


class RowDrag:
    """A drag that has begun: the row's picture is up."""

    def __init__(self, stage, row, of="kyr"):
        """`row` is its (x, y, width, height) on the screen, `of` the class of the windows."""
        self.stage, self.row, self.window_class = stage, row, of
        self.before = self.windows()
        press_row(stage, row)
        leave_row(stage, row)
        self.picture = wait_for(lambda: self.windows() - self.before, "the row's picture").pop()

    def windows(self):
        return self.stage.windows_of(self.window_class)

    def move_to(self, x, y):
        """Moves the pointer there, and waits until the picture has followed it."""
        self.stage.move_to(x, y)
        wait_for(lambda: self.is_at(x, y), "the picture at the pointer")

    def is_at(self, x, y):
        start = pressed_at(self.stage, self.row)
        place = self.row[0] + x - start[0], self.row[1] + y - start[1]
        found = self.stage.frame_of(self.picture)[:2]
        # It lies in whole steps of the scale.
        return all(abs(a - b) < self.stage.scale for a, b in zip(found, place))

    def wait_for_end(self):
        wait_for(lambda: self.picture not in self.windows(), "the end of the drag")

    def release(self):
        self.stage.release()
        self.wait_for_end()

    def drop_at(self, x, y):
        self.move_to(x, y)
        self.release()


def pressed_at(stage, row):
    x, y, _, height = row
    return x + stage.scale * PRESSED_AT, y + height // 2


def press_row(stage, row):
    stage.move_to(*pressed_at(stage, row))
    stage.press()


def leave_row(stage, row):
    """Moves the pointer on, farther than a click may."""
    x, y = pressed_at(stage, row)
    stage.move_to(x, y + 2 * row[3])
