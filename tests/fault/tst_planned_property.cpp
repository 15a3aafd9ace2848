// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/finishrun.h"
#include "unit/run/modeldisk.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString root = u"/orvanto-model"_s;
const QStringList folders = {root, root + "/s"_L1, root + "/t"_L1};

struct Killed
{
};

/// Ends a run as a kill would, before or behind a step, or has a step fail.
class DeadlyDisk final : public Disk
{
public:
    enum class End { None, KillBefore, KillBehind, Fault, FaultsFromThen };

    explicit DeadlyDisk(ModelDisk &on)
        : disk(on)
    {
    }
    RenameResult rename(const FilePath &from, const QString &to) override
    {
        if (isFault())
            return RenameResult::NotPermitted;
        const RenameResult result = disk.rename(from, to);
        killBehind();
        return result;
    }
    std::optional<RenameResult> exchange(const FilePath &one, const QString &other) override
    {
        if (!disk.exchanges)
            return std::nullopt;
        if (isFault())
            return RenameResult::NotPermitted;
        const auto result = disk.exchange(one, other);
        killBehind();
        return result;
    }
    std::optional<FileIdentity> identity(const QString &path) const override { return disk.identity(path); }
    Volume volume(const QString &path) const override { return disk.volume(path); }

    End end = End::None;
    int at = -1;
    int steps = 0;

private:
    bool isFault()
    {
        ++steps;
        if (end == End::KillBefore && steps == at)
            throw Killed();
        return (end == End::Fault && steps == at) || (end == End::FaultsFromThen && steps >= at);
    }
    void killBehind() const
    {
        if (end == End::KillBehind && steps == at)
            throw Killed();
    }

    ModelDisk &disk;
};

using End = DeadlyDisk::End;

/// Which file has which name; other files than those of the run among them.
using Disposition = QMap<QString, quint64>;

Disposition dispositionOf(const ModelDisk &disk)
{
    Disposition found;
    for (const QString &folder : folders) {
        const auto &nodes = disk.folders[folder].nodes;
        for (auto node = nodes.begin(); node != nodes.end(); ++node)
            found.insert(folder + u'/' + node.key(), node->number);
    }
    return found;
}

bool hasThirdName(const Disposition &found)
{
    return std::any_of(found.keyBegin(), found.keyEnd(),
                       [](const QString &path) { return path.contains("/.orv-"_L1); });
}

struct Row
{
    FilePath file;
    QString newName;
};

/// Random files in three folders, and rows that permute their names, mostly so that all can be.
struct Scene
{
    ModelDisk disk;
    QList<Row> rows;

    explicit Scene(QRandomGenerator &random)
    {
        for (const QString &folder : folders)
            disk.addFolder(folder);
        const int folderCount = random.bounded(4) == 0 ? 3 : 1;
        QStringList names;
        for (int i = 0; i < 9; ++i)
            names.append(folders.at(random.bounded(folderCount)) + u'/' + QChar(u'a' + i));
        std::shuffle(names.begin(), names.end(), random);
        const QStringList sources = names.first(random.bounded(1, 8));
        for (const QString &path : sources)
            disk.add(path);
        // Mostly rings, else lines and free names.
        QStringList targets = random.bounded(2) ? sources : names;
        std::shuffle(targets.begin(), targets.end(), random);
        if (random.bounded(5) == 0)
            disk.add(root + u'/' + QChar(u'a' + random.bounded(12)));
        for (qsizetype i = 0; i < sources.size(); ++i) {
            const FilePath file = FilePath::of(sources.at(i));
            const FilePath target = FilePath::of(targets.at(i));
            rows.append({file, target.folder() == file.folder()
                                   ? target.name()
                                   : QDir(file.folder().toString()).relativeFilePath(target.path)});
        }
    }

    void fill(Plan &plan) const
    {
        for (const Row &row : rows)
            plan.add(row.file, row.newName);
        plan.make();
    }
};

} // namespace

