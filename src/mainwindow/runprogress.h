// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "mainwindow/failures.h"
#include "mainwindow/progressdialog.h"

/// The wait dialog of a run, and of taking one back, as long as it is not closed.
class RunProgress final
{
public:
    RunProgress(QWidget *parent, int total);
    void setTotal(int total) { dialog.total = total; }

    /// To be told after each item, from 0; processes events. False when the dialog was cancelled.
    [[nodiscard]] bool goOn(int item);
    [[nodiscard]] bool isCancelled() const { return dialog.isHidden(); }
    void close() { dialog.close(); }

private:
    ProgressDialog dialog;
};

struct RunFigures
{
    qint64 total = 0;
    qint64 processed = 0;
    qint64 failed = 0;
};

/// Shows what came of it in a box, and in the log.
void showReport(QWidget *parent, const RunFigures &figures, const Failures &failures);
