// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/rownames.h"

#include "rules/rulechain.h"

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

RowNames::RowNames(std::vector<RuleData> rules, bool withFolders)
    : chain(std::move(rules))
    , showsFolder(withFolders)
{
}

RowText RowNames::textOf(const QString &path, int row) const
{
    const FilePath file = filePaths.split(path);
    QString name = file.name();
    for (const RuleData &record : chain)
        name = applyRuleChain(&record, name, row);
    return {file, name, showsFolder};
}
