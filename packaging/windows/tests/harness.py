# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The Windows program under Wine: started, clicked and looked at from outside.

Runs inside wine-env. What the program did is read from the Wine prefix on disk and from Wine's registry. Wine
offers no accessibility, so widgets are known by their place in a window of fixed size.
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import unittest
import xml.etree.ElementTree as ET

# Behind this folder, which has a harness of its own.
sys.path.append(str(pathlib.Path(__file__).resolve().parents[3] / "tests" / "e2e"))
from settingsfile import SETTLED, settings_text

VERSION = os.environ["ORVANTO_VERSION"]
DEADLINE = 60
SHORT = 5
DRIVE_C = (pathlib.Path(os.environ["WINEPREFIX"]) / "drive_c").resolve()
# The explorer shows it first below the drive.
FOLDER = DRIVE_C / "0 files"
RUN_KEY = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Run"

MAIN_SIZE = (1260, 900)
# Places in the main window of that size.
RULE_KIND, ADD_RULE, RENAME = (90, 109), (52, 493), (680, 845)
RULE_LIST, FILE_LIST = (32, 558, 400, 280), (518, 115, 390, 705)
INSERTED_TEXT, REPLACED_TEXT, REPLACING_TEXT = (277, 204), (272, 238), (272, 360)
SETTINGS_BUTTON, DRIVE, FIRST_FOLDER = (27, 22), (1037, 569), (1060, 587)
EXPLORER = (980, 562, 268, 300)

RULE_KINDS = ("Change Case", "Enumerate", "Insert Text", "Replace", "Trim")


def until(condition, what, deadline=DEADLINE):
    """The first truthy value of condition()."""
    end = time.monotonic() + deadline
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise AssertionError(f"waited {deadline} s for {what}")
        time.sleep(0.05)


def run(*command):
    return subprocess.run([str(part) for part in command], stdin=subprocess.DEVNULL, capture_output=True,
                          timeout=DEADLINE, check=False)


def wine(*command):
    """Runs a Windows program to its end: its exit code and what it printed."""
    done = run("wine", *command)
    return done.returncode, done.stdout.decode(errors="replace").replace("\r\n", "\n")


def roaming():
    """The roaming data folder of the user, on disk."""
    folder = wine("cmd", "/c", "echo %APPDATA%")[1].strip()
    return pathlib.Path(run("winepath", "-u", folder).stdout.decode().strip()).resolve()


def windows_path(path):
    """A path on the drive C: as Windows programs spell it."""
    return "C:\\" + str(path.relative_to(DRIVE_C)).replace("/", "\\")


def run_value():
    """The data of the value that starts the program with the system, or None."""
    code, text = wine("reg", "query", RUN_KEY, "/v", "Pendulix Basic")
    for line in text.splitlines() if code == 0 else ():
        name, kind, data = (line.strip().split("    ", 2) + ["", ""])[:3]
        if name == "Pendulix Basic":
            return kind, data
    return None


def xdotool(*arguments):
    return run("xdotool", *arguments).stdout.decode().split()


def windows():
    """All windows on the screen: numbers and titles."""
    return {number: run("xdotool", "getwindowname", number).stdout.decode().strip()
            for number in xdotool("search", "--onlyvisible", "--name", ".")}


def width_of(number):
    shown = xdotool("getwindowgeometry", "--shell", number)
    return int(dict(part.split("=") for part in shown).get("WIDTH", 0))


