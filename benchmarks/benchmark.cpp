// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

// Prints what the main jobs cost per item, at growing numbers of items. Usage: orvanto_benchmark [most items]

#include "bench.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QShortcut>
#include <QTemporaryDir>
#include <QUrl>

#include <cstdio>

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

qint64 residentBytes()
{
    QFile file(u"/proc/self/statm"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').at(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

/// What reading the folders takes that a search has to read: the measure for a scan.
double bareScan(const FileTree &tree)
{
    return secondsOf([&] {
        const QStringList folders = QDir(tree.folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QString &folder : folders) {
            DIR *directory = opendir(QFile::encodeName(tree.folder + u'/' + folder).constData());
            while (directory && readdir(directory)) {
            }
            closedir(directory);
        }
    });
}

/// Renames every file there and back with the system call alone; seconds for one way.
double bareRename(const FileTree &tree)
{
    QList<std::pair<QByteArray, QByteArray>> names;
    for (int i = 0; i < tree.count; ++i) {
        const QString path = tree.path(i);
        const qsizetype slash = path.lastIndexOf(u'/') + 1;
        names.append(
            {QFile::encodeName(path), QFile::encodeName(path.left(slash) + "new_"_L1 + path.mid(slash))});
    }
    const double seconds = secondsOf([&] {
        for (const auto &[from, to] : std::as_const(names))
            renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE);
    });
    for (const auto &[from, to] : std::as_const(names))
        renameat2(AT_FDCWD, to.constData(), AT_FDCWD, from.constData(), RENAME_NOREPLACE);
    return seconds;
}

void printRow(const char *job, int count, double seconds)
{
    std::printf("%-44s %9d %10.3f %10.2f\n", job, count, seconds, seconds * 1e6 / count);
    std::fflush(stdout);
}

void printPause(int count, PauseMeter &pauses)
{
    std::printf("%-44s %9d %21.1f ms\n", "  the longest wait of a click", count, pauses.longest());
}

void measureAdding(Bench &bench, const FileTree &tree)
{
    const qint64 before = residentBytes();
    const double bare = bareScan(tree);
    PauseMeter scanPauses;
    const double scanned = secondsOf([&] { bench.window.addPath(tree.folder); });
    printRow("read the folders, nothing else", tree.count, bare);
    printRow("drop a folder: scan and add", tree.count, scanned);
    printPause(tree.count, scanPauses);
    const double settled = secondsOf([] { QCoreApplication::processEvents(); });
    printRow("  the layout after it", tree.count, settled);
    std::printf("%-44s %9d %21.0f bytes a row\n", "  memory", tree.count,
                static_cast<double>(residentBytes() - before) / tree.count);
    printRow("clear the list", tree.count, secondsOf([&] { bench.list->onClear(); }));

    QMimeData mimeData;
    QList<QUrl> urls;
    for (int i = 0; i < tree.count; ++i)
        urls.append(QUrl::fromLocalFile(tree.path(i)));
    mimeData.setUrls(urls);
    PauseMeter dropPauses;
    printRow("drop single files", tree.count, secondsOf([&] { bench.window.onFileListAdded(&mimeData); }));
    printPause(tree.count, dropPauses);
    QCoreApplication::processEvents();
}

void measureEditing(Bench &bench, const FileTree &tree)
{
    auto *preview = bench.window.findChild<QPushButton *>(u"buttonPreview"_s);
    bench.addRule(Kind::Replace);
    bench.addRule(Kind::ChangeCase);
    bench.addRule(Kind::Enumerate);
    preview->setChecked(true);
    printRow("refresh the preview, three rules", tree.count,
             secondsOf([&] { bench.window.on_buttonPreview_clicked(); }));
    const auto *figures = bench.window.findChild<QLabel *>(u"labelForecast"_s);
    const QString checking = figures->text();
    PauseMeter pauses;
    printRow("  all names and fates, in slices", tree.count, secondsOf([&] {
                 while (figures->text() == checking)
                     QCoreApplication::processEvents();
             }));
    printPause(tree.count, pauses);
    preview->setChecked(false);
    bench.window.on_buttonPreview_clicked();
    QCoreApplication::processEvents();
    bench.clearRules();

    printRow("show full paths, lay them out", tree.count, secondsOf([&] {
                 bench.window.findChild<QCheckBox *>(u"checkBoxShowFullPath"_s)->click();
                 QCoreApplication::processEvents();
             }));
    bench.window.findChild<QCheckBox *>(u"checkBoxShowFullPath"_s)->click();
    QCoreApplication::processEvents();
    QEvent languageChange(QEvent::LanguageChange);
    printRow("switch the language", 1, secondsOf([&] {
                 QCoreApplication::sendEvent(&bench.window, &languageChange);
                 QCoreApplication::processEvents();
             }));

    constexpr int moves = 20;
    bench.list->setCurrentRow(tree.count / 2);
    printRow("move a row up, the layout after it, 20 times", moves, secondsOf([&] {
                 for (int i = 0; i < moves; ++i) {
                     bench.window.onClickedFileList(2);
                     QCoreApplication::processEvents();
                 }
             }));
}

/// Every other row. The selection itself has persistent indexes, which every removal updates: it is gone
/// before anything is measured.
void selectHalf(Bench &bench, int count)
{
    QItemSelection selection;
    for (int row = 0; row < count; row += 2)
        selection.append(QItemSelectionRange(bench.list->model()->index(row, 0)));
    bench.list->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void measureOrdering(Bench &bench, const FileTree &tree)
{
    const std::pair<const char *, const char *> orders[] = {
        {"sort by name, descending", "actionSortNameDescending"},
        {"sort by path", "actionSortPath"},
        {"sort by extension", "actionSortExtension"},
        {"sort by size", "actionSortSize"},
        {"sort by name", "actionSortName"},
        {"sort by time of modification", "actionSortModifiedDescending"},
        {"sort in the order of adding", "actionSortAdding"}};
    for (const auto &[job, name] : orders) {
        auto *action = bench.window.findChild<QAction *>(QString::fromLatin1(name));
        PauseMeter pauses;
        printRow(job, tree.count, secondsOf([&] {
                     action->trigger();
                     QCoreApplication::processEvents();
                 }));
        printPause(tree.count, pauses);
    }
    selectHalf(bench, tree.count);
    const std::pair<const char *, QKeySequence> keys[] = {
        {"move every other row down", Qt::ALT | Qt::Key_Down},
        {"move every other row to the top", Qt::ALT | Qt::Key_Home}};
    const auto shortcuts = bench.list->findChildren<QShortcut *>();
    for (const auto &[job, key] : keys) {
        for (QShortcut *shortcut : shortcuts) {
            if (shortcut->key() == key)
                printRow(job, tree.count, secondsOf([&] {
                             emit shortcut->activated();
                             QCoreApplication::processEvents();
                         }));
        }
    }
    bench.list->clearSelection();
    bench.window.findChild<QAction *>(u"actionSortAdding"_s)->trigger();
}

void measureRun(Bench &bench, const FileTree &tree)
{
    const double bare = bareRename(tree);
    printRow("renameat2 alone", tree.count, bare);
    bench.addRule(Kind::InsertText);
    PauseMeter pauses;
    const double run = bench.rename();
    printRow("the run", tree.count, run);
    std::printf("%-44s %9d %21.2f times\n", "  beside renameat2 alone", tree.count, run / bare);
    printPause(tree.count, pauses);
    bench.clearRules();
    printRow("a run in which every file fails", tree.count, bench.rename());
    printRow("  its lines into the log table", tree.count, secondsOf([&] { bench.window.onTimeout(); }));
}

void measureRemoving(Bench &bench, const FileTree &tree)
{
    bench.list->setCurrentRow(0);
    selectHalf(bench, tree.count);
    printRow("remove every other row", tree.count, secondsOf([&] { bench.window.onClickedFileList(4); }));
    bench.list->selectAll();
    printRow("remove all rows", tree.count / 2, secondsOf([&] { bench.window.onClickedFileList(4); }));
    QCoreApplication::processEvents();
    bench.list->onClear();
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", OFFSCREEN_PLATFORM);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const QTemporaryDir dataDirectory;
    QDir::setCurrent(dataDirectory.path());
    const QApplication application(argc, argv);
    prepareBenchmark();
    const int most = argc > 1 ? QByteArray(argv[1]).toInt() : 1000000;
    std::printf("%-44s %9s %10s %10s\n", "job", "items", "seconds", "us/item");
    for (int count = std::min(1000, most); count <= most; count *= 10) {
        const FileTree tree(count);
        Bench bench;
        measureAdding(bench, tree);
        measureEditing(bench, tree);
        measureOrdering(bench, tree);
        measureRun(bench, tree);
        measureRemoving(bench, tree);
    }
    return 0;
}
