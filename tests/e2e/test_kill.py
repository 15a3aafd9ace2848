#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Killed without warning: in the middle of a large run, and while the settings are saved."""

import os
import pathlib
import random
import signal
import time
import unittest
import xml.etree.ElementTree as ET

from harness.case import Case
from harness.waiting import until
from harness.watchedfile import WatchedFile

FILES = 20000
# Each kill costs some seconds, most of them for listing the files; the number can be raised for a long test.
KILLS = int(os.environ.get("ORVANTO_E2E_KILLS", "4"))
SAVES = 25
MEMORY = pathlib.Path("/dev/shm")


class Killed(Case):
    def test_every_file_keeps_its_content_under_one_of_its_names(self):
        folder = self.make_folder(MEMORY)
        names = [f"IMG{number:05}.TXT" for number in range(FILES)]
        for name in names:
            (folder / name).write_text(name, encoding="ascii")
        renamed_counts = []
        seed = random.randrange(2**32)
        chance = random.Random(seed)
        for _ in range(KILLS):
            window = self.start()
            window.add_by_drag(folder)
            until(lambda: window.files.count == FILES, "the files")
            # The default rule puts names in lower case and leaves their extension alone.
            window.hands.click(window.add_button)
            until(lambda: len(window.rule_rows()) == 1, "the rule")
            victim = folder / chance.choice(names).replace("IMG", "img")
            window.hands.click(window.rename_button)
            until(victim.exists, f"{victim.name}")
            self.program.process.send_signal(signal.SIGKILL)
            self.assertEqual(self.program.process.wait(), -signal.SIGKILL)
            renamed_counts.append(self.expect_whole(folder, seed))
        print(f"{KILLS} kills; files renamed until then: {sorted(renamed_counts)}", flush=True)

    def expect_whole(self, folder, seed):
        """Every file once, under its old or its new name, with its own content; gives them their old names back."""
        renamed = 0
        contents = {}
        for entry in list(os.scandir(folder)):
            with open(entry.path, encoding="ascii") as file:
                contents[entry.name] = file.read()
            if entry.name.startswith("img"):
                renamed += 1
                os.rename(entry.path, folder / entry.name.upper())
        self.assertEqual(len(contents), FILES, f"seed {seed}")
        wrong = [name for name, content in contents.items() if content != name.replace("img", "IMG")]
        self.assertEqual(wrong, [], f"seed {seed}")
        return renamed

    def test_the_settings_file_is_whole_at_every_moment(self):
        self.start(Log__Save="true", Own__Remark="x" * 20000)
        self.close()
        watched = WatchedFile(self.program.settings_file)
        seed = random.randrange(2**32)
        chance = random.Random(seed)
        endings = set()
        try:
            for _ in range(SAVES):
                self.program.start()
                until(lambda: self.program.x_window("Orvanto"), "the main window")
                self.program.process.send_signal(signal.SIGTERM)
                # The end takes some milliseconds; the file is written twice in them.
                end = time.monotonic() + chance.uniform(0, 0.03)
                while time.monotonic() < end and self.program.process.poll() is None:
                    pass
                self.program.process.send_signal(signal.SIGKILL)
                endings.add(self.program.process.wait())
                self.expect_settings(self.program.settings_file.read_bytes(), seed)
        finally:
            seen = watched.stop()
        for content in seen:
            self.expect_settings(content, seed)
        self.assertIn(-signal.SIGKILL, endings, f"seed {seed}: nothing was killed in time")
        # The next start is none the worse for what the killed ones left.
        self.start_again()
        self.close()
        self.expect_settings(self.program.settings_file.read_bytes(), seed)

    def expect_settings(self, content, seed):
        self.assertIsNotNone(content, f"seed {seed}: the file was missing")
        root = ET.fromstring(content)
        self.assertEqual((root.tag, root.get("version"), root.findtext("Log/Save"), root.findtext("Own/Remark")),
                         ("Settings", "1.2.0.5", "true", "x" * 20000), f"seed {seed}")


if __name__ == "__main__":
    unittest.main()
