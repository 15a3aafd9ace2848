// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/fileitem.h"
#include "run/journalfolder.h"
#include "support/drivenwindow.h"
#include "support/duringevents.h"
#include "support/faketranslator.h"
#include "support/modalanswer.h"
#include "support/rowtip.h"

#include <QAction>
#include <QMenu>
#include <QTest>
#include <QTreeView>

using namespace Qt::StringLiterals;

/// Undo and Redo in the window: on disk, in the list, in the log and in the report.
class MainWindowUndo : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<DrivenWindow> window;
    std::unique_ptr<BoxAnswerer> boxes;
    TempTree *tree = nullptr;

    void openWindow()
    {
        window = std::make_unique<DrivenWindow>();
        window->stopLogTimer();
        QVERIFY(window->showActive());
        QTRY_VERIFY(!QFile::exists(tree->path(u"undo"_s)) || button()->isEnabled());
    }
    [[nodiscard]] QToolButton *button() const { return window->child<QToolButton>("buttonUndo"); }
    [[nodiscard]] QAction *action(const char *name) const { return window->child<QAction>(name); }
    [[nodiscard]] QStringList paths(const QStringList &names) const
    {
        QStringList paths;
        for (const QString &name : names)
            paths.append(tree->path(name));
        return paths;
    }
    void run() const { window->click("buttonRename"); }
    /// What is undone must have been read before.
    void undo() const
    {
        QTRY_VERIFY(button()->isEnabled());
        button()->click();
    }
    void redo() const
    {
        QTRY_VERIFY(action("actionRedo")->isEnabled());
        action("actionRedo")->trigger();
    }
    void renameTwo() const
    {
        window->drop({tree->addFile(u"dir/a"_s), tree->addFile(u"dir/b"_s)});
        window->addInsert(u"x"_s);
        run();
        boxes->seen.clear();
        AppLog::instance()->clearPending();
    }
    [[nodiscard]] static QString report(int total, int processed, int failed)
    {
        return u"Total %1\nProcessed %2\nFailed %3"_s.arg(total).arg(processed).arg(failed);
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
        QVERIFY(window->pathsAgree());
        boxes.reset();
        window.reset();
        settings.reset();
    }

    void buttonIsOffWhileThereIsNothingToTakeBack()
    {
        QVERIFY(!button()->isEnabled());
        QVERIFY(!action("actionUndo")->isEnabled());
        QVERIFY(!action("actionRedo")->isEnabled());
        QVERIFY(window->child<QToolButton>("buttonRuns")->isEnabled());
        renameTwo();
        QTRY_VERIFY(button()->isEnabled());
        QVERIFY(!action("actionRedo")->isEnabled());
        undo();
        QTRY_VERIFY(!button()->isEnabled());
        QVERIFY(action("actionRedo")->isEnabled());
    }

    void toolTipSaysWhatWouldBeDone()
    {
        renameTwo();
        QTRY_VERIFY(button()->isEnabled());
        const QLocale system = QLocale::system();
        const QDateTime time = JournalFolder(tree->path(u"undo"_s)).list().first().time.toLocalTime();
        const QString hours = system.timeFormat(QLocale::ShortFormat).remove(u":ss"_s);
        const QString root = tree->path().section(u'/', 0, 0);
        QCOMPARE(button()->toolTip(), u"Take back 2 renames of %1 in "_s.arg(system.toString(time, hours)) +
                                          QDir::toNativeSeparators(root + u"/…/dir"_s) + u" (Ctrl+Z)"_s);
        window->drop({tree->addFile(u"other/c"_s)});
        run();
        QTRY_VERIFY(button()->toolTip().endsWith("in 2 folders (Ctrl+Z)"_L1));
    }

    void namesComeBackAndRowsFollow()
    {
        renameTwo();
        undo();
        QCOMPARE(tree->names(u"dir"_s), QStringList({u"a"_s, u"b"_s}));
        QCOMPARE(tree->content(u"dir/a"_s), QByteArray("dir/a"));
        QCOMPARE(window->rowPaths(), paths({u"dir/a"_s, u"dir/b"_s}));
        QCOMPARE(window->rowTexts(), QStringList({u"a"_s, u"b"_s}));
        QCOMPARE(boxes->seen.size(), 1);
        QCOMPARE(boxes->seen.constFirst().title, u"Report"_s);
        QCOMPARE(boxes->seen.constFirst().text, report(2, 2, 0));
        QCOMPARE(DrivenWindow::logLines(),
                 QStringList({u"Taking back started"_s, u"Total 2 Processed 2 Failed 0"_s}));
    }

    void redoAndUndoInTurn()
    {
        renameTwo();
        for (int round = 0; round < 3; ++round) {
            undo();
            QCOMPARE(tree->names(u"dir"_s), QStringList({u"a"_s, u"b"_s}));
            redo();
            QCOMPARE(tree->names(u"dir"_s), QStringList({u"xa"_s, u"xb"_s}));
            QCOMPARE(window->rowPaths(), paths({u"dir/xa"_s, u"dir/xb"_s}));
        }
    }

    void runsAreTakenBackOneAfterTheOther()
    {
        renameTwo();
        run();
        undo();
        QCOMPARE(window->rowTexts(), QStringList({u"xa"_s, u"xb"_s}));
        undo();
        QCOMPARE(window->rowTexts(), QStringList({u"a"_s, u"b"_s}));
        QTRY_VERIFY(!button()->isEnabled());
    }

    /// A second click may come before the window knows that nothing is left.
    void clicksAtOnceAreOneUndoEach()
    {
        renameTwo();
        QTRY_VERIFY(button()->isEnabled());
        button()->click();
        action("actionUndo")->trigger();
        QCOMPARE(boxes->seen.size(), 1);
        QCOMPARE(window->rowTexts(), QStringList({u"a"_s, u"b"_s}));
    }

    void rowsInOtherFoldersFollow()
    {
        tree->addFolder(u"dir/sub"_s);
        window->drop({tree->addFile(u"dir/a"_s), tree->addFile(u"dir/in/b"_s)});
        window->addReplace(u"^a$"_s, u"sub/a"_s, true);
        window->addReplace(u"^b$"_s, u"../b"_s, true);
        run();
        QCOMPARE(window->rowPaths(), paths({u"dir/sub/a"_s, u"dir/in/../b"_s}));
        for (int round = 0; round < 2; ++round) {
            undo();
            QCOMPARE(window->rowPaths(), paths({u"dir/a"_s, u"dir/in/b"_s}));
            QCOMPARE(tree->names(u"dir"_s), QStringList({u"a"_s, u"in"_s, u"sub"_s}));
            redo();
            QCOMPARE(tree->names(u"dir"_s), QStringList({u"b"_s, u"in"_s, u"sub"_s}));
        }
        // Listed anew, by the short way.
        window->files()->clear();
        window->drop(paths({u"dir/b"_s, u"dir/sub/a"_s}));
        undo();
        QCOMPARE(window->rowPaths(), paths({u"dir/in/b"_s, u"dir/a"_s}));
    }

    void rowsFollowThroughNamesThatWereGivenTwice()
    {
        window->drop({tree->addFile(u"dir/b"_s), tree->addFile(u"dir/a"_s)});
        window->addReplace(u"b"_s, u"c"_s);
        window->addReplace(u"a"_s, u"b"_s);
        run();
        QCOMPARE(window->rowTexts(), QStringList({u"c"_s, u"b"_s}));
        undo();
        QCOMPARE(window->rowPaths(), paths({u"dir/b"_s, u"dir/a"_s}));
        QCOMPARE(tree->content(u"dir/a"_s), QByteArray("dir/a"));
    }

    void rowsInAnyOrderFollow()
    {
        window->drop(tree->addFiles(u"dir/%1"_s, 9));
        window->addInsert(u"x"_s);
        run();
        run();
        QStringList expected;
        for (const int row : {3, 0, 8, 1, 7, 2, 6, 4, 5})
            expected.append(tree->path(u"dir/00%1"_s.arg(row)));
        window->files()->clear();
        window->drop(QStringList(expected).replaceInStrings(u"dir/"_s, u"dir/xx"_s));
        undo();
        undo();
        QCOMPARE(window->rowPaths(), expected);
        redo();
        QCOMPARE(window->rowPaths(), QStringList(expected).replaceInStrings(u"dir/"_s, u"dir/x"_s));
    }

    void onlyRowsOfTheRunFollow()
    {
        renameTwo();
        window->drop({tree->addFile(u"dir/c"_s), tree->addFile(u"other/xa"_s)});
        window->files()->setCurrentRow(0);
        window->click("buttonFileListRemove");
        undo();
        QCOMPARE(window->rowPaths(), paths({u"dir/b"_s, u"dir/c"_s, u"other/xa"_s}));
    }

    void whatStandsInTheWayStaysAndIsTold()
    {
        window->drop({tree->addFile(u"dir/a"_s), tree->addFile(u"dir/b"_s), tree->addFile(u"dir/c"_s),
                      tree->addFile(u"dir/d"_s)});
        window->addInsert(u"x"_s);
        run();
        AppLog::instance()->clearPending();
        tree->addFile(u"dir/a"_s, "occupied");
        QVERIFY(QFile::remove(tree->path(u"dir/xb"_s)));
        QVERIFY(QFile::rename(tree->path(u"dir/xc"_s), tree->path(u"aside"_s)));
        tree->addFile(u"dir/xc"_s, "another");
        undo();
        QCOMPARE(boxes->seen.constLast().text, report(4, 1, 3));
        QCOMPARE(DrivenWindow::logLines(),
                 QStringList({u"Taking back started"_s,
                              u"Could not take back file 'xc': another file has its name"_s,
                              u"Could not take back file 'xb': the file is not there"_s,
                              u"Could not take back file 'xa': the name is taken"_s,
                              u"Total 4 Processed 1 Failed 3"_s}));
        QCOMPARE(tree->content(u"dir/a"_s), QByteArray("occupied"));
        QCOMPARE(tree->content(u"dir/xa"_s), QByteArray("dir/a"));
        QCOMPARE(tree->content(u"dir/xc"_s), QByteArray("another"));
        QCOMPARE(window->rowPaths(), paths({u"dir/xa"_s, u"dir/xb"_s, u"dir/xc"_s, u"dir/d"_s}));
        QCOMPARE(window->files()->item(0)->data(FileItem::FateRole).toString(), u"taken"_s);
        QVERIFY(tipIs(window->files()->item(2), u"Not renamed: another file has its name."_s));
        QVERIFY(!window->files()->item(3)->data(FileItem::FateRole).isValid());
        QCOMPARE(boxes->seen.constLast().buttonTexts.value(QMessageBox::NoButton), u"Show details…"_s);
        // What stayed can be tried again.
        QTRY_VERIFY(button()->toolTip().startsWith("Take back 3 renames"_L1));
        QVERIFY(QFile::remove(tree->path(u"dir/a"_s)));
        undo();
        QCOMPARE(boxes->seen.constLast().text, report(3, 1, 2));
        QCOMPARE(tree->content(u"dir/a"_s), QByteArray("dir/a"));
    }

    void cancelLeavesTheRestToBeTakenBackLater()
    {
        window->drop(tree->addFiles(u"dir/%1"_s, 10));
        window->addInsert(u"x"_s);
        run();
        boxes->seen.clear();
        {
            const DuringEvents cancel([&](int) {
                if (ProgressDialog *dialog = window->waitDialog(); dialog && dialog->current == 2)
                    dialog->buttonCancel->click();
            });
            undo();
        }
        QCOMPARE(boxes->seen.constFirst().text, report(10, 4, 0));
        QCOMPARE(tree->names(u"dir"_s).filter(QRegularExpression(u"^x"_s)).size(), 6);
        QTRY_VERIFY(button()->toolTip().startsWith("Take back 6 renames"_L1));
        QCOMPARE(JournalFolder(tree->path(u"undo"_s)).list().first().state, JournalInfo::State::Cancelled);
        undo();
        QCOMPARE(tree->names(u"dir"_s).filter(QRegularExpression(u"^x"_s)).size(), 0);
        QTRY_VERIFY(!button()->isEnabled());
    }

    void cancelledBeforeTheFirstStepNothingIsTakenBack()
    {
        renameTwo();
        QTRY_VERIFY(button()->isEnabled());
        const DuringEvents cancel([&](int) {
            if (ProgressDialog *dialog = window->waitDialog(); dialog && dialog->total == 0)
                dialog->reject();
        });
        button()->click();
        QCOMPARE(boxes->seen.constFirst().text, report(2, 0, 0));
        QCOMPARE(tree->names(u"dir"_s), QStringList({u"xa"_s, u"xb"_s}));
    }

    void waitDialogIsThatOfARun()
    {
        renameTwo();
        QTRY_VERIFY(button()->isEnabled());
        QList<int> steps;
        const DuringEvents watch([&](int) {
            const ProgressDialog *dialog = window->waitDialog();
            // While the journals are read nobody knows how many there are.
            if (!dialog || dialog->isHidden() || dialog->total == 0)
                return;
            QCOMPARE(dialog->windowTitle(), u"Please wait"_s);
            QCOMPARE(dialog->total, 2);
            QCOMPARE(dialog->windowModality(), Qt::WindowModal);
            steps.append(dialog->current);
        });
        button()->click();
        QVERIFY(steps.contains(0));
        QVERIFY(steps.contains(1));
    }

    void whileAWaitDialogIsUpNothingIsTakenBack()
    {
        renameTwo();
        QTRY_VERIFY(button()->isEnabled());
        int tries = 0;
        {
            const DuringEvents meanwhile([&](int) {
                const ProgressDialog *dialog = window->waitDialog();
                if (!dialog || dialog->isHidden())
                    return;
                ++tries;
                button()->click();
                action("actionUndo")->trigger();
                QTest::keyClick(window->get(), Qt::Key_Z, Qt::ControlModifier);
            });
            run();
            undo();
        }
        QVERIFY(tries > 0);
        QCOMPARE(boxes->seen.size(), 2);
        QCOMPARE(window->rowTexts(), QStringList({u"xa"_s, u"xb"_s}));
    }

    void previewIsReleased()
    {
        renameTwo();
        window->click("buttonPreview");
        QCOMPARE(window->rowTexts(), QStringList({u"xxa"_s, u"xxb"_s}));
        undo();
        QVERIFY(!window->preview()->isChecked());
        QCOMPARE(window->rowTexts(), QStringList({u"a"_s, u"b"_s}));
    }

    void afterARestartAllIsThere()
    {
        renameTwo();
        window.reset();
        openWindow();
        QTRY_VERIFY(button()->isEnabled());
        undo();
        QCOMPARE(tree->names(u"dir"_s), QStringList({u"a"_s, u"b"_s}));
        window.reset();
        window = std::make_unique<DrivenWindow>();
        window->get()->show();
        redo();
        QCOMPARE(tree->names(u"dir"_s), QStringList({u"xa"_s, u"xb"_s}));
    }

    void newRunEndsRedo()
    {
        renameTwo();
        undo();
        run();
        QTRY_VERIFY(!action("actionRedo")->isEnabled());
    }

    void keysAreATextFieldsOwnWhileItHasTheFocus()
    {
        renameTwo();
        QTRY_VERIFY(button()->isEnabled());
        QVERIFY(window->showActive());
        auto *filter = window->child<QLineEdit>("lineEditFileFilter");
        filter->setFocus();
        QTest::keyClicks(filter, u"abc"_s);
        QTest::keyClick(filter, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(filter->text(), QString());
        // Nothing is left to undo in it: still no run.
        QTest::keyClick(filter, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(filter, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(filter->text(), u"abc"_s);
        auto *number = window->editor<RuleWidgetEnumerate>(EnumerateKind)->spinBoxStartNumber;
        number->setFocus();
        QTest::keyClick(number, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(tree->names(u"dir"_s), QStringList({u"xa"_s, u"xb"_s}));
        QCOMPARE(boxes->seen.size(), 0);

        window->files()->setFocus();
        QTest::keyClick(window->files(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(tree->names(u"dir"_s), QStringList({u"a"_s, u"b"_s}));
        QTRY_VERIFY(action("actionRedo")->isEnabled());
        QVERIFY(window->showActive());
        QTest::keyClick(window->files(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(tree->names(u"dir"_s), QStringList({u"xa"_s, u"xb"_s}));
    }

    void clickOpensTheMenu()
    {
        renameTwo();
        QTRY_VERIFY(button()->isEnabled());
        window->click("buttonRuns");
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QCOMPARE(menu->actions().at(0)->text(), u"Undo"_s);
        QCOMPARE(menu->actions().at(1)->text(), u"Redo"_s);
        QCOMPARE(menu->actions().at(2)->text(), u"Runs…"_s);
        menu->actions().at(0)->trigger();
        menu->close();
        QCOMPARE(tree->names(u"dir"_s), QStringList({u"a"_s, u"b"_s}));
    }

    void runsAreTakenBackFromTheirList()
    {
        renameTwo();
        window->files()->clear();
        window->drop({tree->addFile(u"dir/c"_s)});
        run();
        boxes->seen.clear();
        const ModalAnswer answer([&](QDialog *dialog) {
            QCOMPARE(dialog->objectName(), u"DialogRuns"_s);
            QCOMPARE(dialog->parentWidget(), window->get());
            auto *runs = dialog->findChild<QTreeView *>(u"treeRuns"_s);
            QCOMPARE(runs->model()->rowCount(), 2);
            runs->setCurrentIndex(runs->model()->index(1, 0));
            dialog->findChild<QPushButton *>(u"buttonTakeBack"_s)->click();
            QCOMPARE(boxes->seen.size(), 1);
            QCOMPARE(boxes->seen.constFirst().text, report(2, 2, 0));
            QCOMPARE(boxes->seen.constFirst().parent, dialog);
            QCOMPARE(runs->model()->index(1, 3).data().toString(), u"taken back"_s);
            // Refused: there is nothing left.
            window->preview()->setChecked(true);
            QVERIFY(JournalFolder(tree->path(u"undo"_s)).forgetAll());
            runs->setCurrentIndex(runs->model()->index(0, 0));
            dialog->findChild<QPushButton *>(u"buttonTakeBack"_s)->click();
            QCOMPARE(boxes->seen.constLast().text, u"Nothing of this run is left to be taken back."_s);
            QCOMPARE(runs->model()->rowCount(), 0);
            QVERIFY(window->preview()->isChecked());
        });
        action("actionRuns")->trigger();
        QVERIFY(answer.isDone());
        QCOMPARE(tree->names(u"dir"_s), QStringList({u"a"_s, u"b"_s, u"xc"_s}));
        QTRY_VERIFY(!button()->isEnabled());
    }

    void forgottenRunsAreNoLongerOffered()
    {
        renameTwo();
        QTRY_VERIFY(button()->isEnabled());
        const ModalAnswer answer(
            [&](QDialog *dialog) { dialog->findChild<QPushButton *>(u"buttonForget"_s)->click(); });
        action("actionRuns")->trigger();
        QTRY_VERIFY(!button()->isEnabled());
        QCOMPARE(tree->names(u"dir"_s), QStringList({u"xa"_s, u"xb"_s}));
    }

    void textsFollowTheLanguage()
    {
        renameTwo();
        QTRY_VERIFY(button()->isEnabled());
        const FakeTranslator translator([](QLatin1StringView context, const QString &text) {
            return context == "Runs"_L1 || text == "Undo the last run"_L1 ? u"¡"_s + text : QString();
        });
        QTRY_VERIFY(button()->toolTip().startsWith(u"¡Take back"_s));
        QCOMPARE(button()->accessibleName(), u"¡Undo the last run"_s);
        QCOMPARE(action("actionUndo")->text(), u"¡Undo"_s);
    }

    void anotherInstanceMayHaveBeenQuicker()
    {
        renameTwo();
        QTRY_VERIFY(button()->isEnabled());
        QVERIFY(JournalFolder(tree->path(u"undo"_s)).forgetAll());
        button()->click();
        QCOMPARE(boxes->seen.size(), 0);
        QCOMPARE(tree->names(u"dir"_s), QStringList({u"xa"_s, u"xb"_s}));
        QTRY_VERIFY(!button()->isEnabled());
    }

    void whatAnotherInstanceDidIsSeenWhenTheWindowBecomesActive()
    {
        renameTwo();
        QTRY_VERIFY(button()->isEnabled());
        QVERIFY(JournalFolder(tree->path(u"undo"_s)).forgetAll());
        QEvent activated(QEvent::WindowActivate);
        QCoreApplication::sendEvent(window->get(), &activated);
        QTRY_VERIFY(!button()->isEnabled());
    }
};

QTEST_MAIN(MainWindowUndo)
#include "tst_mainwindow_undo.moc"
