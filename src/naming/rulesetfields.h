// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "naming/ruleset.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QSet>
#include <QStringList>

/// Takes the fields of one object of a rule set one by one. The first that is wrong is told; whatever comes
/// back after that means nothing.
class RuleSetFields final
{
public:
    explicit RuleSetFields(QJsonObject ofObject)
        : object(std::move(ofObject))
    {
    }

    [[nodiscard]] QString text(QLatin1StringView field, qsizetype mostCharacters);
    /// A text that can stand in a menu.
    [[nodiscard]] QString name(QLatin1StringView field, qsizetype mostCharacters);
    [[nodiscard]] int number(QLatin1StringView field, Range range);
    /// A field that may be missing has a default.
    [[nodiscard]] bool flag(QLatin1StringView field, std::optional<bool> byDefault = std::nullopt);
    /// Which of the words it is, from 0.
    [[nodiscard]] int choice(QLatin1StringView field, const QStringList &words);
    [[nodiscard]] QJsonArray list(QLatin1StringView field, qsizetype most);
    /// A greater one gets an explanation of its own.
    [[nodiscard]] bool isVersion(QLatin1StringView field, int version);
    /// Null where there is none.
    [[nodiscard]] QString comment();
    /// Anything that was not asked for is wrong: a misspelt field would be passed over otherwise.
    void expectNoMore();

    [[nodiscard]] bool isGood() const { return firstError.problem.isEmpty(); }
    [[nodiscard]] const RuleSetError &error() const { return firstError; }

    [[nodiscard]] static QString mustBeObject();
    [[nodiscard]] static QString tooLarge();
    /// Told the text before the place where it stops being JSON.
    [[nodiscard]] static QString noJson(const QByteArray &before);

private:
    [[nodiscard]] QJsonValue take(QLatin1StringView field);
    void refuse(const QString &field, const QString &problem);

    QJsonObject object;
    QSet<QString> asked;
    RuleSetError firstError;
};

/// Writes an object for people: a line for each field, a rule to a line.
class JsonLines final
{
public:
    void add(QLatin1StringView field, const QString &text);
    void add(QLatin1StringView field, int number);
    void add(QLatin1StringView field, bool flag);
    void addComment(const QString &comment);
    /// A list of objects, each of which has a line.
    void beginList(QLatin1StringView field);
    void beginObject();
    void endObject();
    void endList();
    /// The object, in UTF-8. Nothing can be added then.
    [[nodiscard]] QByteArray finished();

private:
    void addRaw(QLatin1StringView field, const QByteArray &value);

    QByteArray json = "{";
    bool isFirst = true;
    bool isInList = false;
    bool isFirstObject = true;
};
