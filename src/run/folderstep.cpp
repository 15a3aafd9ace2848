// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/folderstep.h"

#include "run/spelling.h"

std::optional<Fate> FolderStep::refusalOfWay() const
{
    const FolderTraits &traits = target.traits();
    if (traits.volume != source.traits().volume)
        return Fate::NotAllowed;
    if (isLongerThan(newName, traits.longestName, traits.lengthUnit))
        return Fate::TooLong;
    return std::nullopt;
}

std::optional<Fate> FolderStep::refusalOfName() const
{
    if (!source.mayMove(file.path) || !target.traits().writable)
        return Fate::ReadOnly;
    if (const auto refusal = target.refusalOf(newName))
        return refusal;
    if (target.mayClash(newName, &source == &target ? name : QStringView()))
        return Fate::Unknown;
    return std::nullopt;
}

bool FolderStep::isChangeOfCase() const
{
    return !isDetour && name.compare(newName, Qt::CaseInsensitive) == 0 && target.changesCase();
}

bool isPathTooLong(const FilePath &file, const QString &newName, const FolderTraits &known)
{
    // Most are too short for the path to be made; no character takes more bytes.
    if (3 * (file.nameAt + newName.size()) <= known.longestPath)
        return false;
    return isLongerThan(file.sibling(newName), known.longestPath, known.pathUnit);
}

std::optional<Fate> fateIn(FolderTraits::State state, Fate missing)
{
    switch (state) {
    case FolderTraits::State::There:
        return std::nullopt;
    case FolderTraits::State::Missing:
        return missing;
    case FolderTraits::State::TooLongPath:
        return Fate::TooLong;
    case FolderTraits::State::Unreadable:
        return Fate::Unknown;
    }
    Q_UNREACHABLE();
}
