// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

/// Text of bytes that are UTF-8, or should be. A byte that belongs to no character becomes half a one, U+DC80
/// to U+DCFF: a path of such text leads to no file, and its bytes are still known.
[[nodiscard]] QString textOfBytes(QByteArrayView bytes);

/// The bytes again. Other halves, which names on Windows can hold, take three bytes that are no UTF-8.
[[nodiscard]] QByteArray bytesOfText(QStringView text);

/// Writes the characters of bytes that are all ASCII, as those of most paths are, and returns where they end:
/// at a fraction of the cost for other texts. Null where a byte is none; nothing is written then.
[[nodiscard]] QChar *writeAscii(QByteArrayView bytes, QChar *to);
