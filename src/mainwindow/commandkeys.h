// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

class ListWidgetFiles;
class QAbstractButton;
class QToolBar;
class QTreeView;

/// F5 presses Preview and Ctrl+Return Rename, while no dialog is open and no files are being added.
void addRunKeys(const ListWidgetFiles &list, QAbstractButton *preview, QAbstractButton *rename);
/// Ctrl+C in the explorer copies the selected files, so that Ctrl+V lists them.
void addExplorerKeys(QTreeView *explorer);
/// Lets Tab go to the buttons of a tool bar, too, from the left to the right.
void addTabStops(const QToolBar *bar);
