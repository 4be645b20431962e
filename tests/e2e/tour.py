"""Plays the main job on a virtual display with the programs as they are installed: button 5 gets
"Mouse Button 4", a macro is recorded and put on button 9, a CPI step and a colour are chosen, each
is applied, and the driver process takes it. Then takes pictures of everything that the utility
shows.

usage: tour.py PROGRAMS TOOLS SCREENSHOTS
       tour.py --put-back             only puts back what a tour that was killed left aside

The settings file has a fixed place, so the player's own is put aside for the while and put back as
it was, also when the tour is interrupted. After a kill the next tour, or scripts/run, puts it back."""

import contextlib
import fcntl
import os
import pathlib
import plistlib
import signal
import sys

from gallery import take_pictures
from lightingbars import CPI, VIOLET, Illumination, MouseProperties
from macroeditor import EVENTS, NAME, new_macro
from macrokeys import stored_events, taps, without_delays
from sidepanels import MACROS, SidePanels
from stage import LIST_TITLE, Stage, wait_for

SETTINGS = pathlib.Path("/Users/Shared/KT7R4/KT7R4Setting.xml")
KEPT = SETTINGS.with_name("KT7R4Setting.xml.before-tour")
MOUSE_BUTTON_4_ROW = 3
FIRST_MACRO_CODE = 256
RECORDED = {"space": 49, "w": 13}
CPI_3200 = 3
INTERRUPTIONS = (signal.SIGINT, signal.SIGTERM, signal.SIGHUP, signal.SIGQUIT)


def say(text):
    print(f"==> {text}", flush=True)


@contextlib.contextmanager
def only_tour():
    """One tour at a time, whoever starts it: two would put aside each other's files."""
    folder = os.open(SETTINGS.parent, os.O_RDONLY | os.O_DIRECTORY)
    try:
        fcntl.flock(folder, fcntl.LOCK_EX | fcntl.LOCK_NB)
    except BlockingIOError:
        sys.exit("error: another tour is being played")
    try:
        yield
    finally:
        os.close(folder)


def left_over_name():
    """Where to keep what stood in the file's place while the player's own was still put aside."""
    number = 1
    while os.path.lexists(name := SETTINGS.with_name(f"{SETTINGS.name}.interrupted-tour.{number}")):
        number += 1
    return name


def put_back():
    if not os.path.lexists(KEPT):
        return
    if os.path.lexists(SETTINGS):
        say(f"keeping {SETTINGS} as {SETTINGS.rename(left_over_name())}")
    KEPT.rename(SETTINGS)
    say(f"{SETTINGS} is back, which a tour that was killed had put aside")


@contextlib.contextmanager
def settings_put_aside():
    """Renames the file away and back: not a byte of it is touched."""
    put_back()
    if os.path.lexists(SETTINGS):
        SETTINGS.rename(KEPT)
    try:
        yield
    finally:
        for number in INTERRUPTIONS:
            signal.signal(number, signal.SIG_IGN)
        if os.path.lexists(SETTINGS):
            SETTINGS.unlink()
        if os.path.lexists(KEPT):
            KEPT.rename(SETTINGS)


def assign_and_apply(stage, pictures):
    button = stage.control_box("Button5")
    before = stage.pixels(button)
    stage.click_control("Button5", button=3)
    stage.wait_for_window(LIST_TITLE)
    stage.wait_for_active(LIST_TITLE)
    stage.screenshot(pictures / "2-quick-list.png")
    stage.click_list_row(MOUSE_BUTTON_4_ROW)
    stage.wait_for_no_window(LIST_TITLE)
    wait_for(lambda: stage.pixels(button) != before, "the new caption")
    stage.screenshot(pictures / "3-assigned.png")
    stage.click_control("ButtonApply")


