#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The whole job: a folder dragged in, rules, preview, rename, report, log and settings."""

import datetime
import re
import unittest

from harness.case import Case
from harness.waiting import until, until_equal

DATED_LINE = re.compile(r"\d\d:\d\d:\d\d\|(.*)")


class Job(Case):
    def read_log_file(self):
        files = list((self.program.data / "logs").iterdir())
        self.assertEqual([file.name for file in files], [f"{datetime.date.today():%Y-%m-%d}.txt"])
        lines = files[0].read_text(encoding="latin-1").splitlines()
        for line in lines:
            self.assertRegex(line, DATED_LINE)
        return [DATED_LINE.match(line)[1] for line in lines]

    def test_all_kinds_of_rule_from_a_dragged_folder(self):
        folder = self.make_files(["IMG_a1.JPG", "IMG_b2.JPG", "IMG_c3.txt", "deep/er/IMG_d4.JPG",
                                  ".IMG_hidden.JPG", "IMG_without_dot"])
        window = self.start(Log__IncludeDebugInfo="false")
        window.toggle(window.log_dock.one("check box", "Save"))
        window.add_by_drag(folder)
        until_equal(4, lambda: window.files.count, "the files of the folder")
        listed = window.file_texts()
        self.assertEqual(sorted(listed), ["IMG_a1.JPG", "IMG_b2.JPG", "IMG_c3.txt", "IMG_d4.JPG"])

        window.add_rule("Replace", texts=["IMG_", "holiday "])
        window.add_rule("Change Case", choice="Uppercase first letter of each word")
        window.add_rule("Trim", numbers=[8, 1], choice="Start")
        window.add_rule("Insert Text", texts=["_x"], numbers=[4], choice="End")
        window.add_rule("Enumerate", numbers=[5, 2, 0], choice="Start")
        self.assertEqual(window.rule_rows(), [
            ("Replace", "'IMG_' - 'holiday '"),
            ("Change Case", "Uppercase first letter of each word"),
            ("Trim", "8 - 1 / Start"),
            ("Insert Text", "'_x' / Position 4 / End"),
            ("Enumerate", "Start Number 5 / Position 0 / Start"),
        ])
        window.expect_files(listed, "the names on disk without Preview")

        window.toggle(window.preview)
        renamed = [f"00{row + 5}Holiday {name[5]}_x{name[6:]}" for row, name in enumerate(listed)]
        window.expect_files(renamed, "the previewed names")
        self.screenshot("preview")
        before = self.content_by_name(folder)
        self.assertIn("IMG_a1.JPG", before, "Preview renamed a file")

        self.assertEqual(window.rename(), "Total 4\nProcessed 4\nFailed 0")
        self.screenshot("report")
        window.close_report()
        self.assertFalse(window.preview.has("checked"), "Preview is released by the run")
        window.expect_files(renamed, "the names after the run")
        new_names = dict(zip(listed, renamed))
        expected = {}
        for name, content in before.items():
            parent, slash, last = name.rpartition("/")
            expected[parent + slash + new_names.get(last, last)] = content
        self.assertEqual(self.content_by_name(folder), expected)

        lines = ["File renaming started", "Total 4 Processed 4 Failed 0"]
        # A line that was written to the file carries its line break into the table.
        until_equal(lines, lambda: [text.strip() for text in window.log_messages()], "the log table")
        self.close()
        self.assertEqual(self.read_log_file(), lines)
        settings = self.program.settings()
        self.assertEqual({name: settings.get(name) for name in (
            "@version", "Log.Save", "Log.IncludeDebugInfo", "Misc.IsFirstStart", "Misc.DisableSplashScreen")}, {
                "@version": "1.2.0.5", "Log.Save": "true", "Log.IncludeDebugInfo": "false",
                "Misc.IsFirstStart": "false", "Misc.DisableSplashScreen": "true"})

    def test_pattern_by_keyboard_and_a_second_run(self):
        folder = self.make_files(["img_42.jpg", "img_7.jpg"])
        window = self.start()
        window.add_by_drag(folder)
        until_equal(2, lambda: window.files.count, "the files of the folder")
        listed = window.file_texts()

        window.choose_rule_by_keyboard("Replace")
        what = window.editor.all("text")[0]
        window.hands.click(what)
        until(lambda: what.has("focused"), "the first line edit to take the focus")
        window.hands.type(r"img_(\d+)\.jpg")
        window.hands.keys("Tab")
        window.hands.type(r"\1-\1.jpg")
        window.hands.keys("Tab", "space")
        until(lambda: window.editor.one("check box", "Regular Expression").has("checked"), "the toggle")
        window.hands.click(window.frame.one("push button", "Add"))
        until_equal([("Replace", r"'img_(\d+)\.jpg' - '\1-\1.jpg'")], window.rule_rows, "the rule")

        self.assertEqual(window.rename(), "Total 2\nProcessed 2\nFailed 0")
        window.close_report("Escape")
        numbers = [name[4:-4] for name in listed]
        window.expect_files([f"{number}-{number}.jpg" for number in numbers])
        self.assertEqual(self.content_by_name(folder), {"42-42.jpg": "img_42.jpg", "7-7.jpg": "img_7.jpg"})

        # The next run starts from the new names; the rules of the first one leave them alone now.
        window.hands.click(window.rule_button("clear"))
        until_equal([], window.rule_rows, "an empty rule list")
        window.add_rule("Change Case", choice="Uppercase letters", toggled="Ignore File Extension")
        self.assertEqual(window.rule_rows(), [("Change Case", "Lowercase letters")])
        self.assertEqual(window.rename(), "Total 2\nProcessed 2\nFailed 0")
        window.close_report()
        self.assertEqual(self.content_by_name(folder), {"42-42.JPG": "img_42.jpg", "7-7.JPG": "img_7.jpg"})
        self.close()
        self.assertFalse((self.program.data / "logs").exists(), "a log was written though Save is off")


if __name__ == "__main__":
    unittest.main()
