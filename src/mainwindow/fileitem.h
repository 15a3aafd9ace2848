// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "mainwindow/fatemark.h"
#include "mainwindow/rownames.h"
#include "run/outcome.h"

#include <QListWidgetItem>

#include <memory>

/// A row of the file list. Its text may wait until somebody asks for it: a hundred thousand new names would
/// hold up the window.
class FileItem final : public QListWidgetItem
{
public:
    enum Role {
        /// Qt::UserRole itself is the path.
        /// The id of what becomes of the row, as idOf() has it; no value where nothing is told.
        FateRole = Qt::UserRole + 1,
        /// A FateMark.
        MarkRole,
        /// The name on disk; no value where the row shows no other one.
        OldNameRole,
    };

    /// The number tells in which order the rows were added.
    FileItem(const QString &path, const RowText &shown, quint32 numberOfAdding);

    [[nodiscard]] FileItem *clone() const override;
    [[nodiscard]] QVariant data(int role) const override;
    void setData(int role, const QVariant &value) override;

    [[nodiscard]] const QString &path() const { return filePath; }
    [[nodiscard]] quint32 number() const { return numberOfAdding; }
    // Whoever calls these tells the model, or shows the texts himself.

    void setPath(const QString &path);
    /// Each row becomes the other one: the list need not be told that rows have moved, nor be laid out.
    void swapWith(FileItem &other);
    /// Lets the text wait.
    void awaitText(const std::shared_ptr<const RowNames> &names, int row);
    void setRowText(const RowText &shown);
    /// Finds the text if it waits.
    void settle() const;
    [[nodiscard]] const QString &rowText() const;
    /// The name that the row shows, without the folder.
    [[nodiscard]] QString shownName() const;

    /// Until the list forgets the fates, the row says what becomes of it, or, if it is past, what became.
    void tell(const Outcome &outcome, bool isPast);
    /// No value where nothing is told.
    [[nodiscard]] std::optional<Fate> fate() const;
    [[nodiscard]] FateMark mark() const;

private:
    /// All that makes the row.
    [[nodiscard]] auto contents();
    [[nodiscard]] bool isTold() const;
    [[nodiscard]] QString sentence() const;
    [[nodiscard]] QVariant oldName() const;

    QString filePath;
    /// Null where the text does not wait.
    mutable std::shared_ptr<const RowNames> awaited;
    mutable QString text;
    mutable int nameAt = 0;
    int awaitedRow = 0;
    quint32 numberOfAdding = 0;

    /// Of the list's fates; 0: none was ever told.
    int age = 0;
    Fate toldFate = Fate::Unknown;
    Fate toldReason = Fate::Unknown;
    int otherRow = -1;
    bool isPast = false;
};
