// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/folderreader.h"

/// What folders for temporary files make of names here.
constexpr auto namesOfTheSystem = FolderTraits::Names::Any;
constexpr auto lengthsOfTheSystem = FolderTraits::LengthUnit::Bytes;
constexpr bool areDotsDropped = namesOfTheSystem == FolderTraits::Names::Windows;
constexpr bool areBytesCounted = lengthsOfTheSystem == FolderTraits::LengthUnit::Bytes;
