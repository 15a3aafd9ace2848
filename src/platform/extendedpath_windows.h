// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>

#include <windows.h>

/// The path as Windows reads it (no dots and blanks at the end), without its limit of 260 characters; empty
/// when it cannot be read, and when it names a device, such as "CON" or "nul.txt".
inline QString extendedPath(const QString &path)
{
    using namespace Qt::StringLiterals;
    const QString native = QDir::toNativeSeparators(path);
    const auto *name = reinterpret_cast<const wchar_t *>(native.utf16());
    QString full(GetFullPathNameW(name, 0, nullptr, nullptr), QChar::Null);
    full.resize(GetFullPathNameW(name, static_cast<DWORD>(full.size()),
                                 reinterpret_cast<wchar_t *>(full.data()), nullptr));
    if (full.startsWith("\\\\.\\"_L1))
        return {};
    if (full.isEmpty() || full.startsWith("\\\\?\\"_L1))
        return full;
    if (full.startsWith("\\\\"_L1))
        return "\\\\?\\UNC\\"_L1 + full.sliced(2);
    return "\\\\?\\"_L1 + full;
}
