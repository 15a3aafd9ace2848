#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Other desktops: without a window manager, with a small screen, with two screens."""

import signal
import unittest

from harness.case import Case
from harness.desktop import Desktop
from harness.firststart import FirstStart
from harness.program import Program
from harness.waiting import until, until_still


class Surroundings(Case):
    def rename_one(self, window):
        window.add_by_drag(self.make_files(["a.txt"]))
        window.expect_files(["a.txt"])
        window.add_rule("Insert Text", texts=["new_"], numbers=[0], choice="Start")
        self.assertEqual(window.rename(), "Total 1\nProcessed 1\nFailed 0")
        # Without a window manager nobody gives the main window its focus back.
        window.hands.keys("Return")
        until(lambda: len(self.program.windows) == 1, "the report to close")
        self.assertEqual(self.content_by_name(self.folder / "files"), {"new_a.txt": "a.txt"})


class WithoutWindowManager(Surroundings):
    window_manager = False

    def test_start_rename_and_end(self):
        window = self.start()
        self.rename_one(window)
        self.screenshot("renamed")
        # Nobody can close the window here but the system.
        self.program.process.send_signal(signal.SIGTERM)
        self.assertEqual(self.program.wait(), 0)
        self.assertEqual((self.program.stdout, self.program.stderr), ("", ""))

    def test_first_start(self):
        self.program = Program(self.desktop, self.home, settings={"Misc.DisableSplashScreen": "true"}).start()
        dialog = self.program.window("dialog")
        until(lambda: dialog.has("active"), "the first-start dialog to be active")
        self.program.process.send_signal(signal.SIGTERM)
        self.assertEqual(self.program.wait(), 0)
        self.assertEqual(self.program.stderr, "")


class SmallScreen(Surroundings):
    def setUp(self):
        super().setUp()
        self.desktop = Desktop(screen="800x600x24")
        self.addCleanup(self.desktop.stop)
        self.addCleanup(self.screenshot, "end")

    def test_first_start_fits(self):
        self.program = Program(self.desktop, self.home, settings={"Misc.DisableSplashScreen": "true"}).start()
        first = FirstStart(self.program)
        extents = first.dialog.extents
        self.assertTrue(extents.x >= 0 and extents.y >= 0, extents)
        self.assertTrue(extents.x + extents.width <= 800 and extents.y + extents.height <= 600, extents)

    def test_start_and_end(self):
        # The docks are closed where there is no room for them; opened, they leave the rest scroll bars.
        window = self.start(SupportUsHint="false")
        self.screenshot("start")
        buttons = window.frame.one("tool bar").all("push button")
        for dock, button in (("Application Log", buttons[1]), ("File Explorer", buttons[2])):
            self.assertEqual(window.frame.all("frame", dock), [])
            window.hands.click(button)
            until(lambda dock=dock: window.frame.all("frame", dock), f"{dock} to open")
        extents = until_still(lambda: window.frame.extents, "the window to rest")
        self.screenshot("docks")
        self.assertTrue(extents.x >= 0 and extents.x + extents.width <= 800, extents)
        self.assertTrue(extents.y >= 0 and extents.y + extents.height <= 600, extents)
        self.close()


class TwoScreens(Surroundings):
    def split(self):
        """Makes two screens of the only one, side by side."""
        self.desktop.run("xrandr", "--setmonitor", "left", "640/200x800/200+0+0", "screen")
        self.desktop.run("xrandr", "--setmonitor", "right", "640/200x800/200+640+0", "none")
        self.assertIn("Monitors: 2", self.desktop.run("xrandr", "--listmonitors"))

    def has_own_place(self):
        """Goes through a first start; whether the program asked for a place for its main window."""
        self.program = Program(self.desktop, self.home, settings={
            "Misc.DisableSplashScreen": "true", "SupportUsHint": "false"}).start()
        first = FirstStart(self.program)
        first.press_next()
        first.press_next()
        frame = self.program.window("frame", "Orvanto")
        until(lambda: frame.has("active"), "the main window to be active")
        self.screenshot("main-window")
        hints = self.desktop.run("xprop", "-id", self.program.x_window("Orvanto"), "WM_NORMAL_HINTS")
        self.assertIn("user specified size", hints)
        self.frame = frame
        return "specified location" in hints

    def test_first_start_is_not_centred(self):
        self.split()
        self.assertFalse(self.has_own_place())
        self.close()

    def test_with_one_screen_it_is(self):
        self.assertTrue(self.has_own_place())
        extents = self.frame.extents
        self.assertAlmostEqual(extents.x + extents.width / 2, 640, delta=2)
        self.close()

    def test_start_rename_and_end(self):
        self.split()
        window = self.start()
        # One of them alone has no room for the explorer.
        window.hands.click(window.frame.one("tool bar").all("push button")[2])
        until(lambda: window.frame.all("frame", "File Explorer"), "the explorer to open")
        # Over both screens, and with all of it to be seen.
        self.desktop.run("wmctrl", "-i", "-r", self.program.x_window("Orvanto"), "-e", "0,100,50,-1,-1")
        until(lambda: window.frame.extents.x < 110, "the window to be moved")
        self.rename_one(window)
        self.close()


if __name__ == "__main__":
    unittest.main()
