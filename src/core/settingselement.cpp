// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "core/settingselement.h"

#include <QStringDecoder>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

// The document is walked recursively; a file nested without bound would exhaust the stack.
constexpr int maxDepth = 100;

/// Empty for bytes that are no text in the encoding that they say, and for an unknown one.
QString decoded(const QByteArray &xml)
{
    QXmlStreamReader reader(xml);
    if (reader.readNext() == QXmlStreamReader::Invalid)
        return {};
    const QByteArray declared = reader.documentEncoding().toLatin1();
    QStringDecoder decoder(QStringConverter::encodingForData(xml, u'<').value_or(QStringConverter::Utf8));
    if (!declared.isEmpty())
        decoder = QStringDecoder(declared.constData());
    QString text = decoder.decode(xml);
    return decoder.hasError() ? QString() : text;
}

/// Where the start tag begins that was read last: no "<" may stand in it but its first character.
qsizetype beginningOfTag(const QString &text, const QXmlStreamReader &reader)
{
    return text.lastIndexOf(u'<', static_cast<qsizetype>(reader.characterOffset()) - 1);
}

/// Where the first element begins; negative where there is none.
qsizetype firstElement(const QString &text)
{
    QXmlStreamReader reader(text);
    reader.setNamespaceProcessing(false);
    while (reader.readNext() != QXmlStreamReader::StartElement) {
        if (reader.atEnd())
            return -1;
    }
    return beginningOfTag(text, reader);
}

/// Reads a document in which an element of our own holds the top-level ones.
class TopLevelReader final
{
public:
    explicit TopLevelReader(const QString &text)
        : document(text)
        , reader(text)
    {
        reader.setNamespaceProcessing(false);
    }

    /// The text of the first element of this name; empty for a document that is not well-formed.
    [[nodiscard]] QString first(const QString &name)
    {
        while (!reader.atEnd()) {
            const auto token = reader.readNext();
            if (token == QXmlStreamReader::StartElement && ++depth == topLevel && start < 0 &&
                reader.name() == name)
                start = beginningOfTag(document, reader);
            if (depth > maxDepth + 1 || (depth == 1 && isNoTopLevelToken(token)))
                return {};
            if (token == QXmlStreamReader::EndElement && depth-- == topLevel && start >= 0 && end < 0)
                end = static_cast<qsizetype>(reader.characterOffset());
        }
        return reader.hasError() || end < 0 ? QString() : document.sliced(start, end - start);
    }

private:
    static constexpr int topLevel = 2;

    /// What may stand within an element, where the document has none at this place.
    [[nodiscard]] bool isNoTopLevelToken(QXmlStreamReader::TokenType token) const
    {
        return token == QXmlStreamReader::DTD ||
               (token == QXmlStreamReader::Characters && !reader.isWhitespace());
    }

    QString document;
    QXmlStreamReader reader;
    int depth = 0;
    qsizetype start = -1;
    qsizetype end = -1;
};

} // namespace

QString settingsElement(const QByteArray &xml)
{
    const QString text = decoded(xml);
    const qsizetype first = firstElement(text);
    if (first < 0)
        return {};
    const QString prolog = text.first(first);
    const QString held = prolog + "<all>"_L1 + text.sliced(first) + "</all>"_L1;
    const QString element = TopLevelReader(held).first(u"Settings"_s);
    return element.isEmpty() ? QString() : prolog + element;
}
