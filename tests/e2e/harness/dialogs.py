# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The dialogs at the ends of the program's life, answered as a user does."""

from .accessible import ask
from .hands import Hands
from .waiting import Gone, until

START_PLACE = (300, 200)


def first_start(program):
    """The first-start dialog, which has no title but the application's name."""
    def find():
        for window in program.windows:
            if window.role == "dialog" and window.all("push button", "Next"):
                return window
        raise Gone("no first-start dialog")

    number = until(lambda: program.x_window("Orvanto"), "the first-start dialog on the screen")
    dialog = until(find, "the first-start dialog")
    until(lambda: dialog.has("active"), "the first-start dialog to be active")
    # A frameless window may miss where the window manager first placed it, and then tells wrong places of its
    # widgets; it does not miss being moved.
    program.desktop.run("wmctrl", "-i", "-r", number, "-e", "0,{},{},-1,-1".format(*START_PLACE))
    until(lambda: dialog.extents[:2] == START_PLACE, "the first-start dialog to be moved")
    return dialog


def pass_first_start(program):
    """Goes through both pages with the mouse and declines the automatic version check."""
    hands, dialog = Hands(program.desktop), first_start(program)
    following = dialog.one("push button", "Next")
    hands.click(following)
    check = until(lambda: dialog.all("check box"), "the second page")[0]
    # The new page fades in; what covers it meanwhile takes the clicks.
    page = check.parent
    until(lambda: "filler" not in [role for (role,) in ask(page.children, "role")], "the page to be faded in")
    hands.click(check)
    until(lambda: not check.has("checked"), "the version check to be declined")
    hands.click(following)


def answer_support_request(program, again):
    """Closes the support request; with "again" false its box "Don't show this message again." is ticked."""
    hands, notice = Hands(program.desktop), program.window("dialog", "Advice")
    until(lambda: notice.has("active"), "the support request to be active")
    if not again:
        box = notice.one("check box", "Don't show this message again.")
        hands.click(box)
        until(lambda: box.has("checked"), "the box to be ticked")
    hands.click(notice.one("push button", "Close"))
