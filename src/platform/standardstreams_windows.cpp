// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/standardstreams.h"

#include <algorithm>

#include <windows.h>

namespace {

HANDLE handleOf(StandardStream stream)
{
    switch (stream) {
    case StandardStream::Input:
        return GetStdHandle(STD_INPUT_HANDLE);
    case StandardStream::Output:
        return GetStdHandle(STD_OUTPUT_HANDLE);
    case StandardStream::Error:
        return GetStdHandle(STD_ERROR_HANDLE);
    }
    Q_UNREACHABLE();
}

WriteResult whyNotWritten(QString *error)
{
    const DWORD reason = GetLastError();
    *error = qt_error_string(static_cast<int>(reason));
    return reason == ERROR_BROKEN_PIPE || reason == ERROR_NO_DATA ? WriteResult::Closed : WriteResult::Failed;
}

WriteResult writeToConsole(HANDLE console, QByteArrayView bytes, QString *error)
{
    // Consoles of old take no more than 64 KiB at once.
    constexpr qsizetype mostAtOnce = 8000;
    const QString text = QString::fromUtf8(bytes);
    for (qsizetype i = 0; i < text.size();) {
        const qsizetype count = std::min(mostAtOnce, text.size() - i);
        DWORD written = 0;
        if (!WriteConsoleW(console, text.utf16() + i, static_cast<DWORD>(count), &written, nullptr))
            return whyNotWritten(error);
        i += written;
    }
    return WriteResult::Done;
}

qsizetype readConsole(HANDLE console, char *memory, qsizetype size)
{
    // A unit of UTF-16 takes three bytes at most.
    wchar_t units[1024];
    const auto most = std::min<qsizetype>(size / 3, std::size(units));
    DWORD count = 0;
    if (!ReadConsoleW(console, units, static_cast<DWORD>(most), &count, nullptr))
        return -1;
    const QByteArray bytes = QString::fromWCharArray(units, static_cast<int>(count)).toUtf8();
    std::copy(bytes.begin(), bytes.end(), memory);
    // Ctrl+Z at the beginning of a line is the end, as programs see it there.
    return bytes.startsWith('\x1a') ? 0 : bytes.size();
}

} // namespace

void prepareStandardStreams()
{
    for (const StandardStream stream : {StandardStream::Output, StandardStream::Error}) {
        DWORD mode = 0;
        if (GetConsoleMode(handleOf(stream), &mode))
            SetConsoleMode(handleOf(stream), mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
    }
}

bool isTerminal(StandardStream stream)
{
    DWORD mode = 0;
    return GetConsoleMode(handleOf(stream), &mode) != 0;
}

bool knowsColors(StandardStream stream)
{
    DWORD mode = 0;
    return GetConsoleMode(handleOf(stream), &mode) && (mode & ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

WriteResult writeTo(StandardStream stream, QByteArrayView bytes, QString *error)
{
    const HANDLE handle = handleOf(stream);
    if (isTerminal(stream))
        return writeToConsole(handle, bytes, error);
    while (!bytes.isEmpty()) {
        DWORD written = 0;
        const auto count = static_cast<DWORD>(std::min<qsizetype>(bytes.size(), 1 << 20));
        if (!WriteFile(handle, bytes.data(), count, &written, nullptr))
            return whyNotWritten(error);
        bytes = bytes.sliced(written);
    }
    return WriteResult::Done;
}

qsizetype readInput(char *memory, qsizetype size)
{
    const HANDLE handle = handleOf(StandardStream::Input);
    if (isTerminal(StandardStream::Input))
        return readConsole(handle, memory, size);
    DWORD count = 0;
    if (ReadFile(handle, memory, static_cast<DWORD>(std::min<qsizetype>(size, 1 << 20)), &count, nullptr))
        return count;
    // The other end of a pipe is closed: that is all there is.
    return GetLastError() == ERROR_BROKEN_PIPE ? 0 : -1;
}
