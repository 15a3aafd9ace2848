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
    // Some locales have seconds in it.
    const QString format = system.timeFormat(QLocale::ShortFormat).remove(u":ss"_s);
    const QString text = system.toString(local.time(), format);
    if (local.date() == QDate::currentDate())
        return text;
    return system.toString(local.date(), QLocale::ShortFormat) + u' ' + text;
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

QString unfinishedTip()
{
    return Runs::tr("This run was interrupted; \"Runs…\" can finish it, too");
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

QString runsTitle()
{
    return Runs::tr("Runs");
}

QStringList runHeadings()
{
    return {Runs::tr("When"), Runs::tr("Renamed"), Runs::tr("Folder"), Runs::tr("State")};
}

namespace {

QString plainStateText(const JournalInfo &run)
{
    if (run.canTakeBack() && run.isPartlyTakenBack())
        return Runs::tr("partly taken back");
    switch (run.state) {
    case JournalInfo::State::Complete:
        return run.isTakenBack() ? Runs::tr("taken back") : Runs::tr("complete");
    case JournalInfo::State::Cancelled:
        return run.isTakenBack() ? Runs::tr("taken back") : Runs::tr("cancelled");
    case JournalInfo::State::Interrupted:
        return run.isTakenBack() ? Runs::tr("taken back") : Runs::tr("interrupted");
    case JournalInfo::State::InHand:
        return Runs::tr("in hand");
    case JournalInfo::State::OtherMachine:
        return Runs::tr("of another machine");
    case JournalInfo::State::Newer:
        return Runs::tr("of a newer version");
    case JournalInfo::State::Unreadable:
        return Runs::tr("unreadable");
    }
    Q_UNREACHABLE();
}

} // namespace

QString stateText(const JournalInfo &run, const JournalInfo *later)
{
    const QString state = plainStateText(run);
    return later ? Runs::tr("%1, touched by a later run").arg(state) : state;
}

QString touchedText(const JournalInfo &later)
{
    return Runs::tr("The run of %1 renamed some of these files. Take that one back first.")
        .arg(timeText(later.time));
}

QString noteText(const JournalInfo &run)
{
    if (run.canFinish())
        return Runs::tr("This run was to rename all files or none, and was interrupted. Finish it, put "
                        "everything back, or leave the files as they are.");
    if (run.unrecorded > 0)
        return Runs::tr("The last renames of this run cannot be undone: %1").arg(run.unrecorded);
    return {};
}

QString takeBackButtonText()
{
    return Runs::tr("Take back");
}

QString putBackButtonText()
{
    return Runs::tr("Put back");
}

QString finishButtonText()
{
    return Runs::tr("Finish");
}

QString leaveButtonText()
{
    return Runs::tr("Leave");
}

QString showFilesText()
{
    return Runs::tr("Show files");
}

QString forgetText()
{
    return Runs::tr("Forget");
}

QString forgetAllText()
{
    return Runs::tr("Forget all");
}

QString forgetAllQuestion()
{
    return Runs::tr("Forget all runs? The files stay as they are, and no run can be taken back any more.");
}

QString filesTitle(const JournalInfo &run)
{
    return Runs::tr("Files of the Run of %1").arg(timeText(run.time));
}

QStringList runFileHeadings()
{
    return {Runs::tr("Old name"), Runs::tr("New name"), Runs::tr("Now"), Runs::tr("Folder")};
}

QString thereNowText(FileNow now)
{
    switch (now) {
    case FileNow::HasNewName:
        return Runs::tr("has its new name");
    case FileNow::HasOldName:
        return Runs::tr("has its old name");
    case FileNow::OtherFile:
        return Runs::tr("another file is there");
    case FileNow::Missing:
        return Runs::tr("is not there");
    }
    Q_UNREACHABLE();
}

QString runsMenuText()
{
    return Runs::tr("Runs…");
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

QString finishStartedText()
{
    return Runs::tr("Finishing a run started");
}

QString notTakenBackText(const QString &name, const QString &reason)
{
    return Runs::tr("Could not take back file '%1': %2").arg(name, reason);
}

QString interruptedText(const JournalInfo &journal)
{
    if (!journal.isRun())
        return Runs::tr("An undo was interrupted; what it left can still be taken back");
    const QString time = timeText(journal.time);
    if (journal.canFinish())
        return Runs::tr("The run of %1 was interrupted; \"Runs…\" can finish it or put it back").arg(time);
    return Runs::tr("The run of %1 was interrupted; what it renamed can be taken back").arg(time);
}

QString unrecordedText(qint64 renames)
{
    return renames == 0 ? Runs::tr("This run cannot be undone")
                        : Runs::tr("The last renames of this run cannot be undone: %1").arg(renames);
}
