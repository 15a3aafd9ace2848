// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

/// Permission bits count while it lives, even for root, who is somebody without rights for that time.
class WithoutPrivileges
{
public:
    /// What the folder may be read with; the group, too, as its rights are not dropped.
    static constexpr QFile::Permissions readable = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup |
                                                   QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;

    WithoutPrivileges()
        : user(geteuid())
    {
        constexpr uid_t nobody = 65534;
        if (user == 0 && seteuid(nobody) != 0)
            qFatal("cannot drop privileges");
    }
    ~WithoutPrivileges()
    {
        if (user == 0 && seteuid(user) != 0)
            qFatal("cannot take privileges back");
    }
    Q_DISABLE_COPY_MOVE(WithoutPrivileges)

private:
    uid_t user;
};

/// Lets everyone make files in a folder, and rename their own.
inline bool makeShared(const QString &folder)
{
    return chmod(QFile::encodeName(folder).constData(), 01777) == 0;
}
