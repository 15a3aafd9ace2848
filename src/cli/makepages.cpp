// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

// Part of the build: makepages FOLDER DATE writes what packages bring along.

#include "cli/pages.h"

#include <QFile>
#include <QString>

#include <cstdio>
#include <utility>

using namespace Qt::StringLiterals;

int main(int count, char **arguments)
{
    if (count != 3)
        return 2;
    const QString folder = QFile::decodeName(arguments[1]);
    const std::pair<const char *, QByteArray> pages[] = {{"orvanto-cli.1", manualPage(arguments[2])},
                                                         {"orvanto-cli.bash", bashCompletion()},
                                                         {"_orvanto-cli", zshCompletion()},
                                                         {"orvanto-cli.fish", fishCompletion()}};
    for (const auto &[name, text] : pages) {
        QFile file(folder + u'/' + QLatin1StringView(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush()) {
            std::fprintf(stderr, "%s: %s\n", name, qPrintable(file.errorString()));
            return 1;
        }
    }
    return 0;
}
