// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/volume.h"

#include <QFile>

#include <cstring>

#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>

namespace {

/// The kernel's headers do not name these.
constexpr unsigned long xfs = 0x58465342;
constexpr unsigned long jfs = 0x3153464a;
constexpr unsigned long zfs = 0x2fc12fc1;
constexpr unsigned long bcachefs = 0xca451a4e;
constexpr unsigned long ntfs3 = 0x7366746e;

/// FAT makes its numbers up while it is mounted, file systems that are programs and those of a network often,
/// and an overlay gives a file that is written to another one.
bool keepsNumbers(unsigned long kind)
{
    switch (kind) {
    case EXT4_SUPER_MAGIC:
    case BTRFS_SUPER_MAGIC:
    case TMPFS_MAGIC:
    case F2FS_SUPER_MAGIC:
    case NILFS_SUPER_MAGIC:
    case REISERFS_SUPER_MAGIC:
    case NFS_SUPER_MAGIC:
    case xfs:
    case jfs:
    case zfs:
    case bcachefs:
    case ntfs3:
        return true;
    default:
        return false;
    }
}

} // namespace

Volume volumeOf(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct statfs volume = {};
    if (statfs(name.constData(), &volume) != 0)
        return {};
    quint64 id = 0;
    static_assert(sizeof(volume.f_fsid) == sizeof(id));
    std::memcpy(&id, &volume.f_fsid, sizeof(id));
    struct stat there = {};
    // Some have no id but their device.
    if (id == 0 && stat(name.constData(), &there) == 0)
        id = there.st_dev;
    return {.id = QString::number(id, 16),
            .keepsNumbers = keepsNumbers(static_cast<unsigned long>(volume.f_type))};
}
