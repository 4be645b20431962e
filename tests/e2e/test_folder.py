"""The settings folder missing, read-only or full: the programs work on, the file that was there
stays whole, and once there is room the next Apply writes."""

import os
import pathlib
import plistlib
import subprocess
import sys
import unittest

from settingsfile import changed, differences, rich_settings
from stage import Stage, wait_for
from test_main_job import PROGRAMS, RunningPrograms

PRIVATE_MOUNTS = "KYR_PRIVATE_MOUNTS"
FAILURE = "write fail!"
PART_OF_A_FILE = 64 << 10  # bytes
BUTTON_5, BUTTON_6 = {"BUTTON_5": 4}, {"BUTTON_6": 4}


def run_with_private_mounts():
    """Goes on in a mount namespace of its own, where that is permitted: what is mounted there is
    seen by nobody else and is gone with it."""
    if PRIVATE_MOUNTS in os.environ:
        return
    unshare = ["unshare", "--mount"] + ([] if os.geteuid() == 0 else ["--map-root-user"])
    trial = [*unshare, "mount", "-t", "tmpfs", "none", "/mnt"]
    if subprocess.run(trial, capture_output=True).returncode == 0:
        os.environ[PRIVATE_MOUNTS] = "1"
        os.execvp("unshare", [*unshare, *sys.orig_argv])


class Folder(RunningPrograms):
    """Both programs on a settings file in a folder that can be taken away."""

    def new_stage(self):
        stage = Stage()
        self.folder = stage.folder / "shared"
        stage.settings = self.folder / "KT7R4Setting.xml"
        self.prepare(stage)
        return stage

    def prepare(self, stage):
        self.folder.mkdir()
        self.put_settings(stage)

    def put_settings(self, stage):
        self.settings = rich_settings()
        stage.settings.write_bytes(plistlib.dumps(self.settings))

    def failures(self):
        return self.utility.lines().count(FAILURE)

    def apply(self):
        wait_for(self.apply_changed, "an enabled Apply")
        self.stage.click_control("ButtonApply")

    def apply_in_vain(self):
        before = self.failures()
        self.apply()
        wait_for(lambda: self.failures() > before, "the failed write in the log")
        self.stage.move_to(0, 0)
        wait_for(lambda: not self.apply_changed(), "a disabled Apply")

    def apply_well(self):
        failures, taken = self.failures(), len(self.taken())
        self.apply()
        wait_for(lambda: len(self.taken()) > taken, "the driver process taking the settings")
        self.assertEqual(self.failures(), failures)

    def assert_file(self, **changes):
        self.assertEqual(differences(self.file(), changed(self.settings, **changes)), {})

    def assert_only_file(self):
        self.assertEqual([path.name for path in self.folder.iterdir()],
                         [self.stage.settings.name])


class Missing(Folder):
    def prepare(self, stage):
        pass

    def test_missing_at_the_start(self):
        self.assign("Button5")
        self.apply_in_vain()
        self.driver.wait_for_line("is missing: the mouse stays as it is")
        self.assertFalse(self.folder.exists())
        self.folder.mkdir()
        self.assign("Button6")
        self.apply_well()
        buttons = self.file()["PROFILE_1"]
        self.assertEqual((buttons["BUTTON_5"], buttons["BUTTON_6"]), (4, 4))
        self.assert_only_file()

    def test_ok_quits_all_the_same(self):
        self.assign()
        self.stage.click_control("ButtonOK")
        self.assertEqual(self.utility.wait_for_end(), 0)
        self.assertEqual(self.failures(), 1)


class Removed(Folder):
    def test_missing_later(self):
        aside = self.folder.rename(self.stage.folder / "aside")
        self.assign("Button5")
        self.apply_in_vain()
        aside.rename(self.folder)
        self.assert_file()
        self.assign("Button6")
        self.apply_well()
        self.assert_file(PROFILE_1=BUTTON_5 | BUTTON_6)
        self.assert_only_file()


