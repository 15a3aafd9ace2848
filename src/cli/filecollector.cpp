// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/filecollector.h"

#include "cli/pathorder.h"
#include "cli/shellquote.h"
#include "platform/bytetext.h"
#include "run/scan.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype readAtOnce = 1 << 16;
/// Far more than any system takes as a path.
constexpr qsizetype longestName = 1 << 20;

} // namespace

FileCollector::FileCollector(const CommandLine &forLine, const Shell &inShell, PathList &paths)
    : line(forLine)
    , shell(inShell)
    , list(paths)
    , progress(inShell)
    , filters(forLine.filters)
{
    // As in the window.
    if (filters.isEmpty())
        filters.append(u"*.*"_s);
}

FileCollector::Result FileCollector::collect()
{
    for (const QString &operand : line.operands) {
        add(bytesOfText(operand));
        if (!goOn())
            return Result::Interrupted;
    }
    if (!line.filesFrom.isEmpty()) {
        if (const Result result = readList(); result != Result::Done)
            return result;
    }
    progress.clear();
    if (leftOut > 0)
        shell.tell(u"folders left out, their paths being too long for the system: %1"_s.arg(leftOut));
    sortFiles(list, line.order, line.isReverse);
    return goOn() ? Result::Done : Result::Interrupted;
}

void FileCollector::add(const QByteArray &path)
{
    QString text = textOfBytes(path);
    // Qt has names of its own that begin so.
    if (text.startsWith(u':'))
        text.prepend("./"_L1);
    if (text.isValidUtf16() && QFileInfo(text).isDir())
        addFolder(text);
    else
        list.add(path);
    progress.show("Files", list.count());
}

void FileCollector::addFolder(const QString &path)
{
    Scan scan(path, filters);
    while (goOn() && scan.next() != Scan::Step::End)
        progress.show("Files", list.count() + scan.count());
    leftOut += scan.foldersLeftOut();
    const QStringList files = scan.takePaths();
    list.expect(files.size());
    for (const QString &file : files)
        list.add(file.toUtf8());
}

FileCollector::Result FileCollector::readList()
{
    const bool isInput = line.filesFrom == "-"_L1;
    QFile file(line.filesFrom);
    QString problem;
    if (!isInput && (QFileInfo(file).isDir() || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)))
        problem = QFileInfo(file).isDir() ? u"is a folder"_s : file.errorString();
    QByteArray bytes;
    QByteArray memory(readAtOnce, Qt::Uninitialized);
    while (problem.isEmpty() && goOn()) {
        const qint64 count =
            isInput ? shell.read(memory.data(), memory.size()) : file.read(memory.data(), memory.size());
        if (count == 0)
            break;
        if (count < 0)
            problem = isInput ? u"cannot be read"_s : file.errorString();
        bytes.append(memory.constData(), std::max<qint64>(count, 0));
        takeNames(bytes);
        if (bytes.size() > longestName)
            problem = u"holds a name of more than a million bytes"_s;
    }
    if (!goOn())
        return Result::Interrupted;
    if (problem.isEmpty()) {
        bytes.append(line.isNullSeparated ? '\0' : '\n');
        takeNames(bytes);
        return Result::Done;
    }
    progress.clear();
    shell.tell((isInput ? u"standard input"_s : shellQuoted(line.filesFrom)) + ": "_L1 + problem);
    return Result::Failed;
}

void FileCollector::takeNames(QByteArray &bytes)
{
    const char separator = line.isNullSeparated ? '\0' : '\n';
    qsizetype begin = 0;
    for (qsizetype end = bytes.indexOf(separator); end >= 0 && goOn();
         end = bytes.indexOf(separator, begin)) {
        QByteArray path = bytes.sliced(begin, end - begin);
        // Windows ends lines with two characters, neither of which can be in a name there.
        if (QDir::separator() == u'\\' && !line.isNullSeparated && path.endsWith('\r'))
            path.chop(1);
        if (!path.isEmpty())
            add(path);
        begin = end + 1;
    }
    bytes.remove(0, begin);
}
