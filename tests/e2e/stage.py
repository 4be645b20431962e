"""A private stage for the programs: an X server with a window manager, a message bus and a folder
for the settings, all gone afterwards. What happens on it comes from real pointer and key events."""

import contextlib
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
MAIN_TITLE = "Kyr Torvane MMO Gaming Mouse"
LAST_BAR_TITLE = "Illumination Settings"
LIST_TITLE = "Basic Functions"
VIEW_HEIGHT = 640
ROW_HEIGHT = 20
MENU_FRAME = 4
MENU_ROW_HEIGHT = 24
MENU_SEPARATOR_HEIGHT = 3


def control_rectangles(source):
    """A view's controls by name, as (x, y, width, height), y upwards, from its own table."""
    table = (ROOT / "src" / source).read_text()
    rows = re.findall(r'\{\s*"(\w+)",\s+\{(\d+), (\d+), (\d+), (\d+)\}', table)
    return {name: tuple(map(int, box)) for name, *box in rows}


CONTROLS = control_rectangles("mainview/controltable.h")
DIALOGS = {name: control_rectangles(f"dialogs/{table}.h")
           for name, table in (("WarnOneView", "warnonecontrols"),
                               ("WarnTwoView", "warntwocontrols"),
                               ("AboutView", "aboutcontrols"))}
MENU_TITLES = {"BtnProfileMenu": "Profile menu", "BtnToolsMenu": "Tools menu",
               "BtnHelpMenu": "Help menu"}


