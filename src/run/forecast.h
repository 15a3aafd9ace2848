// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/diskview.h"
#include "run/filepath.h"
#include "run/forecastfolder.h"
#include "run/outcome.h"

#include <QHash>
#include <QSet>

#include <memory>
#include <vector>

/// Foretells what a RenameRun will come to: row after row, each earlier move laid over the disk as it is.
/// Nothing is written, and each folder that rows lead to is read once. Whoever asks goes through the rows
/// twice:
///
///     const SystemDiskView view;
///     Forecast forecast(view);
///     for (const QString &path : paths)
///         forecast.add(FilePath::of(path));
///     for (const QString &path : paths) {
///         const FilePath file = FilePath::of(path);
///         const Outcome outcome = forecast.next(file, newNameOf(file.name()));
///     }
///
/// Where a listing may take too long, isReady() is asked before each next() until it says so. The disk may
/// change at any time: a forecast is made anew, never kept.
class Forecast final
{
public:
    explicit Forecast(const DiskView &onView);
    ~Forecast();
    Q_DISABLE_COPY_MOVE(Forecast)

    /// To be told of every row, in their order, before next() is asked for the first: which names rows have
    /// now.
    void add(const FilePath &file);
    /// Reads on, for a millisecond or two, in the folders that the next row leads to; whether they have been
    /// read. Without it next() reads them at once.
    [[nodiscard]] bool isReady(const FilePath &file, const QString &newName);
    /// What becomes of the next row.
    [[nodiscard]] Outcome next(const FilePath &file, const QString &newName);

    /// The rows told so far, which is the number of the next row.
    [[nodiscard]] int handled() const { return handledRows; }

private:
    struct Step;

    /// The path ends with a separator.
    [[nodiscard]] ForecastFolder &folderAt(QStringView path);
    [[nodiscard]] ForecastFolder *newFolder(const QString &path);
    [[nodiscard]] ForecastFolder &readFolder(QStringView path);
    [[nodiscard]] Fate reasonFor(const FilePath &file, const QString &newName, Outcome &outcome);
    [[nodiscard]] Fate refuseAllButFolders(const FilePath &file, const QString &newName);
    [[nodiscard]] Fate move(const Step &step, Outcome &outcome);
    [[nodiscard]] std::optional<Fate> refusalOf(const Step &step, const ForecastFolder::Entry *there,
                                                Outcome &outcome) const;
    [[nodiscard]] Fate takenBy(int row, Outcome &outcome) const;
    [[nodiscard]] std::optional<FileIdentity::Kind> kindAt(const QString &path) const;
    void noteMovedWay(const QString &path);
    [[nodiscard]] bool leadsThroughMoved(const QString &path) const;

    const DiskView &view;
    int addedRows = 0;
    int handledRows = 0;

    std::vector<std::unique_ptr<ForecastFolder>> folders;
    /// With the separator at their end.
    QHash<QString, ForecastFolder *> byPath;
    QHash<std::pair<quint64, quint64>, ForecastFolder *> byIdentity;
    QString lastPath;
    ForecastFolder *lastFolder = nullptr;
    /// Folders and links that rows move: paths through them are not told.
    QSet<QString> movedWays;
};
