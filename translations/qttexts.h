// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

// Qt's own texts that this program shows. Never compiled, never included: lupdate alone reads this list, so
// that the .ts files hold these texts in Qt's contexts and one .qm per language carries everything. Without
// it, menus and buttons that Qt makes would stay English. Texts that cannot be seen in this program are left
// out.

#pragma once

// Buttons of message boxes; the box of a failed version check keeps Qt's "OK".
QT_TRANSLATE_NOOP("QPlatformTheme", "OK")
QT_TRANSLATE_NOOP("QPlatformTheme", "&Yes")
QT_TRANSLATE_NOOP("QPlatformTheme", "Close")
QT_TRANSLATE_NOOP("QPlatformTheme", "Retry")
QT_TRANSLATE_NOOP("QPlatformTheme", "Ignore")
QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel")
QT_TRANSLATE_NOOP("QPlatformTheme", "Open")
QT_TRANSLATE_NOOP("QPlatformTheme", "Save")
QT_TRANSLATE_NOOP("QPlatformTheme", "&No")

// The context menu of a line edit, which is also most of a spin box's.
QT_TRANSLATE_NOOP("QLineEdit", "&Undo")
QT_TRANSLATE_NOOP("QLineEdit", "&Redo")
QT_TRANSLATE_NOOP("QLineEdit", "Cu&t")
QT_TRANSLATE_NOOP("QLineEdit", "&Copy")
QT_TRANSLATE_NOOP("QLineEdit", "&Paste")
QT_TRANSLATE_NOOP("QLineEdit", "Delete")
QT_TRANSLATE_NOOP("QLineEdit", "Select All")

// What a spin box adds to it; "&Select All" takes the place of the line edit's.
QT_TRANSLATE_NOOP("QAbstractSpinBox", "&Select All")
QT_TRANSLATE_NOOP("QAbstractSpinBox", "&Step up")
QT_TRANSLATE_NOOP("QAbstractSpinBox", "Step &down")

// The context menu of texts that can only be read: labels with links, the welcome text.
QT_TRANSLATE_NOOP("QWidgetTextControl", "&Copy")
QT_TRANSLATE_NOOP("QWidgetTextControl", "Copy &Link Location")
QT_TRANSLATE_NOOP("QWidgetTextControl", "Select All")

// Keys in the shortcuts that menus and tool tips show, as in "Ctrl+Shift+Z".
QT_TRANSLATE_NOOP("QShortcut", "Ctrl")
QT_TRANSLATE_NOOP("QShortcut", "Shift")
QT_TRANSLATE_NOOP("QShortcut", "Alt")
QT_TRANSLATE_NOOP("QShortcut", "Up")
QT_TRANSLATE_NOOP("QShortcut", "Down")
QT_TRANSLATE_NOOP("QShortcut", "Del")
QT_TRANSLATE_NOOP("QShortcut", "Return")

// The context menu of a scroll bar.
QT_TRANSLATE_NOOP("QScrollBar", "Scroll here")
QT_TRANSLATE_NOOP("QScrollBar", "Left edge")
QT_TRANSLATE_NOOP("QScrollBar", "Top")
QT_TRANSLATE_NOOP("QScrollBar", "Right edge")
QT_TRANSLATE_NOOP("QScrollBar", "Bottom")
QT_TRANSLATE_NOOP("QScrollBar", "Page left")
QT_TRANSLATE_NOOP("QScrollBar", "Page up")
QT_TRANSLATE_NOOP("QScrollBar", "Page right")
QT_TRANSLATE_NOOP("QScrollBar", "Page down")
QT_TRANSLATE_NOOP("QScrollBar", "Scroll left")
QT_TRANSLATE_NOOP("QScrollBar", "Scroll up")
QT_TRANSLATE_NOOP("QScrollBar", "Scroll right")
QT_TRANSLATE_NOOP("QScrollBar", "Scroll down")

