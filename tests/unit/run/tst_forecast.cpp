// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/forecast.h"
#include "run/renamerun.h"
#include "run/systemdisk.h"
#include "support/temptree.h"
#include "unit/run/modeldisk.h"

#include "namesofthesystem.h"
#include "withoutprivileges.h"

#include <QRegularExpression>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// A row of the list: its path and its new name.
struct Row
{
    QString path;
    QString newName;
};

/// "taken-by-row 2": the id, for a separator why, and whose name it is.
QString told(const Outcome &outcome)
{
    QString text = idOf(outcome.fate);
    if (outcome.fate == Fate::Separator)
        text += u' ' + idOf(outcome.reason);
    return outcome.row < 0 ? text : text + u' ' + QString::number(outcome.row);
}

QStringList foretold(const DiskView &view, const QList<Row> &rows)
{
    Forecast forecast(view);
    for (const Row &row : rows)
        forecast.add(FilePath::of(row.path));
    QStringList outcomes;
    for (const Row &row : rows)
        outcomes.append(told(forecast.next(FilePath::of(row.path), row.newName)));
    return outcomes;
}

/// What comes of a run; it knows nothing of rows that are in each other's way.
QStringList done(Disk &disk, const QList<Row> &rows)
{
    RenameRun run(disk);
    QStringList outcomes;
    for (const Row &row : rows)
        outcomes.append(told(run.next(FilePath::of(row.path), row.newName)));
    return outcomes;
}

/// The same in the run's words.
QStringList withoutRows(QStringList outcomes)
{
    outcomes.replaceInStrings(QRegularExpression(u"(taken-by-row|leaves-later) \\d+"_s), u"taken"_s);
    return outcomes;
}

/// "a>b c>d": rows of a folder.
QList<Row> rowsOf(const QString &folder, const QString &text)
{
    QList<Row> rows;
    for (const QString &row : text.split(u' ', Qt::SkipEmptyParts))
        rows.append({folder + u'/' + row.section(u'>', 0, 0), row.section(u'>', 1)});
    return rows;
}

} // namespace

