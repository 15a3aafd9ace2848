// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/renamerun.h"

#include "run/newname.h"

RenameRun::RenameRun(Disk &on)
    : disk(on)
{
}

Outcome RenameRun::next(const FilePath &file, const QString &newName)
{
    Outcome outcome;
    outcome.path = file.sibling(newName);
    const RenameResult result = disk.rename(file, outcome.path);
    ++handledRows;
    if (result == RenameResult::Done) {
        outcome.reason = Fate::Renamed;
    } else {
        ++failedRows;
        outcome.reason = whyNot(file, newName, result);
    }
    const bool isSeparator = leadsElsewhere(newName) && outcome.reason != Fate::NoText;
    outcome.fate = isSeparator ? Fate::Separator : outcome.reason;
    return outcome;
}

Fate RenameRun::whyNot(const FilePath &file, const QString &newName, RenameResult result) const
{
    const NewName seen(newName);
    if (seen.refusal)
        return *seen.refusal;
    if (result == RenameResult::TargetExists && newName == file.name())
        return Fate::Unchanged;
    if (result == RenameResult::Other && leadsElsewhere(newName))
        return whyNotThere(file, file.sibling(newName.first(seen.lastPartAt)));
    return fateOf(result);
}

Fate RenameRun::whyNotThere(const FilePath &file, const QString &folder) const
{
    // With a dot behind it a link to a folder is followed.
    const auto target = disk.identity(folder + u'.');
    if (!target || target->kind == FileIdentity::Kind::File)
        return Fate::NoFolder;
    const auto source = disk.identity(file.path);
    return source && source->volume != target->volume ? Fate::NotAllowed : Fate::Unknown;
}
