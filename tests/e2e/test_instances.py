#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Two instances at once, which share settings and logs."""

import unittest
import xml.etree.ElementTree as ET

from harness.case import Case
from harness.mainwindow import MainWindow
from harness.program import Program
from harness.waiting import until
from harness.watchedfile import WatchedFile
from settingsfile import SETTLED


class Instances(Case):
    def start_instance(self, name):
        program = Program(self.desktop, self.home).start()
        window = MainWindow(program)
        window.folder = self.make_files([f"{name}.txt"], self.folder / name)
        return program, window

    def rename_something(self, window):
        window.activate()
        window.add_by_drag(window.folder)
        until(lambda: window.files.count == 1, "the file")
        window.add_rule("Insert Text", texts=["new_"], numbers=[0], choice="Start")
        self.assertEqual(window.rename(), "Total 1\nProcessed 1\nFailed 0")
        window.close_report()

    def test_both_work_and_the_settings_stay_whole(self):
        Program(self.desktop, self.home, settings=SETTLED)
        first, first_window = self.start_instance("first")
        second, second_window = self.start_instance("second")
        self.rename_something(second_window)
        second_window.toggle(second_window.log_dock.one("check box", "Debug"))
        self.screenshot("both")
        self.rename_something(first_window)
        self.assertEqual(self.content_by_name(self.folder / "first"), {"new_first.txt": "first.txt"})
        self.assertEqual(self.content_by_name(self.folder / "second"), {"new_second.txt": "second.txt"})

        before = first.settings_file.read_bytes()
        watched = WatchedFile(first.settings_file)
        try:
            until(lambda: before in watched.contents, "the watcher's first look")
            first.close()
            second.close()
            codes = first.wait(), second.wait()
        finally:
            seen = watched.stop()
        self.assertEqual(codes, (0, 0))
        self.assertEqual((first.stderr, second.stderr), ("", ""))
        after = first.settings_file.read_bytes()
        self.assertNotEqual(before, after)
        self.assertIn(before, seen)
        # At every moment the old file, or the whole file of one instance: never a part of one, never none.
        self.assertLessEqual(seen, {before, *self.whole_files(seen)})
        self.assertEqual([file.name for file in first.settings_file.parent.iterdir()], ["global.xml"])

    def whole_files(self, contents):
        for content in contents:
            if content is None:
                continue
            try:
                root = ET.fromstring(content)
            except ET.ParseError:
                continue
            if root.tag == "Settings" and root.get("version") == "1.2.0.5" and root.find("Log/Save") is not None:
                yield content


if __name__ == "__main__":
    unittest.main()