class Window:
    def __init__(self, title, least_width=0, besides=()):
        """besides: the numbers of other windows with that title."""
        def find():
            numbers = xdotool("search", "--onlyvisible", "--name", f"^{title}$")
            return [number for number in numbers if number not in besides and width_of(number) >= least_width]
        self.number = until(find, f"the window {title!r}; there are {windows()}")[-1]
        self.title = title

    def is_there(self):
        return self.number in xdotool("search", "--onlyvisible", "--name", f"^{self.title}$")

    def until_closed(self):
        until(lambda: not self.is_there(), f"the window {self.title!r} to close")

    def picture(self, place=None):
        crop = ["-crop", "{2}x{3}+{0}+{1}".format(*place)] if place else []
        return run("import", "-window", self.number, *crop, "ppm:-").stdout

    def until_still(self, place=None):
        """The picture, once three looks in a row saw the same."""
        seen = []

        def same():
            seen.append(self.picture(place))
            time.sleep(0.2)
            return seen[-1] if seen[-3:] == [seen[-1]] * 3 else None
        return until(same, f"the window {self.title!r} to rest")

    def until_changed(self, before, place, deadline=DEADLINE):
        until(lambda: self.picture(place) != before, f"a change at {place} of {self.title!r}", deadline)
        return self.until_still(place)

    def resize(self, size):
        def has_size():
            # A window that is still being shown goes back to the size it chose.
            self.until_still()
            shown = run("xdotool", "getwindowgeometry", self.number).stdout.decode()
            if "{}x{}".format(*size) in shown:
                return True
            xdotool("windowmove", self.number, 2, 20, "windowsize", self.number, *size)
            return False
        until(has_size, f"the window {self.title!r} to take the size {size}")

    def click(self, place):
        xdotool("mousemove", "--window", self.number, *place, "click", "1")

    def keys(self, *names):
        xdotool("windowfocus", self.number, "key", "--delay", 30, *names)

    def type(self, text):
        xdotool("type", "--delay", 30, "--", text)

    def close(self):
        """As the button in the title bar does."""
        run("wmctrl", "-i", "-c", self.number)

    def close_until_gone(self):
        """Wine's own windows miss the button while they are still being filled."""
        def gone():
            if not self.is_there():
                return True
            self.close()
            return False
        until(gone, f"the window {self.title!r} to close")

    def drag(self, start, target):
        steps = 12
        xdotool("mousemove", "--window", self.number, *start, "mousedown", "1")
        for step in range(1, steps + 1):
            place = [a + (b - a) * step // steps for a, b in zip(start, target)]
            xdotool("mousemove", "--window", self.number, *place, "sleep", "0.05")
        xdotool("mouseup", "1")


class Program:
    """One run of an orvanto.exe somewhere on the drive C:."""

    def __init__(self, executable, traced=None):
        """traced: a part of Wine whose calls are kept, for calls()."""
        debug = {"WINEDEBUG": f"+{traced}"} if traced else {}
        self._errors = tempfile.TemporaryFile()
        self.process = subprocess.Popen(["wine", windows_path(executable)], stdin=subprocess.DEVNULL,
                                        stdout=subprocess.DEVNULL, stderr=self._errors,
                                        env={**os.environ, **debug})
        self._traced = f":{traced}:"

    def calls(self):
        """What the traced part of Wine was asked for, one line each."""
        self._errors.seek(0)
        lines = self._errors.read().decode(errors="replace").splitlines()
        return [line.partition(self._traced)[2] for line in lines if self._traced in line]

    def main_window(self):
        # The splash and the boxes have the same title.
        window = Window("Orvanto", least_width=1000)
        window.resize(MAIN_SIZE)
        return window

    def exit_code(self):
        return self.process.wait(DEADLINE)

    def end(self):
        if self.process.poll() is None:
            run("wineserver", "-k")
            self.process.wait(DEADLINE)
        self._errors.close()


def open_folder(window):
    """Shows the content of the drive C: in the explorer; FOLDER comes first."""
    before = window.until_still(EXPLORER)
    window.click(DRIVE)
    window.keys("Right")
    window.until_changed(before, EXPLORER)


def add_folder(window):
    """Drags FOLDER from the explorer to the list."""
    open_folder(window)
    before = window.until_still(FILE_LIST)

    def dropped():
        # A drag that Wine has not taken is made again; what is listed already is not added twice.
        window.drag(FIRST_FOLDER, (FILE_LIST[0] + 190, FILE_LIST[1] + 350))
        try:
            return window.until_changed(before, FILE_LIST, SHORT)
        except AssertionError:
            return None
    until(dropped, "the dropped folder in the list")


def add_rule(window, kind, *fill):
    """Chooses a kind of rule, hands each of fill (a place to click or a text to type) on and adds the rule."""
    window.click(RULE_KIND)
    window.until_still()
    xdotool("key", "--delay", 30, "Home", *["Down"] * RULE_KINDS.index(kind), "Return")
    window.until_still()
    for part in fill:
        if isinstance(part, str):
            window.type(part)
        else:
            window.click(part)
    before = window.until_still(RULE_LIST)
    window.click(ADD_RULE)
    window.until_changed(before, RULE_LIST)


def rename(window):
    """Presses Rename and closes the report."""
    window.click(RENAME)
    report = Window("Report")
    report.until_still()
    report.keys("Return")
    report.until_closed()


def write_settings(folder, values=SETTLED):
    file = folder / "config" / "global.xml"
    file.parent.mkdir(parents=True, exist_ok=True)
    file.write_text(settings_text(values), encoding="utf-8")


class WindowsCase(unittest.TestCase):
    """Begins and ends without files, settings and running programs."""

    def setUp(self):
        self.data = roaming() / "Kavrondel" / "Orvanto"
        self.addCleanup(self.clean_up)
        self.clean_up()
        self.close_windows()
        FOLDER.mkdir()

    def clean_up(self):
        for folder in (FOLDER, self.data.parent, DRIVE_C / "Orvanto"):
            shutil.rmtree(folder, ignore_errors=True)
        run("wine", "reg", "delete", RUN_KEY, "/v", "Pendulix Basic", "/f")

    def close_windows(self):
        """Closes what earlier tests left open: the explorer with a folder."""
        def closed():
            numbers = [line.split()[0] for line in run("wmctrl", "-l").stdout.decode().splitlines()]
            for number in numbers:
                run("wmctrl", "-i", "-c", number)
            return not numbers
        until(closed, "the windows of earlier tests to close")

    def start(self, executable, traced=None):
        program = Program(executable, traced)
        self.addCleanup(program.end)
        return program

    def start_settled(self, traced=None, **settings):
        """The program with its main window."""
        changed = {name.replace("__", "."): value for name, value in settings.items()}
        write_settings(self.data, {**SETTLED, **changed})
        program = self.start(self.copy_program(), traced)
        return program, program.main_window()

    def close(self, program, window):
        window.close()
        self.assertEqual(program.exit_code(), 0)

    def settings(self):
        """The settings on disk: dotted names and texts."""
        def flat(element, path):
            for child in element:
                name = ".".join([*path, child.tag])
                yield name, child.text or ""
                yield from flat(child, [*path, child.tag])
        return dict(flat(ET.parse(self.data / "config" / "global.xml").getroot(), []))

    def screenshot(self, name):
        folder = os.environ.get("ORVANTO_SCREENSHOTS")
        if folder:
            pathlib.Path(folder).mkdir(parents=True, exist_ok=True)
            run("import", "-window", "root", pathlib.Path(folder) / f"{name}.png")

    def copy_program(self):
        """The built program with its translations in C:/Orvanto."""
        shutil.copytree(pathlib.Path(os.environ["ORVANTO_PROGRAM"]).parent, DRIVE_C / "Orvanto",
                        dirs_exist_ok=True)
        return DRIVE_C / "Orvanto" / "orvanto.exe"
