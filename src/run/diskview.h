// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/folderreader.h"

/// What a forecast asks the disk, which it cannot change: an interface, so that tests give a model.
class DiskView
{
public:
    DiskView() = default;
    virtual ~DiskView() = default;
    Q_DISABLE_COPY_MOVE(DiskView)

    /// See openFolder().
    [[nodiscard]] virtual std::unique_ptr<FolderReader> open(const QString &folder) const = 0;
    /// See fileIdentity().
    [[nodiscard]] virtual std::optional<FileIdentity> identity(const QString &path) const = 0;
};

/// The disk that is there.
class SystemDiskView final : public DiskView
{
public:
    [[nodiscard]] std::unique_ptr<FolderReader> open(const QString &folder) const override
    {
        return openFolder(folder);
    }
    [[nodiscard]] std::optional<FileIdentity> identity(const QString &path) const override
    {
        return fileIdentity(path);
    }
};
