// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

/// Sets the program's one palette and style sheet.
void applyLook();
