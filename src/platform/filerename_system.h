// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/filerename.h"

#include <optional>

/// Renames by the one system call that neither replaces nor copies. No value where that cannot tell, or the
/// system has no such call, and QFile is to be asked.
[[nodiscard]] std::optional<RenameResult> renameWithoutReplacing(const QString &from, const QString &to);

/// Why QFile, which says nothing of use, has just refused.
[[nodiscard]] RenameResult whyNotRenamed(const QString &from, const QString &to);
