// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "desktop/errorbox.h"

#include <QApplication>
#include <QMessageBox>

#include <cstdio>

void showErrorBox(const char *title, const char *text)
{
    std::fprintf(stderr, "%s\n%s\n", title, text);
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return;
    char programName[] = "orvanto";
    char *arguments[] = {programName, nullptr};
    int argumentCount = 1;
    const QApplication application(argumentCount, arguments);
    QMessageBox box(QMessageBox::Critical, QString::fromUtf8(title), QString::fromUtf8(text),
                    QMessageBox::Ok);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}
