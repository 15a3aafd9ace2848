// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/filestamps.h"

#include <QStringBuilder>

#include <cstdlib>

namespace {

/// So many files of one folder are asked for one by one: a listing is not worth its while before.
constexpr qsizetype withoutListing = 16;
/// So many entries of a listing cost what one question does.
constexpr qsizetype entriesForOne = 8;
/// FAT counts two seconds.
constexpr qint64 coarsestTime = 2000;

qint64 milliseconds(qint64 nanoseconds)
{
    return nanoseconds / 1'000'000;
}

} // namespace

FileStamp FileStamps::of(const FilePath &file)
{
    if (file.folder() != folder) {
        folder = file.folder().toString();
        folderVolume = {};
        listing.reset();
        asked = 0;
    }
    ++asked;
    if (folderVolume.keepsNumbers) {
        if (const quint64 number = listedNumber(file))
            return {.volume = folderVolume.id, .number = number};
    }
    const auto there = disk.identity(file.path);
    if (!there)
        return {};
    folderVolume = volumeAt(*there, file.path);
    if (folderVolume.keepsNumbers)
        return {.volume = folderVolume.id, .number = there->number};
    return {.volume = folderVolume.id, .size = there->size, .modified = milliseconds(there->modified)};
}

quint64 FileStamps::listedNumber(const FilePath &file)
{
    if (asked <= withoutListing)
        return 0;
    if (!listing)
        listing.emplace(folder + u'/');
    const QStringView name = QStringView(file.path).sliced(file.nameAt);
    quint64 number = listing->take(name);
    while (number == 0 && listing->entriesRead() < asked * entriesForOne && listing->readOn())
        number = listing->take(name);
    return number;
}

bool FileStamps::isAt(const QString &path, const FileStamp &file, const QDateTime &later)
{
    const auto there = disk.identity(path);
    if (!there || file.volume.isEmpty() || volumeAt(*there, path).id != file.volume)
        return false;
    if (file.number != 0)
        return there->number == file.number && milliseconds(there->born) <= later.toMSecsSinceEpoch();
    return there->size == file.size &&
           std::abs(milliseconds(there->modified) - file.modified) <= coarsestTime;
}

const Volume &FileStamps::volumeAt(const FileIdentity &there, const QString &path)
{
    auto known = volumes.find(there.volume);
    if (known == volumes.end()) {
        // A link leads elsewhere; its folder does not.
        known = volumes.insert(there.volume, disk.volume(path.first(path.lastIndexOf(u'/') + 1)));
    }
    return *known;
}
