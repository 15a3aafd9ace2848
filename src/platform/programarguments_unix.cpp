// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/programarguments.h"

#include "platform/bytetext.h"

QStringList programArguments(int count, char **arguments)
{
    QStringList words;
    words.reserve(count);
    for (int i = 1; i < count; ++i)
        words.append(textOfBytes(arguments[i]));
    return words;
}
