// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/diskview.h"
#include "run/foldermap.h"
#include "run/folderstep.h"
#include "run/outcome.h"

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
    [[nodiscard]] Fate reasonFor(const FilePath &file, const QString &newName, Outcome &outcome);
    [[nodiscard]] Fate refuseAllButFolders(const FilePath &file, const QString &newName);
    [[nodiscard]] Fate move(const FolderStep &step, Outcome &outcome);
    [[nodiscard]] std::optional<Fate> refusalOf(const FolderStep &step, const ForecastFolder::Entry *there,
                                                Outcome &outcome) const;
    [[nodiscard]] Fate takenBy(int row, Outcome &outcome) const;
    [[nodiscard]] std::optional<FileIdentity::Kind> kindAt(const QString &path) const;

    const DiskView &view;
    FolderMap folders;
    int addedRows = 0;
    int handledRows = 0;
};
