// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/commandline.h"

#include "cli/shellquote.h"

#include <QCommandLineParser>
#include <QHash>

using namespace Qt::StringLiterals;

namespace {

/// What is known of an option by its word: "--replace", "--trim=1,2", "-0".
struct OptionWord
{
    const OptionInfo *option = nullptr;
    /// Behind an equals sign.
    std::optional<QString> value;

    OptionWord(Command command, const QString &word)
    {
        if (!word.startsWith("--"_L1))
            return;
        const qsizetype equals = word.indexOf(u'=');
        option = findOption(command, word.sliced(2, (equals < 0 ? word.size() : equals) - 2));
        if (option && equals >= 0)
            value = word.sliced(equals + 1);
    }
};

/// Takes the rules' options out of the words: some have two values, and their order counts, neither of which
/// QCommandLineParser knows.
class RuleWords
{
public:
    RuleWords(Command ofCommand, const SetFinder &setFinder)
        : command(ofCommand)
        , findSet(setFinder)
    {
    }

    /// What is left for QCommandLineParser; nothing where a rule is wrong.
    [[nodiscard]] std::optional<QStringList> take(const QStringList &words, Chain &rules, QString *error)
    {
        QStringList left;
        for (qsizetype i = 0; i < words.size(); ++i) {
            const OptionWord word(command, words.at(i));
            if (words.at(i) == "--"_L1) {
                left.append(words.sliced(i));
                break;
            }
            if (!word.option || word.option->group != OptionGroup::Rules) {
                left.append(words.at(i));
                // The value of another option is none, whatever it looks like.
                if (word.option && word.option->valueCount() > 0 && !word.value && i + 1 < words.size())
                    left.append(words.at(++i));
                continue;
            }
            const auto values = valuesOf(word, words, i, error);
            const auto read =
                values ? rulesOfOption(word.option->name, *values, findSet, error) : std::nullopt;
            if (!read)
                return std::nullopt;
            rules.append(*read);
        }
        return left;
    }

private:
    static std::optional<QStringList> valuesOf(const OptionWord &word, const QStringList &words,
                                               qsizetype &at, QString *error)
    {
        const int count = word.option->valueCount();
        QStringList values;
        if (word.value)
            values.append(*word.value);
        while (values.size() < count && at + 1 < words.size())
            values.append(words.at(++at));
        if (values.size() == count)
            return values;
        *error = word.option->written() + " needs "_L1 + word.option->values;
        return std::nullopt;
    }

