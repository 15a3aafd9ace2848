// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/termination.h"

void onTerminationRequest(QObject * /*owner*/, std::function<void()> /*handler*/) {}
