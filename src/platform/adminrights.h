// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

/// Whether the program runs with the rights of an administrator.
[[nodiscard]] bool isUserAdministrator();
