// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/regexp.h"

#include <QString>

#include <variant>

class Rule;

struct ReplaceParameters
{
    QString replaceWhat;
    QString replaceWith;
    bool regExp = false;
    RegExp pattern; ///< replaceWhat, compiled once; only where regExp is set
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
    int leadingZeros = 0; ///< the number's minimum width is one more
    int startNumber = 0;
    int position = 0;
    bool fromStart = true;
};

/// The parameters of one rule in the chain. A plain value, whatever the kind: it is deleted as what it is.
/// Made by Rule::createData() and never edited afterwards.
struct RuleData
{
    const Rule *rule = nullptr; ///< the kind that made it and interprets it; not owned
    std::variant<ReplaceParameters, TrimParameters, ChangeCaseParameters, InsertTextParameters,
                 EnumerateParameters>
        parameters;
};
