#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Portable mode: the data beside the program, or an error that leaves nothing behind."""

import shutil
import unittest

from harness.case import Case
from harness.hands import Hands
from harness.mainwindow import MainWindow
from harness.program import Program, executable
from harness.waiting import until
from settingsfile import SETTLED, settings_text

TITLE = "We are sorry, but an error has occurred!"
MESSAGE = "You must have write permission to the application directory for portable use."


class Portable(Case):
    def setUp(self):
        super().setUp()
        # A copy, not a link: the program looks for the markers beside its real file.
        self.place = self.make_folder() / "place"
        self.place.mkdir()
        self.binary = shutil.copy2(executable(), self.place / "orvanto")

    def program_in_place(self, **environment):
        program = Program(self.desktop, self.home, self.binary, environment=environment)
        program.data = self.place
        program.settings_file = self.place / "config" / "global.xml"
        return program

    def run_portable(self):
        self.program = self.program_in_place()
        self.program.write_settings(settings_text({**SETTLED, "Log.IncludeDebugInfo": "false"}))
        self.program.start()
        window = MainWindow(self.program)
        window.toggle(window.log_dock.one("check box", "Save"))
        window.add_by_drag(self.make_files(["a.txt"]))
        window.expect_files(["a.txt"])
        self.assertEqual(window.rename(), "Total 1\nProcessed 0\nFailed 1")
        window.close_report()
        self.close()
        self.assertEqual(self.program.settings()["Log.Save"], "true")
        self.assertEqual(len(list((self.place / "logs").iterdir())), 1)
        self.assertFalse((self.place / "writable").exists(), "the write test left its file behind")
        self.expect_untouched_home()

    def expect_untouched_home(self):
        left = [path.name for path in self.home.rglob("*") if not path.name.startswith("output-")]
        self.assertEqual(left, [], "something was written to the home directory")

    def test_marker_file(self):
        (self.place / "portable.txt").touch()
        self.run_portable()

    def test_marker_folder(self):
        (self.place / "portable").mkdir()
        self.run_portable()

    def make_place_unwritable(self):
        # Root writes where permissions forbid it; a folder in the way of the write test refuses everyone.
        (self.place / "portable.txt").touch()
        (self.place / "writable").mkdir()
        return sorted(path.name for path in self.place.rglob("*"))

    def expect_error(self, program, before):
        self.assertEqual(program.wait(), 1)
        self.assertRegex(program.stderr, rf"\A{TITLE}\nError Type: {MESSAGE}\n\nPlease contact us at: \S+\n\Z")
        self.assertEqual(program.stdout, "")
        self.assertEqual(sorted(path.name for path in self.place.rglob("*")), before)
        self.expect_untouched_home()

    def test_unwritable_place_without_a_display(self):
        before = self.make_place_unwritable()
        program = self.program_in_place(DISPLAY=None, QT_QPA_PLATFORM="offscreen").start()
        self.expect_error(program, before)

    def test_unwritable_place_with_an_error_box(self):
        before = self.make_place_unwritable()
        self.program = program = self.program_in_place().start()
        box = program.window("alert message", TITLE)
        until(lambda: box.has("active"), "the error box to be active")
        texts = [label.name for label in box.all("label") if label.name]
        self.assertEqual(len(texts), 1)
        self.assertRegex(texts[0], rf"\AError Type: {MESSAGE}\n\nPlease contact us at: \S+\Z")
        self.screenshot("box")
        Hands(self.desktop).keys("Return")
        self.expect_error(program, before)

    def test_without_a_marker_nothing_is_written_beside_the_program(self):
        self.program = Program(self.desktop, self.home, self.binary, settings=SETTLED).start()
        MainWindow(self.program)
        self.close()
        self.assertEqual([path.name for path in self.place.iterdir()], ["orvanto"])
        self.assertTrue(self.program.settings_file.exists())


if __name__ == "__main__":
    unittest.main()
