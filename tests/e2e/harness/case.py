# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The base class of the end-to-end tests."""

import os
import pathlib
import re
import shutil
import sys
import tempfile
import time
import unittest

from settingsfile import SETTLED, settings_text

from .desktop import Desktop
from .dialogs import answer_support_request, pass_first_start
from .mainwindow import MainWindow
from .program import Program


# Few folders lie above it and beside it: the explorer has little to read and little that changes meanwhile.
QUIET_PLACE = pathlib.Path("/var/tmp")


class Case(unittest.TestCase):
    """Gives each test a desktop, a home and a scratch folder, and a screenshot of its last moment."""

    maxDiff = None
    window_manager = True
    tray = False

    def run(self, result=None):
        self._result = result or self.defaultTestResult()
        self._faults_before = len(self._result.failures) + len(self._result.errors)
        return super().run(self._result)

    def setUp(self):
        self.folder = self.make_folder(QUIET_PLACE)
        self.home = self.folder / "home"
        self.home.mkdir()
        self.desktop = Desktop(self.window_manager, self.tray)
        self.addCleanup(self.desktop.stop)
        self.addCleanup(self.look_at_the_end)

    def make_folder(self, place=None):
        """A temporary folder that is removed after the test."""
        folder = pathlib.Path(tempfile.mkdtemp(prefix="orvanto-e2e-", dir=place))
        self.addCleanup(shutil.rmtree, folder)
        return folder

    def screenshot(self, moment):
        folder = pathlib.Path(os.environ["ORVANTO_E2E_SCREENSHOTS"])
        name = re.sub(r"^.*?(test_[^.]*)\.[^.]*\.", r"\1.", self.id())
        self.desktop.screenshot(folder / f"{name}.{moment}.png")

    def make_files(self, names, folder=None):
        """Creates files whose content is their name, and returns their folder."""
        folder = folder or self.folder / "files"
        for name in names:
            file = folder / name
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(name, encoding="utf-8")
        return folder

    def content_by_name(self, folder):
        """What lies below a folder: each file's content by its path."""
        return {str(file.relative_to(folder)): file.read_text(encoding="utf-8")
                for file in folder.rglob("*") if file.is_file()}

    def look_at_the_end(self):
        """What a failed test saw last is kept apart, so that no later run overwrites it."""
        if len(self._result.failures) + len(self._result.errors) == self._faults_before:
            self.screenshot("end")
            return
        self.screenshot(f"failed-{time.time():.0f}")
        for command, code in self.desktop.ended():
            print(f"\n{command} ended with {code}", file=sys.stderr)
        for file in sorted(self.home.glob("output-*")):
            if file.stat().st_size:
                print(f"{file.name}: {file.read_text(errors='replace')}", file=sys.stderr)

    def start(self, text=settings_text(SETTLED), **settings):
        """Starts the program with settled settings; keywords are written with __ in place of the dot.

        With "text" the settings file is what is given.
        """
        self.program = Program(self.desktop, self.home)
        if settings:
            text = settings_text({**SETTLED, **{name.replace("__", "."): text for name, text in settings.items()}})
        self.program.write_settings(text)
        return self.start_again()

    def start_again(self):
        """Starts the program with what the last run left."""
        self.program.start()
        return MainWindow(self.program)

    def start_without_settings(self, text=None):
        """Starts the program with a settings file that it cannot use, and goes through the first start."""
        self.program = Program(self.desktop, self.home)
        if text is not None:
            self.program.write_settings(text)
        self.program.start()
        pass_first_start(self.program)
        return MainWindow(self.program)

    def close(self, support_request=False):
        """Closes the main window by the window manager; the program must end well and silently."""
        self.program.close()
        if support_request:
            answer_support_request(self.program, again=False)
        self.assertEqual(self.program.wait(), 0)
        self.assertEqual(self.program.stderr, "")
        self.assertEqual(self.program.stdout, "")
