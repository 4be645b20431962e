"""Pictures of everything that the utility shows, for people to look at."""

import plistlib
import signal

from characterdialog import REGIONS_TITLE, open_dialog
from gameservice import CLASS, LEVEL, NAME, REALM
from lightingbars import (BOTTOM_BAR, COLOR, CPI, INTENSITY, LEFT_BAR, PULSATION, TITLES,
                          Illumination, MouseProperties)
from macroeditor import (COPY_PASTE, NO_DELAY, RECORD_DELAY, TEXT, DeletionWarning,
                         click_list_button, edit_macro, new_macro)
from macrokeys import MOST_EVENTS, taps
from portraits import draw_portrait
from settingsfile import changed, factory_values, rich_settings
from sidepanels import (CPI as CPI_PANEL, HANDLE, MACROS, OPEN_SIZE, PROFILES, RIGHT_BAR, TREE,
                        SidePanels)
from stage import LIST_TITLE, MAIN_TITLE, Stage, wait_for

# On which scale the pictures are taken, with a screen that has room for all bars and their lists.
SCREENS = {1: "1280x1024", 2: "2400x2000"}
# What the open bars and their lists reach out of the main window: left, right, below.
MARGINS = (202, 200, 169)
BARS = LEFT_BAR, (RIGHT_BAR, HANDLE, OPEN_SIZE), BOTTOM_BAR
LISTS = {"list-cpi": CPI, "list-intensity": INTENSITY, "list-pulsation": PULSATION,
         "colours": COLOR}
# Each panel of the right bar and the row that is chosen in it.
PANELS = {"panel-cpi": (CPI_PANEL, 2), "panel-profiles": (PROFILES, 11),
          "panel-macros": (MACROS, 4), "panel-commands": (TREE, 8)}
MENUS = {"menu-profile": ("BtnProfileMenu",), "menu-polling-rate": ("BtnToolsMenu", 0),
         "menu-lift-distance": ("BtnToolsMenu", 1), "menu-help": ("BtnHelpMenu",)}
PROGRESS = "Applying profile to on-board memory..."
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
    def __init__(self, stage, programs, tools, pictures):
        self.stage, self.tools = stage, tools
        self.pictures = pictures
        self.driver = stage.start(programs / "kt7r4d", "--state-dir", stage.folder / "state")
        self.driver.wait_for_line("ready")
        stage.start(programs / "KyrGM")
        stage.wait_for_main_window()

    def box(self):
        """The part of the screen with the window and, where they are open, its bars."""
        left, top, width, height = self.stage.frame(MAIN_TITLE)
        to_left, to_right, below = (self.stage.scale * margin for margin in MARGINS)
        return left - to_left, top, width + to_left + to_right, height + below

    def take(self, name):
        """Takes a picture once nothing changes any more."""
        shots = [b""]

        def settled():
            shots.append(self.stage.pixels(self.box()))
            return shots[-1] == shots[-2]
        wait_for(settled, "a screen that does not change")
        self.stage.screenshot(self.pictures / f"{name}-at-{self.stage.scale}x.png", self.box())

    def take_all(self):
        self.take("window")
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

    def take_characters(self):
        dialog = open_dialog(self.stage)
        self.take("character")
        dialog.enter(REALM, NAME)
        dialog.open_regions()
        self.take("character-regions")
        self.stage.key("Escape")
        self.stage.wait_for_no_window(REGIONS_TITLE)
        dialog.close_by("ButtonCancel")
        for name, profile in ("badge-without-portrait", NO_PORTRAIT), ("no-badge", NO_CHARACTER):
            self.stage.click_control(f"BtnProfile{profile}")
            self.take(name)
        self.stage.click_control("BtnProfile1")

    def take_list(self):
        self.stage.click_control("Button5", button=3)
        self.stage.wait_for_active(LIST_TITLE)
        self.take("quick-list")
        self.stage.key("Escape")
        self.stage.wait_for_no_window(LIST_TITLE)

    def take_menus(self):
        for name, (button, *rows) in MENUS.items():
            menus = len(self.stage.utility_windows())
            self.stage.open_menu(button, *rows)
            self.take(name)
            for _ in range(1 + len(rows)):
                self.stage.key("Escape")
            wait_for(lambda: len(self.stage.utility_windows()) == menus, "closed menus")

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
        self.stage.wait_for_active(title)
        self.take(name)
        self.stage.click_dialog(view, title, "ButtonClose")

    def take_progress(self):
        self.driver.process.send_signal(signal.SIGSTOP)
        self.stage.click_control("ButtonSaveToDevice")
        self.stage.wait_for_window(PROGRESS)
        self.stage.start(self.tools / "driverreport", "Kt7R4WriteToDeviceChange", "PosNumber",
                         "45").wait_for_end()
        self.take("progress")
        self.driver.process.send_signal(signal.SIGCONT)
        self.stage.wait_for_no_window(PROGRESS)

    def take_bars(self):
        for bar in BARS:
            self.stage.open_bar(*bar)
        self.stage.move_to(0, 0)
        self.take("bars")
        self.take_levels()

    def take_levels(self):
        left, bottom = MouseProperties(self.stage), Illumination(self.stage)
        for name, button in LISTS.items():
            (left if button == CPI else bottom).open_list(button)
            self.take(name)
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
            self.take(name)
        drag = panels.begin_drag(TREE, 5)
        drag.move_to(*self.stage.middle_of("Button9"))
        self.take("drag")
        drag.release()

    def take_macros(self):
        self.panels.expand(MACROS)
        editor = new_macro(self.panels)
        self.take("macro-new")
        editor.take_keyboard()
        editor.record(["a", "shift+b", "Left", "F5"])
        self.take("macro-recording")
        editor.close_by("ButtonCancel")
        for row, (name, (mode, _)) in enumerate(MODES.items()):
            editor = edit_macro(self.panels, row, mode)
            self.take(name)
            editor.close_by("ButtonClose")
        self.take_long_macro()
        click_list_button(self.panels, "btnDelete")
        warning = DeletionWarning(self.stage)
        self.take("macro-warning")
        warning.click("CheckButtonDel")
        self.take("macro-warning-checked")
        warning.close_by("ButtonCancel")

    def take_long_macro(self):
        editor = edit_macro(self.panels, LONG_MACRO_ROW, RECORD_DELAY)
        self.take("macro-full")
        editor.scroll_to_end()
        self.take("macro-full-end")
        editor.close_by("ButtonClose")


def take_pictures(settings, programs, tools, pictures):
    """Plays through everything on each scale; the settings file is overwritten."""
    for scale, size in SCREENS.items():
        with Stage(settings=settings, size=size, scale=scale) as stage:
            portrait = stage.folder / "portrait.png"
            portrait.write_bytes(draw_portrait())
            settings.write_bytes(plistlib.dumps(sample_settings(portrait)))
            Gallery(stage, programs, tools, pictures).take_all()
