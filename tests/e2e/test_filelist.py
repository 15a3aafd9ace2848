#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The file list under the user's hands: several files at once, duplicates, order, removal, paths, filter."""

import unittest

from harness.case import Case
from harness.waiting import until, until_equal


class FileList(Case):
    def press_button(self, window, which):
        window.hands.click(window.file_button(which))

    def test_several_files_duplicates_order_and_removal(self):
        names = ["a.txt", "b.txt", "c.txt", "d.txt"]
        folder = self.make_files([*names, "e.txt"])
        window = self.start()
        window.select_in_explorer(folder / "a.txt")
        window.select_in_explorer(folder / "d.txt", hold="shift")
        window.add_by_drag(folder / "d.txt")
        window.expect_files(names, "four files dropped at once")

        # Files that are listed already are not added again, neither alone nor with their folder.
        window.add_by_drag(folder / "b.txt")
        window.add_by_drag(folder)
        window.expect_files([*names, "e.txt"], "only the file that was not listed yet")

        window.add_rule("Enumerate", numbers=[1, 0, 0])
        window.toggle(window.preview)
        window.expect_files(["1a.txt", "2b.txt", "3c.txt", "4d.txt", "5e.txt"], "numbers in list order")
        window.hands.click(window.file_row(2))
        self.press_button(window, "up")
        window.expect_files(["1a.txt", "2c.txt", "3b.txt", "4d.txt", "5e.txt"], "one row up")
        self.press_button(window, "down")
        self.press_button(window, "down")
        window.expect_files(["1a.txt", "2b.txt", "3d.txt", "4c.txt", "5e.txt"], "two rows down")

        window.hands.click(window.file_row(0))
        window.hands.click(window.file_row(2), hold="ctrl")
        until(lambda: window.file_row(0).has("selected") and window.file_row(2).has("selected"), "two rows")
        window.hands.keys("Delete")
        window.expect_files(["1b.txt", "2c.txt", "3e.txt"], "the other rows, numbered anew")
        # The current row keeps its number: here it is the last one now.
        until(lambda: window.file_row(2).has("selected"), "the row that followed to be current")
        self.press_button(window, "remove")
        window.expect_files(["1b.txt", "2c.txt"], "one row less")
        self.press_button(window, "clear")
        window.expect_files([], "an empty list")
        # With nothing listed the Rename button does nothing at all.
        window.hands.click(window.rename_button)
        self.press_button(window, "up")
        self.assertEqual([w.name for w in self.program.windows], ["Orvanto"])
        self.assertEqual(self.content_by_name(folder), {name: name for name in [*names, "e.txt"]})
        self.close()
        self.assertNotIn("File renaming started", self.program.stderr)

    def test_full_paths_and_the_name_filter(self):
        folder = self.make_files(["one.jpg", "two.JPG", "three.png", "four.txt", "in/five.jpg"])
        window = self.start()
        window.edit(window.filter_edit, "*.jpg;*.png")
        window.add_by_drag(folder)
        until_equal(["five.jpg", "one.jpg", "three.png", "two.JPG"],
                    lambda: sorted(window.file_texts()), "the files that match, letter case aside")
        # The filter is no matter for files that are dropped themselves.
        window.add_by_drag(folder / "four.txt")
        until(lambda: "four.txt" in window.file_texts(), "the single file")

        self.press_button(window, "filter")
        until_equal("", lambda: window.filter_edit.text, "the cleared filter")
        window.toggle(window.full_path)
        until_equal(sorted(str(file) for file in folder.rglob("*.*")),
                    lambda: sorted(window.file_texts()), "full paths")
        window.add_rule("Insert Text", texts=["x"], numbers=[0])
        window.toggle(window.preview)
        until(lambda: str(folder / "in" / "xfive.jpg") in window.file_texts(), "new names with their folder")
        self.screenshot("full-paths")
        self.assertEqual(window.rename(), "Total 5\nProcessed 5\nFailed 0")
        window.close_report()
        until_equal(sorted(str(file) for file in folder.rglob("*.*")),
                    lambda: sorted(window.file_texts()), "full paths of what is on the disk now")
        self.assertTrue(all(file.name.startswith("x") for file in folder.rglob("*.*")))
        window.toggle(window.full_path)
        until(lambda: "xfour.txt" in window.file_texts(), "names alone")
        self.close()

    def test_rules_moved_removed_and_cleared(self):
        folder = self.make_files(["ab.txt"])
        window = self.start()
        window.add_by_drag(folder)
        window.expect_files(["ab.txt"])
        window.toggle(window.preview)
        window.add_rule("Insert Text", texts=["1"], numbers=[0])
        window.add_rule("Insert Text", texts=["2"], numbers=[0])
        window.add_rule("Trim", numbers=[0, 1], choice="Start")
        window.expect_files(["1ab.txt"], "rules in the order of adding")
        trim = [cell for cell in window.rules.children if cell.name == "Trim"][0]
        window.hands.click(trim)
        window.hands.click(window.rule_button("up"))
        window.hands.click(window.rule_button("up"))
        until_equal(["Trim", "Insert Text", "Insert Text"], lambda: [row[0] for row in window.rule_rows()],
                    "the moved rule")
        window.expect_files(["21b.txt"], "rules in their new order")
        window.hands.click(window.rule_button("down"))
        window.expect_files(["2ab.txt"], "rules in their order")
        window.hands.click([cell for cell in window.rules.children if cell.name.startswith("'2'")][0])
        window.hands.keys("Delete")
        until_equal(2, lambda: len(window.rule_rows()), "one rule less")
        window.expect_files(["ab.txt"], "the rules that are left")
        self.assertEqual(window.file_texts(), ["ab.txt"], "Delete in the rule list removed a file")
        window.hands.click(window.rule_button("clear"))
        until_equal([], window.rule_rows, "no rule")
        self.close()


if __name__ == "__main__":
    unittest.main()
