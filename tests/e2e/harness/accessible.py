# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The program's widgets as assistive technology sees them, asked over the accessibility bus.

The bus is spoken to directly: a test process sees several desktops one after the other, and nothing may be cached.
"""

import collections

from gi.repository import GLib

from .waiting import DEADLINE, Gone

PREFIX = "org.a11y.atspi."
ROOT = "/org/a11y/atspi/accessible/root"
REGISTRY = "org.a11y.atspi.Registry"
STATES = {"active": 1, "checked": 4, "enabled": 8, "expanded": 10, "focused": 12, "pressed": 20,
          "selected": 23, "showing": 25, "visible": 30}

# What an object that has gone answers, and how often the others are asked anew because of that.
UNKNOWN = "org.freedesktop.DBus.Error.UnknownObject"
WALKS = 5

# Their children are rows, of which there may be many.
VIEWS = ("list", "tree", "table")

Extents = collections.namedtuple("Extents", "x y width height")


def _call(bus, name, path, interface, method, arguments=None, answer=None):
    kind = GLib.VariantType(answer) if answer else None
    return bus.call_sync(name, path, interface, method, arguments, kind, 0, int(DEADLINE * 1000), None)


def _property(interface, name):
    arguments = GLib.Variant("(ss)", (PREFIX + interface, name))
    return "org.freedesktop.DBus.Properties", "Get", arguments, "(v)", lambda widget, value: value


QUESTIONS = {
    "name": _property("Accessible", "Name"),
    "role": (PREFIX + "Accessible", "GetRoleName", None, "(s)", lambda widget, value: value),
    "states": (PREFIX + "Accessible", "GetState", None, "(au)", lambda widget, value: value[0] | value[1] << 32),
    "extents": (PREFIX + "Component", "GetExtents", GLib.Variant("(u)", (0,)), "((iiii))",
                lambda widget, value: Extents(*value)),
    "children": (PREFIX + "Accessible", "GetChildren", None, "(a(so))",
                 lambda widget, value: [widget.beside(*found) for found in value]),
}


def ask(widgets, *questions):
    """Asks all widgets at once, which takes little longer than asking one: for each a tuple of answers."""
    answers = [[None] * len(questions) for _ in widgets]
    state = {"open": len(widgets) * len(questions), "fault": None}

    def store(bus, result, place):
        row, column, read = place
        state["open"] -= 1
        try:
            answers[row][column] = read(widgets[row], bus.call_finish(result)[0])
        except GLib.Error as error:
            state["fault"] = error

    for row, widget in enumerate(widgets):
        for column, question in enumerate(questions):
            widget.send(*QUESTIONS[question][:4], store, (row, column, QUESTIONS[question][4]))
    while state["open"]:
        GLib.MainContext.default().iteration(True)
    if state["fault"]:
        raise state["fault"]
    return [tuple(answer) for answer in answers]


class Accessible:
    """One object on the accessibility bus. A lookup that finds nothing raises Gone."""

    def __init__(self, bus, name, path):
        self._bus, self._name, self._path = bus, name, path

    def __repr__(self):
        try:
            return f"<{self.role} {self.name!r} {tuple(self.extents)}>"
        except GLib.Error:
            return "<gone>"

    def __eq__(self, other):
        return isinstance(other, Accessible) and (self._name, self._path) == (other._name, other._path)

    def __hash__(self):
        return hash((self._name, self._path))

    def call(self, interface, method, arguments=None, answer=None):
        return _call(self._bus, self._name, self._path, PREFIX + interface, method, arguments, answer)

    def get(self, interface, name):
        arguments = GLib.Variant("(ss)", (PREFIX + interface, name))
        return _call(self._bus, self._name, self._path, "org.freedesktop.DBus.Properties", "Get", arguments,
                     "(v)")[0]

    def beside(self, name, path):
        """The object at another place on the same bus."""
        return Accessible(self._bus, name, path)

    def send(self, interface, method, arguments, answer, done, data):
        """Calls a method without waiting; done(bus, result, data) runs when the answer is there."""
        self._bus.call(self._name, self._path, interface, method, arguments, GLib.VariantType(answer), 0,
                       int(DEADLINE * 1000), None, done, data)

    @property
    def name(self):
        return ask([self], "name")[0][0]

    @property
    def role(self):
        return ask([self], "role")[0][0]

    @property
    def extents(self):
        """Position and size on the screen."""
        return ask([self], "extents")[0][0]

    def has(self, state):
        return bool(ask([self], "states")[0][0] >> STATES[state] & 1)

    @property
    def count(self):
        return self.get("Accessible", "ChildCount")

    def child(self, index):
        return self.beside(*self.call("Accessible", "GetChildAtIndex", GLib.Variant("(i)", (index,)), "((so))")[0])

    @property
    def children(self):
        return ask([self], "children")[0][0]

    @property
    def parent(self):
        return self.beside(*self.get("Accessible", "Parent"))

    def names(self, role=None):
        """The names of all children, or of those with a role."""
        return [name for name, kind in ask(self.children, "name", "role") if role in (None, kind)]

    @property
    def text(self):
        """The content of a line edit or another text widget."""
        return self.call("Text", "GetText", GLib.Variant("(ii)", (0, -1)), "(s)")[0]

    @property
    def value(self):
        return self.get("Value", "CurrentValue")

    def all(self, role=None, name=None):
        """Every visible object below this one that matches, from top to bottom, then from left to right."""
        for _ in range(WALKS - 1):
            try:
                return self._walk(role, name)
            except GLib.Error as error:
                # What goes while it is asked, such as what fades a page in, is no part of the answer.
                if UNKNOWN not in error.message:
                    raise
        return self._walk(role, name)

    def _walk(self, role, name):
        found, level = [], [self]
        while level:
            below = [child for (children,) in ask(level, "children") for child in children]
            level = []
            for child, answers in zip(below, ask(below, "role", "name", "states", "extents")):
                kind, text, states, extents = answers
                if not states >> STATES["showing"] & 1:
                    continue
                if role in (None, kind) and name in (None, text):
                    found.append((extents.y, extents.x, len(found), child))
                if kind not in VIEWS:
                    level.append(child)
        return [entry[-1] for entry in sorted(found)]

    def one(self, role=None, name=None):
        """The only visible object below this one that matches."""
        found = self.all(role, name)
        if len(found) != 1:
            raise Gone(f"{len(found)} of role {role!r}, name {name!r} below {self!r}")
        return found[0]

    def dump(self, depth=0):
        lines = ["  " * depth + repr(self)]
        if self.role not in VIEWS:
            for child in self.children:
                lines.append(child.dump(depth + 1))
        return "\n".join(lines)


def application(bus, pid):
    """The accessible root of the process with this id."""
    registry = Accessible(bus, REGISTRY, ROOT)
    for candidate in registry.children:
        arguments = GLib.Variant("(s)", (candidate._name,))
        try:
            owner = _call(bus, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                          "GetConnectionUnixProcessID", arguments, "(u)")[0]
        except GLib.Error:
            continue
        if owner == pid:
            return candidate
    raise Gone(f"process {pid} is not on the accessibility bus")
