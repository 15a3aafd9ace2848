// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/options.h"
#include "cli/pages.h"
#include "core/maker.h"

#include <QString>

using namespace Qt::StringLiterals;

namespace {

/// Text that the formatter takes for nothing else.
QString plain(const QString &text)
{
    QString result = text;
    result.replace(u'\\', "\\e"_L1).replace(u'-', "\\-"_L1);
    return result.startsWith(u'.') || result.startsWith(u'\'') ? "\\&"_L1 + result : result;
}

QString heading(const char *title)
{
    return ".SH "_L1 + QLatin1StringView(title) + u'\n';
}

/// An entry of a list: its name in bold, what stands behind in italics.
QString entry(const QString &name, const QString &values, const QString &text)
{
    const QString rest = values.isEmpty() ? QString() : " \\fI"_L1 + plain(values) + "\\fR"_L1;
    return ".TP\n\\fB"_L1 + plain(name) + "\\fR"_L1 + rest + u'\n' + plain(text) + u'\n';
}

QString commandsPart()
{
    QString text = heading("COMMANDS");
    for (const CommandInfo &command : allCommands())
        text += entry(command.name, command.operands,
                      u"%1%2. %3"_s.arg(QString(command.summary.first(1)).toUpper(),
                                        command.summary.sliced(1), command.text));
    return text;
}

/// With the commands that have it, where not all have.
QString optionText(const OptionInfo &option)
{
    QStringList names;
    for (const CommandInfo &command : allCommands()) {
        if (findOption(command.command, option.name))
            names.append(command.name);
    }
    const QString text = QString(option.text.first(1)).toUpper() + option.text.sliced(1) + u'.';
    return names.size() == static_cast<qsizetype>(allCommands().size())
               ? text
               : u"%1 (%2)"_s.arg(text, names.join(", "_L1));
}

QString optionsPart()
{
    QString text = heading("OPTIONS");
    std::optional<OptionGroup> group;
    for (const OptionInfo &option : allOptions()) {
        if (group != option.group)
            text += ".SS "_L1 + headingOf(option.group) + u'\n';
        group = option.group;
        text += entry(option.written(), option.values, optionText(option));
    }
    return text + "Behind \\fB\\-\\-\\fR nothing is an option.\n"_L1;
}

QString exitPart()
{
    QString text = heading("EXIT STATUS");
    for (const auto &[code, meaning] : exitCodeTexts())
        text +=
            entry(QString::number(code), {}, QString(meaning.first(1)).toUpper() + meaning.sliced(1) + u'.');
    return text + ".PP\n\\fBpreview\\fR ends with 0, or with 3 where a file could not be renamed.\n"_L1;
}

constexpr auto description = R"(orvanto\-cli renames many files at once, by the rules of Orvanto, in a shell.
It needs no display.
.PP
Rules are given as options, any number of them, and applied in their order to the names of the files.
Folders are expanded: the files in them and below them, without hidden files and links.
The number that
.B \-\-number
inserts is that of the file in the list, after sorting.
.PP
A file is never overwritten.
.B apply
writes a journal before each rename, as the window does:
.B undo
takes back what either of them did.
.PP
Names are printed as
.BR ls (1)
quotes them: a shell can read them back, and no terminal is steered by them.
With
.B \-\-print0
and
.B \-\-json
they are exact.
Names whose bytes are no text are never renamed.
)";

constexpr auto jsonPart = R"(.SH JSON
With
.B \-\-json
each file is an object on a line of its own, for preview, apply and undo:
.TP
.B old
The path.
.TP
.B new
The new path.
.TP
.B outcome
renamed, unchanged, taken, taken\-by\-row, leaves\-later, missing, empty, separator, not\-allowed, too\-long, read\-only,
no\-text or unknown; for undo also was\-back and other\-file.
After an interrupted or failed run, unknown stands for a file that was not tried or has its old name again.
.TP
.B reason
Only where it is another: what becomes of a file whose new name leads to another folder.
.TP
.B blockedBy
The path of the file that has the name then.
.TP
.B oldBytes
The path in base64, where its bytes are no text.
)";

constexpr auto environmentPart = R"(.SH ENVIRONMENT
.TP
.B NO_COLOR
Where it is not empty, nothing is coloured unless
.B \-\-color=always
is given.
.TP
.B XDG_DATA_HOME
The folder that holds the user's data; by default
.IR \%~/.local/share .
.SH FILES
.TP
.I ~/.local/share/Kavrondel/Orvanto/undo/
The journals of runs.
.TP
.I ~/.local/share/Kavrondel/Orvanto/rulesets/
The rule sets that were saved.
.SH EXAMPLES
.TP
orvanto\-cli preview \-\-regexp \(aq^IMG_\(aq \(aqPhoto \(aq *.jpg
Shows what would become of some pictures.
.TP
orvanto\-cli apply \-\-case lower,all \-\-filter \(aq*.jpg;*.png\(aq Pictures
Renames the pictures in a folder and below it, after asking.
.TP
find . \-name \(aq*.tmp\(aq \-print0 | orvanto\-cli apply \-\-yes \-0 \-\-files\-from \- \-\-replace .tmp .txt
Renames what another program finds.
.TP
orvanto\-cli undo
Takes the newest run back.
.SH SEE ALSO
.BR mv (1),
.BR rename (1)
)";

} // namespace

QByteArray manualPage(const QByteArray &date)
{
    QString text = u".\\\" SPDX-FileCopyrightText: 2026 Kavrondel\n.\\\" SPDX-License-Identifier: MIT\n"_s;
    text += u".TH ORVANTO-CLI 1 \"%1\" \"Orvanto %2\" \"User Commands\"\n"_s.arg(QString::fromLatin1(date),
                                                                                 Maker::applicationVersion());
    text += heading("NAME") + "orvanto\\-cli \\- rename many files at once\n"_L1;
    text += heading("SYNOPSIS");
    for (const CommandInfo &command : allCommands())
        text += ".B orvanto\\-cli "_L1 + command.name + "\n[\\fIOPTION\\fR]... "_L1 +
                (command.operands.isEmpty() ? QString() : "\\fI"_L1 + plain(command.operands) + "\\fR"_L1) +
                "\n.br\n"_L1;
    text.chop(QByteArray(".br\n").size());
    text += heading("DESCRIPTION") + QLatin1StringView(description);
    text += commandsPart() + optionsPart() + QLatin1StringView(jsonPart) + exitPart();
    return (text + QLatin1StringView(environmentPart)).toUtf8();
}
