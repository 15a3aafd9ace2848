# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Stands in for the desktop's xdg-open, which opens folders and addresses; or takes it away."""

from .waiting import until


class Opener:
    """A PATH with an xdg-open of the tests' own, which notes what it is asked to open."""

    def __init__(self, folder):
        self._folder = folder / "opener"
        self._folder.mkdir()
        self._note = self._folder / "opened"
        script = self._folder / "xdg-open"
        script.write_text(f'#!/bin/sh\nprintf "%s\\n" "$*" >> "{self._note}"\n', encoding="utf-8")
        script.chmod(0o755)

    def environment(self):
        # Without any of the desktop's variables and other openers there is only this one to be found.
        return {"PATH": str(self._folder), "BROWSER": None}

    @staticmethod
    def missing(folder):
        """The environment of a desktop without any opener."""
        empty = folder / "empty"
        empty.mkdir()
        return {"PATH": str(empty), "BROWSER": None}

    def opened(self):
        return self._note.read_text(encoding="utf-8").splitlines() if self._note.exists() else []

    def wait_for(self, count):
        """What was opened, in order, once there are that many."""
        return until(lambda: len(self.opened()) >= count and self.opened(), f"{count} things to be opened")
