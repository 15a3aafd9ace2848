// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

/// How the program ends; never changed, since scripts ask for it. docs/command-line.md lists them.
enum class ExitCode {
    Done = 0,
    AllFailed = 1,
    SomeFailed = 2,
    /// Nothing was touched because of them.
    Conflicts = 3,
    /// Or answered no.
    NothingToDo = 4,
    Usage = 64,
    /// The output or the journal cannot be written, or a list of files not read.
    NoInputOrOutput = 74,
    Interrupted = 130,
};
