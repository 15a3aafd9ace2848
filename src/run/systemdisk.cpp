// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/systemdisk.h"

RenameResult SystemDisk::rename(const FilePath &from, const QString &to)
{
    return renamer.rename(from.path, to);
}

std::optional<RenameResult> SystemDisk::exchange(const FilePath &one, const QString &other)
{
    return renamer.exchange(one.path, other);
}

std::optional<FileIdentity> SystemDisk::identity(const QString &path) const
{
    return fileIdentity(path);
}
