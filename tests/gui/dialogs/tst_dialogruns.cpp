// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "dialogs/dialogruns.h"
#include "dialogs/runfilesmodel.h"
#include "dialogs/runmodel.h"
#include "support/modalanswer.h"

#include "support/journalfiles.h"

#include <QLabel>
#include <QLocale>
#include <QTest>
#include <QTreeView>

using namespace Qt::StringLiterals;

/// The list of the runs that are kept, and of their files.
class DialogRunsTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<JournalledTree> files;
    std::unique_ptr<DialogRuns> dialog;

    template <typename Widget>
    [[nodiscard]] Widget *child(const char *name) const
    {
        auto *found = dialog->findChild<Widget *>(QLatin1StringView(name));
        if (!found)
            qFatal("no such child: %s", name);
        return found;
    }
    [[nodiscard]] QPushButton *button(const char *name) const { return child<QPushButton>(name); }
    [[nodiscard]] QTreeView *tree() const { return child<QTreeView>("treeRuns"); }
    [[nodiscard]] QString note() const { return child<QLabel>("labelNote")->text(); }
    void open()
    {
        dialog = std::make_unique<DialogRuns>(files->journals, nullptr);
        dialog->show();
    }
    void select(int row) const { tree()->setCurrentIndex(tree()->model()->index(row, 0)); }
    [[nodiscard]] QString cell(int row, int column) const
    {
        return tree()->model()->index(row, column).data().toString();
    }
    [[nodiscard]] QStringList states() const
    {
        QStringList states;
        for (int row = 0; row < tree()->model()->rowCount(); ++row)
            states.append(cell(row, RunModel::StateColumn));
        return states;
    }
    [[nodiscard]] QString timeOf(const QString &run) const
    {
        const QLocale system = QLocale::system();
        return system.toString(files->info(run).time.toLocalTime(),
                               system.timeFormat(QLocale::ShortFormat).remove(u":ss"_s));
    }
    /// The texts of the files' table of the selected run.
    [[nodiscard]] QStringList shownFiles() const
    {
        QStringList rows;
        const ModalAnswer answer([&](QDialog *shown) {
            rows.append(shown->windowTitle());
            const auto *model = shown->findChild<QTreeView *>(u"treeRunFiles"_s)->model();
            for (int row = 0; row < model->rowCount(); ++row) {
                QStringList cells;
                for (int column = 0; column < model->columnCount(); ++column)
                    cells.append(model->index(row, column).data().toString());
                rows.append(cells.join(u'|'));
            }
        });
        button("buttonShowFiles")->click();
        return rows;
    }

