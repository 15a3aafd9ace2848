// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/bytetext.h"

#include <QStringList>

/// What a shell makes of a line: words, with quotes of all three kinds. As little of it as the tests need.
inline QList<QByteArray> shellWords(const QString &line)
{
    QList<QByteArray> words;
    const QByteArray bytes = bytesOfText(line) + ' ';
    QByteArray word;
    bool isWord = false;
    char quote = ' ';
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const char byte = bytes.at(i);
        if (quote == '$' && byte == '\\' && bytes.at(i + 1) >= '0' && bytes.at(i + 1) <= '3') {
            word += static_cast<char>(bytes.mid(i + 1, 3).toInt(nullptr, 8));
            i += 3;
        } else if (quote == '$' && byte == '\\') {
            word += "\a\b\f\n\r\t\v"[QByteArray("abfnrtv").indexOf(bytes.at(++i))];
        } else if (quote != ' ' && byte == (quote == '$' ? '\'' : quote)) {
            quote = ' ';
        } else if (quote != ' ') {
            word += byte;
        } else if (byte == '$' && bytes.at(i + 1) == '\'') {
            quote = '$';
            ++i;
        } else if (byte == '\'' || byte == '"') {
            quote = byte;
            isWord = true;
        } else if (byte == '\\') {
            word += bytes.at(++i);
        } else if (byte != ' ') {
            word += byte;
        } else if (isWord || !word.isEmpty()) {
            words.append(word);
            word.clear();
            isWord = false;
        }
    }
    return words;
}
