"""Plays the main job on a virtual display with the programs as they are installed: button 5 gets
"Mouse Button 4", the change is applied, and the driver process takes it.

usage: tour.py PROGRAMS SCREENSHOTS

The settings file has a fixed place, so the player's own is put aside for the while and put back as
it was, also when the tour is interrupted or was killed the last time."""

import contextlib
import pathlib
import plistlib
import signal
import sys

from stage import LIST_TITLE, Stage, wait_for

SETTINGS = pathlib.Path("/Users/Shared/KT7R4/KT7R4Setting.xml")
KEPT = SETTINGS.with_name("KT7R4Setting.xml.before-tour")
# What stood in the file's place when the player's own was still put aside.
LEFT_OVER = SETTINGS.with_name("KT7R4Setting.xml.interrupted-tour")
MOUSE_BUTTON_4_ROW = 3


def say(text):
    print(f"==> {text}", flush=True)


@contextlib.contextmanager
def settings_put_aside():
    """Renames the file away and back: not a byte of it is touched."""
    if SETTINGS.exists():
        SETTINGS.rename(LEFT_OVER if KEPT.exists() else KEPT)
    try:
        yield
    finally:
        SETTINGS.unlink(missing_ok=True)
        if KEPT.exists():
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


def play(programs, pictures):
    with settings_put_aside(), Stage(settings=SETTINGS) as stage:
        say("starting kt7r4d and KyrGM on a virtual display")
        driver = stage.start(programs / "kt7r4d", "--state-dir", stage.folder / "state")
        driver.wait_for_line("ready")
        stage.start(programs / "KyrGM")
        stage.wait_for_main_window()
        stage.screenshot(pictures / "1-start.png")
        say('right click on button 5, "Mouse Button 4", Apply')
        assign_and_apply(stage, pictures)
        taken = driver.wait_for_line("BUTTON_5=4")
        driver.wait_for_line("is on board")
        stage.screenshot(pictures / "4-applied.png")
        code = plistlib.loads(SETTINGS.read_bytes())["PROFILE_1"]["BUTTON_5"]
        assert code == 4, f"the settings file holds {code}"
        say('the settings file holds 4 as "BUTTON_5" of "PROFILE_1"')
        say(f"the driver process took: {taken}")


def main():
    programs, pictures = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
    pictures.mkdir(parents=True, exist_ok=True)
    # Being told to end is an error like any other: what was put aside comes back.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("interrupted"))
    play(programs, pictures)
    say(f"screenshots are in {pictures.relative_to(pathlib.Path.cwd())}")


if __name__ == "__main__":
    main()
