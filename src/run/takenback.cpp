// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/takenback.h"

#include <utility>

void TakenBack::add(qint64 number, int half)
{
    const int before = halves.value(number);
    if (half != 0 && (before == 0 || before == half)) {
        if (!whole.contains(number))
            halves.insert(number, half);
        return;
    }
    halves.remove(number);
    whole.insert(number);
}

void TakenBack::add(const TakenBack &more)
{
    for (const qint64 number : more.whole)
        add(number);
    for (const auto &[number, half] : more.halves.asKeyValueRange())
        add(number, half);
}

TakenBack::Standing TakenBack::halfOf(const JournalEntry &exchange, int half)
{
    Standing standing;
    standing.entry = half == 2 ? otherOf(exchange) : exchange;
    standing.entry.other.reset();
    standing.half = half;
    return standing;
}

std::optional<TakenBack::Standing> TakenBack::standing(JournalEntry entry) const
{
    if (whole.contains(entry.number))
        return std::nullopt;
    const int gone = halves.value(entry.number);
    if (gone == 0)
        return Standing{.entry = std::move(entry)};
    // Nobody takes half of a rename back.
    if (!entry.other)
        return std::nullopt;
    return halfOf(entry, 3 - gone);
}
