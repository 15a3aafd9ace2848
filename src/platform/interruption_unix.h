// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

/// Can be read from once there was an interruption, for whoever waits for something else; below 0 where none
/// is caught.
[[nodiscard]] int interruptionDescriptor();
