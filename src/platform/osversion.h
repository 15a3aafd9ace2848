// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// The operating system as the start-up log names it: on Windows major and minor version and the kind of
/// product ("6.1 - Workstation"), elsewhere the kernel's name and release.
[[nodiscard]] QString osVersionText();
