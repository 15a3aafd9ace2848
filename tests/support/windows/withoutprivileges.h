// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>

/// Windows has no user to become in passing: nothing changes while it lives, and a test that needs a refusal
/// does not hold here.
class WithoutPrivileges
{
public:
    static constexpr QFile::Permissions readable = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;

    WithoutPrivileges() {} // NOLINT: a declared constructor keeps its uses from being "unused variables"
    Q_DISABLE_COPY_MOVE(WithoutPrivileges)
};

/// Folders have no such bit here.
inline bool makeShared(const QString & /*folder*/)
{
    return false;
}
