// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

/// Which file stands at a path, whatever it is called. Times are nanoseconds since 1970, UTC.
struct FileIdentity
{
    enum class Kind { File, Folder, Link, Other };

    /// The file system's number while it is mounted.
    quint64 volume = 0;
    quint64 number = 0;
    /// 0 where the file system does not keep it.
    qint64 born = 0;
    /// For file systems whose numbers change: what else tells a file from another.
    qint64 size = 0;
    qint64 modified = 0;
    Kind kind = Kind::File;
    /// Whether it belongs to this user; true where that is of no account.
    bool isOwn = true;

    /// A number is given again when a file is gone: a time of birth tells them apart where it is kept.
    [[nodiscard]] bool isSameFile(const FileIdentity &other) const
    {
        return volume == other.volume && number == other.number &&
               (born == other.born || born == 0 || other.born == 0);
    }
};

/// The file, folder or link itself at a path; no value where nothing is, or nobody may look.
[[nodiscard]] std::optional<FileIdentity> fileIdentity(const QString &path);
