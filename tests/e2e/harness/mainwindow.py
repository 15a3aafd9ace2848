# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The main window in the words of its user.

Widgets are told apart by role, text and place, never by their order of creation.
"""

import functools

from .hands import WHEEL_DOWN, WHEEL_UP, Hands, middle_of
from .waiting import Gone, until, until_equal, until_still


REPORT = "alert message"


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

    # --- file list

    def file_texts(self):
        return [item.name for item in self.files.children]

    def file_row(self, row):
        return self.files.child(row)

    def file_button(self, which):
        """One of the buttons beside the file list; "filter" stands above them."""
        names = ["filter", "up", "remove", "down", "clear"]
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

    def explorer_item(self, path):
        """The explorer's row of a file or folder; opens all folders above it."""
        position, items, margin = -1, [], -1
        parts = ["/", *path.parts[1:]]
        for depth, name in enumerate(parts):
            position, items, margin = until(lambda: self._find_in_explorer(position, margin, name),
                                            f"{name!r} in the explorer")
            item = items[position]
            if depth < len(parts) - 1 and not item.has("expanded"):
                self.bring_into_view(item)
                self.hands.click(item, repeat=2)
                until(lambda: item.has("expanded"), f"{name!r} to open")
        self.bring_into_view(item)
        return item

    def _find_in_explorer(self, parent, margin, name):
        """Below the row "parent", whose text begins at "margin": the position and margin of a row."""
        cells = self.explorer.children
        columns = 0
        while columns < len(cells) and cells[columns].role == "column header":
            columns += 1
        rows = cells[columns::columns] if columns else []
        for position in range(parent + 1, len(rows)):
            x = rows[position].extents.x
            if x <= margin:
                return None
            # The first row below a folder tells where the folder's entries begin.
            if position == parent + 1:
                inner = x
            if x == inner and rows[position].name == name:
                return position, rows, x
        return None

    def bring_into_view(self, item):
        tree = self.explorer
        header = tree.child(0).extents
        top = header.y + header.height
        bottom = tree.extents.y + tree.extents.height - 18

        def is_visible():
            extents = until_still(lambda: item.extents, f"{item!r} to rest")
            if top <= extents.y and extents.y + extents.height <= bottom:
                return True
            self.hands.scroll(tree, WHEEL_UP if extents.y < top else WHEEL_DOWN)
            return False

        until(is_visible, f"{item!r} to come into view")

    def drop_on_files(self, item):
        """Drags a row of the explorer, with all that is selected there, onto the file list."""
        if self.files.has("focused"):
            self.hands.click(self.filter_edit)
        extents = item.extents
        start = (extents.x + min(extents.width, 30) // 2, extents.y + extents.height // 2)
        target = middle_of(self.files)
        # The list takes the focus when a drag that it accepts comes in.
        self.hands.drag(start, target, lambda: self.files.has("focused"))

    def add_by_drag(self, path):
        self.drop_on_files(self.explorer_item(path))

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
        cells = [cell.name for cell in self.rules.children if cell.role == "tree item"]
        return list(zip(cells[0::2], cells[1::2]))

    def rule_button(self, which):
        buttons = self.rules_panel.all("push button")
        return buttons[["up", "remove", "down", "clear"].index(which)]

    # --- log dock

    @functools.cached_property
    def log_dock(self):
        return self.frame.one("frame", "Application Log")

    def log_messages(self):
        """The messages of the log table, the oldest first."""
        cells = [cell.name for cell in self.log_dock.one("table").children if cell.role == "cell"]
        return cells[1::2][::-1]

    # --- run

    def rename(self):
        """Starts the run, waits for its end and returns the report's text; the report stays open."""
        self.hands.click(self.rename_button)
        return self.report_text()

    def report_text(self):
        box = self.program.window(REPORT, "Report")
        return until(lambda: [label.name for label in box.all("label") if label.name], "the report's text")[0]

    def close_report(self, key="Return"):
        until(lambda: self.program.window(REPORT, "Report").has("active"), "the report to be active")
        self.hands.keys(key)
        until(lambda: not [w for w in self.program.windows if w.role == REPORT], "the report to close")
        until(lambda: self.frame.has("active"), "the main window to be active")
