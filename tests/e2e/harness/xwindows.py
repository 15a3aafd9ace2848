# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The windows of the X server, and what the window manager has noted on them."""

import collections
import re

from .waiting import until, until_still

FULL_OPACITY = 0xffffffff
_LINE = re.compile(r'(?P<indent> +)(?P<number>0x[0-9a-f]+) (?P<title>.*): \((?P<kind>.*)\)  '
                   r'(?P<width>\d+)x(?P<height>\d+)\S+  \+(?P<x>-?\d+)\+(?P<y>-?\d+)$')

XWindow = collections.namedtuple("XWindow", "number title kind depth x y width height")


def x_windows(desktop):
    """All windows from the root's children downwards, in the order of the tree, at their place on the screen."""
    found = map(_LINE.match, desktop.run("xwininfo", "-root", "-tree").splitlines())
    return [XWindow(match["number"], match["title"], match["kind"], len(match["indent"]),
                    *(int(match[name]) for name in ("x", "y", "width", "height"))) for match in found if match]


def is_viewable(desktop, number):
    return "Map State: IsViewable" in desktop.run("xwininfo", "-id", number)


def own_windows(desktop):
    """The program's windows that stand on the screen without the window manager: menus, tips and balloons."""
    def is_shown(window):
        text = desktop.run("xwininfo", "-id", window.number)
        return "Override Redirect State: yes" in text and "Map State: IsViewable" in text

    windows = x_windows(desktop)
    top = min((window.depth for window in windows), default=0)
    return [w for w in windows if w.depth == top and w.kind.startswith('"orvanto"') and is_shown(w)]


def wait_for_menu(desktop):
    """The only menu on the screen, once it has come to rest."""
    def menus():
        return [window for window in own_windows(desktop) if window.width < 400]

    until(menus, "a menu")
    until_still(menus, "the menu to rest")
    menu, = menus()
    return menu


def place(desktop, number):
    """Where a window stands on the screen, without its frame, and its size."""
    text = desktop.run("xwininfo", "-id", number)
    return tuple(int(re.search(rf"{name}: +(-?\d+)", text)[1]) for name in (
        "Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))


def opacity(desktop, number):
    """A window's opacity, 0 to 1, as a compositor reads it."""
    answer = desktop.run("xprop", "-id", number, "_NET_WM_WINDOW_OPACITY")
    return int(answer.rpartition("=")[2]) / FULL_OPACITY if "=" in answer else 1.0


def is_above(desktop, number):
    """Whether the window manager keeps a window above the others."""
    return "_NET_WM_STATE_ABOVE" in desktop.run("xprop", "-id", number, "_NET_WM_STATE")


def is_iconic(desktop, number):
    return "window state: Iconic" in desktop.run("xprop", "-id", number, "WM_STATE")
