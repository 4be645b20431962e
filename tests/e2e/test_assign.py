"""A button's function chosen in the panels of the right bar, by drag, by click and by keyboard:
after Apply or OK the whole settings file is compared with what it must hold."""

import plistlib
import unittest

from rowdrag import leave_row, press_row
from settingsfile import changed, rich_settings
from sidepanels import CPI, MACROS, OPEN_SIZE, PROFILES, RIGHT_BAR, TREE, SidePanels
from stage import Stage, wait_for
from test_main_job import TOOLS
from test_profiles import RichSettings

MOVEMENT_KEYS, CHAT_FUNCTIONS, TARGETING = 0, 1, 3  # rows of the tree with nothing open
JUMP_ROW, JUMP = 8, 4104  # with the movement keys open
FIRST_TARGET_ROW, FIRST_TARGET = TARGETING + 1, 0x4001
TITLES = "Mouse Properties", RIGHT_BAR, "Illumination Settings"
OTHER_TITLE = "Drag Stage"
EDGE = 2  # of a button, above a row's picture whose middle is over the button's

DESKTOP = 60, 40
BACKGROUND = 330, 570  # of the main window


def middle(box):
    x, y, width, height = box
    return x + width // 2, y + height // 2


class Assignment(RichSettings):
    """Both programs on a file in which every value is set, and what a player does in the panels."""

    values = {}
    screen = {}

    def new_stage(self):
        stage = Stage(**self.screen)
        self.settings = changed(rich_settings(), **self.values)
        stage.settings.write_bytes(plistlib.dumps(self.settings))
        return stage

    def setUp(self):
        super().setUp()
        self.panels = SidePanels(self.stage)

    def select(self, number):
        """Clicks a button that holds one of the targeting commands: the tree opens and shows it."""
        self.stage.click_control(f"Button{number}")
        self.panels.wait_until_open()
        self.panels.expanded = TREE
        row = FIRST_TARGET_ROW + self.settings["PROFILE_1"][f"BUTTON_{number}"] - FIRST_TARGET
        self.panels.wait_until_selected(TREE, row)

    def show_commands(self, category):
        self.panels.open()
        self.panels.expand(TREE)
        self.panels.open_category(category)

    def edge(self, button):
        x, y, width, _ = self.stage.control_box(button)
        return x, y, width, EDGE * self.stage.scale

    def drop(self, panel, row, button):
        """Drags a row onto a button, and waits until the button has taken it."""
        before = self.drops()
        self.panels.begin_drag(panel, row).drop_at(*self.stage.middle_of(button))
        wait_for(lambda: self.drops() > before, f"a drop on {button}")

    def drop_jump_beside_the_selected_button(self):
        self.select(2)
        self.panels.open_category(MOVEMENT_KEYS)
        self.drop(TREE, JUMP_ROW, "Button9")
        self.apply()
        self.assert_file(PROFILE_1={"BUTTON_9": JUMP})

    def drops(self):
        return self.utility.lines().count("DragDropButtonAction")

    def assert_idle_apply(self):
        self.stage.move_to(0, 0)
        self.assertFalse(self.apply_changed(), "Apply is disabled")

    def assert_nothing_stored(self):
        """OK writes all there is."""
        before = self.file_state()
        self.assert_idle_apply()
        self.stage.click_control("ButtonOK")
        self.assertEqual(self.utility.wait_for_end(), 0)
        self.assertNotEqual(self.file_state()[0], before[0], "the file is written anew")
        self.assert_file()
        self.assertEqual(self.drops(), 0)


