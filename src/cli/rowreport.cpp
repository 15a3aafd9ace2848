// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/rowreport.h"

#include "cli/outcometexts.h"
#include "cli/shellquote.h"
#include "platform/bytetext.h"
#include "run/jsontext.h"

#include <QDir>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr auto red = "\x1b[31m"_L1;
constexpr auto green = "\x1b[32m"_L1;
constexpr auto faint = "\x1b[2m"_L1;
constexpr auto plain = "\x1b[m"_L1;

QString colored(const QString &text, QLatin1StringView color, bool isColored)
{
    return isColored ? color + text + plain : text;
}

QByteArray jsonText(const QString &text)
{
    QByteArray json(JsonWriter::mostBytes(text.size()), Qt::Uninitialized);
    JsonWriter writer(json.data());
    writer.text(text);
    json.truncate(writer.end() - json.constData());
    return json;
}

/// For readers of JSON, which knows no bytes that are no text.
QString readable(const QString &path)
{
    return path.isValidUtf16() ? path : QString::fromUtf8(bytesOfText(path));
}

QString siblingOf(const QString &path, const QString &name)
{
    return path.left(std::max(path.lastIndexOf(u'/'), path.lastIndexOf(QDir::separator())) + 1) + name;
}

} // namespace

ReportedRow reportedRow(const PlannedFiles &files, int row)
{
    const Outcome outcome = files.outcome(row);
    const FilePath file = files.paths().file(row);
    ReportedRow reported;
    reported.oldPath = files.paths().given(row);
    reported.newPath =
        file.path.isValidUtf16() ? siblingOf(reported.oldPath, files.newName(row, file)) : reported.oldPath;
    reported.outcome = idOf(outcome.fate);
    if (outcome.reason != outcome.fate)
        reported.reason = idOf(outcome.reason);
    if (outcome.row >= 0)
        reported.blockedBy = files.paths().given(outcome.row);
    reported.isDone = outcome.isRenamed();
    if (outcome.reason == Fate::Unchanged)
        reported.words = reasonInWords(Fate::Unchanged);
    else if (isStuck(outcome))
        reported.words = troubleInWords(outcome, shellQuoted(reported.blockedBy));
    else if (outcome.fate == Fate::Separator)
        reported.words = u"moves to another folder"_s;
    return reported;
}

void RowReport::plan(const PlannedFiles &files)
{
    for (int row = 0; row < files.count() && form != OutputForm::Json; ++row) {
        if (isStuck(files.outcome(row)))
            trouble(reportedRow(files, row));
    }
    if (form == OutputForm::Nothing)
        return;
    // What an interrupted run came to is told to its end.
    const bool wasInterrupted = shell.isInterrupted();
    const auto goesOn = [&] {
        return shell.out.isOpen() && (wasInterrupted || !shell.isInterrupted());
    };
    for (int row = 0; row < files.count() && goesOn(); ++row) {
        if (form != OutputForm::Text || !isStuck(files.outcome(row)))
            print(reportedRow(files, row));
    }
    shell.out.flush();
}

void RowReport::print(const ReportedRow &row)
{
    switch (form) {
    case OutputForm::Json:
        printJson(row);
        return;
    case OutputForm::Paths:
        shell.out.bytes(bytesOfText(row.isDone ? row.newPath : row.oldPath));
        shell.out.bytes(QByteArray(1, '\0'));
        return;
    case OutputForm::Text:
        break;
    case OutputForm::Nothing:
        return;
    }
    QString text = pairText(row, shell.hasColoredOutput);
    if (!row.words.isEmpty())
        text += colored(": "_L1 + row.words, faint, shell.hasColoredOutput);
    shell.out.line(text);
}

void RowReport::trouble(const ReportedRow &row)
{
    if (form == OutputForm::Json)
        return;
    shell.out.flush();
    shell.trouble.line(pairText(row, shell.hasColoredTrouble) + ": "_L1 +
                       colored(row.words, red, shell.hasColoredTrouble));
}

QString RowReport::pairText(const ReportedRow &row, bool isColored) const
{
    QString old = shellQuoted(row.oldPath);
    if (row.newPath == row.oldPath)
        return old;
    return old + colored(u" → "_s, faint, isColored) +
           colored(shellQuoted(row.newPath), row.isDone ? green : faint, isColored);
}

void RowReport::printJson(const ReportedRow &row)
{
    QByteArray json = "{\"old\":" + jsonText(readable(row.oldPath));
    const bool isText = row.oldPath.isValidUtf16();
    json += ",\"new\":" + jsonText(isText ? row.newPath : readable(row.newPath));
    json += ",\"outcome\":" + jsonText(row.outcome);
    if (!row.reason.isEmpty())
        json += ",\"reason\":" + jsonText(row.reason);
    if (!row.blockedBy.isEmpty())
        json += ",\"blockedBy\":" + jsonText(readable(row.blockedBy));
    if (!isText)
        json += ",\"oldBytes\":\"" + bytesOfText(row.oldPath).toBase64() + '"';
    shell.out.bytes(json + '}');
    shell.out.endLine();
}
