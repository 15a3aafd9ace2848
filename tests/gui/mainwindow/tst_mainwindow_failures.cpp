// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/failuremodel.h"
#include "mainwindow/fatetexts.h"
#include "mainwindow/fileitem.h"
#include "support/drivenwindow.h"
#include "support/modalanswer.h"
#include "support/rowtip.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>
#include <QTreeView>

using namespace Qt::StringLiterals;

/// What a run says of the rows that it did not rename: in the rows, in the log and in the report's details.
class MainWindowFailures : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<DrivenWindow> window;
    TempTree *tree = nullptr;

    [[nodiscard]] QString data(int row, int role) const
    {
        return window->files()->item(row)->data(role).toString();
    }
    /// One is renamed, two find their name taken, two keep theirs, one is gone.
    void runWithTrouble() const
    {
        tree->addFile(u"dir/taken"_s);
        const QString gone = tree->addFile(u"dir/gone"_s);
        window->drop({tree->addFile(u"dir/1"_s), tree->addFile(u"dir/2"_s), tree->addFile(u"dir/3"_s),
                      tree->addFile(u"dir/x"_s), tree->addFile(u"dir/y"_s), gone});
        window->addReplace(u"^[12]$"_s, u"first"_s, true);
        window->addReplace(u"^3$"_s, u"taken"_s, true);
        window->addReplace(u"gone"_s, u"back"_s);
        QVERIFY(QFile::remove(gone));
        window->click("buttonRename");
    }
    /// What the details show: the headings of the groups, and below each its rows.
    static QStringList textsOf(const QAbstractItemModel &model)
    {
        QStringList texts;
        for (int group = 0; group < model.rowCount(); ++group) {
            const QModelIndex index = model.index(group, 0);
            texts.append(index.data().toString());
            for (int row = 0; row < model.rowCount(index); ++row) {
                const QModelIndex name = model.index(row, 0, index);
                texts.append(u"  "_s + name.data().toString() + u" > "_s +
                             name.siblingAtColumn(1).data().toString());
            }
        }
        return texts;
    }
    /// As the details show it.
    static QString shownFolder(const FilePath &file)
    {
        return QDir::toNativeSeparators(file.folder().toString());
    }
    static QAbstractButton *detailsButton(const QMessageBox *box)
    {
        const auto buttons = box->buttons();
        const auto found = std::find_if(buttons.begin(), buttons.end(), [](const QAbstractButton *button) {
            return button->text() == u"Show details…"_s;
        });
        return found == buttons.end() ? nullptr : *found;
    }

