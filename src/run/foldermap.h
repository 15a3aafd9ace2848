// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/forecastfolder.h"

#include <QHash>
#include <QSet>

#include <memory>
#include <vector>

/// The folders that rows are in and lead to, each read once, whatever ways lead to it. Paths of folders end
/// with a separator.
class FolderMap final
{
public:
    explicit FolderMap(const DiskView &onView);
    ~FolderMap();
    Q_DISABLE_COPY_MOVE(FolderMap)

    /// Not read yet, if it was not asked for before.
    [[nodiscard]] ForecastFolder &at(QStringView path);
    /// Read to its end.
    [[nodiscard]] ForecastFolder &read(QStringView path);
    /// Of a folder or a link at the path, or of what was moved there: paths through it are not told.
    void noteMovedWay(const QString &path);

private:
    [[nodiscard]] ForecastFolder *newFolder(const QString &path);
    [[nodiscard]] bool leadsThroughMoved(const QString &path) const;

    const DiskView &view;
    std::vector<std::unique_ptr<ForecastFolder>> folders;
    QHash<QString, ForecastFolder *> byPath;
    QHash<std::pair<quint64, quint64>, ForecastFolder *> byIdentity;
    QString lastPath;
    ForecastFolder *lastFolder = nullptr;
    QSet<QString> movedWays;
};
