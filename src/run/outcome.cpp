// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/outcome.h"

#include "platform/filerename.h"

using namespace Qt::StringLiterals;

QString idOf(Fate fate)
{
    switch (fate) {
    case Fate::Renamed:
        return u"renamed"_s;
    case Fate::Unchanged:
        return u"unchanged"_s;
    case Fate::Taken:
        return u"taken"_s;
    case Fate::TakenByRow:
        return u"taken-by-row"_s;
    case Fate::LeavesLater:
        return u"leaves-later"_s;
    case Fate::Missing:
        return u"missing"_s;
    case Fate::Empty:
        return u"empty"_s;
    case Fate::Separator:
        return u"separator"_s;
    case Fate::NotAllowed:
        return u"not-allowed"_s;
    case Fate::TooLong:
        return u"too-long"_s;
    case Fate::ReadOnly:
        return u"read-only"_s;
    case Fate::NoText:
        return u"no-text"_s;
    case Fate::Unknown:
        return u"unknown"_s;
    case Fate::NoFolder:
        return u"no-folder"_s;
    case Fate::OtherFile:
        return u"other-file"_s;
    }
    Q_UNREACHABLE();
}

Fate fateOf(RenameResult result)
{
    switch (result) {
    case RenameResult::Done:
        return Fate::Renamed;
    case RenameResult::TargetExists:
        return Fate::Taken;
    case RenameResult::SourceMissing:
        return Fate::Missing;
    case RenameResult::NotPermitted:
        return Fate::ReadOnly;
    case RenameResult::BadName:
        return Fate::NotAllowed;
    case RenameResult::TooLong:
        return Fate::TooLong;
    case RenameResult::Other:
        return Fate::Unknown;
    }
    Q_UNREACHABLE();
}
