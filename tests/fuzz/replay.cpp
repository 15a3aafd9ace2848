// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fuzztarget.h"

#include <QDir>
#include <QFile>
#include <QHash>

#include <cstdio>

/// Stands in for libFuzzer in the ordinary tests: hands every file of the folder that is named on the command
/// line to the target. Fails when there is none.
int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
        return 2;
    }
    const QDir corpus(QDir(QString::fromLocal8Bit(argv[1])).absolutePath());
    LLVMFuzzerInitialize(&argc, &argv);
    const QStringList names = corpus.entryList(QDir::Files, QDir::Name);
    for (const QString &name : names) {
        // Told before: a crash says no more.
        std::printf("%s\n", qPrintable(name));
        std::fflush(stdout);
        QFile file(corpus.filePath(name));
        FUZZ_VERIFY(file.open(QIODevice::ReadOnly), file.errorString());
        const QByteArray input = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(input.constData()),
                               static_cast<size_t>(input.size()));
    }
    std::printf("%lld inputs\n", static_cast<long long>(names.size()));
    return names.isEmpty() ? 1 : 0;
}
