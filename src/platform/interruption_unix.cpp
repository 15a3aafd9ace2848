// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/interruption_unix.h"
#include "platform/interruption.h"

#include <cerrno>
#include <csignal>
#include <initializer_list>

#include <fcntl.h>
#include <unistd.h>

namespace {

volatile std::sig_atomic_t isAskedToEnd = 0;
/// Its ends for reading and for writing.
volatile int wakingPipe[] = {-1, -1};

extern "C" void noteInterruption(int /*number*/)
{
    const int before = errno;
    isAskedToEnd = 1;
    // It holds more than there are signals to come; what does not fit would wake nobody either.
    [[maybe_unused]] const ssize_t written = write(wakingPipe[1], "", 1);
    errno = before;
}

/// Where the shell closed a standard stream its number would be given to the next file.
int besideStandardStreams(int descriptor)
{
    constexpr int first = 3;
    const int moved = fcntl(descriptor, F_DUPFD_CLOEXEC, first);
    close(descriptor);
    return moved;
}

} // namespace

void catchInterruption()
{
    // A wait for input alone would miss what comes right before it, or to another thread.
    int ends[2];
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) == 0) {
        wakingPipe[0] = besideStandardStreams(ends[0]);
        wakingPipe[1] = besideStandardStreams(ends[1]);
    }
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction action = {};
        sigaction(number, nullptr, &action);
        if (action.sa_handler == SIG_IGN)
            continue;
        action = {};
        action.sa_handler = noteInterruption;
        action.sa_flags = static_cast<int>(SA_RESETHAND);
        sigaction(number, &action, nullptr);
    }
}

int interruptionDescriptor()
{
    return wakingPipe[0];
}

bool isInterrupted()
{
    return isAskedToEnd != 0;
}
