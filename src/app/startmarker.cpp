// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "app/startmarker.h"

#include <QFile>

#include <chrono>

StartMarker::StartMarker(const QString &path)
    : lock(path)
{
    // For one that cannot be read, or names a process of another machine. Who holds it keeps it for longer.
    lock.setStaleLockTime(std::chrono::hours(1));
    const bool wasThere = QFile::exists(path);
    // Fails where the process is still there: another instance that is starting.
    crashed = lock.tryLock(0) && wasThere;
}
