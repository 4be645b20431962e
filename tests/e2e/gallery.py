"""Pictures of everything that the utility shows, for people to look at."""

import plistlib
import signal

from backdrop import fill_backdrop
from characterdialog import REGIONS_TITLE, TITLE as CHARACTER_TITLE, badge_box, open_dialog
from controlwindow import DialogWindow
from gameservice import CLASS, LEVEL, NAME, REALM
from lightingbars import (BOTTOM, BOTTOM_BAR, COLOR, CPI, INTENSITY, LEFT, LEFT_BAR, PULSATION,
                          TITLES, Illumination, MouseProperties, let_pass)
from macroeditor import (COPY_PASTE, EDITOR, NO_DELAY, RECORD_DELAY, TEXT, WARNING,
                         DeletionWarning, click_list_button, edit_macro, list_button, new_macro)
from macrokeys import MOST_EVENTS, taps
from portraits import draw_portrait
from settingsfile import changed, factory_values, rich_settings
from sidepanels import (CPI as CPI_PANEL, HANDLE, MACROS, OPEN_SIZE, PROFILES, RIGHT_BAR, TREE,
                        SidePanels)
from stage import DIALOGS, LIST_TITLE, MAIN_TITLE, Stage, wait_for

# On which scale the pictures are taken, with a screen that has room for all bars and their lists.
SCREENS = {1: "1280x1024", 2: "2400x2000"}
GREY = 0x808080  # behind the windows, so that their outlines show
MARGIN = 8  # around what a picture is of
BARS = {"left": LEFT_BAR, "right": (RIGHT_BAR, HANDLE, OPEN_SIZE), "bottom": BOTTOM_BAR}
LISTS = {"list-cpi": CPI, "list-intensity": INTENSITY, "list-pulsation": PULSATION,
         "colours": COLOR}
# Each panel of the right bar and the row that is chosen in it.
PANELS = {"panel-cpi": (CPI_PANEL, 2), "panel-profiles": (PROFILES, 11),
          "panel-macros": (MACROS, 4), "panel-commands": (TREE, 8)}
MENUS = {"menu-profile": ("BtnProfileMenu",), "menu-polling-rate": ("BtnToolsMenu", 0),
         "menu-lift-distance": ("BtnToolsMenu", 1), "menu-help": ("BtnHelpMenu",)}
PROGRESS = "Applying profile to on-board memory..."
# A part of the main window from its upper left corner: all that in-game mode changes.
SLOTS = 50, 150, 535, 275
# One control of each look, to be taken in each of its states.
LOOKS = ("Button1", "Button14", "BtnProfile3", "BtnProfile10", "ButtonOK", "ButtonSaveToDevice",
         "BtnMin", "BtnHelp", "BtnClose", "BtnProfileMenu")
# Where a bar's handle shows while it is shut and open, from the bar's upper left corner.
HANDLES = {"left": ((1, 130, 15, 192), (1, 130, 15, 192)),
           "right": ((0, 133, 15, 195), (185, 133, 15, 195)),
           "bottom": ((137, 0, 192, 15), (137, 83, 192, 15))}
SHUT, OPEN = 0, 1
# The profiles whose characters have no portrait, and that have no character.
NO_PORTRAIT, NO_CHARACTER = 2, 3
CHANGE_PROFILE = 32  # a function that the mouse cannot store
# The modes of macros, as the file holds them.
MODES = {"macro-copy-paste": (COPY_PASTE, 0), "macro-text": (TEXT, 1),
         "macro-record-delay": (RECORD_DELAY, 2), "macro-no-delay": (NO_DELAY, 3)}
LONG_MACRO_ROW = len(MODES)
PLAYED_KEYS = 0, 49, 122, 123, 56, 36, 14


