// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/filepath.h"
#include "run/forecastfolder.h"

/// A row's move, when both of its folders are there.
struct FolderStep
{
    const FilePath &file;
    ForecastFolder &source;
    ForecastFolder &target;
    QStringView name;
    ForecastFolder::Entry *entry;
    /// Of the new name the last part.
    QStringView newName;
    /// Whether the new name leads elsewhere, if only by a detour.
    bool isDetour;

    /// Why it cannot be, whatever has the new name.
    [[nodiscard]] std::optional<Fate> refusalOfWay() const;
    /// Why it cannot be, though nothing has the new name.
    [[nodiscard]] std::optional<Fate> refusalOfName() const;
    /// Whether the file can be given its own name in this other spelling at once.
    [[nodiscard]] bool isChangeOfCase() const;
};

/// Whether the system takes no path of the length that a new name leads to: it looks at that before it looks
/// into any folder. \a known are the traits of the file's own one.
[[nodiscard]] bool isPathTooLong(const FilePath &file, const QString &newName, const FolderTraits &known);

/// What becomes of rows in a folder, or of those that lead to it, where it cannot be looked into.
[[nodiscard]] std::optional<Fate> fateIn(FolderTraits::State state, Fate missing);
