// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "mainwindow/loadedruleset.h"
#include "naming/rulesetfolder.h"

#include <QMenu>

class ElidedLabel;
class QToolButton;

namespace Ui {
class MainWindow;
}

/// The button "Rule sets", its menu, and which set the active rules came from.
class RuleSetMenu final : public QObject
{
    Q_OBJECT

public:
    /// The kinds by their place in the catalogue.
    RuleSetMenu(ActiveRules &ofRules, const QMap<int, Rule *> &ofKinds, const Ui::MainWindow &ofWindow);

    /// The row has no room for it while a rule is edited.
    void setHidden(bool isHidden);
    /// Makes saved sets of them. The rules of a single one become the active ones.
    void importFiles(const QStringList &paths);
    /// To be called at the end: the active rules are offered at the next start.
    void keepLastUsed() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void createWidgets(const Ui::MainWindow &ofWindow);
    void retranslate();
    void showName();
    void fill();
    void addSaved();
    void addExamples();
    void addCommand(const char *objectName, const QString &text, void (RuleSetMenu::*command)());

    void choose(const RuleSet &set, const QString &path, LoadedRuleSet::Kept kept);
    void chooseFile(const QString &path, const QString &savePath, LoadedRuleSet::Kept kept);
    void chooseLastUsed();
    void save();
    void saveAs();
    void manage();
    void openFile();

    [[nodiscard]] QWidget *window() const;

    const ActiveRules &rules;
    LoadedRuleSet loaded;
    RuleSetFolder folder;
    QMenu menu;
    QToolButton *button = nullptr;
    ElidedLabel *label = nullptr;
};