class Disk(Folder):
    """The folder is a file system of its own."""

    size = 8 << 20

    def setUp(self):
        if PRIVATE_MOUNTS not in os.environ:
            self.skipTest("file systems cannot be mounted here")
        super().setUp()
        self.addCleanup(self.unmount)

    def prepare(self, stage):
        self.folder.mkdir()
        self.mount(f"size={self.size}")
        self.put_settings(stage)

    def mount(self, options):
        subprocess.run(["mount", "-t", "tmpfs", "-o", options, "none", self.folder], check=True)

    def remount(self, option):
        self.mount(f"remount,{option}")

    def unmount(self):
        subprocess.run(["umount", "--lazy", self.folder], check=True)

    def assert_writes_after(self, make_room):
        """An Apply fails and leaves the file; with room made the next one writes both edits."""
        before = self.stage.settings.read_bytes()
        self.assign("Button5")
        self.apply_in_vain()
        self.assertEqual(self.stage.settings.read_bytes(), before)
        make_room()
        self.assert_only_file()
        self.assign("Button6")
        self.apply_well()
        self.assert_only_file()


class FullDisk(Disk):
    def fill(self, room):
        """Leaves so many bytes of room, and gives the file that takes the rest."""
        disk = os.statvfs(self.folder)
        filler = self.folder / "filler"
        filler.write_bytes(bytes(disk.f_bavail * disk.f_frsize - room))
        return filler

    def test_without_room(self):
        self.assert_writes_after(self.fill(0).unlink)
        self.assert_file(PROFILE_1=BUTTON_5 | BUTTON_6)

    def test_with_room_for_a_part_of_the_file(self):
        self.assert_writes_after(self.fill(PART_OF_A_FILE).unlink)
        self.assert_file(PROFILE_1=BUTTON_5 | BUTTON_6)

    def test_the_driver_process_takes_the_file_that_was_there(self):
        self.fill(PART_OF_A_FILE)
        self.assign()
        self.apply_in_vain()
        self.driver.wait_for_line(f"BUTTON_5={self.settings['PROFILE_1']['BUTTON_5']} ")


class SmallDisk(Disk):
    """There never was room for a whole file."""

    size = PART_OF_A_FILE

    def put_settings(self, stage):
        self.settings = {"PROFILE_1": {"BUTTON_1": 1}}
        stage.settings.write_bytes(plistlib.dumps(self.settings))

    def test_a_larger_disk_takes_the_settings(self):
        self.assert_writes_after(lambda: self.remount(f"size={FullDisk.size}"))
        buttons = self.file()["PROFILE_1"]
        self.assertEqual([buttons[f"BUTTON_{number}"] for number in (1, 5, 6)], [1, 4, 4])


class RealPlace(Disk):
    """The programs as they are installed, on the path that each of them has for itself."""

    def new_stage(self):
        self.folder = pathlib.Path("/Users/Shared/KT7R4")
        if not self.folder.exists():
            self.skipTest("the shared folder is not there")
        stage = Stage(self.folder / "KT7R4Setting.xml")
        self.prepare(stage)
        return stage

    def prepare(self, stage):
        self.mount(f"size={self.size}")
        self.put_settings(stage)

    def driver_command(self):
        return (PROGRAMS / "kt7r4d",)

    def utility_command(self):
        return (PROGRAMS / "KyrGM",)

    def test_both_programs_meet_there(self):
        self.assign("Button5")
        self.apply_well()
        self.driver.wait_for_line("BUTTON_5=4 ")
        self.assert_file(PROFILE_1=BUTTON_5)
        self.assert_only_file()


class ReadOnly(Disk):
    def test_later(self):
        self.remount("ro")
        self.assert_writes_after(lambda: self.remount("rw"))
        self.assert_file(PROFILE_1=BUTTON_5 | BUTTON_6)

    def test_at_the_start(self):
        self.stage.click_control("ButtonCancel")
        self.utility.wait_for_end()
        self.remount("ro")
        self.start_utility()
        self.assert_writes_after(lambda: self.remount("rw"))
        self.assert_file(PROFILE_1=BUTTON_5 | BUTTON_6)


if __name__ == "__main__":
    run_with_private_mounts()
    unittest.main(verbosity=2)
