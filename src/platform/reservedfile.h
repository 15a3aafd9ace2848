// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>
#include <QMutex>
#include <QString>

#include <memory>

/// A new file that is written through memory. Its space is reserved before it is mapped: writing into a
/// window then costs no system call, cannot fail for want of room, and outlives the process, however that
/// ends. What is reserved and not written reads as zeros.
class ReservedFile final
{
public:
    /// Makes the file, which only its owner may read, and locks it as lockFile() does. Nothing when it cannot
    /// be made, or is there already; error then says why.
    [[nodiscard]] static std::unique_ptr<ReservedFile> create(const QString &path, QString *error);
    /// Opens one that an earlier process left, and locks it. Nothing when it cannot be written, or another
    /// has locked it: error is empty then.
    [[nodiscard]] static std::unique_ptr<ReservedFile> reopen(const QString &path, QString *error);
    ~ReservedFile();
    Q_DISABLE_COPY_MOVE(ReservedFile)

    /// Where windows begin: at multiples of so many bytes, which is a power of 2.
    [[nodiscard]] static qint64 windowStep();
    /// Reserves so many bytes from the offset on and shows them; the window before is gone, what was written
    /// to it stays. Null when there is no room, and the window before is still there: error() says why.
    [[nodiscard]] char *moveWindow(qint64 offset, qsizetype size);
    /// Has the system find memory for a piece of the window, which its first use would do, at the run's
    /// expense; false when it has it for all. May be called on any thread.
    bool touchAhead();
    /// What stands behind so many bytes goes; before the first window.
    [[nodiscard]] bool cut(qint64 size);
    /// Closes the window, cuts the file to so many bytes and unlocks it.
    bool finish(qint64 size);
    /// Closes and removes the file.
    void discard();
    /// Waits until what was written by now is on the disk, with the file's entry in its folder. May be called
    /// on any thread.
    bool sync();

    [[nodiscard]] QString path() const { return ownPath; }
    [[nodiscard]] QString error() const { return lastError; }

private:
    explicit ReservedFile(const QString &path)
        : ownPath(path)
        , file(path)
    {
    }
    bool syncWindow();
    void showWindow(char *memory, qsizetype size);

    QString ownPath;
    QFile file;
    QString lastError;
    char *window = nullptr;
    qsizetype windowSize = 0;
    qsizetype touched = 0;
    /// Held while the file is synchronised.
    QMutex syncing;
    /// Held while the window moves, and while another thread is at it.
    QMutex moving;
    bool entrySynced = false;
};
