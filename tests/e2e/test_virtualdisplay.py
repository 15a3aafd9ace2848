#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The display that ./run makes where there is none."""

import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import unittest

from harness.program import executable
from harness.waiting import DEADLINE, until
from settingsfile import SETTLED, settings_text

TOOL = pathlib.Path(__file__).resolve().parents[2] / "tools" / "virtual-display"

# Takes its time, unless the command does not wait for it anyway.
SLOW_WINDOW_MANAGER = """#!/bin/sh
for round in 1 2 3 4 5 6 7 8 9 10; do
    [ -e "$HOME/started" ] || sleep 0.1
done
exec {openbox} "$@"
"""


class VirtualDisplay(unittest.TestCase):
    def setUp(self):
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="orvanto-e2e-"))
        self.addCleanup(shutil.rmtree, self.home)
        self.env = {name: text for name, text in os.environ.items() if name not in ("DISPLAY", "WAYLAND_DISPLAY")}
        self.env.update(HOME=str(self.home), XDG_DATA_HOME=str(self.home / "data"), LC_ALL="C.UTF-8")

    def run_there(self, *command):
        return subprocess.run([TOOL, *command], env=self.env, stdin=subprocess.DEVNULL, capture_output=True, text=True,
                              timeout=DEADLINE, check=False)

    def test_the_window_manager_answers_before_the_command_starts(self):
        manager = self.home / "bin" / "openbox"
        manager.parent.mkdir()
        manager.write_text(SLOW_WINDOW_MANAGER.format(openbox=shutil.which("openbox")), encoding="utf-8")
        manager.chmod(0o755)
        self.env["PATH"] = f"{manager.parent}:{self.env['PATH']}"
        run = self.run_there("sh", "-c", 'touch "$HOME/started"; xprop -root _NET_SUPPORTING_WM_CHECK')
        self.assertIn("window id", run.stdout)

    def test_arguments_and_exit_code_are_the_command_s(self):
        run = self.run_there("sh", "-c", 'printf "%s|" "$@"; exit 7', "sh", "two words", "", "$HOME '\"")
        self.assertEqual((run.stdout, run.returncode), ("two words||$HOME '\"|", 7))

    def test_the_program_shows_its_window_and_ends(self):
        settings = self.home / "data" / "Kavrondel" / "Orvanto" / "config" / "global.xml"
        settings.parent.mkdir(parents=True)
        settings.write_text(settings_text(SETTLED), encoding="utf-8")
        there = self.home / "display"
        note = 'printf "%s\\n" "$DISPLAY" "$XAUTHORITY" $$ >"$HOME/display"; exec "$0"'
        with subprocess.Popen([TOOL, "sh", "-c", note, executable()], env=self.env, stdin=subprocess.DEVNULL) as run:
            self.addCleanup(run.kill)
            until(lambda: there.exists() and there.read_text().count("\n") == 3, "the start")
            display, authority, pid = there.read_text().split()
            env = dict(self.env, DISPLAY=display, XAUTHORITY=authority)
            until(lambda: " Orvanto" in subprocess.run(["wmctrl", "-l"], env=env, capture_output=True, text=True,
                                                       check=False).stdout, "the main window")
            os.kill(int(pid), signal.SIGTERM)
            self.assertEqual(run.wait(DEADLINE), 0)


if __name__ == "__main__":
    unittest.main()
