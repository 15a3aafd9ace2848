#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The window in the system tray and back, with a real tray and without any."""

import unittest

from harness.case import Case
from harness.hands import middle_of
from harness.mainwindow import REPORT, MainWindow
from harness.program import Program
from harness.settingsdialog import SettingsDialog
from harness.tray import QUIT, RESTORE, Tray
from harness.waiting import until, until_equal, until_still
from harness.xwindows import is_iconic, opacity, place
from settingsfile import SETTLED


class TrayCase(Case):
    def start_minimized(self, **settings):
        """Starts the program; there is no main window to wait for."""
        settings = {name.replace("__", "."): text for name, text in settings.items()}
        self.program = Program(self.desktop, self.home, settings={
            **SETTLED, "Misc.MinimizeOnStart": "true", "Misc.MinimizeToTrayIcon": "true", **settings}).start()

    def expect_opacity(self, expected):
        number = self.program.x_window("Orvanto")
        until(lambda: abs(opacity(self.desktop, number) - expected) < 0.005, f"the opacity {expected}")


    def expect_back(self, window):
        until(lambda: self.program.x_window("Orvanto"), "the main window to be back")
        until(lambda: window.frame.has("showing") and window.frame.has("active"), "the main window to be active")

    def place(self):
        return place(self.desktop, until(lambda: self.program.x_window("Orvanto"), "the main window"))

    def minimize_to_the_task_bar(self):
        number = self.program.x_window("Orvanto")
        self.desktop.run("xdotool", "windowminimize", number)
        until(lambda: is_iconic(self.desktop, number), "the window to be minimised")


