// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

// Puts "new_" before the name of every file below a folder, by the Rename button of a real main window, and
// prints the seconds that adding the files and renaming them took. Usage: orvanto_benchmark_run folder [open]
// With "open" the folder is open in the explorer's dock.

#include "bench.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdio>

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const QApplication application(argc, argv);
    const bool open = argc == 3 && qstrcmp(argv[2], "open") == 0;
    if (argc != 2 && !open) {
        std::fprintf(stderr, "Usage: orvanto_benchmark_run folder [open]\n");
        return 2;
    }
    const QString folder = QFileInfo(QFile::decodeName(argv[1])).absoluteFilePath();
    const QTemporaryDir dataDirectory;
    QDir::setCurrent(dataDirectory.path());
    prepareBenchmark();
    Bench bench;
    if (open)
        bench.openInExplorer(folder);
    const double added = secondsOf([&] { bench.window.addPath(folder); });
    QCoreApplication::processEvents();
    bench.addRule(Kind::InsertText);
    const double renamed = bench.rename();
    std::printf("%d %.6f %.6f\n", bench.list->count(), added, renamed);
    return 0;
}