class TestForecast final : public QObject
{
    Q_OBJECT

private slots:
    // Names of the folder: "a" a file, "a/" a folder, "a@" a link that leads nowhere.
    void namedCases_data()
    {
        QTest::addColumn<QString>("names");
        QTest::addColumn<QString>("rows");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *name, const QString &names, const QString &rows,
                            const QString &expected) {
            QTest::newRow(name) << names << rows << expected.split(", "_L1);
        };
        const QString longest(255, u'x');
        row("free", u"a"_s, u"a>b"_s, u"renamed"_s);
        row("unchanged", u"a"_s, u"a>a"_s, u"unchanged"_s);
        row("swap", u"a b"_s, u"a>b b>a"_s, u"leaves-later 1, taken-by-row 0"_s);
        row("shift up", u"1 2 3"_s, u"1>2 2>3 3>4"_s, u"leaves-later 1, leaves-later 2, renamed"_s);
        row("shift up, last row first", u"1 2 3"_s, u"3>4 2>3 1>2"_s, u"renamed, renamed, renamed"_s);
        row("shift down", u"2 3 4"_s, u"2>1 3>2 4>3"_s, u"renamed, renamed, renamed"_s);
        row("shift down onto a file", u"1 2 3"_s, u"2>1 3>2"_s, u"taken, taken-by-row 0"_s);
        row("case only", u"a"_s, u"a>A"_s, u"renamed"_s);
        row("two rows, one name", u"a b c"_s, u"a>x b>x c>x"_s, u"renamed, taken-by-row 0, taken-by-row 0"_s);
        row("a later row's name, which stays", u"a b"_s, u"a>b b>b"_s, u"leaves-later 1, unchanged"_s);
        row("an earlier row's name, which stayed", u"a b"_s, u"b>b a>b"_s, u"unchanged, taken-by-row 0"_s);
        row("the name that an earlier row left", u"a b"_s, u"b>c a>b"_s, u"renamed, renamed"_s);
        row("outside the list", u"a b"_s, u"a>b"_s, u"taken"_s);
        row("a folder in the way", u"a b/"_s, u"a>b"_s, u"taken"_s);
        row("a dangling link in the way", u"a b@"_s, u"a>b"_s, u"taken"_s);
        row("a dangling link", u"a@"_s, u"a>b"_s, u"renamed"_s);
        row("missing", u"b"_s, u"a>c a>b a>a"_s, u"missing, missing, missing"_s);
        row("empty", u"a"_s, u"a> a>. a>.."_s, u"empty, empty, empty"_s);
        row("three dots", u"a"_s, u"a>..."_s, areDotsDropped ? u"not-allowed"_s : u"renamed"_s);
        row("half a character", u"a"_s, u"a>x"_s + QChar(0xd83d), u"no-text"_s);
        row("a null character", u"a"_s, u"a>x"_s + QChar(0), u"not-allowed"_s);
        row("full length", u"a"_s, u"a>"_s + longest, u"renamed"_s);
        row("one more", u"a"_s, u"a>"_s + longest + u'x', u"too-long"_s);
        row("full length in bytes", u"a"_s, u"a>"_s + QString(85, u'日'), u"renamed"_s);
        row("one more in bytes", u"a"_s, u"a>"_s + QString(85, u'日') + u'x',
            areBytesCounted ? u"too-long"_s : u"renamed"_s);
        row("NFC and NFD", u"\u00e9 b"_s, u"b>e\u0301"_s, u"renamed"_s);
        row("NFC to NFD", u"\u00e9"_s, u"\u00e9>e\u0301"_s, u"renamed"_s);
        row("a file twice", u"a"_s, u"a>b a>c"_s, u"renamed, missing"_s);
        row("a file twice, unchanged first", u"a"_s, u"a>a a>c"_s, u"unchanged, renamed"_s);
        row("a file twice, its name taken since", u"a b"_s, u"a>c b>a a>d"_s, u"renamed, renamed, renamed"_s);
        row("into a folder", u"a sub/"_s, u"a>sub/a"_s, u"separator renamed"_s);
        row("into a folder, twice", u"a b sub/"_s, u"a>sub/x b>sub/x"_s,
            u"separator renamed, separator taken-by-row 0"_s);
        row("into the place of one that left", u"a b sub/"_s, u"a>sub/x b>a"_s,
            u"separator renamed, renamed"_s);
        row("no such folder", u"a"_s, u"a>sub/a"_s, u"separator no-folder"_s);
        row("a file is no folder", u"a b"_s, u"a>b/a"_s, u"separator no-folder"_s);
        row("nothing behind the separator", u"a sub/"_s, u"a>sub/ a>sub/. a>sub/.."_s,
            u"separator empty, separator empty, separator empty"_s);
        row("here by a detour", u"a sub/"_s, u"a>sub/../b"_s, u"separator renamed"_s);
        row("here by a detour, taken", u"a b sub/"_s, u"a>sub/../b b>c"_s,
            u"separator leaves-later 1, renamed"_s);
        row("itself by a detour", u"a sub/"_s, u"a>sub/../a"_s, u"separator taken"_s);
        row("this folder", u"a"_s, u"a>./b"_s, u"separator renamed"_s);
        row("too long elsewhere", u"a sub/"_s, u"a>sub/"_s + longest + u'x', u"separator too-long"_s);
        row("half a character elsewhere", u"a sub/"_s, u"a>sub/x"_s + QChar(0xd83d), u"no-text"_s);
        row("a folder moves", u"sub/ b"_s, u"sub>new b>a"_s, u"renamed, renamed"_s);
        row("a folder into itself", u"sub/"_s, u"sub>sub/sub"_s, u"separator not-allowed"_s);
    }

    void namedCases()
    {
        QFETCH(QString, names);
        QFETCH(QString, rows);
        QFETCH(QStringList, expected);
        const TestFolder folder;
        ModelDisk model;
        model.addFolder(u"/"_s);
        model.addFolderLikeTheSystems(u"/dir"_s);
        for (const QString &entry : names.split(u' ')) {
            const QString name = QString(entry).remove(u'/').remove(u'@');
            if (entry.endsWith(u'/')) {
                QVERIFY(QDir().mkdir(name));
                model.add(u"/dir/"_s + name, FileIdentity::Kind::Folder);
                model.addFolder(u"/dir/"_s + name);
            } else if (entry.endsWith(u'@')) {
                QVERIFY(QFile::link(u"nowhere"_s, name));
                model.add(u"/dir/"_s + name, FileIdentity::Kind::Link);
            } else {
                QVERIFY(writeFile(name, name.toUtf8()));
                model.add(u"/dir/"_s + name);
            }
        }
        const QStringList before = entriesOf(folder.path());
        QCOMPARE(foretold(SystemDiskView(), rowsOf(folder.path(), rows)), expected);
        QCOMPARE(entriesOf(folder.path()), before);
        SystemDisk disk;
        QCOMPARE(done(disk, rowsOf(folder.path(), rows)), withoutRows(expected));

        QCOMPARE(foretold(model, rowsOf(u"/dir"_s, rows)), expected);
        for (const ModelDisk::Folder &read : std::as_const(model.folders)) {
            QVERIFY(read.timesRead <= 1);
            QCOMPARE(read.timesAsked, 0);
        }
    }

    void outcomesTellWhereTheNameLeads()
    {
        ModelDisk model;
        model.addFolder(u"/dir"_s);
        model.add(u"/dir/a"_s);
        Forecast forecast(model);
        const FilePath file = FilePath::of(u"/dir/a"_s);
        forecast.add(file);
        QCOMPARE(forecast.handled(), 0);
        QCOMPARE(forecast.next(file, u"nowhere/b"_s).path, file.folder() + u"/nowhere/b"_s);
        QCOMPARE(forecast.handled(), 1);
        QVERIFY(forecast.next(file, u"b"_s).isRenamed());
    }

    void foldersThatArriveTwiceAreOne()
    {
        const TestFolder folder;
        QVERIFY(QDir().mkdir(u"dir"_s));
        QVERIFY(QFile::link(folder.path(u"dir"_s), u"link"_s));
        QVERIFY(writeFile(u"dir/a"_s, "a"));
        QVERIFY(writeFile(u"dir/b"_s, "b"));
        const QList<Row> rows = {{folder.path(u"dir/a"_s), u"x"_s}, {folder.path(u"link/b"_s), u"x"_s}};
        QCOMPARE(foretold(SystemDiskView(), rows), (QStringList{u"renamed"_s, u"taken-by-row 0"_s}));
    }

    // Such a row may move the folder of others, or make one for them: that is not told.
    void pathsThroughWhatMovesAreUnknown()
    {
        const TestFolder folder;
        QVERIFY(QDir().mkdir(u"sub"_s));
        QVERIFY(writeFile(u"sub/a"_s, "a"));
        QVERIFY(writeFile(u"b"_s, "b"));
        QVERIFY(writeFile(u"c"_s, "c"));
        const QList<Row> rows = {{folder.path(u"sub"_s), u"new"_s},
                                 {folder.path(u"sub/a"_s), u"x"_s},
                                 {folder.path(u"b"_s), u"new/b"_s},
                                 {folder.path(u"b"_s), u"d"_s},
                                 {folder.path(u"c"_s), u"d"_s}};
        // Whether the name of the third row is free for the fourth nobody knows, nor which file it has.
        QCOMPARE(
            foretold(SystemDiskView(), rows),
            (QStringList{u"renamed"_s, u"unknown"_s, u"separator unknown"_s, u"unknown"_s, u"unknown"_s}));
    }

    void fileThatMayBeGoneIsUnknownWhereverItIsToGo()
    {
        const TestFolder folder;
        QVERIFY(QDir().mkdir(u"sub"_s));
        QVERIFY(writeFile(u"a"_s, "a"));
        const QList<Row> rows = {{folder.path(u"sub"_s), u"new/"_s},
                                 {folder.path(u"a"_s), u"new"_s},
                                 {folder.path(u"a"_s), u"nowhere/a"_s}};
        QCOMPARE(foretold(SystemDiskView(), rows),
                 (QStringList{u"separator unknown"_s, u"unknown"_s, u"separator unknown"_s}));
    }

    void folderThatComesIsSeenBySpellingsAskedBefore()
    {
        const TestFolder folder;
        QVERIFY(QDir().mkdir(u"sub"_s));
        QVERIFY(writeFile(u"a"_s, "a"));
        const QList<Row> rows = {{folder.path(u"a"_s), u"/new/a"_s},
                                 {folder.path(u"sub"_s), u"new"_s},
                                 {folder.path(u"a"_s), u"/new/a"_s}};
        QCOMPARE(foretold(SystemDiskView(), rows),
                 (QStringList{u"separator no-folder"_s, u"renamed"_s, u"separator unknown"_s}));
    }

    // Systems differ in whether they take a separator at the end of a folder's new name.
    void separatorBehindTheNameOfAFolderIsUnknown()
    {
        const TestFolder folder;
        QVERIFY(QDir().mkdir(u"sub"_s));
        QVERIFY(writeFile(u"sub/a"_s, "a"));
        QVERIFY(writeFile(u"b"_s, "b"));
        const QList<Row> rows = {{folder.path(u"b"_s), u"new/"_s},
                                 {folder.path(u"sub"_s), u"new/"_s},
                                 {folder.path(u"sub/a"_s), u"x"_s},
                                 {folder.path(u"b"_s), u"new"_s}};
        QCOMPARE(foretold(SystemDiskView(), rows),
                 (QStringList{u"separator empty"_s, u"separator unknown"_s, u"unknown"_s, u"unknown"_s}));
    }

    void folderThatMayNotBeWritten()
    {
        const TestFolder folder;
        QVERIFY(QDir().mkdir(u"open"_s));
        for (const QString &name : {u"a"_s, u"b"_s, u"open/c"_s})
            QVERIFY(writeFile(name, name.toUtf8()));
        const auto readable = WithoutPrivileges::readable;
        QVERIFY(
            QFile::setPermissions(folder.path(u"open"_s), readable | QFile::WriteGroup | QFile::WriteOther));
        QVERIFY(QFile::setPermissions(folder.path(), readable));
        const QList<Row> rows = {{folder.path(u"a"_s), u"x"_s},
                                 {folder.path(u"a"_s), u"a"_s},
                                 {folder.path(u"a"_s), u"b"_s},
                                 {folder.path(u"z"_s), u"y"_s},
                                 {folder.path(u"a"_s), QString(256, u'x')},
                                 {folder.path(u"a"_s), u"open/a"_s},
                                 {folder.path(u"open/c"_s), u"../c"_s},
                                 {folder.path(u"open/c"_s), u"d"_s}};
        const QStringList expected = {
            u"read-only"_s,           u"unchanged"_s,           u"taken"_s,  u"missing"_s, u"too-long"_s,
            u"separator read-only"_s, u"separator read-only"_s, u"renamed"_s};
        {
            const WithoutPrivileges drop;
            SystemDisk disk;
            QCOMPARE(foretold(SystemDiskView(), rows), expected);
            QCOMPARE(done(disk, rows), expected);
        }
        QVERIFY(QFile::setPermissions(folder.path(), readable | QFile::WriteOwner));
    }

    void folderThatMayNotBeRead()
    {
        ModelDisk model;
        model.addFolder(u"/dir"_s);
        model.addFolder(u"/dir/sub"_s).traits.state = FolderTraits::State::Unreadable;
        model.add(u"/dir/a"_s);
        model.add(u"/dir/sub/b"_s);
        const QList<Row> rows = {{u"/dir/sub/b"_s, u"c"_s}, {u"/dir/a"_s, u"sub/a"_s}};
        QCOMPARE(foretold(model, rows), (QStringList{u"unknown"_s, u"separator unknown"_s}));
    }

    // In a folder where everyone may write, but rename only what is one's own.
    void filesOfOthersInASharedFolder()
    {
        const TestFolder folder;
        QVERIFY(writeFile(u"a"_s, "a"));
        QVERIFY(makeShared(folder.path()));
        const QList<Row> rows = {{folder.path(u"a"_s), u"x"_s}, {folder.path(u"own"_s), u"y"_s}};
        {
            const WithoutPrivileges drop;
            QVERIFY(writeFile(u"own"_s, "own"));
            SystemDisk disk;
            const QStringList expected = {u"read-only"_s, u"renamed"_s};
            QCOMPARE(foretold(SystemDiskView(), rows), expected);
            QCOMPARE(done(disk, rows), expected);
        }
    }

    void spellingsWhereCaseDoesNotCount_data()
    {
        QTest::addColumn<FolderTraits::Spelling>("told");
        QTest::newRow("told") << FolderTraits::Spelling::AnyCase;
        QTest::newRow("folding") << FolderTraits::Spelling::Folded;
        QTest::newRow("found out") << FolderTraits::Spelling::Unknown;
    }
    void spellingsWhereCaseDoesNotCount()
    {
        QFETCH(FolderTraits::Spelling, told);
        ModelDisk model;
        ModelDisk::Folder &folder = model.addFolder(u"/dir"_s);
        folder.ignoresCase = true;
        folder.traits.spelling = told;
        for (const QString &name : {u"1"_s, u"a"_s, u"b"_s, u"Ж"_s})
            model.add(u"/dir/"_s + name);
        const QList<Row> rows = rowsOf(u"/dir"_s, u"a>A a>B 1>ж b>c 1>B A>d"_s);
        const QStringList expected = {u"renamed"_s, u"leaves-later 3"_s, u"taken"_s,
                                      u"renamed"_s, u"renamed"_s,        u"renamed"_s};
        QCOMPARE(foretold(model, rows), expected);
        QCOMPARE(done(model, rows), withoutRows(expected));
    }

    void accentsWhereTheirCompositionDoesNotCount()
    {
        ModelDisk model;
        model.addFolder(u"/dir"_s).traits.spelling = FolderTraits::Spelling::Folded;
        model.add(u"/dir/\u00e9"_s);
        model.add(u"/dir/b"_s);
        model.add(u"/dir/ß"_s);
        const QList<Row> rows = rowsOf(u"/dir"_s, u"b>E\u0301 b>SS \u00e9>e\u0301 b>c"_s);
        QCOMPARE(foretold(model, rows),
                 (QStringList{u"leaves-later 2"_s, u"taken"_s, u"taken"_s, u"renamed"_s}));
    }

    // As exFAT's driver: it takes the other spelling for another file.
    void spellingsWithNumbersOfTheirOwn()
    {
        ModelDisk model;
        ModelDisk::Folder &folder = model.addFolder(u"/dir"_s);
        folder.ignoresCase = true;
        folder.numbersSpellings = true;
        folder.traits.spelling = FolderTraits::Spelling::Unknown;
        model.add(u"/dir/a"_s);
        model.add(u"/dir/b"_s);
        const QList<Row> rows = rowsOf(u"/dir"_s, u"a>A a>B b>c"_s);
        const QStringList expected = {u"taken"_s, u"leaves-later 2"_s, u"renamed"_s};
        QCOMPARE(foretold(model, rows), expected);
        QCOMPARE(done(model, rows), withoutRows(expected));
    }

    void spellingsWhereCaseCounts()
    {
        ModelDisk model;
        model.addFolder(u"/dir"_s).traits.spelling = FolderTraits::Spelling::Unknown;
        for (const QString &name : {u"a"_s, u"A"_s, u"b"_s})
            model.add(u"/dir/"_s + name);
        const QList<Row> rows = rowsOf(u"/dir"_s, u"b>B a>A a>c"_s);
        QCOMPARE(foretold(model, rows), (QStringList{u"renamed"_s, u"taken"_s, u"renamed"_s}));
    }

    // Without a name to ask for a clash is unknown, and nothing else is.
    void spellingsThatCannotBeFoundOut()
    {
        ModelDisk model;
        model.addFolder(u"/dir"_s).traits.spelling = FolderTraits::Spelling::Unknown;
        for (const QString &name : {u"1"_s, u"2"_s, u"3"_s})
            model.add(u"/dir/"_s + name);
        const QList<Row> rows = rowsOf(u"/dir"_s, u"1>a 2>A 3>b b>B B>a B>c"_s);
        QCOMPARE(foretold(model, rows), (QStringList{u"renamed"_s, u"unknown"_s, u"renamed"_s, u"renamed"_s,
                                                     u"taken-by-row 0"_s, u"renamed"_s}));
    }

    // What depends on a row whose fate is unknown is unknown, too.
    void unknownRowsMakeOthersUnknown()
    {
        ModelDisk model;
        model.addFolder(u"/dir"_s).traits.names = FolderTraits::Names::Unknown;
        for (const QString &name : {u"a"_s, u"b"_s, u"c"_s})
            model.add(u"/dir/"_s + name);
        const QList<Row> rows = rowsOf(u"/dir"_s, u"a>x: b>x: b>a c>d a>a a>e c>d d>f"_s);
        QCOMPARE(foretold(model, rows),
                 (QStringList{u"unknown"_s, u"unknown"_s, u"unknown"_s, u"renamed"_s, u"unknown"_s,
                              u"unknown"_s, u"missing"_s, u"renamed"_s}));
    }

    void namesThatAFileSystemRefuses_data()
    {
        QTest::addColumn<FolderTraits::Names>("names");
        QTest::addColumn<QString>("expected");
        QTest::newRow("any") << FolderTraits::Names::Any
                             << u"renamed renamed renamed renamed renamed renamed"_s;
        QTest::newRow("Windows") << FolderTraits::Names::Windows
                                 << u"not-allowed not-allowed renamed taken-by-row 2 not-allowed renamed"_s;
        QTest::newRow("FAT") << FolderTraits::Names::Fat
                             << u"not-allowed not-allowed unknown unknown unknown renamed"_s;
        QTest::newRow("unknown") << FolderTraits::Names::Unknown
                                 << u"unknown unknown unknown unknown unknown renamed"_s;
    }
    void namesThatAFileSystemRefuses()
    {
        QFETCH(FolderTraits::Names, names);
        ModelDisk model;
        model.addFolder(u"/dir"_s).traits.names = names;
        for (int i = 1; i <= 6; ++i)
            model.add(u"/dir/%1"_s.arg(i));
        const QList<Row> rows = rowsOf(u"/dir"_s, u"1>a:b 2>a\n 3>a. 4>a.. 5>con.txt 6>console"_s);
        QTEST(foretold(model, rows).join(u' '), "expected");
    }

    void lengthsInUnits()
    {
        using Unit = FolderTraits::LengthUnit;
        const auto compare = [](Unit unit, const QString &letter, int longest) {
            ModelDisk model;
            model.addFolder(u"/dir"_s).traits.lengthUnit = unit;
            for (const QString &name : {u"a"_s, u"b"_s})
                model.add(u"/dir/"_s + name);
            const QList<Row> rows = {{u"/dir/a"_s, letter.repeated(longest)},
                                     {u"/dir/b"_s, letter.repeated(longest + 1)}};
            QCOMPARE(foretold(model, rows), (QStringList{u"renamed"_s, u"too-long"_s}));
        };
        compare(Unit::Utf16, u"日"_s, 255);
        compare(Unit::Bytes, u"é"_s, 127);
        compare(Unit::Bytes, u"日"_s, 85);
        compare(Unit::Bytes, u"🎉"_s, 63);
    }

    void otherVolumes()
    {
        ModelDisk model;
        model.addFolder(u"/dir"_s);
        model.addFolder(u"/dir/sub"_s).traits.volume = 2;
        model.add(u"/dir/a"_s);
        QCOMPARE(foretold(model, {{u"/dir/a"_s, u"sub/a"_s}}), QStringList(u"separator not-allowed"_s));
    }

    void pathsThatAreTooLong()
    {
        ModelDisk model;
        model.addFolder(u"/dir"_s).traits.longestPath = FilePath::of(u"/dir/a"_s).nameAt + 5;
        model.addFolder(u"/dir/v"_s).traits.volume = 2;
        model.add(u"/dir/a"_s);
        const QList<Row> rows = rowsOf(u"/dir"_s, u"a>123456 a>no/456 a>v/3456 a>v/345 a>12345"_s);
        // The length counts before the folder does.
        QCOMPARE(foretold(model, rows).join(u", "_s),
                 u"too-long, separator too-long, separator too-long, separator not-allowed, renamed"_s);
    }

    // A folder of many files is read in slices, and each once.
    void bigFoldersAreReadInSlices()
    {
        constexpr int files = 10000;
        ModelDisk model;
        model.addFolder(u"/dir"_s);
        model.addFolder(u"/dir/sub"_s);
        for (int i = 0; i < files; ++i)
            model.add(u"/dir/%1"_s.arg(i));
        Forecast forecast(model);
        for (int i = 0; i < files; ++i)
            forecast.add(FilePath::of(u"/dir/%1"_s.arg(i)));
        int slices = 0;
        for (int i = 0; i < files; ++i) {
            const FilePath file = FilePath::of(u"/dir/%1"_s.arg(i));
            const QString newName = i % 2 == 0 ? u"sub/x%1"_s.arg(i) : u"x%1"_s.arg(i);
            while (!forecast.isReady(file, newName))
                ++slices;
            QVERIFY(forecast.next(file, newName).isRenamed());
        }
        // Of the names, and then of the rows.
        QVERIFY2(slices >= 8 && slices <= 20, qPrintable(QString::number(slices)));
        QCOMPARE(model.folderAt(u"/dir"_s).timesRead, 1);
        QCOMPARE(model.folderAt(u"/dir/sub"_s).timesRead, 1);
    }
};

QTEST_GUILESS_MAIN(TestForecast)
#include "tst_forecast.moc"
