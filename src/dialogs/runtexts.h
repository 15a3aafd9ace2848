// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/undorun.h"

#include <QStringList>

// Runs and what their journals tell, in words.

/// When a run began, "11:27"; with its date where that is not today's.
[[nodiscard]] QString timeText(const QDateTime &time);

/// "/…/Photos", or "3 folders"
[[nodiscard]] QString placeText(const JournalInfo &journal);
/// What taking it back would do.
[[nodiscard]] QString takeBackText(const JournalInfo &journal);
/// That a planned run was interrupted, and where the choice is.
[[nodiscard]] QString unfinishedTip();
/// Why a run cannot be taken back.
[[nodiscard]] QString refusalText(UndoRun::Refusal refusal);

// Of the list of runs.
[[nodiscard]] QString runsTitle();
[[nodiscard]] QStringList runHeadings();
/// What became of it, and whether a later run touched its files.
[[nodiscard]] QString stateText(const JournalInfo &run, const JournalInfo *later);
/// That the later run has to be taken back before.
[[nodiscard]] QString touchedText(const JournalInfo &later);
/// What else is to be known of a run; mostly nothing.
[[nodiscard]] QString noteText(const JournalInfo &run);
[[nodiscard]] QString takeBackButtonText();
/// The same of a planned run that was interrupted, and its other choices.
[[nodiscard]] QString putBackButtonText();
[[nodiscard]] QString finishButtonText();
[[nodiscard]] QString leaveButtonText();
[[nodiscard]] QString showFilesText();
[[nodiscard]] QString forgetText();
[[nodiscard]] QString forgetAllText();
[[nodiscard]] QString forgetAllQuestion();

// Of the files of a run.
enum class FileNow { HasNewName, HasOldName, OtherFile, Missing };
[[nodiscard]] QString filesTitle(const JournalInfo &run);
[[nodiscard]] QStringList runFileHeadings();
[[nodiscard]] QString thereNowText(FileNow now);

// Of the menu.
[[nodiscard]] QString runsMenuText();
[[nodiscard]] QString undoText();
[[nodiscard]] QString redoText();
[[nodiscard]] QString closeRunsText();

// Lines of the log.
[[nodiscard]] QString undoStartedText();
[[nodiscard]] QString finishStartedText();
[[nodiscard]] QString notTakenBackText(const QString &name, const QString &reason);
[[nodiscard]] QString interruptedText(const JournalInfo &journal);
/// So many renames cannot be taken back; 0: all of the run.
[[nodiscard]] QString unrecordedText(qint64 renames);
