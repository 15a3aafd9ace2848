// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/reservedfile.h"

#include "platform/filelock.h"
#include "platform/sharedfile.h"
#include "platform/winapi_windows.h"

#include <windows.h>

#include <io.h>

std::unique_ptr<ReservedFile> ReservedFile::create(const QString &path, QString *error)
{
    std::unique_ptr<ReservedFile> made(new ReservedFile(path));
    // The user's folder is the user's alone.
    if (!openShared(made->file, QIODevice::ReadWrite | QIODevice::NewOnly)) {
        *error = qt_error_string();
        return nullptr;
    }
    (void)lockFile(made->file);
    return made;
}

std::unique_ptr<ReservedFile> ReservedFile::reopen(const QString &path, QString *error)
{
    std::unique_ptr<ReservedFile> made(new ReservedFile(path));
    if (!openShared(made->file, QIODevice::ReadWrite | QIODevice::ExistingOnly)) {
        *error = qt_error_string();
        return nullptr;
    }
    error->clear();
    return lockFile(made->file) == FileLock::HeldByAnother ? nullptr : std::move(made);
}

ReservedFile::~ReservedFile()
{
    showWindow(nullptr, 0);
}

qint64 ReservedFile::windowStep()
{
    SYSTEM_INFO system = {};
    GetSystemInfo(&system);
    return system.dwAllocationGranularity;
}

char *ReservedFile::moveWindow(qint64 offset, qsizetype size)
{
    // Making the mapping makes the file as long, and reserves the space.
    const qint64 end = offset + size;
    const HANDLE mapping =
        CreateFileMappingW(handleOf(file), nullptr, PAGE_READWRITE, static_cast<DWORD>(end >> 32),
                           static_cast<DWORD>(end & 0xffffffff), nullptr);
    void *mapped = nullptr;
    if (mapping)
        mapped = MapViewOfFile(mapping, FILE_MAP_WRITE, static_cast<DWORD>(offset >> 32),
                               static_cast<DWORD>(offset & 0xffffffff), static_cast<SIZE_T>(size));
    if (!mapped)
        lastError = qt_error_string();
    // The window keeps what it shows.
    if (mapping)
        CloseHandle(mapping);
    if (mapped)
        showWindow(static_cast<char *>(mapped), size);
    return static_cast<char *>(mapped);
}

void ReservedFile::showWindow(char *memory, qsizetype size)
{
    const QMutexLocker lock(&moving);
    if (window) {
        // What is still in a window that is gone would be out of sync()'s reach.
        FlushViewOfFile(window, 0);
        UnmapViewOfFile(window);
    }
    window = memory;
    windowSize = size;
}

bool ReservedFile::touchAhead()
{
    // Windows has no such call.
    return false;
}

bool ReservedFile::cut(qint64 size)
{
    if (file.resize(size))
        return true;
    lastError = file.errorString();
    return false;
}

bool ReservedFile::finish(qint64 size)
{
    showWindow(nullptr, 0);
    const bool cut = file.resize(size);
    unlockFile(file);
    return cut;
}

void ReservedFile::discard()
{
    const QMutexLocker lock(&syncing);
    showWindow(nullptr, 0);
    file.close();
    (void)removeShared(path());
}

bool ReservedFile::sync()
{
    const QMutexLocker lock(&syncing);
    return file.isOpen() && syncWindow() && FlushFileBuffers(handleOf(file));
}

bool ReservedFile::syncWindow()
{
    const QMutexLocker lock(&moving);
    return !window || FlushViewOfFile(window, 0);
}
