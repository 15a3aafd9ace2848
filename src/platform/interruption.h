// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

/// From now on the first Ctrl+C, or request of the system to end, only makes isInterrupted() true: whoever
/// works looks there between two steps. The next one ends the program as ever. What is ignored stays ignored.
void catchInterruption();

[[nodiscard]] bool isInterrupted();
