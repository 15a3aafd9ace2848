// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/foldernumbers.h"

#include <QFile>
#include <QHashFunctions>

#include <array>
#include <cstring>

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

FolderNumbers::FolderNumbers(const QString &folder)
    : handle(open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
}

FolderNumbers::~FolderNumbers()
{
    if (handle >= 0)
        close(static_cast<int>(handle));
}

bool FolderNumbers::readOn()
{
    if (handle < 0)
        return false;
    // Not readdir, which keeps a part of its piece for later: entries must not be older than the renames
    // between.
    alignas(dirent64) std::array<char, 8192> piece;
    const ssize_t size = getdents64(static_cast<int>(handle), piece.data(), piece.size());
    for (ssize_t at = 0; at < size;) {
        const auto *entry = reinterpret_cast<const dirent64 *>(piece.data() + at);
        insert(qHashBits(entry->d_name, std::strlen(entry->d_name)), entry->d_ino);
        at += entry->d_reclen;
    }
    if (size > 0)
        return true;
    close(static_cast<int>(handle));
    handle = -1;
    return false;
}

size_t FolderNumbers::hashOf(QStringView name)
{
    std::array<char, 256> ascii;
    const auto size = static_cast<size_t>(name.size());
    if (size > ascii.size())
        return qHash(QFile::encodeName(name.toString()));
    char16_t all = 0;
    for (size_t i = 0; i < size; ++i) {
        const char16_t unit = name.utf16()[i];
        all |= unit;
        ascii[i] = static_cast<char>(unit);
    }
    return all < 0x80 ? qHashBits(ascii.data(), size) : qHash(QFile::encodeName(name.toString()));
}
