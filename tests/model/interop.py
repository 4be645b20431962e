"""Other readers and writers of property lists against the settings store.

usage: interop.py STORETOOL PLISTUTIL
"""

import os
import plistlib
import subprocess
import sys
import tempfile
import unittest

STORETOOL, PLISTUTIL = sys.argv[1:3]

INTEGER, TEXT, EVENTS = "integer", "text", "events"
ROOT, PROFILE, CHARACTER, MACRO = "root", "profile", "character", "macro"

# Every key with its level and kind, in the order by which the sample numbers them.
KEYS = (
    [(k, ROOT, INTEGER) for k in ("PROFILE_ID", "POLLING_RATE", "MACRODEL_CONFIRM", "GAME_MODE")]
    + [(k, PROFILE, INTEGER) for k in (
        "DPI_VALUE", "DBCLICK_SPEED", "SCROLL_SPEED", "SENSITIVITY", "ADVANCED_SEN_X",
        "ADVANCED_SEN_Y", "LED_COLOR_R", "LED_COLOR_G", "LED_COLOR_B", "LED_INTENSITY",
        "LED_PULSATION")]
    + [("BUTTON_%d" % n, PROFILE, INTEGER) for n in range(1, 15)]
    + [("REGION", CHARACTER, INTEGER), ("SERVER", CHARACTER, TEXT), ("NAME", CHARACTER, TEXT),
       ("LEVEL", CHARACTER, INTEGER), ("CLASS", CHARACTER, TEXT), ("RACE", CHARACTER, TEXT)]
    + [("MACRO_NAME", MACRO, TEXT), ("MODE", MACRO, INTEGER), ("MACRO_LOOP", MACRO, INTEGER),
       ("bSTARTKEY", MACRO, INTEGER), ("bSENDKEY", MACRO, INTEGER), ("bLOOP", MACRO, INTEGER),
       ("COPY_PASTER", MACRO, TEXT), ("KEYMAP", MACRO, EVENTS), ("STARTKEY", MACRO, EVENTS),
       ("SENDKEY", MACRO, EVENTS)]
)


def build(value):
    """The settings as nested dictionaries of value(index, key, kind, profile, macro)."""
    def level(wanted, profile=0, macro=0):
        return {key: value(index, key, kind, profile, macro)
                for index, (key, where, kind) in enumerate(KEYS) if where == wanted}
    root = level(ROOT)
    for profile in range(10):
        dictionary = level(PROFILE, profile)
        dictionary["CHARACTER_INFO"] = level(CHARACTER, profile)
        for macro in range(50):
            dictionary["MACRO_%d" % (macro + 1)] = level(MACRO, profile, macro)
        root["PROFILE_%d" % (profile + 1)] = dictionary
    return root


def sample_value(index, key, kind, profile, macro):
    """What "storetool write-sample" is to write."""
    number = profile * 100000 + macro * 1000 + index
    if kind == INTEGER:
        return number
    if kind == TEXT:
        return "%s \u00e9\u20ac\U0001F600 <&>\"' \t\n%d " % (key, number)
    return "%d,1,%d,%d,2,%d," % (number, index, macro, profile)


def foreign_value(index, key, kind, profile, macro):
    """Other values than the sample's: negative numbers, empty texts and lists among them."""
    number = profile * 7919 + macro * 104729 + index * 31
    if kind == INTEGER:
        return -number if number % 3 == 0 else number
    if kind == TEXT:
        return "" if number % 5 == 0 else "\u00fc\U0001F5B1 & %s %d" % (key, number)
    if number % 5 == 0:
        return ""
    return "%d,1,5,%d,2,0," % (number, number + 1)


def dump_line_value(kind, value):
    """How "storetool dump" prints a value."""
    if kind == INTEGER:
        return str(value % 2**32)
    if kind == TEXT:
        return value.encode().hex()
    numbers = value.split(",")[:-1]
    return "".join("%s/%s/%s " % tuple(numbers[i:i + 3]) for i in range(0, len(numbers), 3))


def dump_lines(settings):
    """The lines that "storetool dump" is to print, in no order."""
    kinds = {key: kind for key, _, kind in KEYS}

    def lines(prefix, dictionary):
        for key, value in dictionary.items():
            if isinstance(value, dict):
                yield from lines(prefix + key + ".", value)
            else:
                yield "%s%s=%s" % (prefix, key, dump_line_value(kinds[key], value))
    return sorted(lines("", settings))


