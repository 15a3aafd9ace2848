// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/fileidentity.h"

#include <QStringView>

#include <memory>
#include <optional>

/// What a folder's file system makes of names, and of this user.
struct FolderTraits
{
    enum class State { There, Missing, TooLongPath, Unreadable };
    /// Which spellings are one name.
    enum class Spelling {
        Exact,
        /// Upper and lower case are one, character by character.
        AnyCase,
        /// So are letters that fold to several, and accents however they are composed.
        Folded,
        Unknown,
    };
    enum class LengthUnit { Bytes, Utf16 };
    /// Which names can be.
    enum class Names {
        /// Whatever holds neither a separator nor a null character.
        Any,
        /// Not those that Windows refuses; dots and blanks at the end are dropped.
        Windows,
        /// Not those with characters that Windows refuses. Of its other rules it may know some.
        Fat,
        Unknown,
    };

    State state = State::There;
    /// Which folder it is.
    quint64 volume = 0;
    quint64 number = 0;
    bool writable = true;
    /// Only files of this user can be renamed in it.
    bool ownFilesOnly = false;
    Spelling spelling = Spelling::Exact;
    LengthUnit lengthUnit = LengthUnit::Bytes;
    qsizetype longestName = 255;
    LengthUnit pathUnit = LengthUnit::Bytes;
    qsizetype longestPath = 4095;
    Names names = Names::Any;
};

struct FolderEntry
{
    /// Good until the next entry is asked for.
    QStringView name;
    /// No value where the listing does not tell.
    std::optional<FileIdentity::Kind> kind;
};

/// A folder, read entry by entry.
class FolderReader
{
public:
    FolderReader() = default;
    virtual ~FolderReader() = default;
    Q_DISABLE_COPY_MOVE(FolderReader)

    [[nodiscard]] virtual const FolderTraits &traits() const = 0;
    /// The next one of what is in the folder but itself and the one above, in the system's order; no value at
    /// the end. Names that are no text are left out.
    [[nodiscard]] virtual std::optional<FolderEntry> next() = 0;
};

/// Never null: the traits tell a folder that is not there.
[[nodiscard]] std::unique_ptr<FolderReader> openFolder(const QString &path);
