// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fault/faultrun.h"
#include "fault/inject/systemfaults.h"
#include "platform/filerename.h"

#include "fileidentity.h"

#include <QElapsedTimer>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

constexpr int fileCount = 8;

struct NamedError
{
    const char *name;
    int number;
};

constexpr NamedError fileSystemErrors[] = {{"EACCES", EACCES},
                                           {"EROFS", EROFS},
                                           {"ENOSPC", ENOSPC},
                                           {"EIO", EIO},
                                           {"ENAMETOOLONG", ENAMETOOLONG},
                                           {"EXDEV", EXDEV},
                                           {"EINVAL", EINVAL},
                                           {"EINTR", EINTR},
                                           {"EDQUOT", EDQUOT},
                                           {"EBUSY", EBUSY},
                                           {"ESTALE", ESTALE}};

std::string partOf(const QString &name)
{
    return '/' + name.toStdString();
}

} // namespace

/// A run over files that the system refuses to move, moves slowly or moves in a roundabout way.
class InjectedRename : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<FaultRun> run;
    std::unique_ptr<SystemFaults> faults;

    /// What the folder holds after "new-" was put before all names but these.
    static Contents renamedBut(const QStringList &kept)
    {
        Contents expected;
        for (int i = 0; i < fileCount; ++i) {
            const QString name = u"file%1.txt"_s.arg(i, 3, 10, QChar(u'0'));
            expected.insert(kept.contains(name) ? name : "new-"_L1 + name, name.toLatin1());
        }
        return expected;
    }

