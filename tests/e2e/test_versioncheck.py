#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The version check against a service on this machine."""

import datetime
import queue
import time
import unittest

from harness.case import Case
from harness.opener import Opener
from harness.program import Program
from harness.mainwindow import MainWindow
from harness.settingsdialog import SettingsDialog
from harness.tray import Tray
from harness.updateservice import UpdateService
from harness.waiting import until, until_equal
from settingsfile import SETTLED

NEWER = "outdated=1\nlatest=2.0.0.0\ndownload=http://127.0.0.1/download\nchanges=http://127.0.0.1/changes\n"
CURRENT = "outdated=0\nlatest=1.2.0.5\n"
NEW_VERSION = "There is a new version available!\nOrvanto (2.0.0.0)"
BODY = b"itm_name=orvanto&itm_vers=1.2.0.5&sys_type=windows&sys_arch=x64&usr_lang=C"
# The first automatic check comes 32 ticks of 250 ms after the start.
FIRST_CHECK = 8


class VersionCheck(Case):
    tray = True

    def serve(self, answer):
        self.service = UpdateService(answer)
        self.addCleanup(self.service.stop)

    def start_checking(self, environment=None, **values):
        values = {name.replace("__", "."): text for name, text in values.items()}
        self.program = Program(self.desktop, self.home, settings={**SETTLED, **values},
                               environment=environment).start()
        return MainWindow(self.program)

    def request(self):
        try:
            return self.service.requests.get(timeout=30)
        except queue.Empty:
            raise AssertionError("the program asked nothing") from None

    def box(self, role="alert message"):
        box = self.program.window(role)
        until(lambda: box.has("active"), "the box to be active")
        return box

    def texts(self, box):
        return [label.name for label in box.all("label") if label.name]

    def press(self, window, box, text):
        window.hands.click(box.one("push button", text))
        until(lambda: box not in self.program.windows, "the box to close")

    @staticmethod
    def today():
        return f"{datetime.date.today():%d.%m.%Y}"

    def test_automatic_then_skipped_then_silent(self):
        self.serve(NEWER)
        started = time.monotonic()
        window = self.start_checking(VersionCheck__Auto="true")
        line, headers, body = self.request()
        self.assertAlmostEqual(time.monotonic() - started, FIRST_CHECK, delta=3)
        self.assertEqual((line, headers["Content-Type"], body),
                         ("POST / HTTP/1.1", "application/x-www-form-urlencoded", BODY))
        self.assertEqual(headers["Host"], "127.0.0.1:8977")
        box = self.box()
        self.screenshot("automatic")
        self.assertEqual(self.texts(box), [NEW_VERSION, "Would you like to download it now?"])
        self.assertEqual(sorted(button.name for button in box.all("push button")),
                         ["Download", "Later", "Skip Version", "What's new?"])
        self.press(window, box, "Skip Version")
        until_equal(["version check successful"], lambda: window.log_messages()[-1:], "the log")
        self.close()
        settings = self.program.settings()
        self.assertEqual((settings["VersionCheck.Last"], settings["VersionCheck.Skip"]), (self.today(), "2.0.0.0"))

        # On the same day a second start asks nothing, but the user may.
        window = self.start_again()
        started = time.monotonic()
        until(lambda: time.monotonic() - started > FIRST_CHECK + 2, "the time of the check to pass")
        self.assertTrue(self.service.requests.empty(), "asked twice on one day")
        self.assertEqual(len(self.program.windows), 1)
        self.close()

    def test_by_the_button(self):
        self.serve(CURRENT)
        opener = Opener(self.folder)
        window = self.start_checking(opener.environment(), VersionCheck__Last=self.today(),
                                     VersionCheck__Skip="2.0.0.0")
        dialog = SettingsDialog(window)
        dialog.press("Check Now")
        self.assertEqual(self.request()[2], BODY)
        box = self.box()
        self.assertEqual(self.texts(box), ["You are using the latest version."])
        self.screenshot("current")
        self.press(window, box, "Close")

        # Asked by hand, a skipped version is shown, and cannot be skipped again.
        self.service.answer = NEWER
        for button, address in (("Download", "http://127.0.0.1/download"), ("What's new?", "http://127.0.0.1/changes")):
            opened = len(opener.opened())
            dialog.press("Check Now")
            box = self.box()
            self.assertEqual(self.texts(box)[0], NEW_VERSION)
            self.assertEqual(sorted(b.name for b in box.all("push button")), ["Download", "Later", "What's new?"])
            self.screenshot("by-hand")
            self.press(window, box, button)
            self.assertEqual(opener.wait_for(opened + 1)[-1], address)

        self.service.answer = "no answer at all"
        dialog.press("Check Now")
        box = self.box()
        text, = self.texts(box)
        self.assertTrue(text.startswith("Error connecting to server. [Data transmission failure]\n"), text)
        self.screenshot("failed")
        dialog.hands.keys("Return")
        until(lambda: box not in self.program.windows, "the box to close")

        dialog.press("Cancel")
        dialog.wait_closed()
        self.close()
        self.assertEqual(self.program.settings()["VersionCheck.Skip"], "2.0.0.0")

    def test_without_a_service(self):
        window = self.start_checking()
        dialog = SettingsDialog(window)
        dialog.press("Check Now")
        box = self.box()
        text, = self.texts(box)
        self.assertTrue(text.startswith("Error connecting to server. [Connection refused]\n"), text)
        self.screenshot("refused")
        dialog.hands.keys("Return")
        until(lambda: box not in self.program.windows, "the box to close")
        dialog.press("Cancel")
        dialog.wait_closed()
        until_equal(["version check failed"], lambda: window.log_messages()[-1:], "the log")
        self.close()
        self.assertEqual(self.program.settings().get("VersionCheck.Last", ""), "")

    def test_the_end_while_no_answer_comes(self):
        self.serve(None)
        window = self.start_checking()
        dialog = SettingsDialog(window)
        dialog.press("Check Now")
        self.request()
        dialog.press("Cancel")
        dialog.wait_closed()
        self.close()

    def test_a_box_closed_while_the_window_is_in_the_tray_ends_nothing(self):
        self.serve(NEWER)
        window = self.start_checking(VersionCheck__Auto="true", Misc__MinimizeToTrayIcon="true",
                                     ShowTrayiconHint="false")
        tray = Tray(self.program)
        tray.minimize()
        self.request()
        box = self.box()
        self.screenshot("in-the-tray")
        self.press(window, box, "Later")
        self.assertIsNone(self.program.process.poll())
        tray.click()
        until(lambda: window.frame.has("active"), "the main window to be back")
        self.close()


if __name__ == "__main__":
    unittest.main()