class Interop(unittest.TestCase):
    maxDiff = 2000

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.path = os.path.join(folder.name, "settings.xml")
        self.other = os.path.join(folder.name, "other")

    def read(self, path):
        with open(path, "rb") as file:
            return file.read()

    def store_writes_sample(self):
        subprocess.run([STORETOOL, "write-sample", self.path], check=True)

    def convert(self, source, target, form):
        subprocess.run([PLISTUTIL, "-i", source, "-o", target, "-f", form], check=True)

    def store_exports(self, index, path):
        subprocess.run([STORETOOL, "export", self.path, str(index), path], check=True)

    def assert_store_reads(self, path, settings):
        dump = subprocess.run([STORETOOL, "dump", path], check=True, capture_output=True, text=True)
        self.assertEqual(sorted(dump.stdout.splitlines()), dump_lines(settings))

    def test_plistlib_reads_what_the_store_writes(self):
        self.store_writes_sample()
        self.assertEqual(plistlib.loads(self.read(self.path), fmt=plistlib.FMT_XML),
                         build(sample_value))

    def test_plistutil_reads_what_the_store_writes(self):
        self.store_writes_sample()
        self.convert(self.path, self.other, "bin")
        self.assertEqual(plistlib.loads(self.read(self.other), fmt=plistlib.FMT_BINARY),
                         build(sample_value))

    def test_the_store_reads_its_own_file_through_plistutil(self):
        self.store_writes_sample()
        self.convert(self.path, self.other, "bin")
        self.assert_store_reads(self.other, build(sample_value))
        self.convert(self.other, self.path, "xml")
        self.assert_store_reads(self.path, build(sample_value))

    def test_the_store_reads_what_plistlib_writes(self):
        settings = build(foreign_value)
        for form in (plistlib.FMT_XML, plistlib.FMT_BINARY):
            with self.subTest(form=form), open(self.path, "wb") as file:
                plistlib.dump(settings, file, fmt=form)
                file.flush()
                self.assert_store_reads(self.path, settings)

    def test_the_store_reads_a_binary_file_that_shares_its_macros(self):
        settings = build(foreign_value)
        macro = settings["PROFILE_1"]["MACRO_1"]
        for profile in range(1, 11):
            for number in range(1, 51):
                settings["PROFILE_%d" % profile]["MACRO_%d" % number] = macro
        with open(self.path, "wb") as file:
            plistlib.dump(settings, file, fmt=plistlib.FMT_BINARY)
        self.assert_store_reads(self.path, settings)

    def test_plistlib_reads_an_exported_profile(self):
        self.store_writes_sample()
        for index in (0, 3, 9):
            with self.subTest(index=index):
                self.store_exports(index, self.other)
                self.assertEqual(plistlib.loads(self.read(self.other), fmt=plistlib.FMT_XML),
                                 build(sample_value)["PROFILE_%d" % (index + 1)])

    def test_the_store_imports_what_plistlib_writes(self):
        settings = build(sample_value)
        settings["PROFILE_8"] = build(foreign_value)["PROFILE_3"]
        for form in (plistlib.FMT_XML, plistlib.FMT_BINARY):
            with self.subTest(form=form):
                self.store_writes_sample()
                with open(self.other, "wb") as file:
                    plistlib.dump(settings["PROFILE_8"], file, fmt=form)
                subprocess.run([STORETOOL, "import", self.path, "7", self.other], check=True)
                self.assert_store_reads(self.path, settings)

    def test_other_readers_take_a_carriage_return_for_a_line_feed(self):
        # The store writes it as it is. It reads it back, as plistutil does; XML readers that keep
        # to the letter take any line break in a file for a line feed.
        settings = build(sample_value)
        settings["PROFILE_10"]["MACRO_50"]["COPY_PASTER"] = "a\r\nb\rc\n"
        with open(self.other, "wb") as file:
            plistlib.dump(settings, file, fmt=plistlib.FMT_BINARY)
        subprocess.run([STORETOOL, "copy", self.other, self.path], check=True)
        self.assert_store_reads(self.path, settings)
        self.convert(self.path, self.other, "bin")
        self.assertEqual(plistlib.loads(self.read(self.other)), settings)
        settings["PROFILE_10"]["MACRO_50"]["COPY_PASTER"] = "a\nb\nc\n"
        self.assertEqual(plistlib.loads(self.read(self.path)), settings)


unittest.main(argv=sys.argv[:1])
