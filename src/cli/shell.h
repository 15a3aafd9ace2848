// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/output.h"

#include <QString>

#include <functional>
#include <optional>

/// What surrounds the program while it works: tests give another one.
struct Shell
{
    Output &out;
    Output &trouble;
    /// Reads some bytes of the input, as readInput() does.
    std::function<qsizetype(char *memory, qsizetype size)> read;
    /// Whether somebody can be asked, and reads the trouble along.
    bool canAsk = false;
    bool isWatched = false;
    bool hasColoredOutput = false;
    bool hasColoredTrouble = false;
    /// Whether the work is to end between two steps.
    std::function<bool()> isInterrupted;
    QString currentFolder;
    QString dataFolder;

    /// A sentence about the program's own affairs, behind everything that was printed before.
    void tell(const QString &sentence) const;
    /// Puts a question; no value when it was interrupted.
    [[nodiscard]] std::optional<bool> ask(const QString &question) const;
};
