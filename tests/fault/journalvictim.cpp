// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

/// A run to be killed:
///     journalvictim run|undo FOLDER JOURNALS COUNT
/// renames the files f0, f1 ... of a folder to new0, new1 ..., or takes the newest run back. With
/// ORVANTO_VICTIM_STOPS set it stops itself just before.

#include "run/journalfolder.h"
#include "run/journalleddisk.h"
#include "run/renamerun.h"
#include "run/systemdisk.h"
#include "run/undorun.h"

#include <QCoreApplication>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

int rename(JournalFolder &journals, const QString &folder, int count)
{
    SystemDisk disk;
    QString error;
    const auto journal = journals.begin({}, count, {}, &error);
    if (!journal)
        return 2;
    JournalledDisk journalled(disk, *journal);
    RenameRun run(journalled);
    for (int i = 0; i < count; ++i)
        (void)run.next(FilePath::of(folder + u"/f"_s + QString::number(i)), u"new"_s + QString::number(i));
    journal->end(false);
    return run.failed() == 0 ? 0 : 1;
}

int undo(JournalFolder &journals)
{
    const QList<JournalInfo> list = journals.list();
    const JournalInfo *newest = JournalFolder::undoable(list);
    if (!newest)
        return 2;
    SystemDisk disk;
    const auto begun = UndoRun::begin(journals, newest->name, disk, {});
    while (begun.run->next()) {
    }
    begun.run->end(false);
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    JournalFolder journals(arguments.at(3));
    if (qEnvironmentVariableIsSet("ORVANTO_VICTIM_STOPS"))
        raise(SIGSTOP);
    return arguments.at(1) == "undo"_L1 ? undo(journals)
                                        : rename(journals, arguments.at(2), arguments.at(4).toInt());
}
