// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

class QString;

/// Whether the system takes no path of that length, whatever the file system.
[[nodiscard]] bool isPathTooLong(const QString &path);
