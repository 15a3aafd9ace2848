// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "dialogs/runtexts.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

struct Runs
{
    Q_DECLARE_TR_FUNCTIONS(Runs)
};

} // namespace

QString timeText(const QDateTime &time)
{
    const QDateTime local = time.toLocalTime();
    const QLocale system = QLocale::system();
    if (local.date() == QDate::currentDate())
        return system.toString(local.time(), QLocale::ShortFormat);
    return system.toString(local, QLocale::ShortFormat);
}

QString interruptedText(const JournalInfo &journal)
{
    if (!journal.isRun())
        return Runs::tr("An undo was interrupted; what it left can still be taken back");
    return Runs::tr("The run of %1 was interrupted; what it renamed can be taken back")
        .arg(timeText(journal.time));
}

QString unrecordedText(qint64 renames)
{
    return renames == 0 ? Runs::tr("This run cannot be undone")
                        : Runs::tr("The last renames of this run cannot be undone: %1").arg(renames);
}
