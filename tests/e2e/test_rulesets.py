#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""A chain of rules in a person's hands: built, saved, loaded after a restart, dragged, switched off, edited, used."""

import json
import unittest

from harness.case import Case
from harness.hands import LEFT, middle_of
from harness.waiting import until, until_equal
from harness.xwindows import own_windows, wait_for_menu

CHECK_BOX = 10


class RuleSets(Case):
    def choose_first(self, window, moment):
        """Chooses the first entry of the menu of rule sets."""
        window.hands.click(window.frame.one(name="Rule sets"))
        wait_for_menu(self.desktop)
        self.screenshot(moment)
        window.hands.keys("Down", "Return")
        until(lambda: not own_windows(self.desktop), "the menu to close")

    def cell(self, window, row, column):
        return window.rules.all("tree item")[2 * row + column]

    def place(self, window, row, column=1):
        return middle_of(self.cell(window, row, column))

    def inserted(self, window):
        """The texts that the rules insert, in their order; those that are off in brackets."""
        cells = window.rules.all("tree item")
        texts = [cell.name.split("'")[1] for cell in cells[1::2]]
        return [text if cell.has("checked") else f"({text})" for text, cell in zip(texts, cells[0::2])]

    def switch(self, window, row):
        name = self.cell(window, row, 0)
        before = name.has("checked")
        extents = name.extents
        window.hands.click_at(extents.x + CHECK_BOX, extents.y + extents.height // 2)
        until(lambda: self.cell(window, row, 0).has("checked") != before, "the rule to be switched")

    def drag(self, window, row, target):
        window.hands.drag(self.place(window, row), target, lambda: True)

    def add_letters(self, window, letters):
        for letter in letters:
            window.add_rule("Insert Text", texts=[letter], numbers=[0], choice="Start")

    def test_dragging(self):
        window = self.start()
        self.add_letters(window, "abcd")
        self.switch(window, 3)
        height = self.cell(window, 0, 1).extents.height
        x, _ = self.place(window, 0)

        def upper(row):
            return x, self.cell(window, row, 1).extents.y + height // 4

        def lower(row):
            return x, self.cell(window, row, 1).extents.y + height * 3 // 4

        for row, target, expected in (
                (2, upper(0), ["c", "a", "b", "(d)"]),
                (0, upper(2), ["a", "c", "b", "(d)"]),
                (3, lower(0), ["a", "(d)", "c", "b"]),
                (0, (x, lower(3)[1] + 3 * height), ["(d)", "c", "b", "a"]),
                (1, lower(1), ["(d)", "c", "b", "a"]),
                (1, lower(0), ["(d)", "c", "b", "a"])):
            with self.subTest(row=row, target=target):
                self.drag(window, row, target)
                until_equal(expected, lambda: self.inserted(window), "the rules in their new order")
                self.assertEqual(window.rules.count // 2 - 1, 4)
        self.screenshot("order")
        self.close()

    def test_a_chain_from_its_first_rule_to_its_work(self):
        folder = self.make_files(["one.txt", "two.txt"])
        window = self.start(Log__IncludeDebugInfo="false")
        window.add_by_drag(folder)
        until_equal(2, lambda: window.files.count, "the files")
        window.toggle(window.preview)
        self.add_letters(window, "abc")
        self.screenshot("list")

        self.choose_first(window, "menu-save")
        dialog = self.program.window("dialog", "Save rule set")
        until(lambda: dialog.has("active"), "the question for a name")
        window.hands.type("Mine")
        self.screenshot("name")
        window.hands.keys("Return")
        file = self.program.data / "rulesets" / "Mine.orvanto-rules"
        until(lambda: file.exists(), "the file of the set")
        self.assertEqual([rule["text"] for rule in json.loads(file.read_text(encoding="utf-8"))["rules"]],
                         ["a", "b", "c"])
        until(lambda: window.frame.all("label", "Mine"), "the name of the set")
        self.close()

        window = self.start_again()
        self.assertEqual(window.rule_rows(), [], "rules of the last time are active")
        window.add_by_drag(folder)
        until_equal(2, lambda: window.files.count, "the files")
        self.choose_first(window, "menu-load")
        until_equal(["a", "b", "c"], lambda: self.inserted(window), "the loaded rules")
        window.toggle(window.preview)
        window.expect_files(["cbaone.txt", "cbatwo.txt"])

        last = self.cell(window, 2, 1).extents
        self.drag(window, 0, (last.x + 20, last.y + last.height * 3 // 4))
        until_equal(["b", "c", "a"], lambda: self.inserted(window), "the dragged rule in its place")
        self.screenshot("dragged")
        self.switch(window, 1)
        until_equal(["b", "(c)", "a"], lambda: self.inserted(window), "the rule that is off")
        window.expect_files(["abone.txt", "abtwo.txt"])
        until(lambda: window.frame.all("label", "Mine *"), "the mark for changed rules")

        window.hands.click_at(*self.place(window, 0), LEFT, repeat=2)
        apply = until(lambda: window.frame.all("push button", "Apply"), "the button to apply")[0]
        window.set_editor(texts=["X"])
        self.screenshot("editing")
        window.hands.click(apply)
        until_equal(["X", "(c)", "a"], lambda: self.inserted(window), "the edited rule")
        until(lambda: not window.frame.all("push button", "Apply"), "the editing to end")
        window.expect_files(["aXone.txt", "aXtwo.txt"])

        # By the keyboard: doubled, moved, edited, left.
        window.hands.click_at(*self.place(window, 2))
        window.hands.keys("ctrl+d", "alt+Up")
        until_equal(["X", "(c)", "a", "a"], lambda: self.inserted(window), "the doubled rule")
        window.hands.keys("Delete")
        until_equal(["X", "(c)", "a"], lambda: self.inserted(window), "the removed rule")
        window.hands.keys("F2")
        until(lambda: window.frame.all("push button", "Apply"), "the editing")
        window.hands.keys("Escape")
        until(lambda: not window.frame.all("push button", "Apply"), "the editing to be left")

        self.assertEqual(window.rename(), "Total 2\nProcessed 2\nFailed 0")
        window.close_report()
        self.assertEqual(sorted(self.content_by_name(folder)), ["aXone.txt", "aXtwo.txt"])
        self.close()


if __name__ == "__main__":
    unittest.main()
