// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/recordedrun.h"

#include "core/applog.h"
#include "dialogs/runtexts.h"

#include <QCoreApplication>

RecordedRun::RecordedRun(JournalFolder &journals, int rows)
{
    QString error;
    journal = journals.begin(QCoreApplication::applicationVersion(), rows, {}, &error);
    if (journal)
        journalled.emplace(system, *journal);
    else
        tellUnrecorded(error);
}

Disk &RecordedRun::disk()
{
    if (journalled)
        return *journalled;
    return system;
}

void RecordedRun::end(bool cancelled)
{
    if (!journal)
        return;
    journal->end(cancelled);
    const JournalFigures &figures = journal->figures();
    if (figures.unrecorded > 0)
        tellUnrecorded(journal->error(), figures.unrecorded < figures.renamed ? figures.unrecorded : 0);
}

void tellUnrecorded(const QString &cause, qint64 renames)
{
    AppLog::instance()->append(unrecordedText(renames));
    qDebug("no journal: %s", qPrintable(cause));
}
