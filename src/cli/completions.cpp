// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/options.h"
#include "cli/pages.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

constexpr auto license = "# SPDX-FileCopyrightText: 2026 Kavrondel\n# SPDX-License-Identifier: MIT\n"_L1;

QStringList commandNames()
{
    QStringList names;
    for (const CommandInfo &command : allCommands())
        names.append(command.name);
    return names;
}

QStringList optionNames(Command command)
{
    QStringList names;
    for (const OptionInfo &option : optionsOf(command))
        names.append(option.written());
    return names;
}

QString quoted(const QString &text)
{
    return u'\'' + QString(text).replace(u'\'', "'\\''"_L1) + u'\'';
}

/// What bash proposes for a value or an operand.
QString bashProposal(Proposal proposal, const QString &words)
{
    switch (proposal) {
    case Proposal::Words:
        return u"COMPREPLY=($(compgen -W %1 -- \"$current\"))"_s.arg(quoted(words));
    case Proposal::File:
        return u"_orvanto_cli_files"_s;
    case Proposal::RuleSet:
        return u"_orvanto_cli_sets"_s;
    case Proposal::Run:
        return u"COMPREPLY=($(compgen -W \"$(\"${COMP_WORDS[0]}\" history 2>/dev/null | cut -d ' ' -f 1)\" "
               u"-- "
               "\"$current\"))"_s;
    case Proposal::Nothing:
        break;
    }
    return u"COMPREPLY=()"_s;
}

constexpr auto bashBegin = R"sh(
_orvanto_cli_files() {
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -f -- "$current")
}

# The names are printed as a shell reads them.
_orvanto_cli_sets() {
    local name
    mapfile -t COMPREPLY < <(compgen -f -- "$current")
    while IFS= read -r name; do
        name=${name% (comes with the program)}
        case $name in "$current"*) COMPREPLY+=("$name") ;; esac
    done < <("${COMP_WORDS[0]}" sets list 2>/dev/null)
}

_orvanto_cli() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} options=
    COMPREPLY=()
)sh"_L1;

/// How zsh names what is proposed.
QString zshAction(Proposal proposal, const QString &words)
{
    switch (proposal) {
    case Proposal::Words:
        return u"(%1)"_s.arg(words);
    case Proposal::File:
        return u"_files"_s;
    case Proposal::RuleSet:
        return u"_orvanto_cli_sets"_s;
    case Proposal::Run:
        return u"_orvanto_cli_runs"_s;
    case Proposal::Nothing:
        break;
    }
    return u" "_s;
}

/// Brackets and colons mean something in its descriptions.
QString zshText(const QString &text)
{
    QString result = text;
    for (const QChar special : QStringView(u"\\[]:"))
        result.replace(special, u'\\' + QString(special));
    return result;
}

QString zshOption(const OptionInfo &option)
{
    QString text = u"*%1[%2]"_s.arg(option.written(), zshText(option.text));
    if (option.valueCount() > 0) {
        for (const QString &value : QString(option.values).split(u' '))
            text += u':' + zshText(value) + u':' + zshAction(option.proposal, option.words);
    }
    return quoted(text);
}

constexpr auto zshBegin = R"sh(
_orvanto_cli_sets() {
    local -a names
    names=(${(Q)${(f)"$(orvanto-cli sets list 2>/dev/null)"}% \(comes with the program\)})
    compadd -a names
    _files
}

_orvanto_cli_runs() {
    local -a names
    names=(${${(f)"$(orvanto-cli history 2>/dev/null)"}%% *})
    compadd -a names
}

_orvanto_cli() {
    if ((CURRENT == 2)); then
        _values command)sh"_L1;

QString fishProposal(Proposal proposal, const QString &words)
{
    switch (proposal) {
    case Proposal::Words:
        return u" --exclusive --arguments "_s + quoted(words);
    case Proposal::File:
        return u" --require-parameter --force-files"_s;
    case Proposal::RuleSet:
        return u" --require-parameter --force-files --arguments '(__orvanto_cli_sets)'"_s;
    case Proposal::Run:
        return u" --no-files --arguments '(orvanto-cli history 2>/dev/null | string split --fields 1 \" \")'"_s;
    case Proposal::Nothing:
        break;
    }
    return u" --exclusive"_s;
}

