// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QTimer>

class ActiveRules;
class ElidedLabel;
class Fates;
class FileItem;
class Rule;
class RuleEdit;

namespace Ui {
class MainWindow;
}

/// Shows what the rule in the editor would make of the current row's name, before it is added: of the name
/// that the row shows, or, while Preview is down and a rule edited, of what the rules above that one make of
/// it.
class RuleExample final : public QObject
{
    Q_OBJECT

public:
    /// The kinds by the page of their editor, which must be there.
    RuleExample(const QMap<int, Rule *> &ofKinds, const ActiveRules &ofRules, const RuleEdit &ofEdit,
                const Fates &ofFates, const Ui::MainWindow &ofWindow);

private:
    void watchEditors();
    void refresh();

    [[nodiscard]] QString nameOf(const FileItem &item, int row) const;

    const QMap<int, Rule *> &kinds;
    const ActiveRules &rules;
    const RuleEdit &edit;
    const Ui::MainWindow &ui;
    ElidedLabel *label;
    /// A pattern may take some tenths of a second: it waits for a pause in typing.
    QTimer pause;
};
