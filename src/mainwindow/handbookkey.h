// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

/// F1 opens the handbook that stands beside the program, as the desktop opens pages.
void addHandbookKey(QWidget *window);
