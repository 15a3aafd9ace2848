// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/sortkey.h"

#include "platform/winapi_windows.h"

#include <windows.h>

SortKey sortKey(const QCollator &collator, const QString &name)
{
    const QString locale = collator.locale().bcp47Name();
    const DWORD flags = LCMAP_SORTKEY | (collator.numericMode() ? SORT_DIGITSASNUMBERS : 0);
    const auto map = [&](QByteArray *key) {
        // Of a key the system counts bytes, whatever the type of the buffer.
        return LCMapStringEx(wide(locale), flags, wide(name), static_cast<int>(name.size()),
                             reinterpret_cast<wchar_t *>(key->data()), static_cast<int>(key->size()), nullptr,
                             nullptr, 0);
    };
    // Enough for most names at once. The system has no key for an empty one, which comes first.
    QByteArray key(12 * name.size() + 32, Qt::Uninitialized);
    int size = name.isEmpty() ? 0 : map(&key);
    if (size == 0 && GetLastError() == ERROR_INSUFFICIENT_BUFFER && !name.isEmpty()) {
        key.resize(64 * name.size() + 1024);
        size = map(&key);
    }
    key.resize(size);
    return SortKey(key);
}