class Drops(Assignment):
    def test_a_command_goes_to_the_button_under_the_pointer_alone(self):
        self.drop_jump_beside_the_selected_button()
        # Button 2 is still the selected one.
        self.panels.choose(TREE, JUMP_ROW - 1)
        self.apply()
        self.assert_file(PROFILE_1={"BUTTON_9": JUMP, "BUTTON_2": JUMP - 1})

    def test_rows_of_every_list_can_be_dropped(self):
        self.select(2)
        for panel, row, button in ((CPI, 2, "Button3"), (PROFILES, 11, "Button10"),
                                   (MACROS, 4, "Button14")):
            self.panels.expand(panel)
            self.drop(panel, row, button)
        self.apply()
        self.assert_file(PROFILE_1={"BUTTON_3": 18, "BUTTON_10": 43, "BUTTON_14": 260})

    def test_a_category_is_dropped_as_its_number_except_the_first(self):
        self.panels.open()
        self.panels.expand(TREE)
        movement = self.panels.row(TREE, MOVEMENT_KEYS)
        edge = self.stage.pixels(self.edge("Button8"))
        windows = self.stage.utility_windows()
        press_row(self.stage, movement)
        leave_row(self.stage, movement)
        self.stage.move_to(*self.stage.middle_of("Button8"))
        self.assertEqual(self.stage.pixels(self.edge("Button8")), edge)
        self.assertEqual(self.stage.utility_windows(), windows, "no picture of a row")
        self.stage.release()
        self.drop(TREE, CHAT_FUNCTIONS, "Button9")
        self.apply()
        self.assert_file(PROFILE_1={"BUTTON_9": CHAT_FUNCTIONS})
        self.assertEqual(self.drops(), 1)

    def test_the_button_under_a_drag_is_framed(self):
        self.show_commands(MOVEMENT_KEYS)
        takes = {"Button9": True, "Button8": True, "ButtonRestore": False}
        plain = {name: self.stage.pixels(self.edge(name)) for name in takes}

        def framed():
            return [name for name, edge in plain.items()
                    if self.stage.pixels(self.edge(name)) != edge]
        drag = self.panels.begin_drag(TREE, JUMP_ROW)
        for name in (*takes, "Button9", "ButtonRestore"):
            drag.move_to(*self.stage.middle_of(name))
            expected = [name] if takes[name] else []
            wait_for(lambda: framed() == expected, f"a frame around {expected} alone")
        drag.release()
        self.assert_nothing_stored()

    def call_off(self, panel, row):
        """Escape in the middle of a drag, and then the release: over a button, and over the rows
        themselves, which take clicks."""
        for place in self.stage.middle_of("Button9"), middle(self.panels.row(panel, row + 1)):
            drag = self.panels.begin_drag(panel, row)
            drag.move_to(*place)
            self.stage.key("Escape")
            drag.wait_for_end()
            self.stage.release()

    def test_escape_calls_a_drag_off(self):
        self.select(2)
        self.panels.open_category(MOVEMENT_KEYS)
        self.call_off(TREE, JUMP_ROW)
        self.panels.expand(CPI)
        self.call_off(CPI, 2)
        self.assert_idle_apply()
        self.drop(CPI, 3, "Button10")
        self.apply()
        self.assert_file(PROFILE_1={"BUTTON_10": 19})
        self.assertEqual(self.drops(), 1)

    def test_a_drop_beside_the_buttons_changes_nothing(self):
        self.select(2)
        self.stage.start(TOOLS / "dragstage")
        self.stage.wait_for_active(OTHER_TITLE)
        left, top, width, height = self.stage.frame(OTHER_TITLE)
        beside = [(left + width // 2, top + height // 2), DESKTOP, self.stage.at(BACKGROUND),
                  self.stage.middle_of("BtnProfile3")]
        for panel in (TREE, CPI):
            if panel != self.panels.expanded:
                self.panels.expand(panel)
            for place in (*beside, middle(self.panels.row(panel, 7))):
                self.panels.begin_drag(panel, 4).drop_at(*place)
        self.assert_nothing_stored()


class GameMode(Assignment):
    values = {"GAME_MODE": 1}

    def test_the_buttons_refuse_a_drop(self):
        self.show_commands(MOVEMENT_KEYS)
        face = self.stage.pixels(self.edge("Button9"))
        drag = self.panels.begin_drag(TREE, JUMP_ROW)
        drag.move_to(*self.stage.middle_of("Button9"))
        x, y = self.stage.middle_of("Button9")
        drag.move_to(x + 1, y)
        self.assertEqual(self.stage.pixels(self.edge("Button9")), face)
        drag.release()
        self.assert_nothing_stored()


class Choices(Assignment):
    values = {"PROFILE_1": rich_settings()["PROFILE_1"] |
              {"BUTTON_6": 18, "BUTTON_7": 43, "BUTTON_8": 260}}

    def test_a_click_on_a_button_shows_its_function_and_a_click_on_a_row_changes_it(self):
        self.assertNotEqual(self.stage.frame(RIGHT_BAR)[2:], OPEN_SIZE)
        self.select(5)
        self.panels.choose(TREE, FIRST_TARGET_ROW + 1)
        self.panels.wait_until_selected(TREE, FIRST_TARGET_ROW + 1)
        self.apply()
        self.assert_file(PROFILE_1={"BUTTON_5": FIRST_TARGET + 1})

    def test_a_click_on_a_button_shows_the_list_of_its_function(self):
        for button, panel, row in (("Button6", CPI, 2), ("Button7", PROFILES, 11),
                                   ("Button8", MACROS, 4)):
            self.stage.click_control(button)
            self.panels.wait_until_open()
            self.panels.expanded = panel
            self.panels.wait_until_selected(panel, row)
            self.panels.choose(panel, row - 1)
        self.apply()
        self.assert_file(PROFILE_1={"BUTTON_6": 17, "BUTTON_7": 42, "BUTTON_8": 259})


class Keyboard(Assignment):
    values = {"PROFILE_1": rich_settings()["PROFILE_1"] | {"BUTTON_14": 9}}

    def step(self, key, place):
        """Presses a key that takes the keyboard to a control, which then shows it, to a part of the
        right bar, or into a window."""
        if place in TITLES:
            self.stage.key(key)
            self.stage.wait_for_active(place)
            return
        box = self.stage.control_box(place) if isinstance(place, str) else place
        before = self.stage.pixels(box)
        self.stage.key(key)
        wait_for(lambda: self.stage.pixels(box) != before, f"{place} after {key}")

    def test_a_command_is_chosen_and_applied(self):
        for place in (*reversed(TITLES), "ButtonCancel", "ButtonOK", "ButtonRestore", "Button14"):
            self.step("shift+Tab", place)
        self.stage.key("space")  # which opens the bar
        self.panels.wait_until_open()
        for place in ("ButtonRestore", "ButtonOK", "ButtonCancel", *TITLES[:2]):
            self.step("Tab", place)
        toggle = self.panels.toggle()
        self.step("Tab", toggle)
        self.step("space", self.panels.whole())
        self.panels.expanded = TREE
        self.step("Tab", toggle)  # and on into the tree
        for key in ("Right", "End", "Home", *["Down"] * JUMP_ROW):
            self.stage.key(key)
        self.panels.wait_until_selected(TREE, JUMP_ROW)
        self.step("shift+Tab", toggle)
        self.step("shift+Tab", toggle)  # and on to the handle
        for place in (TITLES[0], "ButtonApply"):
            self.step("shift+Tab", place)
        self.stage.key("space")
        wait_for(self.taken, "the driver process taking the settings")
        self.assert_file(PROFILE_1={"BUTTON_14": JUMP})


class FineScreen(Assignment):
    """The same on a screen of twice the resolution."""

    screen = {"size": "2400x1800", "scale": 2}

    def test_a_command_goes_to_the_button_under_the_pointer_alone(self):
        self.drop_jump_beside_the_selected_button()


if __name__ == "__main__":
    unittest.main(verbosity=2)
