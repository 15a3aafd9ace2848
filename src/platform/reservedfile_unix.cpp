// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/reservedfile.h"

#include "platform/filelock.h"
#include "platform/sharedfile.h"

#include <QFileInfo>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {

/// A file that was synchronised may still have no name on the disk.
bool syncFolder(const QString &path)
{
    const int folder = open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return false;
    const bool synced = fsync(folder) == 0;
    close(folder);
    return synced;
}

} // namespace

std::unique_ptr<ReservedFile> ReservedFile::create(const QString &path, QString *error)
{
    std::unique_ptr<ReservedFile> made(new ReservedFile(path));
    if (!made->file.open(QIODevice::ReadWrite | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner)) {
        *error = made->file.errorString();
        return nullptr;
    }
    // Nobody else can have locked it: it was made just now, for us. Where there are no locks, there are none.
    (void)lockFile(made->file);
    return made;
}

std::unique_ptr<ReservedFile> ReservedFile::reopen(const QString &path, QString *error)
{
    std::unique_ptr<ReservedFile> made(new ReservedFile(path));
    if (!openShared(made->file, QIODevice::ReadWrite | QIODevice::ExistingOnly)) {
        *error = made->file.errorString();
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
    return sysconf(_SC_PAGESIZE);
}

char *ReservedFile::moveWindow(qint64 offset, qsizetype size)
{
    int failure = 0;
    do {
        failure = posix_fallocate(file.handle(), offset, size);
    } while (failure == EINTR);
    if (failure != 0) {
        lastError = qt_error_string(failure);
        return nullptr;
    }
    void *mapped =
        mmap(nullptr, static_cast<size_t>(size), PROT_READ | PROT_WRITE, MAP_SHARED, file.handle(), offset);
    if (mapped == MAP_FAILED) {
        lastError = qt_error_string(errno);
        return nullptr;
    }
    showWindow(static_cast<char *>(mapped), size);
    return window;
}

void ReservedFile::showWindow(char *memory, qsizetype size)
{
    const QMutexLocker lock(&moving);
    if (window)
        munmap(window, static_cast<size_t>(windowSize));
    window = memory;
    windowSize = size;
    touched = 0;
}

bool ReservedFile::touchAhead()
{
    // So short that a run that moves on never waits.
    constexpr qsizetype piece = 1 << 16;
    const QMutexLocker lock(&moving);
    if (!window || touched >= windowSize)
        return false;
#ifdef MADV_POPULATE_WRITE
    const qsizetype size = std::min(piece, windowSize - touched);
    const bool done = madvise(window + touched, static_cast<size_t>(size), MADV_POPULATE_WRITE) == 0;
    touched = done ? touched + size : windowSize;
    return done;
#else
    return false;
#endif
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
    file.remove();
}

bool ReservedFile::sync()
{
    const QMutexLocker lock(&syncing);
    if (!file.isOpen() || fdatasync(file.handle()) != 0)
        return false;
    if (!entrySynced)
        entrySynced = syncFolder(QFileInfo(path()).absolutePath());
    return entrySynced;
}
