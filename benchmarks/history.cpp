// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

/// What it takes to look at the journals of earlier runs, which the window does when it starts, and to open
/// the list of runs:
///     orvanto_benchmark_history [journals [entries]]
/// writes so many journals of so many renames each, of files that are not there, and reads them.

#include "dialogs/dialogruns.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

void writeRun(JournalFolder &journals, int run, int entries)
{
    QString error;
    const auto journal = journals.begin(u"1"_s, entries, {}, &error);
    if (!journal)
        qFatal("no journal: %s", qPrintable(error));
    const QString folder = u"/home/somebody/Pictures/%1"_s.arg(run);
    const FileStamp file{.volume = u"0123456789abcdef"_s, .number = 1};
    for (int i = 0; i < entries; ++i) {
        FileStamp stamp = file;
        stamp.number = static_cast<quint64>(run) * 1'000'000 + static_cast<quint64>(i) + 1;
        journal->renaming({.folder = folder,
                           .from = u"IMG_%1.JPG"_s.arg(i, 7, 10, QLatin1Char('0')),
                           .to = u"Holiday %1.jpg"_s.arg(i, 7, 10, QLatin1Char('0')),
                           .file = stamp});
    }
    journal->end(false);
}

template <typename Work>
void print(const char *what, const Work &work)
{
    QList<double> times;
    for (int round = 0; round < 5; ++round) {
        QElapsedTimer timer;
        timer.start();
        work();
        times.append(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    std::printf("%-28s %.1f ms (%.1f to %.1f)\n", what, times.at(2), times.first(), times.last());
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int runs = arguments.value(1, u"50"_s).toInt();
    const int entries = arguments.value(2, u"20000"_s).toInt();
    const QTemporaryDir data(u"orvanto-data-XXXXXX"_s);
    JournalFolder journals(data.path() + u"/undo"_s);
    for (int run = 0; run < runs; ++run)
        writeRun(journals, run, entries);
    QList<JournalInfo> list;
    print("list", [&] { list = journals.list(); });
    print("opening the list of runs", [&] {
        DialogRuns dialog(journals, nullptr);
        dialog.show();
        dialog.repaint();
    });
    print("touched by a later run", [&] { (void)journals.touchedBy(list.last().name); });
    const std::atomic<bool> stop = false;
    print("all that were touched", [&] { (void)journals.touchedRuns(stop); });
    return 0;
}
