// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayView>
#include <QString>

#include <array>
#include <optional>

/// JSON as journals use it: objects of texts and whole numbers. By hand, since a run writes a line for each
/// file and an undo reads one: a tenth of what QJsonDocument takes for the same.

/// Writes one object into memory that has room for it.
class JsonWriter final
{
public:
    explicit JsonWriter(char *memory)
        : at(memory)
    {
    }

    /// The most bytes that a text can take, with its quotes.
    [[nodiscard]] static qsizetype mostBytes(qsizetype characters) { return 6 * characters + 2; }

    /// As it stands.
    void raw(QByteArrayView text);
    void text(QStringView text);
    void number(qint64 number);
    void number(quint64 number);

    [[nodiscard]] char *end() const { return at; }

private:
    void escaped(char16_t unit);

    char *at;
};

/// The members of one object. Its texts are views of the line.
class JsonObject final
{
public:
    /// Nothing for what is no such object: anything else than texts and whole numbers in it, too many
    /// members, or text that is no UTF-8.
    [[nodiscard]] static std::optional<JsonObject> parse(QByteArrayView line);

    /// No value where there is no such member of that type.
    [[nodiscard]] std::optional<QString> text(QByteArrayView name) const;
    [[nodiscard]] std::optional<qint64> number(QByteArrayView name) const;
    /// Whether the member is there and its text is this one, which needs no escapes.
    [[nodiscard]] bool has(QByteArrayView name, QByteArrayView text) const;

private:
    struct Member
    {
        QByteArrayView name;
        /// Between its quotes, or empty.
        QByteArrayView text;
        bool isText = false;
        bool isEscaped = false;
        qint64 number = 0;
    };
    static constexpr qsizetype mostMembers = 16;

    [[nodiscard]] const Member *find(QByteArrayView name) const;

    std::array<Member, mostMembers> members;
    qsizetype count = 0;

    friend class JsonParser;
};
