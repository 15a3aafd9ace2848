// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QListWidget>
#include <QMimeData>
#include <QSet>
#include <QTimer>

#include <optional>

class FileItemDelegate;

/// The list of files. A row's Qt::UserRole data is the file's full path.
/// Made for a hundred thousand rows that come one at a time: a set of the paths answers containsPath() at
/// once, and the layout, which walks all rows, is held back so that it takes a twentieth of the time at most.
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
    /// Deletes every selected row, at constant cost for each row of the list.
    void removeSelected();
    /// Lets rows that were added since the last layout show at once.
    void showAddedRows();

    /// Lays all rows out again in the next pass of the event loop; to be called before many texts change.
    void layoutLater();

    /// Whether a drop is being handled: until then the window system's drag and drop needs the native window.
    [[nodiscard]] bool isHandlingDrop() const;

    /// Sets a row's Qt::UserRole data. Nothing that is shown changes, and nobody else is told.
    void setPath(int row, const QString &path);
    /// Sets a row's text. While a layout is requested nobody else is told: it shows all texts anyway.
    void setRowText(int row, const QString &text);

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
    bool layoutRequested = false;
    /// Of the last layout, in nanoseconds.
    qint64 layoutCost = 0;
    /// Rows from here to lastAddedRow are not known to the base class yet; -1: all are.
    int firstAddedRow = -1;
    int lastAddedRow = -1;
};
