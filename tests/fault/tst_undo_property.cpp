// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "support/environment.h"
#include "support/journalfiles.h"

#include <QDirIterator>
#include <QMap>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Killed
{
};

/// Ends a run as a kill would, before or behind a rename.
class DeadlyDisk final : public Disk
{
public:
    SystemDisk disk;
    int renamesLeft = -1;
    bool before = false;

    RenameResult rename(const FilePath &from, const QString &to) override
    {
        const bool isLast = renamesLeft-- == 0;
        if (isLast && before)
            throw Killed();
        const RenameResult result = disk.rename(from, to);
        if (isLast)
            throw Killed();
        return result;
    }
    std::optional<FileIdentity> identity(const QString &path) const override { return disk.identity(path); }
};

/// What is where: the content of each file by its path. No two are alike, so that it tells which file it is.
using Disposition = QMap<QString, QByteArray>;

/// A random tree, a random run over it, and what others do to the files afterwards.
class Adventure
{
public:
    Adventure(quint32 seed, const QString &folder)
        : random(seed)
        , root(folder)
        , journals(folder + u"/undo"_s)
    {
        for (const QString &name : {u"files"_s, u"files/a"_s, u"files/b"_s})
            QDir().mkpath(root + u'/' + name);
        for (int i = 5 + random.bounded(20); i > 0; --i)
            addFile("file " + QByteArray::number(++made));
    }

    QString name()
    {
        static const QStringList names = {u"1"_s,     u"2"_s,         u"3"_s,        u"4"_s, u"5"_s,
                                          u"x.txt"_s, u"y.txt"_s,     u"é"_s,        u"🎉"_s, u"a\nb"_s,
                                          u"q\"\\"_s, u"IMG_1.JPG"_s, u"IMG_2.JPG"_s};
        return names.at(random.bounded(static_cast<int>(names.size())));
    }
    QString folder()
    {
        static const QStringList folders = {u"files"_s, u"files/a"_s, u"files/b"_s};
        return root + u'/' + folders.at(random.bounded(3));
    }
    /// A new file where none is.
    bool addFile(const QByteArray &content)
    {
        QFile file(folder() + u'/' + name());
        return file.open(QIODevice::WriteOnly | QIODevice::NewOnly) && file.write(content) == content.size();
    }

    [[nodiscard]] Disposition disposition() const
    {
        Disposition found;
        QDirIterator entries(root + u"/files"_s, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            QFile file(entries.next());
            if (!file.open(QIODevice::ReadOnly))
                qFatal("cannot read %s", qPrintable(file.fileName()));
            found.insert(file.fileName(), file.readAll());
        }
        return found;
    }

    /// Renames random files to random names; perhaps killed on the way. Gives the renames that were done.
    QList<std::pair<QString, QString>> run()
    {
        QString error;
        auto journal = journals.begin({}, 20, {}, &error);
        journalName = JournalledTree::nameOf(*journal);
        QList<std::pair<QString, QString>> done;
        DeadlyDisk deadly;
        if (random.bounded(2)) {
            deadly.renamesLeft = random.bounded(20);
            deadly.before = random.bounded(2);
        }
        QStringList paths = disposition().keys();
        std::shuffle(paths.begin(), paths.end(), random);
        try {
            JournalledDisk journalled(deadly, *journal);
            RenameRun rename(journalled);
            for (const QString &path : paths) {
                const FilePath file = FilePath::of(path);
                const QString newName = random.bounded(10) ? name() : u"../a/"_s + name();
                inHand = {path, QDir::cleanPath(file.sibling(newName))};
                if (rename.next(file, newName).isRenamed())
                    done.append(inHand);
            }
            journal->end(random.bounded(2));
        } catch (const Killed &) {
            killed = true;
            const QString path = journals.filePath(journalName);
            const QByteArray asItWas = contentOf(path);
            journal.reset();
            QFile file(path);
            if (!file.open(QIODevice::WriteOnly) || file.write(asItWas) != asItWas.size())
                qFatal("cannot write %s", qPrintable(path));
        }
        return done;
    }

    /// What people do between a run and its undo.
    void change()
    {
        const QStringList paths = disposition().keys();
        if (paths.isEmpty())
            return;
        const QString path = paths.at(random.bounded(static_cast<int>(paths.size())));
        const QByteArray foreign = "foreign " + QByteArray::number(++made);
        switch (random.bounded(6)) {
        case 0:
            QFile::remove(path);
            break;
        case 1: {
            QFile::remove(path);
            QFile file(path);
            if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly) || file.write(foreign) < 0)
                qFatal("cannot write %s", qPrintable(path));
            break;
        }
        case 2:
        case 3:
            addFile(foreign);
            break;
        case 4:
            QFile::rename(path, folder() + u'/' + name());
            break;
        default:
            if (random.bounded(4) == 0)
                QDir().rename(root + u"/files/a"_s, root + u"/files/renamed"_s);
            break;
        }
    }

    static QByteArray contentOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QRandomGenerator random;
    QString root;
    JournalFolder journals;
    QString journalName;
    bool killed = false;
    /// The rename that was told last: a kill may have come before it was done.
    std::pair<QString, QString> inHand;
    int made = 0;
};

