// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/rownames.h"

#include <QDir>

using namespace Qt::StringLiterals;

RowText::RowText(const FilePath &file, const QString &name, bool showsFolder)
    : text(name)
{
    if (!showsFolder)
        return;
    // Deliberate: a folder on a network share is shown with one leading separator.
    const QString folder = file.folder().toString().replace("//"_L1, "/"_L1) + QDir::separator();
    text = QDir::toNativeSeparators(folder + name);
    nameAt = folder.size();
}

RowNames::RowNames(RuleSteps rules, bool withFolders)
    : steps(std::move(rules))
    , showsFolder(withFolders)
{
}

RowText RowNames::textOf(const QString &path, int row) const
{
    const FilePath file = filePaths.split(path);
    return {file, applyRules(steps, file.name(), row), showsFolder};
}
