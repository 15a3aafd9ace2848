#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The first start: a dialog that only its own button closes, and what it leaves behind."""

import unittest

from harness.case import Case
from harness.firststart import FirstStart
from harness.mainwindow import MainWindow
from harness.program import Program
from harness.waiting import until, until_equal

ENGLISH, GERMAN = ["Code", "Language", "Country"], ["Kürzel", "Sprache", "Land"]
# Nothing that the tests do not ask for may come between: neither splash screen nor request.
QUIET = {"Misc.DisableSplashScreen": "true", "SupportUsHint": "false"}


class FirstStarts(Case):
    def first_start(self, values=QUIET, **environment):
        self.program = Program(self.desktop, self.home, settings=values, environment=environment).start()
        return FirstStart(self.program)

    def expect_refused(self, first):
        """Escape and the window manager's closing leave the dialog where it is."""
        first.hands.keys("Escape")
        self.program.close()
        first.hands.keys("alt+F4")
        # What is asked next is answered after the events above.
        self.desktop.run("wmctrl", "-l")
        self.assertTrue(first.dialog.has("showing"))
        self.assertEqual(len(self.program.windows), 1, "the main window is there already")

    def test_by_mouse_in_german(self):
        first = self.first_start()
        self.assertEqual((first.headers(), first.next_button.name), (ENGLISH, "Next"))
        self.assertIn("de_DE", first.languages())
        self.screenshot("page-1")
        self.expect_refused(first)
        first.choose_language("de_DE")
        until_equal(GERMAN, first.headers, "the German headers")
        self.assertEqual(first.next_button.name, "Weiter")
        self.screenshot("page-1-german")
        self.expect_refused(first)
        first.press_next()
        self.screenshot("page-2-german")
        self.assertIn("Wir danken Ihnen", first.welcome_text())
        self.assertEqual(first.auto_check.name, "Automatisch nach neuen Versionen suchen")
        self.assertTrue(first.auto_check.has("checked"))
        self.expect_refused(first)
        self.assertTrue(first.is_on_second_page())
        first.hands.click(first.auto_check)
        until(lambda: not first.auto_check.has("checked"), "the check box to be cleared")
        first.press_next()

        frame = self.program.window("frame", "Orvanto")
        until(lambda: frame.has("active"), "the main window to be active")
        self.assertEqual(len(frame.all("push button", "Umbenennen")), 1)
        self.assertEqual(frame.all("frame", "Programmprotokoll"), [], "the log dock is open on the first start")
        self.assertEqual(len(frame.all("frame", "Datei-Explorer")), 1)
        self.screenshot("main-window")
        self.close()
        settings = self.program.settings()
        self.assertEqual({name: settings[name] for name in ("Misc.IsFirstStart", "Misc.Language",
                                                            "VersionCheck.Auto")},
                         {"Misc.IsFirstStart": "false", "Misc.Language": "de_DE", "VersionCheck.Auto": "false"})

        self.program.start()
        frame = self.program.window("frame", "Orvanto")
        until(lambda: frame.has("active"), "the main window at once")
        self.assertEqual(len(self.program.windows), 1)
        self.assertEqual(len(frame.all("push button", "Umbenennen")), 1)
        self.close()
        self.assertEqual(self.program.settings()["VersionCheck.Auto"], "false")

    def test_by_keyboard_in_english(self):
        first = self.first_start()
        until(lambda: first.next_button.has("focused"), "the button to have the focus")
        first.hands.keys("shift+Tab")
        until(lambda: first.language_list.has("focused") or not first.next_button.has("focused"),
              "the list to take the focus")
        first.hands.keys("Down")
        until_equal(GERMAN, first.headers, "the German headers")
        first.hands.keys("Up")
        until_equal(ENGLISH, first.headers, "the English headers")
        first.hands.keys("alt+n")
        until(first.is_on_second_page, "the second page")
        self.screenshot("page-2")
        self.assertIn("We would like to thank you", first.welcome_text())
        first.hands.keys("Escape", "alt+n")
        MainWindow(self.program)
        self.close()
        settings = self.program.settings()
        self.assertEqual((settings["VersionCheck.Auto"], settings["Misc.Language"]), ("true", "en_UK"))

    def test_the_language_of_the_system_is_chosen(self):
        first = self.first_start(LC_ALL="de_DE.UTF-8")
        until_equal(GERMAN, first.headers, "the German headers")
        first.press_next()
        first.press_next()
        frame = self.program.window("frame", "Orvanto")
        self.assertEqual(len(frame.all("push button", "Umbenennen")), 1)
        self.close()
        self.assertEqual(self.program.settings()["Misc.Language"], "de_DE")

    def test_dragged_by_the_mouse(self):
        first = self.first_start()
        before = first.dialog.extents
        start = before.x + 30, before.y + before.height - 20
        target = start[0] - 150, start[1] + 120
        # The hand holds the dialog by one point, to the pixel; the last nudge of the drag is one pixel.
        first.hands.drag(start, target, lambda: abs(first.dialog.extents.x - before.x + 150) <= 1)
        moved = first.dialog.extents
        self.assertEqual((moved.y - before.y, moved.width, moved.height), (120, before.width, before.height))
        self.assertTrue(first.dialog.has("showing"))


if __name__ == "__main__":
    unittest.main()
