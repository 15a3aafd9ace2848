// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QTimer>

class ElidedLabel;
class Fates;
class Rule;

namespace Ui {
class MainWindow;
}

/// Shows what the rule in the editor would make of the current row's name, before it is added.
class RuleExample final : public QObject
{
    Q_OBJECT

public:
    /// The kinds by the page of their editor, which must be there.
    RuleExample(const QMap<int, Rule *> &ofKinds, const Fates &ofFates, const Ui::MainWindow &ofWindow);

private:
    void watchEditors();
    void refresh();

    const QMap<int, Rule *> &kinds;
    const Ui::MainWindow &ui;
    ElidedLabel *label;
    /// A pattern may take some tenths of a second: it waits for a pause in typing.
    QTimer pause;
};
