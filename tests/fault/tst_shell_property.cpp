// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/ruleoptions.h"
#include "fault/randomtree.h"
#include "run/forecast.h"
#include "run/renamerun.h"
#include "run/systemdisk.h"
#include "support/environment.h"
#include "unit/cli/shelltest.h"
#include "unit/cli/shellwords.h"

#include <QDirIterator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A random rule, whose pattern is valid: of others the shell tells.
Parameters randomRule(RandomInput &random)
{
    static const QStringList texts{QString(), u"x"_s, u"a"_s, u"."_s, u".."_s,    u"/"_s, u"sub/"_s,
                                   u"../"_s,  u"é"_s, u"😀"_s, u" "_s, u"'\"$`"_s, u"@1"_s};
    static const QStringList whats{u"a"_s, u"A"_s, u"."_s, u".txt"_s, u" "_s,
                                   u"1"_s, u"é"_s, u"😀"_s, u"IMG_"_s};
    static const QStringList patterns{u"."_s,    u"^."_s,  u".$"_s,  u"\\d+"_s,   u"(.)(.)"_s,
                                      u"[ab]"_s, u"\\."_s, u"a|b"_s, u"\\..*$"_s, u"x+"_s};
    static const QStringList results{QString(), u"a"_s, u"b"_s, u"\\2\\1"_s,
                                     u"\\1"_s,  u"/"_s, u"."_s, u"sub/"_s};
    const int position = random.oneOf(QList<int>{0, 0, 0, 1, 1, 2, 3, 5, 20, 300, 512});
    const bool fromStart = random.chance(60);
    const int kind = random.below(3);
    switch (random.below(5)) {
    case 0:
        if (random.chance(50))
            return ReplaceParameters(random.oneOf(patterns), random.oneOf(results), true);
        return ReplaceParameters(random.oneOf(whats), random.oneOf(texts), false);
    case 1:
        return TrimParameters{position, random.oneOf(QList<int>{1, 1, 2, 3, 100, 512}), fromStart};
    case 2:
        return ChangeCaseParameters{kind == 0, kind == 1, kind == 2, random.chance(50)};
    case 3:
        return InsertTextParameters{random.oneOf(texts), position, fromStart};
    default:
        return EnumerateParameters{random.below(3), random.below(4), position, fromStart};
    }
}

/// Adds the rule to the window, as a person does.
struct AddToWindow
{
    const DrivenWindow &window;

    void operator()(const ReplaceParameters &rule) const
    {
        window.addReplace(rule.replaceWhat, rule.replaceWith, rule.regExp);
    }
    void operator()(const TrimParameters &rule) const
    {
        window.addTrim(rule.position, rule.length, rule.fromStart);
    }
    void operator()(const ChangeCaseParameters &rule) const
    {
        window.addChangeCase(rule.firstLetters ? &RuleWidgetChangeCase::radioButtonFirstLetters
                             : rule.upper      ? &RuleWidgetChangeCase::radioButtonUpper
                                               : &RuleWidgetChangeCase::radioButtonLower,
                             rule.ignoreExtension);
    }
    void operator()(const InsertTextParameters &rule) const
    {
        window.addInsert(rule.text, rule.position, rule.fromStart);
    }
    void operator()(const EnumerateParameters &rule) const
    {
        window.addEnumerate(rule.startNumber, rule.leadingZeros, rule.position, rule.fromStart);
    }
};

/// Everything below the folder, with the contents of files and the targets of links.
QMap<QString, QByteArray> contentOf(const QString &root)
{
    QMap<QString, QByteArray> content;
    QDirIterator entries(root, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QFileInfo entry(entries.next());
        const QString name = entry.filePath().sliced(root.size());
        if (entry.isSymLink())
            content.insert(name, "to " + QString(entry.symLinkTarget()).remove(root).toUtf8());
        else
            content.insert(name, entry.isDir() ? QByteArray("folder") : readFile(entry.filePath()));
    }
    return content;
}

/// A tree with a list of its files. The same seed gives the same.
struct Planted
{
    explicit Planted(quint32 seed)
    {
        RandomInput random(seed);
        int fileNumber = 0;
        const QString base = plantTree(tree, random, fileNumber);
        QDirIterator files(base, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
        QStringList names;
        while (files.hasNext())
            names.append(files.next());
        names.sort();
        while (!names.isEmpty()) {
            const QString path = names.takeAt(random.below(static_cast<int>(names.size())));
            if (random.chance(80))
                paths.append(path);
            if (random.chance(5))
                paths.append(path.section(u'/', 0, -2) + "/./"_L1 + path.section(u'/', -1));
            if (random.chance(4))
                QFile::remove(path);
        }
        for (int rules = random.below(5); rules > 0; --rules)
            chain.append(randomRule(random));
        if (random.chance(10))
            paths.append(base + u"sub"_s);
    }

    TempTree tree;
    QStringList paths;
    QList<Parameters> chain;
};

QString idsOf(const QJsonObject &row)
{
    return row.value("outcome"_L1).toString() + u' ' +
           row.value("reason"_L1).toString(row.value("outcome"_L1).toString());
}

bool isRenamed(const QJsonObject &row)
{
    return idsOf(row).endsWith(" renamed"_L1);
}

} // namespace

