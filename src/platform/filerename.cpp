// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/filerename.h"

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
    return UncopiedFile(from).rename(to);
}
