// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "mainwindow/explorerlisting.h"

#include <QAbstractItemModel>
#include <QFileIconProvider>
#include <QHash>
#include <QIcon>
#include <QThreadPool>
#include <QTimer>

#include <list>
#include <memory>
#include <vector>

/// The machine's folders and files, as far as they were opened, by name: the model of the explorer.
/// It watches nothing: a folder is read when it is opened, and again when refresh() is called. Reading and
/// sorting are another thread's work; the rows then change in slices, only where they differ, so that what
/// stays keeps its index.
class ExplorerModel final : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit ExplorerModel(QObject *parent = nullptr);
    ~ExplorerModel() override;
    Q_DISABLE_COPY_MOVE(ExplorerModel)

    [[nodiscard]] QString path(const QModelIndex &index) const;
    /// Reads a folder again unless that is in hand or it cannot have changed. The invalid index is the
    /// machine: its drives are read.
    void refresh(const QModelIndex &folder);
    /// Whether some folder is being read, or its rows are being changed.
    [[nodiscard]] bool isBusy() const;
    /// What reading and changing rows took since the last call, in nanoseconds.
    [[nodiscard]] qint64 takeCost();

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &child) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] bool hasChildren(const QModelIndex &parent = {}) const override;
    [[nodiscard]] bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] QMimeData *mimeData(const QModelIndexList &indexes) const override;
    [[nodiscard]] Qt::DropActions supportedDragActions() const override;

signals:
    /// Its rows are those that it was last read with; nothing need have changed.
    void folderRead(const QModelIndex &folder);

private:
    struct Node
    {
        ExplorerEntry entry;
        Node *parent = nullptr;
        std::vector<std::unique_ptr<Node>> children = {};
        QDateTime stamp = {};
        /// Of the reading or the change of rows that is in hand; 0: none.
        int job = 0;
        bool wasRead = false;
    };
    /// The rows of a folder on their way to what was read: those before a position are there.
    struct Update
    {
        Node *node = nullptr;
        std::vector<ExplorerEntry> entries;
        std::size_t position = 0;
    };

    [[nodiscard]] Node *nodeAt(const QModelIndex &index) const;
    [[nodiscard]] QModelIndex indexOf(const Node *node) const;
    [[nodiscard]] QString pathOf(const Node *node) const;
    [[nodiscard]] QIcon icon(const Node *node) const;

    void read(Node *node);
    void take(int job, ExplorerListing listing);
    void updateRows();
    [[nodiscard]] bool changeRange(Update &update);
    void insertRange(Update &update, std::size_t end);
    void removeRange(const Update &update, std::size_t end);
    void finish(Node *node);
    void forget(const Node &node);

    std::unique_ptr<Node> root;
    /// The folders with a job in hand, by its number.
    QHash<int, Node *> jobs;
    int lastJob = 0;
    std::list<Update> updates;
    QTimer sliceTimer;
    qint64 cost = 0;
    /// Finding an icon can mean a walk through an icon theme: each is found once.
    mutable QHash<QString, QIcon> fileIcons;
    QFileIconProvider iconProvider;
    QIcon driveIcon;
    QIcon folderIcon;
    QIcon fileIcon;
    /// The last member: gone, with all that it works on, before what it works for.
    QThreadPool readers;
};
