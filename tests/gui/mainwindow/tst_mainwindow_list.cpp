// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/listwidgetfiles.h"
#include "mainwindow/rownames.h"
#include "support/environment.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QTest>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

QListWidgetItem *makeItem(const QString &path)
{
    auto *item = new QListWidgetItem(path);
    item->setData(Qt::UserRole, path);
    return item;
}

} // namespace

/// The list widget itself: the set of its paths, the removal of many rows, and the layout that is held
/// back.
class FileListWidget : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<ListWidgetFiles> list;

    void add(int count) const
    {
        for (int i = 0; i < count; ++i)
            list->addItem(makeItem(u"/p/%1"_s.arg(i)));
    }
    [[nodiscard]] QStringList paths() const
    {
        QStringList result;
        for (int row = 0; row < list->count(); ++row)
            result.append(list->item(row)->data(Qt::UserRole).toString());
        return result;
    }
    void setText(int row, const QString &text) const
    {
        list->setRowText(row, {FilePath::of(u"/p/"_s + text), text, false});
    }
    /// Compares the list with the rows that it should have, and its set of paths with both.
    void compare(const QStringList &expected, const QStringList &pool) const
    {
        QCOMPARE(paths(), expected);
        for (int row = 0; row < expected.size(); ++row)
            QCOMPARE(list->path(row), expected.at(row));
        for (const QString &path : pool)
            QVERIFY2(list->containsPath(path) == expected.contains(path), qPrintable(path));
    }
    /// Whether every row has its place below the one before it.
    [[nodiscard]] bool everyRowIsLaidOut() const
    {
        const QRect first = list->visualItemRect(list->item(0));
        for (int row = 0; row < list->count(); ++row) {
            const QRect rect = list->visualItemRect(list->item(row));
            if (!rect.isValid() || rect.top() != first.top() + row * first.height())
                return false;
        }
        return true;
    }

