// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/explorer.h"
#include "mainwindow/explorermodel.h"
#include "support/drivenwindow.h"
#include "support/explorerrows.h"
#include "support/modalanswer.h"

#include <QDockWidget>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QTest>
#include <QTreeView>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// The explorer's dock: what it costs a run and a scan, and how it follows what becomes of the folders that
/// are open in it.
class MainWindowExplorer : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<DrivenWindow> window;
    std::unique_ptr<BoxAnswerer> boxes;
    std::unique_ptr<TempTree> tree;

    [[nodiscard]] QTreeView *explorer() const { return window->child<QTreeView>("treeExplorer"); }
    [[nodiscard]] QAbstractItemModel *model() const { return explorer()->model(); }
    [[nodiscard]] QModelIndex child(const QModelIndex &folder, const QString &name) const
    {
        return explorerRow(model(), folder, name);
    }
    [[nodiscard]] QPersistentModelIndex open(const QString &path) const
    {
        return openInExplorer(explorer(), path);
    }
    [[nodiscard]] static QTimer *timerOf(const QTreeView *view)
    {
        return view->findChild<Explorer *>()->findChild<QTimer *>();
    }
    void run() const { window->click("buttonRename"); }
    /// Whether a row is inserted, removed or changed while a wait dialog is shown.
    void countChangesUnderTheWaitDialog(int &count) const
    {
        const auto look = [this, &count] {
            const ProgressDialog *dialog = window->waitDialog();
            count += dialog && dialog->isVisible();
        };
        connect(model(), &QAbstractItemModel::rowsInserted, model(), look);
        connect(model(), &QAbstractItemModel::rowsRemoved, model(), look);
        connect(model(), &QAbstractItemModel::layoutChanged, model(), look);
        connect(model(), &QAbstractItemModel::dataChanged, model(), look);
    }

