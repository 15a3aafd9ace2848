// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "desktop/shell.h"

#include <QDesktopServices>
#include <QDir>
#include <QUrl>

void openWithShell(const QString &file, const QString & /*parameters: the desktop's handler takes none*/)
{
    if (file.isEmpty())
        return;
    QDesktopServices::openUrl(QDir::isAbsolutePath(file) ? QUrl::fromLocalFile(file) : QUrl(file));
}
