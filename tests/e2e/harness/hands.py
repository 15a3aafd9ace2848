# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The user's hands: the real mouse and keyboard of the X server."""

from .waiting import until, until_still

DRAG_STEPS = 12
MARK = 20
HOVER_ROUNDS = 5
LEFT, MIDDLE, RIGHT, WHEEL_UP, WHEEL_DOWN = "1", "2", "3", "4", "5"


def middle_of(widget):
    """The middle of a widget that has come to rest and may be clicked; of a check box that of its mark."""
    until(lambda: widget.has("showing"), f"{widget!r} to be visible")
    extents = until_still(lambda: widget.extents, f"{widget!r} to rest")
    # A check box may be much wider than its text, and the space behind the text takes no clicks.
    width = min(extents.width, MARK) if widget.role in ("check box", "radio button") else extents.width
    return extents.x + width // 2, extents.y + extents.height // 2


class Hands:
    def __init__(self, desktop):
        self._desktop = desktop

    def _do(self, *arguments):
        self._desktop.run("xdotool", *[str(argument) for argument in arguments])

    def click(self, widget, button=LEFT, repeat=1, hold=None):
        """Clicks the middle of a widget, with the modifier key "hold" pressed."""
        self.click_at(*middle_of(widget), button, repeat, hold)

    def click_at(self, x, y, button=LEFT, repeat=1, hold=None):
        pressed = ["keydown", hold] if hold else []
        released = ["keyup", hold] if hold else []
        # The delay follows each click, the last one too.
        clicks = ["click", "--delay", 20 if repeat > 1 else 1, "--repeat", repeat, button]
        self._do("mousemove", x, y, *pressed, *clicks, *released)

    def scroll(self, widget, button, clicks):
        extents = widget.extents
        self._do("mousemove", extents.x + extents.width // 2, extents.y + extents.height // 2,
                 "click", "--delay", 1, "--repeat", clicks, button)

    def drag(self, start, target, grasped, accepted):
        """Drags from one point to another; lets go when accepted() is true of what is below the mouse.

        Answers False, and drags nothing, when grasped() tells after the press that it took hold of something else.
        """
        x, y = target
        rounds = 0

        def hover():
            # A hand is never quite still, and does not let go in the very moment of arrival: a drag that is slow
            # to start gets its moves, too, and the program can tell that it would take a drop here.
            nonlocal x, rounds
            x = target[0] + (x == target[0])
            self._do("mousemove", x, y)
            rounds = rounds + 1 if accepted() else 0
            return rounds > HOVER_ROUNDS

        self._do("mousemove", *start, "mousedown", LEFT)
        try:
            if not grasped():
                return False
            for step in range(1, DRAG_STEPS):
                self._do("mousemove", *(a + (b - a) * step // DRAG_STEPS for a, b in zip(start, target)))
            return until(hover, f"the drag to be accepted at {target}")
        finally:
            self._do("mouseup", LEFT)

    def keys(self, *names):
        self._do("key", "--delay", 2, *names)

    def type(self, text):
        self._do("type", "--delay", 2, "--", text)
