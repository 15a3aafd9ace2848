// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/sortkey.h"

SortKey sortKey(const QCollator &collator, const QString &name)
{
    return collator.sortKey(name);
}