private slots:
    void init()
    {
        list = std::make_unique<ListWidgetFiles>();
        list->setSelectionMode(QAbstractItemView::ExtendedSelection);
        list->resize(300, 400);
        list->show();
        QVERIFY(QTest::qWaitForWindowExposed(list.get()));
    }
    void cleanup() { list.reset(); }

    void emptyListContainsNothing()
    {
        QVERIFY(!list->containsPath(u"/p/0"_s));
        QVERIFY(!list->containsPath({}));
    }

    void knownPathsFollowEveryChange()
    {
        const QStringList pool = {u"/a"_s, u"/b"_s, u"/c"_s, u"/d"_s, u"/A"_s, u"//a"_s, QString()};
        list->addItem(makeItem(u"/a"_s));
        list->addItem(makeItem(u"/c"_s));
        compare({u"/a"_s, u"/c"_s}, pool);
        list->insertItem(1, makeItem(u"/b"_s));
        compare({u"/a"_s, u"/b"_s, u"/c"_s}, pool);
        list->item(1)->setData(Qt::UserRole, u"/d"_s);
        compare({u"/a"_s, u"/d"_s, u"/c"_s}, pool);
        // The text is no path.
        list->item(0)->setText(u"/b"_s);
        compare({u"/a"_s, u"/d"_s, u"/c"_s}, pool);
        list->insertItem(0, list->takeItem(2));
        compare({u"/c"_s, u"/a"_s, u"/d"_s}, pool);
        delete list->item(1);
        compare({u"/c"_s, u"/d"_s}, pool);
        list->insertItems(1, {u"x"_s, u"y"_s});
        compare({u"/c"_s, QString(), QString(), u"/d"_s}, pool);
        list->item(1)->setData(Qt::UserRole, u"/d"_s);
        delete list->takeItem(3);
        // One of the two rows with this path is left.
        compare({u"/c"_s, u"/d"_s, QString()}, pool);
        list->clear();
        compare({}, pool);
        list->addItem(makeItem(u"/a"_s));
        compare({u"/a"_s}, pool);
        list->setPath(0, u"/b"_s);
        compare({u"/b"_s}, pool);
    }

    void knownPathsFollowRowsThatMoveWithinTheModel()
    {
        const QStringList pool = {u"/p/0"_s, u"/p/1"_s, u"/p/2"_s};
        add(3);
        QVERIFY(list->model()->moveRow({}, 0, {}, 3));
        compare({u"/p/1"_s, u"/p/2"_s, u"/p/0"_s}, pool);
        list->sortItems();
        compare(pool, pool);
        list->sortItems(Qt::DescendingOrder);
        compare({u"/p/2"_s, u"/p/1"_s, u"/p/0"_s}, pool);
    }

    void samePathInSeveralRowsIsContainedUntilTheLastGoes()
    {
        for (int i = 0; i < 3; ++i)
            list->addItem(makeItem(u"/same"_s));
        for (int left = 3; left > 0; --left) {
            QVERIFY(list->containsPath(u"/same"_s));
            delete list->takeItem(0);
        }
        QVERIFY(!list->containsPath(u"/same"_s));
    }

    void removeSelectedTakesWhateverIsSelected_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("percent");
        QTest::newRow("none") << 3000 << 0;
        QTest::newRow("few") << 3000 << 1;
        QTest::newRow("half") << 3000 << 50;
        QTest::newRow("most") << 3000 << 99;
        QTest::newRow("all") << 3000 << 100;
        QTest::newRow("of one row") << 1 << 100;
    }

    void removeSelectedTakesWhateverIsSelected()
    {
        QFETCH(int, rows);
        QFETCH(int, percent);
        QRandomGenerator random(static_cast<quint32>(percent));
        add(rows);
        const QStringList pool = paths();
        QStringList expected;
        QItemSelection selection;
        for (int row = 0; row < rows; ++row) {
            if (random.bounded(100) < percent) {
                const QModelIndex index = list->model()->index(row, 0);
                selection.merge(QItemSelection(index, index), QItemSelectionModel::Select);
            } else {
                expected.append(pool.at(row));
            }
        }
        list->selectionModel()->select(selection, QItemSelectionModel::Select);
        list->removeSelected();
        compare(expected, pool.mid(0, 200));
        for (int row = 0; row < list->count(); ++row)
            QCOMPARE(list->item(row)->text(), expected.at(row));
        list->showAddedRows();
        QTRY_VERIFY(everyRowIsLaidOut());
        if (percent > 0)
            QVERIFY(list->selectedItems().isEmpty());
    }

    void randomChangesAgreeWithAPlainList()
    {
        QRandomGenerator random(randomSeed());
        QStringList pool;
        for (int i = 0; i < 60; ++i)
            pool.append(u"/r/%1"_s.arg(i));
        QStringList model;
        for (int step = 0; step < 4000 && !QTest::currentTestFailed(); ++step) {
            changeBoth(model, pool, random);
            if (random.bounded(4) == 0)
                QCoreApplication::processEvents();
            if (step % 20 == 0)
                compare(model, pool);
        }
        compare(model, pool);
        list->showAddedRows();
        QTRY_VERIFY(everyRowIsLaidOut());
    }

    void rowsAddedWithEventsProcessedAreAllLaidOutInTheEnd()
    {
        for (int i = 0; i < 5000; ++i) {
            list->addItem(makeItem(u"/p/%1"_s.arg(i)));
            QCoreApplication::processEvents();
        }
        list->showAddedRows();
        QTRY_VERIFY(everyRowIsLaidOut());
        const int rowHeight = list->visualItemRect(list->item(0)).height();
        list->scrollToBottom();
        const QRect last = list->visualItemRect(list->item(4999));
        QCOMPARE(last.height(), rowHeight);
        QVERIFY(list->viewport()->rect().contains(last.center()));
        QCOMPARE(list->indexAt(last.center()).row(), 4999);
    }

    void rowsAddedWithEventsProcessedAreLaidOutTogether()
    {
        int layouts = 0;
        const auto countLayout = [&layouts] {
            ++layouts;
        };
        connect(list->verticalScrollBar(), &QScrollBar::rangeChanged, this, countLayout);
        QElapsedTimer clock;
        clock.start();
        for (int i = 0; i < 2000; ++i) {
            list->addItem(makeItem(u"/p/%1"_s.arg(i)));
            QCoreApplication::processEvents();
        }
        // One in 40 ms at most, and each may change the range twice: the other scroll bar takes its room.
        QVERIFY2(layouts <= 4 + 2 * clock.elapsed() / 40, qPrintable(QString::number(layouts)));
        QTRY_VERIFY(everyRowIsLaidOut());
        QVERIFY(layouts > 0);
    }

    void rowsAddedInOneGoShowByThemselves()
    {
        add(20);
        QCoreApplication::processEvents();
        add(5000);
        // Nobody asks for a layout: the one that is held back comes in its time.
        QTRY_VERIFY_WITH_TIMEOUT(list->visualItemRect(list->item(list->count() - 1)).isValid(), 30000);
        QVERIFY(everyRowIsLaidOut());
    }

    void rowsAddedRightAfterACostlyLayoutShowByThemselves()
    {
        add(5000);
        list->doItemsLayout();
        // These come while no layout is due; no other row follows them.
        add(3);
        // Twenty times what the layout took, and then the layout.
        QTRY_VERIFY_WITH_TIMEOUT(list->visualItemRect(list->item(5002)).isValid(), 30000);
        QVERIFY(everyRowIsLaidOut());
    }

    // Neither the first text nor the last, and wherever it comes from.
    void rowsAreAsWideAsTheWidestText()
    {
        const QString wide(200, u'W');
        const auto width = [&] {
            list->doItemsLayout();
            return list->visualItemRect(list->item(0)).width();
        };
        const int wanted = list->fontMetrics().horizontalAdvance(wide);
        for (const QString &text : {u"a"_s, wide, u"b"_s, u"c"_s})
            list->appendRow(u"/p/"_s + text, text);
        QVERIFY(width() >= wanted);
        // The rows that stay are added anew.
        list->item(3)->setSelected(true);
        list->removeSelected();
        QVERIFY(width() >= wanted);
        list->forgetTexts();
        for (int row = 0; row < 3; ++row)
            setText(row, u"a"_s);
        QVERIFY(width() < wanted);
        setText(1, wide);
        setText(2, u"b"_s);
        QVERIFY(width() >= wanted);
    }

    // New texts in a list that is laid out already: its rows, and how far it scrolls.
    void widthFollowsNewTextsWithoutALayout()
    {
        for (int row = 0; row < 50; ++row)
            list->appendRow(u"/p/%1"_s.arg(row), u"a"_s);
        list->showAddedRows();
        list->doItemsLayout();
        QCOMPARE(list->horizontalScrollBar()->maximum(), 0);
        const QString wide(200, u'W');
        const int wanted = list->fontMetrics().horizontalAdvance(wide);
        const auto show = [&](const QString &text) {
            for (int row = 0; row < list->count(); ++row)
                list->setPath(row, u"/p/"_s + text);
            list->forgetTexts();
            const auto names = std::make_shared<const RowNames>(std::vector<RuleData>(), false);
            for (int row = 0; row < list->count(); ++row)
                list->awaitText(row, names);
            QCOMPARE(list->item(7)->text(), text);
            list->showTexts(true);
        };
        show(wide);
        QVERIFY(list->visualItemRect(list->item(0)).width() >= wanted);
        QVERIFY(list->horizontalScrollBar()->maximum() >= wanted - list->viewport()->width());
        // Painted, and hit by a click, up to its end.
        list->horizontalScrollBar()->setValue(list->horizontalScrollBar()->maximum());
        QCOMPARE(list->indexAt({list->viewport()->width() - 5, 5}).row(), 0);
        QVERIFY(everyRowIsLaidOut());
        list->doItemsLayout();
        QVERIFY(list->visualItemRect(list->item(0)).width() >= wanted);
        QVERIFY(list->horizontalScrollBar()->maximum() >= wanted - list->viewport()->width());
        show(u"a"_s);
        QCOMPARE(list->horizontalScrollBar()->maximum(), 0);
        QVERIFY(list->visualItemRect(list->item(0)).width() < wanted);
    }

    void lineBreakInANameIsPaintedAsABlank()
    {
        const auto picture = [&](const QString &text) {
            list->clear();
            list->appendRow(u"/p/x"_s, text);
            list->showAddedRows();
            list->doItemsLayout();
            return list->viewport()->grab().toImage();
        };
        const QImage blank = picture(u"first second"_s);
        QVERIFY(blank != picture(u"firstsecond"_s));
        QCOMPARE(picture(u"first\nsecond"_s), blank);
        QCOMPARE(picture(u"first\u2028second"_s), blank);
    }

    void rowsHeldBackCanBeSelectedMovedAndRemoved()
    {
        add(5000);
        QCoreApplication::processEvents();
        add(300);
        list->setCurrentRow(5299);
        list->insertItem(0, list->takeItem(5299));
        add(300);
        list->insertItem(10, makeItem(u"/middle"_s));
        add(5);
        delete list->takeItem(5400);
        list->item(5500)->setText(u"another text"_s);
        list->selectAll();
        QCOMPARE(list->selectedItems().size(), list->count());
        QCoreApplication::processEvents();
        list->showAddedRows();
        QTRY_VERIFY(everyRowIsLaidOut());
        add(300);
        list->clear();
        QCoreApplication::processEvents();
        QCOMPARE(list->count(), 0);
        QCOMPARE(list->verticalScrollBar()->maximum(), 0);
    }

    void clearingWhileRowsAreHeldBackStartsAfresh()
    {
        add(5000);
        QCoreApplication::processEvents();
        add(100);
        list->clear();
        add(3);
        list->showAddedRows();
        QCoreApplication::processEvents();
        QCOMPARE(list->count(), 3);
        QVERIFY(everyRowIsLaidOut());
    }

