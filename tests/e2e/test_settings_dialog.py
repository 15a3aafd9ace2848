#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The settings dialog by mouse and keyboard, and what it does outside the program."""

import unittest

from harness.case import Case
from harness.mainwindow import MainWindow
from harness.opener import Opener
from harness.program import Program, executable
from harness.settingsdialog import ADD_ONS, DONATE, GENERAL, INFO, LOCALISATION, SettingsDialog
from harness.waiting import until, until_equal, until_still
from settingsfile import SETTLED

# Every check box that stands for a setting, with what it shows for the settings the tests begin with.
OPTIONS = {
    "Minimize on start": ("Misc.MinimizeOnStart", "false"),
    "Disable splash screen": ("Misc.DisableSplashScreen", "true"),
    "Restore window layout": ("Window.Layout.Restore", "true"),
    "Restore window geometry": ("Window.Geometry.Restore", "true"),
    "Minimize to tray icon": ("Misc.MinimizeToTrayIcon", "false"),
    "Automatically check for new version": ("VersionCheck.Auto", "false"),
}
# With a tray Misc.MinimizeToTrayIcon is the user's own choice.
SUCCESS = "The command completed successfully."
FAILURE = "The command failed to execute.\nMake sure you have administrator rights."


class SettingsDialogCase(Case):
    tray = True

    def open(self, environment=None):
        self.program = Program(self.desktop, self.home, settings=SETTLED, environment=environment).start()
        self.window = MainWindow(self.program)
        return SettingsDialog(self.window)

    def expect_stored(self, expected):
        self.close()
        settings = self.program.settings()
        self.assertEqual({key: settings[key] for key, _ in OPTIONS.values()}, expected)


class Options(SettingsDialogCase):
    BEFORE = {key: value for key, value in OPTIONS.values()}
    AFTER = {key: "false" if value == "true" else "true" for key, value in OPTIONS.values()}

    def toggle_all(self, dialog):
        for text, (_, value) in OPTIONS.items():
            self.assertEqual(dialog.box(text).has("checked"), value == "true", text)
            dialog.toggle(text)

    def test_save_stores(self):
        dialog = self.open()
        self.toggle_all(dialog)
        dialog.press("Save")
        dialog.wait_closed()
        self.expect_stored(self.AFTER)

    def test_cancel_and_escape_do_not(self):
        dialog = self.open()
        self.toggle_all(dialog)
        dialog.press("Cancel")
        dialog.wait_closed()
        dialog = SettingsDialog(self.window)
        self.toggle_all(dialog)
        dialog.hands.keys("Escape")
        dialog.wait_closed()
        dialog = SettingsDialog(self.window)
        self.toggle_all(dialog)
        self.program.close("Global Settings")
        dialog.wait_closed()
        self.expect_stored(self.BEFORE)

    def test_by_the_keyboard_alone_and_enter_saves(self):
        dialog = self.open()
        boxes = [widget for widget in dialog.page().all("check box")]
        for box, text in zip(boxes, ["Load on system start-up", *OPTIONS]):
            dialog.hands.keys("Tab")
            until(lambda box=box: box.has("focused"), f"{text!r} to have the focus")
            self.assertEqual(box.name, text)
            if text in OPTIONS:
                dialog.hands.keys("space")
                until(lambda box=box, text=text: box.has("checked") != (OPTIONS[text][1] == "true"), text)
        dialog.hands.keys("Return")
        dialog.wait_closed()
        self.expect_stored(self.AFTER)


class Pages(SettingsDialogCase):
    def expect_page(self, dialog, role, text):
        until(lambda: dialog.page().one(role, text), f"the page with {text!r}")

    EXPECTED = {ADD_ONS: ("label", "Plugins"), LOCALISATION: ("label", "Translation: Kavrondel"),
                DONATE: ("push button", "Donate"), INFO: ("label", "1.2.0.5"),
                GENERAL: ("check box", "Load on system start-up")}

    def test_all_by_mouse_and_by_keyboard(self):
        dialog = self.open()
        self.assertEqual(dialog.pages.names(), ["General", "Add-ons", "Localisation", "Donate", "Info"])
        for index, (role, text) in self.EXPECTED.items():
            dialog.show_page(index)
            self.expect_page(dialog, role, text)
            self.screenshot(f"page-{index}")
        for index in (ADD_ONS, LOCALISATION, DONATE, INFO):
            dialog.hands.keys("Down")
            self.expect_page(dialog, *self.EXPECTED[index])
        # Quicker than the fade of a page: each page takes the place of the one before.
        dialog.hands.keys("Up", "Up", "Up", "Up", "Down", "Up")
        self.expect_page(dialog, *self.EXPECTED[GENERAL])
        dialog.press("Cancel")
        dialog.wait_closed()
        self.close()

    def test_a_language_is_taken_at_once_and_kept_by_cancel(self):
        dialog = self.open()
        dialog.choose_language("de_DE")
        until(lambda: dialog.dialog.name == "Globale Einstellungen", "the German title")
        until_equal(["Allgemein", "Erweiterungen", "Sprache", "Spenden", "Info"], dialog.pages.names, "the pages")
        self.assertEqual(len(self.window.frame.all("push button", "Umbenennen")), 1)
        self.screenshot("german")
        for index in (GENERAL, DONATE):
            dialog.show_page(index)
            self.screenshot(f"german-{index}")
        dialog.press("Abbrechen")
        dialog.wait_closed()
        self.assertEqual(len(self.window.frame.all("push button", "Umbenennen")), 1)
        self.close()
        self.assertEqual(self.program.settings()["Misc.Language"], "de_DE")


