// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/pathlength.h"
#include "run/scan.h"
#include "run/spelling.h"
#include "support/temptree.h"

#include "deepfolders.h"
#include "namesofthesystem.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTest>

#include <filesystem>

using namespace Qt::StringLiterals;

/// What a folder contributes: which files, and in which order.
class TestScan : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TempTree> tree;

    /// Names below the folder, in the order of the scan.
    [[nodiscard]] QStringList scanned(const QStringList &filters = {u"*.*"_s},
                                      const QString &folder = {}) const
    {
        Scan scan(tree->path(folder), filters);
        qsizetype found = 0;
        for (Scan::Step step = scan.next(); step != Scan::Step::End; step = scan.next())
            found += step == Scan::Step::Found;
        if (found != scan.count())
            qFatal("counted %lld, found %lld", qint64(scan.count()), qint64(found));
        return relative(scan.takePaths());
    }
    [[nodiscard]] QStringList relative(const QStringList &paths) const
    {
        QStringList names;
        for (const QString &path : paths)
            names.append(path.mid(tree->path().size() + 1));
        return names;
    }
    /// The files that Qt's own iterator finds with the same filters, sorted.
    [[nodiscard]] QStringList expected(const QStringList &filters) const
    {
        QDir directory(tree->path() + QDir::separator());
        directory.setFilter(QDir::Files | QDir::NoSymLinks | QDir::NoDot | QDir::NoDotDot);
        directory.setNameFilters(filters);
        QDirIterator files(directory, QDirIterator::Subdirectories);
        QStringList names;
        while (files.hasNext())
            names.append(files.next().mid(tree->path().size() + 1));
        names.sort();
        return names;
    }

