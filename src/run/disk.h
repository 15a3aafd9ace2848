// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/fileidentity.h"
#include "platform/filerename.h"
#include "platform/volume.h"
#include "run/filepath.h"

#include <QString>

#include <optional>

/// What runs ask the disk, and do to it: an interface, so that tests give a model of one. All that moves a
/// file goes through rename(): a disk before the real one can see each step ahead.
class Disk
{
public:
    Disk() = default;
    virtual ~Disk() = default;
    Q_DISABLE_COPY_MOVE(Disk)

    /// Never replaces, never copies.
    [[nodiscard]] virtual RenameResult rename(const FilePath &from, const QString &to) = 0;
    /// Gives two files that are there each other's name, at once; no value where the system cannot. Both have
    /// to be looked at before: whatever has the names is exchanged.
    [[nodiscard]] virtual std::optional<RenameResult> exchange(const FilePath & /*one*/,
                                                               const QString & /*other*/)
    {
        return std::nullopt;
    }
    /// What stands at a path itself, links not followed; no value where nothing does, or nobody may look.
    [[nodiscard]] virtual std::optional<FileIdentity> identity(const QString &path) const = 0;
    /// The file system that a path is on.
    [[nodiscard]] virtual Volume volume(const QString &path) const { return volumeOf(path); }
};
