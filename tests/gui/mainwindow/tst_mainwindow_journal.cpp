// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/journalfolder.h"
#include "support/drivenwindow.h"
#include "support/duringevents.h"
#include "support/modalanswer.h"

#include "filesizelimit.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// The journal of a run of the window, and what the log says of journals.
class MainWindowJournal : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<DrivenWindow> window;
    std::unique_ptr<BoxAnswerer> boxes;
    TempTree *tree = nullptr;

    [[nodiscard]] QString folder() const { return tree->path(u"undo"_s); }
    [[nodiscard]] QList<JournalInfo> journals() const { return JournalFolder(folder()).list(); }
    void openWindow()
    {
        window = std::make_unique<DrivenWindow>();
        window->stopLogTimer();
        window->get()->show();
    }
    void renameTwo() const
    {
        window->drop({tree->addFile(u"dir/a"_s), tree->addFile(u"dir/b"_s)});
        window->addInsert(u"x"_s);
        window->click("buttonRename");
    }
    /// What is left when the program is killed in the middle of a run: no last line.
    void cutEnd(const QString &name) const
    {
        QFile file(folder() + u'/' + name);
        QVERIFY(file.open(QIODevice::ReadWrite));
        const QByteArray bytes = file.readAll();
        QVERIFY(file.resize(bytes.lastIndexOf('\n', -2) + 1));
    }

private slots:
    void init()
    {
        settings = std::make_unique<TestSettings>();
        tree = &settings->tree;
        openWindow();
        boxes = std::make_unique<BoxAnswerer>();
    }
    void cleanup()
    {
        boxes.reset();
        window.reset();
        settings.reset();
    }

    void everyRunLeavesAJournal()
    {
        QVERIFY(!QFile::exists(folder()));
        window->drop({tree->addFile(u"dir/c"_s)});
        renameTwo();
        const QList<JournalInfo> runs = journals();
        QCOMPARE(runs.size(), 1);
        QCOMPARE(runs.first().state, JournalInfo::State::Complete);
        QCOMPARE(runs.first().rows, 3);
        QCOMPARE(runs.first().renamed, 3);
        QCOMPARE(runs.first().folder, tree->path(u"dir"_s));
        QCOMPARE(runs.first().program, QCoreApplication::applicationVersion());
        QVERIFY(runs.first().isRun());
    }

    void runThatRenamedNothingLeavesNone()
    {
        window->drop({tree->addFile(u"dir/a"_s)});
        window->click("buttonRename");
        QCOMPARE(boxes->seen.constFirst().text, u"Total 1\nProcessed 0\nFailed 1"_s);
        QCOMPARE(journals().size(), 0);
    }

    void emptyListMakesNoFolder()
    {
        window->click("buttonRename");
        QVERIFY(!QFile::exists(folder()));
    }

    void journalNamesFilesBeforeTheyAreRenamed()
    {
        bool isAhead = true;
        int seen = 0;
        const DuringEvents watch([&](int) {
            const ProgressDialog *dialog = window->waitDialog();
            if (!dialog || dialog->isHidden() || journals().isEmpty())
                return;
            ++seen;
            isAhead = isAhead && journals().first().state == JournalInfo::State::InHand;
        });
        renameTwo();
        QVERIFY(seen > 0);
        QVERIFY(isAhead);
    }

    void cancelledRunIsTold()
    {
        const DuringEvents cancel([&](int) {
            if (ProgressDialog *dialog = window->waitDialog())
                dialog->reject();
        });
        window->drop(tree->addFiles(u"dir/%1"_s, 10));
        window->addInsert(u"x"_s);
        window->click("buttonRename");
        QCOMPARE(journals().size(), 1);
        QCOMPARE(journals().first().state, JournalInfo::State::Cancelled);
        QVERIFY(journals().first().renamed < 10);
    }

    void withoutAJournalTheRunGoesOnAndTheLogSaysSo()
    {
        // Root may write into any folder, but not below a file.
        tree->addFile(u"undo"_s);
        renameTwo();
        QCOMPARE(tree->names(u"dir"_s), QStringList({u"xa"_s, u"xb"_s}));
        QCOMPARE(boxes->seen.constFirst().text, u"Total 2\nProcessed 2\nFailed 0"_s);
        QCOMPARE(DrivenWindow::logLines(),
                 QStringList({u"File renaming started"_s, u"This run cannot be undone"_s,
                              u"Total 2 Processed 2 Failed 0"_s}));
    }

    void fullDiskIsToldWithTheNumberOfWhatIsLost()
    {
        window->drop(tree->addFiles(u"dir/%1"_s, 1000));
        window->addInsert(u"x"_s);
        {
            const FileSizeLimit limit(1 << 16);
            window->click("buttonRename");
        }
        QCOMPARE(boxes->seen.constFirst().text, u"Total 1000\nProcessed 1000\nFailed 0"_s);
        const JournalInfo run = journals().first();
        QVERIFY(run.unrecorded > 0 && run.renamed > 0);
        QCOMPARE(DrivenWindow::logLines().at(1),
                 u"The last renames of this run cannot be undone: %1"_s.arg(run.unrecorded));
    }

    void onlyFiftyAreKept()
    {
        renameTwo();
        const QString first = journals().first().name;
        const QByteArray bytes = readFile(folder() + u'/' + first);
        for (int i = 10; i < 70; ++i)
            QVERIFY(writeFile(folder() + u"/202001%1T000000000Z-00000000.jsonl"_s.arg(i), bytes));
        window->click("buttonRename");
        QTRY_COMPARE(journals().size(), JournalFolder::mostJournals);
        QVERIFY(journals().at(1).name == first);
    }

    void interruptedRunIsToldAtTheNextStart()
    {
        renameTwo();
        cutEnd(journals().first().name);
        window.reset();
        AppLog::destroy();
        // It may start in the tray.
        window = std::make_unique<DrivenWindow>();
        window->stopLogTimer();
        QTRY_COMPARE(DrivenWindow::logLines().size(), 1);
        const QString line = DrivenWindow::logLines().constFirst();
        QVERIFY2(line.startsWith("The run of "_L1), qPrintable(line));
        QVERIFY2(line.endsWith(" was interrupted; what it renamed can be taken back"_L1), qPrintable(line));
        // Never automatic.
        QCOMPARE(tree->names(u"dir"_s), QStringList({u"xa"_s, u"xb"_s}));
        // Once a start.
        QVERIFY(window->showActive());
        renameTwo();
        QCOMPARE(DrivenWindow::logLines().filter(u"interrupted"_s).size(), 1);
    }

    void completeRunIsNotTold()
    {
        renameTwo();
        window.reset();
        AppLog::destroy();
        openWindow();
        renameTwo();
        QCOMPARE(DrivenWindow::logLines().filter(u"interrupted"_s).size(), 0);
    }
};

QTEST_MAIN(MainWindowJournal)
#include "tst_mainwindow_journal.moc"