private slots:
    void init()
    {
        settings = std::make_unique<TestSettings>();
        tree = &settings->tree;
        window = std::make_unique<DrivenWindow>();
        window->stopLogTimer();
        window->get()->show();
    }
    void cleanup()
    {
        window.reset();
        settings.reset();
    }

    void rowsKeepTheReasonUntilTheNextRefresh()
    {
        BoxAnswerer boxes;
        QStringList whileBoxIsOpen;
        boxes.beforeAnswer = [&](QMessageBox *) {
            for (int row = 0; row < 6; ++row)
                whileBoxIsOpen.append(data(row, FileItem::FateRole));
        };
        runWithTrouble();
        const QStringList expected = {{},          u"taken"_s, u"taken"_s, u"unchanged"_s, u"unchanged"_s,
                                      u"missing"_s};
        QCOMPARE(whileBoxIsOpen, expected);
        QVERIFY(!window->preview()->isChecked());
        QVERIFY(tipIs(window->files()->item(1), u"Not renamed: the name is taken."_s));
        QVERIFY(tipIs(window->files()->item(3), u"Keeps its name."_s));
        QCOMPARE(data(5, Qt::AccessibleDescriptionRole), u"Not renamed: the file is not there."_s);
        QVERIFY(tipIs(window->files()->item(0), {}));
        QCOMPARE(window->rowTexts(), QStringList({u"first"_s, u"2"_s, u"3"_s, u"x"_s, u"y"_s, u"gone"_s}));
        QVERIFY(window->showActive());
        QTest::keyClick(window->get(), Qt::Key_F8);
        QCOMPARE(window->files()->currentRow(), 1);
        window->click("checkBoxShowFullPath");
        for (int row = 0; row < 6; ++row)
            QCOMPARE(data(row, FileItem::FateRole), QString());
    }

    void reasonFollowsTheLogLineAsADebugMessage()
    {
        BoxAnswerer boxes;
        SettingsStore::instance()->setValue(SettingKey::LogIncludeDebugInfo, true);
        installLogMessageHandler();
        runWithTrouble();
        const QStringList lines = DrivenWindow::logLines();
        const qsizetype line = lines.indexOf(u"Could not rename file '2'"_s);
        QVERIFY(line > 0);
        QVERIFY2(lines.at(line + 1).contains("not renamed: taken"_L1), qPrintable(lines.join(u'\n')));
        QVERIFY(lines.at(lines.indexOf(u"Could not rename file 'x'"_s) + 1)
                    .contains("not renamed: unchanged"_L1));
    }

    void reportKeepsItsOneStandardButton()
    {
        BoxAnswerer boxes;
        bool isOkTheDefault = false;
        bool isOkTheEscape = false;
        boxes.beforeAnswer = [&](QMessageBox *box) {
            isOkTheDefault = box->defaultButton() == box->button(QMessageBox::Ok);
            isOkTheEscape = box->escapeButton() == box->button(QMessageBox::Ok);
        };
        runWithTrouble();
        QCOMPARE(boxes.seen.constFirst().buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(boxes.seen.constFirst().buttonTexts.value(QMessageBox::Ok), u"Close"_s);
        QCOMPARE(boxes.seen.constFirst().text, u"Total 6\nProcessed 1\nFailed 5"_s);
        QCOMPARE(boxes.seen.constFirst().buttonTexts.value(QMessageBox::NoButton), u"Show details…"_s);
        QVERIFY(isOkTheDefault);
        QVERIFY(isOkTheEscape);
    }

    void nothingToShowNoButton()
    {
        BoxAnswerer boxes;
        window->drop({tree->addFile(u"dir/a"_s)});
        window->addInsert(u"x"_s);
        window->click("buttonRename");
        QCOMPARE(boxes.seen.constFirst().buttonTexts.size(), 1);
    }

    void detailsAreGroupedCopiedAndLeaveTheBoxOpen()
    {
        QStringList shown;
        QString all;
        QString one;
        bool isBoxOpen = false;
        BoxAnswerer boxes;
        boxes.beforeAnswer = [&](QMessageBox *box) {
            const ModalAnswer details([&](QDialog *dialog) {
                const auto *view = dialog->findChild<QTreeView *>(u"treeFailures"_s);
                shown = textsOf(*view->model());
                QVERIFY(view->isExpanded(view->model()->index(0, 0)));
                dialog->findChild<QPushButton *>(u"buttonCopy"_s)->click();
                all = QGuiApplication::clipboard()->text();
                const QModelIndex missing = view->model()->index(1, 0);
                view->selectionModel()->setCurrentIndex(view->model()->index(0, 0, missing),
                                                        QItemSelectionModel::ClearAndSelect |
                                                            QItemSelectionModel::Rows);
                dialog->activateWindow();
                QVERIFY(QTest::qWaitForWindowActive(dialog));
                QTest::keySequence(dialog, QKeySequence::Copy);
                one = QGuiApplication::clipboard()->text();
            });
            detailsButton(box)->click();
            QVERIFY(details.isDone());
            isBoxOpen = box->isVisible();
        };
        runWithTrouble();
        QVERIFY(isBoxOpen);
        QCOMPARE(shown, QStringList({u"2: the name is taken"_s, u"  2 > first"_s, u"  3 > taken"_s,
                                     u"1: the file is not there"_s, u"  gone > back"_s,
                                     u"2 keep their names"_s, u"  x > x"_s, u"  y > y"_s}));
        const QString folder = u'\t' + QDir::toNativeSeparators(tree->path(u"dir"_s)) + u'\n';
        QCOMPARE(one, u"gone\tback"_s + folder);
        QCOMPARE(all, u"2: the name is taken\n2\tfirst"_s + folder + u"3\ttaken"_s + folder +
                          u"1: the file is not there\ngone\tback"_s + folder + u"2 keep their names\nx\tx"_s +
                          folder + u"y\ty"_s + folder);
    }

    void selectedRowsAreCopiedInTheirOrder()
    {
        const FilePath a = FilePath::of(u"/d/a"_s);
        const FilePath b = FilePath::of(u"/d/b"_s);
        const Failures failures = {{0, a, {Fate::Taken, Fate::Taken, -1, a.sibling(u"x"_s)}},
                                   {1, b, {Fate::Taken, Fate::Taken, -1, b.sibling(u"y"_s)}}};
        const FailureModel model(failures, nullptr);
        const QModelIndex group = model.index(0, 0);
        QCOMPARE(model.asText({model.index(1, 0, group), group, model.index(0, 0, group)}),
                 u"2: the name is taken\na\tx\t%1\nb\ty\t%1\n"_s.arg(shownFolder(a)));
    }

    void enterClosesTheReportWhateverWasClicked()
    {
        BoxAnswerer boxes;
        bool isDefault = true;
        boxes.beforeAnswer = [&](QMessageBox *box) {
            auto *details = qobject_cast<QPushButton *>(detailsButton(box));
            details->setFocus();
            QTRY_VERIFY(details->hasFocus());
            isDefault = details->isDefault();
        };
        runWithTrouble();
        QVERIFY(!isDefault);
    }

    void oddNamesStayOnTheirLine()
    {
        const FilePath file = FilePath::of(u"/d/a\tb\nc"_s);
        const Failures failures = {{0, file, {Fate::Taken, Fate::Taken, -1, file.sibling(u"x/y"_s)}}};
        const FailureModel model(failures, nullptr);
        QCOMPARE(model.allAsText(), u"1: the name is taken\na b c\tx/y\t%1\n"_s.arg(shownFolder(file)));
    }
};

QTEST_MAIN(MainWindowFailures)
#include "tst_mainwindow_failures.moc"
