// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

/// What a planned run costs beside one in list order, both with their journals, without a window:
///     orvanto_benchmark_planned FOLDER [files [rounds]]
/// makes so many files in a new folder there, and in turn renames them in list order, by a plan, by a plan of
/// one shift in which each waits for the next, and by one of swaps; prints the processor's time. The journals
/// are in a new folder of the current directory.

#include "run/journalfolder.h"
#include "run/journalleddisk.h"
#include "run/plannedrun.h"
#include "run/renamerun.h"
#include "run/systemdisk.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

QString nameOf(int number)
{
    return u"IMG_%1.JPG"_s.arg(number, 7, 10, QLatin1Char('0'));
}

/// Of this thread alone: what other programs take does not count.
double processorTime()
{
    timespec now = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

double secondsOf(const std::function<void()> &work)
{
    const double before = processorTime();
    work();
    return processorTime() - before;
}

double medianOf(QList<double> times)
{
    std::sort(times.begin(), times.end());
    return times.at(times.size() / 2);
}

struct Rows
{
    QList<FilePath> files;
    QStringList newNames;
};

class Bench
{
public:
    explicit Bench(const QString &data)
        : journals(data + u"/undo"_s)
    {
    }

    double inListOrder(const Rows &rows)
    {
        QString error;
        return secondsOf([&] {
            const auto journal = journals.begin({}, rows.files.size(), {}, &error);
            JournalledDisk recorded(disk, *journal);
            RenameRun run(recorded);
            for (qsizetype row = 0; row < rows.files.size(); ++row)
                (void)run.next(rows.files.at(row), rows.newNames.at(row));
            journal->end(false);
            if (run.failed() > 0)
                qFatal("%d files were not renamed", run.failed());
        });
    }
    /// The plan's seconds, and the run's.
    std::pair<double, double> planned(const Rows &rows)
    {
        const SystemDiskView view;
        Plan plan(view);
        const double planning = secondsOf([&] {
            for (qsizetype row = 0; row < rows.files.size(); ++row)
                plan.add(rows.files.at(row), rows.newNames.at(row));
            plan.make();
        });
        QString error;
        const double running = secondsOf([&] {
            const auto journal = journals.beginPlanned({}, rows.files.size(), &error);
            PlannedRun run(disk, plan, journal.get());
            while (run.next()) {
            }
            run.end();
            if (run.state() != PlannedRun::State::Done)
                qFatal("the planned run failed");
        });
        return {planning, running};
    }

private:
    SystemDisk disk;
    JournalFolder journals;
};

Rows rowsOf(const QString &folder, int count, const std::function<QString(int)> &from,
            const std::function<QString(int)> &to)
{
    FilePaths paths;
    Rows rows;
    for (int i = 0; i < count; ++i) {
        rows.files.append(paths.split(folder + u'/' + from(i)));
        rows.newNames.append(to(i));
    }
    return rows;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int count = arguments.value(2, u"100000"_s).toInt() & ~1;
    const int rounds = arguments.value(3, u"5"_s).toInt();
    const QTemporaryDir folder(arguments.value(1) + u"/orvanto-XXXXXX"_s);
    const QTemporaryDir data(u"orvanto-data-XXXXXX"_s);
    for (int i = 0; i < count; ++i) {
        QFile file(folder.path() + u'/' + nameOf(i));
        if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            qFatal("cannot make a file in %s", qPrintable(folder.path()));
    }
    const auto prefixed = [](int i) {
        return u"new_"_s + nameOf(i);
    };
    const auto next = [](int i) {
        return nameOf(i + 1);
    };
    const auto other = [](int i) {
        return nameOf(i ^ 1);
    };
    Bench bench(data.path());
    QList<double> classic;
    QList<double> plans;
    QList<double> runs;
    QList<double> shiftPlans;
    QList<double> shifts;
    QList<double> swaps;
    for (int round = 0; round < rounds; ++round) {
        classic += bench.inListOrder(rowsOf(folder.path(), count, nameOf, prefixed));
        const auto plain = bench.planned(rowsOf(folder.path(), count, prefixed, nameOf));
        plans += plain.first;
        runs += plain.second;
        const auto shift = bench.planned(rowsOf(folder.path(), count, nameOf, next));
        shiftPlans += shift.first;
        shifts += shift.second;
        (void)bench.planned(rowsOf(folder.path(), count, next, nameOf));
        swaps += bench.planned(rowsOf(folder.path(), count, nameOf, other)).second;
    }
    const double beside = medianOf(classic);
    const auto print = [beside](const char *what, const QList<double> &times) {
        std::printf("%-22s %.3f s, %.2f times the run in list order\n", what, medianOf(times),
                    medianOf(times) / beside);
    };
    print("run in list order", classic);
    print("plan", plans);
    print("planned run", runs);
    print("plan of a shift", shiftPlans);
    print("planned shift", shifts);
    print("planned swaps", swaps);
    return 0;
}
