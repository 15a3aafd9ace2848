// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Renames by the one system call that refuses to replace, where the system has one. False when it did not
/// rename, for whatever reason.
[[nodiscard]] bool renameWithoutReplacing(const QString &from, const QString &to);