private:
    void changeBoth(QStringList &model, const QStringList &pool, QRandomGenerator &random) const
    {
        const auto size = static_cast<int>(model.size());
        const QString &path = pool.at(random.bounded(static_cast<int>(pool.size())));
        const int row = size > 0 ? random.bounded(size) : 0;
        switch (const int what = random.bounded(20); what) {
        case 0:
        case 1:
            if (size > 0) {
                delete list->takeItem(row);
                model.removeAt(row);
            }
            break;
        case 2:
            if (size > 0) {
                list->item(row)->setData(Qt::UserRole, path);
                model[row] = path;
            }
            break;
        case 3:
            if (size > 0) {
                const int to = random.bounded(size);
                list->insertItem(to, list->takeItem(row));
                model.move(row, to);
            }
            break;
        case 4:
            removeSome(model, random);
            break;
        case 5:
            if (random.bounded(20) == 0) {
                list->clear();
                model.clear();
            }
            break;
        case 6:
            list->showAddedRows();
            break;
        case 7:
            if (size > 0)
                list->setCurrentRow(row);
            break;
        case 8:
        case 9:
        case 10:
            list->insertItem(row, makeItem(path));
            model.insert(row, path);
            break;
        default:
            list->addItem(makeItem(path));
            model.append(path);
            break;
        }
    }

    void removeSome(QStringList &model, QRandomGenerator &random) const
    {
        list->clearSelection();
        QStringList left;
        for (int row = 0; row < model.size(); ++row) {
            if (random.bounded(5) == 0)
                list->item(row)->setSelected(true);
            else
                left.append(model.at(row));
        }
        list->removeSelected();
        model = left;
    }
};

QTEST_MAIN(FileListWidget)
#include "tst_mainwindow_list.moc"
