#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""One whole job without a mouse, and with nothing to go by but what a screen reader says."""

import unittest

from harness.case import Case
from harness.mainwindow import REPORT
from harness.waiting import until, until_equal

# A person goes round the whole window with fewer.
STOPS = 60

# In the order that the eye goes, and round again. The page of the rules, which is first, has no name of its own.
STOPS_OF_THE_WINDOW = [
    ("filler", ""),
    ("combo box", "Change Case"), ("radio button", "Lowercase letters"),
    ("check box", "Ignore File Extension"), ("push button", "Add"), ("button menu", "Rule sets"),
    ("tree", "Active Rules"), *[("push button", name) for name in ("Move up", "Remove", "Move down", "Clear list")],
    ("text", "Name Filter"),
    *[("push button", name) for name in ("Clear", "Add files and folders", "Sort the files")],
    ("list", "File List"), *[("push button", name) for name in ("Move up", "Remove", "Move down", "Clear list")],
    ("check box", "Preview"), ("push button", "Rename"), ("check box", "Show full path"),
    ("push button", "Undo, redo and earlier runs"),
    ("table", "Application Log"), ("check box", "Save"), ("check box", "Debug"),
    ("push button", "Open log directory"), ("push button", "Clear list"),
    *[("push button", name) for name in ("Global Settings", "Application Log", "File Explorer", "Visit our website")],
    ("tree", "File Explorer"), ("push button", "Home"), ("push button", "/"),
    ("filler", "")]


class Keyboard(Case):
    def focused(self, window):
        """The role and the name of what has the focus, as a screen reader says them."""
        found = [widget for widget in window.all() if widget.has("focused")]
        # The tab's page and its tabs tell of the focus of all that is in them.
        found.sort(key=lambda widget: widget.role in ("filler", "page tab", "page tab list"))
        return (found[0].role, found[0].name) if found else None

    def tab_to(self, role, name=None):
        """Presses Tab until something has the focus that a screen reader calls so; how often that takes."""
        seen = []
        for presses in range(STOPS):
            found = until(lambda: self.focused(self.window.frame), "something to have the focus")
            seen.append(found)
            if found[0] == role and name in (None, found[1]):
                return presses
            self.keys("Tab")
        raise AssertionError(f"{role} {name!r} is not reached by Tab; on the way: {seen}")

    def keys(self, *names):
        self.window.hands.keys(*names)

    def wait_for_dialog(self, role, title):
        dialog = self.program.window(role, title)
        until(lambda: dialog.has("active"), f"{title} to be active")
        return dialog

    def wait_for_main_window(self):
        until(lambda: self.window.frame.has("active"), "the main window to be active")

    def add_rule(self, what, by):
        self.tab_to("combo box")
        self.window.hands.type("R")
        until_equal("Replace", lambda: self.window.rule_kind.name, "the kind of rule")
        for field, text in (("Replace what", what), ("Replace with", by)):
            self.tab_to("text", field)
            # It holds what was typed for the rule before.
            self.keys("ctrl+a", "Delete")
            self.window.hands.type(text)
        rows = len(self.window.rule_rows())
        self.tab_to("push button", "Add")
        self.keys("space")
        until_equal(rows + 1, lambda: len(self.window.rule_rows()), "the rule")

    def test_every_stop_has_a_name(self):
        self.window = self.start()
        stops = []
        while len(stops) < STOPS and (len(stops) < 2 or stops[-1] != stops[0]):
            stops.append(until(lambda: self.focused(self.window.frame), "something to have the focus"))
            self.keys("Tab")
        self.assertEqual(stops, STOPS_OF_THE_WINDOW)

    def test_whole_job(self):
        names = ["IMG_1 a.jpg", "IMG_1 b.jpg", "IMG_2.jpg"]
        folder = self.make_files(names)
        window = self.window = self.start()
        self.keys("ctrl+shift+o")
        self.wait_for_dialog("dialog", "Add folder")
        window.hands.type(str(folder))
        self.keys("Return")
        self.wait_for_main_window()
        window.expect_files(names)

        self.add_rule("IMG_", "Holiday ")
        self.add_rule(" a", "")
        self.add_rule(" b", "")
        self.assertEqual(window.rule_rows()[0], ("Replace", "'IMG_' - 'Holiday '"))
        self.keys("F5")
        until_equal("3 files: 2 will be renamed, 0 keep their names, 1 cannot", self.figures, "the figures")
        self.keys("F8")
        row = until(lambda: [row for row in window.files.children if row.has("selected")], "the row in trouble")[0]
        self.assertEqual((row.name, row.get("Accessible", "Description")),
                         ("Holiday 1.jpg", "Stays: row 1 takes the name Holiday 1.jpg."))
        self.screenshot("trouble")
        # The rule that makes two names one goes again.
        self.tab_to("tree")
        self.keys("End", "Delete")
        until_equal(2, lambda: len(window.rule_rows()), "the rule to go")
        until_equal("3 files: 3 will be renamed, 0 keep their names, 0 cannot", self.figures, "the figures")

        # What comes from elsewhere meanwhile is told after the run.
        (folder / "Holiday 2.jpg").write_text("other", encoding="utf-8")
        self.keys("ctrl+Return")
        self.assertEqual(window.report_text(), "Total 3\nProcessed 2\nFailed 1")
        report = self.wait_for_dialog(REPORT, "Report")
        for _ in range(STOPS):
            if self.focused(report) == ("push button", "Show details…"):
                break
            self.keys("Tab")
        self.keys("space")
        details = self.wait_for_dialog("dialog", "Not Renamed")
        self.screenshot("details")
        self.assertIn("IMG_2.jpg", "\n".join(details.one("tree").names()))
        self.keys("Escape")
        until(lambda: report.has("active"), "the report to be active again")
        self.keys("Escape")
        self.wait_for_main_window()

        self.tab_to("push button", "Undo the last run")
        self.keys("space")
        self.assertEqual(window.report_text(), "Total 2\nProcessed 2\nFailed 0")
        window.close_report()
        self.assertEqual(sorted(self.content_by_name(folder)), sorted([*names, "Holiday 2.jpg"]))
        self.close()

    def figures(self):
        return max(self.window.frame.one("status bar").all("label"), key=lambda label: label.extents.x).name


if __name__ == "__main__":
    unittest.main()