def wait_for(condition, what, seconds=20):
    """Waits until the condition gives something true, and gives that. Where `what` can be called,
    it tells in the end what was waited for."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        result = condition()
        if result:
            return result
        time.sleep(0.01)
    text = what() if callable(what) else what
    raise AssertionError(f"waited {seconds} s in vain: {text}")


def let_time_pass(seconds):
    """Lets the time pass after which something that shows nowhere is over."""
    end = time.monotonic() + seconds
    wait_for(lambda: time.monotonic() > end, "time to pass")


class Program:
    """A running program whose lines on standard error are kept."""

    def __init__(self, command, environment):
        self.log = tempfile.NamedTemporaryFile("w+", prefix="kyr-log-")
        self.process = subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL,
                                        stdout=self.log, stderr=subprocess.STDOUT)

    def lines(self):
        return pathlib.Path(self.log.name).read_text(errors="replace").splitlines()

    def wait_for_line(self, text):
        def found():
            assert text in "\n".join(self.lines()) or self.process.poll() is None, \
                f"ended without saying {text!r}: {self.lines()}"
            return next((line for line in self.lines() if text in line), None)
        return wait_for(found, f"the line {text!r} in {self.lines()}")

    def wait_for_end(self):
        return self.process.wait(timeout=20)

    def stop(self):
        if self.process.poll() is None:
            self.process.terminate()
        with contextlib.suppress(subprocess.TimeoutExpired):
            self.process.wait(timeout=10)
        self.process.kill()
        self.process.wait()
        self.log.close()


class Stage:
    """Everything that the programs need around them."""

    def __init__(self, settings=None, size="1280x1024", scale=1):
        self.scale = scale
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="kyr-stage-"))
        self.settings = pathlib.Path(settings or self.folder / "KT7R4Setting.xml")
        self.programs = []
        self.pointer = None
        self.windows = {}  # by title, as last found
        self.environment = self.clean_environment()
        try:
            self.start_display(size)
            self.start_bus()
            self.start_window_manager()
        except BaseException:
            self.close()
            raise

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def clean_environment(self):
        keep = {name: os.environ[name] for name in ("PATH", "ASAN_OPTIONS", "LSAN_OPTIONS",
                                                    "UBSAN_OPTIONS") if name in os.environ}
        runtime = self.folder / "runtime"
        runtime.mkdir(mode=0o700)
        return keep | {"HOME": str(self.folder), "XDG_RUNTIME_DIR": str(runtime),
                       "LC_ALL": "C.UTF-8", "QT_QPA_PLATFORM": "xcb",
                       "QT_SCALE_FACTOR": str(self.scale)}

    def start_display(self, size):
        read, write = os.pipe()
        server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", f"{size}x24", "-nolisten", "tcp",
             "-noreset"], pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write)
        self.add_process(server)
        with os.fdopen(read) as pipe:
            number = pipe.readline().strip()
        assert number, "the virtual X server did not start"
        self.environment["DISPLAY"] = f":{number}"
        # With the first key ever pressed the server takes over the keyboard of the tool: programs
        # that run already set up their keys anew, and what is typed meanwhile may be lost to them.
        self.key("Shift_L")

    def start_bus(self):
        bus = subprocess.Popen(
            ["dbus-daemon", "--session", "--nofork", "--print-address=1"],
            env=self.environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self.add_process(bus)
        with bus.stdout as pipe:
            self.environment["DBUS_SESSION_BUS_ADDRESS"] = pipe.readline().strip()

    def start_window_manager(self):
        self.add_process(subprocess.Popen(["openbox"], env=self.environment,
                                          stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
        wait_for(lambda: "window id" in self.output("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"),
                 "the window manager")
        # It says that it is there before its event loop runs: it is once it answers requests.
        self.wait_for_window_manager()

    def wait_for_window_manager(self):
        """Waits until it has done all that it was asked for."""
        for count in ("3", "2"):
            wait_for(lambda: self.has_desktops(count), f"a window manager with {count} desktops")

    def has_desktops(self, count):
        self.output("xdotool", "set_num_desktops", count)
        return self.output("xdotool", "get_num_desktops").strip() == count

    def add_process(self, process):
        self.programs.append(process)

    def start(self, *command):
        program = Program([str(part) for part in command], self.environment)
        self.programs.append(program)
        return program

    def close(self):
        for program in reversed(self.programs):
            if isinstance(program, Program):
                program.stop()
            else:
                program.terminate()
                program.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    def output(self, *command):
        return subprocess.run(command, env=self.environment, capture_output=True,
                              text=True).stdout

    def screenshot(self, path, box=None):
        area = ["-a", ",".join(map(str, box))] if box else []
        subprocess.run(["scrot", "-o", *area, str(path)], env=self.environment, check=True,
                       capture_output=True)

    def pixels(self, box):
        """The colours of a part of the screen, to tell whether it changed."""
        path = self.folder / "pixels.ppm"
        self.screenshot(path, box)
        _, _, width, height = box
        return path.read_bytes()[-3 * width * height:]

    # Windows and input

    def window(self, title):
        """The id of the visible window with that title, or nothing."""
        known = self.windows.get(title)
        if known and self.is_visible(known, title):
            return known
        # Those of the programs lie at most in a frame of the window manager's.
        ids = self.output("xdotool", "search", "--onlyvisible", "--maxdepth", "2", "--name",
                          f"^{title}$").split()
        self.windows[title] = ids[0] if ids else None
        return self.windows[title]

    def is_visible(self, window, title):
        """Asks for that window only: a search goes through all there are."""
        text = self.output("xwininfo", "-id", window)
        return f'"{title}"' in text and "IsViewable" in text

    def wait_for_window(self, title):
        return wait_for(lambda: self.window(title), f"the window {title!r}")

    def wait_for_no_window(self, title):
        wait_for(lambda: not self.window(title), f"the end of the window {title!r}")

    def frame(self, title):
        """The window's (x, y, width, height) on the screen, y downwards."""
        return self.frame_of(self.wait_for_window(title))

    def frame_of(self, window):
        text = self.output("xdotool", "getwindowgeometry", "--shell", window)
        values = dict(line.split("=") for line in text.split())
        return tuple(int(values[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))

    def windows_of(self, window_class):
        """The ids of a program's visible windows."""
        found = self.output("xdotool", "search", "--onlyvisible", "--maxdepth", "2", "--class",
                            window_class)
        return set(found.split())

    def active_title(self):
        return self.output("xdotool", "getactivewindow", "getwindowname").strip()

    def is_active(self, title):
        """A window that is gone is named as the active one until its end has come round."""
        window = self.output("xdotool", "getactivewindow").strip()
        return window and self.is_visible(window, title)

    def wait_for_active(self, title):
        wait_for(lambda: self.is_active(title),
                 lambda: f"{title!r} as the active window, which is {self.active_title()!r}")

    def move_to(self, x, y):
        # Asked to wait for a move to where the pointer is, the tool waits in vain for 15 seconds.
        if self.pointer != (x, y):
            self.output("xdotool", "mousemove", "--sync", str(x), str(y))
        self.pointer = x, y

    def click(self, x, y, button=1):
        self.move_to(x, y)
        self.output("xdotool", "click", str(button))

    def press(self):
        self.output("xdotool", "mousedown", "1")

    def release(self):
        self.output("xdotool", "mouseup", "1")

    def drag(self, start, end):
        """Presses at one point, moves in small steps to the other, releases."""
        self.move_to(*start)
        self.press()
        steps = 12
        for step in range(1, steps + 1):
            self.move_to(*(s + (e - s) * step // steps for s, e in zip(start, end)))
        self.release()

    def key(self, name):
        self.output("xdotool", "key", name)

    # The main window

    def wait_for_main_window(self):
        """Waits until it has the keyboard and is painted, the screen behind it being black, and
        until the last of its bars is there, which come after it."""
        self.wait_for_active(MAIN_TITLE)
        wait_for(lambda: any(self.pixels(self.control_box("ButtonApply"))), "a painted window")
        self.wait_for_window(LAST_BAR_TITLE)

    def at(self, point):
        """On the screen, what is given from the window's upper left corner."""
        left, top, _, _ = self.frame(MAIN_TITLE)
        return tuple(start + self.scale * length for start, length in zip((left, top), point))

    def open_bar(self, title, handle, size):
        """Opens a bar by its handle, given like its size as at scale 1."""
        self.click(*self.at(handle))
        self.wait_for_size(title, size)

    def wait_for_size(self, title, size):
        whole = tuple(self.scale * length for length in size)
        wait_for(lambda: self.frame(title)[2:] == whole, f"{title!r} open")

    def control_box(self, name):
        """A control's (x, y, width, height) on the screen, y downwards."""
        left, top, _, _ = self.frame(MAIN_TITLE)
        x, y, width, height = (self.scale * length for length in CONTROLS[name])
        return left + x, top + self.scale * VIEW_HEIGHT - y - height, width, height

    def middle_of(self, name):
        x, y, width, height = self.control_box(name)
        return x + width // 2, y + height // 2

    def click_control(self, name, button=1):
        self.click(*self.middle_of(name), button)

    def click_list_row(self, row, title=LIST_TITLE):
        x, y, width, _ = self.frame(title)
        height = self.scale * ROW_HEIGHT
        self.click(x + width // 2, y + row * height + height // 2)

    # Menus and dialogs

    def utility_windows(self):
        """The ids of the visible windows, menus among them."""
        return self.windows_of("kyr")

    def click_menu_row(self, menu, row):
        """Clicks a row of the menu with that window id."""
        x, y, width, _ = self.frame_of(menu)
        middle = MENU_FRAME + row * (MENU_ROW_HEIGHT + MENU_SEPARATOR_HEIGHT) + MENU_ROW_HEIGHT // 2
        self.click(x + width // 2, y + self.scale * middle)

    def open_menu(self, button, *submenu_rows):
        """Opens a menu by its button, and the submenu of each row; the last one's window id."""
        self.click_control(button)
        menu = self.wait_for_window(MENU_TITLES[button])
        for row in submenu_rows:
            before = self.utility_windows()
            self.click_menu_row(menu, row)
            menu = wait_for(lambda: self.utility_windows() - before, "a submenu").pop()
        return menu

    def choose(self, button, *rows):
        """Opens a menu by its button and chooses a row, or a row and one of its submenu."""
        self.click_menu_row(self.open_menu(button, *rows[:-1]), rows[-1])
        self.wait_for_no_window(MENU_TITLES[button])

    def click_dialog(self, view, title, button):
        """Clicks a button of a message dialog, and waits until the dialog is gone."""
        left, top, _, height = self.frame(title)
        x, y, width, button_height = (self.scale * length for length in DIALOGS[view][button])
        self.click(left + x + width // 2, top + height - y - button_height // 2)
        self.wait_for_no_window(title)
