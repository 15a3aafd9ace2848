// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fault/inject/systemfaults.h"
#include "support/journalfiles.h"

#include <QTest>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

constexpr int fileCount = 8;

struct NamedError
{
    const char *name;
    int number;
};

constexpr NamedError errors[] = {{"EACCES", EACCES}, {"EPERM", EPERM},   {"EROFS", EROFS},
                                 {"ENOSPC", ENOSPC}, {"EIO", EIO},       {"ENAMETOOLONG", ENAMETOOLONG},
                                 {"EXDEV", EXDEV},   {"EINVAL", EINVAL}, {"EINTR", EINTR},
                                 {"EDQUOT", EDQUOT}, {"EBUSY", EBUSY},   {"ESTALE", ESTALE},
                                 {"ENOMEM", ENOMEM}, {"ELOOP", ELOOP},   {"EMLINK", EMLINK}};

} // namespace

class TestInjectedUndo final : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<JournalledTree> files;
    QString run;

    [[nodiscard]] QStringList names() const
    {
        QStringList names = files->tree.names();
        names.removeOne(u"data"_s);
        return names;
    }

private slots:
    void init()
    {
        files = std::make_unique<JournalledTree>();
        QList<std::pair<QString, QString>> renames;
        for (int i = 0; i < fileCount; ++i) {
            files->tree.addFile(u"f%1"_s.arg(i));
            renames.append({u"f%1"_s.arg(i), u"new%1"_s.arg(i)});
        }
        run = files->run(renames);
    }
    void cleanup() { files.reset(); }

    void refusedStepsStayAndCanBeTriedAgain_data()
    {
        QTest::addColumn<int>("error");
        QTest::addColumn<QList<int>>("refused");
        for (const NamedError &error : errors) {
            QTest::addRow("%s first", error.name) << error.number << QList<int>{fileCount - 1};
            QTest::addRow("%s third", error.name) << error.number << QList<int>{fileCount - 3};
            QTest::addRow("%s last", error.name) << error.number << QList<int>{0};
            QTest::addRow("%s all three", error.name)
                << error.number << QList<int>{fileCount - 1, fileCount - 3, 0};
        }
    }
    void refusedStepsStayAndCanBeTriedAgain()
    {
        QFETCH(const int, error);
        QFETCH(const QList<int>, refused);
        QStringList expectedResults;
        QStringList expectedNames;
        for (int i = fileCount - 1; i >= 0; --i) {
            const bool isRefused = refused.contains(i);
            expectedResults.append(isRefused ? u"refused"_s : u"renamed"_s);
            expectedNames.append((isRefused ? u"new%1"_s : u"f%1"_s).arg(i));
        }
        std::sort(expectedNames.begin(), expectedNames.end());
        {
            SystemFaults faults;
            for (const int i : refused)
                faults.refuseMoving("/new" + std::to_string(i), error);
            QCOMPARE(files->undo(run), expectedResults);
            QVERIFY(faults.hits() >= refused.size());
        }
        QCOMPARE(names(), expectedNames);
        QCOMPARE(files->info(run).standing, refused.size());
        QCOMPARE(files->undo(run), QStringList(refused.size(), u"renamed"_s));
        QVERIFY(files->info(run).isTakenBack());
        for (const QString &name : names())
            QCOMPARE(files->tree.content(name), name.toUtf8());
    }

    void everyStepRefused()
    {
        {
            SystemFaults faults;
            faults.refuseMoving("/new", EIO);
            QCOMPARE(files->undo(run), QStringList(fileCount, u"refused"_s));
        }
        QCOMPARE(files->journals.list().size(), 1);
        QCOMPARE(files->undo(run), QStringList(fileCount, u"renamed"_s));
    }

    /// As network file systems do it: the run's journal keeps what was done all the same.
    void doneAndYetReportedAsFailed()
    {
        files->tree.addFile(u"a"_s);
        QString odd;
        {
            SystemFaults faults;
            faults.add({.call = SystemCall::RenameNoReplace, .part = "/a", .error = EIO, .done = true});
            odd = files->run({{u"a"_s, u"b"_s}});
        }
        QCOMPARE(files->tree.content(u"b"_s), "a");
        QCOMPARE(files->undo(odd), QStringList{u"renamed"_s});
        QCOMPARE(files->tree.content(u"a"_s), "a");
    }

    /// Without rename-without-replacing a file on the old name is seen all the same.
    void nothingIsReplaced()
    {
        files->tree.addFile(u"f3"_s, "other");
        for (const bool hardLinks : {true, false}) {
            SystemFaults faults;
            faults.forgetNoReplace(hardLinks, EPERM);
            (void)files->undo(run);
            QCOMPARE(files->tree.content(u"f3"_s), "other");
            QCOMPARE(files->tree.content(u"new3"_s), "f3");
        }
        QCOMPARE(files->info(run).standing, 1);
    }
};

QTEST_GUILESS_MAIN(TestInjectedUndo)
#include "tst_injected_undo.moc"
