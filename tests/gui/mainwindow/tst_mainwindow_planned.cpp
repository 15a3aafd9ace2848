// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "plannedwindow.h"

#include "mainwindow/plannedreport.h"
#include "support/faketranslator.h"
#include "support/rowtip.h"

#include <QBoxLayout>
#include <QMenu>

using namespace Qt::StringLiterals;

/// Runs that rename all files or none.
class MainWindowPlanned final : public PlannedWindowTest
{
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void offAtFirstAndNothingOfItIsSeen()
    {
        QVERIFY(entry()->isCheckable());
        QVERIFY(!entry()->isChecked());
        QVERIFY(!mark());
        QCOMPARE(SettingsStore::instance()->valueByName(settingName, u"none"_s).toString(), u"none"_s);
        window->click("buttonRuns");
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QCOMPARE(menu->actions().constLast(), entry());
        QCOMPARE(entry()->text(), u"All or nothing"_s);
        menu->close();
    }

    void markAndSettingFollowTheEntry()
    {
        entry()->trigger();
        QVERIFY(mark());
        QTRY_VERIFY(mark()->isVisible());
        QCOMPARE(mark()->toolTip(), u"All or nothing: a run renames every file of the list, or none"_s);
        QCOMPARE(mark()->accessibleName(), u"All or nothing"_s);
        QCoreApplication::processEvents();
        const QWidget *button = window->child<QToolButton>("buttonUndo");
        QCOMPARE(mark()->parentWidget(), button->parentWidget());
        QCOMPARE(mark()->geometry().right() + 1, button->x());
        QVERIFY(SettingsStore::instance()->valueByName(settingName, false).toBool());
        window.reset();
        openWindow();
        QVERIFY(entry()->isChecked());
        QVERIFY(mark());
        entry()->trigger();
        QVERIFY(!mark());
        QVERIFY(!SettingsStore::instance()->valueByName(settingName, true).toBool());
    }

    void swap_data()
    {
        QTest::addColumn<bool>("isOn");
        QTest::newRow("off") << false;
        QTest::newRow("on") << true;
    }
    void swap()
    {
        QFETCH(const bool, isOn);
        drop({u"a"_s, u"b"_s});
        addSwap();
        if (isOn)
            entry()->trigger();
        run();
        QVERIFY(!window->preview()->isChecked());
        if (!isOn) {
            QCOMPARE(folder(), QStringList({u"a=a"_s, u"b=b"_s}));
            QCOMPARE(report().text, u"Total 2\nProcessed 0\nFailed 2"_s);
            QCOMPARE(report().informativeText, QString());
            return;
        }
        QCOMPARE(folder(), QStringList({u"a=b"_s, u"b=a"_s}));
        QCOMPARE(window->rowPaths(), paths({u"b"_s, u"a"_s}));
        QCOMPARE(window->rowTexts(), QStringList({u"b"_s, u"a"_s}));
        QCOMPARE(boxes->seen.size(), 1);
        QCOMPARE(report().title, u"Report"_s);
        QCOMPARE(report().text, u"Total 2\nProcessed 2\nKept 0\nFailed 0"_s);
        QCOMPARE(report().informativeText, QString());
        QCOMPARE(DrivenWindow::logLines(),
                 QStringList({u"File renaming started"_s, u"Total 2 Processed 2 Kept 0 Failed 0"_s}));
    }

    void takenBackAndDoneAgain()
    {
        drop({u"a"_s, u"b"_s, u"c"_s});
        addSwap();
        entry()->trigger();
        run();
        for (int round = 0; round < 2; ++round) {
            QTRY_VERIFY(window->child<QToolButton>("buttonUndo")->isEnabled());
            window->click("buttonUndo");
            QCOMPARE(folder(), QStringList({u"a=a"_s, u"b=b"_s, u"c=c"_s}));
            QCOMPARE(window->rowPaths(), paths({u"a"_s, u"b"_s, u"c"_s}));
            QTRY_VERIFY(window->child<QAction>("actionRedo")->isEnabled());
            window->child<QAction>("actionRedo")->trigger();
            QCOMPARE(folder(), QStringList({u"a=b"_s, u"b=a"_s, u"c=c"_s}));
            QCOMPARE(window->rowPaths(), paths({u"b"_s, u"a"_s, u"c"_s}));
        }
    }

