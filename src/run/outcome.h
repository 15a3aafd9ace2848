// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

enum class RenameResult;

/// What becomes of a row.
enum class Fate {
    Renamed,
    /// The new name is the old one.
    Unchanged,
    /// Something that is no row has the new name.
    Taken,
    /// A row above has the new name when this one's turn comes.
    TakenByRow,
    /// A row below still has the new name when this one's turn comes.
    LeavesLater,
    /// The file is not there.
    Missing,
    /// The new name is empty, "." or "..".
    Empty,
    /// The new name leads to another folder.
    Separator,
    /// The file system takes no such name.
    NotAllowed,
    TooLong,
    /// Nothing can be renamed in the folder.
    ReadOnly,
    /// The new name holds half a character.
    NoText,
    /// What happens cannot be told, or was not.
    Unknown,
    /// There is no such folder. Only as the reason of a Separator.
    NoFolder,
    /// Another file than the one that is meant has its name. Only when a run is taken back.
    OtherFile,
};

/// By what settings, files and scripts know a fate; never changed, never translated.
[[nodiscard]] QString idOf(Fate fate);

/// What the system's answer alone says.
[[nodiscard]] Fate fateOf(RenameResult result);

struct Outcome
{
    Fate fate = Fate::Unknown;
    /// Of a Separator: what would be the fate if the name led nowhere else. Renamed where the file is moved.
    /// Otherwise the same as the fate.
    Fate reason = Fate::Unknown;
    /// The row that has the new name, from 0, where the reason is TakenByRow or LeavesLater; otherwise -1.
    int row = -1;
    /// Where the new name leads.
    QString path;

    /// Whether the file is called by its new name then. Everything else counts as failed.
    [[nodiscard]] bool isRenamed() const { return reason == Fate::Renamed; }
};
