// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// The entry "Pendulix Basic" that makes the system start this program: a value of the user's Run key on
// Windows, a desktop entry in the user's autostart folder elsewhere.

/// The command that the entry holds for a program, in the entry's own notation: quoting and escapes are those
/// of a registry value or of the Exec key of a desktop entry.
[[nodiscard]] QString autoStartCommand(const QString &programPath);

/// True when the entry exists and, compared without regard to case, holds the command of this very program.
[[nodiscard]] bool isAutoStartEnabled();

/// Writes or removes the entry. False when that was not possible; the entry then is as it was.
[[nodiscard]] bool setAutoStart(bool enabled);
