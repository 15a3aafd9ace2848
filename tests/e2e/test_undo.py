#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Runs are taken back and done again: at once, after a restart, and after the program was killed in the middle."""

import re
import signal
import unittest

from harness.case import Case
from harness.waiting import until, until_equal
from harness.xwindows import own_windows, wait_for_menu

MENU = ["Undo", "Redo", "Runs…"]
# Below them stand a separator and an entry more.
MENU_ROWS = 4.3
UNDO_TIP = "Undo the last run"
FILES = 3000


class Undo(Case):
    def tool(self, window, which):
        return window.file_button(which)

    def expect_undo(self, window, possible):
        until_equal(possible, lambda: self.tool(window, "undo").has("enabled"), "whether there is something to undo")

    def undo(self, window):
        """Clicks the button, and returns the report's text."""
        self.expect_undo(window, True)
        window.hands.click(self.tool(window, "undo"))
        return self.report(window)

    def report(self, window):
        text = window.report_text()
        window.close_report()
        return text

    def choose(self, window, entry):
        """Chooses an entry of the menu that the clock opens."""
        window.hands.click(self.tool(window, "runs"))
        menu = wait_for_menu(self.desktop)
        self.screenshot(f"menu-{MENU.index(entry)}")
        window.hands.click_at(menu.x + menu.width // 2,
                              menu.y + int(menu.height * (MENU.index(entry) + 0.5) / MENU_ROWS))
        until(lambda: not own_windows(self.desktop), "the menu to close")

    def prepare(self, window):
        folder = self.make_files(["a.txt", "b.txt", "c.txt"])
        window.add_by_drag(folder)
        until_equal(3, lambda: window.files.count, "the files")
        window.add_rule("Insert Text", texts=["new_"], numbers=[0], choice="Start")
        return folder

    def test_run_undo_redo_restart_undo(self):
        window = self.start()
        self.assertEqual(self.tool(window, "undo").name, UNDO_TIP)
        self.expect_undo(window, False)
        self.screenshot("off")
        folder = self.prepare(window)
        whole = "Total 3\nProcessed 3\nFailed 0"
        self.assertEqual(window.rename(), whole)
        window.close_report()
        self.expect_undo(window, True)
        self.hover(window)
        self.screenshot("on")

        self.assertEqual(self.undo(window), whole)
        window.expect_files(["a.txt", "b.txt", "c.txt"])
        self.assertEqual(sorted(self.content_by_name(folder)), ["a.txt", "b.txt", "c.txt"])
        self.expect_undo(window, False)
        self.choose(window, "Redo")
        self.assertEqual(self.report(window), whole)
        window.expect_files(["new_a.txt", "new_b.txt", "new_c.txt"])
        # By the keyboard, and back.
        window.hands.click(window.files)
        window.hands.keys("ctrl+z")
        self.assertEqual(self.report(window), whole)
        window.hands.keys("ctrl+shift+z")
        self.assertEqual(self.report(window), whole)
        self.close()

        window = self.start_again()
        self.assertEqual(self.undo(window), whole)
        self.assertEqual(self.content_by_name(folder), {name: name for name in ("a.txt", "b.txt", "c.txt")})
        self.expect_undo(window, False)
        self.close()

    def hover(self, window):
        """Rests on the button until its tool tip shows."""
        extents = self.tool(window, "undo").extents
        window.hands._do("mousemove", extents.x + 8, extents.y + 8)
        window.hands._do("mousemove", extents.x + 9, extents.y + 9)
        until(lambda: self.program.window("tool tip"), "the tool tip")

    def test_killed_in_the_middle_restart_undo(self):
        window = self.start()
        names = [f"IMG{number:05}.TXT" for number in range(FILES)]
        folder = self.make_files(names)
        window.add_by_drag(folder)
        until_equal(FILES, lambda: window.files.count, "the files")
        window.hands.click(window.add_button)
        until(lambda: len(window.rule_rows()) == 1, "the rule")
        victim = folder / names[FILES // 2].replace("IMG", "img")
        window.hands.click(window.rename_button)
        until(victim.exists, f"{victim.name}")
        self.program.process.send_signal(signal.SIGKILL)
        self.program.process.wait()
        renamed = len(list(folder.glob("img*")))
        self.assertLess(0, renamed)

        window = self.start_again()
        until(lambda: [line for line in window.log_messages() if "was interrupted" in line], "a word of it in the log")
        # Never by itself.
        self.assertEqual(len(list(folder.glob("img*"))), renamed)
        self.screenshot("interrupted")
        figures = re.fullmatch(r"Total (\d+)\nProcessed (\d+)\nFailed 0", self.undo(window))
        self.assertIsNotNone(figures)
        self.assertEqual(figures.group(1), figures.group(2))
        # The last one may have been named, and not renamed yet.
        self.assertIn(int(figures.group(1)) - renamed, (0, 1))
        self.assertEqual(self.content_by_name(folder), {name: name for name in names})
        self.close()

    def test_list_of_runs(self):
        window = self.start()
        folder = self.prepare(window)
        for _ in range(2):
            window.rename()
            window.close_report()
        self.choose(window, "Runs…")
        runs = self.program.window("dialog", "Runs")
        until_equal(2, lambda: len([name for name in runs.one("tree").names() if "complete" in name]), "the runs")
        until(lambda: [name for name in runs.one("tree").names() if "touched by a later run" in name],
              "the earlier run to be told as touched")
        self.screenshot("runs")
        window.hands.click(runs.one("push button", "Show files"))
        files = until(lambda: [w for w in self.program.windows if w.name.startswith("Files of the Run of ")],
                      "the files of the run")[0]
        until(lambda: "has its new name" in files.one("tree").names(), "what is there now")
        self.screenshot("files")
        window.keys_in(files, "Escape")
        until(lambda: runs.has("active"), "the list of runs to be active again")
        window.hands.click(runs.one("push button", "Take back"))
        window.report_text()
        window.answer_report()
        until(lambda: "taken back" in runs.one("tree").names(), "the run to be taken back")
        self.assertEqual(sorted(self.content_by_name(folder)), ["new_a.txt", "new_b.txt", "new_c.txt"])
        window.keys_in(runs, "Escape")
        until(lambda: window.frame.has("active"), "the main window to be active")
        window.expect_files(["new_a.txt", "new_b.txt", "new_c.txt"])
        self.close()


if __name__ == "__main__":
    unittest.main()
