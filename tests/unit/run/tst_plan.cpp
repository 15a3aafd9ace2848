// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/plan.h"
#include "run/plannedrun.h"
#include "unit/run/modeldisk.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString folder = QFileInfo(u"/d"_s).absoluteFilePath();

struct Row
{
    QString name;
    QString newName;
};

/// "a>b c>d".
QList<Row> rowsOf(const QString &text)
{
    QList<Row> rows;
    for (const QString &row : text.split(u' ', Qt::SkipEmptyParts))
        rows.append({row.section(u'>', 0, 0), row.section(u'>', 1)});
    return rows;
}

void fill(Plan &plan, const QList<Row> &rows)
{
    for (const Row &row : rows)
        plan.add(FilePath::of(folder + u'/' + row.name), row.newName);
    plan.make();
}

/// "renamed", or why not and by which row.
QStringList outcomes(const Plan &plan, int count)
{
    QStringList told;
    for (int row = 0; row < count; ++row) {
        const Outcome outcome = plan.outcome(row);
        QString text = idOf(outcome.reason);
        if (outcome.row >= 0)
            text += u':' + QString::number(outcome.row);
        told.append(text);
    }
    return told;
}

/// A model whose renames can be made to fail, counted from 0.
class FailingDisk final : public Disk
{
public:
    explicit FailingDisk(ModelDisk &on)
        : disk(on)
    {
    }
    RenameResult rename(const FilePath &from, const QString &to) override
    {
        const int number = renames++;
        if (number == failsAt || (number > failsAt && failsFrom))
            return RenameResult::NotPermitted;
        names.append(from.name() + u'>' + to.sliced(to.lastIndexOf(u'/') + 1));
        return disk.rename(from, to);
    }
    std::optional<FileIdentity> identity(const QString &path) const override { return disk.identity(path); }

    int failsAt = -1;
    /// Whether all behind it fail, too.
    bool failsFrom = false;
    int renames = 0;
    QStringList names;

private:
    ModelDisk &disk;
};

/// The files by their names: which file each is.
QMap<QString, quint64> files(const ModelDisk &disk)
{
    QMap<QString, quint64> found;
    const auto &nodes = disk.folders[folder].nodes;
    for (auto node = nodes.begin(); node != nodes.end(); ++node)
        found.insert(node.key(), node->number);
    return found;
}

void makeFiles(ModelDisk &disk, const QStringList &names)
{
    disk.addFolder(folder);
    for (const QString &name : names)
        disk.add(folder + u'/' + name);
}

} // namespace

class TestPlan final : public QObject
{
    Q_OBJECT

private slots:
    void named_data();
    void named();
    void ignoresCase_data();
    void ignoresCase();
    void pathsThatAreTooLong();
    void thirdNames();
    void takenBackByHand();
    void stuck();
    void longLine();
    void random();
};

void TestPlan::named_data()
{
    QTest::addColumn<QString>("others");
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("outcomes");
    QTest::addColumn<QString>("order");

    QTest::newRow("nothing in the way") << u""_s << u"a>x b>y"_s << u"renamed renamed"_s << u"0 1"_s;
    QTest::newRow("shift up") << u""_s << u"1>2 2>3 3>4"_s << u"renamed renamed renamed"_s << u"2 1 0"_s;
    QTest::newRow("shift down") << u""_s << u"2>1 3>2 4>3"_s << u"renamed renamed renamed"_s << u"0 1 2"_s;
    QTest::newRow("swap") << u""_s << u"a>b b>a"_s << u"renamed renamed"_s << u"(0 1)"_s;
    QTest::newRow("ring of three") << u""_s << u"a>b b>c c>a"_s << u"renamed renamed renamed"_s
                                   << u"(0 2 1)"_s;
    QTest::newRow("a line and two rings")
        << u""_s << u"a>b b>a c>d d>e f>g g>f"_s << u"renamed renamed renamed renamed renamed renamed"_s
        << u"3 2 (0 1) (4 5)"_s;
    QTest::newRow("kept") << u""_s << u"a>a b>c"_s << u"unchanged renamed"_s << u"1"_s;
    QTest::newRow("waits for one that keeps its name")
        << u""_s << u"a>a b>a"_s << u"unchanged taken-by-row:0"_s << u""_s;
    QTest::newRow("two want one name") << u""_s << u"a>x b>x"_s << u"renamed taken-by-row:0"_s << u"0"_s;
    QTest::newRow("two want the name that one leaves")
        << u""_s << u"a>b c>b b>x"_s << u"renamed taken-by-row:0 renamed"_s << u"2 0"_s;
    QTest::newRow("taken by a file that is no row") << u"x"_s << u"a>x"_s << u"taken"_s << u""_s;
    QTest::newRow("the end of a line is taken")
        << u"4"_s << u"1>2 2>3 3>4"_s << u"taken-by-row:1 taken-by-row:2 taken"_s << u""_s;
    QTest::newRow("a ring that is broken")
        << u"x"_s << u"a>b b>c c>x"_s << u"taken-by-row:1 taken-by-row:2 taken"_s << u""_s;
    QTest::newRow("missing") << u""_s << u"a>b gone>c"_s << u"renamed missing"_s << u"0"_s;
    QTest::newRow("empty, dots") << u""_s << u"a> b>. c>.."_s << u"empty empty empty"_s << u""_s;
    QTest::newRow("no such folder") << u""_s << u"a>sub/b"_s << u"no-folder"_s << u""_s;
    QTest::newRow("case alone") << u""_s << u"a>A"_s << u"renamed"_s << u"0"_s;
    QTest::newRow("two rows of one file") << u""_s << u"a>b a>c"_s << u"renamed missing"_s << u"0"_s;
    QTest::newRow("none") << u"a"_s << u""_s << u""_s << u""_s;
}

