// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fault/victim.h"
#include "run/journalfolder.h"
#include "run/journalreader.h"
#include "run/systemdisk.h"
#include "run/undorun.h"
#include "support/environment.h"
#include "support/temptree.h"

#include <QDeadlineTimer>
#include <QHash>
#include <QRandomGenerator>
#include <QTest>

#include <chrono>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int filesOfALongRun = 20000;
constexpr int filesOfAStepped = 20;

} // namespace

class TestJournalKill final : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TempTree> tree;
    std::unique_ptr<JournalFolder> journals;
    int count = 0;
    /// Which file has which name before the run.
    QHash<QString, quint64> before;

    void plant(int files)
    {
        count = files;
        tree = std::make_unique<TempTree>();
        journals = std::make_unique<JournalFolder>(tree->path(u"undo"_s));
        tree->addFolder(u"files"_s);
        for (int i = 0; i < count; ++i)
            tree->addFile(u"files/f%1"_s.arg(i));
        before = numbers();
    }
    [[nodiscard]] QHash<QString, quint64> numbers() const
    {
        QHash<QString, quint64> numbers;
        const SystemDisk disk;
        for (const QString &name : tree->names(u"files"_s))
            numbers.insert(name, disk.identity(tree->path(u"files/"_s + name))->number);
        return numbers;
    }
    [[nodiscard]] QStringList arguments(const QString &what) const
    {
        return {what, tree->path(u"files"_s), tree->path(u"undo"_s), QString::number(count)};
    }
    /// Takes back what stands, in as many undos as it takes.
    void undoAll()
    {
        SystemDisk disk;
        for (;;) {
            const QList<JournalInfo> list = journals->list();
            const JournalInfo *newest = JournalFolder::undoable(list);
            if (!newest)
                return;
            const auto begun = UndoRun::begin(*journals, newest->name, disk, {});
            QVERIFY(begun.run);
            while (const auto step = begun.run->next())
                QVERIFY2(step->isDone(), qPrintable(step->from + u": "_s + idOf(step->result)));
            begun.run->end(false);
        }
    }
    /// What the disk holds and no journal names; nothing when all is well.
    [[nodiscard]] QString complaint() const
    {
        QSet<QString> named;
        for (const QString &name : QDir(tree->path(u"undo"_s)).entryList({u"*.jsonl"_s})) {
            QFile file(journals->filePath(name));
            if (!file.open(QIODevice::ReadOnly))
                return u"cannot read "_s + name;
            BackwardEntries entries(file);
            while (const auto entry = entries.next())
                named.insert(entry->to);
        }
        int files = 0;
        for (const QString &name : tree->names(u"files"_s)) {
            ++files;
            if (name.startsWith(u"new"_s) && !named.contains(name))
                return name + u" is on the disk and in no journal"_s;
        }
        return files == count ? QString() : u"%1 files of %2"_s.arg(files).arg(count);
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
    void expectAllBack()
    {
        undoAll();
        QCOMPARE(numbers(), before);
        QVERIFY(journals->forgetAll());
        QCOMPARE(tree->names(u"undo"_s).filter(u"jsonl"_s), QStringList());
    }

private slots:
    void cleanup()
    {
        journals.reset();
        tree.reset();
    }

    /// ORVANTO_JOURNAL_KILLS for a longer test.
    void killedAtRandomMoments()
    {
        plant(filesOfALongRun);
        const int kills = environmentNumber("ORVANTO_JOURNAL_KILLS", 6);
        const quint32 seed = randomSeed();
        QRandomGenerator random(seed);
        QList<int> renamed;
        for (int i = 0; i < kills; ++i) {
            QString what = u"run"_s;
            const auto killWhenThere = [&](const QString &name) {
                Victim victim(arguments(what), false);
                const QDeadlineTimer patience(60s);
                while (!QFileInfo::exists(tree->path(u"files/"_s + name)) && !patience.hasExpired())
                    std::this_thread::sleep_for(100us);
                victim.kill();
                QVERIFY(!patience.hasExpired());
                QVERIFY2(complaint().isEmpty(), qPrintable(u"seed %1: %2"_s.arg(seed).arg(complaint())));
            };
            const int moment = random.bounded(count);
            killWhenThere(u"new%1"_s.arg(moment));
            renamed.append(static_cast<int>(tree->names(u"files"_s).filter(u"new"_s).size()));
            what = u"undo"_s;
            // An undo, every other time: it goes the other way.
            if (i % 2 == 0)
                killWhenThere(u"f%1"_s.arg(random.bounded(moment + 1)));
            expectAllBack();
        }
        std::sort(renamed.begin(), renamed.end());
        QString figures;
        for (const int figure : renamed)
            figures += u" %1"_s.arg(figure);
        qInfo("%d kills, seed %u; files renamed until then:%s", kills, seed, qPrintable(figures));
    }

    void steppedThroughEverySystemCall()
    {
        plant(filesOfAStepped);
        int stops = 0;
        {
            Victim victim(arguments(u"run"_s), true);
            QVERIFY(victim.isTraced());
            while (victim.step()) {
                ++stops;
                QVERIFY2(complaint().isEmpty(), qPrintable(complaint()));
            }
            QCOMPARE(victim.exitCode, 0);
        }
        expectAllBack();
        QVERIFY(stops > 2 * filesOfAStepped);
        int kills = 0;
        while (killAtStop(u"run"_s, kills + 1)) {
            ++kills;
            QVERIFY2(complaint().isEmpty(), qPrintable(u"stop %1: %2"_s.arg(kills).arg(complaint())));
            expectAllBack();
        }
        expectAllBack();
        qInfo("%d stops, %d kills", stops, kills);
        QVERIFY(kills > 2 * filesOfAStepped);
    }

    /// Every fifth stop, from a random one; ORVANTO_JOURNAL_STRIDE=1 for all of them.
    void undoSteppedThroughItsSystemCalls()
    {
        plant(filesOfAStepped);
        const int stride = environmentNumber("ORVANTO_JOURNAL_STRIDE", 5);
        int stop = 1 + QRandomGenerator::system()->bounded(stride);
        int kills = 0;
        for (bool killed = true; killed; stop += stride) {
            Victim run(arguments(u"run"_s), false);
            run.waitForEnd();
            QCOMPARE(run.exitCode, 0);
            killed = killAtStop(u"undo"_s, stop);
            kills += killed ? 1 : 0;
            QVERIFY2(complaint().isEmpty(), qPrintable(u"stop %1: %2"_s.arg(stop).arg(complaint())));
            expectAllBack();
        }
        qInfo("%d kills", kills);
        QVERIFY(kills * stride > 2 * filesOfAStepped);
    }
};

QTEST_GUILESS_MAIN(TestJournalKill)
#include "tst_journal_kill.moc"
