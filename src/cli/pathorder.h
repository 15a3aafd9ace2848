// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/pathlist.h"
#include "run/fileorder.h"

#include <optional>

/// Puts the files into an order, or turns the one round that they came in.
void sortFiles(PathList &list, std::optional<FileOrder::By> order, bool isReverse);
