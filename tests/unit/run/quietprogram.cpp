// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

// Prints what would become of files whose names get an "x" in front: a program over src/run alone, without a
// window. check_libraries.py looks at what it needs.

#include "run/forecast.h"

#include <QCoreApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList paths = QCoreApplication::arguments().sliced(1);
    const SystemDiskView view;
    Forecast forecast(view);
    for (const QString &path : paths)
        forecast.add(FilePath::of(path));
    for (const QString &path : paths) {
        const FilePath file = FilePath::of(path);
        std::printf("%s\n", qPrintable(idOf(forecast.next(file, u'x' + file.name()).fate)));
    }
    return 0;
}
