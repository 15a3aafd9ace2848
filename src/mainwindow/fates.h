// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "mainwindow/failures.h"
#include "mainwindow/fatetexts.h"
#include "mainwindow/rownames.h"
#include "run/forecast.h"

#include <QElapsedTimer>
#include <QThreadPool>
#include <QTimer>

#include <memory>
#include <optional>

class AllOrNothing;
class ListWidgetFiles;
class QAbstractButton;
struct PlanInHand;

/// Refreshes the file list in slices, so that the window stays alive: finds the rows' texts and, while
/// Preview is down, what a run would come to. It starts anew with every change of the list, and looks at the
/// disk again when the window becomes active.
class Fates final : public QObject
{
    Q_OBJECT

public:
    Fates(ListWidgetFiles &list, const QAbstractButton &preview);
    ~Fates() override;
    Q_DISABLE_COPY_MOVE(Fates)

    /// From now on runs may be planned ones, which must outlive this object.
    void follow(const AllOrNothing &allOrNothing);

    /// While it lives every row gets its new text, which waits until somebody asks for it.
    class Refresh final
    {
    public:
        Refresh(Fates &of, RowNames names);
        ~Refresh();
        Q_DISABLE_COPY_MOVE(Refresh)

    private:
        Fates &fates;
    };

    /// Null when no refresh is in hand.
    [[nodiscard]] std::shared_ptr<const RowNames> refreshedNames() const { return names; }

    /// After a run's refresh, and until the next: says why rows were not renamed.
    void showFailures(const Failures &failures);

    /// Whether rows are told what becomes of them.
    [[nodiscard]] bool areForetold() const;
    /// Whether all of it is told.
    [[nodiscard]] bool isDone() const { return stage == Stage::Done; }
    [[nodiscard]] const FateCounts &counts() const { return told; }
    /// Whether what is told is that of a run that renames all rows or none.
    [[nodiscard]] bool arePlanned() const;

signals:
    /// What the functions above say, and how many rows there are.
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class Stage { Texts, Listing, Planning, Telling, Done };

    void startAgain();
    void rowsChanged();
    void work();
    [[nodiscard]] bool hasToWait() const;
    void doNextRow();
    void listRow(int row);
    void tellRow(int row);
    void finishStage();
    void beginListing();
    void planAside();

    ListWidgetFiles &list;
    const QAbstractButton &preview;
    std::shared_ptr<const RowNames> names;

    Stage stage = Stage::Done;
    int nextRow = 0;
    SystemDiskView disk;
    FilePaths filePaths;
    const AllOrNothing *allOrNothing = nullptr;
    /// One of both, while there are rows to be told.
    std::optional<Forecast> forecast;
    std::shared_ptr<PlanInHand> plan;
    FateCounts told;

    QTimer timer;
    /// Invalid after a refresh, which shall be seen at once.
    QElapsedTimer sinceRowsChanged;
    /// Makes the plan; the last member, as it is waited for at the end.
    QThreadPool planner;
};
