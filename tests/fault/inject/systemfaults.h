// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <limits>
#include <list>
#include <string>

/// The system calls through which files are renamed and written.
enum class SystemCall { RenameNoReplace, Exchange, Rename, Link, GiveName, Unlink, Write, Sync };

/// What happens to calls about a path that holds the given part: the source of a rename or a link, the name
/// that a file without one gets, the file that is written.
struct Fault
{
    SystemCall call;
    std::string part;
    /// Errno of the failure; 0 lets the call through.
    int error = 0;
    /// So many calls go through first.
    int skipped = 0;
    /// So many fail; -1: all.
    int times = -1;
    /// Milliseconds that the call takes longer.
    int delay = 0;
    /// What was asked for is done before the failure is told.
    bool done = false;
    /// So many bytes can still be written before a write fails.
    long long room = 0;
};

/// While it lives, system calls of the main thread fail as told: Qt and the program come to the functions of
/// systemfaults.cpp instead of the C library's, which the executable that holds them hides.
class SystemFaults
{
public:
    SystemFaults();
    ~SystemFaults();
    SystemFaults(const SystemFaults &) = delete;
    SystemFaults &operator=(const SystemFaults &) = delete;

    void add(const Fault &fault) { faults.push_back({fault, 0}); }
    /// Every way of moving the file fails with this error.
    void refuseMoving(const std::string &part, int error)
    {
        for (const auto call :
             {SystemCall::RenameNoReplace, SystemCall::Exchange, SystemCall::Rename, SystemCall::Link})
            add({.call = call, .part = part, .error = error});
    }
    /// As on file systems that know neither rename without replacing nor exchanges, and no hard links either
    /// unless told.
    void forgetNoReplace(bool hardLinks, int linkError)
    {
        add({.call = SystemCall::RenameNoReplace, .part = "/", .error = noReplaceError});
        forgetExchange();
        if (!hardLinks)
            add({.call = SystemCall::Link, .part = "/", .error = linkError});
    }
    /// As on most file systems.
    void forgetExchange() { add({.call = SystemCall::Exchange, .part = "/", .error = noReplaceError}); }
    void clear() { faults.clear(); }

    /// The calls that were made to fail, or delayed, so far.
    [[nodiscard]] int hits() const { return hitCount; }

    /// For the functions that stand in for the system's.
    [[nodiscard]] Fault *next(SystemCall call, const char *path);

private:
    struct Counted
    {
        Fault fault;
        int calls;
    };
    static const int noReplaceError;

    std::list<Counted> faults;
    int hitCount = 0;
};
