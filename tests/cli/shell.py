# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The built command-line program, run with a data folder and a folder of files of its own."""

import json
import os
import pathlib
import pty
import select
import shutil
import signal
import subprocess
import tempfile
import time
import unittest

# A build with sanitizers on a loaded machine is many times slower; a deadline only costs time when a test fails.
DEADLINE = float(os.environ.get("ORVANTO_E2E_DEADLINE", "60"))


def executable():
    return os.environ["ORVANTO_CLI_EXECUTABLE"]


class Shell(unittest.TestCase):
    """Starts in an empty folder, which is gone afterwards."""

    def setUp(self):
        self.base = pathlib.Path(tempfile.mkdtemp(prefix="orvanto-cli-"))
        self.addCleanup(shutil.rmtree, self.base)
        self.folder = self.base / "files"
        self.folder.mkdir()
        self.data = self.base / "data" / "Kavrondel" / "Orvanto"
        self.env = {name: text for name, text in os.environ.items()
                    if name not in ("NO_COLOR", "DISPLAY", "WAYLAND_DISPLAY")}
        self.env.update(XDG_DATA_HOME=str(self.base / "data"), HOME=str(self.base), LC_ALL="C.UTF-8", TERM="xterm")

    def make(self, *names):
        for name in names:
            path = os.path.join(os.fsencode(self.folder), os.fsencode(name))
            os.makedirs(os.path.dirname(path), exist_ok=True)
            with open(path, "wb") as file:
                file.write(os.fsencode(name))

    def names(self):
        return sorted(os.listdir(self.folder))

    def run_program(self, *words, stdin=subprocess.DEVNULL, **options):
        options = {"stdout": subprocess.PIPE, "stderr": subprocess.PIPE, **options}
        if isinstance(stdin, bytes):
            options["input"] = stdin
        else:
            options["stdin"] = stdin
        return subprocess.run([executable(), *words], cwd=self.folder, env=self.env, timeout=DEADLINE, check=False,
                              **options)

    def in_bash(self, script, **options):
        """Runs a script for the shell that most people have; the program is $orvanto there."""
        env = dict(self.env, orvanto=executable())
        return subprocess.run(["bash", "-c", script], cwd=self.folder, env=env, stdin=subprocess.DEVNULL,
                              capture_output=True, timeout=DEADLINE, check=False, **options)

    def rows(self, *words, **options):
        run = self.run_program(*words, "--json", **options)
        return [json.loads(line) for line in run.stdout.splitlines()]


class Terminal:
    """A pseudo terminal with the program in it, or with another one that starts it."""

    def __init__(self, test, *words, command=None):
        command = command or [executable()]
        self._output = b""
        self.pid, self._terminal = pty.fork()
        if self.pid == 0:
            os.chdir(test.folder)
            os.execvpe(command[0], [*command, *words], test.env)
        test.addCleanup(os.close, self._terminal)

    def wait_for(self, text):
        """Reads until the text is there; an empty one stands for the end."""
        end = time.monotonic() + DEADLINE
        while not text or text not in self._output:
            if not select.select([self._terminal], [], [], max(end - time.monotonic(), 0))[0]:
                raise AssertionError(f"waited in vain for {text!r}; there is {self._output!r}")
            try:
                piece = os.read(self._terminal, 65536)
            except OSError:
                piece = b""
            if not piece and text:
                raise AssertionError(f"it ended without {text!r}; there is {self._output!r}")
            if not piece:
                break
            self._output += piece
        return self._output

    def type(self, text):
        os.write(self._terminal, text)

    def interrupt(self):
        os.kill(self.pid, signal.SIGINT)

    def end(self):
        """All that was printed, and the exit code."""
        output = self.wait_for(b"")
        return output.replace(b"\r\n", b"\n"), os.waitstatus_to_exitcode(os.waitpid(self.pid, 0)[1])
