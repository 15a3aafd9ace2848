// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <memory>
#include <optional>

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

/// Renames files: QFile::rename with one system call where that is enough, and without its last resort. Where
/// the file system refuses a rename, QFile::rename copies the bytes into the target, which it opens with
/// truncation, and deletes the source: a target that appeared in the meantime, or a dangling link's
/// destination, would be overwritten. This one never copies: the file is moved by the file system in one
/// step, or stays where it is and the result says why. An existing target is refused. A dangling link is
/// renamed itself.
class FileRenamer final
{
public:
    FileRenamer();
    ~FileRenamer();
    Q_DISABLE_COPY_MOVE(FileRenamer)

    /// Costs least for one file of a folder after the other.
    [[nodiscard]] RenameResult rename(const QString &from, const QString &to);
    /// Gives each the name of the other in one step, whatever they are; no value where the system or the file
    /// system has no such step: nothing was moved then.
    [[nodiscard]] std::optional<RenameResult> exchange(const QString &one, const QString &other);

private:
    struct System;
    std::unique_ptr<System> system;
};

/// The same for one file.
[[nodiscard]] inline RenameResult renameFile(const QString &from, const QString &to)
{
    return FileRenamer().rename(from, to);
}
