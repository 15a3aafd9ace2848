// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "naming/regexp.h"

#include <QString>

#include <variant>

/// The values that a number may have, both ends included.
struct Range
{
    int least;
    int most;
};

inline constexpr int highestNumber = 512;
inline constexpr Range positionRange{0, highestNumber};
inline constexpr Range lengthRange{1, highestNumber};
inline constexpr Range startNumberRange{0, highestNumber};
inline constexpr Range leadingZerosRange{0, 9};

struct ReplaceParameters
{
    ReplaceParameters() = default;
    ReplaceParameters(const QString &what, const QString &with, bool isPattern);

    QString replaceWhat;
    QString replaceWith;
    bool regExp = false;
    /// replaceWhat, compiled once; only where regExp is set.
    RegExp pattern;
};

struct TrimParameters
{
    int position = 0;
    int length = 1;
    bool fromStart = true;
};

struct ChangeCaseParameters
{
    bool firstLetters = false;
    bool upper = false;
    bool lower = false;
    bool ignoreExtension = false;
};

struct InsertTextParameters
{
    QString text;
    int position = 0;
    bool fromStart = true;
};

struct EnumerateParameters
{
    /// The number's minimum width is one more.
    int leadingZeros = 0;
    int startNumber = 0;
    int position = 0;
    bool fromStart = true;
};

/// What one rule does: the parameters of its kind. In the order of Kind.
using Parameters = std::variant<ReplaceParameters, TrimParameters, ChangeCaseParameters, InsertTextParameters,
                                EnumerateParameters>;