private slots:
    void init()
    {
        settings = std::make_unique<TestSettings>();
        tree = std::make_unique<TempTree>();
        window = std::make_unique<DrivenWindow>();
        boxes = std::make_unique<BoxAnswerer>();
        window->get()->show();
        QVERIFY(QTest::qWaitForWindowExposed(window->get()));
    }
    void cleanup()
    {
        boxes.reset();
        window.reset();
        tree.reset();
        settings.reset();
    }

    void runAndScanCostTheSameWithTheFolderOpen()
    {
        constexpr int count = 1000;
        tree->addFiles(u"%1.txt"_s, count);
        const auto secondsToAddAndRename = [&] {
            QElapsedTimer timer;
            timer.start();
            window->drop({tree->path()});
            run();
            const qint64 elapsed = timer.elapsed();
            window->click("buttonFileListClear");
            return elapsed;
        };
        window->addInsert(u"x"_s);
        const qint64 closed = secondsToAddAndRename();
        const QPersistentModelIndex folder = open(tree->path());
        QTRY_COMPARE(model()->rowCount(folder), count);
        int changes = 0;
        countChangesUnderTheWaitDialog(changes);
        const qint64 opened = secondsToAddAndRename();
        QCOMPARE(boxes->seen.size(), 2);
        QCOMPARE(boxes->seen.constLast().text, u"Total 1000\nProcessed 1000\nFailed 0"_s);
        QCOMPARE(changes, 0);
        // Far from what other programs do to the figures, and far from the 19 s of a model that watches.
        QVERIFY2(opened < 3 * closed + 500, qPrintable(u"%1 ms, %2 ms"_s.arg(closed).arg(opened)));
    }

    void newNamesShowAfterARunAndWhatIsOpenStaysOpen()
    {
        tree->addFiles(u"%1.txt"_s, 50);
        tree->addFile(u"folder/inside.txt"_s);
        tree->addFile(u"untouched"_s);
        const QPersistentModelIndex folder = open(tree->path());
        const QPersistentModelIndex inner = open(tree->path(u"folder"_s));
        QTRY_COMPARE(model()->rowCount(inner), 1);
        const QPersistentModelIndex untouched = child(folder, u"untouched"_s);
        explorer()->setCurrentIndex(untouched);
        explorer()->verticalScrollBar()->setValue(3);
        window->drop({tree->path()});
        window->addInsert(u"new "_s);
        run();
        QTRY_VERIFY(child(folder, u"new 000.txt"_s).isValid());
        QTRY_COMPARE(explorerNames(model(), inner), QStringList{u"new inside.txt"_s});
        QTRY_COMPARE(model()->rowCount(folder), 52);
        QVERIFY(!child(folder, u"000.txt"_s).isValid());
        QVERIFY(explorer()->isExpanded(inner));
        QVERIFY(explorer()->isExpanded(folder));
        QVERIFY(untouched.isValid());
        QCOMPARE(explorer()->currentIndex(), untouched);
        QCOMPARE(explorer()->selectionModel()->selectedIndexes(), QModelIndexList{untouched});
        QCOMPARE(explorer()->verticalScrollBar()->value(), 3);
    }

    void renamedFilesStaySelected()
    {
        tree->addFiles(u"%1.txt"_s, 6);
        const QPersistentModelIndex folder = open(tree->path());
        QTRY_COMPARE(model()->rowCount(folder), 6);
        const auto select = [&](int row) {
            explorer()->selectionModel()->select(model()->index(row, 0, folder), QItemSelectionModel::Select);
        };
        for (const int row : {1, 2, 5})
            select(row);
        // All but the last: of its row nothing changes.
        window->drop({tree->path(u"000.txt"_s), tree->path(u"001.txt"_s), tree->path(u"002.txt"_s)});
        window->addInsert(u"new "_s);
        // While the report is still there.
        QStringList selected;
        boxes->beforeAnswer = [&](QMessageBox *) {
            QTRY_VERIFY(child(folder, u"new 000.txt"_s).isValid());
            for (const QModelIndex &index : explorer()->selectionModel()->selectedIndexes())
                selected.append(index.data().toString());
        };
        run();
        selected.sort();
        QCOMPARE(selected, QStringList({u"005.txt"_s, u"new 001.txt"_s, u"new 002.txt"_s}));
        // Once: a file of that name that comes later is another one.
        explorer()->selectionModel()->clear();
        QVERIFY(QFile::remove(tree->path(u"new 001.txt"_s)));
        QTRY_VERIFY(!child(folder, u"new 001.txt"_s).isValid());
        tree->addFile(u"new 001.txt"_s);
        QTRY_VERIFY(child(folder, u"new 001.txt"_s).isValid());
        QVERIFY(!explorer()->selectionModel()->hasSelection());
    }

    void changesFromOutsideShowOnceASecondAtMost()
    {
        const QPersistentModelIndex folder = open(tree->path());
        tree->addFile(u"first"_s);
        QTRY_COMPARE(model()->rowCount(folder), 1);
        QElapsedTimer sinceChange;
        sinceChange.start();
        QList<qint64> pauses;
        const auto note = [&](const QModelIndex &changed) {
            if (changed == folder)
                pauses.append(sinceChange.restart());
        };
        connect(model(), &QAbstractItemModel::rowsInserted, this, note);
        // One name at the end, again and again: each reading of the folder is one insertion.
        int made = 0;
        QTimer maker;
        connect(&maker, &QTimer::timeout, this, [&] { tree->addFile(u"z%1"_s.arg(++made)); });
        maker.start(2ms);
        QTRY_VERIFY_WITH_TIMEOUT(pauses.size() >= 4, 30000);
        maker.stop();
        model()->disconnect(this);
        pauses.removeFirst();
        for (const qint64 pause : std::as_const(pauses))
            QVERIFY2(pause >= 950, qPrintable(QString::number(pause)));
    }

    void closedFolderIsReadAgainWhenItIsOpened()
    {
        const QPersistentModelIndex folder = open(tree->path());
        tree->addFile(u"a"_s);
        QTRY_COMPARE(model()->rowCount(folder), 1);
        timerOf(explorer())->stop();
        explorer()->collapse(folder);
        tree->addFile(u"b"_s);
        explorer()->expand(folder);
        QTRY_COMPARE(model()->rowCount(folder), 2);
    }

    void nothingIsReadWhileNobodyCanSeeIt_data()
    {
        QTest::addColumn<QString>("how");
        QTest::newRow("dock closed") << u"closed"_s;
        QTest::newRow("window minimised") << u"minimised"_s;
        QTest::newRow("folder closed") << u"folder"_s;
        QTest::newRow("wait dialog") << u"wait"_s;
    }

    void nothingIsReadWhileNobodyCanSeeIt()
    {
        QFETCH(QString, how);
        const QPersistentModelIndex folder = open(tree->path());
        tree->addFile(u"a"_s);
        QTRY_COMPARE(model()->rowCount(folder), 1);
        auto *explorerModel = qobject_cast<ExplorerModel *>(model());
        QTimer *timer = timerOf(explorer());
        // Ticks are this test's own from here on.
        timer->stop();
        QTRY_VERIFY(!explorerModel->isBusy());
        const auto tick = [timer] {
            QMetaObject::invokeMethod(timer, "timeout");
            timer->stop();
        };
        auto *dock = window->child<QDockWidget>("dockWidgetExplorer");
        ProgressDialog dialog(window->get());
        if (how == "closed"_L1)
            dock->close();
        else if (how == "minimised"_L1)
            window->get()->setWindowState(Qt::WindowMinimized);
        else if (how == "folder"_L1)
            explorer()->collapse(folder);
        else
            dialog.show();
        tree->addFile(u"b"_s);
        tick();
        if (how != "folder"_L1)
            QVERIFY(!explorerModel->isBusy());
        QTRY_VERIFY(!explorerModel->isBusy());
        QCOMPARE(model()->rowCount(folder), 1);
        dock->show();
        window->get()->setWindowState(Qt::WindowNoState);
        dialog.hide();
        explorer()->expand(folder);
        // The pause that earlier readings made necessary may not be over.
        QTRY_VERIFY((tick(), model()->rowCount(folder) == 2));
    }

    // A folder that takes long to read is read less often.
    void costlyFolderIsReadSeldom()
    {
        const QPersistentModelIndex folder = open(tree->path());
        QTRY_VERIFY(!qobject_cast<ExplorerModel *>(model())->isBusy());
        QTimer *timer = timerOf(explorer());
        timer->stop();
        tree->addFiles(u"%1"_s, 5000);
        const auto tick = [timer] {
            QMetaObject::invokeMethod(timer, "timeout");
            timer->stop();
        };
        QElapsedTimer elapsed;
        QTRY_VERIFY((tick(), model()->rowCount(folder) == 5000));
        elapsed.start();
        tree->addFile(u"one more"_s);
        QTRY_VERIFY_WITH_TIMEOUT((tick(), model()->rowCount(folder) == 5001), 60000);
        // Reading and sorting took 4 ms at least.
        QVERIFY2(elapsed.elapsed() > 100, qPrintable(QString::number(elapsed.elapsed())));
    }
};

QTEST_MAIN(MainWindowExplorer)
#include "tst_mainwindow_explorer.moc"
