#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""All or nothing: files swap and pass on their names, one that cannot holds up all, and a kill is made good."""

import re
import signal
import unittest

from harness.case import Case
from harness.hands import middle_of
from harness.mainwindow import REPORT
from harness.waiting import until, until_equal
from harness.xwindows import own_windows, wait_for_menu

MARK = "All or nothing"
PHOTOS = 4000
# Matches nothing, and takes its time to find that out: there is time to find the wait dialog before the run.
SLOW_PATTERN = "[a-z]*[a-z]*[a-z]*#"
LETTERS = "a" * 60


class Planned(Case):
    def open_menu(self, window):
        window.hands.click(window.file_button("runs"))
        return wait_for_menu(self.desktop)

    def switch(self, window, moment):
        """Clicks the last entry of the menu."""
        menu = self.open_menu(window)
        self.screenshot(f"menu-{moment}")
        window.hands.click_at(menu.x + menu.width // 2, menu.y + menu.height - 14)
        until(lambda: not own_windows(self.desktop), "the menu to close")

    def marks(self, window):
        return [image for image in window.files_panel.all("graphic") if image.name == MARK]

    def report(self, window):
        """All texts of the report, which is closed then."""
        window.report_text()
        box = self.program.window(REPORT, "Report")
        texts = [label.name for label in box.all("label") if label.name]
        window.close_report()
        return texts

    def rename(self, window):
        window.hands.click(window.rename_button)
        return self.report(window)

    def add_swap(self, window):
        window.add_rule("Replace", texts=["front", "?"])
        window.add_rule("Replace", texts=["back", "front"])
        window.add_rule("Replace", texts=["?", "back"])

    def figures(self, window):
        """The label at the right end of the status bar."""
        return max(window.frame.one("status bar").all("label"), key=lambda label: label.extents.x).name

    def test_two_files_swap_their_names(self):
        folder = self.make_files(["back.jpg", "front.jpg", "other.jpg"])
        window = self.start()
        window.add_by_drag(folder)
        until_equal(3, lambda: window.files.count, "the files")
        self.add_swap(window)
        window.toggle(window.preview)
        until_equal("3 files: 0 will be renamed, 1 keeps its name, 2 cannot", lambda: self.figures(window),
                    "what a run would come to")
        self.assertEqual(self.marks(window), [])
        self.switch(window, "off")
        until_equal("3 files: 2 will be renamed, 1 keeps its name, 0 cannot", lambda: self.figures(window),
                    "what a planned run would come to")
        mark, = until(lambda: self.marks(window), "the mark")
        self.screenshot("preview")
        x, y = middle_of(mark)
        window.hands._do("mousemove", x, y)
        window.hands._do("mousemove", x + 1, y)
        until(lambda: self.program.window("tool tip"), "the tool tip of the mark")
        self.screenshot("mark")
        self.assertEqual(self.rename(window), ["Total 3\nProcessed 2\nKept 1\nFailed 0"])
        swapped = {"back.jpg": "front.jpg", "front.jpg": "back.jpg", "other.jpg": "other.jpg"}
        self.assertEqual(self.content_by_name(folder), swapped)
        window.expect_files(["front.jpg", "back.jpg", "other.jpg"])
        until(lambda: window.file_button("undo").has("enabled"), "Undo")
        window.hands.click(window.file_button("undo"))
        self.report(window)
        self.assertEqual(self.content_by_name(folder), {name: name for name in swapped})
        window.expect_files(["back.jpg", "front.jpg", "other.jpg"])
        self.close()

        # It is kept, until it is switched off.
        window = self.start_again()
        until_equal(1, lambda: len(self.marks(window)), "the mark of an earlier day")
        self.switch(window, "on")
        until(lambda: not self.marks(window), "the mark to go")
        self.close()

    def test_numbered_photos_move_up_by_one(self):
        names = [f"IMG_{number:04}.jpg" for number in range(1, 31)]
        folder = self.make_files(names)
        window = self.start(Run__AllOrNothing="true")
        window.add_by_drag(folder)
        until_equal(30, lambda: window.files.count, "the photos")
        window.add_rule("Trim", numbers=[4, 4])
        window.add_rule("Enumerate", numbers=[2, 3, 4])
        window.toggle(window.preview)
        until_equal("30 files: 30 will be renamed, 0 keep their names, 0 cannot", lambda: self.figures(window),
                    "what the run will come to")
        self.assertEqual(self.rename(window), ["Total 30\nProcessed 30\nKept 0\nFailed 0"])
        self.assertEqual(self.content_by_name(folder), {f"IMG_{number + 1:04}.jpg": f"IMG_{number:04}.jpg"
                                                        for number in range(1, 31)})
        self.close()

    def test_one_that_cannot_be_holds_up_all(self):
        folder = self.make_files(["back.jpg", "front.jpg", "other.jpg", "third.jpg"])
        window = self.start(Run__AllOrNothing="true")
        window.add_by_drag(folder)
        until_equal(4, lambda: window.files.count, "the files")
        # On the disk, but in no row.
        self.make_files(["taken.jpg"])
        before = self.content_by_name(folder)
        self.add_swap(window)
        window.add_rule("Replace", texts=["third", "taken"])
        window.toggle(window.preview)
        until_equal("4 files: nothing will be renamed, as 1 cannot be", lambda: self.figures(window),
                    "what the run will come to")
        self.screenshot("preview")
        window.hands.click(window.rename_button)
        window.report_text()
        box = self.program.window(REPORT, "Report")
        texts = [label.name for label in box.all("label") if label.name]
        self.assertEqual(texts, ["Total 4\nProcessed 0\nKept 1\nFailed 1",
                                 "Nothing was renamed, as not every file can be."])
        self.assertEqual(self.content_by_name(folder), before)
        self.screenshot("refused")
        window.hands.click(box.one("push button", "Rename what can be"))
        until(lambda: "Processed 2" in window.report_text(), "the second report")
        self.screenshot("rest")
        window.close_report()
        self.assertEqual(self.content_by_name(folder), {"back.jpg": "front.jpg", "front.jpg": "back.jpg",
                                                        "other.jpg": "other.jpg", "third.jpg": "third.jpg",
                                                        "taken.jpg": "taken.jpg"})
        self.close()

    def many_photos(self):
        """Photos whose names move up by one, so that each but the last waits for the next one."""
        names = [f"{LETTERS}{number:05}.jpg" for number in range(PHOTOS)]
        folder = self.make_files(names)
        window = self.start(Run__AllOrNothing="true")
        window.add_by_drag(folder)
        until_equal(PHOTOS, lambda: window.files.count, "the photos")
        window.add_rule("Trim", numbers=[60, 5])
        window.add_rule("Enumerate", numbers=[1, 4, 60])
        return folder, window

    def name(self, number):
        return f"{LETTERS}{number:05}.jpg"

    def test_cancel_asks_what_shall_become_of_it(self):
        folder, window = self.many_photos()
        window.add_rule("Replace", texts=[SLOW_PATTERN, ""], toggled="Regular Expression")
        for answer in ("Put everything back", "Keep what is done"):
            window.hands.click(window.rename_button)
            wait = self.program.window("dialog", "Please wait")
            place = middle_of(wait.one("push button", "Cancel"))
            # The run is held in its middle until the click is there.
            until((folder / self.name(PHOTOS)).exists, "the first photo of the run")
            self.program.process.send_signal(signal.SIGSTOP)
            window.hands.click_at(*place)
            self.program.process.send_signal(signal.SIGCONT)
            question = self.program.window(REPORT, "Orvanto")
            until(lambda: question.has("active"), "the question to be active")
            self.screenshot("question")
            text = [label.name for label in question.all("label") if label.name][0]
            renamed = int(re.fullmatch(rf"New names so far: (\d+) of {PHOTOS}\. .*", text)[1])
            self.assertLess(renamed, PHOTOS)
            window.hands.click(question.one("push button", answer))
            texts = self.report(window)
            if answer.startswith("Put"):
                self.assertEqual(texts, [f"Total {PHOTOS}\nProcessed 0\nKept 0\nFailed 0",
                                         "Nothing was renamed: the run was cancelled."])
                self.assertEqual(self.content_by_name(folder),
                                 {self.name(number): self.name(number) for number in range(PHOTOS)})
            else:
                self.assertEqual(texts, [f"Total {PHOTOS}\nProcessed {renamed}\nKept 0\nFailed 0"])
        until(lambda: window.file_button("undo").has("enabled"), "Undo")
        window.hands.click(window.file_button("undo"))
        self.report(window)
        self.assertEqual(self.content_by_name(folder),
                         {self.name(number): self.name(number) for number in range(PHOTOS)})
        self.close()

    def kill_in_the_middle(self, window, folder):
        window.hands.click(window.rename_button)
        victim = folder / self.name(PHOTOS * 3 // 4)
        # It has two contents: first its own, and then that of the photo before.
        until(lambda: victim.exists() and victim.read_text() != victim.name, "the run to be in its middle")
        self.program.process.send_signal(signal.SIGKILL)
        self.program.process.wait()
        now = self.content_by_name(folder)
        self.assertEqual(len(now), PHOTOS)
        moved = sum(name != content for name, content in now.items())
        self.assertLess(0, moved)
        self.assertLess(moved, PHOTOS)
        return now

    def choose(self, window, button):
        menu = self.open_menu(window)
        window.hands.click_at(menu.x + menu.width // 2, menu.y + menu.height * 58 // 100)
        runs = self.program.window("dialog", "Runs")
        until(lambda: "interrupted" in runs.one("tree").names(), "the interrupted run")
        self.screenshot("runs")
        window.hands.click(until(lambda: runs.one("push button", button), f"the choice {button!r}"))
        return runs

    def expect_told(self, window):
        until(lambda: [line for line in window.log_messages()
                       if re.fullmatch(r"The run of .* was interrupted; \"Runs…\" can finish it or put it back", line)],
              "a word of it in the log")
        until(lambda: window.file_button("undo").has("enabled"), "Undo")

    def test_killed_in_the_middle_and_finished(self):
        folder, window = self.many_photos()
        killed = self.kill_in_the_middle(window, folder)
        window = self.start_again()
        self.expect_told(window)
        # Never by itself, and nothing is asked.
        self.assertEqual([shown.name for shown in self.program.windows], ["Orvanto"])
        self.assertEqual(self.content_by_name(folder), killed)
        runs = self.choose(window, "Finish")
        self.assertEqual(window.report_text(), f"Total {PHOTOS}\nProcessed {PHOTOS}\nFailed 0")
        window.answer_report()
        until(lambda: "complete" in runs.one("tree").names(), "the run to be finished")
        self.screenshot("finished")
        window.keys_in(runs, "Escape")
        shifted = {self.name(number + 1): self.name(number) for number in range(PHOTOS)}
        self.assertEqual(self.content_by_name(folder), shifted)
        # The whole run is taken back as one.
        until(lambda: window.frame.has("active"), "the main window to be active")
        until(lambda: window.file_button("undo").has("enabled"), "Undo")
        window.hands.click(window.file_button("undo"))
        self.report(window)
        self.assertEqual(self.content_by_name(folder), {name: name for name in shifted.values()})
        self.close()

    def test_killed_in_the_middle_and_put_back(self):
        folder, window = self.many_photos()
        self.kill_in_the_middle(window, folder)
        window = self.start_again()
        self.expect_told(window)
        runs = self.choose(window, "Put back")
        window.report_text()
        window.answer_report()
        until(lambda: "taken back" in runs.one("tree").names(), "the run to be put back")
        window.keys_in(runs, "Escape")
        self.assertEqual(self.content_by_name(folder), {self.name(number): self.name(number)
                                                        for number in range(PHOTOS)})
        until(lambda: window.frame.has("active"), "the main window to be active")
        self.close()

    def test_killed_in_the_middle_and_left(self):
        folder, window = self.many_photos()
        killed = self.kill_in_the_middle(window, folder)
        window = self.start_again()
        self.expect_told(window)
        runs = self.choose(window, "Leave")
        until(lambda: not runs.all("push button", "Finish"), "the choice to go")
        window.keys_in(runs, "Escape")
        until(lambda: window.frame.has("active"), "the main window to be active")
        self.close()
        window = self.start_again()
        until(lambda: window.file_button("undo").has("enabled"), "Undo")
        self.assertEqual([line for line in window.log_messages() if "interrupted" in line], [])
        self.assertEqual(self.content_by_name(folder), killed)
        self.close()


if __name__ == "__main__":
    unittest.main()
