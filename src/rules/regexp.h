// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <memory>

class QRegExp;

/// A compiled pattern in the syntax and with the engine of QRegExp: greedy, case-sensitive, with \1 to \9 in
/// replacements. This pair of files is the only place that names QRegExp.
/// A copy shares the compiled pattern; copies must stay on one thread.
class RegExp final
{
public:
    /// An invalid pattern is accepted: it matches nothing. So does one that would take the engine too long,
    /// or too much memory: see patterncost.h.
    explicit RegExp(const QString &pattern = {});

    /// text with every match replaced.
    [[nodiscard]] QString replacedIn(const QString &text, const QString &replacement) const;
    /// text without its matches.
    [[nodiscard]] QString removedFrom(const QString &text) const;

private:
    std::shared_ptr<const QRegExp> engine;
};