    Command command;
    const SetFinder &findSet;
};

/// Whether it is one; no order where they stay as they came.
bool readOrder(const QString &word, std::optional<FileOrder::By> &order)
{
    using By = FileOrder::By;
    static const QHash<QString, By> orders{{u"name"_s, By::Name},
                                           {u"path"_s, By::Path},
                                           {u"extension"_s, By::Extension},
                                           {u"size"_s, By::Size},
                                           {u"modified"_s, By::Modified}};
    if (orders.contains(word))
        order = orders.value(word);
    return order || word == "none"_L1;
}

std::optional<ColorUse> colorUseOf(const QString &word)
{
    const qsizetype at = u"auto always never"_s.split(u' ').indexOf(word);
    return at < 0 ? std::nullopt : std::optional(static_cast<ColorUse>(at));
}

/// Which of the forms are asked for.
std::optional<OutputForm> formOf(const QCommandLineParser &parser, QString *error)
{
    OutputForm form = OutputForm::Text;
    QString name;
    const auto choose = [&](const QString &option, OutputForm asked) {
        if (!parser.isSet(option))
            return true;
        const QString other = std::exchange(name, option);
        form = asked;
        if (!other.isEmpty())
            *error = u"--%1 and --%2 exclude each other"_s.arg(other, option);
        return other.isEmpty();
    };
    if (!choose(u"json"_s, OutputForm::Json) || !choose(u"print0"_s, OutputForm::Paths) ||
        !choose(u"quiet"_s, OutputForm::Nothing))
        return std::nullopt;
    return form;
}

/// No value where there are several.
std::optional<RunChoice> choiceOf(const QCommandLineParser &parser)
{
    RunChoice choice = RunChoice::TakeBack;
    int count = 0;
    for (const auto &[option, meaning] :
         {std::pair(u"finish"_s, RunChoice::Finish), std::pair(u"back"_s, RunChoice::PutBack),
          std::pair(u"leave"_s, RunChoice::Leave)}) {
        if (parser.isSet(option)) {
            choice = meaning;
            ++count;
        }
    }
    return count > 1 ? std::nullopt : std::optional(choice);
}

/// Puts what the parser knows into the command line; the error is empty where it makes sense.
QString fill(CommandLine &line, const QCommandLineParser &parser)
{
    line.operands = parser.positionalArguments();
    line.wantsHelp = parser.isSet(u"help"_s);
    line.filters = parser.values(u"filter"_s).join(u';').split(u';', Qt::SkipEmptyParts);
    line.filesFrom = parser.value(u"files-from"_s);
    line.isNullSeparated = parser.isSet(u"0"_s);
    line.isReverse = parser.isSet(u"reverse"_s);
    line.isClassic = parser.isSet(u"classic"_s);
    line.isConfirmed = parser.isSet(u"yes"_s);
    line.isUndoable = !parser.isSet(u"no-undo"_s);
    const auto choice = choiceOf(parser);
    if (!choice)
        return u"--finish, --back and --leave exclude each other"_s;
    line.choice = *choice;
    if (line.isNullSeparated && !parser.isSet(u"files-from"_s))
        return u"-0 needs --files-from"_s;
    if (parser.isSet(u"files-from"_s) && line.filesFrom.isEmpty())
        return u"--files-from: must be a file, or - for standard input"_s;
    if (parser.isSet(u"sort"_s) && !readOrder(parser.value(u"sort"_s), line.order))
        return u"--sort: must be none, name, path, extension, size or modified"_s;
    const auto color = colorUseOf(parser.isSet(u"color"_s) ? parser.value(u"color"_s) : u"auto"_s);
    if (!color)
        return u"--color: must be auto, always or never"_s;
    line.color = *color;
    QString error;
    line.form = formOf(parser, &error).value_or(OutputForm::Text);
    return error;
}

/// What the operands of the command must be; empty where they are.
QString whyNot(const CommandLine &line)
{
    const QStringList &operands = line.operands;
    if (operands.contains(QString()))
        return u"an empty name names no file"_s;
    switch (*line.command) {
    case Command::Preview:
    case Command::Apply:
        return operands.isEmpty() && line.filesFrom.isEmpty() ? u"no file is named"_s : QString();
    case Command::Undo:
        return operands.size() > 1 ? u"only one run can be taken back at a time"_s : QString();
    case Command::History:
        return operands.isEmpty() ? QString() : u"nothing can stand behind history"_s;
    case Command::Sets:
        break;
    }
    const QString action = operands.value(0);
    const bool isRight = (action == "list"_L1 && operands.size() == 1) ||
                         (action == "show"_L1 && operands.size() == 2) ||
                         (action == "check"_L1 && operands.size() > 1);
    return isRight ? QString() : u"sets needs "_s + infoOf(Command::Sets).operands;
}

/// Options that the command does not have are known to the parser, too, and never set: fill() asks for all.
QString parse(QCommandLineParser &parser, Command command, const QStringList &words)
{
    for (const OptionInfo &option : allOptions()) {
        if (option.group == OptionGroup::Rules)
            continue;
        QStringList names{option.name};
        if (option.name == "help"_L1)
            names.append(u"h"_s);
        parser.addOption(QCommandLineOption(names, {}, option.values));
    }
    parser.parse(QStringList(QString()) + words);
    if (!parser.unknownOptionNames().isEmpty()) {
        const QString name = parser.unknownOptionNames().constFirst();
        return u"there is no option %1"_s.arg(shellQuoted((name.size() == 1 ? u"-"_s : u"--"_s) + name));
    }
    for (const QString &name : parser.optionNames()) {
        if (name != "h"_L1 && !findOption(command, name))
            return u"%1 has no option %2"_s.arg(infoOf(command).name,
                                                (name.size() == 1 ? u"-"_s : u"--"_s) + name);
    }
    // A value is missing, or one is too much.
    return parser.errorText();
}

} // namespace

std::optional<CommandLine> readCommandLine(const QStringList &words, const SetFinder &findSet, QString *error)
{
    CommandLine line;
    const QString first = words.value(0);
    line.wantsHelp = first == "--help"_L1 || first == "-h"_L1;
    line.wantsVersion = first == "--version"_L1;
    if (line.wantsHelp || line.wantsVersion)
        return line;
    const CommandInfo *command = findCommand(first);
    if (!command) {
        *error =
            first.isEmpty() ? u"no command is named"_s : u"there is no command %1"_s.arg(shellQuoted(first));
        return std::nullopt;
    }
    line.command = command->command;
    const auto left = RuleWords(command->command, findSet).take(words.sliced(1), line.rules, error);
    if (!left)
        return std::nullopt;
    QCommandLineParser parser;
    *error = parse(parser, command->command, *left);
    if (error->isEmpty())
        *error = fill(line, parser);
    if (error->isEmpty() && !line.wantsHelp)
        *error = whyNot(line);
    if (!error->isEmpty())
        return std::nullopt;
    return line;
}
