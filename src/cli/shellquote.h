// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// The text as a word that a shell reads back, and that no terminal is steered by: as `ls` quotes names.
/// Halves of characters stand for bytes, as textOfBytes() has it.
[[nodiscard]] QString shellQuoted(const QString &text);
