// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/filepath.h"
#include "run/outcome.h"

#include <QStringList>

// What becomes of rows, in words.

struct FateCounts
{
    int renamed = 0;
    int unchanged = 0;
    int stuck = 0;
    int unknown = 0;

    void add(const Outcome &outcome);
};

/// "128 files"
[[nodiscard]] QString filesText(int count);
/// "3 keep their names"
[[nodiscard]] QString keptText(int count);
[[nodiscard]] QString checkingText();
/// What a click on the account of the files does.
[[nodiscard]] QString troubleText();
[[nodiscard]] QString selectionText(int files, int selected);
[[nodiscard]] QString countsText(int files, const FateCounts &counts);

/// Why a file stays, behind a colon.
[[nodiscard]] QString reasonText(Fate reason);
/// What will become of a row; empty where it is renamed as its rules say. The outcome's path is not asked.
[[nodiscard]] QString futureSentence(const Outcome &outcome, const FilePath &file, const QString &newName);
/// Why a row was not renamed.
[[nodiscard]] QString pastSentence(const Outcome &outcome);
/// "2: the name is taken"
[[nodiscard]] QString groupText(Fate reason, int count);

// Of the details of a report.
[[nodiscard]] QString showDetailsText();
[[nodiscard]] QString detailsTitle();
[[nodiscard]] QStringList detailsHeadings();
[[nodiscard]] QString copyText();
[[nodiscard]] QString closeText();

/// As a tool tip that shows markup as it is.
[[nodiscard]] QString plainToolTip(const QString &text);
/// The sentence, which may be empty, and below it the path, in as many lines as it needs.
[[nodiscard]] QString rowToolTip(const QString &sentence, const QString &path);