// A dock's buttons, as screen readers name them.
QT_TRANSLATE_NOOP("QDockWidget", "Float")
QT_TRANSLATE_NOOP("QDockWidget", "Undocks and re-attaches the dock widget")
QT_TRANSLATE_NOOP("QDockWidget", "Close")
QT_TRANSLATE_NOOP("QDockWidget", "Closes the dock widget")

// The usual reasons of a failed version check, quoted in its message. Of an HTTP error Qt speaks English
// always.
QT_TRANSLATE_NOOP("QHttp", "Connection refused")
QT_TRANSLATE_NOOP("QHttp", "Connection closed")
QT_TRANSLATE_NOOP("QHttp", "Host %1 not found")
QT_TRANSLATE_NOOP("QNativeSocketEngine", "Host unreachable")
QT_TRANSLATE_NOOP("QNativeSocketEngine", "Network unreachable")
QT_TRANSLATE_NOOP("QAbstractSocket", "Socket operation timed out")

// The dialog that asks for a file, where the system has none of its own.
QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "Drive")
QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "Folder")
QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "File")
QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "%1 File")
QT_TRANSLATE_NOOP("QFileSystemModel", "Computer")
QT_TRANSLATE_NOOP("QFileSystemModel", "Name")
QT_TRANSLATE_NOOP("QFileSystemModel", "Size")
QT_TRANSLATE_NOOP("QFileSystemModel", "Type")
QT_TRANSLATE_NOOP("QFileSystemModel", "Date Modified")
QT_TRANSLATE_NOOP("QFileDialog", "&Delete")
QT_TRANSLATE_NOOP("QFileDialog", "&New Folder")
QT_TRANSLATE_NOOP("QFileDialog", "&Open")
QT_TRANSLATE_NOOP("QFileDialog", "&Rename")
QT_TRANSLATE_NOOP("QFileDialog", "&Save")
QT_TRANSLATE_NOOP("QFileDialog", "All Files (*)")
QT_TRANSLATE_NOOP("QFileDialog", "Back")
QT_TRANSLATE_NOOP("QFileDialog", "Change to detail view mode")
QT_TRANSLATE_NOOP("QFileDialog", "Change to list view mode")
QT_TRANSLATE_NOOP("QFileDialog", "Create New Folder")
QT_TRANSLATE_NOOP("QFileDialog", "Create a New Folder")
QT_TRANSLATE_NOOP("QFileDialog", "Detail View")
QT_TRANSLATE_NOOP("QFileDialog", "File &name:")
QT_TRANSLATE_NOOP("QFileDialog", "Files")
QT_TRANSLATE_NOOP("QFileDialog", "Files of type:")
QT_TRANSLATE_NOOP("QFileDialog", "Forward")
QT_TRANSLATE_NOOP("QFileDialog", "Go back")
QT_TRANSLATE_NOOP("QFileDialog", "Go forward")
QT_TRANSLATE_NOOP("QFileDialog", "Go to the parent directory")
QT_TRANSLATE_NOOP("QFileDialog", "List View")
QT_TRANSLATE_NOOP("QFileDialog", "List of places and bookmarks")
QT_TRANSLATE_NOOP("QFileDialog", "Look in:")
QT_TRANSLATE_NOOP("QFileDialog", "Parent Directory")
QT_TRANSLATE_NOOP("QFileDialog", "Show &hidden files")
QT_TRANSLATE_NOOP("QFileDialog", "Sidebar")
QT_TRANSLATE_NOOP("QFileDialog", "&Choose")
QT_TRANSLATE_NOOP("QFileDialog", "Directories")
QT_TRANSLATE_NOOP("QFileDialog", "Directory:")
QT_TRANSLATE_NOOP("QFileDialog", "%1 already exists.\nDo you want to replace it?")
QT_TRANSLATE_NOOP("QFileDialog", "%1\nFile not found.\nPlease verify the correct file name was given.")
QT_TRANSLATE_NOOP("QFileDialog",
                  "%1\nDirectory not found.\nPlease verify the correct directory name was given.")
QT_TRANSLATE_NOOP("QFileDialog", "Show ")
