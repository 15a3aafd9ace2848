# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Installer and portable zip, from installing to renaming three files to removing."""

import os
import pathlib
import shutil
import unittest
import zipfile

import harness
from harness import DRIVE_C, FOLDER, RUN_KEY, WindowsCase, until, wine, windows_path

PACKAGES = pathlib.Path(os.environ["ORVANTO_PACKAGES"])
UNINSTALL_KEY = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Orvanto"


def package(pattern):
    found = list(PACKAGES.glob(pattern))
    if len(found) != 1:
        raise AssertionError(f"{PACKAGES} holds {len(found)} files {pattern}")
    return found[0]


def files_below(folder):
    return {str(path.relative_to(folder)) for path in folder.rglob("*") if path.is_file()}


def program_files():
    """What both packages hold."""
    built = pathlib.Path(os.environ["ORVANTO_PROGRAM"]).parent
    texts = ("README", "LGPL-3", "GPL-3", "Qt", "mingw-w64", "GCC")
    locale = {f"locale/{name}" for name in files_below(built / "locale")}
    handbook = {f"handbook/{name}" for name in files_below(built / "handbook")} | {"handbook.html"}
    programs = {"orvanto.exe", "orvanto-cli.exe", "LICENSE.txt"}
    return programs | {f"licences/{text}.txt" for text in texts} | locale | handbook


class Packages(WindowsCase):
    def setUp(self):
        super().setUp()
        self.home = self.data.parents[3]
        self.installed = self.home / "AppData" / "Local" / "Programs" / "Orvanto"
        self.addCleanup(shutil.rmtree, self.installed, ignore_errors=True)
        self.shortcut = (self.data.parents[1] / "Microsoft" / "Windows" / "Start Menu" / "Programs" / "Orvanto.lnk")

    def setup(self, *options):
        shutil.copy(package("*-setup.exe"), DRIVE_C / "Orvanto-setup.exe")
        self.addCleanup((DRIVE_C / "Orvanto-setup.exe").unlink, missing_ok=True)
        return wine("C:\\Orvanto-setup.exe", "/S", *options)[0]

    def uninstall(self, folder):
        """The uninstaller goes on in a copy of itself."""
        wine(windows_path(folder / "uninstall.exe"), "/S")
        until(lambda: not (folder / "uninstall.exe").exists(), "the uninstaller to end")
        until(lambda: wine("reg", "query", UNINSTALL_KEY)[0] != 0, "the entry of the uninstaller to go")

    def rename_three_files(self, executable, name):
        for letter in "abc":
            (FOLDER / f"IMG_{letter}.txt").write_text(letter)
        program = self.start(executable)
        window = program.main_window()
        harness.add_folder(window)
        harness.add_rule(window, "Enumerate")
        self.screenshot(name)
        harness.rename(window)
        renamed = {file.name: file.read_text() for file in FOLDER.iterdir()}
        self.assertEqual(renamed, {"0IMG_a.txt": "a", "1IMG_b.txt": "b", "2IMG_c.txt": "c"})
        return program, window

    def test_installed_used_and_removed(self):
        self.assertEqual(self.setup(), 0)
        files = files_below(self.installed)
        self.assertEqual(files, program_files() | {"uninstall.exe"})
        libraries = (self.installed / "licences" / "README.txt").read_text()
        self.assertIn(f"orvanto-{harness.VERSION}-source.tar.gz", libraries)
        self.assertNotIn("@", libraries)
        self.assertTrue(self.shortcut.exists(), self.shortcut)
        entry = wine("reg", "query", UNINSTALL_KEY)[1]
        for part in ("Orvanto", harness.VERSION, "Kavrondel", windows_path(self.installed / "uninstall.exe")):
            self.assertIn(part, entry)

        harness.write_settings(self.data)
        program, window = self.rename_three_files(self.installed / "orvanto.exe", "installed")
        self.assertEqual(self.setup(), 2, "installing over the running program")
        window.close()
        self.assertEqual(program.exit_code(), 0)
        self.assertEqual(files_below(self.installed), files, "the program writes beside itself")
        self.assertIn("config/global.xml", files_below(self.data))
        self.assertEqual(self.setup(), 0, "installing again")

        (self.installed / "locale" / "mine.txt").write_text("mine")
        command = windows_path(self.installed / "orvanto.exe").upper() + " -auto"
        wine("reg", "add", RUN_KEY, "/v", "Pendulix Basic", "/d", command, "/f")
        self.uninstall(self.installed)
        self.assertEqual(files_below(self.installed), {"locale/mine.txt"})
        self.assertFalse(self.shortcut.exists())
        self.assertIsNone(harness.run_value())
        self.assertIn("config/global.xml", files_below(self.data), "the user's settings stay")
        self.assertEqual(len(list(FOLDER.iterdir())), 3)

    def test_installed_elsewhere_and_removed_with_its_folder(self):
        # without a blank: Wine would quote it, which the installer does not take
        folder = DRIVE_C / "Orvanto" / "Mäppchen-Ж"
        self.assertEqual(self.setup("/D=" + windows_path(folder)), 0)
        self.assertTrue((folder / "orvanto.exe").exists())
        other = "C:\\somewhere\\orvanto.exe -auto"
        wine("reg", "add", RUN_KEY, "/v", "Pendulix Basic", "/d", other, "/f")
        self.uninstall(folder)
        until(lambda: not folder.exists(), "the empty folder to go")
        self.assertEqual(harness.run_value(), ("REG_SZ", other), "another copy's value stays")

    def test_portable_zip(self):
        with zipfile.ZipFile(package("*-portable-windows.zip")) as archive:
            archive.extractall(DRIVE_C / "Orvanto")
        (folder,) = (DRIVE_C / "Orvanto").iterdir()
        self.assertEqual(files_below(folder), program_files() | {"portable.txt"})
        harness.write_settings(folder)
        program, window = self.rename_three_files(folder / "orvanto.exe", "portable")
        window.close()
        self.assertEqual(program.exit_code(), 0)
        self.assertIn("<Opacity>1</Opacity>", (folder / "config" / "global.xml").read_text())
        self.assertFalse(self.data.exists(), "a portable program writes nothing into the user's profile")


if __name__ == "__main__":
    unittest.main()
