// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

// Prints what the new names of a list cost per row, by a chain of three rules, and what the forecast of its
// run. Usage: orvanto_benchmark_forecast [most items]

#include "bench.h"

#include "naming/chain.h"
#include "run/forecast.h"

#include <cstdio>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

/// Nothing here waits: the processor's time is the cost, whatever else the machine does.
double processorSeconds(const std::function<void()> &action)
{
    const std::clock_t begin = std::clock();
    action();
    return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

/// As the editors of the window make it: replace with a pattern, change case, enumerate.
Chain makeChain()
{
    return {{ReplaceParameters(u"IMG_(\\d+)"_s, u"Holiday \\1"_s, true)},
            {ChangeCaseParameters{.lower = true, .ignoreExtension = true}},
            {EnumerateParameters{}}};
}

void measure(const char *shape, int count, const FileTree &tree)
{
    static const Chain chain = makeChain();
    QStringList paths;
    for (int i = 0; i < count; ++i)
        paths.append(tree.path(i));
    QString name;
    const double names = processorSeconds([&] {
        FilePaths split;
        for (int row = 0; row < count; ++row)
            name = newName(chain, split.split(paths.at(row)).name(), row);
    });
    int renamed = 0;
    const double both = processorSeconds([&] {
        const SystemDiskView view;
        Forecast forecast(view);
        FilePaths split;
        for (const QString &path : std::as_const(paths))
            forecast.add(split.split(path));
        for (int row = 0; row < count; ++row) {
            const FilePath file = split.split(paths.at(row));
            renamed += forecast.next(file, newName(chain, file.name(), row)).isRenamed() ? 1 : 0;
        }
    });
    std::printf("%-24s %9d %10.2f %10.2f %10.2f\n", shape, count, names * 1e6 / count,
                (both - names) * 1e6 / count, both * 1e6 / count);
    std::fflush(stdout);
    if (renamed != count)
        std::printf("%d rows are told to stay\n", count - renamed);
}

} // namespace

int main(int argc, char **argv)
{
    const int most = argc > 1 ? QByteArray(argv[1]).toInt() : 1000000;
    std::printf("%-24s %9s %10s %10s %10s\n", "us/row", "rows", "names", "forecast", "both");
    for (int count = std::min(1000, most); count <= most; count *= 10) {
        measure("folders of 1,000 files", count, FileTree(count));
        measure("one folder", count, FileTree(count, count));
    }
    return 0;
}
