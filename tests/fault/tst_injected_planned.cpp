// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fault/inject/systemfaults.h"
#include "support/journalfiles.h"
#include "support/plannedscene.h"

#include <QTest>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

struct NamedError
{
    const char *name;
    int number;
};

constexpr NamedError errors[] = {
    {"EACCES", EACCES}, {"EPERM", EPERM},   {"EROFS", EROFS},   {"ENOSPC", ENOSPC},
    {"EIO", EIO},       {"EEXIST", EEXIST}, {"ENOENT", ENOENT}, {"ENAMETOOLONG", ENAMETOOLONG},
    {"EXDEV", EXDEV},   {"EINVAL", EINVAL}, {"ENOSYS", ENOSYS}, {"EOPNOTSUPP", EOPNOTSUPP},
    {"EINTR", EINTR},   {"EDQUOT", EDQUOT}, {"EBUSY", EBUSY},   {"ESTALE", ESTALE},
    {"ENOMEM", ENOMEM}, {"ELOOP", ELOOP},   {"EMLINK", EMLINK}, {"ETIMEDOUT", ETIMEDOUT}};

/// By these the file system says that it has no such step.
bool meansNoExchange(int error)
{
    return error == EINVAL || error == ENOSYS || error == EOPNOTSUPP;
}

/// A swap, a shift, a ring of three, a ring over two folders, a new name; lines come first.
const QStringList scenes = {u"a>b b>a"_s, u"a>b b>c c>d"_s, u"a>b b>c c>a"_s, u"a>s/a s/a>../t/a t/a>../a"_s,
                            u"p>q a>b b>a x>y y>z z>x"_s};

/// Steps of a run, some of which fail in the system: whatever way a file is moved by.
class SteppedDisk final : public Disk
{
public:
    enum class Which { None, One, AllFromThen, DoneAllTheSame };

    SteppedDisk(SystemFaults &ofSystem, bool withExchanges)
        : faults(ofSystem)
        , exchanges(withExchanges)
    {
    }
    RenameResult rename(const FilePath &from, const QString &to) override
    {
        const Step step(*this);
        return disk.rename(from, to);
    }
    std::optional<RenameResult> exchange(const FilePath &one, const QString &other) override
    {
        const Step step(*this);
        const auto result = disk.exchange(one, other);
        // Another way is looked for: that one was no step.
        if (!result && !exchanges)
            --steps;
        return result;
    }
    std::optional<FileIdentity> identity(const QString &path) const override { return disk.identity(path); }

    Which which = Which::None;
    /// Of the steps, from 1; a second one that is done, and yet reported as failed.
    int at = 0;
    int alsoDoneAt = 0;
    int error = 0;
    int steps = 0;

private:
    class Step
    {
    public:
        explicit Step(SteppedDisk &ofDisk)
            : disk(ofDisk)
        {
            disk.setFaults(++disk.steps);
        }
        ~Step() { disk.faults.clear(); }
        Q_DISABLE_COPY_MOVE(Step)

    private:
        SteppedDisk &disk;
    };

    void setFaults(int step)
    {
        const bool isDone = step == alsoDoneAt || (which == Which::DoneAllTheSame && step == at);
        if (!exchanges)
            faults.forgetExchange();
        if (isDone) {
            for (const SystemCall call : {SystemCall::Exchange, SystemCall::RenameNoReplace})
                faults.add({.call = call, .part = "/", .error = error, .times = 1, .done = true});
        } else if ((which == Which::One && step == at) || (which == Which::AllFromThen && step >= at)) {
            faults.refuseMoving("/", error);
        }
    }

    SystemFaults &faults;
    bool exchanges;
    SystemDisk disk;
};

using Which = SteppedDisk::Which;
using State = PlannedRun::State;

} // namespace

