// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/journalleddisk.h"

#include "run/outcome.h"

JournalledDisk::JournalledDisk(Disk &on, Journal &in)
    : disk(on)
    , journal(in)
    , stamps(on)
{
}

RenameResult JournalledDisk::rename(const FilePath &from, const QString &to)
{
    // Nothing is moved by that, and there would be nothing to take back.
    if (from.path == to)
        return disk.rename(from, to);
    Q_ASSERT(QStringView(to).startsWith(QStringView(from.path).first(from.nameAt)));
    const FileStamp file = stamps.of(from);
    journal.renaming({.folder = from.folder(),
                      .from = QStringView(from.path).sliced(from.nameAt),
                      .to = QStringView(to).sliced(from.nameAt),
                      .file = file});
    const RenameResult result = disk.rename(from, to);
    if (result != RenameResult::Done && !isDone(result, from, to, file))
        journal.refused(idOf(fateOf(result)));
    return result;
}

bool JournalledDisk::isDone(RenameResult result, const FilePath &from, const QString &to,
                            const FileStamp &file)
{
    // File systems of a network do what was asked, lose the answer, and fail when they are asked again.
    const bool isUnclear = result == RenameResult::Other || result == RenameResult::SourceMissing;
    return isUnclear && stamps.isAt(to, file, QDateTime::currentDateTimeUtc()) && !disk.identity(from.path);
}

std::optional<FileIdentity> JournalledDisk::identity(const QString &path) const
{
    return disk.identity(path);
}
