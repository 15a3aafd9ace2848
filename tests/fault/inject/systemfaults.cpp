// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fault/inject/systemfaults.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <thread>

#include <dlfcn.h>
#include <unistd.h>

namespace {

SystemFaults *active = nullptr;
const std::thread::id mainThread = std::this_thread::get_id();

/// For the main thread alone, which also adds and clears faults: those of Qt that write meanwhile to wake
/// each other up are left alone.
SystemFaults *injector()
{
    return std::this_thread::get_id() == mainThread ? active : nullptr;
}

/// The C library's own function, or the sanitizer's in front of it.
template <typename Function>
Function original(const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

std::string pathOf(int descriptor)
{
    char path[4096];
    const auto size = readlink(("/proc/self/fd/" + std::to_string(descriptor)).c_str(), path, sizeof(path));
    return size > 0 ? std::string(path, static_cast<size_t>(size)) : std::string();
}

template <typename Operation>
int through(SystemCall call, const char *path, const Operation &operation)
{
    SystemFaults *faults = injector();
    const Fault *fault = faults ? faults->next(call, path) : nullptr;
    if (!fault)
        return operation();
    std::this_thread::sleep_for(std::chrono::milliseconds(fault->delay));
    if (fault->error == 0)
        return operation();
    if (fault->done)
        operation();
    errno = fault->error;
    return -1;
}

} // namespace

const int SystemFaults::noReplaceError = EINVAL;

SystemFaults::SystemFaults()
{
    active = this;
}

SystemFaults::~SystemFaults()
{
    active = nullptr;
}

Fault *SystemFaults::next(SystemCall call, const char *path)
{
    for (auto &[fault, calls] : faults) {
        if (fault.call != call || std::string(path).find(fault.part) == std::string::npos)
            continue;
        const int number = calls++ - fault.skipped;
        if (number < 0 || (fault.times >= 0 && number >= fault.times))
            continue;
        ++hitCount;
        return &fault;
    }
    return nullptr;
}

extern "C" {

int renameat2(int fromFolder, const char *from, int toFolder, const char *to, unsigned flags) noexcept
{
    static const auto real = original<decltype(&renameat2)>("renameat2");
    const bool isExchange = (flags & RENAME_EXCHANGE) != 0;
    return through(isExchange ? SystemCall::Exchange : SystemCall::RenameNoReplace, from,
                   [&] { return real(fromFolder, from, toFolder, to, flags); });
}

int rename(const char *from, const char *to) noexcept
{
    static const auto real = original<decltype(&rename)>("rename");
    return through(SystemCall::Rename, from, [&] { return real(from, to); });
}

int link(const char *from, const char *to) noexcept
{
    static const auto real = original<decltype(&link)>("link");
    return through(SystemCall::Link, from, [&] { return real(from, to); });
}

int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags) noexcept
{
    static const auto real = original<decltype(&linkat)>("linkat");
    return through(SystemCall::GiveName, to, [&] { return real(fromFolder, from, toFolder, to, flags); });
}

int unlink(const char *path) noexcept
{
    static const auto real = original<decltype(&unlink)>("unlink");
    return through(SystemCall::Unlink, path, [&] { return real(path); });
}

int fdatasync(int descriptor)
{
    static const auto real = original<decltype(&fdatasync)>("fdatasync");
    return through(SystemCall::Sync, injector() ? pathOf(descriptor).c_str() : "",
                   [&] { return real(descriptor); });
}

ssize_t write(int descriptor, const void *data, size_t size)
{
    static const auto real = original<decltype(&write)>("write");
    SystemFaults *faults = injector();
    Fault *fault = faults ? faults->next(SystemCall::Write, pathOf(descriptor).c_str()) : nullptr;
    if (!fault || fault->error == 0)
        return real(descriptor, data, size);
    // A full disk takes what still fits.
    const auto fitting = std::min<long long>(fault->room, static_cast<long long>(size));
    if (fitting == 0) {
        errno = fault->error;
        return -1;
    }
    fault->room -= fitting;
    return real(descriptor, data, static_cast<size_t>(fitting));
}

} // extern "C"
