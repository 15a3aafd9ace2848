// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "plannedwindow.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

/// What is left of a run that was to rename all files or none.
class MainWindowUnfinished final : public PlannedWindowTest
{
    Q_OBJECT

private:
    /// A run of ten files stops after six of them, as if it had been killed; the window is closed.
    void interrupt()
    {
        window->drop(tree->addFiles(u"dir/%1"_s, 10));
        addShift();
        entry()->trigger();
        QByteArray journal;
        {
            const DuringEvents meanwhile([&](int) {
                const ProgressDialog *dialog = window->waitDialog();
                const QStringList names = tree->names(u"undo"_s).filter(u".jsonl"_s);
                if (dialog && dialog->current == 6 && !names.isEmpty())
                    journal = tree->content(u"undo/"_s + names.constFirst());
            });
            run();
        }
        QVERIFY(!journal.isEmpty());
        window.reset();
        // The files as they were then.
        for (int number = 1; number < 5; ++number)
            QVERIFY(QFile::rename(tree->path(u"dir/00%1"_s.arg(number)),
                                  tree->path(u"dir/00%1"_s.arg(number - 1))));
        QVERIFY(writeFile(tree->path(u"undo/"_s + journals().constFirst().name), journal));
        boxes->seen.clear();
        AppLog::instance()->clearPending();
    }
    /// Presses a button of the list of runs; what a report said then.
    [[nodiscard]] QString choose(const char *button) const
    {
        const ModalAnswer answer([&](QDialog *dialog) {
            QCOMPARE(dialog->objectName(), u"DialogRuns"_s);
            auto *choice = dialog->findChild<QPushButton *>(QLatin1StringView(button));
            QVERIFY(choice->isVisible());
            QTRY_VERIFY(choice->isEnabled());
            choice->click();
        });
        window->child<QAction>("actionRuns")->trigger();
        return boxes->seen.isEmpty() ? QString() : report().text;
    }

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void interruptedRunIsToldAndFinished()
    {
        interrupt();
        openWindow();
        QTRY_VERIFY(window->child<QToolButton>("buttonUndo")
                        ->toolTip()
                        .endsWith(u"\nThis run was interrupted; \"Runs…\" can finish it, too"_s));
        QCOMPARE(DrivenWindow::logLines()
                     .filter(QRegularExpression(
                         u"^The run of .* was interrupted; \"Runs…\" can finish it or put it back$"_s))
                     .size(),
                 1);
        QCOMPARE(boxes->seen.size(), 0);
        window->drop({tree->path(u"dir/000"_s)});
        const QString report = choose("buttonFinish");
        QCOMPARE(report, u"Total 10\nProcessed 10\nFailed 0"_s);
        QCOMPARE(folder().constFirst(), u"001=dir/000"_s);
        QCOMPARE(folder().constLast(), u"010=dir/009"_s);
        QCOMPARE(window->rowPaths(), paths({u"001"_s}));
        QCOMPARE(journals().size(), 1);
        QCOMPARE(journals().constFirst().state, JournalInfo::State::Complete);
        QVERIFY(DrivenWindow::logLines().contains(u"Finishing a run started"_s));
    }

    void interruptedRunIsPutBack()
    {
        interrupt();
        openWindow();
        QCOMPARE(choose("buttonPutBack").section(u'\n', 2), u"Failed 0"_s);
        QCOMPARE(folder().constFirst(), u"000=dir/000"_s);
        QCOMPARE(folder().constLast(), u"009=dir/009"_s);
    }

    void interruptedRunIsLeft()
    {
        interrupt();
        const QStringList before = folder();
        openWindow();
        (void)choose("buttonLeave");
        QCOMPARE(folder(), before);
        QVERIFY(!journals().constFirst().isOpen);
        QTRY_VERIFY(!window->child<QToolButton>("buttonUndo")->toolTip().contains(u'\n'));
    }

    void whatCannotBeFinishedIsTold()
    {
        interrupt();
        tree->addFile(u"dir/004"_s, "in the way");
        const QStringList before = folder();
        openWindow();
        window->drop({tree->path(u"dir/003"_s)});
        QCOMPARE(choose("buttonFinish").section(u'\n', 2), u"Failed 4"_s);
        QCOMPARE(report().informativeText, u"Nothing was renamed, as not every file can be."_s);
        QVERIFY(!report().buttonTexts.values().contains(renameRest));
        QCOMPARE(fates(), QStringList({u"taken"_s}));
        QCOMPARE(folder(), before);
        QVERIFY(journals().constFirst().canFinish());
    }

    void cancelLeavesItToBeFinishedLater()
    {
        interrupt();
        openWindow();
        {
            const DuringEvents cancel = cancelAfter(2);
            QCOMPARE(choose("buttonFinish").section(u'\n', 2), u"Failed 0"_s);
        }
        QCOMPARE(report().informativeText, u"The run is not finished yet."_s);
        QVERIFY(journals().constFirst().canFinish());
        QVERIFY(folder().contains(u"000=dir/000"_s));
        QCOMPARE(choose("buttonFinish"), u"Total 10\nProcessed 10\nFailed 0"_s);
        QCOMPARE(folder().constFirst(), u"001=dir/000"_s);
    }
};

QTEST_MAIN(MainWindowUnfinished)
#include "tst_mainwindow_unfinished.moc"
