#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Screens without room for the window as it is: nothing lies off them, and everything can be reached."""

import unittest

from harness.case import Case
from harness.desktop import Desktop
from harness.program import Program
from harness.waiting import until, until_still
from settingsfile import SETTLED
from test_wayland import press

MODE = "800x600 38.25 800 832 912 1024 600 603 607 624".split()
# Size, and how much larger everything is drawn.
SCREENS = [("1366x768", "1.5"), ("1920x1080", "2"), ("1280x720", "1"), ("800x600", "1")]
LANGUAGES = ["", "de_DE", "ru_RU"]
# Their rows are scrolled.
VIEWS = ("table", "tree", "list")
# Of the tool bar's buttons.
LOG, EXPLORER = 1, 2


class SmallScreen(Case):
    def setUp(self):
        self.folder = self.make_folder()
        self.home = self.folder / "home"
        self.home.mkdir()

    def start_on(self, size, scale, language=""):
        self.desktop = Desktop(screen=f"{size}x24")
        self.addCleanup(self.desktop.stop)
        values = {**SETTLED, **({"Misc.Language": language} if language else {})}
        self.program = Program(self.desktop, self.home, settings=values,
                               environment={"QT_SCALE_FACTOR": scale}).start()
        frame = self.program.window("frame", "Orvanto")
        until(lambda: frame.has("active"), "the main window to be active")
        return frame

    def outer(self):
        """The window with what the window manager put around it, in pixels of the screen."""
        number = until(lambda: self.program.x_window("Orvanto"), "the window")
        lines = self.desktop.run("xwininfo", "-id", number).splitlines()
        values = dict(line.strip().split(":", 1) for line in lines if ":" in line)
        x, y, width, height = (int(values[name]) for name in
                               ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
        extents = self.desktop.run("xprop", "-id", number, "_NET_FRAME_EXTENTS").partition("=")[2]
        left, right, top, bottom = map(int, extents.split(","))
        return x - left, y - top, width + left + right, height + top + bottom

    def expect_on_screen(self, frame, size):
        until_still(lambda: frame.extents, "the window to rest")
        width, height = map(int, size.split("x"))

        def sticks_out():
            x, y, outer_width, outer_height = self.outer()
            inside = x >= 0 and y >= 0 and x + outer_width <= width and y + outer_height <= height
            return None if inside else (x, y, outer_width, outer_height)

        until(lambda: sticks_out() is None, f"the window to lie on the screen: {sticks_out()}")
        self.expect_inside(frame)

    def expect_inside(self, widget):
        """Whether all that shows of a widget lies inside it, save what scroll bars bring into view."""
        box = widget.extents
        for child in widget.children:
            if not child.has("showing"):
                continue
            place = child.extents
            if (box.x <= place.x and place.x + place.width <= box.x + box.width and
                    box.y <= place.y and place.y + place.height <= box.y + box.height):
                if child.role not in VIEWS:
                    self.expect_inside(child)
            else:
                # The page of the rules, and the log.
                self.assertEqual((widget.role, child.role), ("filler", "filler"), f"{child!r} sticks out of {widget!r}")

    def docks(self, frame):
        return [dock for dock in frame.all("frame") if dock.has("showing")]

    def test_everything_is_on_the_screen(self):
        for size, scale in SCREENS:
            for language in LANGUAGES:
                with self.subTest(size=size, scale=scale, language=language):
                    frame = self.start_on(size, scale, language)
                    self.expect_on_screen(frame, size)
                    self.screenshot(f"{size}-{language}")
                    buttons = frame.one("tool bar").all("push button")
                    if len(self.docks(frame)) < 2:
                        for which in (LOG, EXPLORER):
                            # The bus tells places as they are without the factor.
                            press(buttons[which])
                        until(lambda: len(self.docks(frame)) == 2, "the docks to open")
                    self.expect_on_screen(frame, size)
                    self.screenshot(f"{size}-{language}-docks")
                    self.program.close()
                    self.assertEqual(self.program.wait(), 0)
                    self.assertEqual((self.program.stdout, self.program.stderr), ("", ""))
                    self.desktop.stop()

    def test_resolution_that_changes(self):
        frame = self.start_on("1280x800", "1")
        self.assertEqual(len(self.docks(frame)), 2)
        self.desktop.run("xrandr", "--newmode", *MODE)
        self.desktop.run("xrandr", "--addmode", "screen", "800x600")
        self.desktop.run("xrandr", "--output", "screen", "--mode", "800x600")
        self.expect_on_screen(frame, "800x600")
        self.screenshot("smaller")
        self.desktop.run("xrandr", "--output", "screen", "--mode", "1280x800")
        self.expect_on_screen(frame, "1280x800")
        self.program.close()
        self.assertEqual(self.program.wait(), 0)


if __name__ == "__main__":
    unittest.main()
