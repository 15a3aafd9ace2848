#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The handbook: F1 opens it, and its pictures show the program as it is.

The pictures are made anew in the screenshots of the tests, in the folder "handbook"; those of all or nothing are parts
of test_planned's, which kills a run for one of them. To take them into the handbook:
cp build/ci/tests/e2e/screenshots/handbook/*.png docs/handbook/
"""

import html.parser
import os
import pathlib
import unittest

from harness.case import Case
from harness.mainwindow import REPORT
from harness.opener import Opener
from harness.program import Program
from harness.waiting import until, until_equal
from harness.xwindows import wait_for_menu
from settingsfile import SETTLED, settings_text

TEXT = pathlib.Path(__file__).parents[2] / "docs/handbook.md"
PAGE = pathlib.Path(os.environ["ORVANTO_E2E_EXECUTABLE"]).parent / "handbook.html"
TROUBLE = ["Holiday.jpg", "Holiday.jpg", "Beach.jpg", "Mountains.jpg", "Forest.jpg", "Holiday.jpg"]
PHOTOS = [f"IMG_{number:04}.JPG" for number in range(1, 13)]


class Page(html.parser.HTMLParser):
    def __init__(self, text):
        super().__init__()
        self.pictures, self.headings, self.tables = [], [], 0
        self._in_heading = False
        self.feed(text)

    def handle_starttag(self, tag, attrs):
        if tag == "img":
            self.pictures.append(dict(attrs)["src"])
        self.tables += tag == "table"
        self._in_heading = tag == "h2"

    def handle_data(self, data):
        if self._in_heading:
            self.headings.append(data)
            self._in_heading = False


class Handbook(Case):
    def picture(self, name, window):
        """What is to be seen where the window is, menus and dialogs before it included."""
        file = pathlib.Path(os.environ["ORVANTO_E2E_SCREENSHOTS"]) / f"handbook/{name}.png"
        extents = window.frame.extents
        self.desktop.screenshot(file)
        self.desktop.run("convert", str(file), "-crop",
                         f"{extents.width}x{extents.height}+{extents.x}+{extents.y}", "+repage", str(file))
        self.taken.add(f"handbook/{name}.png")

    def setUp(self):
        super().setUp()
        self.taken = set()

    def test_page(self):
        """Every chapter of the text is on the page, and every picture beside it."""
        page = Page(PAGE.read_text(encoding="utf-8"))
        chapters = [line.removeprefix("## ") for line in TEXT.read_text(encoding="utf-8").splitlines()
                    if line.startswith("## ")]
        self.assertEqual(page.headings, chapters)
        self.assertEqual(page.tables, 3)
        self.assertEqual([picture for picture in page.pictures if not (PAGE.parent / picture).is_file()], [])

    def test_key(self):
        opener = Opener(self.folder)
        self.program = Program(self.desktop, self.home, environment=opener.environment())
        self.program.write_settings(settings_text(SETTLED))
        window = self.start_again()
        window.hands.keys("F1")
        self.assertEqual([opened.removeprefix("file://") for opened in opener.wait_for(1)], [str(PAGE)])
        # In a text field as well.
        window.hands.click(window.filter_edit)
        window.hands.keys("F1")
        opener.wait_for(2)
        self.close()

    def test_pictures(self):
        # So many that nothing beside the home folder is to be seen.
        for name in ("Desktop", "Documents", "Downloads", "Letters", "Music", "Pictures", "Videos", "Work"):
            (self.home / name).mkdir()
        window = self.start(Log__IncludeDebugInfo="false")
        until(lambda: window.explorer_row(self.home / "Work"), "the home folder in the explorer")
        self.picture("window", window)
        self.add_folder(window, self.make_files(PHOTOS, self.home / "Pictures/Holiday"))
        until_equal(len(PHOTOS), lambda: window.files.count, "the photos")
        window.add_rule("Replace", texts=["IMG_", "Holiday "])
        window.add_rule("Insert Text", texts=["2024-07 "], numbers=[0], choice="Start")
        window.toggle(window.preview)
        window.expect_files([name.replace("IMG_", "2024-07 Holiday ") for name in PHOTOS])
        self.picture("preview", window)
        window.hands.click(window.frame.one(name="Rule sets"))
        wait_for_menu(self.desktop)
        self.picture("rulesets", window)
        window.hands.keys("Escape")

        self.assertEqual(window.rename(), "Total 12\nProcessed 12\nFailed 0")
        window.close_report()
        self.trouble(window)
        self.runs(window)
        self.close()
        shown = set(Page(PAGE.read_text(encoding="utf-8")).pictures)
        self.assertEqual(shown - self.taken, {f"handbook/planned-{name}.png" for name in ("menu", "refused", "runs")})
        self.assertEqual(self.taken - shown, set())

    def add_folder(self, window, folder):
        window.hands.keys("ctrl+shift+o")
        dialog = self.program.window("dialog", "Add folder")
        until(lambda: dialog.has("active"), "the dialog to be active")
        window.hands.type(str(folder))
        window.hands.keys("Return")
        until(lambda: window.frame.has("active"), "the main window to be active")

    def trouble(self, window):
        """A preview with trouble in it, and the report of that run."""
        window.hands.click(window.file_button("clear"))
        until_equal(0, lambda: window.files.count, "an empty list")
        names = [f"IMG_{number} {name}" for number, name in enumerate(TROUBLE, 1)]
        folder = self.make_files(names, self.home / "Pictures/Trouble")
        window.hands.click(window.rule_button("clear"))
        until(lambda: not window.rule_rows(), "no rules")
        self.add_folder(window, folder)
        until_equal(len(TROUBLE), lambda: window.files.count, "the files")
        # On the disk, but in no row.
        self.make_files(["Beach.jpg"], folder)
        window.add_rule("Replace", texts=[r"IMG_\d ", ""], toggled="Regular Expression")
        window.toggle(window.preview)
        figures = "6 files: 3 will be renamed, 0 keep their names, 3 cannot"
        until(lambda: window.frame.all("label", figures), "the figures")
        window.hands.keys("F8")
        self.picture("trouble", window)
        self.assertEqual(window.rename(), "Total 6\nProcessed 3\nFailed 3")
        box = self.program.window(REPORT, "Report")
        window.hands.click(box.one("push button", "Show details…"))
        details = self.program.window("dialog", "Not Renamed")
        until(lambda: details.has("active"), "the details to be active")
        self.picture("details", window)
        window.hands.keys("Escape")
        until(lambda: box.has("active"), "the report to be active again")
        window.close_report()

    def runs(self, window):
        window.hands.click(window.file_button("runs"))
        wait_for_menu(self.desktop)
        # Below it stands an entry more.
        window.hands.keys("Up", "Up", "Return")
        runs = self.program.window("dialog", "Runs")
        until_equal(2, lambda: len([name for name in runs.one("tree").names() if "complete" in name]), "the runs")
        self.picture("runs", window)
        window.keys_in(runs, "Escape")
        until(lambda: window.frame.has("active"), "the main window to be active")


if __name__ == "__main__":
    unittest.main()
