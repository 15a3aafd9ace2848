// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringView>

/// Whether what stands there is half a character: a surrogate without its other one.
[[nodiscard]] inline bool isHalf(QStringView text, qsizetype at)
{
    const QChar unit = text.at(at);
    if (unit.isHighSurrogate())
        return at + 1 == text.size() || !text.at(at + 1).isLowSurrogate();
    return unit.isLowSurrogate() && (at == 0 || !text.at(at - 1).isHighSurrogate());
}
