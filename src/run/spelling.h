// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/folderreader.h"

#include <QString>

/// What two spellings have in common when they are one name.
[[nodiscard]] QString foldedName(QStringView name, FolderTraits::Spelling spelling);

/// The name with upper case for lower and the other way round; the same where it has neither.
[[nodiscard]] QString otherCase(QStringView name);

/// Whether Windows refuses the name, or any of its file systems elsewhere may.
[[nodiscard]] bool hasForbiddenCharacter(QStringView name);
/// Whether it ends with what Windows drops, or names a device there.
[[nodiscard]] bool endsInDotOrBlank(QStringView name);
[[nodiscard]] bool namesDevice(QStringView name);

/// Whether the name is longer than the file system takes.
[[nodiscard]] bool isLongerThan(QStringView text, qsizetype most, FolderTraits::LengthUnit unit);
