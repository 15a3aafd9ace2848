// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// What came of a rename.
enum class RenameResult {
    Done,
    TargetExists,
    SourceMissing,
    /// By the folder's permissions, or because nothing can be written there.
    NotPermitted,
    /// The file system takes no such name, or it cannot be written down: half a character, a null character.
    BadName,
    /// The name, or the whole path.
    TooLong,
    Other,
};

/// QFile::rename with one system call where that is enough, and without its last resort. Where the file
/// system refuses a rename, QFile::rename copies the bytes into the target, which it opens with truncation,
/// and deletes the source: a target that appeared in the meantime, or a dangling link's destination, would be
/// overwritten. This one never copies: the file is moved by the file system in one step, or stays where it is
/// and the result says why. An existing target is refused. A dangling link is renamed itself.
[[nodiscard]] RenameResult renameFile(const QString &from, const QString &to);
