// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringView>

/// Whether a pattern in the syntax of RegExp can be compiled and tried on a file name within seconds. The
/// engine itself knows no bound: deep nesting overflows its stack, nested counts exhaust the memory, and
/// lookaheads within loops multiply the time. Errors in the pattern are left for the engine to find.
/// What is bounded, and by how much, is in docs/patterns.md.
[[nodiscard]] bool isAffordablePattern(QStringView pattern);