/// Planned runs of which a step fails in the system: every error at every step.
class TestInjectedPlanned final : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<JournalledTree> files;
    std::unique_ptr<PlannedScene> scene;
    Disposition before;
    Disposition after;
    QList<PlannedRun::Standing> standing;
    QList<QString> rowsBefore;
    int runs = 0;

    void plant(const QString &text)
    {
        files = std::make_unique<JournalledTree>();
        files->tree.addFolder(u"f/s"_s);
        files->tree.addFolder(u"f/t"_s);
        scene = std::make_unique<PlannedScene>(files->tree.path(u"f"_s), text);
        scene->plant();
        before = now();
        after = scene->after(before);
    }
    [[nodiscard]] Disposition now() const { return dispositionOf(files->tree.path(u"f"_s)); }

    State run(SteppedDisk &disk)
    {
        ++runs;
        const SystemDiskView view;
        Plan plan(view);
        scene->fill(plan);
        rowsBefore.clear();
        for (int row = 0; row < plan.count(); ++row)
            rowsBefore.append(plan.file(row).path);
        QString error;
        const auto journal = files->journals.beginPlanned({}, scene->count(), &error);
        PlannedRun run(disk, plan, journal.get());
        while (run.next()) {
        }
        run.end();
        standing = run.standing();
        return run.state();
    }
    /// How many steps it takes.
    int stepsOf(bool exchanges)
    {
        SystemFaults faults;
        SteppedDisk disk(faults, exchanges);
        const State state = run(disk);
        const QList<JournalInfo> list = files->journals.list();
        const QString wrong = putBack(files->journals, list.constFirst().name, files->disk);
        (void)files->journals.forgetAll();
        return state == State::Done && wrong.isEmpty() && now() == before ? disk.steps : -1;
    }
    /// Each row's file is where it is told to be, and no other has moved.
    [[nodiscard]] bool isAsTold() const
    {
        const QString root = files->tree.path(u"f/"_s);
        Disposition told = before;
        for (const PlannedRun::Standing &row : standing)
            told.remove(rowsBefore.at(row.row).sliced(root.size()));
        for (const PlannedRun::Standing &row : standing)
            told.insert(QDir::cleanPath(row.path).sliced(root.size()),
                        before.value(rowsBefore.at(row.row).sliced(root.size())));
        return told == now();
    }
    void expectTakenBack()
    {
        QCOMPARE(now(), before);
        QVERIFY(standing.isEmpty());
        QVERIFY(files->journals.list().isEmpty());
    }
    /// A stuck run is told whole, and can be finished and put back as a killed one.
    void expectStuck(bool finish)
    {
        QVERIFY(!standing.isEmpty());
        QVERIFY(isAsTold());
        const QList<JournalInfo> list = files->journals.list();
        QCOMPARE(list.size(), 1);
        QVERIFY(list.constFirst().canFinish());
        const QString name = list.constFirst().name;
        const QString wrong = finish ? finishRun(files->journals, name, files->disk)
                                     : putBack(files->journals, name, files->disk);
        QCOMPARE(wrong, QString());
        QCOMPARE(now(), finish ? after : before);
        QVERIFY(!files->journals.find(name)->isOpen);
        if (finish) {
            QCOMPARE(putBack(files->journals, name, files->disk), QString());
            QCOMPARE(now(), before);
        }
        QVERIFY(files->journals.forgetAll());
    }
    void expectDone()
    {
        QCOMPARE(now(), after);
        const QList<JournalInfo> list = files->journals.list();
        QCOMPARE(list.size(), 1);
        QCOMPARE(putBack(files->journals, list.constFirst().name, files->disk), QString());
        QCOMPARE(now(), before);
        QVERIFY(files->journals.forgetAll());
    }
    template <typename Check>
    void atEveryStep(Which which, int error, bool exchanges, const Check &check)
    {
        for (const QString &text : scenes) {
            plant(text);
            const int steps = stepsOf(exchanges);
            QVERIFY(steps >= 1);
            for (int at = 1; at <= steps; ++at) {
                SystemFaults faults;
                SteppedDisk disk(faults, exchanges);
                disk.which = which;
                disk.at = at;
                disk.error = error;
                const State state = run(disk);
                QVERIFY(faults.hits() > 0);
                faults.clear();
                check(state, at);
                QVERIFY(!hasThirdName(now()));
                if (QTest::currentTestFailed()) {
                    qInfo("%s, step %d of %d", qPrintable(text), at, steps);
                    return;
                }
            }
        }
    }

    void everyError_data()
    {
        QTest::addColumn<int>("error");
        QTest::addColumn<bool>("exchanges");
        for (const NamedError &error : errors) {
            QTest::addRow("%s", error.name) << error.number << true;
            QTest::addRow("%s, by third names", error.name) << error.number << false;
        }
    }

