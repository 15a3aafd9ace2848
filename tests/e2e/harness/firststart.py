# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The first-start dialog in the words of its user."""

import re

from .hands import Hands
from .waiting import until, until_still


class FirstStart:
    def __init__(self, program):
        self.program = program
        self.hands = Hands(program.desktop)
        self.dialog = program.window("dialog")
        until(lambda: self.dialog.has("active"), "the first-start dialog to be active")
        until_still(lambda: self.dialog.extents, "the first-start dialog to rest")
        self._learn_its_place()

    def _learn_its_place(self):
        """Has the dialog moved by a pixel until it knows where it stands.

        Qt asks where a new window is while the window manager is still putting it there, and keeps a wrong answer.
        """
        def is_known():
            number = self.program.x_window("Orvanto")
            text = self.program.desktop.run("xwininfo", "-id", number)
            x, y = (int(re.search(rf"Absolute upper-left {axis}: +(-?\d+)", text)[1]) for axis in "XY")
            if self.dialog.extents[:2] == (x, y):
                return True
            self.program.desktop.run("wmctrl", "-i", "-r", number, "-e", f"0,{x + 1},{y},-1,-1")
            return False

        until(is_known, "the first-start dialog to know its place")

    @property
    def next_button(self):
        return self.dialog.one("push button")

    def languages(self):
        """The codes of the offered languages, from top to bottom."""
        cells = self.language_list.names("tree item")
        return cells[0::3]

    @property
    def language_list(self):
        return self.dialog.one("tree")

    def headers(self):
        return self.language_list.names("column header")

    def choose_language(self, code):
        tree = self.language_list
        item, = [child for child in tree.children if child.name == code]
        self.hands.click(item)
        until(lambda: item.has("selected"), f"{code} to be selected")

    def is_on_second_page(self):
        # What fades a page in can go away in the middle of the question, which is asked again then.
        return until(lambda: (bool(self.dialog.all("check box")),), "the pages")[0]

    def press_next(self):
        """From page to page; after the second the dialog is gone."""
        if self.is_on_second_page():
            self.hands.click(self.next_button)
            until(lambda: self.dialog not in self.program.windows, "the dialog to close")
        else:
            self.hands.click(self.next_button)
            until(self.is_on_second_page, "the second page")

    @property
    def auto_check(self):
        return until(lambda: self.dialog.one("check box"), "the check box")

    def welcome_text(self):
        """The text of the second page; the banner has none."""
        return until(lambda: self.dialog.one("label").text, "the welcome text")
