// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// A place for what the program writes: settings, logs and whatever else is its user's.
struct DataDirectory
{
    QString path;
    // It is the program's own folder.
    bool isPortable = false;
};

/// Which one it is: the program's own folder where a file or folder "portable", or a file "portable.txt",
/// stands beside the program, otherwise a folder below userDataFolder that is named after the organisation
/// and the application. Only looks: makes nothing and does not make it the current directory.
[[nodiscard]] DataDirectory chooseDataDirectory(const QString &userDataFolder);

/// Makes an installed one, with all its parents; whether that worked shows in what is done with it later.
/// False when a portable one cannot be written to.
[[nodiscard]] bool makeDataDirectory(const DataDirectory &directory);

/// The folder in which settings and log stand: the current directory, unless useDataDirectory() named
/// another.
[[nodiscard]] QString dataDirectory();

/// For a data directory that is not the current one. With an empty path it is the current one again.
void useDataDirectory(const QString &path);
