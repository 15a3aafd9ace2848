// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

/// What a run's journal costs, and what an undo does, without a window:
///     orvanto_benchmark_journal FOLDER [files [rounds]]
/// makes so many files in a new folder there, and in turn renames them without a journal, renames them with
/// one, and takes that back. The journals are in a new folder of the current directory.

#include "run/journalfolder.h"
#include "run/journalleddisk.h"
#include "run/renamerun.h"
#include "run/systemdisk.h"
#include "run/undorun.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

struct Time
{
    double wall = 0;
    /// Of this thread alone: what other programs take does not count.
    double processor = 0;
};

double processorTime()
{
    timespec now = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

template <typename Work>
Time timed(const Work &work)
{
    QElapsedTimer timer;
    timer.start();
    const double before = processorTime();
    work();
    return {static_cast<double>(timer.nsecsElapsed()) / 1e9, processorTime() - before};
}

QString nameOf(int number)
{
    return u"IMG_%1.JPG"_s.arg(number, 7, 10, QLatin1Char('0'));
}

void makeFiles(const QString &folder, int count)
{
    for (int i = 0; i < count; ++i) {
        QFile file(folder + u'/' + nameOf(i));
        if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            qFatal("cannot make a file in %s", qPrintable(folder));
    }
}

void renameAll(Disk &disk, QStringList &paths, const QString &prefix, const QString &newPrefix)
{
    RenameRun run(disk);
    for (QString &path : paths) {
        const FilePath file = FilePath::of(path);
        path = run.next(file, newPrefix + file.name().sliced(prefix.size())).path;
    }
    if (run.failed() > 0)
        qFatal("%d of %d files were not renamed", run.failed(), run.handled());
}

void undoNewest(JournalFolder &journals, Disk &disk)
{
    const QList<JournalInfo> list = journals.list();
    const auto undo = UndoRun::begin(journals, JournalFolder::undoable(list)->name, disk, {});
    while (const auto step = undo.run->next()) {
        if (!step->isDone())
            qFatal("%s: %s", qPrintable(step->from), qPrintable(idOf(step->result)));
    }
    undo.run->end(false);
}

void print(const char *what, QList<Time> times, const Time &beside)
{
    std::sort(times.begin(), times.end(),
              [](const Time &a, const Time &b) { return a.processor < b.processor; });
    const Time median = times.at(times.size() / 2);
    std::printf("%-16s processor %.3f s (%.2f times), wall %.3f s\n", what, median.processor,
                median.processor / beside.processor, median.wall);
}

Time medianOf(QList<Time> times)
{
    std::sort(times.begin(), times.end(),
              [](const Time &a, const Time &b) { return a.processor < b.processor; });
    return times.at(times.size() / 2);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int count = arguments.value(2, u"100000"_s).toInt();
    const int rounds = arguments.value(3, u"5"_s).toInt();
    const QTemporaryDir folder(arguments.value(1) + u"/orvanto-XXXXXX"_s);
    const QTemporaryDir data(u"orvanto-data-XXXXXX"_s);
    makeFiles(folder.path(), count);
    QStringList paths;
    for (int i = 0; i < count; ++i)
        paths.append(folder.path() + u'/' + nameOf(i));
    QList<Time> plain;
    QList<Time> journalled;
    QList<Time> undone;
    for (int round = 0; round < rounds; ++round) {
        JournalFolder journals(data.path() + u"/undo"_s);
        SystemDisk disk;
        plain += timed([&] { renameAll(disk, paths, {}, u"new_"_s); });
        journalled += timed([&] {
            QString error;
            const auto journal = journals.begin({}, count, {}, &error);
            JournalledDisk recorded(disk, *journal);
            renameAll(recorded, paths, u"new_"_s, u"old_"_s);
            journal->end(false);
        });
        undone += timed([&] { undoNewest(journals, disk); });
        for (int i = 0; i < count; ++i)
            paths[i] = folder.path() + u"/new_"_s + nameOf(i);
        renameAll(disk, paths, u"new_"_s, {});
    }
    const Time beside = medianOf(plain);
    print("run", plain, beside);
    print("with journal", journalled, beside);
    print("undo", undone, beside);
    return 0;
}
