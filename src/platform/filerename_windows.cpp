// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/filerename_system.h"

bool renameWithoutReplacing(const QString & /*from*/, const QString & /*to*/)
{
    // QFile::rename needs no help here: MoveFile refuses to replace.
    return false;
}
