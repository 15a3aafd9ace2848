// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/foldernumbers.h"

#include <algorithm>
#include <utility>

FolderNumbers::Slot &FolderNumbers::slotOf(size_t hash)
{
    // 0 stands for an empty slot.
    hash = std::max<size_t>(hash, 1);
    const size_t mask = table.size() - 1;
    size_t at = hash & mask;
    while (table[at].hash != hash && table[at].hash != 0)
        at = (at + 1) & mask;
    return table[at];
}

void FolderNumbers::insert(size_t hash, quint64 number)
{
    if (2 * static_cast<size_t>(++entries) > table.size())
        grow();
    slotOf(hash) = {std::max<size_t>(hash, 1), number};
}

void FolderNumbers::grow()
{
    const std::vector<Slot> before =
        std::exchange(table, std::vector<Slot>(std::max<size_t>(4 * table.size(), 1024)));
    for (const Slot &slot : before) {
        if (slot.hash != 0)
            slotOf(slot.hash) = slot;
    }
}

quint64 FolderNumbers::take(QStringView name)
{
    return table.empty() ? 0 : std::exchange(slotOf(hashOf(name)).number, 0);
}