private slots:
    void init() { tree = std::make_unique<TempTree>(); }
    void cleanup() { tree.reset(); }

    void filesOfAFolderComeInNaturalOrderBeforeItsSubfolders()
    {
        const QStringList inOrder = {u"IMG_1.JPG"_s,    u"IMG_2.JPG"_s,      u"IMG_10.JPG"_s,
                                     u"z.txt"_s,        u"2/a.txt"_s,        u"2/b.txt"_s,
                                     u"2/deep/9.txt"_s, u"2/deep/10.txt"_s,  u"2/e/x.txt"_s,
                                     u"10/a.txt"_s,     u"A folder/x.txt"_s, u"b folder/x.txt"_s};
        QStringList shuffled = inOrder;
        QRandomGenerator random(5);
        std::shuffle(shuffled.begin(), shuffled.end(), random);
        for (const QString &name : std::as_const(shuffled))
            tree->addFile(name);
        QCOMPARE(scanned(), inOrder);
    }

    void brokenOffScanGivesWhatItFoundInOrder()
    {
        for (int i = 0; i < 30; ++i)
            tree->addFile(u"%1.txt"_s.arg(i));
        tree->addFile(u"sub/a.txt"_s);
        Scan scan(tree->path(), {u"*"_s});
        while (scan.count() < 12)
            QVERIFY(scan.next() != Scan::Step::End);
        const QStringList paths = relative(scan.takePaths());
        QCOMPARE(paths.size(), 12);
        for (int i = 1; i < 12; ++i)
            QVERIFY(paths.at(i - 1).chopped(4).toInt() < paths.at(i).chopped(4).toInt());
        QVERIFY(scan.next() == Scan::Step::End);
        QVERIFY(scan.takePaths().isEmpty());
    }

    void pathsAreWrittenAsTheIteratorWritesThem()
    {
        tree->addFile(u"a.txt"_s);
        for (const QString &ending : {QString(), u"/"_s, u"//"_s, u"/."_s}) {
            Scan scan(tree->path() + ending, {u"*"_s});
            while (scan.next() != Scan::Step::End) {
            }
            QDir directory(tree->path() + ending + QDir::separator());
            QDirIterator files(directory);
            QString path;
            while (files.hasNext() && !path.endsWith("a.txt"_L1))
                path = files.next();
            QCOMPARE(scan.takePaths(), QStringList{path});
        }
    }

    void sameFilesAsQtsIterator_data()
    {
        QTest::addColumn<QStringList>("filters");
        QTest::newRow("no filter of the user's") << QStringList{u"*.*"_s};
        QTest::newRow("all") << QStringList{u"*"_s};
        QTest::newRow("none") << QStringList{u"*.nosuch"_s};
        QTest::newRow("two") << QStringList{u"*.txt"_s, u"*.png"_s};
        QTest::newRow("blank before it") << QStringList{u"*.jpg"_s, u" *.png"_s};
        QTest::newRow("case") << QStringList{u"*.JPG"_s};
        QTest::newRow("set") << QStringList{u"[a-c]*.?p[!n]*"_s};
        QTest::newRow("unbalanced") << QStringList{u"["_s, u"a.txt"_s};
        QTest::newRow("characters of patterns") << QStringList{u"(a).+t{1}$"_s};
        QTest::newRow("hidden asked for") << QStringList{u".*"_s};
        QTest::newRow("path") << QStringList{u"sub/*"_s};
        QTest::newRow("folder's name") << QStringList{u"sub"_s};
    }

    void sameFilesAsQtsIterator()
    {
        QFETCH(QStringList, filters);
        for (const QString &folder : {u""_s, u"sub/"_s, u"sub/deep/"_s, u".hidden/"_s, u"a.txt.d/"_s}) {
            for (const QString &name :
                 {u"a.txt"_s, u"a.jpg"_s, u"B.JPG"_s, u"c.png"_s, u" d.png"_s, u"no dot"_s, u".dot.txt"_s,
                  u"[.txt"_s, u"(a).+t{1}$"_s, u"line\nfeed.txt"_s, u"\u65e5.txt"_s, u"ends."_s}) {
                if (namesOfTheSystem == FolderTraits::Names::Any || !hasForbiddenCharacter(name))
                    tree->addFile(folder + name);
            }
        }
        tree->addFolder(u"empty.txt"_s);
        tree->addLink(u"link.txt"_s, tree->path(u"a.txt"_s));
        tree->addLink(u"nowhere.txt"_s, tree->path(u"gone"_s));
        tree->addLink(u"loop.d"_s, tree->path());
        QStringList names = scanned(filters);
        names.sort();
        QCOMPARE(names, expected(filters));
    }

    void folderThatCannotBeReadGivesNothing()
    {
        tree->addFile(u"file.txt"_s);
        QCOMPARE(scanned({u"*"_s}, u"gone"_s), QStringList());
        QCOMPARE(scanned({u"*"_s}, u"file.txt"_s), QStringList());
        tree->addFolder(u"empty"_s);
        QCOMPARE(scanned({u"*"_s}, u"empty"_s), QStringList());
    }

    // Each step looks at one entry, whatever matches: the window answers a click in between.
    void eachEntryIsAStep()
    {
        tree->addFiles(u"%1.txt"_s, 50);
        tree->addFiles(u".hidden%1.txt"_s, 50);
        tree->addFolder(u"sub/.dot"_s);
        for (const QString &filter : {u"*"_s, u"*.nosuch"_s}) {
            Scan scan(tree->path(), {filter});
            int steps = 0;
            while (scan.next() != Scan::Step::End)
                ++steps;
            // 101 entries and sub's one, and the opening of two folders.
            QCOMPARE(steps, 104);
        }
    }

    void foldersBeyondTheLongestPathAreLeftOutAndCounted()
    {
        const QString name = QString(200, u'd');
        tree->addFile(u"a.txt"_s);
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(tree->path()));
        // In relative steps: no call takes the whole path.
        QString deepest = tree->path();
        while (!isPathTooLong(deepest) && makeAndEnter(name))
            deepest += u'/' + name;
        QVERIFY(QDir::setCurrent(before));
        Scan scan(tree->path(), {u"*"_s});
        while (scan.next() != Scan::Step::End) {
        }
        QCOMPARE(relative(scan.takePaths()), QStringList{u"a.txt"_s});
        // Windows makes no such folder in the first place.
        QCOMPARE(scan.foldersLeftOut(), isPathTooLong(deepest) ? 1 : 0);
        std::filesystem::remove_all(tree->path().toStdU16String());
        QVERIFY(!QFileInfo::exists(tree->path()));
    }

    void fileBeyondTheLongestPathIsListed()
    {
        const QString name = QString(200, u'd');
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(tree->path()));
        QString deepest = tree->path();
        while (!isPathTooLong(deepest + u'/' + name) && makeAndEnter(name))
            deepest += u'/' + name;
        // No call takes the whole path.
        const QString fileName = QString(240, u'f') + u".txt"_s;
        QFile file(fileName);
        const bool isThere = file.open(QIODevice::WriteOnly);
        file.close();
        QVERIFY(QDir::setCurrent(before));
        Scan scan(tree->path(), {u"*"_s});
        while (scan.next() != Scan::Step::End) {
        }
        // Nothing is left out in silence: the run will say that it fails.
        QCOMPARE(scan.takePaths(), isThere ? QStringList(deepest + u'/' + fileName) : QStringList());
        std::filesystem::remove_all(tree->path().toStdU16String());
        QVERIFY(!QFileInfo::exists(tree->path()));
    }

    void longestPath()
    {
        QVERIFY(!isPathTooLong(QString(255, u'x')));
        QVERIFY(isPathTooLong(QString(32767, u'x')));
        // What counts is what the system is told.
        QCOMPARE(isPathTooLong(QString(4095, u'x')), false);
        QCOMPARE(isPathTooLong(QString(4095, u'\u00e4')), isPathTooLong(QString(4096, u'x')));
    }
};

QTEST_GUILESS_MAIN(TestScan)
#include "tst_scan.moc"
