// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/program.h"
#include "core/datapaths.h"
#include "core/maker.h"
#include "platform/interruption.h"
#include "platform/programarguments.h"
#include "platform/userdatafolder.h"

#include <QCoreApplication>
#include <QDir>

using namespace Qt::StringLiterals;

namespace {

Output::Writer writerTo(StandardStream stream)
{
    return [stream](QByteArrayView bytes, QString *error) {
        return writeTo(stream, bytes, error);
    };
}

} // namespace

int main(int count, char **arguments)
{
    prepareStandardStreams();
    catchInterruption();
    const QStringList words = programArguments(count, arguments);
    // Qt has options of its own, which are none of this program's.
    int one = 1;
    const QCoreApplication application(one, arguments);
    // Those of the window: the data directory is the same.
    QCoreApplication::setApplicationName(u"Orvanto"_s);
    QCoreApplication::setApplicationVersion(Maker::applicationVersion());
    QCoreApplication::setOrganizationName(u"Kavrondel"_s);
    QCoreApplication::setOrganizationDomain(Maker::organizationDomain());

    const bool isWatched = isTerminal(StandardStream::Error);
    Output out(writerTo(StandardStream::Output), isTerminal(StandardStream::Output));
    Output trouble(writerTo(StandardStream::Error), true);
    const Shell shell{.out = out,
                      .trouble = trouble,
                      .read = readInput,
                      .canAsk = isTerminal(StandardStream::Input),
                      .isWatched = isWatched,
                      .hasColoredOutput = knowsColors(StandardStream::Output),
                      .hasColoredTrouble = knowsColors(StandardStream::Error),
                      .isInterrupted = isInterrupted,
                      .currentFolder = QDir::currentPath(),
                      .dataFolder = chooseDataDirectory(userDataFolder()).path};
    return static_cast<int>(runProgram(words, shell));
}
