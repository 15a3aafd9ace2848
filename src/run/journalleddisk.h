// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/disk.h"
#include "run/filestamps.h"
#include "run/journal.h"

/// Another disk, whose renames a journal knows before they are done. Runs need not know.
class JournalledDisk final : public Disk
{
public:
    /// Both must outlive this one.
    JournalledDisk(Disk &on, Journal &in);

    [[nodiscard]] RenameResult rename(const FilePath &from, const QString &to) override;
    [[nodiscard]] std::optional<FileIdentity> identity(const QString &path) const override;
    [[nodiscard]] Volume volume(const QString &path) const override { return disk.volume(path); }

private:
    /// Whether the file has its new name although the system said that the rename failed.
    [[nodiscard]] bool isDone(RenameResult result, const FilePath &from, const QString &to,
                              const FileStamp &file);

    Disk &disk;
    Journal &journal;
    FileStamps stamps;
};
