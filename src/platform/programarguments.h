// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/// The words behind the program's name. Bytes that are no text stand in them as textOfBytes() has it.
[[nodiscard]] QStringList programArguments(int count, char **arguments);
