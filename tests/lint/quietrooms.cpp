// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

// A program over the rooms without a window, and nothing else: puts "new_" before the names of the files that
// it is given. check_quiet.py looks at the libraries that it needs.

#include "naming/chain.h"
#include "run/forecast.h"
#include "run/renamerun.h"
#include "run/systemdisk.h"

#include <QFile>
#include <QStringList>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    QStringList paths;
    for (int i = 1; i < argc; ++i)
        paths.append(QFile::decodeName(argv[i]));
    const Chain chain{{InsertTextParameters{u"new_"_s, 0, true}}};
    const SystemDiskView view;
    Forecast forecast(view);
    for (const QString &path : paths)
        forecast.add(FilePath::of(path));
    SystemDisk disk;
    RenameRun run(disk);
    for (const QString &path : paths) {
        const FilePath file = FilePath::of(path);
        const QString name = newName(chain, file.name(), run.handled());
        if (forecast.next(file, name).fate != run.next(file, name).fate)
            return 2;
    }
    return run.failed() > 0 ? 1 : 0;
}
