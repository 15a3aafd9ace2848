#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Under Wayland, as far as it lets itself be driven.

The compositor runs without screen, mouse and keyboard. The widgets are used over the accessibility bus instead; what
only a mouse can do, dragging files in among it, stays with the tests on X.
"""

import pathlib
import signal
import unittest

from gi.repository import GLib

from harness.accessible import PREFIX
from harness.case import Case
from harness.program import Program
from harness.waiting import until, until_equal
from settingsfile import SETTLED

SOCKET = "wayland-of-the-tests"


def press(widget):
    """Does to a widget what a click does, without waiting: a button that opens a dialog answers after its end."""
    widget.send(PREFIX + "Action", "DoAction", GLib.Variant("(i)", (0,)), "(b)", lambda *_: None, None)


class Wayland(Case):
    window_manager = False

    def setUp(self):
        super().setUp()
        self.desktop.spawn(["weston", "--backend=headless-backend.so", f"--socket={SOCKET}", "--width=1280",
                            "--height=800", "--idle-time=0"])
        socket = pathlib.Path(self.desktop.env["XDG_RUNTIME_DIR"]) / SOCKET
        until(socket.exists, "the compositor")

    def start_on_wayland(self, values):
        self.program = Program(self.desktop, self.home, settings=values, environment={
            "WAYLAND_DISPLAY": SOCKET, "DISPLAY": None, "QT_QPA_PLATFORM": "wayland"}).start()

    def end(self):
        self.program.process.send_signal(signal.SIGTERM)
        self.assertEqual(self.program.wait(), 0)
        self.assertEqual((self.program.stdout, self.program.stderr), ("", ""))

    def test_rules_dialogs_and_the_end(self):
        self.start_on_wayland({**SETTLED, "Window.Opacity": "0.5", "Misc.MinimizeToTrayIcon": "true"})
        frame = self.program.window("frame", "Orvanto")
        rules = frame.one("panel", "Active Rules").one("tree")
        press(frame.one("push button", "Add"))
        # The list names the case the other way round.
        until_equal(["Change Case", "Uppercase letters"], lambda: rules.names("tree item"), "the rule")
        press(frame.one("push button", "Rename"))
        until(lambda: frame.has("showing"), "the window to go on")
        self.assertEqual(len(self.program.windows), 1, "a run without files")
        press(frame.one("check box", "Save"))
        press(frame.one("tool bar").all("push button")[0])
        dialog = self.program.window("dialog", "Global Settings")
        press(dialog.one("check box", "Disable splash screen"))
        until(lambda: not dialog.one("check box", "Disable splash screen").has("checked"), "the check box")
        press(dialog.one("push button", "Save"))
        until(lambda: dialog not in self.program.windows, "the dialog to close")
        self.end()
        settings = self.program.settings()
        self.assertEqual({name: settings[name] for name in ("Log.Save", "Misc.DisableSplashScreen",
                                                            "Misc.MinimizeToTrayIcon")},
                         {"Log.Save": "true", "Misc.DisableSplashScreen": "false", "Misc.MinimizeToTrayIcon": "false"})

    def test_first_start(self):
        self.start_on_wayland({"Misc.DisableSplashScreen": "true", "SupportUsHint": "false"})
        dialog = self.program.window("dialog")
        press(dialog.one("push button", "Next"))
        until(lambda: dialog.all("check box"), "the second page")
        press(dialog.one("push button", "Next"))
        self.program.window("frame", "Orvanto")
        self.end()
        self.assertEqual(self.program.settings()["Misc.IsFirstStart"], "false")

    def test_minimized_on_start_with_the_splash_screen(self):
        self.start_on_wayland({"Misc.IsFirstStart": "false", "VersionCheck.Auto": "false",
                               "Misc.MinimizeOnStart": "true"})
        until(lambda: self.program.application.children, "the program")
        until(lambda: any(child.name == "Orvanto" for child in self.program.application.children), "its window")
        self.end()


if __name__ == "__main__":
    unittest.main()
