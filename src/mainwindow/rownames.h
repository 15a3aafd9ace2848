// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/rulechain.h"
#include "run/filepath.h"

/// What a row shows.
struct RowText
{
    /// The name, with its folder before it where that is shown.
    RowText(const FilePath &file, const QString &name, bool showsFolder);

    QString text;
    /// Where the name begins.
    qsizetype nameAt = 0;
};

/// How the rows were named when they were refreshed last: rows that were not shown yet are still named so
/// after the rules or the buttons have changed.
class RowNames final
{
public:
    RowNames(RuleSteps rules, bool withFolders);

    /// The row is its place in the list when it was refreshed.
    [[nodiscard]] RowText textOf(const QString &path, int row) const;

private:
    RuleSteps steps;
    bool showsFolder;
    mutable FilePaths filePaths;
};
