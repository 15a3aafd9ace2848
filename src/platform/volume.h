// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// The file system that a path is on.
struct Volume
{
    /// The same at every mount, on any device, where the file system knows such a thing; empty when it cannot
    /// be told.
    QString id;
    /// Whether a file keeps its number for as long as it lives, whatever it is called, and listings of a
    /// folder tell the same one.
    bool keepsNumbers = false;
};

[[nodiscard]] Volume volumeOf(const QString &path);
