// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "mainwindow/failures.h"
#include "mainwindow/progressdialog.h"

#include <QElapsedTimer>

#include <optional>

/// The wait dialog of a run, and of taking one back, as long as it is not closed.
class RunProgress final
{
public:
    RunProgress(QWidget *parent, int total);
    void setTotal(int total) { dialog.total = total; }

    /// Whether it was long ago that events were processed: for items that take no time to speak of.
    [[nodiscard]] bool isDue() const { return sinceEvents.hasExpired(longestSlice); }
    /// To be told after each item, from 0; processes events. False when the dialog was cancelled.
    [[nodiscard]] bool goOn(int item);
    [[nodiscard]] bool isCancelled() const { return dialog.isHidden(); }
    /// From now on the dialog stays, and has no button to cancel it.
    void insist();
    void close() { dialog.close(); }

private:
    static constexpr qint64 longestSlice = 8; // milliseconds

    void showAgain();

    ProgressDialog dialog;
    QElapsedTimer sinceEvents;
    bool insists = false;
};

struct RunFigures
{
    qint64 total = 0;
    qint64 processed = 0;
    qint64 failed = 0;
    /// Of a run that does not count files as failed that keep their names.
    std::optional<qint64> kept = std::nullopt;
};

/// Makes a box the report of a run, and has the log say it.
void fillReport(QMessageBox &box, const RunFigures &figures, const Failures &failures);
/// Shows what came of it in a box, and in the log.
void showReport(QWidget *parent, const RunFigures &figures, const Failures &failures);
