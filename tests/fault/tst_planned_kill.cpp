// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fault/victim.h"
#include "run/systemdisk.h"
#include "support/environment.h"
#include "support/plannedscene.h"
#include "support/temptree.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTest>

#include <chrono>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

constexpr int rowsOfALongRun = 2000;
/// Swaps, a shift, rings, one of them over folders, and a new name.
const QString rowsOfAStepped =
    u"a>b b>a c>d d>e e>f g>h h>i i>g j>k k>l l>m m>j n>s/n s/n>../t/n t/n>../n o>p"_s;

/// Rings and lines of random lengths, the rows in random order.
QString randomRows(QRandomGenerator &random)
{
    QStringList rows;
    while (rows.size() < rowsOfALongRun) {
        const auto first = rows.size();
        const int length = random.bounded(1, 8);
        const bool isRing = length > 1 && random.bounded(3) > 0;
        for (int i = 0; i < length; ++i) {
            const bool closes = isRing && i + 1 == length;
            const QString newName = closes ? u"f%1"_s.arg(first) : u"f%1"_s.arg(first + i + 1);
            const bool isFree = !isRing && i + 1 == length;
            rows.append(u"f%1>%2"_s.arg(first + i).arg(isFree ? u"new%1"_s.arg(first) : newName));
        }
    }
    std::shuffle(rows.begin(), rows.end(), random);
    return rows.join(u' ');
}

} // namespace

/// Planned runs in a process of their own, which is killed.
class TestPlannedKill final : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TempTree> tree;
    std::unique_ptr<JournalFolder> journals;
    std::unique_ptr<PlannedScene> scene;
    Disposition before;
    Disposition after;
    SystemDisk disk;
    int kills = 0;
    int inTheMiddle = 0;
    int withThirdNames = 0;
    int finished = 0;
    int putBackRuns = 0;
    int killedAgain = 0;

    void plant(const QString &rows)
    {
        tree = std::make_unique<TempTree>();
        journals = std::make_unique<JournalFolder>(tree->path(u"undo"_s));
        tree->addFolder(u"files"_s);
        tree->addFile(u"rows"_s, rows.toUtf8());
        scene = std::make_unique<PlannedScene>(tree->path(u"files"_s), rows);
        scene->plant();
        before = now();
        after = scene->after(before);
        kills = inTheMiddle = withThirdNames = finished = putBackRuns = killedAgain = 0;
    }
    [[nodiscard]] Disposition now() const { return dispositionOf(tree->path(u"files"_s)); }
    [[nodiscard]] QStringList arguments(const QString &what) const
    {
        return {what, tree->path(u"files"_s), tree->path(u"undo"_s), tree->path(u"rows"_s)};
    }
    [[nodiscard]] std::optional<JournalInfo> open() const
    {
        for (const JournalInfo &journal : journals->list()) {
            if (journal.canFinish())
                return journal;
        }
        return std::nullopt;
    }
    /// All files are there, and each name that is neither before nor behind the run is in the journal.
    [[nodiscard]] QString complaint() const
    {
        const Disposition found = now();
        QList<quint64> files = found.values();
        QList<quint64> all = before.values();
        std::sort(files.begin(), files.end());
        std::sort(all.begin(), all.end());
        if (files != all)
            return u"%1 files of %2"_s.arg(files.size()).arg(all.size());
        QSet<QString> named;
        if (const auto journal = open()) {
            QFile file(journals->filePath(journal->name));
            if (!file.open(QIODevice::ReadOnly))
                return u"no journal"_s;
            BackwardLines lines(file);
            while (const auto line = lines.next()) {
                const JournalLine read = fromJson(*line);
                if (const auto *entry = std::get_if<JournalEntry>(&read))
                    named.insert(entry->to);
            }
        }
        for (const QString &path : found.keys()) {
            if (!before.contains(path) && !after.contains(path) && !named.contains(path.section(u'/', -1)))
                return path + u" is in no journal"_s;
        }
        return {};
    }
    void noteKill()
    {
        ++kills;
        const QString wrong = complaint();
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
        const Disposition found = now();
        inTheMiddle += found != before && found != after ? 1 : 0;
        withThirdNames += hasThirdName(found) ? 1 : 0;
    }
    /// The folder comes to what was planned, or to what was before, from the journal alone.
    void recover(bool finish)
    {
        const auto journal = open();
        if (!journal) {
            // Nothing was tried yet, or all was done.
            const QList<JournalInfo> list = journals->list();
            const bool isDone = !list.isEmpty() && list.constFirst().renamed > 0 && list.constFirst().isRun();
            QCOMPARE(now(), isDone ? after : before);
            if (isDone)
                QCOMPARE(putBack(*journals, list.constFirst().name, disk), QString());
        } else if (finish) {
            QCOMPARE(finishRun(*journals, journal->name, disk), QString());
            QCOMPARE(now(), after);
            QVERIFY(!open());
            ++finished;
            QCOMPARE(putBack(*journals, journal->name, disk), QString());
        } else {
            QCOMPARE(putBack(*journals, journal->name, disk), QString());
            QVERIFY(!open());
            ++putBackRuns;
        }
        QCOMPARE(now(), before);
        // With the locks that the kill may have left.
        QVERIFY(QDir(tree->path(u"undo"_s)).removeRecursively());
    }
    /// How long it takes, in microseconds; 0 when it did not do what it was to do.
    qint64 durationOf(const QString &what, int exitCode)
    {
        QElapsedTimer timer;
        timer.start();
        Victim victim(arguments(what), false);
        victim.waitForEnd();
        return victim.exitCode == exitCode ? timer.nsecsElapsed() / 1000 : 0;
    }
    void killAfter(const QString &what, qint64 microseconds)
    {
        Victim victim(arguments(what), false);
        std::this_thread::sleep_for(std::chrono::microseconds(microseconds));
        victim.kill();
    }
    /// Kills the victim at its n-th stop; false when it came to its end before.
    bool killAtStop(const QString &what, int stop)
    {
        Victim victim(arguments(what), true);
        if (!victim.isTraced())
            qFatal("cannot trace a process of our own");
        for (int i = 0; i < stop; ++i) {
            if (!victim.step())
                return false;
        }
        victim.kill();
        return true;
    }
    void tellFigures() const
    {
        qInfo("%d kills, %d in the middle, %d with a third name; %d finished, %d put back, %d killed on the "
              "way",
              kills, inTheMiddle, withThirdNames, finished, putBackRuns, killedAgain);
    }
    static void addWays()
    {
        QTest::addColumn<QString>("way");
        QTest::newRow("exchanges") << u"planned"_s;
        QTest::newRow("third names") << u"planned-by-third-names"_s;
    }

