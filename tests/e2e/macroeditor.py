"""The macro editor and the warning before a deletion: where everything in them lies on the screen,
and what a player does there."""

import re

from controlwindow import DialogWindow
from sidepanels import HEIGHTS, MACROS
from stage import ROOT, control_rectangles, wait_for

EDITOR, WARNING = "Custom Macro", "Warning"
COPY_PASTE, TEXT, RECORD_DELAY, NO_DELAY = ("ButtonCopy", "ButtonText", "ButtonRecordDelay",
                                            "ButtonNoDelay")
NAME, EVENTS, PASTED, START_KEY, SEND_KEY, LOOP_COUNT = (
    "pTextfieldMacroName", "MacroscrollView", "pCopyTextfield", "pStartDisplayView",
    "pSendDisplayView", "pLoopTextfield")
BACKGROUND = 225, 455, 20, 20  # of the editor, where nothing lies
LIT = bytes((240, 207, 134))  # around the field that has the keyboard

WARNING_CONTROLS = control_rectangles("macro/macrowarncontrols.h")
LIST_BUTTONS = control_rectangles("macro/rightbarMacro.cpp")
EDITOR_BUTTONS = control_rectangles("macro/macrolayout.h")


def numbers(text):
    return tuple(map(int, re.findall(r"\d+", text)))


def editor_places():
    """What has two places, by name: beside a text that is pasted, and beside events; an empty place
    is none."""
    table = (ROOT / "src/macro/macrolayout.h").read_text()
    rows = re.findall(r'\{"(\w+)", [^{}]*\{\{([\d, ]*)\}, +\{([\d, ]*)\}\}', table)
    return {name: (numbers(pasted), numbers(events)) for name, pasted, events in rows}


EDITOR_PLACES = editor_places()


class DeletionWarning(DialogWindow):
    def __init__(self, stage):
        super().__init__(stage, WARNING, WARNING_CONTROLS)


class MacroEditor(DialogWindow):
    """Keeps count of which layout the editor has."""

    def __init__(self, stage, mode=TEXT):
        super().__init__(stage, EDITOR, EDITOR_BUTTONS)
        self.mode = mode

    def place(self, name):
        if name in self.controls:
            return self.controls[name]
        return EDITOR_PLACES[name][self.mode != COPY_PASTE]

    def choose_mode(self, mode):
        """Drops what was typed and recorded."""
        self.click(mode)
        self.mode = mode

    def has_keyboard(self, field):
        """Whether the field's frame is lit, which it is from when every key comes to it."""
        x, y, width, height = self.box_of(field)
        left = x - self.stage.scale, y + height // 2, 1, 1
        return self.stage.pixels(left) == LIT

    def wait_for_keyboard(self, field, held=True):
        wait_for(lambda: self.has_keyboard(field) == held, f"{field} with the keyboard: {held}")

    def take_keyboard(self, field=EVENTS):
        """By a click, which begins a new recording where keys are recorded."""
        self.click(field)
        self.wait_for_keyboard(field)

    def click_background(self, field=EVENTS):
        """Takes the keyboard from the field."""
        self.click_place(BACKGROUND)
        self.wait_for_keyboard(field, held=False)

    def type_into(self, field, text):
        """Over what stands there."""
        self.take_keyboard(field)
        self.stage.key("ctrl+a")
        self.stage.output("xdotool", "type", text)

    def scroll_to_end(self):
        x, y, width, height = self.box_of(EVENTS)
        self.stage.move_to(x + width // 2, y + height // 2)
        self.stage.output("xdotool", "click", "--repeat", "60", "--delay", "5", "5")

    def loop(self, count):
        self.click("ButtonLoop")
        self.type_into(LOOP_COUNT, str(count))

    def record(self, keys):
        """Keys pressed one after the other, by the display's names or numbers for them."""
        self.stage.output("xdotool", "key", *map(str, keys))


def list_button(panels, name):
    """New or Delete of the expanded list, on the screen."""
    x, y, width, height = LIST_BUTTONS[name]
    top = panels.panel_top(MACROS) + HEIGHTS[MACROS][0] - y - height
    return panels.box(x, top, width, height)


def click_list_button(panels, name):
    x, y, width, height = list_button(panels, name)
    panels.stage.click(x + width // 2, y + height // 2)


def new_macro(panels, mode=RECORD_DELAY):
    """Opens the editor by the button above the expanded list."""
    click_list_button(panels, "btnNew")
    editor = MacroEditor(panels.stage)
    editor.choose_mode(mode)
    return editor


def edit_macro(panels, row, mode):
    """Opens the editor by a double click on a row, whose macro has that mode."""
    x, y, width, height = panels.row(MACROS, row)
    panels.stage.move_to(x + width // 2, y + height // 2)
    panels.stage.output("xdotool", "click", "--repeat", "2", "--delay", "60", "1")
    return MacroEditor(panels.stage, mode)
