// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/commands.h"

#include "cli/outcometexts.h"
#include "cli/shellquote.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

/// Of its file, without what all have.
QString nameOf(const QString &journal)
{
    return journal.section(u'.', 0, 0);
}

QByteArray jsonOf(const JournalInfo &run)
{
    QJsonObject object{
        {u"run"_s, nameOf(run.name)},  {u"time"_s, run.time.toUTC().toString(Qt::ISODateWithMs)},
        {u"state"_s, idOf(run)},       {u"renamed"_s, run.renamed},
        {u"standing"_s, run.standing}, {u"folder"_s, run.folder},
        {u"folders"_s, run.folders}};
    if (!run.isRun())
        object.insert(u"takesBack"_s, nameOf(run.takesBack));
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QString lineOf(const JournalInfo &run)
{
    const QString place = run.folders > 1 ? u"%1 folders"_s.arg(run.folders) : shellQuoted(run.folder);
    return u"%1  %2  %3 %4, %5, %6"_s.arg(nameOf(run.name), timeInWords(run.time),
                                          run.isRun() ? u"renamed"_s : u"took back"_s,
                                          filesInWords(run.files()), stateInWords(run), place);
}

} // namespace

ExitCode history(const CommandLine &line, const Shell &shell)
{
    for (const JournalInfo &run : JournalFolder(journalFolderOf(shell)).list()) {
        // Of what is no journal nothing is known.
        if (run.isEmpty)
            continue;
        if (line.form == OutputForm::Json) {
            shell.out.bytes(jsonOf(run));
            shell.out.endLine();
        } else {
            shell.out.line(lineOf(run));
        }
    }
    return ExitCode::Done;
}