class InTheTray(TrayCase):
    tray = True

    def start_with_tray(self, **settings):
        window = self.start(Misc__MinimizeToTrayIcon="true", **settings)
        return window, Tray(self.program)

    def test_click_takes_the_icon_away_and_the_menu_keeps_it(self):
        window, tray = self.start_with_tray()
        self.assertIsNone(tray.icon(), "the icon is shown before the window goes there")
        tray.minimize()
        until(tray.balloons, "the balloon")
        self.screenshot("balloon")
        tray.click()
        self.expect_back(window)
        until(lambda: tray.icon() is None, "the icon to go")
        self.assertEqual(tray.balloons(), [])

        tray.minimize()
        menu = tray.open_menu()
        self.screenshot("menu")
        self.assertEqual(tray.balloons(), [], "the balloon came a second time")
        self.assertIsNone(self.program.x_window("Orvanto"), "the menu brought the window back")
        tray.click_in(menu, RESTORE)
        self.expect_back(window)
        self.assertIsNotNone(tray.icon(), "Restore took the icon away")
        self.screenshot("restored")

        # The icon that stayed takes the next click as any other.
        tray.minimize()
        tray.click()
        self.expect_back(window)
        until(lambda: tray.icon() is None, "the icon to go")
        self.close()
        settings = self.program.settings()
        self.assertEqual((settings["ShowTrayiconHint"], settings["Misc.MinimizeToTrayIcon"]), ("false", "true"))

        self.start_again()
        tray = Tray(self.program)
        tray.minimize()
        tray.open_menu()
        self.assertEqual(tray.balloons(), [], "the balloon came in a second run")

    def test_the_window_is_the_same_after_the_tray(self):
        window, tray = self.start_with_tray(ShowTrayiconHint="false", Window__Opacity="0.75")
        window.add_by_drag(self.make_files(["a.txt"]))
        window.expect_files(["a.txt"])
        before = window.frame.extents
        tray.minimize()
        tray.click()
        self.expect_back(window)
        window.expect_files(["a.txt"])
        self.assertEqual(window.frame.extents[2:], before[2:], "the size")
        self.expect_opacity(0.75)
        window.add_rule("Insert Text", texts=["new_"], numbers=[0], choice="Start")
        self.assertEqual(window.rename(), "Total 1\nProcessed 1\nFailed 0")
        window.close_report()
        self.close()

    def test_a_maximised_window_comes_back_maximised(self):
        window, tray = self.start_with_tray(ShowTrayiconHint="false")
        self.desktop.run("wmctrl", "-i", "-r", self.program.x_window("Orvanto"), "-b",
                         "add,maximized_vert,maximized_horz")
        until(lambda: window.frame.extents.width == 1280, "the window to be maximised")
        tray.minimize()
        tray.click()
        self.expect_back(window)
        until(lambda: window.frame.extents.width == 1280, "the window to be maximised again")
        self.screenshot("maximised")
        tray.minimize()
        tray.choose(RESTORE)
        self.expect_back(window)
        until(lambda: window.frame.extents.width == 1280, "the window to be maximised by the menu, too")
        self.close()

    def test_quit_by_the_menu_asks_for_support(self):
        window, tray = self.start_with_tray(SupportUsHint="true", ShowTrayiconHint="false")
        before = self.program.settings_file.read_bytes()
        window.toggle(window.log_dock.one("check box", "Save"))
        tray.minimize()
        tray.choose(QUIT)
        notice = self.program.window("dialog", "Advice")
        until(lambda: notice.has("active"), "the notice to be active")
        self.screenshot("notice")
        self.assertIsNone(self.program.x_window("Orvanto"), "the notice brought the window back")
        self.assertEqual(self.program.settings_file.read_bytes(), before, "saved before the answer")
        tray.hands.click(notice.one("push button", "Close"))
        self.assertEqual(self.program.wait(), 0)
        self.assertEqual((self.program.stdout, self.program.stderr), ("", ""))
        settings = self.program.settings()
        self.assertEqual((settings["Log.Save"], settings.get("SupportUsHint")), ("true", "true"))

    def test_quit_asks_once(self):
        window, tray = self.start_with_tray(SupportUsHint="true", ShowTrayiconHint="false")
        tray.minimize()
        tray.choose(QUIT)
        notice = self.program.window("dialog", "Advice")
        tray.choose(QUIT)
        until(lambda: notice.has("active"), "the notice to be active")
        self.assertEqual([each.name for each in self.program.windows], ["Advice"], "asked a second time")
        tray.click()
        until(lambda: window.frame.has("showing"), "the main window to be back")
        until(lambda: notice.has("active"), "the notice to be active")
        self.screenshot("notice-over-the-window")
        tray.hands.click(notice.one("push button", "Close"))
        self.assertEqual(self.program.wait(), 0)

    def test_an_open_dialog_comes_back_with_the_window(self):
        window, tray = self.start_with_tray(ShowTrayiconHint="false")
        settings = SettingsDialog(window)
        for comes_back in (tray.click, lambda: tray.choose(RESTORE)):
            tray.minimize()
            comes_back()
            until(lambda: window.frame.has("showing"), "the main window to be back")
            until(lambda: settings.dialog.has("active"), "the dialog to be active")
            self.assertFalse(is_iconic(self.desktop, self.program.x_window("Global Settings")))
            self.screenshot("dialog")
        # The window still waits for the dialog, which comes to the front again.
        tray.hands.click_at(*middle_of(window.preview))
        until(lambda: settings.dialog.has("active"), "the dialog to be active")
        self.assertFalse(window.preview.has("checked"), "the window took a click behind its dialog")
        settings.toggle("Disable splash screen")
        settings.press("Save")
        settings.wait_closed()
        self.close()
        self.assertEqual(self.program.settings()["Misc.DisableSplashScreen"], "false")

    def test_a_run_goes_on_in_the_tray(self):
        names = [f"{number:05}.txt" for number in range(20000)]
        folder = self.make_files(names)
        window, tray = self.start_with_tray(ShowTrayiconHint="false")
        window.add_by_drag(folder)
        until(lambda: window.files.count == len(names), "the files")
        window.add_rule("Insert Text", texts=["new_"], numbers=[0], choice="Start")
        window.hands.click(window.rename_button)
        # The window manager would bring the window back with a wait dialog that comes later.
        until((folder / "new_01000.txt").exists, "the run to be under way")
        tray.minimize()
        self.assertEqual(window.report_text(), "Total 20000\nProcessed 20000\nFailed 0")
        tray.click()
        until(lambda: window.frame.has("showing"), "the main window to be back")
        # By mouse: the focus may come later than the windows.
        report = self.program.window(REPORT, "Report")
        window.hands.click(report.one("push button", "Close"))
        until(lambda: not [w for w in self.program.windows if w.role == REPORT], "the report to close")
        until(lambda: window.frame.has("active"), "the main window to be active")
        self.close()

    def test_quit_by_the_menu_keeps_the_place(self):
        self.start_with_tray(ShowTrayiconHint="false", Window__Geometry__Restore="true")
        number = until(lambda: self.program.x_window("Orvanto"), "the main window")
        self.desktop.run("wmctrl", "-i", "-r", number, "-e", "0,150,190,1080,600")
        until(lambda: self.place()[2:] == (1080, 600), "the new size")
        before = until_still(self.place, "the window to rest")
        for _ in range(3):
            tray = Tray(self.program)
            tray.minimize()
            tray.choose(QUIT)
            self.assertEqual(self.program.wait(), 0)
            self.start_again()
            until_equal(before, self.place, "the place of the last run")
        # There and back again it is the same.
        tray = Tray(self.program)
        tray.minimize()
        tray.click()
        until_equal(before, self.place, "the place before the tray")
        self.close()

    def test_quit_after_a_minimized_start_keeps_the_place(self):
        self.start_with_tray(ShowTrayiconHint="false", Window__Geometry__Restore="true")
        self.close()
        settings = {name: text for name, text in self.program.settings().items() if name != "@version"}
        self.start_minimized(**{**settings, "Misc.MinimizeOnStart": "true"})
        for run in range(2):
            if run:
                self.program.start()
            Tray(self.program).choose(QUIT)
            self.assertEqual(self.program.wait(), 0)
            # The frame before it is not known in the tray, and not restored.
            before, after = (each["Window.Geometry.Data"][48:] for each in (settings, self.program.settings()))
            self.assertEqual(after, before)

    def test_the_menu_follows_the_language(self):
        window, tray = self.start_with_tray(ShowTrayiconHint="false")
        # The icon stays when its menu brings the window back.
        tray.minimize()
        english = tray.menu_size()
        tray.choose(RESTORE)
        self.expect_back(window)
        settings = SettingsDialog(window)
        settings.choose_language("de_DE")
        settings.press("Abbrechen")
        settings.wait_closed()
        german = tray.menu_size()
        self.assertGreater(german, english)
        self.close()
        self.program.start()
        self.program.window("frame", "Orvanto")
        tray = Tray(self.program)
        tray.minimize()
        self.assertEqual(german, tray.menu_size(), "the menu of a start in German")

    def test_quit_by_the_menu_without_a_question(self):
        _, tray = self.start_with_tray(ShowTrayiconHint="false")
        tray.minimize()
        tray.choose(QUIT)
        self.assertEqual(self.program.wait(), 0)
        self.assertEqual((self.program.stdout, self.program.stderr), ("", ""))
        self.assertEqual(self.program.settings()["@version"], "1.2.0.5")

    def test_minimized_on_start(self):
        self.start_minimized(Window__Opacity="0.5")
        tray = Tray(self.program)
        tray.wait_for_icon()
        until(tray.balloons, "the balloon")
        self.assertIsNone(self.program.x_window("Orvanto"))
        self.screenshot("tray-only")
        tray.click()
        window = MainWindow(self.program)
        self.expect_back(window)
        self.expect_opacity(0.5)
        self.close()
        self.assertEqual(self.program.settings()["Window.Opacity"], "0.5")