private slots:
    void cleanup()
    {
        scene.reset();
        files.reset();
    }
    void cleanupTestCase() { qInfo("%d runs", runs); }

    void oneStepFails_data() { everyError_data(); }
    void oneStepFails()
    {
        QFETCH(const int, error);
        QFETCH(const bool, exchanges);
        int takenBack = 0;
        int mended = 0;
        atEveryStep(Which::One, error, exchanges, [&](State state, int) {
            // A ring that has no exchange goes by a third name, and for a name that is taken there is
            // another.
            const bool canBeMended = (exchanges && meansNoExchange(error)) || error == EEXIST;
            if (state == State::Done && canBeMended) {
                ++mended;
                expectDone();
                return;
            }
            QCOMPARE(state, State::TakenBack);
            expectTakenBack();
            ++takenBack;
        });
        QVERIFY(takenBack > 5);
        QCOMPARE(mended > 0, (exchanges && meansNoExchange(error)) || error == EEXIST);
    }

    void allStepsFailFromThen_data() { everyError_data(); }
    void allStepsFailFromThen()
    {
        QFETCH(const int, error);
        QFETCH(const bool, exchanges);
        int stuck = 0;
        atEveryStep(Which::AllFromThen, error, exchanges, [&](State state, int at) {
            QCOMPARE(state, at == 1 ? State::TakenBack : State::Stuck);
            if (at == 1) {
                expectTakenBack();
                return;
            }
            expectStuck(at % 2 == 0);
            ++stuck;
        });
        QVERIFY(stuck > 4);
    }

    // As servers do it whose answer is lost.
    void doneAndYetReportedAsFailed_data()
    {
        QTest::addColumn<int>("error");
        QTest::addColumn<bool>("exchanges");
        for (const bool exchanges : {true, false}) {
            const char *way = exchanges ? "" : ", by third names";
            QTest::addRow("EIO%s", way) << EIO << exchanges;
            QTest::addRow("EINTR%s", way) << EINTR << exchanges;
            QTest::addRow("ESTALE%s", way) << ESTALE << exchanges;
            QTest::addRow("ETIMEDOUT%s", way) << ETIMEDOUT << exchanges;
        }
    }
    void doneAndYetReportedAsFailed()
    {
        QFETCH(const int, error);
        QFETCH(const bool, exchanges);
        atEveryStep(Which::DoneAllTheSame, error, exchanges, [&](State state, int) {
            QCOMPARE(state, State::Done);
            expectDone();
        });
    }

    // The same of a step that is taken back.
    void takenBackAndYetReportedAsFailed_data() { doneAndYetReportedAsFailed_data(); }
    void takenBackAndYetReportedAsFailed()
    {
        QFETCH(const int, error);
        QFETCH(const bool, exchanges);
        for (const QString &text : scenes) {
            plant(text);
            const int steps = stepsOf(exchanges);
            for (int at = 2; at <= steps; ++at) {
                for (int back = at + 1; back < 2 * at; ++back) {
                    SystemFaults faults;
                    SteppedDisk disk(faults, exchanges);
                    disk.which = Which::One;
                    disk.at = at;
                    disk.alsoDoneAt = back;
                    disk.error = error;
                    QCOMPARE(run(disk), State::TakenBack);
                    faults.clear();
                    expectTakenBack();
                }
            }
        }
    }

    void whatAnErrorOfAnExchangeMeans_data()
    {
        QTest::addColumn<int>("error");
        QTest::addColumn<std::optional<RenameResult>>("result");
        using Result = std::optional<RenameResult>;
        for (const NamedError &error : errors) {
            Result result = RenameResult::Other;
            if (meansNoExchange(error.number))
                result = std::nullopt;
            else if (error.number == EACCES || error.number == EPERM || error.number == EROFS)
                result = RenameResult::NotPermitted;
            else if (error.number == ENAMETOOLONG)
                result = RenameResult::TooLong;
            else if (error.number == EEXIST)
                result = RenameResult::TargetExists;
            else if (error.number == ENOENT)
                result = RenameResult::BadName;
            QTest::newRow(error.name) << error.number << result;
        }
        QTest::newRow("EILSEQ") << EILSEQ << Result(RenameResult::BadName);
    }
    void whatAnErrorOfAnExchangeMeans()
    {
        QFETCH(const int, error);
        QFETCH(const std::optional<RenameResult>, result);
        plant(u"a>b b>a"_s);
        SystemFaults faults;
        faults.add({.call = SystemCall::Exchange, .part = "/a", .error = error});
        FileRenamer renamer;
        QCOMPARE(renamer.exchange(scene->pathOf(u"a"_s), scene->pathOf(u"b"_s)), result);
        QCOMPARE(faults.hits(), 1);
        QCOMPARE(now(), before);
        // Whatever the error: what is not there counts first.
        faults.add({.call = SystemCall::Exchange, .part = "/c", .error = error});
        const std::optional<RenameResult> missing =
            meansNoExchange(error) ? std::nullopt : std::optional(RenameResult::SourceMissing);
        QCOMPARE(renamer.exchange(scene->pathOf(u"a"_s), scene->pathOf(u"c"_s)), missing);
        QCOMPARE(renamer.exchange(scene->pathOf(u"c"_s), scene->pathOf(u"a"_s)), missing);
    }
};

QTEST_GUILESS_MAIN(TestInjectedPlanned)
#include "tst_injected_planned.moc"
