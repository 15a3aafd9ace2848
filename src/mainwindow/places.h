// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

/// A folder that people go to.
struct Place
{
    enum Kind { Home, Desktop, Pictures, Music, Documents, Downloads, Volume };

    Kind kind = Home;
    QString path;

    /// In the current language; of a volume the last part of its path.
    [[nodiscard]] QString name() const;

    friend bool operator==(const Place &left, const Place &right)
    {
        return left.kind == right.kind && left.path == right.path;
    }
};

/// Those that exist, each folder once, in the order of the kinds. May be called by any thread; it takes as
/// long as the disks that the folders are on, save that no volume is asked for anything.
[[nodiscard]] QList<Place> placesThere();
