// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/// Counts the ticks of a timer and tells when an automatic version check is due: about 8 seconds after the
/// start, and then once in every 24 hours of running.
class CheckSchedule final
{
public:
    /// interval: of the timer, in milliseconds; 1 to 1000.
    explicit CheckSchedule(int interval)
        : ticksPerSecond(1000U / static_cast<quint32>(interval))
        , ticksPerDay(ticksPerSecond * 86400U)
        , ticks(ticksPerDay - 8U * ticksPerSecond)
    {
    }

    /// To be called at every tick.
    [[nodiscard]] bool isDue()
    {
        if (ticks++ < ticksPerDay)
            return false;
        ticks = 0;
        return true;
    }

private:
    quint32 ticksPerSecond;
    quint32 ticksPerDay;
    quint32 ticks;
};
