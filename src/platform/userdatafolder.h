// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// The user's own folder for application data, with "/" as separator and no trailing one: the roaming
/// application-data folder on Windows, the generic data location elsewhere. Empty
/// when the system does not tell; nothing is reported.
[[nodiscard]] QString userDataFolder();
