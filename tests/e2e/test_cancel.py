#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""A long run is cancelled half way with the mouse."""

import unittest

from harness.case import Case
from harness.waiting import until, until_equal

FILES = 20_000
VANISHED = 5
LETTERS = "a" * 60
# Matches nothing, and takes its time to find that out: the run lasts for seconds.
SLOW_PATTERN = "[a-z]*[a-z]*[a-z]*#"


class Cancel(Case):
    def make_many_files(self):
        folder = self.folder / "files"
        folder.mkdir()
        for number in range(FILES):
            (folder / f"{LETTERS}{number:05}.txt").write_text(str(number), encoding="ascii")
        return folder

    def test_a_long_run_cancelled_half_way(self):
        folder = self.make_many_files()
        window = self.start()
        window.add_by_drag(folder)
        until_equal(FILES, lambda: window.files.count, "all files in the list")
        until(lambda: window.frame.has("active"), "the end of the adding")
        listed = [path.name for path in folder.iterdir()]
        window.add_rule("Insert Text", texts=["new_"], numbers=[0], choice="Start")
        window.add_rule("Replace", texts=[SLOW_PATTERN, ""], toggled="Regular Expression")
        vanished = [window.file_row(row).name for row in range(VANISHED)]
        for name in vanished:
            (folder / name).unlink()

        window.hands.click(window.rename_button)
        wait = self.program.window("dialog", "Please wait")
        bar, cancel = wait.one("progress bar"), wait.one("push button", "Cancel")
        until(lambda: bar.value >= 30, "a third of the files")
        self.screenshot("running")
        window.hands.click(cancel)

        total, processed, failed = self.read_report(window.report_text())
        window.close_report()
        self.assertEqual((total, failed), (FILES, VANISHED))
        # Deliberate: after a cancel the report counts one file less than was handled.
        handled = processed + failed + 1
        self.assertGreater(handled, FILES * 3 // 10)
        self.assertLess(handled, FILES)
        self.assertEqual([shown.name for shown in self.program.windows], ["Orvanto"])

        names = sorted(path.name for path in folder.iterdir())
        renamed = [name for name in names if name.startswith("new_")]
        self.assertEqual(len(renamed), handled - failed)
        self.assertEqual(sorted(name.removeprefix("new_") for name in names), sorted(set(listed) - set(vanished)))
        for name in names:
            number = int(name.removeprefix("new_").removesuffix(".txt")[len(LETTERS):])
            self.assertEqual((folder / name).read_text(encoding="ascii"), str(number))
        # The list shows what is on the disk: handled rows their new name, the others their old one.
        self.assertEqual([window.file_row(row).name in renamed for row in (VANISHED, handled - 1, handled)],
                         [True, True, False])
        self.assertEqual([window.file_row(row).name for row in range(VANISHED)], vanished)
        until_equal(f"Total {total} Processed {processed} Failed {failed}", lambda: window.log_messages()[-1],
                    "the report in the log")
        self.close()

    def read_report(self, text):
        self.assertRegex(text, r"\ATotal \d+\nProcessed \d+\nFailed \d+\Z")
        return [int(line.split()[1]) for line in text.splitlines()]


if __name__ == "__main__":
    unittest.main()
