#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""What the preview says of the run to come, and the report of the rows that were not renamed."""

import unittest

from harness.case import Case
from harness.mainwindow import REPORT
from harness.waiting import until, until_equal

TAKEN_BY_ROW = "Stays: row 1 takes the name Holiday.jpg."
TAKEN = "Stays: the name is taken."
TAKEN_AFTER = "Not renamed: the name is taken."
KEPT = "Keeps its name."


class Forecast(Case):
    def fill(self, window):
        """Six files: two are renamed, three are in trouble, one keeps its name."""
        folder = self.make_files(["IMG_1 Holiday.jpg", "IMG_2 Holiday.jpg", "IMG_3 Beach.jpg", "IMG_4 Mountains.jpg",
                                  "IMG_5 Holiday.jpg", "Readme.txt"])
        window.add_by_drag(folder)
        until_equal(6, lambda: window.files.count, "the files of the folder")
        # On the disk, but in no row.
        self.make_files(["Beach.jpg"])
        window.add_rule("Replace", texts=[r"IMG_\d ", ""], toggled="Regular Expression")
        return folder

    def sentences(self, window):
        return [row.get("Accessible", "Description") for row in window.files.children]

    def figures(self, window):
        """The label at the right end of the status bar."""
        return max(window.frame.one("status bar").all("label"), key=lambda label: label.extents.x)

    def selected_row(self, window):
        selected = [row.has("selected") for row in window.files.children]
        return selected.index(True) if True in selected else None

    def test_trouble_is_seen_before_the_run_and_explained_after_it(self):
        window = self.start(Log__IncludeDebugInfo="false")
        folder = self.fill(window)
        self.assertEqual(self.figures(window).name, "6 files, 0 selected")
        self.assertEqual(self.sentences(window), [""] * 6)

        window.toggle(window.preview)
        until_equal("6 files: 2 will be renamed, 1 keeps its name, 3 cannot", lambda: self.figures(window).name,
                    "the figures")
        self.assertEqual(self.sentences(window), ["", TAKEN_BY_ROW, TAKEN, "", TAKEN_BY_ROW, KEPT])
        for key, row in (("F8", 1), ("F8", 2), ("F8", 4), ("F8", 1), ("shift+F8", 4)):
            window.hands.keys(key)
            until_equal(row, lambda: self.selected_row(window), f"the row in trouble that {key} goes to")
        window.hands.click(self.figures(window))
        until_equal(1, lambda: self.selected_row(window), "the first row in trouble, by a click")
        self.screenshot("trouble")

        self.assertEqual(window.rename(), "Total 6\nProcessed 2\nFailed 4")
        until_equal(["", TAKEN_AFTER, TAKEN_AFTER, "", TAKEN_AFTER, KEPT], lambda: self.sentences(window),
                    "the reasons in the rows")
        box = self.program.window(REPORT, "Report")
        window.hands.click(box.one("push button", "Show details…"))
        details = self.program.window("dialog", "Not Renamed")
        until(lambda: details.has("active"), "the details to be active")
        self.screenshot("details")
        window.hands.keys("Escape")
        until(lambda: not [w for w in self.program.windows if w.name == "Not Renamed"], "the details to close")
        window.close_report()
        self.screenshot("after-the-run")
        self.assertEqual(sorted(self.content_by_name(folder)), [
            "Beach.jpg", "Holiday.jpg", "IMG_2 Holiday.jpg", "IMG_3 Beach.jpg", "IMG_5 Holiday.jpg", "Mountains.jpg",
            "Readme.txt"])
        self.close()

    def test_file_that_comes_from_elsewhere_is_seen_on_return(self):
        window = self.start()
        folder = self.make_files(["a.jpg"])
        window.add_by_drag(folder)
        until_equal(1, lambda: window.files.count, "the file")
        window.add_rule("Replace", texts=["a", "b"])
        window.toggle(window.preview)
        until_equal("1 file: 1 will be renamed, 0 keep their names, 0 cannot", lambda: self.figures(window).name,
                    "the figures")
        number = self.program.x_window("Orvanto")
        self.desktop.run("wmctrl", "-i", "-r", number, "-b", "add,hidden")
        until(lambda: not window.frame.has("active"), "the window to lose the focus")
        self.make_files(["b.jpg"])
        window.activate()
        until_equal([TAKEN], lambda: self.sentences(window), "the name that is taken now")
        self.close()


if __name__ == "__main__":
    unittest.main()
