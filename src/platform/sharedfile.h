// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QIODevice>

class QFile;

/// Opens a file that may be removed while it is open, which on Windows it could not be otherwise. Takes
/// ReadOnly or ReadWrite, the latter with NewOnly or ExistingOnly. The file may no longer know its name then.
[[nodiscard]] bool openShared(QFile &file, QIODevice::OpenMode mode);

/// Removes a file that others have opened like that. Its name is free at once; the file goes when nobody has
/// it open any more.
[[nodiscard]] bool removeShared(const QString &path);
