// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/foldermap.h"

#include <QDir>

#include <limits>

FolderMap::FolderMap(const DiskView &onView)
    : view(onView)
{
}

FolderMap::~FolderMap() = default;

ForecastFolder &FolderMap::read(QStringView path)
{
    ForecastFolder &folder = at(path);
    while (!folder.read(std::numeric_limits<int>::max())) {
    }
    return folder;
}

ForecastFolder &FolderMap::at(QStringView path)
{
    if (lastFolder && path == lastPath)
        return *lastFolder;
    lastPath = path.toString();
    lastFolder = byPath.value(lastPath);
    if (!lastFolder) {
        lastFolder = newFolder(lastPath);
        byPath.insert(lastPath, lastFolder);
    }
    return *lastFolder;
}

ForecastFolder *FolderMap::newFolder(const QString &path)
{
    const bool isUntold = leadsThroughMoved(path);
    // With a dot behind it a link to a folder is followed.
    const auto identity = isUntold ? std::nullopt : view.identity(path + u'.');
    if (identity) {
        ForecastFolder *&known = byIdentity[{identity->volume, identity->number}];
        if (!known)
            known = folders.emplace_back(std::make_unique<ForecastFolder>(view, path)).get();
        return known;
    }
    ForecastFolder *folder = folders.emplace_back(std::make_unique<ForecastFolder>(view, path)).get();
    if (isUntold)
        folder->giveUp();
    return folder;
}

void FolderMap::noteMovedWay(const QString &path)
{
    movedWays.insert(path);
    const QString way = path + u'/';
    byPath.removeIf(
        [&way](const auto &folder) { return QString(QDir::cleanPath(folder.key()) + u'/').startsWith(way); });
    lastFolder = nullptr;
}

bool FolderMap::leadsThroughMoved(const QString &path) const
{
    if (movedWays.isEmpty())
        return false;
    QString way = QDir::cleanPath(path);
    while (!way.isEmpty() && !movedWays.contains(way))
        way.truncate(way.lastIndexOf(u'/'));
    return !way.isEmpty();
}