private slots:
    void init() { files = std::make_unique<JournalledTree>(); }
    void cleanup()
    {
        dialog.reset();
        files.reset();
    }

    void nothingToShow()
    {
        open();
        QCOMPARE(tree()->model()->rowCount(), 0);
        for (const char *name : {"buttonTakeBack", "buttonShowFiles", "buttonForget", "buttonForgetAll"})
            QVERIFY(!button(name)->isEnabled());
        QVERIFY(button("buttonClose")->isEnabled());
        QVERIFY(!child<QLabel>("labelNote")->isVisible());
    }

    void textsOfItsButtons()
    {
        open();
        QCOMPARE(dialog->windowTitle(), u"Runs"_s);
        QCOMPARE(button("buttonTakeBack")->text(), u"Take back"_s);
        QCOMPARE(button("buttonShowFiles")->text(), u"Show files"_s);
        QCOMPARE(button("buttonForget")->text(), u"Forget"_s);
        QCOMPARE(button("buttonForgetAll")->text(), u"Forget all"_s);
        QCOMPARE(button("buttonClose")->text(), u"Close"_s);
        QVERIFY(button("buttonClose")->isDefault());
        QVERIFY(!button("buttonTakeBack")->autoDefault());
        QCOMPARE(dialog->windowModality(), Qt::WindowModal);
        QStringList headings;
        for (int column = 0; column < tree()->model()->columnCount(); ++column)
            headings.append(tree()->model()->headerData(column, Qt::Horizontal).toString());
        QCOMPARE(headings, QStringList({u"When"_s, u"Renamed"_s, u"Folder"_s, u"State"_s}));
    }

    void runsAreListedNewestFirst()
    {
        files->tree.addFile(u"one/a"_s);
        files->tree.addFile(u"two/b"_s);
        const QString first = files->run({{u"one/a"_s, u"x"_s}});
        const QString second = files->run({{u"one/x"_s, u"y"_s}, {u"two/b"_s, u"z"_s}});
        open();
        QCOMPARE(tree()->model()->rowCount(), 2);
        QCOMPARE(cell(0, RunModel::WhenColumn), timeOf(second));
        QCOMPARE(cell(0, RunModel::CountColumn), u"2"_s);
        QCOMPARE(cell(0, RunModel::PlaceColumn), u"2 folders"_s);
        QCOMPARE(cell(1, RunModel::CountColumn), u"1"_s);
        QCOMPARE(cell(1, RunModel::PlaceColumn),
                 QDir::toNativeSeparators(files->tree.path().section(u'/', 0, 0) + u"/…/one"_s));
        QCOMPARE(tree()->model()->index(1, RunModel::PlaceColumn).data(Qt::ToolTipRole).toString(),
                 QDir::toNativeSeparators(files->tree.path(u"one"_s)));
        QVERIFY(button("buttonTakeBack")->isEnabled());
    }

    void statesAreTold()
    {
        files->tree.addFiles(u"f%1"_s, 6);
        const QString back = files->run({{u"f000"_s, u"a"_s}});
        const QString partly = files->run({{u"f001"_s, u"b"_s}, {u"f002"_s, u"c"_s}});
        {
            auto journal = files->begin(1);
            files->renameAll(*journal, {{u"f003"_s, u"d"_s}});
            journal->end(true);
        }
        files->interruptedRun({{u"f004"_s, u"e"_s}});
        files->run({{u"f005"_s, u"f"_s}});
        QCOMPARE(files->undo(back), QStringList{u"renamed"_s});
        files->tree.addFile(u"f001"_s);
        QCOMPARE(files->undo(partly), QStringList({u"renamed"_s, u"taken"_s}));
        open();
        QCOMPARE(states(), QStringList({u"complete"_s, u"interrupted"_s, u"cancelled"_s,
                                        u"partly taken back"_s, u"taken back"_s}));
        QList<bool> canTakeBack;
        for (int row = 0; row < 5; ++row) {
            select(row);
            canTakeBack.append(button("buttonTakeBack")->isEnabled());
        }
        QCOMPARE(canTakeBack, QList<bool>({true, true, true, true, false}));
    }

    void journalsOfOthersAreShownAndLeftAlone()
    {
        files->tree.addFile(u"a"_s);
        QByteArray bytes = files->bytes(files->run({{u"a"_s, u"b"_s}}));
        files->write(u"20200101T000000000Z-00000000.jsonl"_s,
                     QByteArray(bytes).replace(thisMachine().toLatin1(), "0000000000000000"));
        files->write(u"20190101T000000000Z-00000000.jsonl"_s,
                     bytes.replace("\"version\":1", "\"version\":9"));
        files->write(u"20180101T000000000Z-00000000.jsonl"_s, "garbage\n");
        open();
        QCOMPARE(states(), QStringList({u"complete"_s, u"of another machine"_s, u"of a newer version"_s,
                                        u"unreadable"_s}));
        for (int row = 1; row < 4; ++row) {
            select(row);
            QVERIFY(!button("buttonTakeBack")->isEnabled());
            QVERIFY(button("buttonForget")->isEnabled());
            QCOMPARE(button("buttonShowFiles")->isEnabled(), row == 1);
        }
    }

    void choiceIsThereForAPlannedRunThatWasInterrupted()
    {
        files->tree.addFiles(u"f%1"_s, 5);
        files->run({{u"f000"_s, u"g"_s}});
        open();
        const auto isChoiceShown = [this] {
            return button("buttonFinish")->isVisible();
        };
        QVERIFY(!isChoiceShown());
        dialog.reset();

        const QString name =
            files->interruptedPlan({{u"f001"_s, u"h1"_s}, {u"f002"_s, u"h2"_s}, {u"f003"_s, u"h3"_s}});
        open();
        QTRY_COMPARE(states(), QStringList({u"interrupted"_s, u"complete"_s}));
        QCOMPARE(button("buttonPutBack")->text(), u"Put back"_s);
        QCOMPARE(button("buttonFinish")->text(), u"Finish"_s);
        QCOMPARE(button("buttonLeave")->text(), u"Leave"_s);
        for (const char *choice : {"buttonFinish", "buttonPutBack", "buttonLeave"}) {
            QVERIFY(button(choice)->isVisible());
            QVERIFY(button(choice)->isEnabled());
            QVERIFY(!button(choice)->autoDefault());
        }
        QVERIFY(!button("buttonTakeBack")->isEnabled());
        QVERIFY(note().startsWith("This run was to rename all files or none"_L1));
        select(1);
        QVERIFY(button("buttonTakeBack")->isEnabled());
        for (const char *choice : {"buttonFinish", "buttonPutBack", "buttonLeave"})
            QVERIFY(!button(choice)->isEnabled());
        QCOMPARE(note(), QString());

        select(0);
        QStringList finished;
        dialog->finish = [&finished](const QString &run) {
            finished.append(run);
        };
        button("buttonFinish")->click();
        QCOMPARE(finished, QStringList(name));
        button("buttonLeave")->click();
        QVERIFY(!files->info(name).isOpen);
        QVERIFY(!isChoiceShown());
        QVERIFY(button("buttonTakeBack")->isEnabled());
        QCOMPARE(files->tree.names().filter(u"f"_s), QStringList({u"f002"_s, u"f003"_s, u"f004"_s}));
    }

    void laterRunHasToBeTakenBackBefore()
    {
        files->tree.addFile(u"a"_s);
        files->run({{u"a"_s, u"b"_s}});
        const QString later = files->run({{u"b"_s, u"c"_s}});
        open();
        QTRY_COMPARE(states(), QStringList({u"complete"_s, u"complete, touched by a later run"_s}));
        QVERIFY(button("buttonTakeBack")->isEnabled());
        QVERIFY(!child<QLabel>("labelNote")->isVisible());
        select(1);
        QVERIFY(!button("buttonTakeBack")->isEnabled());
        QCOMPARE(note(), u"The run of %1 renamed some of these files. Take that one back first."_s.arg(
                             timeOf(later)));
        QVERIFY(child<QLabel>("labelNote")->isVisible());
        // Once it is taken back, the way is free.
        select(0);
        dialog->takeBack = [&](const QString &run) {
            QCOMPARE(files->undo(run), QStringList{u"renamed"_s});
        };
        button("buttonTakeBack")->click();
        QTRY_COMPARE(states(), QStringList({u"taken back"_s, u"complete"_s}));
        select(1);
        QVERIFY(button("buttonTakeBack")->isEnabled());
    }

    void takeBackNamesTheRunAndKeepsTheSelection()
    {
        files->tree.addFiles(u"f%1"_s, 2);
        const QString first = files->run({{u"f000"_s, u"a"_s}});
        files->run({{u"f001"_s, u"b"_s}});
        open();
        select(1);
        QString asked;
        dialog->takeBack = [&](const QString &run) {
            asked = run;
        };
        button("buttonTakeBack")->click();
        QCOMPARE(asked, first);
        QCOMPARE(tree()->currentIndex().row(), 1);
    }

    void filesAreShownWithWhatIsThereNow()
    {
        files->tree.addFiles(u"f%1"_s, 4);
        const QString run =
            files->run({{u"f000"_s, u"a"_s}, {u"f001"_s, u"b"_s}, {u"f002"_s, u"c"_s}, {u"f003"_s, u"d"_s}});
        const TempTree &tree = files->tree;
        QVERIFY(QFile::rename(tree.path(u"b"_s), tree.path(u"f001"_s)));
        QVERIFY(QFile::rename(tree.path(u"c"_s), tree.path(u"aside"_s)));
        files->tree.addFile(u"c"_s);
        QVERIFY(QFile::remove(tree.path(u"d"_s)));
        open();
        const QString folder = QDir::toNativeSeparators(tree.path());
        QCOMPARE(
            shownFiles(),
            QStringList({u"Files of the Run of "_s + timeOf(run), u"f003|d|is not there|"_s + folder,
                         u"f002|c|another file is there|"_s + folder, u"f001|b|has its old name|"_s + folder,
                         u"f000|a|has its new name|"_s + folder}));
    }

    void filesAreReadAsFarAsSomebodyLooks()
    {
        auto journal = files->begin(5000);
        for (int i = 0; i < 5000; ++i) {
            journal->renaming({.folder = u"/nowhere",
                               .from = QString::number(i),
                               .to = u"new",
                               .file = {.volume = u"v"_s, .number = 1}});
        }
        const QString path = journal->path();
        journal->end(false);
        RunFilesModel model(path, QDateTime::currentDateTimeUtc(), nullptr);
        QVERIFY(model.canFetchMore({}));
        QCOMPARE(model.rowCount(), 1000);
        QCOMPARE(model.index(0, RunFilesModel::OldNameColumn).data().toString(), u"4999"_s);
        while (model.canFetchMore({}))
            model.fetchMore({});
        QCOMPARE(model.rowCount(), 5000);
        QCOMPARE(model.index(4999, RunFilesModel::OldNameColumn).data().toString(), u"0"_s);
    }

    void forgetRemovesTheJournalAndNoFile()
    {
        files->tree.addFiles(u"f%1"_s, 2);
        const QString first = files->run({{u"f000"_s, u"a"_s}});
        const QString second = files->run({{u"f001"_s, u"b"_s}});
        open();
        select(1);
        button("buttonForget")->click();
        QCOMPARE(tree()->model()->rowCount(), 1);
        QVERIFY(!QFile::exists(files->journals.filePath(first)));
        QVERIFY(QFile::exists(files->journals.filePath(second)));
        QVERIFY(QFile::exists(files->tree.path(u"a"_s)));
    }

    void forgetAllAsksBefore()
    {
        files->tree.addFiles(u"f%1"_s, 2);
        files->run({{u"f000"_s, u"a"_s}});
        files->run({{u"f001"_s, u"b"_s}});
        open();
        {
            const BoxAnswer no(QMessageBox::Cancel);
            button("buttonForgetAll")->click();
            QCOMPARE(
                no.text,
                u"Forget all runs? The files stay as they are, and no run can be taken back any more."_s);
            QCOMPARE(no.buttonTexts.value(QMessageBox::Yes), u"Forget all"_s);
            QCOMPARE(no.defaultButton, u"Cancel"_s);
        }
        QCOMPARE(tree()->model()->rowCount(), 2);
        const BoxAnswer yes(QMessageBox::Yes);
        button("buttonForgetAll")->click();
        QCOMPARE(tree()->model()->rowCount(), 0);
        QCOMPARE(files->journals.list().size(), 0);
        QVERIFY(!button("buttonForgetAll")->isEnabled());
    }

    void runInHandIsLeftAlone()
    {
        files->tree.addFile(u"a"_s);
        auto journal = files->begin(1);
        files->renameAll(*journal, {{u"a"_s, u"b"_s}});
        open();
        QCOMPARE(states(), QStringList{u"in hand"_s});
        QVERIFY(!button("buttonTakeBack")->isEnabled());
        QVERIFY(!button("buttonForget")->isEnabled());
        QVERIFY(!button("buttonShowFiles")->isEnabled());
    }

    void canBeClosedWhileItReads()
    {
        for (int run = 0; run < 5; ++run) {
            auto journal = files->begin(20000);
            for (int i = 0; i < 20000; ++i) {
                journal->renaming({.folder = u"/nowhere",
                                   .from = QString::number(i),
                                   .to = QString::number(i),
                                   .file = {.volume = u"v"_s, .number = 1}});
            }
            journal->end(false);
        }
        for (int round = 0; round < 3; ++round) {
            open();
            dialog.reset();
        }
        open();
        QTRY_VERIFY(states().constLast().endsWith("touched by a later run"_L1));
    }
};

QTEST_MAIN(DialogRunsTest)
#include "tst_dialogruns.moc"
