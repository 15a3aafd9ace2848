// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1StringView>
#include <QList>

#include <initializer_list>
#include <span>

enum class Command { Preview, Apply, Undo, History, Sets };

/// What a shell proposes for a word.
enum class Proposal { Nothing, File, RuleSet, Run, Words };

/// Under which heading help and man page have an option.
enum class OptionGroup { Rules, Files, Form, Run, Other };

/// An option, as the reader of the command line, help, man page and completions know it.
struct OptionInfo
{
    /// Without its dashes: one where the name has one character, otherwise two.
    QLatin1StringView name;
    /// The names of its values, blank between them; empty where it has none.
    QLatin1StringView values;
    QLatin1StringView text;
    OptionGroup group;
    Proposal proposal = Proposal::Nothing;
    /// What the value may be, blank between them; where the proposal is Words.
    QLatin1StringView words = {};

    [[nodiscard]] int valueCount() const;
    /// With its dashes.
    [[nodiscard]] QString written() const;
};

struct CommandInfo
{
    Command command;
    QLatin1StringView name;
    /// What stands behind its options.
    QLatin1StringView operands;
    QLatin1StringView summary;
    /// More about it, for help and man page.
    QLatin1StringView text;
    std::span<const OptionGroup> groups;
    Proposal proposal;
    QLatin1StringView words;
};

[[nodiscard]] std::span<const CommandInfo> allCommands();
[[nodiscard]] const CommandInfo &infoOf(Command command);
/// Null where there is none of that name.
[[nodiscard]] const CommandInfo *findCommand(QStringView name);

/// In the order in which people read them.
[[nodiscard]] std::span<const OptionInfo> allOptions();
[[nodiscard]] QList<OptionInfo> optionsOf(Command command);
/// Null where the command has no such option; the name is without dashes.
[[nodiscard]] const OptionInfo *findOption(Command command, const QString &name);

[[nodiscard]] QLatin1StringView headingOf(OptionGroup group);
/// The exit codes with their meanings.
[[nodiscard]] std::span<const std::pair<int, QLatin1StringView>> exitCodeTexts();