def record_and_apply(stage, utility, pictures):
    panels = SidePanels(stage)
    panels.open()
    panels.expand(MACROS)
    editor = new_macro(panels)
    editor.type_into(NAME, "Jump and run")
    editor.take_keyboard(EVENTS)
    editor.record(RECORDED)
    stage.screenshot(pictures / "5-recorded.png")
    editor.close_by("ButtonOK")
    panels.begin_drag(MACROS, 0).drop_at(*stage.middle_of("Button9"))
    utility.wait_for_line("DragDropButtonAction")
    stage.screenshot(pictures / "6-macro-assigned.png")
    stage.click_control("ButtonApply")


def choose_and_apply(stage, pictures):
    left, bottom = MouseProperties(stage), Illumination(stage)
    for bar in left, bottom:
        bar.open()
    left.choose(CPI, CPI_3200)
    colour = bottom.pick(VIOLET)
    wait_for(lambda: bottom.shown_colour() == colour, "the chosen colour")
    stage.screenshot(pictures / "8-chosen.png")
    stage.click_control("ButtonApply")
    return colour


def first_profile():
    return plistlib.loads(SETTINGS.read_bytes())["PROFILE_1"]


def check(found, expected, what):
    assert found == expected, f"the settings file holds {found!r} as {what}"
    say(f"the settings file holds {found!r} as {what}")


def play_main_job(programs, pictures):
    with Stage(settings=SETTINGS) as stage:
        say("starting kt7r4d and KyrGM on a virtual display")
        driver = stage.start(programs / "kt7r4d", "--state-dir", stage.folder / "state")
        driver.wait_for_line("ready")
        utility = stage.start(programs / "KyrGM")
        stage.wait_for_main_window()
        stage.screenshot(pictures / "1-start.png")
        say('right click on button 5, "Mouse Button 4", Apply')
        assign_and_apply(stage, pictures)
        taken = driver.wait_for_line("BUTTON_5=4")
        driver.wait_for_line("is on board")
        stage.screenshot(pictures / "4-applied.png")
        check(first_profile()["BUTTON_5"], 4, '"BUTTON_5" of "PROFILE_1"')
        say(f"the driver process took: {taken}")
        say('a new macro: "space" and "w", dragged onto button 9, Apply')
        record_and_apply(stage, utility, pictures)
        taken = driver.wait_for_line(f"BUTTON_9={FIRST_MACRO_CODE}")
        stage.screenshot(pictures / "7-macro-applied.png")
        keys = without_delays(stored_events(first_profile()["MACRO_1"]["KEYMAP"]))
        check(keys, taps(*RECORDED.values()), 'keys of "MACRO_1"')
        say(f"the driver process took: {taken}")
        say("a CPI step and a colour from their bars, Apply")
        colour = choose_and_apply(stage, pictures)
        taken = driver.wait_for_line(f"DPI_VALUE={CPI_3200}")
        stage.screenshot(pictures / "9-choices-applied.png")
        check(first_profile()["DPI_VALUE"], CPI_3200, '"DPI_VALUE" of "PROFILE_1"')
        check(tuple(first_profile()[f"LED_COLOR_{part}"] for part in "RGB"), colour, "colour")
        say(f"the driver process took: {taken}")


def main(arguments):
    for number in INTERRUPTIONS:
        # Being told to end is an error like any other: what was put aside comes back.
        signal.signal(number, lambda *_: sys.exit("interrupted"))
    if arguments == ["--put-back"]:
        with only_tour():
            put_back()
        return
    programs, tools, pictures = (pathlib.Path(argument).resolve() for argument in arguments)
    pictures.mkdir(parents=True, exist_ok=True)
    with only_tour(), settings_put_aside():
        play_main_job(programs, pictures)
        say("taking pictures of everything else")
        take_pictures(SETTINGS, ((programs / "KyrGM",), (programs / "kt7r4d",)), tools, pictures)
    say(f"screenshots are in {arguments[2]}")


if __name__ == "__main__":
    try:
        main(sys.argv[1:])
    except PermissionError as error:
        sys.exit(f"error: the settings file cannot be put aside: {error}")
