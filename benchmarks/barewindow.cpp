// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

// An empty main window: what no Qt program starts faster than.

#include <QApplication>
#include <QMainWindow>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1066, 577);
    window.show();
    return QApplication::exec();
}
