// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/filepath.h"

#include <QDir>
#include <QFileInfo>

namespace {

bool hasDrives()
{
    return QDir::separator() == u'\\';
}

bool isAbsolute(QStringView path)
{
    if (!hasDrives())
        return path.startsWith(u'/');
    return path.size() > 2 && path[0].unicode() < 0x80 && path[0].isLetter() && path[1] == u':' &&
           path[2] == u'/';
}

} // namespace

bool isPlainPath(QStringView path)
{
    if (!isAbsolute(path))
        return false;
    const auto endsAt = [path](qsizetype at) {
        return at == path.size() || path[at] == u'/';
    };
    for (qsizetype i = 1; i < path.size(); ++i) {
        if (hasDrives() && path[i] == u'\\')
            return false;
        if (path[i - 1] != u'/')
            continue;
        if (path[i] == u'/' || (path[i] == u'.' && (endsAt(i + 1) || (path[i + 1] == u'.' && endsAt(i + 2)))))
            return false;
    }
    return true;
}

FilePath FilePath::of(const QString &path)
{
    // At a tenth of QFileInfo's cost, for the paths that a drop or a scan delivers.
    const qsizetype slash = path.lastIndexOf(u'/');
    if (slash > (hasDrives() ? 2 : 0) && isPlainPath(path))
        return {path, slash + 1};
    const QFileInfo file(path);
    const QString folder = file.absolutePath() + u'/';
    return {folder + file.fileName(), folder.size()};
}