    void rowsFollowThroughARing()
    {
        drop({u"a"_s, u"x"_s, u"b"_s, u"c"_s});
        addRing();
        entry()->trigger();
        run();
        QCOMPARE(folder(), QStringList({u"a=c"_s, u"b=a"_s, u"c=b"_s, u"x=x"_s}));
        for (int round = 0; round < 2; ++round) {
            QTRY_VERIFY(window->child<QToolButton>("buttonUndo")->isEnabled());
            window->click("buttonUndo");
            QCOMPARE(window->rowPaths(), paths({u"a"_s, u"x"_s, u"b"_s, u"c"_s}));
            QTRY_VERIFY(window->child<QAction>("actionRedo")->isEnabled());
            window->child<QAction>("actionRedo")->trigger();
            QCOMPARE(window->rowPaths(), paths({u"b"_s, u"x"_s, u"c"_s, u"a"_s}));
        }
    }

    void shiftGoesFromItsFreeEnd()
    {
        window->drop(tree->addFiles(u"dir/%1"_s, 300));
        addShift();
        entry()->trigger();
        run();
        QCOMPARE(report().text, u"Total 300\nProcessed 300\nKept 0\nFailed 0"_s);
        for (int i = 0; i < 300; ++i) {
            const QString newName = u"dir/%1"_s.arg(i + 1, 3, 10, QLatin1Char('0'));
            QCOMPARE(tree->content(newName), u"dir/%1"_s.arg(i, 3, 10, QLatin1Char('0')).toUtf8());
            QCOMPARE(window->files()->path(i), tree->path(newName));
        }
        // An order was enough.
        QCOMPARE(journals().constFirst().renamed, 300);
    }

    void keptRowsHaveNotFailed()
    {
        drop({u"a"_s, u"b"_s, u"c"_s});
        addSwap();
        entry()->trigger();
        run();
        QCOMPARE(report().text, u"Total 3\nProcessed 2\nKept 1\nFailed 0"_s);
        QVERIFY(!report().buttonTexts.values().contains(u"Show details…"_s));
        QCOMPARE(DrivenWindow::logLines().size(), 2);
        QCOMPARE(fates(), QStringList({{}, {}, {}}));
        // Nothing is left to do, and nothing to be taken back.
        window->files()->clear();
        window->drop(paths({u"c"_s}));
        run();
        QCOMPARE(report().text, u"Total 1\nProcessed 0\nKept 1\nFailed 0"_s);
        QCOMPARE(journals().size(), 1);
    }

