// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/termination.h"

#include <QSocketNotifier>

#include <csignal>

#include <sys/socket.h>
#include <unistd.h>

namespace {

int signalSockets[2] = {-1, -1};

// Nothing but a write is safe in here.
extern "C" void noteSignal(int /*number*/)
{
    const char note = 1;
    [[maybe_unused]] const auto written = write(signalSockets[0], &note, sizeof(note));
}

} // namespace

void onTerminationRequest(QObject *owner, std::function<void()> handler)
{
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, signalSockets) != 0)
        return;
    auto *notifier = new QSocketNotifier(signalSockets[1], QSocketNotifier::Read, owner);
    QObject::connect(notifier, &QSocketNotifier::activated, owner, [handler = std::move(handler)] {
        char note = 0;
        [[maybe_unused]] const auto taken = read(signalSockets[1], &note, sizeof(note));
        handler();
    });
    struct sigaction action = {};
    action.sa_handler = noteSignal;
    action.sa_flags = SA_RESTART;
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        sigaction(number, &action, nullptr);
}
