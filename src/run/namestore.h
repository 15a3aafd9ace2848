// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

#include <algorithm>

/// Keeps many short texts without an allocation for each. They stay where they are as long as it lives.
class NameStore final
{
public:
    [[nodiscard]] QStringView keep(QStringView text)
    {
        if (chunks.isEmpty() || chunks.constLast().capacity() - chunks.constLast().size() < text.size()) {
            chunks.emplace_back();
            chunks.last().reserve(std::max(chunkSize, text.size()));
        }
        QString &chunk = chunks.last();
        const qsizetype begin = chunk.size();
        chunk.append(text);
        return QStringView(chunk).sliced(begin);
    }

private:
    static constexpr qsizetype chunkSize = 2000;

    QList<QString> chunks;
};