/// Over random trees, lists and chains of rules: the shell makes the names that the window makes, foretells
/// the same of each, and its classic run leaves the same disk. ORVANTO_SEED repeats a failure, ORVANTO_ROUNDS
/// sets the number.
class ShellProperty : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<DrivenWindow> window;
    ShellTest shell;
    int renamed = 0;
    int rows = 0;

    QStringList optionsOf(const Planted &planted, const QStringList &first) const
    {
        QStringList words = first;
        for (const Parameters &rule : planted.chain) {
            for (const QByteArray &word : shellWords(optionOf(rule)))
                words.append(QString::fromUtf8(word));
        }
        return words + QStringList(u"--"_s) + planted.paths;
    }

    void fillWindow(const Planted &planted)
    {
        window->files()->clear();
        window->click("buttonRuleListClear");
        window->drop(planted.paths);
        for (const Parameters &rule : planted.chain)
            std::visit(AddToWindow{*window}, rule);
        window->get()->on_buttonPreview_clicked();
    }

    void compareForecasts(const Planted &ours, const Planted &theirs, const QList<QJsonObject> &told)
    {
        const SystemDiskView view;
        Forecast forecast(view);
        const auto here = [&](int row) {
            return QString(window->files()->path(row)).replace(theirs.tree.path(), ours.tree.path());
        };
        for (int row = 0; row < told.size(); ++row)
            forecast.add(FilePath::of(window->files()->path(row)));
        const QStringList names = window->rowTexts();
        for (int row = 0; row < told.size(); ++row) {
            const QString old = here(row);
            QCOMPARE(told.at(row).value("old"_L1).toString(), old);
            QCOMPARE(told.at(row).value("new"_L1).toString(),
                     old.first(old.lastIndexOf(u'/') + 1) + names.at(row));
            const Outcome outcome = forecast.next(FilePath::of(window->files()->path(row)), names.at(row));
            QCOMPARE(idsOf(told.at(row)), idOf(outcome.fate) + u' ' + idOf(outcome.reason));
            QCOMPARE(told.at(row).value("blockedBy"_L1).toString(),
                     outcome.row < 0 ? QString() : here(outcome.row));
        }
    }

    /// As the window does it.
    void compareRuns(const QList<QJsonObject> &told)
    {
        SystemDisk disk;
        RenameRun run(disk);
        const QStringList names = window->rowTexts();
        for (int row = 0; row < told.size(); ++row) {
            const Outcome outcome = run.next(FilePath::of(window->files()->path(row)), names.at(row));
            QCOMPARE(isRenamed(told.at(row)), outcome.isRenamed());
            renamed += outcome.isRenamed() ? 1 : 0;
            ++rows;
        }
    }

    void compare(quint32 seed)
    {
        const Planted theirs(seed);
        const Planted ours(seed);
        QCOMPARE(contentOf(ours.tree.path()), contentOf(theirs.tree.path()));
        fillWindow(theirs);
        if (ours.paths.isEmpty())
            return;
        const auto before = contentOf(ours.tree.path());
        const auto foretold = shell.run(optionsOf(ours, {u"preview"_s, u"--classic"_s, u"--json"_s}));
        QVERIFY2(foretold.code == ExitCode::Done || foretold.code == ExitCode::Conflicts,
                 foretold.trouble.constData());
        QCOMPARE(foretold.objects().size(), window->files()->count());
        QCOMPARE(contentOf(ours.tree.path()), before);
        compareForecasts(ours, theirs, foretold.objects());
        if (QTest::currentTestFailed())
            return;
        const auto done = shell.run(optionsOf(ours, {u"apply"_s, u"--yes"_s, u"--classic"_s, u"--json"_s}));
        QCOMPARE(done.objects().size(), foretold.objects().size());
        compareRuns(done.objects());
        QCOMPARE(contentOf(ours.tree.path()), contentOf(theirs.tree.path()));
    }

private slots:
    void init()
    {
        settings = std::make_unique<TestSettings>();
        window = std::make_unique<DrivenWindow>();
        window->stopLogTimer();
        window->click("buttonPreview");
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    }
    void cleanup()
    {
        qInstallMessageHandler(nullptr);
        window.reset();
        settings.reset();
    }

    void shellDoesWhatTheWindowDoes()
    {
        const quint32 seed = randomSeed();
        const int rounds = environmentNumber("ORVANTO_ROUNDS", 2000);
        for (int round = 0; round < rounds; ++round) {
            const quint32 roundSeed = seed + static_cast<quint32>(round);
            compare(roundSeed);
            if (QTest::currentTestFailed()) {
                std::fprintf(stderr, "repeat with ORVANTO_SEED=%u ORVANTO_ROUNDS=1\n%s\n", roundSeed,
                             qPrintable(optionsOf(Planted(roundSeed), {}).join(u"\n"_s)));
                return;
            }
        }
        std::fprintf(stderr, "%d of %d rows renamed\n", renamed, rows);
        // Input that never gets anywhere would prove nothing.
        QVERIFY(renamed > rows / 10 && renamed < rows);
    }
};

QTEST_MAIN(ShellProperty)
#include "tst_shell_property.moc"