void TestPlan::named()
{
    QFETCH(QString, others);
    QFETCH(QString, rows);
    const QList<Row> list = rowsOf(rows);
    ModelDisk disk;
    makeFiles(disk, others.split(u' ', Qt::SkipEmptyParts));
    for (const Row &row : list) {
        if (row.name != "gone"_L1 && !disk.folders[folder].nodes.contains(row.name))
            disk.add(folder + u'/' + row.name);
    }
    Plan plan(disk);
    fill(plan, list);

    const int count = static_cast<int>(list.size());
    QTEST(outcomes(plan, count).join(u' '), "outcomes");
    QStringList groups;
    for (const Plan::Group &group : plan.groups()) {
        QStringList numbers;
        for (qsizetype place = group.begin; place < group.end; ++place)
            numbers.append(QString::number(plan.order()[static_cast<size_t>(place)]));
        groups.append(group.isRing ? u'(' + numbers.join(u' ') + u')' : numbers.join(u' '));
    }
    QTEST(groups.join(u' '), "order");
    const auto kept = outcomes(plan, count).count(u"unchanged"_s);
    QCOMPARE(plan.kept(), kept);
    QCOMPARE(plan.refused(), count - kept - static_cast<qsizetype>(plan.order().size()));
}

void TestPlan::ignoresCase_data()
{
    QTest::addColumn<bool>("numbersSpellings");
    QTest::addColumn<QString>("rows");
    QTest::addColumn<int>("renames");
    QTest::addColumn<QString>("names");

    QTest::newRow("case alone") << false << u"a>A"_s << 1 << u"A"_s;
    QTest::newRow("case alone, taken for another file") << true << u"a>A"_s << 2 << u"A"_s;
    QTest::newRow("swap in other spellings") << false << u"a>B b>A"_s << 3 << u"A B"_s;
    QTest::newRow("shift in other spellings") << false << u"a>B b>C"_s << 2 << u"B C"_s;
}

void TestPlan::ignoresCase()
{
    QFETCH(QString, rows);
    ModelDisk disk;
    makeFiles(disk, {});
    ModelDisk::Folder &there = disk.folderAt(folder);
    there.ignoresCase = true;
    QFETCH(bool, numbersSpellings);
    there.numbersSpellings = numbersSpellings;
    there.traits.spelling = FolderTraits::Spelling::Unknown;
    const QList<Row> list = rowsOf(rows);
    for (const Row &row : list)
        disk.add(folder + u'/' + row.name);
    Plan plan(disk);
    fill(plan, list);
    QCOMPARE(plan.refused(), 0);
    FailingDisk counted(disk);
    PlannedRun run(counted, plan);
    while (run.next()) {
    }
    QCOMPARE(run.state(), PlannedRun::State::Done);
    QTEST(counted.renames, "renames");
    QTEST(QStringList(files(disk).keys()).join(u' '), "names");
}

void TestPlan::pathsThatAreTooLong()
{
    ModelDisk disk;
    makeFiles(disk, {u"a"_s, u"b"_s, u"c"_s});
    disk.folderAt(folder).traits.longestPath = folder.size() + 6;
    Plan plan(disk);
    fill(plan, rowsOf(u"a>123456 b>no/456 c>12345"_s));
    QCOMPARE(outcomes(plan, 3).join(u' '), u"too-long too-long renamed"_s);
}

/// They are hidden and short, tell nothing of the file, and are gone afterwards.
void TestPlan::thirdNames()
{
    ModelDisk disk;
    makeFiles(disk, {u"Letter to my lawyer.txt"_s, u"b"_s});
    Plan plan(disk);
    fill(plan, {{u"Letter to my lawyer.txt"_s, u"b"_s}, {u"b"_s, u"Letter to my lawyer.txt"_s}});
    FailingDisk counted(disk);
    PlannedRun run(counted, plan);
    QVERIFY(run.next());
    const QString third = counted.names.constFirst().section(u'>', 1);
    QVERIFY2(third.startsWith(u'.') && third.size() <= 13, qPrintable(third));
    QVERIFY(!third.contains("awyer"_L1));
    QCOMPARE(run.standing().size(), 1);
    QCOMPARE(run.standing().constFirst().path, folder + u'/' + third);
    while (run.next()) {
    }
    QCOMPARE(files(disk).keys(), (QStringList{u"Letter to my lawyer.txt"_s, u"b"_s}));
    QCOMPARE(run.renamed(), 2);
    QCOMPARE(counted.renames, 3);
    QCOMPARE(run.standing().size(), 2);
}

