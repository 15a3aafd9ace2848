// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

/// A line of the short help of patterns.
struct PatternHelpLine
{
    QString pattern;
    /// In the current language.
    QString meaning;
};

/// What RegExp knows and people need most.
[[nodiscard]] QList<PatternHelpLine> patternHelp();
/// Under this title, as a tool tip.
[[nodiscard]] QString patternToolTip(const QString &title);
/// For screen readers.
[[nodiscard]] QString patternDescription();
