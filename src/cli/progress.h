// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/shell.h"

#include <QElapsedTimer>

/// Tells somebody who watches how far the work is, once it has taken a second.
class Progress final
{
public:
    explicit Progress(const Shell &inShell)
        : shell(inShell)
    {
        sinceBegin.start();
    }
    ~Progress() { clear(); }
    Q_DISABLE_COPY_MOVE(Progress)

    /// A total of 0 is not known.
    void show(const char *what, qint64 done, qint64 total = 0);
    /// Makes room for other lines.
    void clear();

private:
    const Shell &shell;
    QElapsedTimer sinceBegin;
    QElapsedTimer sinceShown;
    bool isShown = false;
};
