// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/pathlist.h"

#include "platform/bytetext.h"

#include <QDir>
#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr size_t leastTable = 1024; // a power of two

bool isAbsolute(const QString &path)
{
    // QDir takes what begins with a colon for absolute, too.
    return path.startsWith(u'/') || (QDir::separator() == u'\\' && QDir::isAbsolutePath(path));
}

} // namespace

PathList::PathList(const QString &currentFolder)
    : folder(currentFolder.endsWith(u'/') ? currentFolder : currentFolder + u'/')
    , folderBytes(bytesOfText(folder))
    , table(leastTable, -1)
{
}

void PathList::expect(qsizetype more)
{
    const size_t names = begins.size() + static_cast<size_t>(more);
    size_t size = table.size();
    while (names * 2 > size)
        size *= 2;
    if (size > table.size())
        growTable(size);
}

bool PathList::add(const QByteArray &path)
{
    if (begins.size() * 2 > table.size())
        growTable(table.size() * 2);
    int &place = table.at(placeOf(path));
    if (place >= 0)
        return false;
    place = count();
    text.append(path);
    begins.push_back(text.size());
    return true;
}

QString PathList::given(int row) const
{
    return textOfBytes(at(row));
}

FilePath PathList::file(int row) const
{
    // Asked several times for each file: where there is one separator, names of plain letters are put at once
    // where they belong.
    if (QDir::separator() == u'/') {
        const QByteArrayView bytes = at(row);
        const QByteArrayView rest = bytes.sliced(bytes.startsWith("./") ? 2 : 0);
        const qsizetype before = bytes.startsWith('/') ? 0 : folder.size();
        QString path(before + rest.size(), Qt::Uninitialized);
        if (writeAscii(rest, path.data() + before)) {
            std::copy_n(folder.constData(), before, path.data());
            return filePaths.split(path);
        }
    }
    const QString path = QDir::fromNativeSeparators(given(row));
    if (isAbsolute(path))
        return filePaths.split(path);
    return filePaths.split(folder % QStringView(path).sliced(path.startsWith("./"_L1) ? 2 : 0));
}

void PathList::reorder(std::vector<int> rows)
{
    Q_ASSERT(static_cast<int>(rows.size()) == count());
    order = std::move(rows);
}

QByteArrayView PathList::pathAt(int number) const
{
    const auto at = static_cast<size_t>(number);
    return QByteArrayView(text).sliced(begins.at(at), begins.at(at + 1) - begins.at(at));
}

QByteArrayView PathList::keyOf(QByteArrayView path) const
{
    if (path.size() > folderBytes.size() && path.first(folderBytes.size()) == folderBytes)
        return path.sliced(folderBytes.size());
    return path.size() > 2 && path.first(2) == "./" ? path.sliced(2) : path;
}

size_t PathList::placeOf(QByteArrayView path) const
{
    const QByteArrayView key = keyOf(path);
    size_t place = qHashBits(key.data(), static_cast<size_t>(key.size())) & (table.size() - 1);
    while (table.at(place) >= 0 && keyOf(pathAt(table.at(place))) != key)
        place = (place + 1) & (table.size() - 1);
    return place;
}

void PathList::growTable(size_t size)
{
    table.assign(size, -1);
    for (int number = 0; number < count(); ++number)
        table.at(placeOf(pathAt(number))) = number;
}
