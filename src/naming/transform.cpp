// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "naming/transform.h"

namespace {

// More than any file system takes as a name. Two rules that put a long text between all characters would
// exhaust the memory otherwise.
constexpr qsizetype longestResult = 8192;

} // namespace

QString transformed(const Parameters &parameters, const QString &name, int row)
{
    QString result = std::visit([&](const auto &kind) { return transformed(kind, name, row); }, parameters);
    result.truncate(longestResult);
    return result;
}
