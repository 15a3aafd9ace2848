// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// QFile::rename with one system call where that is enough, and without its last resort. Where the file
/// system refuses a rename, QFile::rename copies the bytes into the target, which it opens with truncation,
/// and deletes the source: a target that appeared in the meantime, or a dangling link's destination, would be
/// overwritten. This one never copies: the file is moved by the file system in one step, or stays where it is
/// and the result is false. An existing target is refused. A dangling link is renamed itself.
[[nodiscard]] bool renameFile(const QString &from, const QString &to);
