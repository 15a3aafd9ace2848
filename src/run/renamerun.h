// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/disk.h"
#include "run/outcome.h"

/// Renames row after row, in the order of the list: no look ahead, nothing taken back. Whoever runs it goes
/// through the rows and asks for each:
///
///     SystemDisk disk;
///     RenameRun run(disk);
///     for (const QString &path : paths) {
///         const FilePath file = FilePath::of(path);
///         const Outcome outcome = run.next(file, newNameOf(file.name()));
///     }
class RenameRun final
{
public:
    explicit RenameRun(Disk &on);

    /// Renames the next row's file. No check of its own comes before: whatever the new name is, the file
    /// system's answer alone counts. Of a name that is taken it tells no row: see Forecast.
    [[nodiscard]] Outcome next(const FilePath &file, const QString &newName);
    /// To be told when the run ends before its last row, or right after it.
    void cancel() { cancelled = true; }

    /// The rows handled so far, which is the number of the next row.
    [[nodiscard]] int handled() const { return handledRows; }
    [[nodiscard]] int failed() const { return failedRows; }
    /// The report's figure of the files that were renamed. Deliberate: after a cancel it is one less.
    [[nodiscard]] int processed() const { return handledRows - failedRows - (cancelled ? 1 : 0); }

private:
    [[nodiscard]] Fate whyNot(const FilePath &file, const QString &newName, RenameResult result) const;
    [[nodiscard]] Fate whyNotThere(const FilePath &file, const QString &folder) const;

    Disk &disk;
    int handledRows = 0;
    int failedRows = 0;
    bool cancelled = false;
};
