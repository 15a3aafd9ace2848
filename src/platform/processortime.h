// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <functional>

/// For how long this thread has had the processor since the object was made: other threads, and other
/// programs, do not count.
class ProcessorTime final
{
public:
    ProcessorTime();
    [[nodiscard]] double milliseconds() const;

private:
    struct Clocks
    {
        /// In nanoseconds; of the thread, and, where that is too coarse, of the wall.
        qint64 thread = 0;
        qint64 wall = 0;
    };
    static Clocks now();

    Clocks start;
};

/// The same for work that can be done more than once: where the system counts too coarsely for short work,
/// the least of three times.
[[nodiscard]] double processorMilliseconds(const std::function<void()> &work);