/// What an undo must do, told from the contents of the files alone.
class Expectation
{
public:
    explicit Expectation(Disposition now)
        : disposition(std::move(now))
    {
    }

    /// The result of taking one rename back.
    QString takeBack(const QString &from, const QString &to, const QByteArray &content)
    {
        if (disposition.value(from) == content && !content.isNull()) {
            if (disposition.contains(to))
                return u"taken"_s;
            // Its folder may have another name now.
            if (!QFileInfo(QFileInfo(to).path()).isDir())
                return u"missing"_s;
            disposition.insert(to, disposition.take(from));
            return u"renamed"_s;
        }
        if (disposition.value(to) == content && !content.isNull())
            return u"was-back"_s;
        return disposition.contains(from) ? u"other-file"_s : u"missing"_s;
    }

    Disposition disposition;
};

} // namespace

class TestUndoProperty final : public QObject
{
    Q_OBJECT

private:
    /// Until a file that is made now is born later than what was before.
    static void waitForTheClock()
    {
        const qint64 before = QDateTime::currentMSecsSinceEpoch();
        if (!QTest::qWaitFor([before] { return QDateTime::currentMSecsSinceEpoch() > before + 20; }))
            qFatal("the clock stands still");
    }

    static void adventure(quint32 seed, const QString &folder)
    {
        Adventure world(seed, folder);
        const Disposition before = world.disposition();
        QList<std::pair<QString, QString>> done = world.run();
        const Disposition after = world.disposition();
        if (world.random.bounded(4) > 0) {
            waitForTheClock();
            for (int i = world.random.bounded(6); i > 0; --i)
                world.change();
        }
        check(world, before, after, std::move(done));
    }

    /// Undoes and looks at all that moved, and at all that did not.
    static void check(Adventure &world, const Disposition &before, const Disposition &after,
                      QList<std::pair<QString, QString>> done)
    {
        // Which file each rename moved: the run's renames once more, in their order.
        Disposition moving = before;
        QList<QByteArray> moved;
        const auto move = [&](const std::pair<QString, QString> &rename) {
            moved.append(moving.value(rename.first));
            moving.insert(rename.second, moving.take(rename.first));
        };
        for (const auto &rename : done)
            move(rename);
        const QByteArray contentInHand = moving.value(world.inHand.first);
        if (world.killed && moving != after) {
            done.append(world.inHand);
            move(world.inHand);
        }
        QCOMPARE(moving, after);
        Expectation expected(world.disposition());
        SystemDisk disk;
        const auto begun = UndoRun::begin(world.journals, world.journalName, disk, {});
        if (!begun.run) {
            QCOMPARE(begun.refusal, UndoRun::Refusal::NothingToDo);
            QVERIFY(done.isEmpty());
            return;
        }
        for (bool first = true; const auto step = begun.run->next(); first = false) {
            const std::pair<QString, QString> rename = {step->to, QDir::cleanPath(step->from)};
            const bool isNext = !done.isEmpty() && done.last() == rename;
            // The one that the kill came before, or that came to nothing.
            QVERIFY(isNext || (first && world.killed && rename == world.inHand));
            const QByteArray content = isNext ? moved.takeLast() : contentInHand;
            if (isNext)
                done.removeLast();
            QCOMPARE(idOf(step->result), expected.takeBack(rename.second, rename.first, content));
        }
        QVERIFY(done.isEmpty());
        begun.run->end(false);
        QCOMPARE(world.disposition(), expected.disposition);
    }

private slots:
    /// ORVANTO_UNDO_ROUNDS for a longer test.
    void undoMovesItsFilesAndNoOthers_data()
    {
        QTest::addColumn<QString>("place");
        QTest::addColumn<int>("rounds");
        QTest::newRow("RAM disk") << u"/dev/shm"_s << environmentNumber("ORVANTO_UNDO_ROUNDS", 500);
        // Where numbers are given again at once.
        QTest::newRow("disk") << QDir::tempPath() << environmentNumber("ORVANTO_UNDO_ROUNDS", 200);
    }
    void undoMovesItsFilesAndNoOthers()
    {
        QFETCH(const QString, place);
        QFETCH(const int, rounds);
        const quint32 seed = randomSeed();
        for (int i = 0; i < rounds; ++i) {
            const QTemporaryDir folder(place + u"/orvanto-test-XXXXXX"_s);
            adventure(seed + static_cast<quint32>(i), folder.path());
            if (QTest::currentTestFailed())
                QFAIL(qPrintable(u"seed %1"_s.arg(seed + static_cast<quint32>(i))));
        }
    }
};

QTEST_GUILESS_MAIN(TestUndoProperty)
#include "tst_undo_property.moc"
