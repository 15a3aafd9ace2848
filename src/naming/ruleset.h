// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "naming/chain.h"

#include <optional>

/// A rule of a set, with what its file says to people.
struct SetRule
{
    Step step;
    /// Null where there is none.
    QString comment;
};

/// Rules under a name, as a file keeps them: docs/rule-sets.md.
struct RuleSet
{
    QString name;
    QList<SetRule> rules;
    /// Null where there is none.
    QString comment;
};

inline constexpr qsizetype mostRulesOfSet = 256;
inline constexpr qsizetype mostBytesOfSet = 16 * 1024 * 1024;
inline constexpr qsizetype mostCharactersOfSetName = 100;
/// As many as a line edit holds.
inline constexpr qsizetype mostCharactersOfRuleText = 32767;

/// What is wrong with a file, and where.
struct RuleSetError
{
    /// From 1; 0 where it is in no rule.
    int rule = 0;
    /// Empty where it is in none.
    QString field;
    /// What the field must be, translated.
    QString problem;

    /// All of it for people, translated.
    [[nodiscard]] QString text() const;
};

/// Reads a set as strictly as it can be read: nothing comes back where anything is missing, unknown or out of
/// range.
[[nodiscard]] std::optional<RuleSet> ruleSetFromJson(const QByteArray &json, RuleSetError *error);

/// The set for a file, in UTF-8, its fields in the order in which people read them. Nothing where
/// ruleSetFromJson() would refuse it: too many rules, too much text, or a name that is none.
[[nodiscard]] std::optional<QByteArray> jsonOf(const RuleSet &set, RuleSetError *error);
