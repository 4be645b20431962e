"""A profile's game character: looked up with the dialog, shown by the badge, kept in the settings
file. The game service is one on this machine; once it has answered no connection to it is left."""

import plistlib
import time
import unittest

from characterdialog import (AREA_MIDDLE, EUROPE, REALM_FIELD, TITLE, CharacterDialog, badge_box,
                             open_dialog, portrait_pixel)
from gameservice import (CHARACTER_PATH, CLASS, LEVEL, NAME, PORTRAIT_NAME, PORTRAIT_PATH, REALM,
                         GameService)
from portraits import MOON, MOON_MIDDLE
from processes import network_connections
from settingsfile import changed, rich_settings
from stage import MAIN_TITLE, Stage, wait_for
from test_profiles import EDITED, RichSettings

NO_CHARACTER = {"REGION": 0, "SERVER": "", "NAME": "", "LEVEL": 0, "CLASS": "", "RACE": ""}
ENTERED = {"REGION": EUROPE, "SERVER": REALM, "NAME": NAME}
LOST_PORTRAIT = {"LEVEL": 12, "CLASS": "Mage", "RACE": "/no/such/portrait.jpg"}
KEPT = 2  # the number of the profile with a character
CHARACTER_REQUEST = f"{CHARACTER_PATH}Silver+Fen/{NAME}"
PORTRAIT_REQUESTS = [f"{PORTRAIT_PATH}{region}/silver-fen/37/{PORTRAIT_NAME}"
                     for region in ("us", "eu")]
MOST_SECONDS = 3  # for an end that waits for nothing, on a machine with other things to do
BACKGROUND = 330, 570  # of the main window, from its upper left corner
DIALOG_BACKGROUND = 40, 50, 20, 20


class Character(RichSettings):
    screen = {}

    def setUp(self):
        self.service = GameService()
        self.addCleanup(self.service.close)
        super().setUp()
        self.empty = self.badge()

    def new_stage(self):
        stage = Stage(**self.screen)
        self.settings = changed(rich_settings(), PROFILE_1={"CHARACTER_INFO": NO_CHARACTER},
                                PROFILE_2={"CHARACTER_INFO": ENTERED | LOST_PORTRAIT})
        stage.settings.write_bytes(plistlib.dumps(self.settings))
        return stage

    def utility_command(self):
        return *super().utility_command(), self.service.host

    def badge(self):
        return self.stage.pixels(badge_box(self.stage))

    def shows_portrait(self):
        return self.stage.pixels((*portrait_pixel(self.stage, MOON_MIDDLE), 1, 1)) == bytes(MOON)

    def wait_for_portrait(self):
        wait_for(self.shows_portrait, "the portrait in the badge")

    def look_up(self):
        dialog = open_dialog(self.stage)
        dialog.enter(REALM, NAME)
        dialog.choose_region(EUROPE)
        dialog.close_by("ButtonOK")

    def look_up_in_vain(self, path):
        """Until the service has got the request of that kind, which it does not answer."""
        self.service.hold(path)
        self.look_up()
        wait_for(lambda: self.service.paths()[-1:] and self.service.paths()[-1].startswith(path),
                 f"a request of {path!r}")

    def wait_for_requests(self, *paths):
        wait_for(lambda: len(self.service.paths()) >= len(paths), f"the requests of {paths}")
        self.assertEqual(self.service.paths(), [*paths])


