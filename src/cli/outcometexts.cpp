// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/outcometexts.h"

#include <QLocale>

using namespace Qt::StringLiterals;

QString reasonInWords(Fate reason)
{
    switch (reason) {
    case Fate::Renamed:
        return u"renamed"_s;
    case Fate::Unchanged:
        return u"keeps its name"_s;
    case Fate::Missing:
        return u"the file is not there"_s;
    case Fate::Empty:
        return u"the new name is empty or only dots"_s;
    case Fate::NoFolder:
        return u"there is no such folder"_s;
    case Fate::NotAllowed:
        return u"the file system does not take the new name"_s;
    case Fate::TooLong:
        return u"the new name is too long"_s;
    case Fate::ReadOnly:
        return u"nothing can be renamed in this folder"_s;
    case Fate::NoText:
        return u"the name is no text"_s;
    case Fate::Unknown:
        return u"the system refused"_s;
    case Fate::OtherFile:
        return u"another file has its name"_s;
    default:
        return u"the name is taken"_s;
    }
}

QString troubleInWords(const Outcome &outcome, const QString &blocker)
{
    QString text = reasonInWords(outcome.reason);
    if (outcome.reason == Fate::TakenByRow && !blocker.isEmpty())
        text = blocker + " takes the name"_L1;
    if (outcome.reason == Fate::LeavesLater && !blocker.isEmpty())
        text = blocker + " still has the name"_L1;
    return outcome.fate == Fate::Separator ? text + ", and the new name leads to another folder"_L1 : text;
}

QString filesInWords(qint64 count)
{
    return count == 1 ? u"1 file"_s : QLocale(QLocale::English).toString(count) + " files"_L1;
}

QString planInWords(int files, const PlanCounts &counts)
{
    QString text = filesInWords(files) + u": %1 would be renamed"_s.arg(counts.renamed);
    if (counts.unchanged > 0)
        text += u", %1 would keep %2"_s.arg(counts.unchanged)
                    .arg(counts.unchanged == 1 ? u"its name"_s : u"their names"_s);
    return counts.stuck > 0 ? text + u", %1 could not be renamed"_s.arg(counts.stuck) : text;
}

QString noJournalInWords(const QString &error)
{
    return u"nothing was renamed: the run could not be undone, as its journal cannot be written (%1); "
           "with --no-undo it is done all the same"_s.arg(error);
}

QString refusalInWords(UndoRun::Refusal refusal)
{
    switch (refusal) {
    case UndoRun::Refusal::InHand:
        return u"another program is at this run"_s;
    case UndoRun::Refusal::NotOurs:
        return u"this run is of another machine, or of a newer version of the program"_s;
    case UndoRun::Refusal::TouchedLater:
        return u"a later run renamed some of these files: take that one back first"_s;
    default:
        return u"nothing of this run is left to be taken back"_s;
    }
}

QString idOf(const JournalInfo &run)
{
    if (run.canTakeBack() && run.isPartlyTakenBack())
        return u"partly-taken-back"_s;
    const QString ended = run.isTakenBack() ? u"taken-back"_s : QString();
    switch (run.state) {
    case JournalInfo::State::Complete:
        return ended.isEmpty() ? u"complete"_s : ended;
    case JournalInfo::State::Cancelled:
        return ended.isEmpty() ? u"cancelled"_s : ended;
    case JournalInfo::State::Interrupted:
        return ended.isEmpty() ? u"interrupted"_s : ended;
    case JournalInfo::State::InHand:
        return u"in-hand"_s;
    case JournalInfo::State::OtherMachine:
        return u"other-machine"_s;
    case JournalInfo::State::Newer:
        return u"newer"_s;
    case JournalInfo::State::Unreadable:
        return u"unreadable"_s;
    }
    Q_UNREACHABLE();
}

QString stateInWords(const JournalInfo &run)
{
    const QString id = idOf(run);
    if (id == "other-machine"_L1)
        return u"of another machine"_s;
    if (id == "newer"_L1)
        return u"of a newer version"_s;
    return QString(id).replace(u'-', u' ');
}

QString timeInWords(const QDateTime &time)
{
    return time.toLocalTime().toString(u"yyyy-MM-dd HH:mm:ss"_s);
}
