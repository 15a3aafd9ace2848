// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QObject>

class ActiveRules;
class QAbstractButton;
class QPushButton;
class QShortcut;
class QToolButton;
class Rule;
struct RuleData;

namespace Ui {
class MainWindow;
}

/// Edits a rule of the list in its place: shows its values in the editor of its kind, and lets those take the
/// rule's place then. What Add does stays the same meanwhile.
class RuleEdit final : public QObject
{
    Q_OBJECT

public:
    /// The kinds by the page of their editor.
    RuleEdit(ActiveRules &ofRules, const QMap<int, Rule *> &ofKinds, const Ui::MainWindow &ofWindow);

    /// The row of the rule, or -1.
    [[nodiscard]] int editedRow() const;

signals:
    /// It began or ended.
    void editingChanged(bool isEditing);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void createButtons();
    void addKeys();
    void retranslate();
    void begin(int row);
    void apply();
    void leave();
    void setEditing(bool isEditing);
    void followRules();

    ActiveRules &rules;
    const QMap<int, Rule *> &kinds;
    const Ui::MainWindow &ui;
    QPushButton *applyButton = nullptr;
    QToolButton *leaveButton = nullptr;
    QShortcut *leaveKey = nullptr;
    /// Null while no rule is edited.
    const RuleData *edited = nullptr;
};
