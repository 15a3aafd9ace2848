// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/options.h"

#include <QString>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

using enum OptionGroup;

// clang-format off
constexpr auto options = std::to_array<OptionInfo>({
    {"set"_L1, "NAME|FILE"_L1,
     "the rules of a saved rule set, of one that comes with the program, or of a file"_L1,
     Rules, Proposal::RuleSet, {}},
    {"replace"_L1, "WHAT WITH"_L1, "each WHAT becomes WITH"_L1, Rules},
    {"regexp"_L1, "PATTERN WITH"_L1,
     "each match of the regular expression becomes WITH, in which \\1 to \\9 stand for its groups"_L1, Rules},
    {"trim"_L1, "POSITION,LENGTH[,end]"_L1,
     "LENGTH characters go, from POSITION on; with end the last LENGTH characters"_L1, Rules},
    {"case"_L1, "CASE[,all]"_L1,
     "to lower, upper or title case, which is the first letter of each word; the extension stays as it is "
     "unless all stands behind"_L1,
     Rules, Proposal::Words, "lower upper title lower,all upper,all title,all"_L1},
    {"insert"_L1, "TEXT@POSITION[,end]"_L1,
     "TEXT comes in at POSITION, with end counted from the end; TEXT ends at the last @"_L1, Rules},
    {"number"_L1, "START[,ZEROS[,POSITION[,end]]]"_L1,
     "the file's number comes in, counted from START, with ZEROS digits more than one at least"_L1, Rules},

    {"filter"_L1, "PATTERNS"_L1,
     "which files of folders: wildcards, a semicolon between them, such as \"*.jpg;*.png\"; "
     "without it those with a dot in their name"_L1, Files},
    {"files-from"_L1, "FILE"_L1,
     "also the files that FILE names, one a line; - is standard input"_L1, Files, Proposal::File, {}},
    {"0"_L1, {}, "with --files-from: names end with a null character, not with a line"_L1, Files},
    {"sort"_L1, "KEY"_L1,
     "by name, path, extension, size or modified; none, the default, keeps the order of the "
     "arguments, a folder's files in natural order"_L1,
     Files, Proposal::Words, "none name path extension size modified"_L1},
    {"reverse"_L1, {}, "the other way round"_L1, Files},

    {"classic"_L1, {},
     "take the files in list order and go on after a failure, as the window does: no swap, no shift"_L1, Run},
    {"finish"_L1, {}, "go on with a run that was interrupted, to its end; the newest, if none is named"_L1, Run},
    {"back"_L1, {}, "take back what such a run did"_L1, Run},
    {"leave"_L1, {}, "leave everything as such a run left it, and speak of it no more"_L1, Run},
    {"yes"_L1, {}, "do not ask"_L1, Run},
    {"no-undo"_L1, {}, "write no journal: the run cannot be taken back"_L1, Run},

    {"color"_L1, "WHEN"_L1,
     "when to colour: auto, always or never; auto, the default, heeds NO_COLOR"_L1, Form, Proposal::Words,
     "auto always never"_L1},
    {"json"_L1, {}, "one JSON object for each file, a line each"_L1, Form},
    {"print0"_L1, {}, "only the path that each file then has, with a null character behind it"_L1, Form},
    {"quiet"_L1, {}, "print nothing but trouble"_L1, Form},

    {"help"_L1, {}, "print what is known of the command and end"_L1, Other},
});

constexpr std::array previewGroups{Rules, Files, Run, Form, Other};
constexpr std::array applyGroups{Rules, Files, Run, Form, Other};
constexpr std::array undoGroups{Run, Form, Other};
constexpr std::array listGroups{Form, Other};

