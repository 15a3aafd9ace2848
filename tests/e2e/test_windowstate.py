#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Opacity, stay-on-top, geometry and dock layout, over the end of the program."""

import re
import unittest

from harness.case import Case
from harness.desktop import Desktop
from harness.hands import RIGHT
from harness.program import Program
from harness.waiting import until, until_equal, until_still
from harness.xwindows import is_above, opacity, own_windows, place, wait_for_menu
from settingsfile import SETTLED, settings_text

STAY_ON_TOP = 4
RESTORED = {"Window.Geometry.Restore": "true", "Window.Layout.Restore": "true"}
HEXADECIMAL = re.compile(r"(?:[0-9a-f]{2})+")


class WindowState(Case):
    def number(self):
        return until(lambda: self.program.x_window("Orvanto"), "the main window")

    def expect_opacity(self, expected):
        until(lambda: abs(opacity(self.desktop, self.number()) - expected) < 0.005, f"the opacity {expected}")

    def choose(self, window, entry, moment=None):
        """Opens the window's menu with the right mouse button and walks to an entry by the keyboard."""
        area = window.frame.one("status bar").extents
        window.hands.click_at(area.x + 200, area.y + area.height // 2, RIGHT)
        wait_for_menu(self.desktop)
        if moment:
            self.screenshot(moment)
        window.hands.keys(*["Down"] * (entry + 1), "Return")
        until(lambda: not own_windows(self.desktop), "the menu to close")

    def start_with(self, values):
        self.program = Program(self.desktop, self.home, settings={**SETTLED, **values})
        return self.start_again()

    def place(self):
        return place(self.desktop, self.number())

    def test_opacity_and_stay_on_top_survive(self):
        window = self.start()
        self.expect_opacity(1)
        self.assertFalse(is_above(self.desktop, self.number()))
        self.choose(window, 2, "menu")
        self.expect_opacity(0.75)
        self.choose(window, STAY_ON_TOP)
        until(lambda: is_above(self.desktop, self.number()), "the window to stay on top")
        self.expect_opacity(0.75)
        self.close()
        settings = self.program.settings()
        self.assertEqual((settings["Window.Opacity"], settings["Window.StayOnTop"]), ("0.75", "true"))

        window = self.start_again()
        self.expect_opacity(0.75)
        until(lambda: is_above(self.desktop, self.number()), "the window to stay on top after a restart")
        self.choose(window, STAY_ON_TOP, "menu-checked")
        until(lambda: not is_above(self.desktop, self.number()), "the window to be as any other again")
        self.choose(window, 3)
        self.expect_opacity(1)
        self.close()
        settings = self.program.settings()
        self.assertEqual((settings["Window.Opacity"], settings["Window.StayOnTop"]), ("1", "false"))

    def test_leaving_the_menu_changes_nothing(self):
        window = self.start(Window__Opacity="0.6")
        self.expect_opacity(0.6)
        area = window.frame.one("status bar").extents
        window.hands.click_at(area.x + 200, area.y + area.height // 2, RIGHT)
        wait_for_menu(self.desktop)
        self.screenshot("menu")
        window.hands.keys("Escape")
        until(lambda: not own_windows(self.desktop), "the menu to close")
        self.expect_opacity(0.6)
        self.close()
        settings = self.program.settings()
        self.assertEqual((settings["Window.Opacity"], settings["Window.StayOnTop"]), ("0.6", "false"))

    def test_an_opacity_out_of_range_becomes_full(self):
        for text in ("0.1", "2", "glass"):
            with self.subTest(text):
                self.start(Window__Opacity=text)
                self.expect_opacity(1)
                self.close()
                self.assertEqual(self.program.settings()["Window.Opacity"], "1")

    def test_geometry_and_docks_survive(self):
        window = self.start_with(RESTORED)
        explorer = window.frame.one("frame", "File Explorer")
        window.hands.click(explorer.one("push button", "Close"))
        until(lambda: not explorer.has("showing"), "the explorer dock to be closed")
        self.desktop.run("wmctrl", "-i", "-r", self.number(), "-e", "0,150,90,1100,620")
        until(lambda: self.place()[2:] == (1100, 620), "the new size")
        until_still(self.place, "the window to rest")
        before = self.place()
        self.close()
        settings = self.program.settings()
        for name in ("Window.Geometry.Data", "Window.Layout.Data"):
            self.assertRegex(settings[name], HEXADECIMAL)
        self.start_again()
        until_equal(before, self.place, "the place of the last run")
        frames = self.program.window("frame", "Orvanto")
        self.assertEqual(len(frames.all("frame", "Application Log")), 1)
        self.assertEqual(frames.all("frame", "File Explorer"), [])
        self.close()

    def test_a_maximised_window_survives(self):
        self.start_with(RESTORED)
        self.desktop.run("wmctrl", "-i", "-r", self.number(), "-b", "add,maximized_vert,maximized_horz")
        until(lambda: self.place()[2] == 1280, "the window to be maximised")
        self.close()
        window = self.start_again()
        until(lambda: self.place()[2] == 1280, "the window to be maximised again")
        self.assertEqual(window.frame.extents.width, 1280)
        self.close()

    def test_off_the_screen_it_comes_back(self):
        small = self.desktop
        self.desktop = Desktop(screen="2560x1600x24")
        self.addCleanup(self.desktop.stop)
        self.start_with(RESTORED)
        self.desktop.run("wmctrl", "-i", "-r", self.number(), "-e", "0,1400,900,-1,-1")
        until(lambda: self.place()[0] > 1280, "the window on the large screen's far side")
        self.close()
        self.desktop = small
        self.program = Program(self.desktop, self.home)
        self.start_again()
        x, y, _, _ = until_still(self.place, "the window to rest")
        self.assertTrue(0 <= x <= 1280 - 64 and 0 <= y <= 800 - 64, (x, y))
        self.close()

    def test_damaged_bytes_stop_no_start(self):
        size = self.start_with(RESTORED).frame.extents[2:]
        self.close()
        whole = {name: text for name, text in self.program.settings().items() if name != "@version"}
        layout, geometry = whole["Window.Layout.Data"], whole["Window.Geometry.Data"]

        def damaged(data, byte):
            return data[:2 * byte] + "7f" + data[2 * byte + 2:]

        # The area of the docks, the number of tool bars, the window's right edge: beyond what there is.
        for name, data in (("Layout", damaged(layout, 13)), ("Layout", damaged(layout, 170)),
                           ("Geometry", damaged(geometry, 58))):
            with self.subTest(data):
                self.program.write_settings(settings_text({**whole, f"Window.{name}.Data": data}))
                window = self.start_again()
                self.assertEqual(window.frame.extents[2:], size)
                self.close()
                self.assertEqual(self.program.settings()["Window.Layout.Data"], layout)

    def test_nothing_is_kept_while_restoring_is_off(self):
        off = {name: "false" for name in RESTORED}
        self.start_with({**off, "Window.Geometry.Data": "00ff", "Window.Layout.Data": "stale"})
        before = until_still(self.place, "the window to rest")
        self.desktop.run("wmctrl", "-i", "-r", self.number(), "-e", "0,33,44,1100,620")
        until(lambda: self.place()[2:] == (1100, 620), "the new size")
        self.close()
        settings = self.program.settings()
        self.assertEqual((settings["Window.Geometry.Data"], settings["Window.Layout.Data"]), ("00ff", "stale"))
        self.start_again()
        self.assertEqual(until_still(self.place, "the window to rest")[2:], before[2:])
        self.close()


if __name__ == "__main__":
    unittest.main()
