# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""What the end-to-end tests stand on: a desktop of their own, the program on it, and hands and eyes.

desktop     the X server, the session bus, the window manager and the tray
accessible  the widgets as assistive technology sees them
hands       mouse and keyboard
program     the built program with its own home directory
mainwindow  the main window in the words of its user
dialogs     the dialogs at the ends of the program's life
case        the base class of the tests
"""
