// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/helptext.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype columns = 80;
constexpr qsizetype textColumn = 8;

/// The text in lines that are no wider than a terminal, so many blanks before each.
QString wrapped(const QString &text, qsizetype indent)
{
    QString result;
    QString line;
    for (const QString &word : text.split(u' ', Qt::SkipEmptyParts)) {
        if (!line.isEmpty() && indent + line.size() + 1 + word.size() > columns) {
            result += QString(indent, u' ') + line + u'\n';
            line.clear();
        }
        line += (line.isEmpty() ? QString() : u" "_s) + word;
    }
    return result + QString(indent, u' ') + line + u'\n';
}

QString usageOf(const CommandInfo &command)
{
    return u"orvanto-cli %1 [OPTION]... %2"_s.arg(command.name, command.operands).trimmed();
}

QString exitCodesText()
{
    QString text = u"\nExit codes:\n"_s;
    for (const auto &[code, meaning] : exitCodeTexts())
        text += wrapped(u"%1: %2"_s.arg(QString::number(code), meaning), 2);
    return text;
}

} // namespace

QString helpText()
{
    QString text = u"Renames many files at once, by the rules of Orvanto.\n\nUsage:\n"_s;
    for (const CommandInfo &command : allCommands())
        text += "  "_L1 + usageOf(command) + u'\n' + wrapped(command.summary, textColumn);
    text += u"  orvanto-cli COMMAND --help\n        print the options of a command\n"_s;
    text += u"  orvanto-cli --version\n        print the version\n"_s;
    return text + exitCodesText();
}

QString helpText(Command command)
{
    const CommandInfo &info = infoOf(command);
    QString text = "Usage: "_L1 + usageOf(info) + "\n\n"_L1 + wrapped(info.text, 0);
    const QList<OptionInfo> options = optionsOf(command);
    for (const OptionGroup group : info.groups) {
        text += u'\n' + headingOf(group) + ":\n"_L1;
        for (const OptionInfo &option : options) {
            if (option.group != group)
                continue;
            text +=
                QString("  "_L1 + option.written() + u' ' + option.values).trimmed().prepend("  "_L1) + u'\n';
            text += wrapped(option.text, textColumn);
        }
    }
    return text + exitCodesText();
}
