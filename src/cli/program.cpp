// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/program.h"

#include "cli/commands.h"
#include "cli/helptext.h"
#include "cli/unfinishedruns.h"
#include "core/maker.h"

using namespace Qt::StringLiterals;

namespace {

ExitCode refuse(const QString &error, const QStringList &words, const Shell &shell)
{
    shell.tell(error);
    const CommandInfo *command = findCommand(words.value(0));
    shell.trouble.line(
        u"\"orvanto-cli %1--help\" tells more."_s.arg(command ? command->name + " "_L1 : QString()));
    return ExitCode::Usage;
}

ExitCode runCommand(const CommandLine &line, const Shell &shell)
{
    // Who undoes knows already.
    if (*line.command != Command::Undo && *line.command != Command::Sets)
        tellUnfinishedRuns(shell);
    switch (*line.command) {
    case Command::Preview:
        return preview(line, shell);
    case Command::Apply:
        return apply(line, shell);
    case Command::Undo:
        return undo(line, shell);
    case Command::History:
        return history(line, shell);
    case Command::Sets:
        return sets(line, shell);
    }
    Q_UNREACHABLE();
}

ExitCode answer(const CommandLine &line, const Shell &shell)
{
    if (line.wantsVersion)
        shell.out.line("orvanto-cli "_L1 + Maker::applicationVersion());
    else if (line.wantsHelp)
        shell.out.text(line.command ? helpText(*line.command) : helpText());
    return ExitCode::Done;
}

/// Who pipes into a pager that ends knows what was left out.
ExitCode withOutput(ExitCode code, const Shell &shell)
{
    shell.out.flush();
    if (shell.out.error().isEmpty())
        return code;
    shell.tell("the output cannot be written: "_L1 + shell.out.error());
    return code == ExitCode::Done ? ExitCode::NoInputOrOutput : code;
}

} // namespace

ExitCode runProgram(const QStringList &words, const Shell &shell)
{
    QString error;
    const auto find = [&shell](const QString &nameOrFile, QString *problem) {
        return findRuleSet(nameOrFile, shell, problem);
    };
    const auto line = readCommandLine(words, find, &error);
    if (!line)
        return withOutput(refuse(error, words, shell), shell);
    // Without a colour of its own a row is as it was.
    const auto isColored = [&](bool isKnown) {
        const bool isWanted = isKnown && qEnvironmentVariableIsEmpty("NO_COLOR");
        return line->color == ColorUse::Always || (line->color == ColorUse::Auto && isWanted);
    };
    const Shell colored{.out = shell.out,
                        .trouble = shell.trouble,
                        .read = shell.read,
                        .canAsk = shell.canAsk,
                        .isWatched = shell.isWatched && line->form != OutputForm::Nothing,
                        .hasColoredOutput = isColored(shell.hasColoredOutput),
                        .hasColoredTrouble = isColored(shell.hasColoredTrouble),
                        .isInterrupted = shell.isInterrupted,
                        .currentFolder = shell.currentFolder,
                        .dataFolder = shell.dataFolder};
    const bool isAnswer = line->wantsHelp || line->wantsVersion;
    return withOutput(isAnswer ? answer(*line, shell) : runCommand(*line, colored), shell);
}
