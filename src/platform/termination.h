// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

class QObject;

/// Has handler called on the GUI thread, from the event loop, when the system asks the program to end
/// (SIGTERM, SIGINT or SIGHUP; nothing on Windows, where windows are closed instead). For the life of owner;
/// to be called once.
void onTerminationRequest(QObject *owner, std::function<void()> handler);
