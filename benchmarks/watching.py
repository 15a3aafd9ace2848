# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""A person before a program's window: clicks and keys at an exact time, and how long the program works on it.

Nothing here asks the program: accessibility costs some programs more than their work. A program is watched from
outside. It rests once everything on its desktop (it, its helpers, the X server that paints) has used next to no
processor's time for a second and its window answers; the work ended when that second began. Whether it answers is asked
by _NET_WM_PING, as window managers do it, some fifty times a second.
"""

import collections
import os
import pathlib
import select
import time

from Xlib import X, XK, display
from Xlib.error import XError
from Xlib.ext import xtest
from Xlib.protocol import event

# So much of a processor counts as none: pings and a blinking cursor.
CALM_SECONDS, CALM_TICKS = 1.0, 6
PAUSE = 0.02
# From then on it is looked whether the window is still there.
SLOW_ANSWER = 0.2
HELD = 0.03

Phase = collections.namedtuple("Phase", "seconds longest_wait finished")


def descendants(root):
    """The processes below one, with the ticks that each has used."""
    parents, ticks = {}, {}
    for entry in os.listdir("/proc"):
        if not entry.isdigit():
            continue
        try:
            fields = pathlib.Path("/proc", entry, "stat").read_text(errors="replace").rpartition(")")[2].split()
        except OSError:
            continue
        parents[int(entry)], ticks[int(entry)] = int(fields[1]), int(fields[11]) + int(fields[12])
    found, level = {}, {root}
    while level:
        level = {pid for pid, parent in parents.items() if parent in level}
        found.update((pid, ticks[pid]) for pid in level)
    return found


class Effort:
    """The processor's time of everything that this process has started."""

    def __init__(self):
        self._last, self._total = {}, 0

    def ticks(self):
        now = descendants(os.getpid())
        self._total += sum(max(0, ticks - self._last.get(pid, 0)) for pid, ticks in now.items())
        self._last = now
        return self._total


class Person:
    """Hands on mouse and keyboard, and an eye on the windows of one process."""

    def __init__(self, desktop, pid):
        self.desktop, self.pid = desktop, pid
        self._display = display.Display(desktop.env["DISPLAY"])
        self._display.set_error_handler(lambda *_: None)
        self._root = self._display.screen().root
        # Toolkits send their answers to those who watch the one or the other.
        self._root.change_attributes(event_mask=X.SubstructureNotifyMask | X.StructureNotifyMask)
        self._atoms = {name: self._display.intern_atom(name) for name in (
            "WM_PROTOCOLS", "_NET_WM_PING", "_NET_WM_PID", "_NET_CLIENT_LIST", "_NET_WM_NAME")}
        self._effort = Effort()
        self._number = 0
        self._asked = None

    def close(self):
        self._display.close()

    # --- windows

    def windows(self):
        """The process's windows that the window manager has, by their titles, the oldest first."""
        found = {}
        listed = self._root.get_full_property(self._atoms["_NET_CLIENT_LIST"], X.AnyPropertyType)
        for number in listed.value if listed else ():
            window = self._display.create_resource_object("window", number)
            try:
                pid = window.get_full_property(self._atoms["_NET_WM_PID"], X.AnyPropertyType)
                title = window.get_full_property(self._atoms["_NET_WM_NAME"], X.AnyPropertyType)
                if pid and pid.value[0] == self.pid:
                    found[title.value.decode(errors="replace") if title else ""] = window
            except XError:
                continue
        return found

    def window(self, words):
        """The window whose title holds these words, or None."""
        return next((window for title, window in self.windows().items() if words in title), None)

    # --- hands

    def point(self, window, x, y):
        """Moves the mouse to a place of a window."""
        place = window.translate_coords(self._root, 0, 0)
        xtest.fake_input(self._display, X.MotionNotify, x=x - place.x, y=y - place.y)
        self._display.sync()

    def press(self):
        """Clicks where the mouse is."""
        xtest.fake_input(self._display, X.ButtonPress, 1)
        xtest.fake_input(self._display, X.ButtonRelease, 1)
        self._display.sync()

    def keys(self, *combinations):
        for combination in combinations:
            codes = [self._display.keysym_to_keycode(XK.string_to_keysym(name)) for name in combination.split("+")]
            for code in codes:
                xtest.fake_input(self._display, X.KeyPress, code)
            # Some programs ask late which modifier keys are down.
            self._display.sync()
            time.sleep(HELD)
            for code in reversed(codes):
                xtest.fake_input(self._display, X.KeyRelease, code)
        self._display.sync()

    # --- eyes

    def _ask(self):
        """Sends a ping to the oldest window that knows them."""
        for window in self.windows().values():
            try:
                protocols = window.get_wm_protocols()
            except XError:
                continue
            if self._atoms["_NET_WM_PING"] in protocols:
                self._number += 1
                data = (32, [self._atoms["_NET_WM_PING"], self._number, window.id, 0, 0])
                window.send_event(event.ClientMessage(window=window, client_type=self._atoms["WM_PROTOCOLS"],
                                                      data=data))
                self._display.flush()
                self._asked = (time.time(), window)
                return

    def _listen(self, seconds):
        """Waits for the answer; whether it came."""
        end = time.time() + seconds
        while True:
            while self._display.pending_events():
                told = self._display.next_event()
                # The uppermost bit tells that a program has sent it.
                if (told.type & 0x7f == X.ClientMessage and told.client_type == self._atoms["WM_PROTOCOLS"]
                        and told.data[1][0] == self._atoms["_NET_WM_PING"] and told.data[1][1] == self._number):
                    return True
            left = end - time.time()
            if left <= 0:
                return False
            select.select([self._display.fileno()], [], [], left)

    def _waited(self):
        """How long the open question has been waiting; one to a window that has gone is none any more."""
        if self._asked is None:
            return 0
        begin, window = self._asked
        if time.time() - begin > SLOW_ANSWER and window.id not in [other.id for other in self.windows().values()]:
            self._asked = None
            return 0
        return time.time() - begin

    def _look(self):
        """Asks, unless a question is open, and gives the program a moment: how long it has been silent."""
        if self._asked is None:
            self._ask()
        begin = time.time()
        answered = self._listen(PAUSE)
        waited = self._waited()
        if answered:
            self._asked = None
            time.sleep(max(0, PAUSE - (time.time() - begin)))
        return waited

    def until_rest(self, begin, limit, done=lambda: True):
        """Watches the program from that time on until it rests and the work is done."""
        longest, samples = 0, collections.deque()
        while time.time() - begin < limit:
            samples.append((time.time(), self._effort.ticks()))
            waited = self._look()
            longest = max(longest, waited)
            now, ticks = time.time(), self._effort.ticks()
            while now - samples[0][0] >= CALM_SECONDS:
                calm = ticks - samples[0][1] <= CALM_TICKS and waited < SLOW_ANSWER
                if calm and self.windows() and done():
                    return Phase(samples[0][0] - begin, longest, True)
                if len(samples) < 2 or now - samples[1][0] < CALM_SECONDS:
                    break
                samples.popleft()
        return Phase(limit, longest, False)
