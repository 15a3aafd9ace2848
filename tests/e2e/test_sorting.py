#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The list in an order of one's own: by the menu, with the mouse and with keys, then renamed by number."""

import os
import unittest

from harness.case import Case
from harness.waiting import until
from harness.xwindows import own_windows, wait_for_menu

ENTRIES = ["Name, ascending", "Name, descending", "Path, ascending", "Path, descending", "Extension, ascending",
           "Extension, descending", "Size, ascending", "Size, descending", "Time of modification, ascending",
           "Time of modification, descending", "Order of adding"]


class Sorting(Case):
    def choose(self, window, entry):
        window.hands.click(window.file_button("sort"))
        wait_for_menu(self.desktop)
        window.hands.keys(*["Down"] * (ENTRIES.index(entry) + 1), "Return")
        until(lambda: not own_windows(self.desktop), "the menu to close")

    def test_an_order_of_ones_own(self):
        folder = self.make_files(["1.txt", "2.txt", "10.txt", "20.jpg"])
        for name, time in (("1.txt", 3), ("2.txt", 1), ("10.txt", 4), ("20.jpg", 2)):
            os.utime(folder / name, (1_700_000_000 + time, 1_700_000_000 + time))
        window = self.start()
        self.assertEqual(window.file_button("sort").name, "Sort the files")
        window.add_by_drag(folder)
        window.expect_files(["1.txt", "2.txt", "10.txt", "20.jpg"])
        window.add_rule("Enumerate", numbers=[1, 0, 0])
        window.toggle(window.preview)
        window.hands.click(window.file_button("sort"))
        wait_for_menu(self.desktop)
        self.screenshot("menu")
        window.hands.keys("Escape")
        until(lambda: not own_windows(self.desktop), "the menu to close")

        self.choose(window, "Time of modification, descending")
        window.expect_files(["110.txt", "21.txt", "320.jpg", "42.txt"], "the newest first, numbered by the row")
        window.hands.click(window.file_row(2))
        window.hands.click(window.file_row(3), hold="ctrl")
        until(lambda: window.file_row(2).has("selected") and window.file_row(3).has("selected"), "two rows")
        window.hands.keys("alt+Home")
        window.expect_files(["120.jpg", "22.txt", "310.txt", "41.txt"], "both rows at the top")
        self.choose(window, "Name, ascending")
        window.expect_files(["12.txt", "220.jpg", "310.txt", "41.txt"], "the selected rows alone sorted")
        self.assertTrue(window.file_row(0).has("selected") and window.file_row(1).has("selected"))
        self.assertFalse(window.file_row(2).has("selected"))
        window.hands.click(window.file_row(0))
        window.hands.keys("alt+Down")
        window.expect_files(["120.jpg", "22.txt", "310.txt", "41.txt"], "one row down")
        self.screenshot("moved")
        self.assertEqual(window.rename(), "Total 4\nProcessed 4\nFailed 0")
        window.close_report()
        self.assertEqual(self.content_by_name(folder), {"120.jpg": "20.jpg", "22.txt": "2.txt", "310.txt": "10.txt",
                                                        "41.txt": "1.txt"})
        self.choose(window, "Order of adding")
        window.expect_files(["41.txt", "22.txt", "310.txt", "120.jpg"], "the files as they were added")
        self.close()


if __name__ == "__main__":
    unittest.main()