class Autostart(SettingsDialogCase):
    def setUp(self):
        super().setUp()
        self.entry = self.home / "configuration" / "autostart" / "Pendulix Basic.desktop"

    def click_and_answer(self, dialog, text):
        box = dialog.box("Load on system start-up")
        dialog.hands.click(box)
        answer = self.program.window("alert message")
        until(lambda: answer.has("active"), "the answer to be active")
        self.assertEqual([label.name for label in answer.all("label") if label.name], [text])
        dialog.hands.keys("Return")
        until(lambda: dialog.dialog.has("active"), "the settings dialog to be active again")
        return box.has("checked")

    def test_written_and_removed_at_once(self):
        dialog = self.open()
        self.assertFalse(dialog.box("Load on system start-up").has("checked"))
        self.assertTrue(self.click_and_answer(dialog, SUCCESS))
        self.assertIn(f'Exec="{executable()}" -auto\n', self.entry.read_text(encoding="utf-8"))
        dialog.press("Cancel")
        dialog.wait_closed()
        self.assertTrue(self.entry.exists(), "Cancel took the entry away")
        dialog = SettingsDialog(self.window)
        self.assertTrue(dialog.box("Load on system start-up").has("checked"))
        self.assertFalse(self.click_and_answer(dialog, SUCCESS))
        self.assertFalse(self.entry.exists())

    def test_that_cannot_be_written_is_reported(self):
        # A file in the way of the folder refuses everyone.
        self.entry.parent.parent.mkdir()
        self.entry.parent.write_text("in the way", encoding="utf-8")
        dialog = self.open()
        self.assertFalse(self.click_and_answer(dialog, FAILURE))
        self.assertEqual(self.entry.parent.read_text(encoding="utf-8"), "in the way")
        dialog.press("Cancel")
        dialog.wait_closed()
        self.close()

    def test_the_entry_of_another_program_is_replaced(self):
        self.entry.parent.mkdir(parents=True)
        self.entry.write_text('[Desktop Entry]\nType=Application\nName=x\nExec="/opt/other" -auto\n', encoding="utf-8")
        dialog = self.open()
        self.assertFalse(dialog.box("Load on system start-up").has("checked"))
        self.assertTrue(self.click_and_answer(dialog, SUCCESS))
        self.assertIn(f'Exec="{executable()}" -auto\n', self.entry.read_text(encoding="utf-8"))


class Opening(SettingsDialogCase):
    BUTTONS = {"Application Directory": None, "Application Data Directory": None,
               "Visit our website": "http://www.kavrondel.example/",
               "Send us feedback": "http://www.kavrondel.example/contact"}

    def press_everything(self, dialog):
        """Presses all that opens something; the answers are the folders and addresses in their order."""
        dialog.show_page(INFO)
        for text in self.BUTTONS:
            dialog.press(text)
            yield
        dialog.show_page(DONATE)
        dialog.press("Donate")
        yield
        dialog.press("Cancel")
        dialog.wait_closed()
        folder_button = self.window.log_dock.one("push button", "Open log directory")
        self.window.hands.click(folder_button)
        yield
        self.window.hands.click(self.window.frame.one("tool bar").all("push button")[-1])
        yield

    def test_folders_and_addresses_go_to_the_desktop(self):
        opener = Opener(self.folder)
        dialog = self.open(opener.environment())
        for count, _ in enumerate(self.press_everything(dialog), 1):
            opener.wait_for(count)
        data = self.program.data
        self.assertEqual(opener.opened(), [
            f"file://{executable().parent}", f"file://{data}", "http://www.kavrondel.example/",
            "http://www.kavrondel.example/contact", "http://www.kavrondel.example/donate", f"file://{data}/logs",
            "http://www.kavrondel.example/"])
        self.assertTrue((data / "logs").is_dir())
        self.close()

    def test_without_an_opener_nothing_happens(self):
        dialog = self.open(Opener.missing(self.folder))
        for _ in self.press_everything(dialog):
            # The program answers at once: it waits for nobody.
            until_still(lambda: len(self.program.windows), "the windows to stay as they are")
            self.assertLessEqual(len(self.program.windows), 2)
        self.program.close()
        self.assertEqual(self.program.wait(), 0)


if __name__ == "__main__":
    unittest.main()
