// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/journalfolder.h"
#include "run/journalleddisk.h"
#include "run/systemdisk.h"

#include <memory>
#include <optional>

/// The disk that is there, for a run that can be taken back. Where no journal can be written the run goes on
/// without, and the log says so.
class RecordedRun final
{
public:
    RecordedRun(JournalFolder &journals, int rows);

    [[nodiscard]] Disk &disk();
    void end(bool cancelled);

private:
    SystemDisk system;
    std::unique_ptr<Journal> journal;
    std::optional<JournalledDisk> journalled;
};

/// Has the log say that renames of a run cannot be taken back: all of them where there is no number. The
/// cause is for the debug channel.
void tellUnrecorded(const QString &cause, qint64 renames = 0);