constexpr auto fishBegin = R"sh(
function __orvanto_cli_sets
    orvanto-cli sets list 2>/dev/null | string replace --regex ' \(comes with the program\)$' '' |
        string replace --regex '^([\'"])(.*)\1$' '$2'
end
)sh"_L1;

} // namespace

QByteArray bashCompletion()
{
    QString text = license + bashBegin;
    text += "    if [ \"$COMP_CWORD\" -eq 1 ]; then\n        COMPREPLY=($(compgen -W "_L1 +
            quoted(commandNames().join(u' ') + " --help --version"_L1) +
            " -- \"$current\"))\n        return\n    fi\n    case $previous in\n"_L1;
    for (const OptionInfo &option : allOptions()) {
        if (option.valueCount() > 0)
            text += u"    %1) %2; return ;;\n"_s.arg(option.written(),
                                                     bashProposal(option.proposal, option.words));
    }
    text += "    esac\n    case ${COMP_WORDS[1]} in\n"_L1;
    for (const CommandInfo &command : allCommands())
        text +=
            u"    %1) options=%2 ;;\n"_s.arg(command.name, quoted(optionNames(command.command).join(u' ')));
    text += "    esac\n    case $current in\n    -*) COMPREPLY=($(compgen -W \"$options\" -- \"$current\")); "
            "return ;;\n    esac\n    case ${COMP_WORDS[1]} in\n"_L1;
    for (const CommandInfo &command : allCommands())
        text += u"    %1) %2 ;;\n"_s.arg(command.name, bashProposal(command.proposal, command.words));
    return (text + "    esac\n} && complete -F _orvanto_cli orvanto-cli\n"_L1).toUtf8();
}

QByteArray zshCompletion()
{
    QString text = "#compdef orvanto-cli\n"_L1 + license + zshBegin;
    for (const CommandInfo &command : allCommands())
        text += u' ' + quoted(u"%1[%2]"_s.arg(command.name, zshText(command.summary)));
    text += "\n        return\n    fi\n    local command=$words[2]\n    shift words\n    ((CURRENT--))\n"
            "    case $command in\n"_L1;
    for (const CommandInfo &command : allCommands()) {
        text += u"    %1)\n        _arguments -s"_s.arg(command.name);
        for (const OptionInfo &option : optionsOf(command.command))
            text += " \\\n            "_L1 + zshOption(option);
        if (command.proposal != Proposal::Nothing)
            text += " \\\n            "_L1 + quoted("*: :"_L1 + zshAction(command.proposal, command.words));
        text += "\n        ;;\n"_L1;
    }
    return (text + "    esac\n}\n\n_orvanto_cli \"$@\"\n"_L1).toUtf8();
}

QByteArray fishCompletion()
{
    QString text = license + fishBegin;
    const QString begin = u"complete --command orvanto-cli"_s;
    for (const CommandInfo &command : allCommands())
        text += begin + " --condition __fish_use_subcommand --no-files --arguments "_L1 + command.name +
                " --description "_L1 + quoted(command.summary) + u'\n';
    for (const CommandInfo &command : allCommands()) {
        const QString seen = u" --condition '__fish_seen_subcommand_from %1'"_s.arg(command.name);
        for (const OptionInfo &option : optionsOf(command.command))
            text += begin + seen + (option.name.size() == 1 ? " --short-option "_L1 : " --long-option "_L1) +
                    option.name +
                    (option.valueCount() > 0 ? fishProposal(option.proposal, option.words) : QString()) +
                    " --description "_L1 + quoted(option.text) + u'\n';
        // Files are what fish proposes anyway.
        if (command.proposal == Proposal::Words)
            text += begin + seen + " --no-files --arguments "_L1 + quoted(command.words) + u'\n';
        else if (command.proposal != Proposal::File)
            text += begin + seen +
                    (command.proposal == Proposal::Run ? fishProposal(Proposal::Run, {}) : u" --no-files"_s) +
                    u'\n';
    }
    return text.toUtf8();
}
