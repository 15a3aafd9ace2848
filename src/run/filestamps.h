// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/foldernumbers.h"
#include "platform/volume.h"
#include "run/disk.h"
#include "run/journalline.h"

#include <QHash>

#include <optional>

/// By what the files of a run are known again. The rows of one folder cost a part of its listing each, not a
/// question to the system.
class FileStamps final
{
public:
    explicit FileStamps(const Disk &on)
        : disk(on)
    {
    }

    /// Of a file that is about to be renamed; the listing is read while that goes on.
    [[nodiscard]] FileStamp of(const FilePath &file);
    /// Whether that file stands at the path now. One that was born later is another.
    [[nodiscard]] bool isAt(const QString &path, const FileStamp &file, const QDateTime &later);

private:
    [[nodiscard]] const Volume &volumeAt(const FileIdentity &there, const QString &path);
    [[nodiscard]] quint64 listedNumber(const FilePath &file);

    const Disk &disk;
    /// By the number that a file system has while it is mounted.
    QHash<quint64, Volume> volumes;
    /// The folder of the last file, as far as its volume keeps numbers.
    QString folder;
    Volume folderVolume;
    std::optional<FolderNumbers> listing;
    qsizetype asked = 0;
};
