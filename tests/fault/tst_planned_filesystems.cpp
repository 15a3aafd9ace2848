// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fault/mountedkind.h"
#include "run/systemdisk.h"
#include "support/plannedscene.h"
#include "support/temptree.h"

#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// What a folder and those in it hold: names, and what is in the files of that name.
using Contents = QMap<QString, QByteArray>;

/// A disk of which one step fails.
class FailingDisk final : public Disk
{
public:
    RenameResult rename(const FilePath &from, const QString &to) override
    {
        return ++steps == failsAt ? RenameResult::NotPermitted : disk.rename(from, to);
    }
    std::optional<RenameResult> exchange(const FilePath &one, const QString &other) override
    {
        if (steps + 1 == failsAt) {
            ++steps;
            return RenameResult::NotPermitted;
        }
        const auto result = disk.exchange(one, other);
        steps += result ? 1 : 0;
        return result;
    }
    std::optional<FileIdentity> identity(const QString &path) const override { return disk.identity(path); }

    int failsAt = 0;
    int steps = 0;

private:
    SystemDisk disk;
};

} // namespace

/// Planned runs on the file system at $ORVANTO_MOUNT. Run by mounted.py.
class PlannedFileSystems final : public QObject
{
    Q_OBJECT

private:
    int kind = none;
    int number = 0;
    QString folder;
    std::unique_ptr<TempTree> tree;
    std::unique_ptr<JournalFolder> journals;
    std::unique_ptr<PlannedScene> scene;
    Contents before;
    Contents after;
    SystemDisk disk;

    [[nodiscard]] bool is(int kinds) const { return (kind & kinds) != 0; }
    void plant(const QString &rows)
    {
        folder = qEnvironmentVariable("ORVANTO_MOUNT") + u"/test%1"_s.arg(++number);
        QVERIFY(QDir().mkpath(folder + u"/s"_s) && QDir().mkpath(folder + u"/t"_s));
        scene = std::make_unique<PlannedScene>(folder, rows);
        scene->plant();
        before = now();
        QCOMPARE(before.size(), scene->count());
        after.clear();
        for (const QString &row : rows.split(u' '))
            after.insert(
                QDir::cleanPath(QFileInfo(row.section(u'>', 0, 0)).path() + u'/' + row.section(u'>', 1)),
                row.section(u'>', 0, 0).toUtf8());
        QCOMPARE(after.size(), scene->count());
    }
    /// By the names that are on the disk; each file holds the name that it had.
    [[nodiscard]] Contents now() const
    {
        Contents found;
        for (const QString &part : {QString(), u"s/"_s, u"t/"_s}) {
            const QString there = folder + u'/' + part;
            QStringList names = QDir(there).entryList(QDir::Files | QDir::Hidden | QDir::System);
            if (is(Ntfs)) {
                names = namesOnNtfs(part.isEmpty() ? folder : there.chopped(1), tree->path(u"image"_s));
                names.removeAll(u"s"_s);
                names.removeAll(u"t"_s);
            }
            for (const QString &name : std::as_const(names))
                found.insert(part + name, readFile(there + name));
        }
        return found;
    }

    /// So many steps of the run; -1: all of them.
    PlannedRun::State run(Disk &on, int steps = -1)
    {
        const SystemDiskView view;
        Plan plan(view);
        scene->fill(plan);
        if (plan.refused() > 0)
            qFatal("%d rows cannot be", plan.refused());
        QString error;
        const auto journal = journals->beginPlanned({}, static_cast<qint64>(plan.order().size()), &error);
        if (!journal)
            qFatal("no journal: %s", qPrintable(error));
        PlannedRun run(on, plan, journal.get());
        while (steps-- != 0 && run.next()) {
        }
        run.end();
        return run.state();
    }
    [[nodiscard]] QString newest() const { return journals->list().value(0).name; }
    /// How many lines of the newest journal are exchanges, and how many give a third name.
    [[nodiscard]] std::pair<int, int> waysOfNewest() const
    {
        QFile file(journals->filePath(newest()));
        std::pair<int, int> ways;
        if (!file.open(QIODevice::ReadOnly))
            return {-1, -1};
        BackwardEntries entries(file);
        while (const auto entry = entries.next()) {
            ways.first += entry->other ? 1 : 0;
            ways.second += entry->to.startsWith(u".orv-"_s) ? 1 : 0;
        }
        return ways;
    }