class WithoutTray(TrayCase):
    def test_minimized_to_the_task_bar_instead(self):
        window = self.start(Misc__MinimizeToTrayIcon="true")
        self.minimize_to_the_task_bar()
        window.activate()
        self.close()
        self.assertEqual(self.program.settings()["Misc.MinimizeToTrayIcon"], "false")

    def test_minimized_on_start(self):
        self.start_minimized()
        number = until(lambda: self.program.x_window("Orvanto"), "the main window")
        until(lambda: is_iconic(self.desktop, number), "the window to be minimised")
        self.desktop.run("wmctrl", "-i", "-a", number)
        MainWindow(self.program)
        self.expect_opacity(1)
        self.close()
        self.assertEqual(self.program.settings()["Misc.MinimizeToTrayIcon"], "false")


class TrayThatComesAndGoes(TrayCase):
    """Wherever the tray is, the program always has a window or an icon to get at it."""

    def test_after_the_start(self):
        window = self.start(Misc__MinimizeToTrayIcon="true")
        dialog = SettingsDialog(window)
        self.assertFalse(dialog.box("Minimize to tray icon").has("checked"), "not switched off without a tray")
        dialog.toggle("Minimize to tray icon")
        dialog.press("Save")
        dialog.wait_closed()
        self.minimize_to_the_task_bar()
        window.activate()

        self.desktop.start_tray()
        tray = Tray(self.program)
        tray.minimize()
        tray.click()
        self.expect_back(window)
        until(lambda: tray.icon() is None, "the icon to go")
        self.close()
        self.assertEqual(self.program.settings()["Misc.MinimizeToTrayIcon"], "true")

    def test_gone_before_the_window_goes_there(self):
        self.desktop.start_tray()
        window = self.start(Misc__MinimizeToTrayIcon="true")
        self.desktop.stop_tray()
        self.minimize_to_the_task_bar()
        window.activate()
        self.close()
        self.assertNotIn("ShowTrayiconHint", self.program.settings(), "a hint at an icon that is not there")

    def test_gone_while_the_window_is_there(self):
        self.desktop.start_tray()
        window = self.start(Misc__MinimizeToTrayIcon="true", ShowTrayiconHint="false")
        tray = Tray(self.program)
        tray.minimize()
        self.desktop.stop_tray()
        self.expect_back(window)

        self.desktop.start_tray()
        until_still(tray.icon, "the tray")
        self.assertIsNone(tray.icon(), "the icon came back without the window")
        tray.minimize()
        tray.choose(RESTORE)
        self.expect_back(window)
        self.close()


if __name__ == "__main__":
    unittest.main()
