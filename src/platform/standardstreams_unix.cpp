// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/standardstreams.h"

#include "platform/interruption_unix.h"

#include <cerrno>
#include <csignal>

#include <poll.h>
#include <unistd.h>

namespace {

int descriptorOf(StandardStream stream)
{
    switch (stream) {
    case StandardStream::Input:
        return STDIN_FILENO;
    case StandardStream::Output:
        return STDOUT_FILENO;
    case StandardStream::Error:
        return STDERR_FILENO;
    }
    Q_UNREACHABLE();
}

} // namespace

void prepareStandardStreams()
{
    std::signal(SIGPIPE, SIG_IGN);
}

bool isTerminal(StandardStream stream)
{
    return isatty(descriptorOf(stream)) == 1;
}

bool knowsColors(StandardStream stream)
{
    const QByteArray terminal = qgetenv("TERM");
    return isTerminal(stream) && !terminal.isEmpty() && terminal != "dumb";
}

WriteResult writeTo(StandardStream stream, QByteArrayView bytes, QString *error)
{
    while (!bytes.isEmpty()) {
        const ssize_t written = write(descriptorOf(stream), bytes.data(), static_cast<size_t>(bytes.size()));
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0) {
            const int reason = errno;
            *error = qt_error_string(reason);
            return reason == EPIPE ? WriteResult::Closed : WriteResult::Failed;
        }
        bytes = bytes.sliced(written);
    }
    return WriteResult::Done;
}

qsizetype readInput(char *memory, qsizetype size)
{
    pollfd waits[] = {{STDIN_FILENO, POLLIN, 0}, {interruptionDescriptor(), POLLIN, 0}};
    while (poll(waits, std::size(waits), -1) < 0) {
        if (errno != EINTR)
            return -1;
    }
    return waits[1].revents != 0 ? -1 : read(STDIN_FILENO, memory, static_cast<size_t>(size));
}
