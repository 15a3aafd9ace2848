// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/pastedfiles.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

bool isThere(const QString &path)
{
    const QFileInfo info(path);
    // A link that leads nowhere can be renamed, too.
    return info.exists() || info.isSymLink();
}

bool isAbsolute(const QString &path)
{
    // The program's own resources count as absolute.
    return QDir::isAbsolutePath(path) && !path.startsWith(u':');
}

/// What a line names, as file managers and shells write it.
QString unquoted(const QString &line)
{
    QString path = line.trimmed();
    const bool isQuoted =
        path.size() > 2 && path.front() == path.back() && (path.front() == u'"' || path.front() == u'\'');
    return isQuoted ? path.sliced(1, path.size() - 2) : path;
}

QList<QUrl> localFiles(const QList<QUrl> &urls)
{
    QList<QUrl> files = urls;
    files.removeIf([](const QUrl &url) { return !url.isLocalFile(); });
    return files;
}

QList<QUrl> namedFiles(const QString &text)
{
    QList<QUrl> files;
    for (QStringView part : QStringTokenizer(text, u'\n')) {
        if (part.endsWith(u'\r'))
            part.chop(1);
        const QString line = part.toString();
        const QString path = unquoted(line);
        if (path.isEmpty())
            continue;
        if (path.startsWith("file:"_L1, Qt::CaseInsensitive)) {
            files.append(QUrl(path));
        } else if (!isAbsolute(path)) {
            // Some other text, in which a line happens to look like a path.
            return {};
        } else if (isAbsolute(line) && isThere(line)) {
            // A name may end with a blank.
            files.append(QUrl::fromLocalFile(line));
        } else if (isThere(path)) {
            files.append(QUrl::fromLocalFile(path));
        }
    }
    return localFiles(files);
}

} // namespace

QList<QUrl> pastedFiles(const QMimeData &data)
{
    return data.hasUrls() ? localFiles(data.urls()) : namedFiles(data.text());
}
