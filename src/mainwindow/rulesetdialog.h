// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "naming/rulesetfolder.h"

#include <QDialog>

class LoadedRuleSet;
class QListWidget;
class QListWidgetItem;
class QPushButton;

/// Renames, deletes, imports and exports saved rule sets.
class RuleSetDialog final : public QDialog
{
    Q_OBJECT

public:
    RuleSetDialog(QWidget *parent, const RuleSetFolder &ofSets, LoadedRuleSet &ofLoaded);

private:
    void createButtons();
    void fill(const QString &currentPath);
    void enableButtons();
    [[nodiscard]] RuleSetFolder::Entry current() const;

    void rename(const QListWidgetItem *item);
    void remove();
    void importFiles();
    void exportFile();

    const RuleSetFolder &folder;
    LoadedRuleSet &loaded;
    QList<RuleSetFolder::Entry> entries;
    QListWidget *list = nullptr;
    QPushButton *renameButton = nullptr;
    QPushButton *deleteButton = nullptr;
    QPushButton *exportButton = nullptr;
};
