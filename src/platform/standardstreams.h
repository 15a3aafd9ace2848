// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

/// The streams that a shell gives to a program. Bytes go through as they are; a console of Windows is given
/// UTF-16, since its code page need not know the names.
enum class StandardStream { Input, Output, Error };

enum class WriteResult {
    Done,
    /// Nobody reads any more.
    Closed,
    Failed,
};

/// To be called before anything is written: whoever stops reading does not end the program then.
void prepareStandardStreams();

[[nodiscard]] bool isTerminal(StandardStream stream);
/// Whether a terminal, if it is one, knows colours.
[[nodiscard]] bool knowsColors(StandardStream stream);

/// Writes all of the bytes, which are whole characters; error says why where it Failed.
[[nodiscard]] WriteResult writeTo(StandardStream stream, QByteArrayView bytes, QString *error);

/// Reads some bytes of standard input: how many, 0 at its end, below 0 where it cannot be read or the wait
/// was interrupted.
[[nodiscard]] qsizetype readInput(char *memory, qsizetype size);
