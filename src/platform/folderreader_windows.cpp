// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/folderreader.h"

#include "platform/extendedpath_windows.h"
#include "platform/winapi_windows.h"

#include <windows.h>

namespace {

/// Asked for by its number: not all versions of the headers know it. The answer's first bit means that case
/// counts.
constexpr auto caseSensitiveInfo = static_cast<FILE_INFO_BY_HANDLE_CLASS>(23);

HANDLE open(const QString &full, DWORD access)
{
    return CreateFileW(wide(full), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                       OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
}

/// Nothing is written: the system only checks the right to.
bool takesFiles(const QString &full)
{
    const HANDLE folder = open(full, FILE_ADD_FILE);
    if (folder == INVALID_HANDLE_VALUE)
        return false;
    CloseHandle(folder);
    return true;
}

FolderTraits::State stateOf(DWORD error)
{
    switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_DIRECTORY:
        return FolderTraits::State::Missing;
    case ERROR_FILENAME_EXCED_RANGE:
        return FolderTraits::State::TooLongPath;
    default:
        return FolderTraits::State::Unreadable;
    }
}

FolderTraits traitsOf(const QString &full)
{
    FolderTraits traits;
    traits.lengthUnit = FolderTraits::LengthUnit::Utf16;
    traits.pathUnit = FolderTraits::LengthUnit::Utf16;
    traits.longestPath = 32000;
    traits.names = FolderTraits::Names::Windows;
    traits.spelling = FolderTraits::Spelling::AnyCase;
    const HANDLE folder = open(full, FILE_READ_ATTRIBUTES);
    if (folder == INVALID_HANDLE_VALUE) {
        traits.state = stateOf(GetLastError());
        return traits;
    }
    BY_HANDLE_FILE_INFORMATION there = {};
    if (GetFileInformationByHandle(folder, &there)) {
        if ((there.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
            traits.state = FolderTraits::State::Missing;
        traits.volume = there.dwVolumeSerialNumber;
        traits.number = (quint64{there.nFileIndexHigh} << 32) | there.nFileIndexLow;
    }
    ULONG flags = 0;
    if (GetFileInformationByHandleEx(folder, caseSensitiveInfo, &flags, sizeof(flags)) && (flags & 1) != 0)
        traits.spelling = FolderTraits::Spelling::Exact;
    DWORD longest = 0;
    if (GetVolumeInformationByHandleW(folder, nullptr, 0, nullptr, &longest, nullptr, nullptr, 0))
        traits.longestName = longest;
    CloseHandle(folder);
    traits.writable = takesFiles(full);
    return traits;
}

class WindowsFolderReader final : public FolderReader
{
public:
    explicit WindowsFolderReader(const QString &path)
    {
        const QString full = extendedPath(path);
        known = traitsOf(full);
        if (known.state != FolderTraits::State::There)
            return;
        const QString all = full + QLatin1String(full.endsWith(u'\\') ? "*" : "\\*");
        search = FindFirstFileExW(wide(all), FindExInfoBasic, &entry, FindExSearchNameMatch, nullptr,
                                  FIND_FIRST_EX_LARGE_FETCH);
        hasEntry = search != INVALID_HANDLE_VALUE;
        // The root of an empty drive has not even itself in it.
        if (!hasEntry && GetLastError() != ERROR_FILE_NOT_FOUND)
            known.state = FolderTraits::State::Unreadable;
    }
    ~WindowsFolderReader() override
    {
        if (search != INVALID_HANDLE_VALUE)
            FindClose(search);
    }
    Q_DISABLE_COPY_MOVE(WindowsFolderReader)

    [[nodiscard]] const FolderTraits &traits() const override { return known; }
    [[nodiscard]] std::optional<FolderEntry> next() override
    {
        while (hasEntry) {
            last = entry;
            hasEntry = FindNextFileW(search, &entry) != FALSE;
            const QStringView name(last.cFileName);
            if (name != QLatin1String(".") && name != QLatin1String(".."))
                return FolderEntry{name, kindOf(last.dwFileAttributes)};
        }
        return std::nullopt;
    }

private:
    FolderTraits known;
    HANDLE search = INVALID_HANDLE_VALUE;
    WIN32_FIND_DATAW entry = {};
    WIN32_FIND_DATAW last = {};
    bool hasEntry = false;
};

} // namespace

std::unique_ptr<FolderReader> openFolder(const QString &path)
{
    return std::make_unique<WindowsFolderReader>(path);
}
