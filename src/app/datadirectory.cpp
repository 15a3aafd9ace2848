// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "app/datadirectory.h"

#include "core/datapaths.h"
#include "platform/userdatafolder.h"

#include <QDir>

bool setupDataDirectory()
{
    const DataDirectory directory = chooseDataDirectory(userDataFolder());
    if (!makeDataDirectory(directory))
        throw "You must have write permission to the application directory for portable use.";
    // The paths stay those of the data directory: the folder that the program was started from is not the
    // program's.
    if (!QDir::setCurrent(directory.path))
        useDataDirectory(directory.path);
    return true;
}
