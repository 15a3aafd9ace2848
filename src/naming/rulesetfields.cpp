// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "naming/rulesetfields.h"

#include "naming/halves.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct RuleSets
{
    Q_DECLARE_TR_FUNCTIONS(RuleSets)
};

constexpr auto commentField = "comment"_L1;

/// Whether it may not stand in a file as it is: line ends of any kind, what is taken for a byte order mark,
/// and what UTF-8 cannot hold.
bool needsEscape(QStringView text, qsizetype at)
{
    const QChar unit = text.at(at);
    return unit < u' ' || unit == QChar::LineSeparator || unit == QChar::ParagraphSeparator ||
           unit == QChar::ByteOrderMark || isHalf(text, at);
}

/// A text between quotes. QJsonDocument writes "?" for half a character.
QByteArray quoted(QStringView text)
{
    QString result = u"\""_s;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        if (needsEscape(text, i))
            result += "\\u"_L1 + QString::number(unit.unicode(), 16).rightJustified(4, u'0');
        else if (unit == u'"' || unit == u'\\')
            result += QString(u'\\') + unit;
        else
            result += unit;
    }
    return (result + u'"').toUtf8();
}

} // namespace

QString RuleSetError::text() const
{
    const QString where = field.isEmpty() ? problem : u'"' + field + "\": "_L1 + problem;
    return rule == 0 ? where : RuleSets::tr("rule %1, %2").arg(QString::number(rule), where);
}

QString RuleSetFields::mustBeObject()
{
    return RuleSets::tr("must be an object");
}

QString RuleSetFields::tooLarge()
{
    return RuleSets::tr("too large");
}

QString RuleSetFields::noJson(const QByteArray &before)
{
    return RuleSets::tr("line %1 is no JSON").arg(before.count('\n') + 1);
}

QString RuleSetFields::text(QLatin1StringView field, qsizetype mostCharacters)
{
    const QJsonValue value = take(field);
    if (!value.isString() || value.toString().size() > mostCharacters)
        refuse(field, RuleSets::tr("must be a text of at most %1 characters").arg(mostCharacters));
    return value.toString();
}

QString RuleSetFields::name(QLatin1StringView field, qsizetype mostCharacters)
{
    const QString name = text(field, mostCharacters);
    const auto isSeen = [](QChar character) {
        return character.isPrint();
    };
    if (name.trimmed().isEmpty() || name != name.trimmed() || !name.isValidUtf16() ||
        !std::all_of(name.begin(), name.end(), [&](QChar c) { return c.isSurrogate() || isSeen(c); }))
        refuse(field, RuleSets::tr("must be a name, without blanks at its ends"));
    return name;
}

int RuleSetFields::number(QLatin1StringView field, Range range)
{
    const QJsonValue value = take(field);
    const double number = value.toDouble(range.least - 1);
    const bool isInRange = number >= range.least && number <= range.most;
    if (!isInRange || number != static_cast<int>(number)) {
        refuse(field, RuleSets::tr("must be a whole number from %1 to %2").arg(range.least).arg(range.most));
        return range.least;
    }
    return static_cast<int>(number);
}

bool RuleSetFields::flag(QLatin1StringView field, std::optional<bool> byDefault)
{
    if (byDefault && !object.contains(field))
        return *byDefault;
    const QJsonValue value = take(field);
    if (!value.isBool())
        refuse(field, RuleSets::tr("must be true or false"));
    return value.toBool();
}

int RuleSetFields::choice(QLatin1StringView field, const QStringList &words)
{
    const QJsonValue value = take(field);
    const qsizetype which = value.isString() ? words.indexOf(value.toString()) : -1;
    if (which < 0) {
        QStringList quotedWords;
        for (const QString &word : words)
            quotedWords.append(u'"' + word + u'"');
        const QString list = quotedWords.join(u", "_s);
        refuse(field, words.size() == 1 ? RuleSets::tr("must be %1").arg(list)
                                        : RuleSets::tr("must be one of %1").arg(list));
    }
    return static_cast<int>(which);
}

QJsonArray RuleSetFields::list(QLatin1StringView field, qsizetype most)
{
    const QJsonValue value = take(field);
    if (!value.isArray() || value.toArray().size() > most)
        refuse(field, RuleSets::tr("must be a list of at most %1 rules").arg(most));
    return value.toArray();
}

bool RuleSetFields::isVersion(QLatin1StringView field, int version)
{
    const QJsonValue value = take(field);
    if (value.toDouble() > version)
        refuse(field, RuleSets::tr("a newer version of the program wrote this file"));
    else if (value.toDouble() != version)
        refuse(field, RuleSets::tr("must be %1").arg(version));
    return isGood();
}

QString RuleSetFields::comment()
{
    return object.contains(commentField) ? text(commentField, mostBytesOfSet) : QString();
}

void RuleSetFields::expectNoMore()
{
    const QStringList fields = object.keys();
    for (const QString &field : fields) {
        if (!asked.contains(field))
            refuse(field, RuleSets::tr("no such field is known"));
    }
}

QJsonValue RuleSetFields::take(QLatin1StringView field)
{
    asked.insert(field);
    const QJsonValue value = object.value(field);
    if (value.isUndefined())
        refuse(field, RuleSets::tr("is missing"));
    return value;
}

void RuleSetFields::refuse(const QString &field, const QString &problem)
{
    if (isGood())
        firstError = {0, field, problem};
}

void JsonLines::add(QLatin1StringView field, const QString &text)
{
    addRaw(field, quoted(text));
}

void JsonLines::add(QLatin1StringView field, int number)
{
    addRaw(field, QByteArray::number(number));
}

void JsonLines::add(QLatin1StringView field, bool flag)
{
    addRaw(field, flag ? "true" : "false");
}

void JsonLines::addComment(const QString &comment)
{
    if (!comment.isNull())
        add(commentField, comment);
}

void JsonLines::beginList(QLatin1StringView field)
{
    addRaw(field, "[");
    isInList = true;
}

void JsonLines::beginObject()
{
    json += isFirstObject ? "\n    { " : ",\n    { ";
    isFirstObject = false;
    isFirst = true;
}

void JsonLines::endObject()
{
    json += " }";
}

void JsonLines::endList()
{
    json += isFirstObject ? "]" : "\n  ]";
    isInList = false;
    isFirst = false;
}

QByteArray JsonLines::finished()
{
    json += "\n}\n";
    return json;
}

void JsonLines::addRaw(QLatin1StringView field, const QByteArray &value)
{
    if (!isFirst)
        json += isInList ? ", " : ",";
    if (!isInList)
        json += "\n  ";
    isFirst = false;
    json += quoted(QString(field)) + ": " + value;
}
