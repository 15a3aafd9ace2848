// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/commands.h"

using namespace Qt::StringLiterals;

QString journalFolderOf(const Shell &shell)
{
    return shell.dataFolder + "/undo"_L1;
}

QString ruleSetFolderOf(const Shell &shell)
{
    return shell.dataFolder + "/rulesets"_L1;
}

ExitCode exitCodeOf(qint64 done, qint64 failed)
{
    if (failed == 0)
        return ExitCode::Done;
    return done == 0 ? ExitCode::AllFailed : ExitCode::SomeFailed;
}
