// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/outcome.h"

#include <QStringView>

#include <optional>

/// Whether a new name leads to another folder, or would.
[[nodiscard]] bool leadsElsewhere(QStringView newName);

/// What is to be seen of a new name without a look at the disk.
struct NewName
{
    explicit NewName(QStringView newName);

    /// Where its last part begins, behind the last separator.
    qsizetype lastPartAt = 0;
    /// NoText, NotAllowed or Empty, where no disk could take the name.
    std::optional<Fate> refusal;
};
