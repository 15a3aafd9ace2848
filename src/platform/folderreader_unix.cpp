// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/folderreader.h"

#include "platform/bytetext.h"

#include <QFile>
#include <QStringDecoder>

#include <array>
#include <cerrno>
#include <climits>

#include <dirent.h>
#include <fcntl.h>
#include <linux/fs.h>
#include <linux/magic.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace {

// Not in the headers.
constexpr unsigned ntfsMagic = 0x7366746e;
constexpr int caseFoldFlag = 0x40000000;

FolderTraits::State stateOf(int error)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
    case ELOOP:
        return FolderTraits::State::Missing;
    case ENAMETOOLONG:
        return FolderTraits::State::TooLongPath;
    default:
        return FolderTraits::State::Unreadable;
    }
}

/// Whether the folder itself was made to ignore case.
bool foldsCase(int folder)
{
    int flags = 0;
    return ioctl(folder, FS_IOC_GETFLAGS, &flags) == 0 && (flags & caseFoldFlag) != 0;
}

/// Whether a name is counted in bytes: one of 200 letters, which is 400 bytes long, is asked for.
FolderTraits::LengthUnit askedLengthUnit(int folder)
{
    const QByteArray name = QByteArray("\xc3\xa9").repeated(200);
    struct stat there = {};
    const bool isTooLong =
        fstatat(folder, name.constData(), &there, AT_SYMLINK_NOFOLLOW) != 0 && errno == ENAMETOOLONG;
    return isTooLong ? FolderTraits::LengthUnit::Bytes : FolderTraits::LengthUnit::Utf16;
}

/// Fills in what depends on the kind of file system. What is not known here is left to be asked for.
void readKind(int folder, FolderTraits &traits)
{
    struct statfs system = {};
    if (fstatfs(folder, &system) != 0)
        return;
    switch (static_cast<unsigned>(system.f_type)) {
    case EXT4_SUPER_MAGIC:
    case TMPFS_MAGIC:
    case BTRFS_SUPER_MAGIC:
    case F2FS_SUPER_MAGIC:
        traits.names = FolderTraits::Names::Any;
        traits.spelling = foldsCase(folder) ? FolderTraits::Spelling::Folded : FolderTraits::Spelling::Exact;
        return;
    case XFS_SUPER_MAGIC:
    case OVERLAYFS_SUPER_MAGIC:
    case RAMFS_MAGIC:
        traits.names = FolderTraits::Names::Any;
        return;
    case MSDOS_SUPER_MAGIC:
    case EXFAT_SUPER_MAGIC:
    case ntfsMagic:
        traits.names = FolderTraits::Names::Fat;
        break;
    default:
        break;
    }
    traits.lengthUnit = askedLengthUnit(folder);
}

FolderTraits traitsOf(int folder, const char *path)
{
    FolderTraits traits;
    traits.longestPath = PATH_MAX - 1;
    traits.spelling = FolderTraits::Spelling::Unknown;
    traits.names = FolderTraits::Names::Unknown;
    struct stat there = {};
    if (fstat(folder, &there) == 0) {
        traits.volume = there.st_dev;
        traits.number = there.st_ino;
        const uid_t user = geteuid();
        traits.ownFilesOnly = (there.st_mode & S_ISVTX) != 0 && user != 0 && user != there.st_uid;
    }
    traits.writable = faccessat(AT_FDCWD, path, W_OK | X_OK, AT_EACCESS) == 0;
    readKind(folder, traits);
    return traits;
}

std::optional<FileIdentity::Kind> kindOf(unsigned char type)
{
    switch (type) {
    case DT_UNKNOWN:
        return std::nullopt;
    case DT_REG:
        return FileIdentity::Kind::File;
    case DT_DIR:
        return FileIdentity::Kind::Folder;
    case DT_LNK:
        return FileIdentity::Kind::Link;
    default:
        return FileIdentity::Kind::Other;
    }
}

class UnixFolderReader final : public FolderReader
{
public:
    explicit UnixFolderReader(const QString &path)
    {
        const QByteArray bytes = QFile::encodeName(path);
        folder = opendir(bytes.constData());
        if (folder)
            known = traitsOf(dirfd(folder), bytes.constData());
        else
            known.state = stateOf(errno);
    }
    ~UnixFolderReader() override
    {
        if (folder)
            closedir(folder);
    }
    Q_DISABLE_COPY_MOVE(UnixFolderReader)

    [[nodiscard]] const FolderTraits &traits() const override { return known; }
    [[nodiscard]] std::optional<FolderEntry> next() override
    {
        while (const dirent *entry = folder ? readdir(folder) : nullptr) {
            const QByteArrayView bytes(entry->d_name);
            if (bytes == "." || bytes == "..")
                continue;
            if (const QChar *end = writeAscii(bytes, name.data()))
                return FolderEntry{QStringView(name.data(), end), kindOf(entry->d_type)};
            QStringDecoder decoder(QStringDecoder::Utf8,
                                   QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
            const QChar *end = decoder.appendToBuffer(name.data(), bytes);
            if (!decoder.hasError())
                return FolderEntry{QStringView(name.data(), end), kindOf(entry->d_type)};
        }
        return std::nullopt;
    }

private:
    DIR *folder = nullptr;
    FolderTraits known;
    // No name of the system takes more units than bytes.
    std::array<QChar, sizeof(dirent::d_name) + 2> name = {};
};

} // namespace

std::unique_ptr<FolderReader> openFolder(const QString &path)
{
    return std::make_unique<UnixFolderReader>(path);
}