class Lookup(Character):
    def test_a_character_is_looked_up_shown_and_kept(self):
        self.look_up()
        self.wait_for_portrait()
        self.wait_for_requests(CHARACTER_REQUEST, PORTRAIT_REQUESTS[EUROPE])
        for _, headers in self.service.requests:
            self.assertEqual(headers["User-Agent"], "KyrMGUI2")
        portrait = self.stage.settings.with_name(PORTRAIT_NAME)
        self.assertEqual(portrait.read_bytes(), self.service.portrait)
        self.assertFalse(self.apply_changed())
        self.assign()
        self.apply()
        character = ENTERED | {"LEVEL": LEVEL, "CLASS": CLASS, "RACE": str(portrait)}
        self.assert_file(PROFILE_1=EDITED | {"CHARACTER_INFO": character})
        shown = self.badge()
        self.stage.click_control("ButtonCancel")
        self.assertEqual(self.utility.wait_for_end(), 0)
        self.start_utility()
        self.assertEqual(self.badge(), shown)
        self.assertEqual(len(self.service.requests), 2, "what is kept is not asked for again")

    def test_while_the_service_is_silent_everything_answers(self):
        self.look_up_in_vain(CHARACTER_PATH)
        self.assertEqual(network_connections(self.utility), 1)
        key = self.stage.control_box(f"BtnProfile{KEPT}")
        released = self.stage.pixels(key)
        self.switch_to(KEPT)
        wait_for(lambda: self.stage.pixels(key) != released, "the other profile's pressed key")
        wait_for(lambda: self.badge() != self.empty, "the other profile's badge")
        open_dialog(self.stage).type("Nobody")
        self.stage.key("Escape")
        self.stage.wait_for_no_window(TITLE)
        self.utility.wait_for_line("IDC_CHAR_BUTTON_CANCEL")
        self.switch_to(1)
        wait_for(lambda: self.badge() == self.empty, "no badge")
        self.service.let_go()
        self.wait_for_portrait()
        self.wait_for_requests(CHARACTER_REQUEST, PORTRAIT_REQUESTS[EUROPE])
        wait_for(lambda: network_connections(self.utility) == 0, "the end of the connection")

    def quit_unanswered(self, path, button):
        self.look_up_in_vain(path)
        begin = time.monotonic()
        self.stage.click_control(button)
        self.assertEqual(self.utility.wait_for_end(), 0)
        self.assertLess(time.monotonic() - begin, MOST_SECONDS)

    def test_quitting_does_not_wait_for_the_service(self):
        self.quit_unanswered(CHARACTER_PATH, "ButtonCancel")
        self.assert_file()
        self.service.let_go()
        self.start_utility()
        self.quit_unanswered(PORTRAIT_PATH, "ButtonOK")
        self.assert_file(PROFILE_1={"CHARACTER_INFO": NO_CHARACTER | ENTERED})

    def test_without_the_service_a_badge_stays_as_it_was(self):
        self.switch_to(KEPT)
        wait_for(lambda: self.badge() != self.empty, "the badge")
        shown = self.badge()
        self.assertFalse(self.shows_portrait())
        self.service.close()
        self.look_up()
        self.utility.wait_for_line("Connection failed! Error - ")
        self.assertEqual(self.stage.active_title(), MAIN_TITLE)
        # A window that is painted anew shows the same.
        self.switch_to(1)
        wait_for(lambda: self.badge() == self.empty, "no badge")
        self.switch_to(KEPT)
        wait_for(lambda: self.badge() == shown, "the badge as it was")
        self.assertEqual(self.service.requests, [])


class DialogWindow(Character):
    def look_up_in(self, dialog):
        """Types into the dialog, which must be empty as it begins."""
        dialog.enter(REALM, NAME)
        dialog.confirm_by_key()
        self.wait_for_requests(CHARACTER_REQUEST, PORTRAIT_REQUESTS[0])

    def test_closed_by_the_desktop_it_comes_again_and_is_empty(self):
        for _ in range(2):
            open_dialog(self.stage).type("Nobody")
            self.stage.key("alt+F4")
            self.stage.wait_for_no_window(TITLE)
        self.utility.wait_for_line("IDC_CHAR_BUTTON_CLOSE")
        dialog = open_dialog(self.stage)
        self.stage.key("Return")  # which stays, as nothing is entered
        self.look_up_in(dialog)

    def test_a_double_click_opens_one(self):
        self.stage.move_to(*self.stage.at(AREA_MIDDLE))
        self.stage.output("xdotool", "click", "--repeat", "2", "--delay", "60", "1")
        dialog = CharacterDialog(self.stage)
        dialog.click(REALM_FIELD)  # which has the keyboard whichever click has come through so far
        windows = self.stage.output("xdotool", "search", "--onlyvisible", "--name", TITLE)
        self.assertEqual(len(windows.split()), 1)
        self.look_up_in(dialog)

    def test_a_click_on_the_area_brings_it_back(self):
        open_dialog(self.stage).type(REALM)
        self.stage.click(*self.stage.at(BACKGROUND))
        self.stage.wait_for_active(MAIN_TITLE)
        dialog = open_dialog(self.stage)
        dialog.type(f"\t{NAME}")
        dialog.confirm_by_key()
        self.wait_for_requests(CHARACTER_REQUEST, PORTRAIT_REQUESTS[0])

    def test_it_is_dragged_by_its_background(self):
        main = self.stage.frame(MAIN_TITLE)
        dialog = open_dialog(self.stage)
        left, top, width, height = dialog.frame()
        x, y, _, _ = dialog.box(DIALOG_BACKGROUND)
        self.stage.drag((x, y), (x + 60, y + 35))
        wait_for(lambda: dialog.frame() == (left + 60, top + 35, width, height),
                 "the dialog 60 right and 35 down")
        self.assertEqual(self.stage.frame(MAIN_TITLE), main)
        dialog.close_by("ButtonClose")


class FineScreen(Character):
    """The same on a screen of twice the resolution."""

    screen = {"size": "2400x2000", "scale": 2}

    def test_a_character_is_looked_up_and_shown(self):
        self.look_up()
        self.wait_for_portrait()


if __name__ == "__main__":
    unittest.main(verbosity=2)