    void rows()
    {
        QTest::addColumn<QString>("rows");
        // Where exchanges can be, else how many files go by a third name.
        QTest::addColumn<int>("exchanges");
        QTest::addColumn<int>("thirdNames");
        QTest::newRow("swap") << u"a>b b>a"_s << 1 << 1;
        QTest::newRow("shift") << u"a>b b>c c>d"_s << 0 << 0;
        QTest::newRow("ring of three") << u"a>b b>c c>a"_s << 2 << 1;
        QTest::newRow("rings and lines") << u"a>b b>a c>d d>e f>g g>h h>f i>j"_s << 3 << 2;
        QTest::newRow("two folders") << u"s/a>../t/a t/a>../s/a"_s << 1 << 1;
        QTest::newRow("three folders") << u"s/a>../t/a t/a>../a a>s/a"_s << 0 << 1;
        const int ownName = is(Exfat) ? 1 : 0;
        QTest::newRow("case alone") << u"photo>Photo"_s << 0 << ownName;
        QTest::newRow("case alone of many") << u"a>A bc>Bc d.txt>D.TXT é>É"_s << 0 << 4 * ownName;
        const int ring = is(insensitive) ? 1 : 0;
        QTest::newRow("swap in other case") << u"a>B b>A"_s << 0 << ring;
        QTest::newRow("ring in other case") << u"a>B b>C c>A"_s << 0 << ring;
    }

private slots:
    void initTestCase()
    {
        kind = mountedKind();
        QVERIFY2(kind != none, "mounted.py runs this test");
    }
    void init()
    {
        tree = std::make_unique<TempTree>();
        journals = std::make_unique<JournalFolder>(tree->path(u"undo"_s));
    }
    void cleanup()
    {
        scene.reset();
        journals.reset();
        tree.reset();
        QVERIFY(QDir(folder).removeRecursively());
    }

    void comesToWhatWasPlannedAndBack_data() { rows(); }
    void comesToWhatWasPlannedAndBack()
    {
        QFETCH(const QString, rows);
        QFETCH(const int, exchanges);
        QFETCH(const int, thirdNames);
        plant(rows);
        QCOMPARE(run(disk), PlannedRun::State::Done);
        QCOMPARE(now(), after);
        const bool canExchange = is(sensitive) && exchanges > 0;
        const auto [exchanged, third] = waysOfNewest();
        QCOMPARE(exchanged, canExchange ? exchanges : 0);
        QCOMPARE(third, canExchange ? 0 : thirdNames);
        QCOMPARE(putBack(*journals, newest(), disk), QString());
        QCOMPARE(now(), before);
    }

    void isTakenBackWhereAStepFails_data() { rows(); }
    void isTakenBackWhereAStepFails()
    {
        QFETCH(const QString, rows);
        plant(rows);
        for (int at = 1;; ++at) {
            FailingDisk failing;
            failing.failsAt = at;
            const PlannedRun::State state = run(failing);
            if (state == PlannedRun::State::Done) {
                QVERIFY(at > scene->count() / 2);
                break;
            }
            QCOMPARE(state, PlannedRun::State::TakenBack);
            QCOMPARE(now(), before);
            QVERIFY(journals->list().isEmpty());
        }
    }

    void isFinishedAndPutBackFromTheJournal_data() { rows(); }
    void isFinishedAndPutBackFromTheJournal()
    {
        QFETCH(const QString, rows);
        for (const bool finish : {true, false}) {
            plant(rows);
            for (int steps = 1;; ++steps) {
                if (run(disk, steps) == PlannedRun::State::Done)
                    break;
                QVERIFY(journals->find(newest())->canFinish());
                const QString name = newest();
                if (finish) {
                    QCOMPARE(finishRun(*journals, name, disk), QString());
                    QCOMPARE(now(), after);
                }
                QCOMPARE(putBack(*journals, name, disk), QString());
                QCOMPARE(now(), before);
            }
            QVERIFY(QDir(folder).removeRecursively());
        }
    }
};

QTEST_GUILESS_MAIN(PlannedFileSystems)
#include "tst_planned_filesystems.moc"
