// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Opens a file, a folder or an address as the desktop's shell does for the verb "open". The call does not
/// wait for what it starts and reports nothing. Callers pass folder paths and web addresses only; on Windows
/// strings of 260 characters or more do not fit and open nothing.
void openWithShell(const QString &file, const QString &parameters = {});
