// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "dialogs/runtexts.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

struct Runs
{
    Q_DECLARE_TR_FUNCTIONS(Runs)
};

/// A folder in so few words that a tool tip has room for it.
QString shortFolder(const QString &folder)
{
    const QString path = folder.endsWith(u':') || folder.isEmpty() ? folder + u'/' : folder;
    const qsizetype first = path.indexOf(u'/') + 1;
    const qsizetype last = path.lastIndexOf(u'/') + 1;
    return QDir::toNativeSeparators(first == last ? path : path.first(first) + u"…/"_s + path.sliced(last));
}

} // namespace

QString timeText(const QDateTime &time)
{
    const QDateTime local = time.toLocalTime();
    const QLocale system = QLocale::system();
    if (local.date() == QDate::currentDate())
        return system.toString(local.time(), QLocale::ShortFormat);
    return system.toString(local, QLocale::ShortFormat);
}

QString placeText(const JournalInfo &journal)
{
    return journal.folders > 1 ? Runs::tr("%1 folders").arg(journal.folders) : shortFolder(journal.folder);
}

QString takeBackText(const JournalInfo &journal)
{
    const QString time = timeText(journal.time);
    const QString number = QString::number(journal.standing);
    if (journal.folders > 1)
        return Runs::tr("Take back %1 renames of %2 in %3 folders")
            .arg(number, time, QString::number(journal.folders));
    const QString place = placeText(journal);
    if (journal.standing == 1)
        return Runs::tr("Take back 1 rename of %1 in %2").arg(time, place);
    return Runs::tr("Take back %1 renames of %2 in %3").arg(number, time, place);
}

QString refusalText(UndoRun::Refusal refusal)
{
    switch (refusal) {
    case UndoRun::Refusal::InHand:
        return Runs::tr("Another window of the program is at this run.");
    case UndoRun::Refusal::NotOurs:
        return Runs::tr("This run is of another machine, or of a newer version of the program.");
    case UndoRun::Refusal::TouchedLater:
        return Runs::tr("A later run renamed some of these files. Take that one back first.");
    default:
        return Runs::tr("Nothing of this run is left to be taken back.");
    }
}

QString undoText()
{
    return Runs::tr("Undo");
}

QString redoText()
{
    return Runs::tr("Redo");
}

QString closeRunsText()
{
    return Runs::tr("Close");
}

QString undoStartedText()
{
    return Runs::tr("Taking back started");
}

QString notTakenBackText(const QString &name, const QString &reason)
{
    return Runs::tr("Could not take back file '%1': %2").arg(name, reason);
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
