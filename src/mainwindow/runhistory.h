// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/journalfolder.h"

#include <QObject>
#include <QThreadPool>

#include <optional>

/// What the window knows of the journals of its runs: what Undo and Redo would take back. A thread of its own
/// reads them, when the program starts, when the window becomes active, and when it is told to: neither the
/// start nor a run waits for a disk.
class RunHistory final : public QObject
{
    Q_OBJECT

public:
    /// Follows the window's activation; belongs to it.
    explicit RunHistory(QWidget *window);
    ~RunHistory() override;
    Q_DISABLE_COPY_MOVE(RunHistory)

    [[nodiscard]] JournalFolder &journals() { return folder; }
    /// No value where there is nothing to take back, or the journals were not read yet.
    [[nodiscard]] const std::optional<JournalInfo> &undoable() const { return undo; }
    [[nodiscard]] const std::optional<JournalInfo> &redoable() const { return redo; }

    /// Reads the journals again, soon.
    void refresh();
    /// After a run: lets go of journals that are too much, and reads the others.
    void pruneAndRefresh();

signals:
    /// What Undo and Redo would take back was looked at.
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void read();
    void take(const QList<JournalInfo> &newestFirst);
    void tellOfInterruption(const QList<JournalInfo> &newestFirst);

    JournalFolder folder;
    std::optional<JournalInfo> undo;
    std::optional<JournalInfo> redo;
    bool isReading = false;
    bool readsAgain = false;
    bool prunes = false;
    bool toldOfInterruption = false;
    QThreadPool reader;
};
