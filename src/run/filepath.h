// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringBuilder>

/// A file's path, taken apart as QFileInfo does it.
struct FilePath
{
    /// Absolute.
    QString path;
    /// Where the name begins, behind a separator.
    qsizetype nameAt = 0;

    [[nodiscard]] static FilePath of(const QString &path);

    [[nodiscard]] QStringView folder() const { return QStringView(path).first(nameAt - 1); }
    [[nodiscard]] QString name() const { return path.sliced(nameAt); }
    /// The path of another name in the same folder.
    [[nodiscard]] QString sibling(const QString &name) const
    {
        return QStringView(path).first(nameAt) % name;
    }
};

/// Takes apart the paths of a list, at the least cost for one file of a folder after the other.
class FilePaths final
{
public:
    [[nodiscard]] FilePath split(const QString &path);

private:
    /// Of a plain path, with the separator at its end.
    QString folder;
};

/// Whether a path is absolute and has no part that QFileInfo would fold away or write otherwise: "//", "."
/// and
/// "..", and the other separator where there are two.
[[nodiscard]] bool isPlainPath(QStringView path);