void TestPlan::takenBackByHand()
{
    ModelDisk disk;
    makeFiles(disk, {u"1"_s, u"2"_s, u"3"_s});
    const auto before = files(disk);
    Plan plan(disk);
    fill(plan, rowsOf(u"1>2 2>3 3>4"_s));
    PlannedRun run(disk, plan);
    QVERIFY(run.next());
    QVERIFY(run.next());
    QCOMPARE(run.renamed(), 2);
    run.takeBack();
    while (run.next()) {
    }
    QCOMPARE(run.state(), PlannedRun::State::TakenBack);
    QCOMPARE(run.renamed(), 0);
    QCOMPARE(run.failedRow(), -1);
    QCOMPARE(files(disk), before);
}

/// Where nothing moves any more it stops, and tells what is called what.
void TestPlan::stuck()
{
    ModelDisk disk;
    makeFiles(disk, {u"1"_s, u"2"_s, u"3"_s});
    Plan plan(disk);
    fill(plan, rowsOf(u"1>2 2>3 3>4"_s));
    FailingDisk failing(disk);
    failing.failsAt = 2;
    failing.failsFrom = true;
    PlannedRun run(failing, plan);
    while (run.next()) {
    }
    QCOMPARE(run.state(), PlannedRun::State::Stuck);
    QCOMPARE(run.failedRow(), 0);
    QCOMPARE(run.failure(), Fate::ReadOnly);
    const auto standing = run.standing();
    QCOMPARE(standing.size(), 2);
    QCOMPARE(standing.at(0).row, 2);
    QCOMPARE(standing.at(0).path, folder + "/4"_L1);
    QCOMPARE(standing.at(1).path, folder + "/3"_L1);
}

/// Neither time nor stack goes by the length of a line more than once.
void TestPlan::longLine()
{
    constexpr int count = 1'000'000;
    ModelDisk disk;
    makeFiles(disk, {});
    QList<Row> rows;
    rows.reserve(count);
    for (int i = 0; i < count; ++i) {
        disk.add(folder + u'/' + QString::number(i));
        rows.append({QString::number(i), QString::number(i + 1)});
    }
    Plan plan(disk);
    fill(plan, rows);
    QCOMPARE(plan.refused(), 0);
    QCOMPARE(plan.groups().size(), size_t{1});
    QCOMPARE(plan.order().front(), count - 1);
    QCOMPARE(plan.order().back(), 0);
}

/// Permutations with obstacles, and a failure at every step: all is as before, or as it was planned.
void TestPlan::random()
{
    QRandomGenerator random(20261122);
    int whole = 0;
    int refused = 0;
    qint64 failures = 0;
    for (int round = 0; round < 1000; ++round) {
        const int count = random.bounded(1, 9);
        const int names = random.bounded(count, 12);
        QStringList pool;
        for (int i = 0; i < names; ++i)
            pool.append(QString(QChar(u'a' + i)));
        std::shuffle(pool.begin(), pool.end(), random);
        QStringList wanted = pool;
        std::shuffle(wanted.begin(), wanted.end(), random);
        ModelDisk start;
        makeFiles(start, pool.first(count));
        if (random.bounded(4) == 0)
            makeFiles(start, {QString(QChar(u'a' + random.bounded(12)))});
        if (random.bounded(4) == 0)
            wanted[0] = wanted.at(random.bounded(names));
        QList<Row> rows;
        for (int i = 0; i < count; ++i)
            rows.append({pool.at(i), wanted.at(i)});
        const auto before = files(start);
        auto after = before;
        Plan plan(start);
        fill(plan, rows);
        for (int row : plan.order())
            after.remove(rows.at(row).name);
        for (int row : plan.order())
            after.insert(rows.at(row).newName, before.value(rows.at(row).name));
        QCOMPARE(after.size(), before.size());
        // Independently: every row could be renamed if no name is wanted twice or has another file.
        QStringList targets;
        bool isFree = true;
        for (const Row &row : std::as_const(rows)) {
            isFree = isFree && !targets.contains(row.newName) &&
                     (!before.contains(row.newName) || pool.first(count).contains(row.newName));
            targets.append(row.newName);
        }
        QCOMPARE(plan.refused() == 0, isFree);
        (isFree ? whole : refused) += 1;

        for (int failsAt = -1;; ++failsAt) {
            ModelDisk disk;
            disk.folders = start.folders;
            FailingDisk failing(disk);
            failing.failsAt = failsAt;
            PlannedRun run(failing, plan);
            while (run.next()) {
            }
            if (run.state() == PlannedRun::State::Done) {
                QCOMPARE(files(disk), after);
                if (failsAt >= 0)
                    break;
            } else {
                QCOMPARE(run.state(), PlannedRun::State::TakenBack);
                QCOMPARE(files(disk), before);
                ++failures;
            }
        }
    }
    qInfo("%d plans of all rows, %d of a part, %lld failures", whole, refused, failures);
    QVERIFY(whole > 500 && refused > 100 && failures > 2000);
}

QTEST_GUILESS_MAIN(TestPlan)
#include "tst_plan.moc"
