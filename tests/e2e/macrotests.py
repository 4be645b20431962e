"""Both programs on a file with three macros in its first profile, the list of macros in sight."""

import plistlib

from macroeditor import NO_DELAY, new_macro
from macrokeys import stored_events, text_of, without_delays
from settingsfile import changed, rich_settings
from sidepanels import MACROS, SidePanels
from stage import Stage, wait_for
from test_profiles import RichSettings

KEPT_MACROS = 3
FIRST_MACRO_CODE = 256


def few_macros(profile):
    """The others have no name: their slots are free."""
    unnamed = {f"MACRO_{slot}": profile[f"MACRO_{slot}"] | {"MACRO_NAME": ""}
               for slot in range(KEPT_MACROS + 1, 51)}
    return profile | unnamed


class MacroList(RichSettings):
    screen = {}

    def new_stage(self):
        stage = Stage(**self.screen)
        settings = rich_settings()
        self.settings = changed(settings, PROFILE_1=few_macros(settings["PROFILE_1"]))
        stage.settings.write_bytes(plistlib.dumps(self.settings))
        return stage

    def setUp(self):
        super().setUp()
        self.panels = SidePanels(self.stage)
        self.panels.open()
        self.panels.expand(MACROS)

    def stored(self, number):
        """The settings of one macro of the first profile."""
        return self.file()["PROFILE_1"][f"MACRO_{number}"]


class Recording(MacroList):
    """The editor with an empty list of events that records."""

    def setUp(self):
        super().setUp()
        self.editor = new_macro(self.panels, NO_DELAY)
        self.editor.take_keyboard()

    def shows(self, events):
        """Whether the editor has shown exactly these keys: it says what it shows."""
        return text_of(events) in self.utility.lines()

    def wait_for_events(self, events):
        wait_for(lambda: self.shows(events), f"the keys {text_of(events)!r}")

    def saved_events(self):
        self.editor.close_by("ButtonOK")
        self.apply()
        return stored_events(self.stored(KEPT_MACROS + 1)["KEYMAP"])

    def assert_recorded(self, events):
        self.wait_for_events(events)
        self.assertEqual(without_delays(self.saved_events()), events)
