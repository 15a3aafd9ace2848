// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPersistentModelIndex>

class ExplorerModel;
class QTreeView;

/// Opens a folder in the explorer with all above it, each as soon as it has been read, and brings it to the
/// top. Whoever uses the tree meanwhile ends that.
class ExplorerRoad final : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the tree, whose model is set. Opens the first folder when the tree is shown first.
    ExplorerRoad(QTreeView *explorerTree, ExplorerModel *explorerModel, const QString &first);

    /// Opens the folder and makes it the only one that is selected. What is not there is opened as far as
    /// there is something.
    void goTo(const QString &folder);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class Arrival { Quiet, Selected };

    void setOut(const QString &folder, Arrival arrival);
    void goOn(QModelIndex from);
    void arrive();
    void stop();
    void onRead(const QModelIndex &folder);
    [[nodiscard]] QModelIndex next(const QModelIndex &from) const;

    QTreeView *tree;
    ExplorerModel *model;
    QString target;
    Arrival onArrival = Arrival::Quiet;
    bool isOnItsWay = false;
    /// True while it opens a folder itself.
    bool isOpening = false;
    /// The folder whose reading it waits for.
    QPersistentModelIndex stage;
};
