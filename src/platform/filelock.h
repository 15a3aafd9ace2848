// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

class QFile;

enum class FileLock { Locked, HeldByAnother, Unsupported };

/// Locks an open file against others who do the same, without waiting. The lock goes when the file is closed,
/// and with the process, in whatever way that ends. It belongs to the open file: this process can be
/// "another", too. Unsupported where the file system knows no locks.
/// The file must be open for writing.
[[nodiscard]] FileLock lockFile(QFile &file);
void unlockFile(QFile &file);
/// Whether somebody has locked it who opened it elsewhere. Not to be asked of what is locked by this very
/// file: on Windows that lock would go.
[[nodiscard]] bool isLocked(QFile &file);