constexpr auto commands = std::to_array<CommandInfo>({
    {Command::Preview, "preview"_L1, "[FILE|FOLDER]..."_L1, "print what would happen, and write nothing"_L1,
     "Prints each file with its new name. What could not be renamed is told first, on standard error."_L1,
     previewGroups, Proposal::File, {}},
    {Command::Apply, "apply"_L1, "[FILE|FOLDER]..."_L1, "print the plan, ask, and rename"_L1,
     "All or nothing: files may swap their names or shift them along, in whatever order they stand; where a "
     "single file cannot get its new name, nothing is touched; should one fail during the run, those before it "
     "get their old names back. A file is never overwritten."_L1,
     applyGroups, Proposal::File, {}},
    {Command::Undo, "undo"_L1, "[RUN]"_L1, "take a run back: the newest, or the one of that name"_L1,
     "Runs of the window count as well. RUN is a name, or the beginning of one, as history prints it. What was "
     "interrupted between two files can be finished, taken back or left."_L1,
     undoGroups, Proposal::Run, {}},
    {Command::History, "history"_L1, {}, "list the runs that can be taken back"_L1,
     "The newest run comes first, those of the window among them."_L1,
     listGroups, Proposal::Nothing, {}},
    {Command::Sets, "sets"_L1, "list | show NAME|FILE | check FILE..."_L1, "list, show and check rule sets"_L1,
     "list prints the names of the saved rule sets and of those that come with the program, show the rules of "
     "one as options for a command line; check tells of each file whether it is a rule set."_L1,
     listGroups, Proposal::Words, "list show check"_L1},
});

constexpr auto exitCodes = std::to_array<std::pair<int, QLatin1StringView>>({
    {0, "done"_L1},
    {1, "all files failed"_L1},
    {2, "some files failed"_L1},
    {3, "conflicts: nothing was touched"_L1},
    {4, "nothing to do, or the answer was no"_L1},
    {64, "the command line cannot be understood, or there is no terminal to ask on and no --yes"_L1},
    {74, "the output or the journal could not be written, or a list of files not be read"_L1},
    {130, "interrupted"_L1},
});
// clang-format on

bool isAmong(const OptionInfo &option, const CommandInfo &command)
{
    const bool isList = command.command == Command::History || command.command == Command::Sets;
    const bool isOfUnfinished =
        option.name == "finish"_L1 || option.name == "back"_L1 || option.name == "leave"_L1;
    if (command.command == Command::Undo && option.group == Run)
        return isOfUnfinished || option.name == "yes"_L1;
    if (command.command == Command::Preview && option.group == Run)
        return option.name == "classic"_L1;
    if (isOfUnfinished)
        return false;
    if (option.name == "print0"_L1 || option.name == "quiet"_L1)
        return !isList;
    return std::find(command.groups.begin(), command.groups.end(), option.group) != command.groups.end();
}

} // namespace

int OptionInfo::valueCount() const
{
    return values.isEmpty() ? 0 : static_cast<int>(QString(values).count(u' ')) + 1;
}

QString OptionInfo::written() const
{
    return (name.size() == 1 ? "-"_L1 : "--"_L1) + name;
}

std::span<const CommandInfo> allCommands()
{
    return commands;
}

const CommandInfo &infoOf(Command command)
{
    return commands.at(static_cast<size_t>(command));
}

const CommandInfo *findCommand(QStringView name)
{
    const auto *found = std::find_if(commands.begin(), commands.end(),
                                     [name](const CommandInfo &command) { return name == command.name; });
    return found == commands.end() ? nullptr : found;
}

std::span<const OptionInfo> allOptions()
{
    return options;
}

QList<OptionInfo> optionsOf(Command command)
{
    QList<OptionInfo> own;
    std::copy_if(options.begin(), options.end(), std::back_inserter(own),
                 [&](const OptionInfo &option) { return isAmong(option, infoOf(command)); });
    return own;
}

const OptionInfo *findOption(Command command, const QString &name)
{
    const auto *found = std::find_if(options.begin(), options.end(), [&](const OptionInfo &option) {
        return name == option.name && isAmong(option, infoOf(command));
    });
    return found == options.end() ? nullptr : found;
}

QLatin1StringView headingOf(OptionGroup group)
{
    switch (group) {
    case Rules:
        return "Rules, in the order of their application"_L1;
    case Files:
        return "Files"_L1;
    case Run:
        return "Run"_L1;
    case Form:
        return "Output"_L1;
    case Other:
        return "Other"_L1;
    }
    Q_UNREACHABLE();
}

std::span<const std::pair<int, QLatin1StringView>> exitCodeTexts()
{
    return exitCodes;
}
