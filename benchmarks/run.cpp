// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

// Puts "new_" before the name of every file below a folder, by the Rename button of a real main window, and
// prints the seconds that adding the files and renaming them took.
// Usage: orvanto_benchmark_run folder [open] [unrecorded | undo]
// With "open" the folder is open in the explorer's dock; with "unrecorded" no journal can be written; with
// "undo" the run is taken back, and printed are, too: what that took, the longest pause of the run, and that
// of the undo.

#include "bench.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", OFFSCREEN_PLATFORM);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const QApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments().sliced(1);
    if (words.isEmpty() || (words.contains(u"unrecorded"_s) && words.contains(u"undo"_s))) {
        std::fprintf(stderr, "Usage: orvanto_benchmark_run folder [open] [unrecorded | undo]\n");
        return 2;
    }
    const QString folder = QFileInfo(QFile::decodeName(argv[1])).absoluteFilePath();
    const QTemporaryDir dataDirectory;
    QDir::setCurrent(dataDirectory.path());
    // What is no folder stands in the way.
    if (QFile inTheWay(u"undo"_s); words.contains(u"unrecorded"_s) && !inTheWay.open(QIODevice::WriteOnly))
        return 1;
    prepareBenchmark();
    Bench bench;
    if (words.contains(u"open"_s))
        bench.openInExplorer(folder);
    const double added = secondsOf([&] { bench.window.addPath(folder); });
    QCoreApplication::processEvents();
    bench.addRule(Kind::InsertText);
    PauseMeter pausesOfRun;
    const double renamed = bench.rename();
    std::printf("%d %.6f %.6f", bench.list->count(), added, renamed);
    if (words.contains(u"undo"_s)) {
        const double longest = pausesOfRun.longest();
        PauseMeter pauses;
        const double undone = bench.undo();
        std::printf(" %.6f %.6f %.6f", undone, longest * 1e-3, pauses.longest() * 1e-3);
    }
    std::printf("\n");
    return 0;
}
