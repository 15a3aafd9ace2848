// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/progress.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 patience = 1000;     // milliseconds
constexpr qint64 shownInterval = 100; // milliseconds
/// Between two looks at the clock.
constexpr qint64 stepsAtOnce = 64;

} // namespace

void Progress::show(const char *what, qint64 done, qint64 total)
{
    if (!shell.isWatched || done % stepsAtOnce != 0 || !sinceBegin.hasExpired(patience))
        return;
    if (sinceShown.isValid() && !sinceShown.hasExpired(shownInterval))
        return;
    sinceShown.start();
    isShown = true;
    const QString end = total > 0 ? u" of %1"_s.arg(total) : QString();
    shell.out.flush();
    shell.trouble.text(u"\r%1: %2%3"_s.arg(QLatin1StringView(what)).arg(done).arg(end));
    shell.trouble.flush();
}

void Progress::clear()
{
    if (!std::exchange(isShown, false))
        return;
    constexpr auto blankLine = "\r                                        \r";
    shell.trouble.text(QLatin1StringView(blankLine).toString());
    shell.trouble.flush();
}
