// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fault/faultrun.h"
#include "support/duringevents.h"

#include <QDirIterator>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

/// Folders that are renamed, deleted or exchanged while they are scanned, listed or renamed in.
class ChangingFolders : public QObject
{
    Q_OBJECT

private:
    static constexpr int perFolder = 50;
    std::unique_ptr<FaultRun> run;

    /// Three folders of files below one.
    void plantFolders() const
    {
        for (const QString &folder : {u"a"_s, u"b"_s, u"c"_s})
            run->tree.addFiles("all/"_L1 + folder + u"/file%1.txt"_s, perFolder);
    }
    void move(const QString &from, const QString &to) const
    {
        QVERIFY(QDir().rename(run->tree.path(from), run->tree.path(to)));
    }
    void remove(const QString &folder) const { QVERIFY(QDir(run->tree.path(folder)).removeRecursively()); }

    /// The files of the whole tree by their contents, which are their first names.
    [[nodiscard]] QMap<QByteArray, QString> everything() const
    {
        QMap<QByteArray, QString> found;
        QDirIterator files(run->tree.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (!file.open(QIODevice::ReadOnly))
                qFatal("cannot read %s", qPrintable(file.fileName()));
            found.insert(file.readAll(), file.fileName().mid(run->tree.path().size() + 1));
        }
        return found;
    }

    /// Drops "all" while the step is taken in the given pass of event processing, then renames and checks
    /// that exactly the files that are still at their listed place got a new name.
    void dropAndRename(int pass, const std::function<void()> &step) const
    {
        {
            const DuringEvents change([&](int number) {
                if (number == pass)
                    step();
            });
            run->window.drop({run->tree.path(u"all"_s)});
        }
        QVERIFY(run->window.pathsAgree());
        QVERIFY(!run->window.waitDialog());
        // What was found before is listed.
        QVERIFY(run->window.files()->count() >= std::min(pass, 3 * perFolder));
        renameAndCheck();
    }
    void renameAndCheck() const
    {
        const QMap<QByteArray, QString> before = everything();
        const QStringList paths = run->window.rowPaths();
        QMap<QByteArray, QString> expected = before;
        QStringList failed;
        QStringList expectedPaths;
        for (const QString &path : paths) {
            const QFileInfo file(path);
            const QString newPath = file.path() + "/new-"_L1 + file.fileName();
            const QString inTree = path.mid(run->tree.path().size() + 1);
            const QByteArray content = before.key(inTree);
            expectedPaths.append(content.isNull() ? path : newPath);
            if (content.isNull())
                failed.append(file.fileName());
            else
                expected.insert(content, newPath.mid(run->tree.path().size() + 1));
        }
        run->run();
        const auto total = static_cast<int>(paths.size());
        if (total > 0)
            VERIFY_RUN(*run, total, total - static_cast<int>(failed.size()), failed);
        QCOMPARE(everything(), expected);
        QCOMPARE(run->window.rowPaths(), expectedPaths);
    }

private slots:
    void init()
    {
        run = std::make_unique<FaultRun>();
        run->window.addInsert(u"new-"_s);
        plantFolders();
    }
    void cleanup() { run.reset(); }

    void duringTheScan_data()
    {
        QTest::addColumn<int>("pass");
        for (const int pass : {1, 30, 75, 140, 151, 200, 299})
            QTest::addRow("pass %d", pass) << pass;
    }

    void deletedDuringTheScan_data() { duringTheScan_data(); }
    void deletedDuringTheScan()
    {
        QFETCH(int, pass);
        dropAndRename(pass, [this] { remove(u"all"_s); });
        QVERIFY(everything().isEmpty());
        run->window->onTimeout();
        run->tree.addFile(u"later.txt"_s);
        run->window.files()->clear();
        run->window.drop({run->tree.path(u"later.txt"_s)});
        renameAndCheck();
        QCOMPARE(run->tree.names(), QStringList(u"new-later.txt"_s));
    }

    void renamedDuringTheScan_data() { duringTheScan_data(); }
    void renamedDuringTheScan()
    {
        QFETCH(int, pass);
        dropAndRename(pass, [this] { move(u"all"_s, u"moved"_s); });
        QCOMPARE(everything().size(), 3 * perFolder);
    }

    void subfolderDeletedDuringTheScan_data() { duringTheScan_data(); }
    void subfolderDeletedDuringTheScan()
    {
        QFETCH(int, pass);
        dropAndRename(pass, [this] { remove(u"all/b"_s); });
        QCOMPARE(everything().size(), 2 * perFolder);
    }

    // Another folder by the same name: its files are listed by their own paths only.
    void exchangedDuringTheScan_data() { duringTheScan_data(); }
    void exchangedDuringTheScan()
    {
        QFETCH(int, pass);
        run->tree.addFiles(u"other/a/file%1.txt"_s, 3);
        run->tree.addFile(u"other/new.txt"_s);
        dropAndRename(pass, [this] {
            move(u"all"_s, u"moved"_s);
            move(u"other"_s, u"all"_s);
        });
        QCOMPARE(everything().size(), 3 * perFolder + 4);
    }

    // A folder that grows while it is read must not be read for ever.
    void growingDuringTheScan()
    {
        int added = 0;
        {
            const DuringEvents change([&](int) {
                if (added < 1000)
                    run->tree.addFile(u"all/c/late%1.txt"_s.arg(++added));
            });
            run->window.drop({run->tree.path(u"all"_s)});
        }
        QVERIFY(run->window.files()->count() >= 3 * perFolder);
        renameAndCheck();
    }

    void duringTheRun_data()
    {
        QTest::addColumn<int>("pass");
        for (const int pass : {1, 50, 149})
            QTest::addRow("pass %d", pass) << pass;
    }
    void movedAwayDuringTheRun_data() { duringTheRun_data(); }
    void movedAwayDuringTheRun()
    {
        QFETCH(int, pass);
        run->window.drop({run->tree.path(u"all"_s)});
        const QStringList paths = run->window.rowPaths();
        QCOMPARE(paths.size(), 3 * perFolder);
        QStringList failed;
        for (const QString &path : paths.mid(pass))
            failed.append(path.section(u'/', -1));
        {
            const DuringEvents change([&](int number) {
                if (number == pass)
                    move(u"all"_s, u"moved"_s);
            });
            run->run();
        }
        VERIFY_RUN(*run, 3 * perFolder, pass, failed);
        const QMap<QByteArray, QString> after = everything();
        QCOMPARE(after.size(), 3 * perFolder);
        for (int row = 0; row < paths.size(); ++row) {
            const QString first = paths.at(row).mid(run->tree.path().size() + 1);
            QString expected = "moved/"_L1 + first.section(u'/', 1);
            if (row < pass)
                expected.insert(expected.lastIndexOf(u'/') + 1, u"new-"_s);
            QCOMPARE(after.value(first.toUtf8()), expected);
        }
    }
};

QTEST_MAIN(ChangingFolders)
#include "tst_changing_folders.moc"
