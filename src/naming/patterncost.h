// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringView>

#include <functional>

/// What reading a pattern in the syntax of RegExp tells about it, before the engine sees it.
enum class PatternCost {
    /// It would overflow the engine's stack or use up the memory.
    Exhausting,
    /// A search takes a fraction of the limit, whatever the name.
    Small,
    /// isQuickEnough() finds out.
    Unknown
};

/// Errors in the pattern are left for the engine to find. docs/patterns.md tells what is bounded, and why.
[[nodiscard]] PatternCost patternCost(QStringView pattern);

/// Whether the worst name for a pattern, of up to 255 characters, takes less than 50 ms of processor time:
/// found out by letting search look through names made of the pattern's own characters. A search in hand
/// cannot be stopped, so the names grow no faster than their cost allows, and the first that takes too long
/// is the last.
[[nodiscard]] bool isQuickEnough(QStringView pattern, const std::function<void(const QString &)> &search);
