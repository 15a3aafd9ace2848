// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "naming/insertion.h"

QString insertedInto(QString name, const QString &text, int position, bool fromStart)
{
    const qsizetype index = fromStart ? position : name.size() - position;
    if (index < 0 || text.isEmpty())
        return name;
    return name.insert(index, text);
}
