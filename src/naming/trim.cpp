// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "naming/transform.h"

QString transformed(const TrimParameters &parameters, QString name, int /*row*/)
{
    if (parameters.fromStart)
        return name.remove(parameters.position, parameters.length);
    // Deliberate: from the end the run always begins length characters before the end, and the position only
    // shortens it when the name is short. A start before the name counts from its end, as QString::remove has
    // it.
    const qsizetype size = name.size();
    return name.remove(size - parameters.length, size - parameters.position);
}
