// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

/// Renames by the one system call that neither replaces nor copies. Whether it did; no value where it cannot
/// tell, or the system has no such call, and QFile is to be asked.
[[nodiscard]] std::optional<bool> renameWithoutReplacing(const QString &from, const QString &to);
