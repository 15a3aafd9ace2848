// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/options.h"
#include "cli/ruleoptions.h"
#include "run/fileorder.h"

#include <QStringList>

#include <optional>

/// What to do with a run: take it back, or go on with one that was interrupted.
enum class RunChoice { TakeBack, Finish, PutBack, Leave };
enum class ColorUse { Auto, Always, Never };
enum class OutputForm { Text, Json, Paths, Nothing };

/// What a command line asks for.
struct CommandLine
{
    /// No value: the program itself is asked, for its help or its version.
    std::optional<Command> command;
    bool wantsHelp = false;
    bool wantsVersion = false;

    /// Files and folders, a run, or what the rule sets are asked.
    QStringList operands;
    Chain rules;

    QStringList filters;
    QString filesFrom;
    bool isNullSeparated = false;
    /// No value: in the order of the arguments.
    std::optional<FileOrder::By> order;
    bool isReverse = false;

    bool isClassic = false;
    bool isConfirmed = false;
    bool isUndoable = true;
    RunChoice choice = RunChoice::TakeBack;

    OutputForm form = OutputForm::Text;
    ColorUse color = ColorUse::Auto;
};

/// Reads the words behind the program's name; nothing, and why, where they cannot be understood.
[[nodiscard]] std::optional<CommandLine> readCommandLine(const QStringList &words, const SetFinder &findSet,
                                                         QString *error);
