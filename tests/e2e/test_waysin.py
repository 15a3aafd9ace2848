#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The ways into the list beside a drop on it: dialogs, another program's clipboard, drops on the rest of the window."""

import subprocess
import unittest

from harness.case import Case
from harness.hands import middle_of
from harness.waiting import until, until_equal
from harness.xwindows import own_windows, wait_for_menu

MENU = ["Add files…", "Add folder…"]
NO_FILES = "There are no files on the clipboard"


class WaysIn(Case):
    def add_button(self, window):
        return window.file_button("add")

    def copy(self, text, kind="UTF8_STRING"):
        """Another program puts a text on the clipboard, of which it stays the owner."""
        owner = self.desktop.spawn(["xclip", "-quiet", "-selection", "clipboard", "-target", kind],
                                   stdin=subprocess.PIPE, text=True)
        owner.stdin.write(text)
        owner.stdin.close()
        until(lambda: kind in self.desktop.run("xclip", "-selection", "clipboard", "-out", "-target", "TARGETS"),
              f"{kind} on the clipboard")

    def answer_dialog(self, window, title, path):
        dialog = self.program.window("dialog", title)
        until(lambda: dialog.has("active"), f"{title} to be active")
        self.screenshot(title.replace(" ", "-").lower())
        window.hands.type(str(path))
        window.hands.keys("Return")
        until(lambda: window.frame.has("active"), "the main window to be active")

    def test_dialogs_by_mouse_and_keyboard(self):
        folder = self.make_files(["one.txt", "in/2.txt", "in/10.txt", "in/deep/0.txt"])
        window = self.start()
        button = self.add_button(window)
        self.assertEqual(button.name, "Add files and folders")
        window.hands.click(button)
        menu = wait_for_menu(self.desktop)
        self.screenshot("menu")
        window.hands.click_at(menu.x + menu.width // 2, menu.y + menu.height // 4)
        self.answer_dialog(window, "Add files", folder / "one.txt")
        window.expect_files(["one.txt"])
        # The whole of it by the keyboard.
        window.hands.keys("ctrl+shift+o")
        self.answer_dialog(window, "Add folder", folder / "in")
        window.expect_files(["one.txt", "2.txt", "10.txt", "0.txt"])
        window.hands.keys("ctrl+o")
        dialog = self.program.window("dialog", "Add files")
        until(lambda: dialog.has("active"), "the dialog to be active")
        window.hands.keys("Escape")
        until(lambda: window.frame.has("active"), "the main window to be active")
        self.assertEqual(len(window.file_texts()), 4)
        self.assertEqual(own_windows(self.desktop), [])
        self.close()

    def test_another_programs_clipboard(self):
        folder = self.make_files(["a.txt", "b ä.txt", "in/c.txt", "d.txt"])
        window = self.start()
        window.hands.click(window.files)
        self.copy("".join(f"{(folder / name).as_uri()}\r\n" for name in ("a.txt", "in")), "text/uri-list")
        window.hands.keys("ctrl+v")
        window.expect_files(["a.txt", "c.txt"])
        self.copy(f"{folder / 'b ä.txt'}\n\n\"{folder / 'd.txt'}\"\n")
        window.hands.keys("ctrl+v")
        window.expect_files(["a.txt", "c.txt", "b ä.txt", "d.txt"])

        self.copy("a few words")
        window.hands.keys("ctrl+v")
        until(lambda: NO_FILES in [label.name for label in window.frame.one("status bar").all()] or
              NO_FILES in window.frame.one("status bar").name, "a word about it")
        self.screenshot("no-files")
        # A text field takes them for a text.
        window.edit(window.filter_edit, "*.")
        window.hands.keys("ctrl+v")
        until_equal("*.a few words", lambda: window.filter_edit.text, "the text in the field")
        self.assertEqual(len(window.file_texts()), 4)
        self.close()

    def test_drops_all_over_the_window(self):
        names = ["a.txt", "b.txt", "c.txt", "d.txt"]
        folder = self.make_files(names)
        window = self.start()
        listed = []
        for name, target in zip(names, (window.rules, window.filter_edit, window.preview, window.rename_button)):
            with self.subTest(name=name):
                start = window.explorer_place(folder / name)
                window.hands.drag(start, middle_of(target), lambda: True)
                listed.append(name)
                window.expect_files(listed)
        self.assertEqual(window.filter_edit.text, "")
        self.assertFalse(window.preview.has("checked"))
        # Back on the explorer nothing comes of it.
        self.make_files(["e.txt"])
        start = until(lambda: window.explorer_place(folder / "e.txt"), "the new file")
        window.hands.drag(start, window.explorer_place(folder / "a.txt"), lambda: True)
        window.add_by_drag(folder / "e.txt")
        window.expect_files([*names, "e.txt"])
        self.assertEqual(self.content_by_name(folder), {name: name for name in [*names, "e.txt"]})
        self.close()


if __name__ == "__main__":
    unittest.main()
