// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT
//
// The members of QRegExp that work on whole strings and lists. Qt 5 kept them in QString and QStringList, so
// its qregexp.cpp lacks them; Qt 6's header declares them here.

#include <QtCore/QList>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtCore5Compat/qregexp.h>

namespace {

/// A piece of a replacement text: `number` 0 stands for literal `text`, above 0 for that capture.
struct Piece
{
    QString text;
    int number = 0;
};

/// Splits a replacement at its back-references. A backslash before a digit that names no capture is literal
/// text.
QList<Piece> parseReplacement(const QString &after, int captures)
{
    QList<Piece> pieces;
    QString literal;
    qsizetype at = 0;
    while (at < after.size()) {
        int number = 0;
        qsizetype width = 1;
        if (after.at(at) == u'\\' && at + 1 < after.size()) {
            const int first = after.at(at + 1).digitValue();
            if (first > 0 && first <= captures) {
                number = first;
                width = 2;
                const int second = at + 2 < after.size() ? after.at(at + 2).digitValue() : -1;
                if (second >= 0 && first * 10 + second <= captures) {
                    number = first * 10 + second;
                    width = 3;
                }
            }
        }
        if (number == 0) {
            literal += after.at(at);
        } else {
            pieces.append({literal, 0});
            pieces.append({QString(), number});
            literal.clear();
        }
        at += width;
    }
    pieces.append({literal, 0});
    return pieces;
}

QString expand(const QList<Piece> &pieces, const QRegExp &match)
{
    QString text;
    for (const Piece &piece : pieces)
        text += piece.number == 0 ? piece.text : match.cap(piece.number);
    return text;
}

/// Replaces within the text itself, so that \b and \B of the next match see what the last one left behind.
QString replaceExpanding(QString text, const QRegExp &match, const QList<Piece> &pieces)
{
    QRegExp::CaretMode caret = QRegExp::CaretAtZero;
    int at = 0;
    while (at <= text.size()) {
        at = match.indexIn(text, at, caret);
        if (at < 0)
            break;
        const int length = match.matchedLength();
        const QString piece = expand(pieces, match);
        text.replace(at, length, piece);
        // an empty match must not be found again
        at += int(piece.size()) + (length == 0 ? 1 : 0);
        caret = QRegExp::CaretWontMatch;
    }
    return text;
}

QString replaceLiterally(const QString &text, const QRegExp &match, const QString &after)
{
    int at = match.indexIn(text);
    if (at < 0)
        return text;
    QString result(u""_qs); // empty, never null, once something matched
    int copied = 0;
    for (; at >= 0; at = match.indexIn(text, at)) {
        const int length = match.matchedLength();
        result += QStringView(text).mid(copied, at - copied);
        result += after;
        copied = at + length;
        at = length == 0 ? at + 1 : copied;
    }
    result += QStringView(text).mid(copied);
    return result;
}

} // namespace

QT_BEGIN_NAMESPACE

QString QRegExp::replaceIn(const QString &str, const QString &after) const
{
    const QRegExp match(*this);
    const QList<Piece> pieces = parseReplacement(after, match.captureCount());
    return pieces.size() == 1 ? replaceLiterally(str, match, after) : replaceExpanding(str, match, pieces);
}

QStringList QRegExp::replaceIn(const QStringList &stringList, const QString &after) const
{
    QStringList result;
    for (const QString &string : stringList)
        result.append(replaceIn(string, after));
    return result;
}

int QRegExp::countIn(const QString &str) const
{
    const QRegExp match(*this);
    int count = 0;
    int at = -1;
    // matches may overlap
    while (at < str.size() - 1 && (at = match.indexIn(str, at + 1)) >= 0)
        ++count;
    return count;
}

QStringList QRegExp::splitString(const QString &str, Qt::SplitBehavior behavior) const
{
    const QRegExp match(*this);
    QStringList parts;
    int start = 0;
    int from = 0;
    int at = 0;
    while ((at = match.indexIn(str, from)) >= 0) {
        const int length = match.matchedLength();
        if (at != start || behavior == Qt::KeepEmptyParts)
            parts.append(str.mid(start, at - start));
        start = at + length;
        from = start + (length == 0 ? 1 : 0);
    }
    if (start != str.size() || behavior == Qt::KeepEmptyParts)
        parts.append(str.mid(start));
    return parts;
}

int QRegExp::indexIn(const QStringList &list, int from) const
{
    const QRegExp match(*this);
    if (from < 0)
        from = qMax(from + int(list.size()), 0);
    for (int i = from; i < list.size(); ++i) {
        if (match.exactMatch(list.at(i)))
            return i;
    }
    return -1;
}

int QRegExp::lastIndexIn(const QStringList &list, int from) const
{
    const QRegExp match(*this);
    if (from < 0)
        from += int(list.size());
    else if (from >= list.size())
        from = int(list.size()) - 1;
    for (int i = from; i >= 0; --i) {
        if (match.exactMatch(list.at(i)))
            return i;
    }
    return -1;
}

QStringList QRegExp::filterList(const QStringList &stringList) const
{
    QStringList result;
    for (const QString &string : stringList) {
        if (containedIn(string))
            result.append(string);
    }
    return result;
}

QRegExp::operator QVariant() const
{
    return QVariant::fromValue(*this);
}

QT_END_NAMESPACE
