// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

class ActiveRules;
class MainWindow;
class QTreeWidget;

/// While the list of rules has the focus: Alt+Up and Alt+Down move the current one, Ctrl+D doubles it.
void addRuleKeys(MainWindow *window, QTreeWidget *tree, ActiveRules &rules);