private slots:
    void cleanup()
    {
        scene.reset();
        journals.reset();
        tree.reset();
    }

    /// ORVANTO_PLANNED_KILLS for a longer test.
    void killedAtRandomMoments_data() { addWays(); }
    void killedAtRandomMoments()
    {
        QFETCH(const QString, way);
        const int wanted = environmentNumber("ORVANTO_PLANNED_KILLS", 8);
        const quint32 seed = randomSeed();
        QRandomGenerator random(seed);
        plant(randomRows(random));
        qint64 duration = durationOf(way, 0);
        QVERIFY(duration > 0);
        QCOMPARE(now(), after);
        recover(false);
        for (int patience = 20 * wanted; inTheMiddle < wanted; --patience) {
            QVERIFY2(patience > 0, "seldom killed in the middle");
            killAfter(way, random.bounded(duration + 1));
            noteKill();
            // How busy the machine is changes meanwhile.
            duration = now() == after ? duration * 9 / 10 : duration * 21 / 20;
            const bool finish = random.bounded(2);
            // What goes on, or back, is killed, too.
            for (int more = random.bounded(3); more > 0 && open(); --more) {
                killAfter(finish ? u"finish"_s : u"undo"_s, random.bounded(duration + 1));
                ++killedAgain;
                const QString wrong = complaint();
                QVERIFY2(wrong.isEmpty(), qPrintable(u"seed %1: %2"_s.arg(seed).arg(wrong)));
            }
            recover(finish);
            if (QTest::currentTestFailed())
                return;
        }
        tellFigures();
    }

    /// Every fifth stop, from a random one; ORVANTO_JOURNAL_STRIDE=1 for all of them.
    void steppedThroughItsSystemCalls_data() { addWays(); }
    void steppedThroughItsSystemCalls()
    {
        QFETCH(const QString, way);
        plant(rowsOfAStepped);
        const int stride = environmentNumber("ORVANTO_JOURNAL_STRIDE", 5);
        int stop = 1 + QRandomGenerator::system()->bounded(stride);
        for (; killAtStop(way, stop); stop += stride) {
            noteKill();
            recover(stop / stride % 2 == 0);
            if (QTest::currentTestFailed()) {
                qInfo("stop %d", stop);
                return;
            }
        }
        tellFigures();
        recover(false);
        QVERIFY(inTheMiddle * stride > scene->count());
    }
};

QTEST_GUILESS_MAIN(TestPlannedKill)
#include "tst_planned_kill.moc"
