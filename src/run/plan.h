// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/foldermap.h"
#include "run/folderstep.h"
#include "run/outcome.h"

#include <vector>

/// In what order all rows of a list get their new names, swaps and shifts included: whoever waits for a name
/// comes after the one that leaves it. Nothing is written, and each folder that rows lead to is read once.
/// Every row is told, then the plan is made:
///
///     const SystemDiskView view;
///     Plan plan(view);
///     for (const QString &path : paths)
///         plan.add(FilePath::of(path), newNameOf(path));
///     plan.make();
///     if (plan.refused() == 0)
///         PlannedRun(...)
class Plan final
{
public:
    /// Rows that follow one another. In a line each leaves the name that the next one waits for. In a ring
    /// the first one waits for the name of the last, and nobody can begin.
    struct Group
    {
        qsizetype begin = 0;
        qsizetype end = 0;
        bool isRing = false;
    };

    explicit Plan(const DiskView &onView);
    ~Plan();
    Q_DISABLE_COPY_MOVE(Plan)

    /// A row, in their order.
    void add(const FilePath &file, const QString &newName);
    /// Once, after the last row.
    void make();

    /// What becomes of a row: Renamed, Unchanged, or why it cannot be. Good once the plan is made.
    [[nodiscard]] Outcome outcome(int row) const;
    /// The rows that cannot be renamed; those that keep their names are none.
    [[nodiscard]] int refused() const { return refusedRows; }
    [[nodiscard]] int kept() const { return keptRows; }

    /// The rows that can be renamed in their order, whether others cannot or not.
    [[nodiscard]] const std::vector<int> &order() const { return ordered; }
    [[nodiscard]] const std::vector<Group> &groups() const { return orderedGroups; }
    [[nodiscard]] const FilePath &file(int row) const { return rows.at(static_cast<size_t>(row)).file; }
    [[nodiscard]] QString target(int row) const;
    /// Whether the file has to go by a third name: the system takes the new spelling of its name for another
    /// file, or for none.
    [[nodiscard]] bool needsDetour(int row) const { return rows.at(static_cast<size_t>(row)).isOwnName; }

    [[nodiscard]] int count() const { return static_cast<int>(rows.size()); }
    /// Whether it is among those of the order.
    [[nodiscard]] bool isOrdered(int row) const { return rows.at(static_cast<size_t>(row)).isOrdered; }
    /// Whether its names are spelled exactly as they are, or will be, on the disk.
    [[nodiscard]] bool isExact(int row) const { return rows.at(static_cast<size_t>(row)).isExact; }

private:
    struct Row
    {
        FilePath file;
        QString newName;
        /// What is by the file's name; null where nothing is.
        ForecastFolder::Entry *entry = nullptr;
        Fate fate = Fate::Renamed;
        /// Of the row that has the new name, or shall have it; -1: none.
        int blocker = -1;
        /// Of the row that waits for this one's name.
        int waiter = -1;
        bool isOwnName = false;
        bool isOrdered = false;
        bool isExact = false;
        /// Whether something has the new name now; of no row, where there is no blocker.
        bool isHeld = false;
    };

    void findFile(int number);
    void noteMovedWay(const Row &row);
    [[nodiscard]] Fate claimName(int number);
    [[nodiscard]] Fate claim(const FolderStep &step, int number);
    void findBlocker(int number);
    void refuseWaiters(int number);
    void orderFrom(int number, bool isRing);
    [[nodiscard]] ForecastFolder &sourceOf(const Row &row);
    [[nodiscard]] ForecastFolder &targetOf(const Row &row, qsizetype lastPartAt);

    const DiskView &view;
    FolderMap folders;
    std::vector<Row> rows;
    std::vector<int> ordered;
    std::vector<Group> orderedGroups;
    int refusedRows = 0;
    int keptRows = 0;
};
