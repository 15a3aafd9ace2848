// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/takenback.h"

#include <QFile>
#include <QStringList>

#include <optional>
#include <vector>

/// What the journal of a planned run tells of its rows.
struct PlanJournal
{
    struct Row
    {
        FileStamp file;
        QString folder;
        QString to;
        /// What the file was called, the last one last.
        QStringList places;
        /// The entry that moved it last, and how many files that moves.
        qint64 entry = -1;
        int filesOfEntry = 1;
    };

    std::vector<Row> rows;
    /// Behind the last line.
    qint64 size = 0;
    qint64 nextEntry = 0;

    /// Without the entries that were taken back. Nothing where rows are lost, or there are more or less than
    /// so many.
    [[nodiscard]] static std::optional<PlanJournal> read(QFile &file, qint64 rowCount,
                                                         const TakenBack &takenBack);
};
