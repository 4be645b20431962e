"""Lays pictures of everything that the utility shows out on one sheet, each at scale 1 beside
scale 2, pixel for pixel.

usage: contactsheet.py PROGRAMS TOOLS PICTURES SHEET"""

import pathlib
import struct
import subprocess
import sys
import tempfile
from xml.sax.saxutils import quoteattr

from gallery import GREY, LOOKS, SCREENS, take_pictures

WIDTH, GAP = 3400, 24
TITLE, CAPTION = 32, 14  # sizes of letters
STATES = ("normal", "over", "down")
HANDLES = [f"handle-{side}-{state}" for state in ("shut", "open")
           for side in ("left", "right", "bottom")]
# The groups of the sheet: rows of pictures, by the names that the gallery gives them.
GROUPS = {
    "Main view": ["window"],
    "Its controls at rest, below the pointer, held down": list(LOOKS),
    "In-game mode, the character's badge, a dragged function":
        ["in-game-mode", "badge", "badge-without-portrait", "no-badge", "drag"],
    "Bars": ["bars", "bar-btnDPI", "bar-btnColorButton", "bar-btnIntensity", "bar-btnPulsation",
             *HANDLES],
    "Panels": ["panel-cpi", "panel-profiles", "panel-macros", "panel-commands", "panel-btnNew"],
    "Lists and menus": ["quick-list", "list-cpi", "list-intensity", "list-pulsation", "colours",
                        "menu-profile", "menu-polling-rate", "menu-lift-distance", "menu-help"],
    "Dialogs": ["error", "question", "about", "progress", "macro-warning", "macro-warning-checked",
                "character", "character-regions"],
    "Their controls at rest, below the pointer, held down":
        ["error-ButtonOK", "error-ButtonClose", "question-ButtonOK", "question-ButtonCancel",
         "question-ButtonClose", "about-ButtonClose", "character-ButtonOK",
         "character-ButtonRegion", "character-ButtonClose", "macro-warning-ButtonOK",
         "macro-warning-ButtonCancel", "macro-warning-ButtonClose"],
    "Macro editor": ["macro-new", "macro-recording", "macro-copy-paste", "macro-text",
                     "macro-record-delay", "macro-no-delay", "macro-full", "macro-full-end",
                     "macro-ButtonOK", "macro-ButtonClose"],
}


def size_of(picture):
    """The width and height that a PNG's head tells."""
    return struct.unpack(">II", picture.read_bytes()[16:24])


def files_of(pictures, name):
    """A row's files: one picture or one of each state, on each scale."""
    parts = [name, *(f"{name}-{state}" for state in STATES)]
    files = [pictures / f"{part}-at-{scale}x.png" for scale in SCREENS for part in parts]
    return [file for file in files if file.exists()]


class Sheet:
    """Is filled from the top, rows from left to right wherever the next one fits."""

    def __init__(self):
        self.elements, self.files = [], set()
        self.left = self.top = GAP
        self.line_height = 0

    def end_line(self):
        self.left, self.top, self.line_height = GAP, self.top + self.line_height, 0

    def add_text(self, words, size):
        self.elements.append(f'<text x="{self.left}" y="{self.top + size}" font-size="{size}" '
                             f'font-family="DejaVu Sans">{words}</text>')

    def add_title(self, title):
        self.end_line()
        self.add_text(title, TITLE)
        self.top += TITLE + GAP

    def add_row(self, name, files):
        """The pictures beside each other, below their name."""
        assert files, f"no picture of {name}"
        self.files.update(files)
        sizes = [size_of(file) for file in files]
        if self.left + sum(width + GAP for width, _ in sizes) > WIDTH:
            self.end_line()
        self.add_text(name, CAPTION)
        y = self.top + CAPTION + GAP // 4
        for file, (width, height) in zip(files, sizes):
            self.elements.append(f'<image href={quoteattr(file.name)} x="{self.left}" y="{y}" '
                                 f'width="{width}" height="{height}"/>')
            self.left += width + GAP // 2
            self.line_height = max(self.line_height, y + height + GAP - self.top)
        self.left += GAP

    def drawing(self):
        self.end_line()
        return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{self.top}">'
                f'<rect width="100%" height="100%" fill="#{GREY:06x}"/>'
                + "\n".join(self.elements) + "</svg>")


def compose(tools, pictures, file):
    sheet = Sheet()
    for title, names in GROUPS.items():
        sheet.add_title(title)
        for name in names:
            sheet.add_row(name, files_of(pictures, name))
    forgotten = set(pictures.glob("*-at-?x.png")) - sheet.files
    assert not forgotten, f"not on the sheet: {sorted(forgotten)}"
    drawing, picture = pictures / "sheet.svg", pictures / "sheet.png"
    drawing.write_text(sheet.drawing())
    subprocess.run(["rsvg-convert", "-o", picture, drawing], check=True)
    subprocess.run([tools / "pictureas", picture, file], check=True)
    drawing.unlink()
    picture.unlink()


def main(programs, tools, pictures, sheet):
    pictures.mkdir(parents=True, exist_ok=True)
    for old in pictures.glob("*-at-?x.png"):
        old.unlink()
    with tempfile.TemporaryDirectory(prefix="kyr-sheet-") as folder:
        settings = pathlib.Path(folder) / "KT7R4Setting.xml"
        commands = ((tools / "kyrgm_at", settings), (programs / "kt7r4d", "--settings", settings))
        take_pictures(settings, commands, tools, pictures)
    compose(tools, pictures, sheet)
    print(f"==> {sheet} has {sheet.stat().st_size // 1024} KiB")


if __name__ == "__main__":
    main(*(pathlib.Path(argument).resolve() for argument in sys.argv[1:]))
