// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/filerename.h"

#include "platform/filerename_system.h"

#include <QFile>

namespace {

/// QFile::rename refuses to copy what it takes for a sequential device.
class UncopiedFile final : public QFile
{
public:
    using QFile::QFile;
    [[nodiscard]] bool isSequential() const override { return true; }
};

/// Whether the system can be told the path: it would read up to the first null character only, and write half
/// a character as U+FFFD. Both are the name of another file.
bool canBeWritten(const QString &path)
{
    return !path.isEmpty() && !path.contains(QChar::Null) && path.isValidUtf16();
}

} // namespace

RenameResult renameFile(const QString &from, const QString &to)
{
    if (!canBeWritten(from))
        return RenameResult::SourceMissing;
    if (!canBeWritten(to))
        return RenameResult::BadName;
    const std::optional<RenameResult> result = renameWithoutReplacing(from, to);
    if (result)
        return *result;
    // QFile knows what is left: a change of case alone where case does not matter, and file systems that
    // cannot refuse to replace.
    if (UncopiedFile(from).rename(to))
        return RenameResult::Done;
    return whyNotRenamed(from, to);
}
