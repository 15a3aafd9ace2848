// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fault/faultrun.h"
#include "fault/inject/systemfaults.h"
#include "fault/mountedkind.h"
#include "platform/filerename.h"
#include "run/forecast.h"
#include "run/renamerun.h"
#include "run/spelling.h"
#include "run/systemdisk.h"

#include "fileidentity.h"

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

/// What there is besides the file.
enum Obstacle { NoObstacle, File, Folder, DanglingLink };

} // namespace

/// What renames come to on the file system at $ORVANTO_MOUNT: the table of docs/behaviour.md. Run by
/// mounted.py.
class FileSystems : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<FaultRun> run;
    QString mount;
    int kind = none;
    int number = 0;
    QString folder;

    [[nodiscard]] QString path(const QString &name) const { return folder + u'/' + name; }
    void write(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        QVERIFY2(file.open(QIODevice::WriteOnly | QIODevice::NewOnly), qPrintable(file.errorString()));
        QCOMPARE(file.write(content), content.size());
    }
    [[nodiscard]] Contents contents() const
    {
        Contents result;
        QDir there(folder);
        for (const QString &name :
             there.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)) {
            QFile file(path(name));
            result.insert(name, file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file"));
        }
        return result;
    }
    /// What a listing should show: this driver shows all names in lower case.
    [[nodiscard]] Contents shown(const Contents &expected) const
    {
        if (!is(Ntfs))
            return expected;
        Contents result;
        for (const auto &[name, content] : expected.asKeyValueRange())
            result.insert(name.toLower(), content);
        return result;
    }
    /// The names as they are on the disk itself.
    [[nodiscard]] QStringList namesOnDisk() const
    {
        return is(Ntfs) ? namesOnNtfs(folder, run->tree.path(u"image"_s)) : contents().keys();
    }
    [[nodiscard]] bool is(int kinds) const { return (kind & kinds) != 0; }
    void makeFolder()
    {
        folder = mount + u"/test%1"_s.arg(++number);
        QVERIFY(QDir().mkdir(folder));
    }

