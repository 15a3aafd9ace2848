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

Extents = collections.namedtuple("Extents", "x y width height")


def _call(bus, name, path, interface, method, arguments=None, answer=None):
    kind = GLib.VariantType(answer) if answer else None
    return bus.call_sync(name, path, interface, method, arguments, kind, 0, int(DEADLINE * 1000), None)


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

    @property
    def name(self):
        return self.get("Accessible", "Name")

    @property
    def role(self):
        return self.call("Accessible", "GetRoleName", None, "(s)")[0]

    @property
    def extents(self):
        """Position and size on the screen."""
        return Extents(*self.call("Component", "GetExtents", GLib.Variant("(u)", (0,)), "((iiii))")[0])

    def has(self, state):
        low, high = self.call("Accessible", "GetState", None, "(au)")[0]
        return bool((low | high << 32) >> STATES[state] & 1)

    @property
    def count(self):
        return self.get("Accessible", "ChildCount")

    def child(self, index):
        name, path = self.call("Accessible", "GetChildAtIndex", GLib.Variant("(i)", (index,)), "((so))")[0]
        return Accessible(self._bus, name, path)

    @property
    def children(self):
        found = self.call("Accessible", "GetChildren", None, "(a(so))")[0]
        return [Accessible(self._bus, name, path) for name, path in found]

    @property
    def parent(self):
        return Accessible(self._bus, *self.get("Accessible", "Parent"))

    @property
    def text(self):
        """The content of a line edit or another text widget."""
        return self.call("Text", "GetText", GLib.Variant("(ii)", (0, -1)), "(s)")[0]

    @property
    def value(self):
        return self.get("Value", "CurrentValue")

    def all(self, role=None, name=None, showing=True):
        """Every object below this one that matches, from top to bottom, then from left to right."""
        found = []
        self._collect(role, name, showing, found)
        return sorted(found, key=lambda widget: (widget.extents.y, widget.extents.x))

    def _collect(self, role, name, showing, found):
        if self.role in ("list", "tree", "table"):
            return
        for child in self.children:
            if showing and not child.has("showing"):
                continue
            if role in (None, child.role) and name in (None, child.name):
                found.append(child)
            child._collect(role, name, showing, found)

    def one(self, role=None, name=None):
        """The only visible object below this one that matches."""
        found = self.all(role, name)
        if len(found) != 1:
            raise Gone(f"{len(found)} of role {role!r}, name {name!r} below {self!r}")
        return found[0]

    def dump(self, depth=0):
        lines = ["  " * depth + repr(self)]
        if self.role not in ("list", "tree", "table"):
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
