// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/disk.h"

/// The disk that is there.
class SystemDisk final : public Disk
{
public:
    [[nodiscard]] RenameResult rename(const FilePath &from, const QString &to) override;
    [[nodiscard]] std::optional<RenameResult> exchange(const FilePath &one, const QString &other) override;
    [[nodiscard]] std::optional<FileIdentity> identity(const QString &path) const override;

private:
    FileRenamer renamer;
};
