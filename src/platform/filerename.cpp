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

} // namespace

bool renameFile(const QString &from, const QString &to)
{
    if (const std::optional<bool> renamed = renameWithoutReplacing(from, to))
        return *renamed;
    // QFile knows what is left: a change of case alone where case does not matter, and file systems that
    // cannot refuse to replace.
    return UncopiedFile(from).rename(to);
}
