// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/commandline.h"
#include "cli/pathlist.h"
#include "cli/progress.h"

/// Finds the files that a command line names: folders are expanded as a drop on the window expands them.
class FileCollector final
{
public:
    enum class Result { Done, Interrupted, Failed };

    FileCollector(const CommandLine &forLine, const Shell &inShell, PathList &paths);

    /// Why it Failed is told.
    [[nodiscard]] Result collect();

private:
    void add(const QByteArray &path);
    void addFolder(const QString &path);
    [[nodiscard]] Result readList();
    /// Takes whole names out of the bytes; what is left is the beginning of one.
    void takeNames(QByteArray &bytes);
    [[nodiscard]] bool goOn() const { return !shell.isInterrupted(); }

    const CommandLine &line;
    const Shell &shell;
    PathList &list;
    Progress progress;
    QStringList filters;
    qsizetype leftOut = 0;
};
