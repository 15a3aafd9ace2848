// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Windows has none; a folder by that name would be one of the current drive.
inline QString memoryFolder()
{
    return {};
}
