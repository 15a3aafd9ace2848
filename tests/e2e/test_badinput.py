#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""What cannot be renamed is counted and logged, and the run goes on."""

import unittest

from harness.case import Case
from harness.waiting import until_equal

LONGEST_NAME = 255


class BadInput(Case):
    def list_folder(self, window, folder, count):
        window.add_by_drag(folder)
        until_equal(count, lambda: window.files.count, "the files of the folder")
        return window.file_texts()

    def expect_log(self, window, failed, report):
        lines = ["File renaming started", *[f"Could not rename file '{name}'" for name in failed], report]
        until_equal(lines, window.log_messages, "the log table")

    def test_vanished_taken_and_too_long_names(self):
        too_long = "long" + "g" * (LONGEST_NAME - 8) + ".txt"
        folder = self.make_files(["fine.txt", "vanishes.txt", "taken.txt", too_long])
        window = self.start(Log__IncludeDebugInfo="false")
        listed = self.list_folder(window, folder, 4)
        window.add_rule("Insert Text", texts=["new_"], numbers=[0], choice="Start")
        (folder / "vanishes.txt").unlink()
        (folder / "new_taken.txt").write_text("was here first", encoding="utf-8")

        self.assertEqual(window.rename(), "Total 4\nProcessed 1\nFailed 3")
        window.close_report()
        self.assertEqual(self.content_by_name(folder), {
            "new_fine.txt": "fine.txt", "taken.txt": "taken.txt", "new_taken.txt": "was here first",
            too_long: too_long})
        window.expect_files([name.replace("fine", "new_fine") for name in listed])
        failed = [name for name in listed if name != "fine.txt"]
        self.expect_log(window, failed, "Total 4 Processed 1 Failed 3")
        self.close()

    def test_unchanged_colliding_and_empty_names_and_an_invalid_pattern(self):
        folder = self.make_files(["aa.txt", "ab.txt"])
        window = self.start(Log__IncludeDebugInfo="false")
        listed = self.list_folder(window, folder, 2)
        # An invalid pattern changes nothing, and a name that stays the same is refused.
        window.add_rule("Replace", texts=["(a", "x"], toggled="Regular Expression")
        self.assertEqual(window.rename(), "Total 2\nProcessed 0\nFailed 2")
        window.close_report()
        # Both files are to get the same name: the first one has it, the second one is refused.
        window.add_rule("Trim", numbers=[1, 1], choice="Start")
        self.assertEqual(window.rename(), "Total 2\nProcessed 1\nFailed 1")
        window.close_report()
        self.assertEqual(self.content_by_name(folder), {"a.txt": listed[0], listed[1]: listed[1]})
        # Nothing of the name is left.
        window.add_rule("Trim", numbers=[0, 500], choice="Start")
        self.assertEqual(window.rename(), "Total 2\nProcessed 0\nFailed 2")
        window.close_report()
        self.assertEqual(self.content_by_name(folder), {"a.txt": listed[0], listed[1]: listed[1]})
        self.assertEqual(window.file_texts(), ["a.txt", listed[1]])
        self.close()

    def test_a_name_with_a_slash_and_a_log_folder_that_cannot_be_made(self):
        folder = self.make_files(["a.txt"])
        window = self.start(Log__IncludeDebugInfo="false")
        # A file in the way of the log folder refuses everyone: the lines reach the table alone.
        (self.program.data / "logs").write_text("in the way", encoding="utf-8")
        window.toggle(window.log_dock.one("check box", "Save"))
        self.list_folder(window, folder, 1)
        window.add_rule("Insert Text", texts=["no/where/"], numbers=[0])
        self.assertEqual(window.rename(), "Total 1\nProcessed 0\nFailed 1")
        window.close_report()
        self.assertEqual(self.content_by_name(folder), {"a.txt": "a.txt"})
        self.expect_log(window, ["a.txt"], "Total 1 Processed 0 Failed 1")
        self.close()
        self.assertEqual((self.program.data / "logs").read_text(encoding="utf-8"), "in the way")


if __name__ == "__main__":
    unittest.main()