private slots:
    void initTestCase()
    {
        mount = qEnvironmentVariable("ORVANTO_MOUNT");
        kind = mountedKind();
        QVERIFY2(kind != none, "mounted.py runs this test");
        QVERIFY(QDir(mount).exists());
    }
    void init()
    {
        run = std::make_unique<FaultRun>();
        makeFolder();
    }
    void cleanup() { run.reset(); }

    void renames_data()
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<int>("obstacle");
        QTest::addColumn<QString>("other");
        QTest::addColumn<int>("succeeds"); // where
        QTest::addColumn<int>("unknown");  // where the outcome was never seen
        QTest::addColumn<RenameResult>("refusal");
        auto refusal = RenameResult::TargetExists;
        const auto row = [&refusal](const char *name, const QString &from, const QString &to, int succeeds,
                                    Obstacle obstacle = NoObstacle, const QString &other = {},
                                    int unknown = none) {
            QTest::newRow(name) << from << to << int{obstacle} << other << succeeds << unknown << refusal;
        };
        row("a free name", u"a.txt"_s, u"b.txt"_s, all);
        row("its own name", u"a.txt"_s, u"a.txt"_s, none);
        row("a file's name", u"a.txt"_s, u"b.txt"_s, none, File, u"b.txt"_s);
        row("a folder's name", u"a.txt"_s, u"b.txt"_s, none, Folder, u"b.txt"_s);
        row("a dangling link's name", u"a.txt"_s, u"b.txt"_s, none, DanglingLink, u"b.txt"_s);
        row("a file's name in other case", u"a.txt"_s, u"B.TXT"_s, sensitive, File, u"b.txt"_s);
        row("its own name in other case", u"a.txt"_s, u"A.TXT"_s, all & ~Exfat);
        row("its own name in other case, not ASCII", u"é.txt"_s, u"É.txt"_s, all & ~Exfat);
        row("its own name decomposed", u"\u00e9.txt"_s, u"e\u0301.txt"_s, all & ~Casefold);
        row("its own name composed", u"e\u0301.txt"_s, u"\u00e9.txt"_s, all & ~Casefold);
        row("a file's name decomposed", u"a.txt"_s, u"e\u0301.txt"_s, all & ~Casefold, File, u"\u00e9.txt"_s);
        row("sharp s as two letters", u"ß.txt"_s, u"SS.txt"_s, all & ~Casefold);
        refusal = RenameResult::BadName;
        for (const QString &refused :
             {u"a:b"_s, u"a?"_s, u"a*"_s, u"<a>"_s, u"a|b"_s, u"a\"b"_s, u"a\\b"_s, u"a\nb"_s, u"a\x01"_s})
            row(qPrintable("a name with "_L1 + QString(refused).remove(u'a').toHtmlEscaped().trimmed()),
                u"a.txt"_s, refused, Ext4 | Tmpfs | Casefold);
        row("a blank at the end", u"a.txt"_s, u"b "_s, all & ~Ntfs, NoObstacle, {}, Vfat);
        row("a dot at the end", u"a.txt"_s, u"b."_s, all & ~Ntfs, NoObstacle, {}, Vfat);
        row("a device of Windows", u"a.txt"_s, u"CON"_s, all & ~Ntfs, NoObstacle, {}, Vfat);
        refusal = RenameResult::TooLong;
        row("255 letters", u"a.txt"_s, u"x"_s.repeated(255), all);
        row("256 letters", u"a.txt"_s, u"x"_s.repeated(256), none);
        row("200 letters of two bytes", u"a.txt"_s, u"é"_s.repeated(200), Exfat | Vfat);
        row("beyond the first plane", u"a.txt"_s, u"😀.txt"_s, all, NoObstacle, {}, Vfat);
        refusal = RenameResult::BadName;
        row("half a character", u"a.txt"_s, u"\xd83d.txt"_s, none);
        refusal = RenameResult::Other;
        row("a folder that is not there", u"a.txt"_s, u"nowhere/a.txt"_s, none);
    }
    void renames()
    {
        QFETCH(QString, from);
        QFETCH(QString, to);
        QFETCH(int, obstacle);
        QFETCH(QString, other);
        QFETCH(int, succeeds);
        QFETCH(int, unknown);
        QFETCH(RenameResult, refusal);
        write(from, "content");
        if (obstacle == File)
            write(other, "in the way");
        else if (obstacle == Folder)
            QVERIFY(QDir().mkdir(path(other)));
        else if (obstacle == DanglingLink && !QFile::link(u"nowhere"_s, path(other)))
            QVERIFY2(is(Exfat | Vfat), "links are known here");
        const Contents before = contents();
        if (obstacle == DanglingLink && is(Exfat | Vfat))
            return; // no links, nothing in the way
        QVERIFY(before.contains(from));
        const RenameResult result = renameFile(path(from), path(to));
        const bool renamed = result == RenameResult::Done;
        if (is(unknown)) {
            // Whatever the answer, and by whatever name, the file is there.
            QCOMPARE(contents().values(), before.values());
            return;
        }
        QCOMPARE(result, is(succeeds) ? RenameResult::Done : refusal);
        Contents expected = before;
        if (renamed)
            expected.insert(to, expected.take(from));
        QCOMPARE(contents(), shown(expected));
    }

    // What the forecast says of each row of the table is what the run then comes to.
    void areForetold_data() { renames_data(); }
    void areForetold()
    {
        QFETCH(QString, from);
        QFETCH(QString, to);
        QFETCH(int, obstacle);
        QFETCH(QString, other);
        write(from, "content");
        if (obstacle == File)
            write(other, "in the way");
        else if (obstacle == Folder)
            QVERIFY(QDir().mkdir(path(other)));
        else if (obstacle == DanglingLink && !QFile::link(u"nowhere"_s, path(other)))
            return; // no links, nothing in the way
        const Contents before = contents();
        const FilePath file = FilePath::of(path(from));
        const SystemDiskView view;
        Forecast forecast(view);
        forecast.add(file);
        const Outcome foretold = forecast.next(file, to);
        QCOMPARE(contents(), before);
        SystemDisk disk;
        RenameRun rename(disk);
        const Outcome done = rename.next(file, to);
        if (foretold.reason == Fate::Unknown) {
            // Only where nobody says which names there can be.
            QVERIFY(!is(sensitive | Casefold));
            QVERIFY(hasForbiddenCharacter(to) || endsInDotOrBlank(to) || namesDevice(to));
            return;
        }
        QCOMPARE(idOf(foretold.fate), idOf(done.fate));
        QCOMPARE(idOf(foretold.reason), idOf(done.reason));
        QCOMPARE(foretold.path, done.path);
    }

    // Where QFile::rename does what the program's rename does, and where not.
    void qfileDoesTheSame_data() { renames_data(); }
    void qfileDoesTheSame()
    {
        QFETCH(QString, from);
        QFETCH(QString, to);
        QFETCH(int, obstacle);
        QFETCH(QString, other);
        QFETCH(int, succeeds);
        QFETCH(int, unknown);
        if (is(unknown) || obstacle == DanglingLink)
            return;
        write(from, "content");
        if (obstacle == File)
            write(other, "in the way");
        else if (obstacle == Folder)
            QVERIFY(QDir().mkdir(path(other)));
        const bool isHalf = !to.isValidUtf16();
        const bool renamed = QFile::rename(path(from), path(to));
        QCOMPARE(renamed, isHalf || is(succeeds));
        if (isHalf)
            QCOMPARE(contents().firstKey(), u"\ufffd.txt"_s);
    }

    void aRunOverAllOfIt()
    {
        const QStringList names = {u"a.txt"_s, u"b.txt"_s, u"é.txt"_s, u"UP.TXT"_s, u"日.txt"_s};
        QStringList paths;
        for (const QString &name : names) {
            write(name, name.toUtf8());
            paths.append(path(name));
        }
        run->window.drop(paths);
        run->window.addReplace(u"^(.)"_s, u"\\1:"_s, true);
        run->run();
        if (is(Ntfs | Exfat | Vfat)) {
            VERIFY_RUN(*run, 5, 0, names);
            QCOMPARE(run->window.rowPaths(), paths);
        } else {
            VERIFY_RUN(*run, 5, 5, {});
        }
        QCOMPARE(contents().size(), 5);
        for (const auto &[name, content] : contents().asKeyValueRange()) {
            const QString first = QString::fromUtf8(content);
            QCOMPARE(QString(name).remove(u':'), is(Ntfs) ? first.toLower() : first);
        }
    }

    void aRunThatChangesOnlyTheCase()
    {
        QStringList names;
        QStringList paths;
        for (int i = 0; i < 20; ++i) {
            names.append(u"photo%1.jpg"_s.arg(i));
            write(names.constLast(), names.constLast().toLatin1());
            paths.append(path(names.constLast()));
        }
        run->window.drop(paths);
        run->window.addReplace(u"photo"_s, u"Photo"_s);
        run->run();
        VERIFY_RUN(*run, 20, is(Exfat) ? 0 : 20, is(Exfat) ? names : QStringList());
        QStringList expected = names;
        if (!is(Exfat))
            expected.replaceInStrings(u"photo"_s, u"Photo"_s);
        expected.sort();
        QCOMPARE(namesOnDisk(), expected);
        for (const QString &name : std::as_const(expected)) {
            QFile file(path(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QCOMPARE(file.readAll(), name.toLower().toLatin1());
        }
    }

    // A link that leads somewhere is no obstacle to itself.
    void aLinkThatChangesOnlyTheCase()
    {
        write(u"target"_s, "content");
        if (!QFile::link(path(u"target"_s), path(u"link"_s))) {
            QVERIFY2(is(Exfat | Vfat), "links are known here");
            return;
        }
        QCOMPARE(renameFile(path(u"link"_s), path(u"LINK"_s)), RenameResult::Done);
        QCOMPARE(namesOnDisk(), (QStringList{u"LINK"_s, u"target"_s}));
        QVERIFY(QFileInfo(path(u"LINK"_s)).isSymLink());
    }

    // Such a change goes by a third name here. When the second step fails, the first is undone.
    void changeOfCaseThatFailsHalfWay()
    {
        if (!is(Ntfs))
            return; // the others take one step, or refuse
        write(u"photo.jpg"_s, "content");
        run->window.drop({path(u"photo.jpg"_s)});
        run->window.addReplace(u"photo"_s, u"Photo"_s);
        SystemFaults faults;
        faults.add(
            {.call = SystemCall::Link, .part = "/photo.jpg", .error = EACCES, .skipped = 1, .times = 1});
        run->run();
        QCOMPARE(faults.hits(), 1);
        VERIFY_RUN(*run, 1, 0, {u"photo.jpg"_s});
        QCOMPARE(contents(), (Contents{{u"photo.jpg"_s, "content"}}));
    }
    // When that fails, too, the file keeps the third name: its own, and six letters.
    void changeOfCaseThatCannotEvenBeUndone()
    {
        if (!is(Ntfs))
            return; // as above
        write(u"photo.jpg"_s, "content");
        run->window.drop({path(u"photo.jpg"_s)});
        run->window.addReplace(u"photo"_s, u"Photo"_s);
        SystemFaults faults;
        faults.add({.call = SystemCall::Link, .part = "/photo.jpg", .error = EACCES, .skipped = 1});
        run->run();
        QCOMPARE(faults.hits(), 2);
        VERIFY_RUN(*run, 1, 0, {u"photo.jpg"_s});
        QCOMPARE(contents().values(), QByteArrayList{"content"});
        QVERIFY(contents().firstKey().startsWith(u"photo.jpg."_s));
    }

    // Which way the file goes.
    void systemCallsOfOneRename()
    {
        write(u"a.txt"_s, "content");
        SystemFaults faults;
        faults.add({.call = SystemCall::Link, .part = "/a.txt"});
        const auto before = identityOf(path(u"a.txt"_s));
        QCOMPARE(renameFile(path(u"a.txt"_s), path(u"b.txt"_s)), RenameResult::Done);
        QCOMPARE(faults.hits(), is(Ntfs | Exfat) ? 1 : 0);
        faults.clear();
        faults.add({.call = SystemCall::Rename, .part = "/b.txt"});
        const int soFar = faults.hits();
        QCOMPARE(renameFile(path(u"b.txt"_s), path(u"c.txt"_s)), RenameResult::Done);
        QCOMPARE(faults.hits() - soFar, is(Exfat) ? 1 : 0);
        if (!is(Exfat))
            QCOMPARE(identityOf(path(u"c.txt"_s)).file, before.file);
    }
};

QTEST_MAIN(FileSystems)
#include "tst_filesystems.moc"
