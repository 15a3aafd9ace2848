// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/pathbytes_unix.h"

#include <QStringEncoder>

#include <cstring>

const char *PathBytes::of(const QString &path)
{
    if (path.isEmpty())
        return nullptr;
    if (!path.startsWith(folder))
        setFolder(path.first(path.lastIndexOf(u'/') + 1));
    bytes.resize(folderSize);
    return isFolderText && append(QStringView(path).sliced(folder.size())) ? bytes.constData() : nullptr;
}

void PathBytes::setFolder(const QString &newFolder)
{
    folder = newFolder;
    bytes.resize(0);
    isFolderText = append(folder);
    folderSize = bytes.size();
}

bool PathBytes::append(QStringView part)
{
    // The system's encoding is UTF-8 for Qt, too.
    QStringEncoder encoder(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless);
    const qsizetype before = bytes.size();
    bytes.resize(before + encoder.requiredSpace(part.size()));
    char *begin = bytes.data() + before;
    const char *end = encoder.appendToBuffer(begin, part);
    bytes.resize(end - bytes.constData());
    return !encoder.hasError() && std::memchr(begin, 0, static_cast<size_t>(end - begin)) == nullptr;
}
