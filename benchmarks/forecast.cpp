// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

// Prints what the new names of a list cost per row, by a chain of three rules, and what the forecast of its
// run. Usage: orvanto_benchmark_forecast [most items]

#include "bench.h"

#include "rules/rule.h"
#include "rules/rulechain.h"
#include "rules/ruledata.h"
#include "rules/rulereplace.h"
#include "run/forecast.h"

#include <QApplication>
#include <QLineEdit>
#include <QToolButton>

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

/// As the editors of the window make them: replace with a pattern, change case, enumerate.
std::vector<std::unique_ptr<RuleData>> makeChain()
{
    const QList<RuleFactory *> factories = createRuleFactories();
    std::vector<std::unique_ptr<RuleData>> chain;
    for (const int page : {ReplacePage, ChangeCasePage, EnumeratePage}) {
        const Rule *rule = factories.at(page)->create(); // lives as long as its records
        const std::unique_ptr<QWidget> editor(rule->createEditor(nullptr));
        if (auto *replace = qobject_cast<RuleWidgetReplace *>(editor.get())) {
            replace->lineEditReplaceWhat->setText(u"IMG_(\\d+)"_s);
            replace->lineEditReplaceWith->setText(u"Holiday \\1"_s);
            replace->toolButtonRegExp->setChecked(true);
        }
        chain.emplace_back(rule->createData(editor.get()));
    }
    qDeleteAll(factories);
    return chain;
}

void measure(const char *shape, int count, const FileTree &tree)
{
    static const auto chain = makeChain();
    QStringList paths;
    for (int i = 0; i < count; ++i)
        paths.append(tree.path(i));
    const double names = processorSeconds([&] {
        FilePaths split;
        for (int row = 0; row < count; ++row) {
            QString name = split.split(paths.at(row)).name();
            for (const auto &record : chain)
                name = applyRuleChain(record.get(), name, row);
        }
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
            QString name = file.name();
            for (const auto &record : chain)
                name = applyRuleChain(record.get(), name, row);
            renamed += forecast.next(file, name).isRenamed() ? 1 : 0;
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
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const int most = argc > 1 ? QByteArray(argv[1]).toInt() : 1000000;
    std::printf("%-24s %9s %10s %10s %10s\n", "us/row", "rows", "names", "forecast", "both");
    for (int count = std::min(1000, most); count <= most; count *= 10) {
        measure("folders of 1,000 files", count, FileTree(count));
        measure("one folder", count, FileTree(count, count));
    }
    return 0;
}
