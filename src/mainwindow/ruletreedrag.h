// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPoint>

class ActiveRules;
class QDropEvent;
class QMimeData;
class QTreeWidget;

/// Lets the rules be dragged to other places of their list, and files of rule sets be dropped on it.
class RuleTreeDrag final : public QObject
{
    Q_OBJECT

public:
    RuleTreeDrag(ActiveRules &ofRules, QTreeWidget *ofTree);

signals:
    void ruleSetsDropped(const QStringList &paths);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] bool dragFiles(QDropEvent *event);
    void dropRule(QPoint place);
    [[nodiscard]] int rowBelow(QPoint place) const;

    ActiveRules &rules;
    QTreeWidget *tree;
};