/// Planned runs over a model of a disk that fail, or are killed, at each of their steps.
class PlannedProperty final : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir tree;
    JournalFolder journals{tree.path() + u"/undo"_s};
    int runs = 0;
    int kills = 0;
    int finished = 0;
    int putBack = 0;
    int killedAgain = 0;

    /// Ends the journal's file as it stands, as a kill does.
    void abandon(std::unique_ptr<Journal> &journal)
    {
        const QString path = journal->path();
        QFile file(path);
        const QByteArray asItWas = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        file.close();
        journal.reset();
        write(path, asItWas);
    }
    static void write(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(path));
    }
    static QByteArray bytesOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// The steps that were made, or tried.
    int run(const Scene &scene, ModelDisk &disk, End end, int at, PlannedRun::State *state)
    {
        Plan plan(disk);
        scene.fill(plan);
        QString error;
        auto journal = journals.beginPlanned({}, static_cast<qint64>(plan.order().size()), &error);
        DeadlyDisk deadly(disk);
        deadly.end = end;
        deadly.at = at;
        try {
            PlannedRun planned(deadly, plan, journal.get());
            while (planned.next()) {
            }
            *state = planned.state();
            planned.end();
        } catch (const Killed &) {
            *state = PlannedRun::State::GoingOn;
            abandon(journal);
        }
        return deadly.steps;
    }

    /// False when it was killed.
    bool recover(ModelDisk &disk, const QString &name, bool isFinished, int killAt, bool isBefore)
    {
        DeadlyDisk deadly(disk);
        deadly.end = isBefore ? End::KillBefore : End::KillBehind;
        deadly.at = killAt;
        const QString path = journals.filePath(name);
        if (isFinished) {
            auto begun = FinishRun::begin(journals, name, deadly, disk);
            if (!begun.run || begun.run->refused() > 0) {
                qCritical("not finished: %d",
                          begun.run ? begun.run->refused() : -static_cast<int>(begun.refusal));
                return true;
            }
            QByteArray asItWas;
            try {
                while (begun.run->next()) {
                }
            } catch (const Killed &) {
                asItWas = bytesOf(path);
            }
            begun.run.reset();
            if (!asItWas.isEmpty())
                write(path, asItWas);
            return asItWas.isEmpty();
        }
        auto begun = UndoRun::begin(journals, name, deadly, {});
        if (!begun.run) {
            qCritical("not put back: %d", static_cast<int>(begun.refusal));
            return true;
        }
        QByteArray asItWas;
        QString undo;
        try {
            while (begun.run->next()) {
            }
            begun.run->end(false);
        } catch (const Killed &) {
            undo = journals.list().constFirst().name;
            asItWas = bytesOf(journals.filePath(undo));
        }
        begun.run.reset();
        if (!undo.isEmpty())
            write(journals.filePath(undo), asItWas);
        return undo.isEmpty();
    }

    void check(const Disposition &found, const Disposition &before, const Disposition &after, bool isAfter)
    {
        QCOMPARE(found, isAfter ? after : before);
        QVERIFY(!hasThirdName(found));
    }

    /// A kill, and what people do then, until it is done.
    void recoverFromKill(ModelDisk &disk, QRandomGenerator &random, const Disposition &before,
                         const Disposition &after)
    {
        ++kills;
        QList<JournalInfo> list = journals.list();
        // Nothing was tried yet, or nothing is left to do: the journal tells which.
        const auto open =
            std::find_if(list.begin(), list.end(), [](const JournalInfo &info) { return info.canFinish(); });
        if (open == list.end()) {
            QCOMPARE(dispositionOf(disk), before);
            return;
        }
        const QString name = open->name;
        for (int patience = 0; patience < 20; ++patience) {
            const bool isFinished = random.bounded(2);
            const int killAt = random.bounded(3) == 0 ? 1 + random.bounded(4) : -1;
            if (!recover(disk, name, isFinished, killAt, random.bounded(2))) {
                ++killedAgain;
                continue;
            }
            const auto info = journals.find(name);
            check(dispositionOf(disk), before, after, isFinished);
            QVERIFY(!info || !info->canFinish());
            ++(isFinished ? finished : putBack);
            if (isFinished && random.bounded(2)) {
                // The whole run is one, whoever made which part of it.
                (void)recover(disk, name, false, -1, false);
                check(dispositionOf(disk), before, after, false);
            }
            return;
        }
        QFAIL("always killed");
    }

private slots:
    void cleanup() { (void)journals.forgetAll(); }

    /// The folder is as before, or as after, or is brought to one of both from the journal alone.
    void everyStep()
    {
        const int rounds = qEnvironmentVariableIntValue("ORVANTO_PERMUTATIONS");
        QRandomGenerator random(20261122);
        for (int round = 0; round < (rounds > 0 ? rounds : 150); ++round) {
            Scene scene(random);
            scene.disk.exchanges = random.bounded(2);
            scene.disk.keepsNumbers = random.bounded(3) > 0;
            const Disposition before = dispositionOf(scene.disk);
            Disposition after = before;
            Plan plan(scene.disk);
            scene.fill(plan);
            for (const int row : plan.order())
                after.remove(plan.file(row).path);
            for (const int row : plan.order())
                after.insert(QDir::cleanPath(plan.target(row)), before.value(plan.file(row).path));
            QCOMPARE(after.size(), before.size());
            const auto folderStates = scene.disk.folders;
            int steps = 1;
            for (const End end :
                 {End::None, End::KillBefore, End::KillBehind, End::Fault, End::FaultsFromThen}) {
                for (int at = 1; at <= steps; ++at) {
                    scene.disk.folders = folderStates;
                    ++runs;
                    PlannedRun::State state = PlannedRun::State::GoingOn;
                    const int made = run(scene, scene.disk, end, at, &state);
                    if (end == End::None) {
                        QCOMPARE(state, PlannedRun::State::Done);
                        steps = made;
                        break;
                    }
                    // A stuck run is as a killed one: its moves stand.
                    if (state == PlannedRun::State::GoingOn || state == PlannedRun::State::Stuck)
                        recoverFromKill(scene.disk, random, before, after);
                    else
                        check(dispositionOf(scene.disk), before, after, state == PlannedRun::State::Done);
                    if (QTest::currentTestFailed()) {
                        qInfo("round %d, end %d at %d, exchanges %d, numbers %d", round,
                              static_cast<int>(end), at, scene.disk.exchanges, scene.disk.keepsNumbers);
                        return;
                    }
                    (void)journals.forgetAll();
                }
            }
        }
        qInfo("%d runs, %d kills; %d finished, %d put back, %d killed once more on the way", runs, kills,
              finished, putBack, killedAgain);
        QVERIFY(kills > runs / 4 && finished > kills / 8 && putBack > kills / 8 && killedAgain > kills / 20);
    }
};

QTEST_GUILESS_MAIN(PlannedProperty)
#include "tst_planned_property.moc"
