# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The main window in the words of its user.

Widgets are told apart by role, text and place, never by their order of creation.
"""

import functools

from .accessible import ask
from .hands import WHEEL_DOWN, WHEEL_UP, Hands, middle_of
from .waiting import Gone, until, until_equal, until_still


REPORT = "alert message"
WHEEL_ROWS = 3
# More are only needed where rows come and go: the row is looked up anew then.
SCROLLS = 20
SCROLL_BAR = 18
PATIENCE = 3


class MainWindow:
    def __init__(self, program):
        self.program = program
        self.hands = Hands(program.desktop)
        self.frame = program.window("frame", "Orvanto")
        until(lambda: self.frame.has("active"), "the main window to be active")
        until_still(lambda: self.frame.extents, "the main window to rest")
        self.files_panel = self.frame.one("panel", "File List")
        self.rules_panel = self.frame.one("panel", "Active Rules")
        self.files = self.files_panel.one("list")
        self.rules = self.rules_panel.one("tree")

    def activate(self):
        """Has the window manager bring the window to the front."""
        number = until(lambda: self.program.x_window("Orvanto"), "the main window")
        self.program.desktop.run("wmctrl", "-i", "-a", number)
        until(lambda: self.frame.has("active"), "the main window to be active")

    # --- file list

    def file_texts(self):
        return self.files.names()

    def file_row(self, row):
        return self.files.child(row)

    def file_button(self, which):
        """One of the buttons around the file list: the first ones stand above it, "undo" and "runs" below."""
        names = ["filter", "add", "sort", "up", "remove", "down", "clear", "undo", "runs"]
        buttons = [b for b in self.files_panel.all("push button") if b.name != "Rename"]
        if len(buttons) != len(names):
            raise Gone(f"the file list has {len(buttons)} tool buttons")
        return buttons[names.index(which)]

    @functools.cached_property
    def filter_edit(self):
        return self.files_panel.one("text")

    @functools.cached_property
    def preview(self):
        return self.files_panel.one("check box", "Preview")

    @functools.cached_property
    def full_path(self):
        return self.files_panel.one("check box", "Show full path")

    def toggle(self, check_box):
        """Clicks a check box or checkable button and waits until it has taken the click."""
        before = check_box.has("checked")
        self.hands.click(check_box)
        until(lambda: check_box.has("checked") != before, f"{check_box!r} to toggle")

    def expect_files(self, texts, what="the texts of the file list"):
        until_equal(list(texts), self.file_texts, what)

    # --- explorer dock

    @functools.cached_property
    def explorer(self):
        return self.frame.one("frame", "File Explorer").one("tree")

    @functools.cached_property
    def _explorer_columns(self):
        return len(self.explorer.names("column header"))

    def explorer_row(self, path):
        """The explorer's row of a file or folder whose folders are all open.

        To be looked up anew after every change: rows come and go while the explorer reads folders.
        """
        rows = self.explorer.children[self._explorer_columns::self._explorer_columns]
        names = [name for (name,) in ask(rows, "name")]
        position, margin = -1, -1
        for name in ("/", *path.parts[1:]):
            # The first row below a folder tells where the folder's entries begin.
            inner = rows[position + 1].extents.x if position + 1 < len(rows) else margin
            below = range(position + 1, len(rows)) if inner > margin else ()
            found = [row for row in below if names[row] == name and rows[row].extents.x == inner]
            if not found:
                raise Gone(f"{name!r} of {path} is not in the explorer")
            position, margin = found[0], inner
        return rows[position]

    def explorer_place(self, path):
        """Opens all folders above a file or folder in the explorer, and brings it into view: where it is."""
        for folder in reversed(path.parents):
            self._open_in_explorer(folder)
        return self._place_in_view(path)

    def _open_in_explorer(self, folder):
        def is_open():
            return self.explorer_row(folder).has("expanded")

        if not until(lambda: (is_open(),), f"{folder} in the explorer")[0]:
            self._click_row(folder)
            self.hands.keys("Right")
            until(is_open, f"{folder} to open")

    def _click_row(self, path, hold=None):
        def is_hit():
            self.hands.click_at(*self._place_in_view(path), hold=hold)
            return self._gets_selected(path)

        until(is_hit, f"{path} to be selected")

    def _gets_selected(self, path):
        """Whether a press selects the row; rows may have moved since its place was found."""
        try:
            return until(lambda: self.explorer_row(path).has("selected"), f"{path} to be selected", PATIENCE)
        except AssertionError:
            return False

    def _place_in_view(self, path):
        def find_place():
            row = self.explorer_row(path)
            for _ in range(SCROLLS):
                extents = until_still(lambda: row.extents, f"{path} to rest")
                if row.name != (path.name or "/"):
                    return None
                if top <= extents.y and extents.y + extents.height <= bottom:
                    return extents.x + min(extents.width, 30) // 2, extents.y + extents.height // 2
                distance = extents.y + extents.height // 2 - middle
                clicks = max(abs(distance) // (WHEEL_ROWS * extents.height), 1)
                self.hands.scroll(self.explorer, WHEEL_DOWN if distance > 0 else WHEEL_UP, clicks)
                if until_still(lambda: row.extents, f"{path} to rest") == extents:
                    return None
            return None

        tree, header = self.explorer.extents, self.explorer.child(0).extents
        top, bottom = header.y + header.height, tree.y + tree.height - SCROLL_BAR
        middle = (top + bottom) // 2
        return until(find_place, f"{path} to come into view")

    def select_in_explorer(self, path, hold=None):
        self.explorer_place(path)
        self._click_row(path, hold)

    def add_by_drag(self, path):
        """Drags a row of the explorer, with all that is selected there, onto the file list."""
        if self.files.has("focused"):
            self.hands.click(self.filter_edit)
            until(lambda: not self.files.has("focused"), "the file list to lose the focus")
        # The list takes the focus when a drag that it accepts comes in.
        until(lambda: self.hands.drag(self.explorer_place(path), middle_of(self.files),
                                      lambda: self.files.has("focused"),
                                      lambda: self._gets_selected(path)), f"{path} to be dragged")

    # --- rules

    @property
    def editor(self):
        """The page of the chosen rule kind."""
        return self._editors.one("filler")

    @functools.cached_property
    def _editors(self):
        return self.add_button.parent.one("layered pane")

    @functools.cached_property
    def add_button(self):
        return self.frame.one("push button", "Add")

    @functools.cached_property
    def rename_button(self):
        return self.files_panel.one("push button", "Rename")

    @functools.cached_property
    def rule_kind(self):
        return self.frame.one("combo box")

    def choose_rule(self, kind):
        """Chooses a rule kind with the mouse."""
        box = self.rule_kind
        if box.name == kind:
            return
        self.hands.click(box)
        popup = until(lambda: [c for c in box.children if c.extents.height > 0], "the list of rule kinds")[0]
        self.hands.click(until(lambda: [i for i in popup.children if i.name == kind], kind)[0])
        self._wait_for_rule(kind)

    def choose_rule_by_keyboard(self, kind):
        box = self.rule_kind
        self.hands.click(box)
        popup = until(lambda: [c for c in box.children if c.extents.height > 0], "the list of rule kinds")[0]
        names = [item.name for item in popup.children]
        self.hands.keys("Home", *["Down"] * names.index(kind), "Return")
        self._wait_for_rule(kind)

    def _wait_for_rule(self, kind):
        until(lambda: self.rule_kind.name == kind, f"the rule kind {kind!r}")
        until_still(lambda: self.editor.extents, f"the editor of {kind!r}")

    def edit(self, widget, text):
        """Replaces the content of a line edit or spin box by typing."""
        self.hands.click(widget)
        until(lambda: widget.has("focused") or widget.role == "spin box", f"{widget!r} to take the focus")
        self.hands.keys("ctrl+a", "Delete")
        self.hands.type(text)
        until_equal(text, lambda: f"{widget.value:g}" if widget.role == "spin box" else widget.text,
                    "the typed text")

    def set_editor(self, texts=(), numbers=(), choice=None, toggled=None):
        """Fills the editor: line edits and spin boxes from top to bottom, a radio button, a toggle."""
        editor = self.editor
        for role, values in (("text", texts), ("spin box", numbers)):
            widgets = editor.all(role) if values else ()
            for widget, value in zip(widgets, values, strict=False):
                self.edit(widget, str(value))
        if choice:
            button = editor.one("radio button", choice)
            self.hands.click(button)
            until(lambda: button.has("checked"), choice)
        if toggled:
            self.toggle(editor.one("check box", toggled))

    def add_rule(self, kind, **values):
        """Chooses, fills in and adds a rule with the mouse and the keyboard."""
        self.choose_rule(kind)
        self.set_editor(**values)
        rows = len(self.rule_rows())
        self.hands.click(self.add_button)
        until_equal(rows + 1, lambda: len(self.rule_rows()), "the new rule in the list")

    def rule_rows(self):
        cells = self.rules.names("tree item")
        return list(zip(cells[0::2], cells[1::2]))

    def rule_button(self, which):
        buttons = self.rules_panel.all("push button")
        return buttons[["up", "remove", "down", "clear"].index(which)]

    # --- log dock

    @functools.cached_property
    def log_dock(self):
        return self.frame.one("frame", "Application Log")

    @functools.cached_property
    def _log_table(self):
        return self.log_dock.one("table")

    def log_messages(self):
        """The messages of the log table, the oldest first."""
        cells = self._log_table.names("cell")
        return cells[1::2][::-1]

    # --- run

    def rename(self):
        """Starts the run, waits for its end and returns the report's text; the report stays open."""
        self.hands.click(self.rename_button)
        return self.report_text()

    def report_text(self):
        box = self.program.window(REPORT, "Report")
        return until(lambda: [label.name for label in box.all("label") if label.name], "the report's text")[0]

    def keys_in(self, dialog, *names):
        """Types in a dialog as soon as the keyboard is its own."""
        until(lambda: dialog.has("active"), f"{dialog.name} to be active")
        self.hands.keys(*names)

    def answer_report(self, key="Return"):
        """Closes the report, whatever window it stands above."""
        self.keys_in(self.program.window(REPORT, "Report"), key)
        until(lambda: not [w for w in self.program.windows if w.role == REPORT], "the report to close")

    def close_report(self, key="Return"):
        self.answer_report(key)
        until(lambda: self.frame.has("active"), "the main window to be active")
