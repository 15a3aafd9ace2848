// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "naming/parameters.h"

#include <array>
#include <optional>

/// The kinds of rules, in the order of the catalogue, which is that of Parameters.
enum class Kind { Replace, Trim, ChangeCase, InsertText, Enumerate };

inline constexpr std::array allKinds{Kind::Replace, Kind::Trim, Kind::ChangeCase, Kind::InsertText,
                                     Kind::Enumerate};

[[nodiscard]] Kind kindOf(const Parameters &parameters);

/// What files and command lines call the kind; never translated, and never changed.
[[nodiscard]] QString kindId(Kind kind);
/// Nothing where no kind has the id.
[[nodiscard]] std::optional<Kind> kindFromId(QStringView id);

/// The translated name.
[[nodiscard]] QString kindName(Kind kind);