def sample_macros():
    """One of each mode, and one that is full."""
    macros = rich_settings()["PROFILE_1"]
    keys = taps(*PLAYED_KEYS * MOST_EVENTS)[:MOST_EVENTS]
    events = "".join(f"{key},{kind},{number % 30}," for number, (key, kind) in enumerate(keys))
    short = {"KEYMAP": events[:events.index("36,1,")], "COPY_PASTER": "/say The dragon is mine!"}
    samples = [short | {"MACRO_NAME": name.removeprefix("macro-"), "MODE": mode, "MACRO_LOOP": 25,
                        "bLOOP": mode // 2, "bSENDKEY": 0, "STARTKEY": "36,1,0,36,2,0,"}
               for name, (_, mode) in MODES.items()]
    samples.append({"MACRO_NAME": "A long fight", "MODE": 2, "KEYMAP": events})
    return {f"MACRO_{slot}": macros[f"MACRO_{slot}"] | sample
            for slot, sample in enumerate(samples, 1)}


def sample_settings(portrait):
    """A profile as a player has it, its character's portrait in that file; a second one that cannot
    be saved on board, and whose portrait is lost; a third one without a character."""
    character = {"SERVER": REALM, "NAME": NAME, "LEVEL": LEVEL, "CLASS": CLASS,
                 "RACE": str(portrait)}
    lost = character | {"RACE": "/no/such/portrait.png"}
    own = factory_values() | sample_macros() | {"CHARACTER_INFO": character}
    return changed(rich_settings(), PROFILE_1=own,
                   PROFILE_2={"BUTTON_14": CHANGE_PROFILE, "CHARACTER_INFO": lost},
                   PROFILE_3={"CHARACTER_INFO": {}})


class Gallery:
    def __init__(self, stage, commands, tools, pictures):
        self.stage, self.tools = stage, tools
        self.pictures = pictures
        utility, driver = commands
        self.driver = stage.start(*driver, "--state-dir", stage.folder / "state")
        self.driver.wait_for_line("ready")
        stage.start(*utility)
        stage.wait_for_main_window()
        fill_backdrop(stage.environment["DISPLAY"], GREY)

    def take(self, name, *titles):
        """Takes a picture of these windows."""
        self.take_box(name, *map(self.stage.frame, titles))

    def take_box(self, name, *boxes):
        """Takes a picture of these parts of the screen once nothing changes any more."""
        shots = [b""]
        box = self.around(boxes)

        def settled():
            shots.append(self.stage.pixels(box))
            return shots[-1] == shots[-2]
        wait_for(settled, "a screen that does not change")
        self.stage.screenshot(self.pictures / f"{name}-at-{self.stage.scale}x.png", box)

    def around(self, boxes):
        """The least part of the screen with all of these in it, and a margin."""
        margin = MARGIN * self.stage.scale
        left, top = (max(0, min(box[axis] for box in boxes) - margin) for axis in (0, 1))
        ends = (max(box[axis] + box[axis + 2] for box in boxes) + margin for axis in (0, 1))
        right, bottom = map(min, ends, map(int, SCREENS[self.stage.scale].split("x")))
        return left, top, right - left, bottom - top

    def take_states(self, name, box, states=("over", "down")):
        """Takes a control at rest and in those states that it has; its action is not sent."""
        x, y, width, height = box
        self.stage.move_to(0, 0)
        self.take_box(f"{name}-normal", box)
        for state in states:
            before = self.stage.pixels(box)
            self.stage.move_to(x + width // 2, y + height // 2)
            if state == "down":
                self.stage.press()
            wait_for(lambda: self.stage.pixels(box) != before, f"{name} {state}")
            self.take_box(f"{name}-{state}", box)
        self.stage.move_to(0, 0)
        self.stage.release()

    def take_all(self):
        self.take("window", MAIN_TITLE, LEFT, RIGHT_BAR, BOTTOM)
        for control in LOOKS:
            self.take_states(control, self.stage.control_box(control))
        self.take_handles(SHUT)
        self.take_game_mode()
        self.take_characters()
        self.take_list()
        self.take_menus()
        self.take_about()
        self.take_error()
        self.take_question()
        self.take_progress()
        self.take_bars()
        self.take_panels()
        self.take_macros()

    def take_handles(self, is_open):
        for name, (title, _, _) in BARS.items():
            left, top, _, _ = self.stage.frame(title)
            x, y, width, height = (self.stage.scale * length for length in HANDLES[name][is_open])
            self.take_states(f"handle-{name}-{'open' if is_open else 'shut'}",
                             (left + x, top + y, width, height), states=("over",))

    def take_game_mode(self):
        x, y, *size = SLOTS
        width, height = (self.stage.scale * length for length in size)
        self.stage.click_control("chkGameMode")
        self.stage.move_to(0, 0)
        self.take_box("in-game-mode", (*self.stage.at((x, y)), width, height))
        self.stage.click_control("chkGameMode")

    def take_characters(self):
        dialog = open_dialog(self.stage)
        self.take("character", CHARACTER_TITLE)
        for control in "ButtonOK", "ButtonRegion", "ButtonClose":
            self.take_states(f"character-{control}", dialog.box_of(control))
        dialog.enter(REALM, NAME)
        dialog.open_regions()
        self.take("character-regions", CHARACTER_TITLE, REGIONS_TITLE)
        self.stage.key("Escape")
        self.stage.wait_for_no_window(REGIONS_TITLE)
        dialog.close_by("ButtonCancel")
        self.take_box("badge", badge_box(self.stage))
        for name, profile in ("badge-without-portrait", NO_PORTRAIT), ("no-badge", NO_CHARACTER):
            self.stage.click_control(f"BtnProfile{profile}")
            self.take_box(name, badge_box(self.stage))
        self.stage.click_control("BtnProfile1")

    def take_list(self):
        self.stage.click_control("Button5", button=3)
        self.stage.wait_for_active(LIST_TITLE)
        self.take_box("quick-list", self.stage.control_box("Button5"), self.stage.frame(LIST_TITLE))
        self.stage.key("Escape")
        self.stage.wait_for_no_window(LIST_TITLE)

    def take_menus(self):
        for name, (button, *rows) in MENUS.items():
            before = self.stage.utility_windows()
            self.stage.open_menu(button, *rows)
            menus = self.stage.utility_windows() - before
            self.take_box(name, self.stage.control_box(button), *map(self.stage.frame_of, menus))
            for _ in range(1 + len(rows)):
                self.stage.key("Escape")
            wait_for(lambda: self.stage.utility_windows() == before, "closed menus")

    def take_about(self):
        self.stage.choose("BtnHelpMenu", 1)
        self.take_dialog("AboutView", "About", "about")

    def take_error(self):
        self.stage.click_control("BtnProfile2")
        self.stage.click_control("ButtonSaveToDevice")
        self.take_dialog("WarnOneView", "Error!", "error")
        self.stage.click_control("BtnProfile1")

    def take_question(self):
        self.stage.click_control("ButtonRestore")
        self.stage.click_control("BtnProfile1")
        self.take_dialog("WarnTwoView", "Warnning!", "question")

    def take_dialog(self, view, title, name):
        dialog = DialogWindow(self.stage, title, DIALOGS[view])
        self.stage.move_to(0, 0)
        self.take(name, title)
        for control in dialog.controls:
            self.take_states(f"{name}-{control}", dialog.box_of(control))
        dialog.close_by("ButtonClose")

    def take_progress(self):
        self.driver.process.send_signal(signal.SIGSTOP)
        self.stage.click_control("ButtonSaveToDevice")
        self.stage.wait_for_window(PROGRESS)
        self.stage.start(self.tools / "driverreport", "Kt7R4WriteToDeviceChange", "PosNumber",
                         "45").wait_for_end()
        self.take("progress", PROGRESS)
        self.driver.process.send_signal(signal.SIGCONT)
        self.stage.wait_for_no_window(PROGRESS)

    def take_bars(self):
        for bar in BARS.values():
            self.stage.open_bar(*bar)
        self.stage.move_to(0, 0)
        self.take("bars", MAIN_TITLE, LEFT, RIGHT_BAR, BOTTOM)
        self.take_handles(OPEN)
        self.take_levels()

    def take_levels(self):
        left, bottom = MouseProperties(self.stage), Illumination(self.stage)
        for name, button in LISTS.items():
            bar = left if button == CPI else bottom
            # A press on the colour opens its list.
            states = ("over",) if button == COLOR else ("over", "down")
            self.take_states(f"bar-{button}", bar.box_of(button), states)
            let_pass()
            bar.open_list(button)
            self.take_box(name, bar.box_of(button), self.stage.frame(TITLES[button]))
            self.stage.key("Escape")
            self.stage.wait_for_no_window(TITLES[button])

    def take_panels(self):
        self.panels = panels = SidePanels(self.stage)
        for name, (panel, row) in PANELS.items():
            panels.expand(panel)
            if panel == TREE:
                panels.open_category(0)
            panels.choose(panel, row)
            self.stage.move_to(0, 0)
            self.take(name, RIGHT_BAR)
        drag = panels.begin_drag(TREE, 5)
        drag.move_to(*self.stage.middle_of("Button9"))
        self.take_box("drag", *map(self.stage.control_box, ("Button8", "Button9", "Button12")))
        drag.release()

    def take_macros(self):
        self.panels.expand(MACROS)
        self.take_states("panel-btnNew", list_button(self.panels, "btnNew"), states=("down",))
        editor = new_macro(self.panels)
        self.stage.move_to(0, 0)
        self.take("macro-new", EDITOR)
        for control in "ButtonOK", "ButtonClose":
            self.take_states(f"macro-{control}", editor.box_of(control))
        editor.take_keyboard()
        editor.record(["a", "shift+b", "Left", "F5"])
        self.take("macro-recording", EDITOR)
        editor.close_by("ButtonCancel")
        for row, (name, (mode, _)) in enumerate(MODES.items()):
            editor = edit_macro(self.panels, row, mode)
            self.take(name, EDITOR)
            editor.close_by("ButtonClose")
        self.take_long_macro()
        self.take_deletion()

    def take_long_macro(self):
        editor = edit_macro(self.panels, LONG_MACRO_ROW, RECORD_DELAY)
        self.take("macro-full", EDITOR)
        editor.scroll_to_end()
        self.take("macro-full-end", EDITOR)
        editor.close_by("ButtonClose")

    def take_deletion(self):
        click_list_button(self.panels, "btnDelete")
        warning = DeletionWarning(self.stage)
        self.take("macro-warning", WARNING)
        for control in "ButtonOK", "ButtonCancel", "ButtonClose":
            self.take_states(f"macro-warning-{control}", warning.box_of(control))
        warning.click("CheckButtonDel")
        self.take("macro-warning-checked", WARNING)
        warning.close_by("ButtonCancel")


def take_pictures(settings, commands, tools, pictures):
    """Plays through everything on each scale with the utility and the driver process, which are
    started by these commands; the settings file is overwritten."""
    for scale, size in SCREENS.items():
        with Stage(settings=settings, size=size, scale=scale) as stage:
            portrait = stage.folder / "portrait.png"
            portrait.write_bytes(draw_portrait())
            settings.write_bytes(plistlib.dumps(sample_settings(portrait)))
            Gallery(stage, commands, tools, pictures).take_all()
