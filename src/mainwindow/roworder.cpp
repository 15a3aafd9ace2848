// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/roworder.h"

#include "mainwindow/fileitem.h"
#include "mainwindow/listwidgetfiles.h"

#include <QElapsedTimer>

#include <algorithm>
#include <limits>
#include <numeric>

RowOrder::RowOrder(ListWidgetFiles &listOfFiles, QList<int> placesOfRows, QList<int> rowsOfPlaces)
    : list(listOfFiles)
    , places(std::move(placesOfRows))
    , order(std::move(rowsOfPlaces))
    , sources(order)
{
}

bool RowOrder::goOn(qint64 duration)
{
    QElapsedTimer clock;
    clock.start();
    for (int moves = 1; startOfRound < sources.size(); ++moves) {
        moveOne();
        if (moves % 64 == 0 && clock.nsecsElapsed() > duration)
            return true;
    }
    return false;
}

void RowOrder::finish()
{
    while (goOn(std::numeric_limits<qint64>::max())) {
    }
}

void RowOrder::moveOne()
{
    const int source = std::exchange(sources[place], place);
    if (source == startOfRound) {
        place = ++startOfRound;
        return;
    }
    FileItem *row = list.fileItem(places.at(place));
    FileItem *other = list.fileItem(places.at(source));
    if (row && other)
        row->swapWith(*other);
    place = source;
}

int RowOrder::newPlace(int row) const
{
    const auto at = std::lower_bound(places.begin(), places.end(), row);
    if (at == places.end() || *at != row)
        return row;
    return places.at(order.indexOf(static_cast<int>(at - places.begin())));
}

QList<int> RowMoves::targets(const QList<int> &rows, int count, To where)
{
    QList<int> targets = rows;
    const bool isUp = where == To::Up || where == To::First;
    const int step = where == To::Up || where == To::Down ? 1 : count;
    int nearest = isUp ? 0 : count - 1;
    for (qsizetype i = 0; i < rows.size(); ++i) {
        int &target = targets[isUp ? i : rows.size() - 1 - i];
        target = isUp ? std::max(nearest++, target - step) : std::min(nearest--, target + step);
    }
    return targets;
}

RowOrder RowMoves::ordered(ListWidgetFiles &list, const QList<int> &rows, const QList<int> &targets)
{
    const int first = std::min(rows.constFirst(), targets.constFirst());
    const int last = std::max(rows.constLast(), targets.constLast());
    QList<int> places(last - first + 1);
    std::iota(places.begin(), places.end(), first);
    QList<int> order(places.size(), -1);
    QList<bool> isMoved(places.size(), false);
    for (qsizetype i = 0; i < rows.size(); ++i) {
        order[targets.at(i) - first] = rows.at(i) - first;
        isMoved[rows.at(i) - first] = true;
    }
    int other = 0;
    for (int &source : order) {
        if (source >= 0)
            continue;
        while (isMoved.at(other))
            ++other;
        source = other++;
    }
    return {list, places, order};
}
