// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/outcome.h"

#include <QRectF>

class QPainter;

/// What stands at the end of a row.
enum class FateMark {
    None,
    /// The row keeps its name, as its rules want it.
    Keeps,
    /// It goes to another folder.
    Moves,
    Unknown,
    /// It cannot be renamed.
    Stays,
};

[[nodiscard]] FateMark markOf(Fate fate, Fate reason);
/// Whether a user has to look at such a row.
[[nodiscard]] inline bool isTrouble(FateMark mark)
{
    return mark == FateMark::Stays || mark == FateMark::Unknown;
}

/// Each mark has a colour and a shape of its own.
void paintMark(QPainter *painter, const QRectF &square, FateMark mark);
