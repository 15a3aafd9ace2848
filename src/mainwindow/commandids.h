// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

// What the window's mappers send, one enumeration for each of them. The numbers are fixed; keys send those of
// the lists.

enum Command { ClearLog, SaveLog, ToggleLogDock, OpenLogFolder, IncludeDebug, GlobalSettings, VisitHome };
enum VariousCommand { ShowFullPath, ToggleExplorerDock };
enum FileListCommand { MoveFileUp = 2, MoveFileDown = 3, RemoveFiles = 4 };
enum RuleListCommand { RemoveRule = 5, MoveRuleUp = 6, MoveRuleDown = 7, ClearRules = 8 };
