// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

class ListWidgetFiles;

/// Puts rows of the list into another order, a few at a time if wished: after each step every file is in the
/// list once. What the rows show goes with them; whether they are selected is left to whoever orders them.
class RowOrder final
{
public:
    /// Of these places, from the top to the bottom, each gets the row that stands at another one now: its
    /// index among the places.
    RowOrder(ListWidgetFiles &listOfFiles, QList<int> placesOfRows, QList<int> rowsOfPlaces);

    /// Goes on for so many nanoseconds; false when all is done.
    [[nodiscard]] bool goOn(qint64 duration);
    void finish();
    /// Where the row goes, or went, that stood at this place of the list.
    [[nodiscard]] int newPlace(int row) const;

private:
    void moveOne();

    ListWidgetFiles &list;
    const QList<int> places;
    const QList<int> order;
    /// Of order, what is still to be done. Rows that wait for one another's places are a round.
    QList<int> sources;
    int startOfRound = 0;
    int place = 0;
};

/// Orders of rows by the places to which those at some places go.
namespace RowMoves {
enum class To { Up, Down, First, Last };

/// Where these rows, from the top to the bottom, go when all move by one place or to an end: none leaves the
/// list, and those that are there already wait for the others.
[[nodiscard]] QList<int> targets(const QList<int> &rows, int count, To where);
/// All of them moved, the others closing up.
[[nodiscard]] RowOrder ordered(ListWidgetFiles &list, const QList<int> &rows, const QList<int> &targets);
} // namespace RowMoves
