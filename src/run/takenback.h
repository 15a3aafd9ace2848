// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/journalline.h"

#include <QHash>
#include <QSet>

#include <optional>

/// Which entries of a journal were taken back and not redone; of an exchange perhaps one file alone.
class TakenBack final
{
public:
    /// All of an entry, or a half: see JournalEntry.
    void add(qint64 number, int half = 0);
    void add(const TakenBack &more);

    struct Standing
    {
        /// Where one file of an exchange stands, its rename.
        JournalEntry entry;
        /// Which file that is; 0: all of the entry.
        int half = 0;
    };
    /// One file of an exchange, 1 or 2.
    [[nodiscard]] static Standing halfOf(const JournalEntry &exchange, int half);
    /// What of an entry still stands; no value where nothing does.
    [[nodiscard]] std::optional<Standing> standing(JournalEntry entry) const;

private:
    QSet<qint64> whole;
    /// Of exchanges the file that was taken back.
    QHash<qint64, int> halves;
};
