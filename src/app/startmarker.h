// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QLockFile>

/// A file that names this process while it starts. One that a start finds there, and whose process is gone,
/// was left by a start that crashed. Ends with the object, or before.
class StartMarker final
{
public:
    /// Where the file cannot be made there is no mark, and no crash.
    explicit StartMarker(const QString &path);

    [[nodiscard]] bool lastStartCrashed() const { return crashed; }
    void remove() { lock.unlock(); }

private:
    QLockFile lock;
    bool crashed = false;
};
