// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/processortime.h"

#include <ctime>

ProcessorTime::ProcessorTime()
    : start(now())
{
}

ProcessorTime::Clocks ProcessorTime::now()
{
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return {.thread = qint64{time.tv_sec} * 1'000'000'000 + time.tv_nsec};
}

double ProcessorTime::milliseconds() const
{
    return static_cast<double>(now().thread - start.thread) / 1e6;
}

double processorMilliseconds(const std::function<void()> &work)
{
    const ProcessorTime time;
    work();
    return time.milliseconds();
}
