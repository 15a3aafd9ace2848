// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <memory>

class QRegExp;

/// A compiled pattern in the syntax and with the engine of QRegExp: greedy, case-sensitive, with \1 to \9 in
/// replacements. This pair of files is the only place that names QRegExp.
/// A copy shares the compiled pattern; copies must stay on one thread, and all patterns are judged on one.
class RegExp final
{
public:
    enum class Verdict {
        Usable,
        /// The pattern is no valid one.
        Invalid,
        /// It would take the engine too long, or too much memory: see patterncost.h.
        TooSlow
    };

    /// Any pattern is accepted; one that is not usable matches nothing. The first time that a pattern is met
    /// it may take some tenths of a second to judge it; the verdict holds for the whole process.
    explicit RegExp(const QString &pattern = {});

    [[nodiscard]] Verdict verdict() const { return ownVerdict; }
    /// text with every match replaced.
    [[nodiscard]] QString replacedIn(const QString &text, const QString &replacement) const;
    /// text without its matches.
    [[nodiscard]] QString removedFrom(const QString &text) const;

private:
    std::shared_ptr<const QRegExp> engine;
    Verdict ownVerdict;
};
