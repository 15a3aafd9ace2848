// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/plannedtexts.h"

#include "mainwindow/allornothing.h"
#include "mainwindow/fatetexts.h"

QString allOrNothingText()
{
    return AllOrNothing::tr("All or nothing");
}

QString allOrNothingTip()
{
    return AllOrNothing::tr("All or nothing: a run renames every file of the list, or none");
}

QString refusedCountsText(int files, int stuck)
{
    return AllOrNothing::tr("%1: nothing will be renamed, as %2 cannot be")
        .arg(filesText(files), QString::number(stuck));
}

QString cancelledQuestion(int renamed, int rows)
{
    return AllOrNothing::tr("New names so far: %1 of %2. Put everything back, or keep what is done?")
        .arg(QString::number(renamed), QString::number(rows));
}

QString putEverythingBackText()
{
    return AllOrNothing::tr("Put everything back");
}

QString keepWhatIsDoneText()
{
    return AllOrNothing::tr("Keep what is done");
}

QString keptWord()
{
    //: of the report: files that have the name already which the rules make; a number follows
    return AllOrNothing::tr("Kept");
}

QString renameWhatCanBeText()
{
    return AllOrNothing::tr("Rename what can be");
}

QString notAllCanBeText()
{
    return AllOrNothing::tr("Nothing was renamed, as not every file can be.");
}

QString failedAndTakenBackText()
{
    return AllOrNothing::tr(
        "Nothing was renamed: one file failed, and the others have their old names again.");
}

QString cancelledAndTakenBackText()
{
    return AllOrNothing::tr("Nothing was renamed: the run was cancelled.");
}

QString cannotGoBackText(qsizetype standing)
{
    return AllOrNothing::tr(
               "The run could not be put back as a whole; files that do not have their old names: %1")
        .arg(standing);
}

QString needsJournalText()
{
    return AllOrNothing::tr("Nothing was renamed: the journal of the run cannot be written.");
}

QString stillUnfinishedText()
{
    return AllOrNothing::tr("The run is not finished yet.");
}

QString notPutBackText(const QString &oldName, const QString &nameNow)
{
    return AllOrNothing::tr("Could not put back file '%1': it is called '%2'").arg(oldName, nameNow);
}
