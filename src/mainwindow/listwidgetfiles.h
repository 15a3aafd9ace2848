// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QListWidget>
#include <QMimeData>
#include <QSet>
#include <QTimer>

#include <memory>
#include <optional>

class FileItem;
class FileItemDelegate;
class RowNames;
struct RowText;

/// The list of files. A row's Qt::UserRole data is the file's full path.
/// Made for a hundred thousand rows that come one at a time: a set of the paths answers containsPath() at
/// once, and the layout, which walks all rows, is held back so that it takes a twentieth of the time at most.
/// New texts need none: the rows stay where they are, and their width follows.
class ListWidgetFiles final : public QListWidget
{
    Q_OBJECT

public:
    explicit ListWidgetFiles(QWidget *parent = nullptr);

    /// Whether some row's Qt::UserRole data is exactly this text.
    [[nodiscard]] bool containsPath(const QString &path) const;
    /// The Qt::UserRole data of a row, 0 to count() - 1.
    [[nodiscard]] QString path(int row) const;

    void appendRow(const QString &path, const QString &text = {});
    [[nodiscard]] QRect visualRect(const QModelIndex &index) const override;
    /// Deletes every selected row, at constant cost for each row of the list.
    void removeSelected();
    /// Lets rows that were added since the last layout show at once.
    void showAddedRows();

    /// The row as it was appended; null where another item was put in.
    [[nodiscard]] FileItem *fileItem(int row) const;

    /// Forgets how wide the texts are, and the fates; to be called before every row gets another text.
    void forgetTexts();
    /// Lets a row's text wait until somebody asks for it. Nobody is told: showTexts() shows it.
    void awaitText(int row, const std::shared_ptr<const RowNames> &names);
    /// Shows texts that have changed. Rows may be wider than their texts until all of them are known.
    void showTexts(bool areAllKnown);
    /// Makes rows wide enough for this text.
    void includeWidth(const QString &text);

    /// What rows were told at another age counts for nothing.
    [[nodiscard]] int ageOfFates() const { return age; }
    void forgetFates();

    /// Has files added as those of a drop are.
    void handOver(const QMimeData *files);
    /// Whether a drop is being handled: until then the window system's drag and drop needs the native window.
    [[nodiscard]] bool isHandlingDrop() const;

    /// Sets a row's Qt::UserRole data. Nothing that is shown changes, and nobody else is told.
    void setPath(int row, const QString &path);
    void setRowText(int row, const RowText &text);

    void doItemsLayout() override;
    void reset() override;

signals:
    void contentChanged(const QMimeData *data);

public slots:
    void onClear();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QList<int> &roles = {}) override;
    void rowsInserted(const QModelIndex &parent, int first, int last) override;
    void rowsAboutToBeRemoved(const QModelIndex &parent, int first, int last) override;

private:
    /// Empty while nobody has asked since a path changed or went.
    mutable std::optional<QSet<QString>> knownPaths;

    FileItemDelegate *delegate;
    QTimer layoutTimer;
    QElapsedTimer sinceLayout;
    bool handlesDrop = false;
    /// Of the last layout, in nanoseconds.
    qint64 layoutCost = 0;
    /// Rows from here to lastAddedRow are not known to the base class yet; -1: all are.
    int firstAddedRow = -1;
    int lastAddedRow = -1;
    /// Where it is not that of the last layout; otherwise 0.
    int rowWidth = 0;
    int age = 1;
    /// Of adding.
    quint32 numberOfLast = 0;
};
