# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The settings dialog in the words of its user."""

from .waiting import until, until_still

GENERAL, ADD_ONS, LOCALISATION, DONATE, INFO = range(5)


class SettingsDialog:
    """Opened from the main window by its shortcut."""

    def __init__(self, window, title="Global Settings"):
        self.program = window.program
        self.hands = window.hands
        self.window = window
        self.hands.keys("ctrl+g")
        self.dialog = self.program.window("dialog", title)
        until(lambda: self.dialog.has("active"), "the settings dialog to be active")
        until_still(lambda: self.dialog.extents, "the settings dialog to rest")

    @property
    def pages(self):
        return self.dialog.one("list")

    def page(self):
        """What the shown page holds; empty while pages change."""
        return self.dialog.one("layered pane")

    def show_page(self, index):
        item = self.pages.child(index)
        self.hands.click(item)
        until(lambda: item.has("selected"), f"page {index}")
        until(lambda: not self._is_fading(), "the page to be faded in")

    def _is_fading(self):
        """Whether a page is being faded in: what fades lies over the whole page and takes its clicks."""
        page, *below = self.page().all("filler")
        return any(widget.extents == page.extents for widget in below)

    def box(self, text):
        return self.dialog.one("check box", text)

    def toggle(self, text):
        self.window.toggle(self.box(text))

    def choose_language(self, code):
        self.show_page(LOCALISATION)
        cell, = [cell for cell in self.dialog.one("tree").children if cell.name == code]
        self.hands.click(cell)

    def press(self, text):
        self.hands.click(until(lambda: self.dialog.one("push button", text), text))

    def wait_closed(self):
        until(lambda: self.dialog not in self.program.windows, "the settings dialog to close")
        until(lambda: self.window.frame.has("active"), "the main window to be active")
