// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "mainwindow/listwidgetfiles.h"
#include "mainwindow/mainwindow.h"
#include "naming/kind.h"

#include <QElapsedTimer>
#include <QObject>
#include <QString>

#include <functional>

/// Sets the application's look, as at every start; needs the QApplication.
void prepareBenchmark();

/// Seconds that an action takes.
inline double secondsOf(const std::function<void()> &action)
{
    QElapsedTimer timer;
    timer.start();
    action();
    return static_cast<double>(timer.nsecsElapsed()) * 1e-9;
}

/// The longest time between two passes of the event loop: what a click has to wait at most.
class PauseMeter final
{
public:
    PauseMeter();
    Q_DISABLE_COPY_MOVE(PauseMeter)

    /// Milliseconds, since the object was made.
    [[nodiscard]] double longest();

private:
    void pass();

    QElapsedTimer sincePass;
    qint64 longestPause = 0; ///< nanoseconds
    QObject context;
};

/// A folder with many small-named empty files on the RAM disk, gone with the object.
class FileTree final
{
public:
    explicit FileTree(int fileCount, int inEachFolder = 1000);
    ~FileTree();
    Q_DISABLE_COPY_MOVE(FileTree)

    [[nodiscard]] QString path(int file) const;

    const int count;
    const int filesPerFolder;
    QString folder;
};

/// A shown main window, offscreen, with access to what a user reaches.
class Bench final
{
public:
    Bench();

    /// Adds a rule of a kind, with what its editor holds.
    void addRule(Kind kind);
    void clearRules();
    /// Runs the renaming and closes the report. Seconds until the report is there.
    [[nodiscard]] double rename();
    /// Takes the run back, likewise.
    [[nodiscard]] double undo();
    /// Opens a folder and all above it in the explorer's dock; returns when its rows are there.
    void openInExplorer(const QString &folder);

    MainWindow window;
    ListWidgetFiles *list;

private:
    [[nodiscard]] double untilReport(const std::function<void()> &action);
};
