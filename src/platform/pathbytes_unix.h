// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

/// Paths in the bytes of QFile::encodeName. The folder's part is converted once for all paths of one folder
/// in a row.
class PathBytes final
{
public:
    /// Ends with a null character, and is good until the next call. Null where the bytes would not be that
    /// path: it is empty, or holds a null character or half a character, which would be written as U+FFFD.
    [[nodiscard]] const char *of(const QString &path);

private:
    void setFolder(const QString &newFolder);
    [[nodiscard]] bool append(QStringView part);

    /// With the separator at its end.
    QString folder;
    bool isFolderText = true;
    /// The folder's bytes come first.
    QByteArray bytes;
    qsizetype folderSize = 0;
};