    void nothingIsTouchedWhereOneCannotBe()
    {
        drop({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
        tree->addFile(u"dir/taken"_s, "taken");
        addSwap();
        window->addReplace(u"c"_s, u"taken"_s);
        entry()->trigger();
        window->click("buttonPreview");
        run();
        QCOMPARE(folder(), QStringList({u"a=a"_s, u"b=b"_s, u"c=c"_s, u"d=d"_s, u"taken=taken"_s}));
        QVERIFY(!window->preview()->isChecked());
        QCOMPARE(boxes->seen.size(), 1);
        QCOMPARE(report().text, u"Total 4\nProcessed 0\nKept 1\nFailed 1"_s);
        QCOMPARE(report().informativeText, u"Nothing was renamed, as not every file can be."_s);
        QVERIFY(report().buttonTexts.values().contains(renameRest));
        QVERIFY(report().areIconsOf24);
        QCOMPARE(DrivenWindow::logLines(),
                 QStringList({u"File renaming started"_s, u"Could not rename file 'c'"_s,
                              u"Nothing was renamed, as not every file can be."_s,
                              u"Total 4 Processed 0 Kept 1 Failed 1"_s}));
        QCOMPARE(fates(), QStringList({{}, {}, u"taken"_s, {}}));
        QVERIFY(tipIs(window->files()->item(2), u"Not renamed: the name is taken."_s));
        QCOMPARE(journals().size(), 0);
    }

    void whatCanBeIsRenamedWhenThatIsWished()
    {
        // "1" waits for "2", which waits for "3", which something keeps.
        drop({u"1"_s, u"2"_s, u"a"_s, u"b"_s});
        tree->addFile(u"dir/3"_s, "3");
        addSwap();
        window->addReplace(u"2"_s, u"3"_s);
        window->addReplace(u"1"_s, u"2"_s);
        entry()->trigger();
        boxes->wanted = {renameRest};
        run();
        QCOMPARE(boxes->seen.size(), 2);
        QCOMPARE(boxes->seen.constFirst().text, u"Total 4\nProcessed 0\nKept 0\nFailed 2"_s);
        QCOMPARE(report().text, u"Total 4\nProcessed 2\nKept 0\nFailed 2"_s);
        QCOMPARE(report().informativeText, QString());
        QVERIFY(!report().buttonTexts.values().contains(renameRest));
        QCOMPARE(folder(), QStringList({u"1=1"_s, u"2=2"_s, u"3=3"_s, u"a=b"_s, u"b=a"_s}));
        QCOMPARE(fates(), QStringList({u"leaves-later"_s, u"taken"_s, {}, {}}));
        QCOMPARE(window->rowPaths(), paths({u"1"_s, u"2"_s, u"b"_s, u"a"_s}));
    }

    void nothingIsOfferedWhereNoneCanBe()
    {
        drop({u"a"_s});
        tree->addFile(u"dir/x"_s, "x");
        window->addReplace(u"a"_s, u"x"_s);
        entry()->trigger();
        run();
        QCOMPARE(report().text, u"Total 1\nProcessed 0\nKept 0\nFailed 1"_s);
        QVERIFY(!report().buttonTexts.values().contains(renameRest));
    }

    void cancelAsksAndPutsEverythingBack()
    {
        window->drop(tree->addFiles(u"dir/%1"_s, 10));
        addShift();
        const QStringList before = folder();
        entry()->trigger();
        {
            const DuringEvents cancel = cancelAfter(4);
            run();
        }
        QCOMPARE(boxes->seen.size(), 2);
        const SeenBox &question = boxes->seen.constFirst();
        QCOMPARE(question.icon, QMessageBox::Question);
        QCOMPARE(question.parent, window->get());
        QCOMPARE(question.text, u"New names so far: 5 of 10. Put everything back, or keep what is done?"_s);
        QCOMPARE(question.buttonTexts.values(), QStringList({putBack, keep}));
        QCOMPARE(question.defaultButton, putBack);
        QVERIFY(question.areIconsOf24);
        QCOMPARE(report().text, u"Total 10\nProcessed 0\nKept 0\nFailed 0"_s);
        QCOMPARE(report().informativeText, u"Nothing was renamed: the run was cancelled."_s);
        QCOMPARE(folder(), before);
        QCOMPARE(window->rowTexts().constFirst(), u"000"_s);
        QTRY_VERIFY(!window->child<QToolButton>("buttonUndo")->isEnabled());
    }

    void waitDialogCannotBeCancelledWhileAllIsPutBack()
    {
        window->drop(tree->addFiles(u"dir/%1"_s, 30));
        addShift();
        const QStringList before = folder();
        entry()->trigger();
        int closed = 0;
        {
            const DuringEvents cancel([&](int) {
                ProgressDialog *dialog = window->waitDialog();
                if (!dialog || dialog->isHidden())
                    return;
                if (dialog->buttonCancel->isHidden()) {
                    ++closed;
                    dialog->reject();
                } else if (dialog->current == 20) {
                    dialog->buttonCancel->click();
                }
            });
            run();
        }
        QVERIFY(closed > 10);
        QCOMPARE(boxes->seen.size(), 2);
        QCOMPARE(folder(), before);
    }

    void cancelledAndKept_data()
    {
        QTest::addColumn<int>("after");
        QTest::newRow("in a line") << 4;
        QTest::newRow("before a ring") << 9;
        // Of the ring one file has the name of another one then.
        QTest::newRow("in a ring") << 11;
    }
    void cancelledAndKept()
    {
        QFETCH(const int, after);
        drop({u"a"_s, u"b"_s, u"c"_s});
        window->drop(tree->addFiles(u"dir/%1"_s, 10));
        window->addReplace(u"^(\\d+)$"_s, u"x\\1"_s, true);
        addRing();
        entry()->trigger();
        boxes->wanted = {keep};
        {
            const DuringEvents cancel = cancelAfter(after);
            run();
        }
        QCOMPARE(boxes->seen.size(), 2);
        const int isTurned = after > 10 ? 3 : 0;
        const auto lines = qMin(after + 1, 10);
        const QStringList ring = folder().filter(QRegularExpression(u"^[abc]="_s));
        QCOMPARE(ring, isTurned > 0 ? QStringList({u"a=c"_s, u"b=a"_s, u"c=b"_s})
                                    : QStringList({u"a=a"_s, u"b=b"_s, u"c=c"_s}));
        QCOMPARE(tree->names(u"dir"_s).size(), 13);
        QCOMPARE(tree->names(u"dir"_s).filter(QRegularExpression(u"^x"_s)).size(), lines);
        QCOMPARE(report().text, u"Total 13\nProcessed %1\nKept 0\nFailed 0"_s.arg(lines + isTurned));
        QCOMPARE(report().informativeText, QString());
        QCOMPARE(journals().constFirst().state, JournalInfo::State::Cancelled);
        // Rows have followed, and all can be taken back.
        for (const QString &path : window->rowPaths())
            QVERIFY(QFile::exists(path));
        QTRY_VERIFY(window->child<QToolButton>("buttonUndo")->isEnabled());
        window->click("buttonUndo");
        QCOMPARE(tree->names(u"dir"_s).filter(QRegularExpression(u"^x"_s)).size(), 0);
        QCOMPARE(folder().last(3), QStringList({u"a=a"_s, u"b=b"_s, u"c=c"_s}));
        QCOMPARE(window->rowPaths().first(3), paths({u"a"_s, u"b"_s, u"c"_s}));
    }

    void cancelledBeforeAnythingIsDone()
    {
        window->drop(tree->addFiles(u"dir/%1"_s, 10));
        addShift();
        entry()->trigger();
        const DuringEvents cancel = cancelAfter(0);
        run();
        QCOMPARE(boxes->seen.size(), 1);
        QCOMPARE(report().text, u"Total 10\nProcessed 0\nKept 0\nFailed 0"_s);
        QCOMPARE(report().informativeText, u"Nothing was renamed: the run was cancelled."_s);
        QVERIFY(tree->names(u"dir"_s).contains(u"000"_s));
    }

    void oneThatFailsBringsAllOthersBack()
    {
        window->drop(tree->addFiles(u"dir/%1"_s, 10));
        addShift();
        entry()->trigger();
        {
            const DuringEvents meanwhile([&](int) {
                const ProgressDialog *dialog = window->waitDialog();
                if (dialog && dialog->current == 4)
                    (void)QFile::remove(tree->path(u"dir/002"_s));
            });
            run();
        }
        QCOMPARE(boxes->seen.size(), 1);
        QCOMPARE(report().text, u"Total 10\nProcessed 0\nKept 0\nFailed 1"_s);
        QCOMPARE(report().informativeText,
                 u"Nothing was renamed: one file failed, and the others have their old names again."_s);
        QCOMPARE(tree->names(u"dir"_s).size(), 9);
        QVERIFY(!tree->names(u"dir"_s).contains(u"010"_s));
        QCOMPARE(tree->content(u"dir/009"_s), QByteArray("dir/009"));
        QCOMPARE(fates().at(2), u"missing"_s);
        QVERIFY(DrivenWindow::logLines().contains(u"Could not rename file '002'"_s));
    }

    void whatCannotGoBackIsTold()
    {
        window->drop(tree->addFiles(u"dir/%1"_s, 10));
        addShift();
        entry()->trigger();
        {
            const DuringEvents meanwhile([&](int) {
                const ProgressDialog *dialog = window->waitDialog();
                // "009" is "010" by then, "008" is "009"; 007 fails.
                if (dialog && dialog->current == 2 && QFile::remove(tree->path(u"dir/007"_s)))
                    QVERIFY(QFile::remove(tree->path(u"dir/009"_s)));
            });
            run();
        }
        QCOMPARE(report().text, u"Total 10\nProcessed 2\nKept 0\nFailed 1"_s);
        QCOMPARE(report().informativeText,
                 u"The run could not be put back as a whole; files that do not have "
                 "their old names: 2"_s);
        const QStringList lines = DrivenWindow::logLines();
        QVERIFY2(lines.contains(u"Could not put back file '009': it is called '010'"_s),
                 qPrintable(lines.join(u'\n')));
        QCOMPARE(window->files()->path(9), tree->path(u"dir/010"_s));
        QCOMPARE(tree->content(u"dir/010"_s), QByteArray("dir/009"));
    }

    /// An exchange put it there.
    void fileInTheFolderOfAnotherRowIsTold()
    {
        Failures failures;
        tellNotPutBack(3, FilePath::of(u"/quite/a/long/folder/a"_s), u"/b/c"_s, failures);
        QCOMPARE(failures.constFirst().file.name(), u"c"_s);
        QVERIFY(DrivenWindow::logLines().contains(u"Could not put back file 'a': it is called '/b/c'"_s));
    }

    void windowThatIsClosedPutsEverythingBackUnasked()
    {
        window->drop(tree->addFiles(u"dir/%1"_s, 10));
        addShift();
        const QStringList before = folder();
        entry()->trigger();
        {
            const DuringEvents end([&](int) {
                const ProgressDialog *dialog = window->waitDialog();
                if (dialog && !dialog->isHidden() && dialog->current == 4)
                    QVERIFY(window->get()->closeQuietly());
            });
            run();
        }
        QCOMPARE(folder(), before);
        for (const SeenBox &box : std::as_const(boxes->seen))
            QVERIFY(box.icon != QMessageBox::Question);
    }

    void withoutAJournalNothingIsRenamed()
    {
        tree->addFile(u"undo"_s);
        drop({u"a"_s, u"b"_s});
        addSwap();
        entry()->trigger();
        run();
        QCOMPARE(folder(), QStringList({u"a=a"_s, u"b=b"_s}));
        QCOMPARE(report().text, u"Total 2\nProcessed 0\nKept 0\nFailed 0"_s);
        QCOMPARE(report().informativeText,
                 u"Nothing was renamed: the journal of the run cannot be written."_s);
    }

    void previewForetellsThePlannedRun()
    {
        drop({u"a"_s, u"b"_s, u"c"_s});
        addSwap();
        preview();
        QCOMPARE(told(), u"3 files: 0 will be renamed, 1 keeps its name, 2 cannot"_s);
        entry()->trigger();
        QCOMPARE(told(), u"checking…"_s);
        QTRY_COMPARE(told(), u"3 files: 2 will be renamed, 1 keeps its name, 0 cannot"_s);
        QCOMPARE(fates(), QStringList({u"renamed"_s, u"renamed"_s, u"unchanged"_s}));
        entry()->trigger();
        QTRY_COMPARE(told(), u"3 files: 0 will be renamed, 1 keeps its name, 2 cannot"_s);
    }

    void previewForetellsThatNothingWillBeRenamed()
    {
        drop({u"1"_s, u"2"_s, u"3"_s, u"z"_s});
        tree->addFile(u"dir/x"_s);
        window->addReplace(u"z"_s, u"x"_s);
        window->addReplace(u"2"_s, u"x"_s);
        window->addReplace(u"1"_s, u"2"_s);
        entry()->trigger();
        preview();
        QCOMPARE(told(), u"4 files: nothing will be renamed, as 3 cannot be"_s);
        QCOMPARE(fates(), QStringList({u"leaves-later"_s, u"taken"_s, u"unchanged"_s, u"taken-by-row"_s}));
        QVERIFY(tipIs(window->files()->item(0), u"Stays: row 2 still has the name 2."_s));
        QVERIFY(tipIs(window->files()->item(3), u"Stays: row 2 takes the name x."_s));
    }

    void planIsMadeAnewWhenRowsChangeMeanwhile()
    {
        window->drop(tree->addFiles(u"dir/%1"_s, 500));
        addShift();
        entry()->trigger();
        window->click("buttonPreview");
        for (int i = 0; i < 20; ++i) {
            QCoreApplication::processEvents();
            delete window->files()->takeItem(0);
        }
        QTRY_COMPARE(told(), u"480 files: 480 will be renamed, 0 keep their names, 0 cannot"_s);
        window.reset();
        openWindow();
        window->drop(paths({u"000"_s}));
        window->click("buttonPreview");
    }

    void textsFollowTheLanguage()
    {
        entry()->trigger();
        const FakeTranslator translator([](QLatin1StringView context, const QString &text) {
            return context == "AllOrNothing"_L1 ? u"¡"_s + text : QString();
        });
        QTRY_COMPARE(entry()->text(), u"¡All or nothing"_s);
        QVERIFY(mark()->toolTip().startsWith(u"¡All or nothing"_s));
    }
};

QTEST_MAIN(MainWindowPlanned)
#include "tst_mainwindow_planned.moc"
