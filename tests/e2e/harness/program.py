# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The built program, run with a home directory of its own."""

import itertools
import os
import pathlib
import subprocess
import xml.etree.ElementTree as ET

from settingsfile import settings_text

from . import accessible
from .waiting import DEADLINE, until

_run_numbers = itertools.count(1)


def executable():
    return pathlib.Path(os.environ["ORVANTO_E2E_EXECUTABLE"])


def read_settings(file):
    """The values of a settings file by their dotted names; "@version" is the root's attribute."""
    root = ET.parse(file).getroot()
    if root.tag != "Settings":
        raise AssertionError(f"{file}: the root is {root.tag}")
    values = {"@version": root.get("version")}

    def collect(element, prefix):
        for child in element:
            collect(child, f"{prefix}{child.tag}.")
        if not len(element):
            values[prefix[:-1]] = element.text or ""

    collect(root, "")
    return values


class Program:
    """One run of the program. Runs that share a home see each other's settings and logs."""

    def __init__(self, desktop, home, binary=None, settings=None, environment=None):
        self.desktop = desktop
        self.home = home
        self.binary = binary or executable()
        self.data = home / "data" / "Kavrondel" / "Orvanto"
        self.settings_file = self.data / "config" / "global.xml"
        self._output = None
        if settings is not None:
            self.write_settings(settings_text(settings))
        env = dict(desktop.env, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", HOME=str(home),
                   XDG_DATA_HOME=str(home / "data"), XDG_CONFIG_HOME=str(home / "configuration"))
        env.update(environment or {})
        self._env = {name: value for name, value in env.items() if value is not None}
        self.process = None

    def write_settings(self, text):
        self.settings_file.parent.mkdir(parents=True, exist_ok=True)
        self.settings_file.write_bytes(text if isinstance(text, bytes) else text.encode())

    def settings(self):
        return read_settings(self.settings_file)

    def start(self):
        self.home.mkdir(parents=True, exist_ok=True)
        self._number = next(_run_numbers)
        self._output = [self.home / f"output-{self._number}-{channel}" for channel in ("out", "err")]
        with open(self._output[0], "wb") as out, open(self._output[1], "wb") as err:
            self.process = self.desktop.spawn([str(self.binary)], env=self._env, cwd=self.home, stdout=out,
                                              stderr=err)
        return self

    @property
    def stdout(self):
        return self._output[0].read_text(errors="replace")

    @property
    def stderr(self):
        return self._output[1].read_text(errors="replace")

    @property
    def application(self):
        return accessible.application(self.desktop.accessibility, self.process.pid)

    @property
    def windows(self):
        """The top-level windows, dialogs too, that are on the screen."""
        if self.process.poll() is not None:
            raise AssertionError(f"the program ended with {self.process.returncode}: {self.stderr}")
        return [child for child in self.application.children if child.has("showing")]

    def window(self, role, name=None):
        """Waits for the top-level window with this role and title."""
        def find():
            return [w for w in self.windows if role in (None, w.role) and name in (None, w.name)]
        return until(find, f"the {role or 'window'} {name!r}")[0]

    def x_window(self, title):
        """The X id of a window of this process."""
        for line in self.desktop.run("wmctrl", "-l", "-p").splitlines():
            number, _, pid, _, name = line.split(None, 4)
            if int(pid) == self.process.pid and name == title:
                return number
        return None

    def close(self, title="Orvanto"):
        """Has the window manager close a window, as a click on the cross in its title bar does."""
        number = until(lambda: self.x_window(title), f"the window {title!r}")
        self.desktop.run("wmctrl", "-i", "-c", number)

    def wait(self, deadline=DEADLINE):
        """The exit code, once the program has ended."""
        try:
            return self.process.wait(deadline)
        except subprocess.TimeoutExpired:
            raise AssertionError(f"the program did not end; its windows: {self.windows}") from None