private slots:
    void init()
    {
        run = std::make_unique<FaultRun>();
        faults = std::make_unique<SystemFaults>();
        run->window.addInsert(u"new-"_s);
    }
    void cleanup()
    {
        faults.reset();
        run.reset();
    }

    void refusedFilesStayAndTheOthersGoOn_data()
    {
        QTest::addColumn<int>("error");
        QTest::addColumn<QStringList>("refused");

        const QMap<QString, QStringList> places = {
            {u"first"_s, {u"file000.txt"_s}},
            {u"third"_s, {u"file002.txt"_s}},
            {u"last"_s, {u"file007.txt"_s}},
            {u"first, third and last"_s, {u"file000.txt"_s, u"file002.txt"_s, u"file007.txt"_s}}};
        for (const auto &[name, error] : fileSystemErrors) {
            for (const auto &[place, refused] : places.asKeyValueRange())
                QTest::addRow("%s, %s", name, qPrintable(place)) << error << refused;
        }
    }
    void refusedFilesStayAndTheOthersGoOn()
    {
        QFETCH(int, error);
        QFETCH(QStringList, refused);
        run->plant(u"file%1.txt"_s, fileCount);
        for (const QString &name : refused)
            faults->refuseMoving(partOf(name), error);
        run->run();
        QVERIFY(faults->hits() >= refused.size());
        VERIFY_RUN(*run, fileCount, fileCount - refused.size(), refused);
        QCOMPARE(run->contents(), renamedBut(refused));

        // The program is none the worse: with the disk mended the same rows are renamed.
        faults->clear();
        run->window.click("buttonRuleListClear");
        run->window.addReplace(u"file"_s, u"done"_s);
        run->run();
        VERIFY_RUN(*run, fileCount, fileCount, {});
        QCOMPARE(run->contents().size(), fileCount);
        for (const auto &[name, content] : run->contents().asKeyValueRange())
            QCOMPARE(QString(name).replace(u"done"_s, u"file"_s).remove(u"new-"_s).toLatin1(), content);
    }

    void everyFileRefused()
    {
        const QStringList paths = run->plant(u"file%1.txt"_s, fileCount);
        faults->refuseMoving("/file", EROFS);
        const Contents before = run->contents();
        run->run();
        VERIFY_RUN(*run, fileCount, 0, before.keys());
        QCOMPARE(run->contents(), before);
        QCOMPARE(run->window.rowPaths(), paths);
    }

    // A signal, or a server that answers at the second try.
    void interruptedOnceIsTriedAgain_data()
    {
        QTest::addColumn<int>("error");
        QTest::newRow("EINTR") << EINTR;
        QTest::newRow("EIO") << EIO;
        QTest::newRow("EBUSY") << EBUSY;
    }
    void interruptedOnceIsTriedAgain()
    {
        QFETCH(int, error);
        run->plant(u"file%1.txt"_s, fileCount);
        faults->add({.call = SystemCall::RenameNoReplace, .part = "/file003", .error = error, .times = 1});
        run->run();
        QCOMPARE(faults->hits(), 1);
        VERIFY_RUN(*run, fileCount, fileCount, {});
        QCOMPARE(run->contents(), renamedBut({}));
    }

    // Some network file systems: what could not be told is done nevertheless. The name on disk is the new one
    // then, the row keeps the old one, and the file counts as failed.
    void doneAndYetReportedAsFailed()
    {
        run->plant(u"file%1.txt"_s, fileCount);
        faults->add({.call = SystemCall::RenameNoReplace,
                     .part = "/file003",
                     .error = EIO,
                     .times = 1,
                     .done = true});
        run->run();
        VERIFY_RUN(*run, fileCount, fileCount - 1, {u"file003.txt"_s});
        QCOMPARE(run->contents(), renamedBut({}));
    }

    void fileSystemsWithoutNoReplace_data()
    {
        QTest::addColumn<bool>("hardLinks");
        QTest::addColumn<int>("linkError");

        QTest::newRow("as it is") << true << -1;
        QTest::newRow("hard links") << true << 0;
        QTest::newRow("EPERM") << false << EPERM;
        QTest::newRow("EOPNOTSUPP") << false << EOPNOTSUPP;
        QTest::newRow("ENOSYS") << false << ENOSYS;
        QTest::newRow("EMLINK") << false << EMLINK;
    }
    void fileSystemsWithoutNoReplace()
    {
        QFETCH(bool, hardLinks);
        QFETCH(int, linkError);
        run->plant(u"file%1.txt"_s, fileCount);
        run->tree.addFile(u"new-file001.txt"_s, "in the way");
        run->tree.addFolder(u"new-file002.txt"_s);
        run->tree.addFile(u"pointed at"_s);
        run->tree.addLink(u"new-file003.txt"_s, run->tree.path(u"pointed at"_s));
        // A link that leads nowhere is a target that exists, too.
        run->tree.addLink(u"new-file004.txt"_s, run->tree.path(u"nowhere"_s));
        run->tree.addLink(u"new-file005.txt"_s, u"new-file005.txt"_s);
        makeHardLink(run->tree.path(u"file006.txt"_s), run->tree.path(u"new-file006.txt"_s));
        const QStringList before = run->tree.names();
        if (linkError >= 0)
            faults->forgetNoReplace(hardLinks, linkError);
        run->run();
        QCOMPARE(faults->hits() > 0, linkError >= 0);
        VERIFY_RUN(*run, fileCount, 2,
                   QStringList({u"file001.txt"_s, u"file002.txt"_s, u"file003.txt"_s, u"file004.txt"_s,
                                u"file005.txt"_s, u"file006.txt"_s}));
        QStringList expected = before;
        expected.replaceInStrings(u"file000.txt"_s, u"new-file000.txt"_s);
        expected.replace(expected.indexOf(u"file007.txt"_s), u"new-file007.txt"_s);
        expected.sort();
        QStringList after = run->tree.names();
        after.sort();
        QCOMPARE(after, expected);
        QCOMPARE(run->tree.content(u"new-file000.txt"_s), "file000.txt");
        QCOMPARE(run->tree.content(u"new-file001.txt"_s), "in the way");
        QCOMPARE(QFile::symLinkTarget(run->tree.path(u"new-file004.txt"_s)), run->tree.path(u"nowhere"_s));
        QCOMPARE(run->tree.content(u"file004.txt"_s), "file004.txt");
    }

    // The roundabout way makes the new name before it removes the old one.
    void oldNameCannotBeRemoved()
    {
        run->plant(u"file%1.txt"_s, fileCount);
        faults->forgetNoReplace(true, 0);
        faults->add({.call = SystemCall::Unlink, .part = "/file003", .error = EACCES});
        run->run();
        VERIFY_RUN(*run, fileCount, fileCount - 1, {u"file003.txt"_s});
        QCOMPARE(run->contents(), renamedBut({u"file003.txt"_s}));
    }
    // Nor can the new one be taken back: the file has both names then, and counts as failed.
    void neitherNameCanBeRemoved()
    {
        run->plant(u"file%1.txt"_s, fileCount);
        faults->forgetNoReplace(true, 0);
        faults->add({.call = SystemCall::Unlink, .part = "file003", .error = EIO});
        run->run();
        VERIFY_RUN(*run, fileCount, fileCount - 1, {u"file003.txt"_s});
        Contents expected = renamedBut({u"file003.txt"_s});
        expected.insert(u"new-file003.txt"_s, "file003.txt");
        QCOMPARE(run->contents(), expected);
        QCOMPARE(identityOf(run->tree.path(u"file003.txt"_s)).file,
                 identityOf(run->tree.path(u"new-file003.txt"_s)).file);
    }

    // Why renameFile is not QFile::rename alone.
    void qfileAloneWouldCopy()
    {
        const QString from = run->tree.addFile(u"a.txt"_s);
        const QString to = run->tree.path(u"b.txt"_s);
        const auto before = identityOf(from);
        faults->refuseMoving("/a.txt", EIO);
        QCOMPARE(renameFile(from, to), RenameResult::Other);
        QCOMPARE(identityOf(from).file, before.file);
        QVERIFY(QFile::rename(from, to));
        QCOMPARE(run->contents(), (Contents{{u"b.txt"_s, "a.txt"}}));
        QVERIFY(identityOf(to).file != before.file);
    }
    void qfileAloneWouldReplaceADanglingLink()
    {
        const QString from = run->tree.addFile(u"a.txt"_s);
        const QString to = run->tree.addLink(u"b.txt"_s, run->tree.path(u"nowhere"_s));
        faults->forgetNoReplace(false, EPERM);
        QCOMPARE(renameFile(from, to), RenameResult::TargetExists);
        QVERIFY(QFileInfo(to).isSymLink());
        QVERIFY(QFile::rename(from, to));
        QVERIFY(!QFileInfo(to).isSymLink());
    }

    // Two names of one file that differ by case alone: QFile moves the one aside and back.
    void secondNameOfTheFileIsNoChangeOfCase()
    {
        run->window.drop({run->tree.addFile(u"photo"_s, "x")});
        QVERIFY(makeHardLink(run->tree.path(u"photo"_s), run->tree.path(u"PHOTO"_s)));
        run->window.click("buttonRuleListClear");
        run->window.addReplace(u"photo"_s, u"PHOTO"_s);
        faults->forgetNoReplace(true, 0);
        run->run();
        VERIFY_RUN(*run, 1, 0, {u"photo"_s});
        QCOMPARE(run->contents(), (Contents{{u"PHOTO"_s, "x"}, {u"photo"_s, "x"}}));
    }

    void cancellingASlowRun_data()
    {
        QTest::addColumn<int>("clickAfter");
        QTest::newRow("during the first file") << 50;
        QTest::newRow("in the middle") << 450;
    }
    void cancellingASlowRun()
    {
        QFETCH(int, clickAfter);
        constexpr int many = 50;
        constexpr int pause = 100;
        run->plant(u"file%1.txt"_s, many);
        faults->add({.call = SystemCall::RenameNoReplace, .part = "/file", .delay = pause});
        int callsAtClick = 0;
        QElapsedTimer sinceClick;
        QTimer::singleShot(clickAfter, run->window.get(), [&] {
            callsAtClick = faults->hits();
            sinceClick.start();
            run->window.waitDialog()->buttonCancel->click();
        });
        qint64 reaction = 0;
        run->boxes.beforeAnswer = [&](QMessageBox *) {
            reaction = sinceClick.elapsed();
        };
        run->run();
        // One more file after the click, and the report counts one less.
        const int handled = callsAtClick + 1;
        QCOMPARE(faults->hits(), handled);
        QVERIFY2(handled < many / 2, qPrintable(QString::number(handled)));
        QVERIFY(reaction >= pause);
        QVERIFY2(reaction < (many - handled) * pause / 2, qPrintable(QString::number(reaction)));
        VERIFY_RUN(*run, many, handled - 1, {});
        const QStringList paths = run->window.rowPaths();
        for (int row = 0; row < many; ++row) {
            const QString name = u"file%1.txt"_s.arg(row, 3, 10, QChar(u'0'));
            const QString now = row < handled ? "new-"_L1 + name : name;
            QCOMPARE(paths.at(row), run->tree.path(now));
            QCOMPARE(run->tree.content(now), name.toLatin1());
        }
        QCOMPARE(run->tree.names().size(), many);
    }
};

QTEST_MAIN(InjectedRename)
#include "tst_injected_rename.moc"
