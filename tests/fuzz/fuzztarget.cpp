// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fuzztarget.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace {

/// Removed when the process ends in good order; a finding leaves its folder behind.
QTemporaryDir *folder = nullptr;

} // namespace

void fuzzFailed(const char *condition, const char *file, int line, const QString &details)
{
    std::fprintf(stderr, "%s:%d: \"%s\" does not hold. %s\n", file, line, condition, qPrintable(details));
    std::fflush(stderr);
    std::abort();
}

void startFuzzApplication()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argumentCount = 1;
    static char program[] = "fuzz";
    static char *arguments[] = {program, nullptr};
    // Never deleted: libFuzzer ends the process without leaving main().
    new QApplication(argumentCount, arguments);
    QApplication::setApplicationName(QStringLiteral("Orvanto"));
    QApplication::setApplicationVersion(QStringLiteral("1.2.0.5"));
    folder = new QTemporaryDir;
    FUZZ_VERIFY(folder->isValid() && QDir::setCurrent(folder->path()), folder->errorString());
    std::atexit([] {
        QDir::setCurrent(QDir::rootPath());
        delete std::exchange(folder, nullptr);
    });
}

QString FuzzInput::line()
{
    QByteArray bytes;
    while (left > 0) {
        const char character = static_cast<char>(byte());
        if (character == '\n')
            break;
        bytes.append(character);
    }
    QString text = QString::fromUtf8(bytes);
    for (QChar &character : text) {
        if (character.unicode() >= 0xE000 && character.unicode() < 0xE800)
            character = QChar(character.unicode() - 0xE000 + 0xD800);
    }
    return text;
}
