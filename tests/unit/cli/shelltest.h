// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/program.h"
#include "support/temptree.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

/// The program in a shell of the test's own: what it prints is kept, what it reads is given.
class ShellTest
{
public:
    struct Ended
    {
        ExitCode code;
        QByteArray out;
        QByteArray trouble;

        /// The lines of --json by their members.
        [[nodiscard]] QList<QJsonObject> objects() const
        {
            QList<QJsonObject> found;
            for (const QByteArray &line : out.split('\n')) {
                if (!line.isEmpty())
                    found.append(QJsonDocument::fromJson(line).object());
            }
            return found;
        }
    };

    ShellTest() { QCoreApplication::setApplicationVersion(QStringLiteral("0.0")); }

    Ended run(const QStringList &words)
    {
        Ended ended{ExitCode::Done, {}, {}};
        const auto writerTo = [this](QByteArray &kept) {
            return [this, &kept](QByteArrayView bytes, QString *error) {
                kept.append(bytes);
                *error = QStringLiteral("the disk is full");
                return fault;
            };
        };
        {
            Output out(writerTo(ended.out), false);
            Output trouble(
                [&](QByteArrayView bytes, QString *) {
                    ended.trouble.append(bytes);
                    return WriteResult::Done;
                },
                true);
            const Shell shell{.out = out,
                              .trouble = trouble,
                              .read = [this](char *memory, qsizetype size) { return read(memory, size); },
                              .canAsk = canAsk,
                              .isWatched = false,
                              .hasColoredOutput = hasColors,
                              .hasColoredTrouble = hasColors,
                              .isInterrupted = isInterrupted,
                              .currentFolder = QDir::currentPath(),
                              .dataFolder = data.path()};
            ended.code = runProgram(words, shell);
        }
        return ended;
    }

    /// What the program reads, and what happens before.
    QByteArray input;
    std::function<void()> beforeReading = [] {
    };
    bool canAsk = false;
    bool hasColors = false;
    WriteResult fault = WriteResult::Done;
    std::function<bool()> isInterrupted = [] {
        return false;
    };
    TempTree data;

private:
    qsizetype read(char *memory, qsizetype size)
    {
        beforeReading();
        const qsizetype count = std::min(size, input.size());
        std::copy_n(input.begin(), count, memory);
        input.remove(0, count);
        return count;
    }
};
