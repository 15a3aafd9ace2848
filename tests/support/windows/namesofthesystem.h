// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/folderreader.h"

/// What folders for temporary files make of names here.
constexpr auto namesOfTheSystem = FolderTraits::Names::Windows;
constexpr auto lengthsOfTheSystem = FolderTraits::LengthUnit::Utf16;
constexpr bool areDotsDropped = namesOfTheSystem == FolderTraits::Names::Windows;
constexpr bool areBytesCounted = lengthsOfTheSystem == FolderTraits::LengthUnit::Bytes;
