# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""What the program does to Windows, read from outside: files on the drive, the registry, its windows."""

import datetime
import pathlib
import shutil
import stat
import unittest

import harness
from harness import DRIVE_C, FOLDER, RUN_KEY, Window, WindowsCase, until, wine, windows_path

ERROR_BOX = "We are sorry, but an error has occurred!"
# Places in the settings dialog and in the main window.
START_WITH_SYSTEM = (193, 32)
OPEN_LOG_FOLDER = (1204, 460)


class Program(WindowsCase):
    def names(self):
        return {file.name: file.read_text() for file in FOLDER.iterdir()}

    def run_rule(self, kind, *fill):
        """Renames what is in FOLDER; the lines that this run wrote into the log."""
        shutil.rmtree(self.data / "logs", ignore_errors=True)
        program, window = self.start_settled(Log__Save="true")
        harness.add_folder(window)
        harness.add_rule(window, kind, *fill)
        harness.rename(window)
        self.close(program, window)
        (log,) = (self.data / "logs").iterdir()
        return log.read_text(encoding="latin-1").splitlines()

    # --- where data lives

    def test_first_start_makes_the_roaming_data_folder(self):
        program = self.start(self.copy_program())
        dialog = Window("Orvanto")
        dialog.until_still()
        self.screenshot("first start")
        self.assertTrue(self.data.is_dir(), self.data)
        for _ in range(2):
            before = dialog.until_still()
            dialog.keys("Return")
            until(lambda: not dialog.is_there() or dialog.picture() != before, "the next page")
        dialog.until_closed()
        window = program.main_window()
        self.screenshot("main window")
        self.close(program, window)
        self.assertIn("<IsFirstStart>false</IsFirstStart>", (self.data / "config" / "global.xml").read_text())
        self.assertEqual(sorted(file.name for file in (DRIVE_C / "Orvanto").iterdir()), ["locale", "orvanto.exe"])

    def portable(self, make_marker):
        executable = self.copy_program()
        make_marker(executable.parent)
        harness.write_settings(executable.parent)
        program = self.start(executable)
        self.close(program, program.main_window())
        self.assertIn("<Opacity>", (executable.parent / "config" / "global.xml").read_text())
        self.assertFalse((executable.parent / "writable").exists())
        self.assertFalse(self.data.exists(), "nothing in the user's profile")

    def test_portable_by_a_text_file(self):
        self.portable(lambda folder: (folder / "portable.txt").touch())

    def test_portable_by_a_file(self):
        self.portable(lambda folder: (folder / "portable").touch())

    def test_portable_by_a_folder(self):
        self.portable(lambda folder: (folder / "portable").mkdir())

    def refused(self, put_in_the_way):
        executable = self.copy_program()
        (executable.parent / "portable").mkdir()
        put_in_the_way(executable.parent / "writable")
        program = self.start(executable)
        box = Window(ERROR_BOX)
        box.until_still()
        self.screenshot("error box")
        box.keys("Return")
        self.assertEqual(program.exit_code(), 1)
        self.assertFalse(self.data.exists(), "nothing in the user's profile")
        self.assertFalse((executable.parent / "config").exists())
        self.assertTrue((executable.parent / "writable").exists())

    def test_read_only_file_in_the_way_of_the_write_test(self):
        def put(path):
            path.touch()
            self.assertEqual(wine("attrib", "+r", windows_path(path))[0], 0)
            self.assertFalse(path.stat().st_mode & stat.S_IWUSR)
        self.refused(put)

    def test_folder_in_the_way_of_the_write_test(self):
        self.refused(pathlib.Path.mkdir)

    # --- registry

    def toggle_start_with_system(self, window, expected):
        window.click(harness.SETTINGS_BUTTON)
        dialog = Window("Global Settings")
        dialog.until_still()
        self.screenshot("settings")
        dialog.click(START_WITH_SYSTEM)
        until(lambda: harness.run_value() == expected, f"the value {expected}; it is {harness.run_value()}")

        def closed():
            # First the box that tells of the success.
            return not dialog.is_there() or dialog.keys("Escape")
        until(closed, "the settings to close")

    def test_start_with_the_system_is_written_and_removed(self):
        program, window = self.start_settled()
        self.toggle_start_with_system(window, ("REG_SZ", "C:\\Orvanto\\orvanto.exe -auto"))
        self.toggle_start_with_system(window, None)
        self.close(program, window)

    def test_start_with_the_system_is_recognized_in_any_case(self):
        wine("reg", "add", RUN_KEY, "/v", "Pendulix Basic", "/d", "c:\\ORVANTO\\Orvanto.EXE -AUTO", "/f")
        program, window = self.start_settled()
        # The box is checked, so a click removes the value.
        self.toggle_start_with_system(window, None)
        self.close(program, window)

    def test_another_programs_command_is_not_recognized(self):
        wine("reg", "add", RUN_KEY, "/v", "Pendulix Basic", "/d", "C:\\other\\orvanto.exe -auto", "/f")
        program, window = self.start_settled()
        # The box is not checked, so a click writes this program's command.
        self.toggle_start_with_system(window, ("REG_SZ", "C:\\Orvanto\\orvanto.exe -auto"))
        self.close(program, window)

    # --- task bar

    def test_task_bar_is_told_of_no_progress_once(self):
        program, window = self.start_settled(traced="explorerframe")
        self.close(program, window)
        calls = [call for call in program.calls() if call.startswith("taskbar_list_")]
        names = [call.split()[0].removeprefix("taskbar_list_") for call in calls]
        # Deliberate: no HrInit.
        self.assertEqual(names, ["QueryInterface", "AddRef", "Release", "SetProgressState", "Release"], calls)
        self.assertIn("{ea1afb91-9e28-4b86-90e9-9e9f8a5eefaf}", calls[0], "ITaskbarList3")
        self.assertIn("flags 0 ", calls[3], "TBPF_NOPROGRESS")
        self.assertIn("refcount to 0", calls[4])

    # --- log

    def test_log_names_the_system(self):
        program, window = self.start_settled(Log__Save="true", Log__IncludeDebugInfo="true")
        self.close(program, window)
        (log,) = (self.data / "logs").iterdir()
        self.assertEqual(log.name, f"{datetime.date.today():%Y-%m-%d}.txt")
        messages = [line.partition("|")[2] for line in log.read_text(encoding="latin-1").splitlines()]
        for message in (f"App version {harness.VERSION}", "OS version 10.0 - Workstation", "running in 64-bit mode"):
            self.assertTrue([line for line in messages if message in line.replace('"', "")], messages)

    def test_log_folder_is_opened_by_the_shell(self):
        program, window = self.start_settled()
        window.click(OPEN_LOG_FOLDER)
        explorer = Window("logs")
        explorer.close()
        explorer.until_closed()
        self.close(program, window)

    # --- renaming

    def test_names_outside_the_code_page(self):
        for name in ("Ж日本.txt", "😀.txt", "é.txt", "\u0435\u0301.txt"):
            (FOLDER / name).write_text(name)
        self.run_rule("Insert Text", harness.INSERTED_TEXT, "x")
        self.assertEqual(self.names(), {f"x{name}": name for name in ("Ж日本.txt", "😀.txt", "é.txt", "е́.txt")})

    def test_paths_beyond_260_characters(self):
        deep = FOLDER.joinpath(*["a folder with a name of forty characters"] * 7)
        deep.mkdir(parents=True)
        (deep / "a.txt").write_text("a")
        (deep / ("b" * 200 + ".txt")).write_text("b")
        self.run_rule("Insert Text", harness.INSERTED_TEXT, "x")
        self.assertGreater(len(windows_path(deep)), 260)
        self.assertEqual({file.name: file.read_text() for file in deep.iterdir()},
                         {"xa.txt": "a", "x" + "b" * 200 + ".txt": "b"})

    def test_existing_targets_are_never_replaced(self):
        for name in ("img.txt", "xIMG.txt", "b.txt"):
            (FOLDER / name).write_text(name)
        log = self.run_rule("Replace", harness.REPLACED_TEXT, "b", harness.REPLACING_TEXT, "XIMG")
        # "b.txt" would become "XIMG.txt", which is "xIMG.txt" to Windows; the others would keep their names.
        self.assertEqual(self.names(), {name: name for name in ("img.txt", "xIMG.txt", "b.txt")})
        self.assertIn("Total 3 Processed 0 Failed 3", " ".join(log))

    def test_reserved_characters_are_refused(self):
        for sign in "|<>?*":
            (FOLDER / "a.txt").write_text("a")
            with self.subTest(sign=sign):
                log = self.run_rule("Insert Text", harness.INSERTED_TEXT, f"x{sign}")
                self.assertEqual(self.names(), {"a.txt": "a"})
                self.assertIn("Failed 1", " ".join(log))

    def test_colon_makes_no_stream(self):
        (FOLDER / "a.txt").write_text("a")
        log = self.run_rule("Insert Text", harness.INSERTED_TEXT, "x:")
        self.assertEqual(self.names(), {"a.txt": "a"})
        self.assertIn("Failed 1", " ".join(log))

    def test_device_names(self):
        for device in ("CON", "nul.txt"):
            (FOLDER / "a.txt").write_text("a")
            with self.subTest(device=device):
                log = self.run_rule("Replace", harness.REPLACED_TEXT, "a.txt", harness.REPLACING_TEXT, device)
                self.assertEqual(self.names(), {"a.txt": "a"})
                self.assertIn("Failed 1", " ".join(log))

    def test_trailing_dot_is_dropped_by_windows(self):
        (FOLDER / "a.txt").write_text("a")
        self.run_rule("Replace", harness.REPLACED_TEXT, "txt", harness.REPLACING_TEXT, "")
        self.assertEqual(self.names(), {"a": "a"})


if __name__ == "__main__":
    unittest.main()
