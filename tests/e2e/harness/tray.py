# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The system tray: the program's icon in it, the icon's menu and balloon, and the window that goes there."""

from .hands import RIGHT, Hands
from .waiting import until, until_still
from .xwindows import is_viewable, wait_for_menu, x_windows

BALLOON = "Application has been minimized.\nClick the tray icon to show."
RESTORE, QUIT = range(2)


class Tray:
    def __init__(self, program):
        self.program = program
        self.desktop = program.desktop
        self.hands = Hands(program.desktop)
        self._clicks = 0

    def icon(self):
        """Where the middle of the program's icon in the tray is; None while there is none to be seen."""
        panel = None
        for window in x_windows(self.desktop):
            if panel and window.depth <= panel.depth:
                panel = None
            if window.title == '"panel"':
                panel = window
            elif panel and window.kind.startswith('"orvanto"'):
                # Before it is mapped a click goes to the panel behind it.
                if is_viewable(self.desktop, window.number):
                    return window.x + window.width // 2, window.y + window.height // 2
        return None

    def wait_for_icon(self):
        until(self.icon, "the icon in the tray")
        return until_still(self.icon, "the icon to rest")

    def balloons(self):
        """The balloons on the screen: windows of the program's own that show the hint."""
        return [window for window in self.program.windows if window.all("label", BALLOON)]

    def minimize(self):
        """Has the window manager minimise the main window, and waits until it is in the tray."""
        number = until(lambda: self.program.x_window("Orvanto"), "the main window")
        self.desktop.run("xdotool", "windowminimize", number)
        until(lambda: not self.program.x_window("Orvanto"), "the main window to go")
        self.wait_for_icon()

    def click(self, *button):
        x, y = self.wait_for_icon()
        # Never the same place twice: two clicks soon after each other would be a double click.
        self._clicks += 1
        self.hands.click_at(x + (7 if self._clicks % 2 else -7), y, *button)

    def open_menu(self):
        self.click(RIGHT)
        return wait_for_menu(self.desktop)

    def menu_size(self):
        """Of the icon's menu, which tells its texts to nobody else."""
        menu = self.open_menu()
        self.hands.keys("Escape")
        until(lambda: not is_viewable(self.desktop, menu.number), "the menu to close")
        return menu.width, menu.height

    def choose(self, entry):
        """Clicks RESTORE, the upper half of the icon's menu, or QUIT, the lower one."""
        menu = self.open_menu()
        self.click_in(menu, entry)

    def click_in(self, menu, entry):
        self.hands.click_at(menu.x + menu.width // 2, menu.y + menu.height * (1 + 2 * entry) // 4)
