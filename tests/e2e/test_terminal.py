#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""orvanto-cli in a terminal, typed by hand: its colours are there, and its question waits for an answer.

The picture of it: cp build/ci/tests/e2e/screenshots/shell.png docs/screenshots/
"""

import os
import pathlib
import unittest

from harness.case import Case
from harness.hands import Hands
from harness.waiting import until

PROGRAMS = pathlib.Path(os.environ["ORVANTO_E2E_EXECUTABLE"]).parent
PHOTOS = ["IMG_0007.jpg", "IMG_0008.jpg", "IMG_0010.jpg"]
TITLE = "Photos"
RED, PLAIN = "\x1b[31m", "\x1b[m"


class Terminal(Case):
    def open(self):
        self.log = self.folder / "terminal.log"
        photos = self.make_files(PHOTOS, self.folder / "photos")
        command = ["xterm", "-l", "-lf", str(self.log), "-geometry", "82x14+20+20", "-fa", "DejaVu Sans Mono", "-fs",
                   "11", "-T", TITLE, "-e", "bash", "--norc", "--noprofile", "-i"]
        environment = {"HOME": str(self.home), "PS1": "$ ", "PATH": f"{PROGRAMS}:{os.environ['PATH']}",
                       "LC_ALL": "C.UTF-8"}
        self.desktop.spawn(command, cwd=photos, env={**self.desktop.env, **environment})
        until(lambda: self.log.exists() and "$ " in self.told(), "the prompt")
        until(lambda: self.desktop.run("xdotool", "getactivewindow", "getwindowname").strip() == TITLE, "the keyboard")
        return photos

    def told(self):
        return self.log.read_text(encoding="utf-8", errors="replace")

    def enter(self, line, expected):
        """Types a line, and returns what was printed once the expected text is there."""
        before = len(self.told())
        hands = Hands(self.desktop)
        hands.type(line)
        until(lambda: line in self.told()[before:].replace("\r\n", ""), f"{line!r} to be typed")
        hands.keys("Return")
        until(lambda: expected in self.told()[before:], expected)
        return self.told()[before:]

    def test_one_job(self):
        photos = self.open()
        refused = self.enter("orvanto-cli preview --regexp '^IMG_\\d+' Holiday *.jpg", "2 could not be renamed")
        self.assertIn(f"{RED}IMG_0007.jpg takes the name{PLAIN}", refused)
        self.enter("orvanto-cli apply --regexp '^IMG_\\d+' 'Holiday ' --number 1,1,8 *.jpg", "[y/N] ")
        self.assertEqual(sorted(path.name for path in photos.iterdir()), PHOTOS)
        self.enter("y", "renamed 3 files")
        self.assertEqual({path.name: path.read_text() for path in photos.iterdir()},
                         {f"Holiday 0{number}.jpg": name for number, name in enumerate(PHOTOS, 1)})
        self.enter("orvanto-cli undo --yes --quiet; ls", PHOTOS[-1])
        self.assertEqual(sorted(path.name for path in photos.iterdir()), PHOTOS)
        self.picture()
        plain = self.enter("NO_COLOR=1 orvanto-cli preview --regexp '^IMG_\\d+' Holiday *.jpg", "2 could not")
        self.assertNotIn(RED, plain)

    def picture(self):
        file = pathlib.Path(os.environ["ORVANTO_E2E_SCREENSHOTS"]) / "shell.png"
        self.desktop.screenshot(file)
        self.desktop.run("convert", str(file), "-trim", "+repage", str(file))


if __name__ == "__main__":
    unittest.main()
