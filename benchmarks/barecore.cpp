// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

// An empty program over Qt Core, to measure the start of orvanto-cli by.

#include <QCoreApplication>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    return 0;
}
