// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// A folder in memory, where there is one.
inline QString memoryFolder()
{
    return QStringLiteral("/dev/shm");
}
