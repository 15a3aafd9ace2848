#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The end of the program: the request for support with its count-down, and being asked to end by the system."""

import signal
import time
import unittest

from harness.case import Case
from harness.firststart import FirstStart
from harness.hands import Hands
from harness.program import Program
from harness.waiting import until, until_equal

COUNT_DOWN = 15
# Seconds. A box that nobody answers would hold the end up for longer.
PROMPT = 5
# The notice's question, answered or not: whether the settings ask for it again.
ASKING = {"SupportUsHint": "true"}


class Notice(Case):
    def open_notice(self):
        self.program.close()
        notice = self.program.window("dialog", "Advice")
        until(lambda: notice.has("active"), "the notice to be active")
        return notice

    def test_counts_down_and_closes_by_itself(self):
        self.start(**ASKING)
        notice = self.open_notice()
        opened = time.monotonic()
        counter = notice.one("spin box")
        seen = [int(counter.value)]
        self.screenshot("open")
        while seen[-1] > 1:
            until(lambda: int(counter.value) != seen[-1], f"the count after {seen[-1]}", 5)
            seen.append(int(counter.value))
        self.assertEqual(seen, list(range(seen[0], 0, -1)))
        self.assertGreaterEqual(seen[0], COUNT_DOWN - 2)
        self.assertEqual(self.program.wait(), 0)
        self.assertAlmostEqual(time.monotonic() - opened, COUNT_DOWN, delta=3)
        self.assertEqual((self.program.stdout, self.program.stderr), ("", ""))
        self.assertEqual(self.program.settings()["SupportUsHint"], "true")

    def test_ticked_it_never_comes_again(self):
        self.start(**ASKING)
        notice = self.open_notice()
        hands = Hands(self.desktop)
        box = notice.one("check box", "Don't show this message again.")
        # From the button, which has the focus, Tab leads to the box and back.
        hands.keys("Tab", "space")
        until(lambda: box.has("checked"), "the check box to be ticked")
        self.program.close("Advice")
        self.assertEqual(self.program.wait(), 0)
        self.assertEqual(self.program.settings()["SupportUsHint"], "false")
        self.start_again()
        self.close()

    def test_closed_by_escape_it_comes_again(self):
        self.start(**ASKING)
        for run in range(2):
            if run:
                self.start_again()
            self.open_notice()
            Hands(self.desktop).keys("Escape")
            self.assertEqual(self.program.wait(), 0)
        self.assertEqual(self.program.settings()["SupportUsHint"], "true")


class AskedToEnd(Case):
    """SIGTERM, whatever is open: no question, no box in the way, settings saved, exit code 0, at once."""

    def start_logging(self):
        # The request for support would come at any other end.
        window = self.start(Log__Save="true", SupportUsHint="true")
        self.before = self.program.settings_file.read_bytes()
        window.toggle(window.log_dock.one("check box", "Debug"))
        return window

    def terminate(self, number=signal.SIGTERM):
        self.program.process.send_signal(number)
        self.assertEqual(self.program.wait(PROMPT), 0)
        self.assertEqual((self.program.stdout, self.program.stderr), ("", ""))

    def expect_saved(self):
        self.assertNotEqual(self.program.settings_file.read_bytes(), self.before)
        settings = self.program.settings()
        self.assertEqual((settings["Log.IncludeDebugInfo"], settings["@version"]), ("true", "1.2.0.5"))
        self.assertEqual([file.name for file in self.program.settings_file.parent.iterdir()], ["global.xml"])

    def log_lines(self):
        file, = (self.program.data / "logs").iterdir()
        text = file.read_text(encoding="utf-8")
        self.assertTrue(text.endswith("\n"), "the log's last line is cut off")
        return [line.partition("|")[2] for line in text.splitlines()]

    def test_while_idle(self):
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(number):
                self.start_logging()
                self.terminate(number)
                self.expect_saved()
                self.assertEqual(self.log_lines()[-2:], ["close event call", "terminate main window"])

    def test_with_the_settings_dialog_open(self):
        window = self.start_logging()
        window.hands.keys("ctrl+g")
        dialog = self.program.window("dialog", "Global Settings")
        box = dialog.one("check box", "Disable splash screen")
        window.toggle(box)
        self.terminate()
        self.expect_saved()
        self.assertEqual(self.program.settings()["Misc.DisableSplashScreen"], "true", "saved without Save")

    def test_with_the_report_open(self):
        window = self.start_logging()
        window.add_by_drag(self.make_files(["a.txt"]))
        window.expect_files(["a.txt"])
        window.rename()
        self.terminate()
        self.expect_saved()
        self.assertIn("Total 1 Processed 0 Failed 1", self.log_lines())

    def test_with_the_support_request_open(self):
        self.start_logging()
        self.program.close()
        self.program.window("dialog", "Advice")
        self.terminate()
        self.expect_saved()

    def test_with_the_first_start_dialog_open(self):
        self.program = Program(self.desktop, self.home).start()
        FirstStart(self.program)
        self.terminate()
        # The next start is the first one again.
        self.program.start()
        FirstStart(self.program)
        self.terminate()

    def test_while_the_splash_screen_is_shown(self):
        self.program = Program(self.desktop, self.home, settings={
            "Misc.IsFirstStart": "false", "VersionCheck.Auto": "false"}).start()
        until(lambda: self.program.windows, "a window")
        self.terminate()

    def test_during_a_run(self):
        names = [f"IMG{number:05}.TXT" for number in range(20000)]
        folder = self.make_files(names, self.folder / "many")
        window = self.start_logging()
        window.add_by_drag(folder)
        until_equal(len(names), lambda: window.files.count, "the files")
        window.hands.click(window.add_button)
        until(lambda: len(window.rule_rows()) == 1, "the rule")
        window.hands.click(window.rename_button)
        middle = folder / "img10000.TXT"
        until(middle.exists, middle.name)
        self.terminate()
        self.expect_saved()
        content = self.content_by_name(folder)
        self.assertEqual({name.replace("img", "IMG"): text for name, text in content.items()},
                         {name: name for name in names})
        renamed = sum(name.startswith("img") for name in content)
        totals, = [line for line in self.log_lines() if line.startswith("Total")]
        # A run that is cut short counts one file less than it renamed, as after a cancel.
        self.assertEqual(totals, f"Total {len(names)} Processed {renamed - 1} Failed 0")

    def test_during_the_adding_of_files(self):
        names = [f"{number:05}" for number in range(20000)]
        folder = self.make_files([name + ".txt" for name in names], self.folder / "many")
        window = self.start_logging()
        window.add_by_drag(folder)
        until(lambda: window.files.count > 100, "the first files")
        self.terminate()
        self.expect_saved()
        self.assertEqual(len(list(folder.iterdir())), len(names))

    def test_twice_in_a_row(self):
        self.start_logging()
        self.program.process.send_signal(signal.SIGTERM)
        self.terminate()
        self.expect_saved()


if __name__ == "__main__":
    unittest.main()
