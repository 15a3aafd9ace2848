#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The main window on the screen: at its own size, maximised, with and without its docks."""

import unittest

from harness.case import Case
from harness.waiting import until, until_equal, until_still


class Layout(Case):
    def fill(self, window):
        folder = self.make_files([f"IMG_{number:04}.JPG" for number in range(40)])
        window.add_by_drag(folder)
        until_equal(40, lambda: window.files.count, "the files")
        window.add_rule("Replace", texts=["IMG_", "Holiday in the mountains "])
        window.add_rule("Enumerate", numbers=[1, 3, 0])
        window.toggle(window.preview)

    def expect_inside(self, window):
        frame = until_still(lambda: window.frame.extents, "the window to rest")
        widgets = window.frame.all()
        self.assertGreater(len(widgets), 40)
        for widget in widgets:
            extents = widget.extents
            self.assertTrue(
                frame.x <= extents.x and extents.x + extents.width <= frame.x + frame.width and
                frame.y <= extents.y and extents.y + extents.height <= frame.y + frame.height,
                f"{widget!r} sticks out of {frame}")
        return frame

    def test_own_size_and_maximised(self):
        window = self.start(Log__IncludeDebugInfo="false")
        self.fill(window)
        own = self.expect_inside(window)
        self.assertEqual(own.width, 1066)
        self.screenshot("own-size")
        number = self.program.x_window("Orvanto")
        both = "maximized_vert,maximized_horz"
        self.desktop.run("wmctrl", "-i", "-r", number, "-b", f"add,{both}")
        until(lambda: window.frame.extents.width == 1280, "the window to be maximised")
        self.expect_inside(window)
        self.screenshot("maximised")
        self.desktop.run("wmctrl", "-i", "-r", number, "-b", f"remove,{both}")
        until_equal(own, lambda: window.frame.extents, "the window at its own size again")
        self.close()

    def test_docks_by_tool_bar_and_shortcut(self):
        window = self.start()
        log, explorer = window.log_dock, window.frame.one("frame", "File Explorer")
        buttons = window.frame.one("tool bar").all("push button")
        _, log_button, explorer_button = buttons[:3]
        window.hands.click(log_button)
        until(lambda: not log.has("showing"), "the log dock to be hidden")
        window.hands.click(explorer_button)
        until(lambda: not explorer.has("showing"), "the explorer dock to be hidden")
        self.expect_inside(window)
        self.screenshot("no-docks")
        window.hands.keys("ctrl+l")
        until(lambda: log.has("showing"), "the log dock to be back")
        window.hands.click(explorer_button)
        until(lambda: explorer.has("showing"), "the explorer dock to be back")
        window.hands.click(explorer.one("push button", "Close"))
        until(lambda: not explorer.has("showing"), "the explorer dock to be closed")
        self.close()


if __name__ == "__main__":
    unittest.main()
