// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/mountedvolumes_unix.h"

#include "platform/mountedvolumes.h"

#include <QFile>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// Of a line of the table: number, parent, device, root, where it is mounted, options, then optional fields
/// up to a dash; behind it the kind and the source.
constexpr qsizetype rootField = 3;
constexpr qsizetype pathField = 4;

/// File systems that live elsewhere than on a device of this machine.
bool isFromElsewhere(const QByteArray &kind)
{
    constexpr std::array kinds = {"nfs",  "nfs4",       "cifs",        "smb3",       "9p",
                                  "ceph", "fuse.sshfs", "fuse.rclone", "fuse.davfs", "virtiofs",
                                  "afs",  "fuse.s3fs",  "davfs"};
    return std::any_of(kinds.begin(), kinds.end(), [&kind](const char *known) { return kind == known; });
}

/// What the system keeps for itself, and the images of packages.
bool isOfTheSystem(const QString &path)
{
    constexpr std::array places = {"/boot", "/efi",  "/etc",  "/usr", "/var",
                                   "/nix",  "/snap", "/proc", "/sys", "/dev"};
    const bool isMedium = path.startsWith("/run/media/"_L1);
    const auto isBelow = [&path](const char *place) {
        const QLatin1StringView folder(place);
        return path == folder || (path.startsWith(folder) && path.at(folder.size()) == u'/');
    };
    return path == "/home"_L1 || path == "/tmp"_L1 || (isBelow("/run") && !isMedium) ||
           std::any_of(places.begin(), places.end(), isBelow);
}

/// A blank, a tab, a line break and a backslash stand there as three octal digits behind a backslash.
QByteArray unescaped(const QByteArray &field)
{
    QByteArray text;
    for (qsizetype i = 0; i < field.size(); ++i) {
        bool isOctal = false;
        const uint code = field.mid(i + 1, 3).toUInt(&isOctal, 8);
        if (field.at(i) == '\\' && isOctal) {
            text += static_cast<char>(code);
            i += 3;
        } else {
            text += field.at(i);
        }
    }
    return text;
}

} // namespace

QStringList volumesOf(const QByteArray &mountTable)
{
    QStringList volumes = {u"/"_s};
    const QList<QByteArray> lines = mountTable.split('\n');
    for (const QByteArray &line : lines) {
        const QList<QByteArray> fields = line.split(' ');
        const qsizetype dash = fields.indexOf("-");
        if (dash <= pathField || fields.size() < dash + 3)
            continue;
        const QByteArray &source = fields.at(dash + 2);
        const bool isDisk = source.startsWith("/dev/") && !source.startsWith("/dev/loop");
        // A folder or a file can be mounted, too. What begins with "@" is a subvolume.
        const bool isWhole = fields.at(rootField) == "/" || fields.at(rootField).startsWith("/@");
        const QString path = QFile::decodeName(unescaped(fields.at(pathField)));
        if ((isDisk ? isWhole : isFromElsewhere(fields.at(dash + 1))) && !isOfTheSystem(path) &&
            !volumes.contains(path))
            volumes.append(path);
    }
    return volumes;
}

QStringList mountedVolumes()
{
    QFile table(u"/proc/self/mountinfo"_s);
    return volumesOf(table.open(QIODevice::ReadOnly) ? table.readAll() : QByteArray());
}
