// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/standardstreams.h"

#include <QByteArray>
#include <QString>

#include <functional>

/// What is printed, in UTF-8. Nothing more is written after a fault.
class Output final
{
public:
    using Writer = std::function<WriteResult(QByteArrayView bytes, QString *error)>;

    /// Every line goes out at once where somebody reads along.
    Output(Writer byWriter, bool isReadAlong)
        : write(std::move(byWriter))
        , goesOutAtOnce(isReadAlong)
    {
    }
    ~Output() { flush(); }
    Q_DISABLE_COPY_MOVE(Output)

    void text(const QString &text) { buffer.append(text.toUtf8()); }
    void bytes(const QByteArray &bytes) { buffer.append(bytes); }
    void endLine();
    void line(const QString &text);
    /// Writes what has been printed by now.
    void flush();

    /// Whether anything more can be printed.
    [[nodiscard]] bool isOpen() const { return result == WriteResult::Done; }
    /// Why something could not be written; empty where all was, or nobody wants to read it.
    [[nodiscard]] QString error() const { return lastError; }

private:
    static constexpr qsizetype mostBuffered = 1 << 16;

    Writer write;
    bool goesOutAtOnce;
    QByteArray buffer;
    WriteResult result = WriteResult::Done;
    QString lastError;
};
