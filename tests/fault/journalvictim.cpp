// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

/// A run to be killed:
///     journalvictim run|undo FOLDER JOURNALS COUNT
/// renames the files f0, f1 ... of a folder to new0, new1 ..., or takes the newest run back;
///     journalvictim planned|planned-by-third-names|finish FOLDER JOURNALS [ROWS]
/// renames the rows that stand in a file as PlannedScene has them, all or none, or finishes the newest such
/// run. With ORVANTO_VICTIM_STOPS set it stops itself just before.

#include "run/journalfolder.h"
#include "run/journalleddisk.h"
#include "run/renamerun.h"
#include "run/systemdisk.h"
#include "run/undorun.h"
#include "support/plannedscene.h"

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

/// Without exchanges, as most file systems.
class PlainDisk final : public Disk
{
public:
    RenameResult rename(const FilePath &from, const QString &to) override { return disk.rename(from, to); }
    std::optional<FileIdentity> identity(const QString &path) const override { return disk.identity(path); }

private:
    SystemDisk disk;
};

int runPlanned(JournalFolder &journals, const QString &folder, const QString &rows, Disk &disk)
{
    QFile file(rows);
    if (!file.open(QIODevice::ReadOnly))
        return 2;
    const PlannedScene scene(folder, QString::fromUtf8(file.readAll()));
    const SystemDiskView view;
    Plan plan(view);
    scene.fill(plan);
    QString error;
    const auto journal = journals.beginPlanned({}, static_cast<qint64>(plan.order().size()), &error);
    if (!journal || plan.refused() > 0)
        return 2;
    PlannedRun run(disk, plan, journal.get());
    while (run.next()) {
    }
    run.end();
    return run.state() == PlannedRun::State::Done ? 0 : 1;
}

int finish(JournalFolder &journals)
{
    for (const JournalInfo &journal : journals.list()) {
        SystemDisk disk;
        if (journal.canFinish())
            return finishRun(journals, journal.name, disk).isEmpty() ? 0 : 1;
    }
    return 2;
}

int renameAsTold(const QStringList &arguments)
{
    const QString &what = arguments.at(1);
    JournalFolder journals(arguments.at(3));
    if (what == "undo"_L1)
        return undo(journals);
    if (what == "finish"_L1)
        return finish(journals);
    if (what == "run"_L1)
        return rename(journals, arguments.at(2), arguments.at(4).toInt());
    SystemDisk disk;
    PlainDisk plain;
    return runPlanned(journals, arguments.at(2), arguments.at(4),
                      what == "planned"_L1 ? static_cast<Disk &>(disk) : plain);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (qEnvironmentVariableIsSet("ORVANTO_VICTIM_STOPS"))
        raise(SIGSTOP);
    return renameAsTold(arguments);
}
