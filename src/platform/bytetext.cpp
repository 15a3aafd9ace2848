// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/bytetext.h"

#include <QStringDecoder>

#include <algorithm>

namespace {

constexpr char16_t firstByteHalf = 0xDC80;
constexpr char16_t lastByteHalf = 0xDCFF;

/// How many bytes the character has that begins so.
qsizetype lengthAfter(uchar first)
{
    if (first < 0xC0)
        return 1;
    if (first < 0xE0)
        return 2;
    return first < 0xF0 ? 3 : 4;
}

void appendHalf(QByteArray &bytes, char16_t half)
{
    if (half >= firstByteHalf && half <= lastByteHalf) {
        bytes.append(static_cast<char>(half & 0xFF));
        return;
    }
    bytes.append(static_cast<char>(0xE0 | (half >> 12)));
    bytes.append(static_cast<char>(0x80 | ((half >> 6) & 0x3F)));
    bytes.append(static_cast<char>(0x80 | (half & 0x3F)));
}

} // namespace

QString textOfBytes(QByteArrayView bytes)
{
    // Nearly all are.
    if (bytes.isValidUtf8() && !bytes.startsWith("\xEF\xBB\xBF"))
        return QString::fromUtf8(bytes);
    // A name may well begin with what begins files on Windows.
    constexpr auto flags = QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom;
    QStringDecoder decoder(QStringDecoder::Utf8, flags);
    QString text = decoder(bytes);
    if (!decoder.hasError())
        return text;
    text.resize(0);
    for (qsizetype i = 0; i < bytes.size();) {
        const auto first = static_cast<uchar>(bytes.at(i));
        const qsizetype length = std::min(lengthAfter(first), bytes.size() - i);
        const QByteArrayView character = bytes.sliced(i, length);
        if (character.isValidUtf8()) {
            QStringDecoder one(QStringDecoder::Utf8, flags);
            text.append(QString(one(character)));
            i += length;
        } else {
            text.append(QChar(static_cast<char16_t>(firstByteHalf - 0x80 + first)));
            ++i;
        }
    }
    return text;
}

QByteArray bytesOfText(QStringView text)
{
    if (text.isValidUtf16())
        return text.toUtf8();
    QByteArray bytes;
    qsizetype begin = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            ++i;
        } else if (text.at(i).isSurrogate()) {
            bytes.append(text.sliced(begin, i - begin).toUtf8());
            appendHalf(bytes, text.at(i).unicode());
            begin = i + 1;
        }
    }
    bytes.append(text.sliced(begin).toUtf8());
    return bytes;
}

QChar *writeAscii(QByteArrayView bytes, QChar *to)
{
    // Both loops go through several bytes at once.
    uchar all = 0;
    for (const char byte : bytes)
        all |= static_cast<uchar>(byte);
    if (all >= 0x80)
        return nullptr;
    return std::transform(bytes.begin(), bytes.end(), to, [](char byte) { return QChar(QLatin1Char(byte)); });
}
