// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/fileitem.h"
#include "mainwindow/roworder.h"
#include "support/drivenwindow.h"
#include "support/duringevents.h"
#include "support/faketranslator.h"
#include "support/modalanswer.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

/// Sorting the list and moving its selected rows: by menu and by key, what follows, and what does not change.
class MainWindowSort : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<DrivenWindow> window;
    TempTree *tree = nullptr;

    [[nodiscard]] QToolButton *button() const { return window->child<QToolButton>("buttonSort"); }
    [[nodiscard]] QMenu *menu() const { return button()->findChild<QMenu *>(u"menuSort"_s); }
    [[nodiscard]] QStringList entries() const
    {
        QStringList texts;
        for (const QAction *action : menu()->actions()) {
            if (!action->isSeparator())
                texts.append(action->text());
        }
        return texts;
    }
    void sort(const char *action) const { window->child<QAction>(action)->trigger(); }
    void press(Qt::Key key) const
    {
        // A wait dialog may just have gone.
        QVERIFY(QTest::qWaitForWindowActive(window->get()));
        QTest::keyClick(window->files(), key, Qt::AltModifier);
    }
    void list(const QStringList &names) const
    {
        for (const QString &name : names)
            window->files()->appendRow(u"/p/"_s + name, name);
        window->files()->showAddedRows();
    }
    [[nodiscard]] QStringList names() const
    {
        return window->rowPaths().replaceInStrings(QRegularExpression(u"^/p/"_s), {});
    }
    void select(const QList<int> &rows, int current) const
    {
        auto *files = window->files();
        files->setCurrentRow(current, QItemSelectionModel::Clear);
        for (const int row : rows)
            files->item(row)->setSelected(true);
    }
    [[nodiscard]] QStringList selected() const
    {
        QStringList result;
        for (int row = 0; row < window->files()->count(); ++row) {
            if (window->files()->item(row)->isSelected())
                result.append(names().at(row));
        }
        return result;
    }
    [[nodiscard]] QString current() const { return names().value(window->files()->currentRow()); }

private slots:
    void init()
    {
        settings = std::make_unique<TestSettings>();
        tree = &settings->tree;
        window = std::make_unique<DrivenWindow>();
        window->stopLogTimer();
        QVERIFY(window->showActive());
        window->files()->setFocus();
    }
    void cleanup()
    {
        QVERIFY(window->pathsAgree());
        window.reset();
        settings.reset();
    }

    void clickOpensTheMenu()
    {
        QTest::mouseClick(button(), Qt::LeftButton);
        QTRY_VERIFY(menu()->isVisible());
        menu()->close();
        button()->setFocus(Qt::TabFocusReason);
        QTest::keyClick(button(), Qt::Key_Space);
        QTRY_VERIFY(menu()->isVisible());
        menu()->close();
        QCOMPARE(entries(), QStringList({u"Name, ascending"_s, u"Name, descending"_s, u"Path, ascending"_s,
                                         u"Path, descending"_s, u"Extension, ascending"_s,
                                         u"Extension, descending"_s, u"Size, ascending"_s,
                                         u"Size, descending"_s, u"Time of modification, ascending"_s,
                                         u"Time of modification, descending"_s, u"Order of adding"_s}));
        QCOMPARE(button()->accessibleName(), u"Sort the files"_s);
    }

    void textsFollowTheLanguage()
    {
        const FakeTranslator translator([](QLatin1StringView context, const QString &text) {
            return context == "SortMenu"_L1 ? u"<%1>"_s.arg(text) : QString();
        });
        QCoreApplication::processEvents();
        QCOMPARE(entries().constFirst(), u"<<Name>, ascending>"_s);
        QCOMPARE(entries().constLast(), u"<Order of adding>"_s);
    }

    void entriesSort()
    {
        const QString a = tree->addFile(u"2/a.txt"_s, "333");
        const QString b = tree->addFile(u"10/b.jpg"_s, "1");
        const QString c = tree->addFile(u"1/c.png"_s, "22");
        const QDateTime now = QDateTime::currentDateTime();
        for (const auto &[path, seconds] : {std::pair(a, 20), std::pair(b, 10), std::pair(c, 30)}) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::ReadWrite));
            QVERIFY(file.setFileTime(now.addSecs(seconds), QFileDevice::FileModificationTime));
        }
        window->drop({b, c, a});
        const std::pair<const char *, QStringList> wishes[] = {
            {"actionSortName", {a, b, c}},      {"actionSortPath", {c, a, b}},
            {"actionSortExtension", {b, c, a}}, {"actionSortSize", {b, c, a}},
            {"actionSortModified", {b, a, c}},
        };
        for (const auto &[name, ascending] : wishes) {
            sort(name);
            QCOMPARE(window->rowPaths(), ascending);
            QStringList descending = ascending;
            std::reverse(descending.begin(), descending.end());
            sort(QByteArray(name).append("Descending").constData());
            QCOMPARE(window->rowPaths(), descending);
        }
        sort("actionSortAdding");
        QCOMPARE(window->rowPaths(), QStringList({b, c, a}));
    }

    void emptyListIsLeftAlone()
    {
        sort("actionSortName");
        press(Qt::Key_Up);
        QCOMPARE(window->files()->count(), 0);
    }

    void orderOfAddingOutlivesWhatIsDoneToTheRows()
    {
        const QStringList paths = tree->addFiles(u"%1"_s, 6);
        window->drop({paths.at(3), paths.at(5), paths.at(1), paths.at(0), paths.at(4), paths.at(2)});
        sort("actionSortName");
        window->files()->setCurrentRow(5);
        window->click("buttonFileListUp");
        window->files()->setCurrentRow(1);
        window->click("buttonFileListRemove");
        window->addInsert(u"x"_s);
        {
            const BoxAnswerer boxes;
            window->click("buttonRename");
        }
        sort("actionSortAdding");
        QCOMPARE(window->rowTexts(), QStringList({u"x003"_s, u"x005"_s, u"x000"_s, u"x004"_s, u"x002"_s}));
    }

    void selectionAndCurrentRowFollow()
    {
        list({u"c"_s, u"a"_s, u"d"_s, u"b"_s});
        select({0}, 0);
        sort("actionSortName");
        QCOMPARE(names(), QStringList({u"a"_s, u"b"_s, u"c"_s, u"d"_s}));
        QCOMPARE(selected(), QStringList{u"c"_s});
        QCOMPARE(current(), u"c"_s);
        // A current row that is not selected, beside one that is; and none at all.
        select({0}, 3);
        sort("actionSortNameDescending");
        QCOMPARE(selected(), QStringList{u"a"_s});
        QCOMPARE(current(), u"d"_s);
        select({}, -1);
        sort("actionSortName");
        QCOMPARE(selected(), QStringList());
        QCOMPARE(window->files()->currentRow(), -1);
    }

    void severalSelectedRowsAreSortedAmongTheirPlaces()
    {
        list({u"f"_s, u"5"_s, u"e"_s, u"4"_s, u"10"_s, u"d"_s});
        select({1, 3, 4}, 1);
        sort("actionSortName");
        QCOMPARE(names(), QStringList({u"f"_s, u"4"_s, u"e"_s, u"5"_s, u"10"_s, u"d"_s}));
        QCOMPARE(selected(), QStringList({u"4"_s, u"5"_s, u"10"_s}));
        QCOMPARE(current(), u"5"_s);
        // The plain buttons move the current row, whatever is selected.
        window->click("buttonFileListUp");
        QCOMPARE(names(), QStringList({u"f"_s, u"4"_s, u"5"_s, u"e"_s, u"10"_s, u"d"_s}));
    }

    void numbersCountByTheRow()
    {
        list({u"c"_s, u"a"_s, u"b"_s});
        window->addEnumerate(1);
        window->preview()->click();
        QCOMPARE(window->rowTexts(), QStringList({u"1c"_s, u"2a"_s, u"3b"_s}));
        sort("actionSortName");
        QCOMPARE(window->rowTexts(), QStringList({u"1a"_s, u"2b"_s, u"3c"_s}));
        select({2}, 2);
        press(Qt::Key_Home);
        QCOMPARE(window->rowTexts(), QStringList({u"1c"_s, u"2a"_s, u"3b"_s}));
        const auto *figures = window->child<QLabel>("labelForecast");
        QTRY_VERIFY(figures->text().startsWith("3 files"_L1));
        QVERIFY(!window->files()->item(0)->data(FileItem::FateRole).toString().isEmpty());
    }

    void withPreviewUpNothingIsRefreshed()
    {
        const QString a = tree->addFile(u"a"_s);
        window->drop({tree->path(u"missing"_s), a});
        {
            const BoxAnswerer boxes;
            window->addInsert(u"x"_s);
            window->click("buttonRename");
        }
        // What became of a row goes with it.
        sort("actionSortNameDescending");
        QCOMPARE(window->rowTexts(), QStringList({u"xa"_s, u"missing"_s}));
        QVERIFY(!window->files()->item(0)->data(FileItem::FateRole).isValid());
        QCOMPARE(window->files()->item(1)->data(FileItem::FateRole).toString(), u"missing"_s);
        window->spoilRowTexts();
        sort("actionSortName");
        QCOMPARE(window->rowTexts(), QStringList({u"spoilt"_s, u"spoilt"_s}));
    }

    void keysMoveAllSelectedRows_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<QString>("selected");
        QTest::addColumn<QString>("expected");
        QTest::newRow("up") << Qt::Key_Up << u"ce"_s << u"acbedf"_s;
        QTest::newRow("up, one there already") << Qt::Key_Up << u"ac"_s << u"acbdef"_s;
        QTest::newRow("up, all there") << Qt::Key_Up << u"ab"_s << u"abcdef"_s;
        QTest::newRow("down") << Qt::Key_Down << u"ad"_s << u"bacedf"_s;
        QTest::newRow("down, one there already") << Qt::Key_Down << u"df"_s << u"abcedf"_s;
        QTest::newRow("home") << Qt::Key_Home << u"bdf"_s << u"bdface"_s;
        QTest::newRow("end") << Qt::Key_End << u"bd"_s << u"acefbd"_s;
        QTest::newRow("all") << Qt::Key_End << u"abcdef"_s << u"abcdef"_s;
        QTest::newRow("none") << Qt::Key_Up << u""_s << u"abcdef"_s;
    }

    void keysMoveAllSelectedRows()
    {
        QFETCH(Qt::Key, key);
        QFETCH(QString, selected);
        QFETCH(QString, expected);
        list({u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s});
        QList<int> rows;
        for (const QChar name : selected)
            rows.append(name.unicode() - u'a');
        select(rows, 2);
        press(key);
        QCOMPARE(names().join(QString()), expected);
        QCOMPARE(this->selected().join(QString()), selected);
        QCOMPARE(current(), u"c"_s);
        // Elsewhere they do nothing.
        const QStringList before = names();
        for (QWidget *other : {static_cast<QWidget *>(window->ruleTree()),
                               static_cast<QWidget *>(window->child<QLineEdit>("lineEditFileFilter"))}) {
            other->setFocus();
            QTest::keyClick(other, Qt::Key_Up, Qt::AltModifier);
            QTest::keyClick(other, Qt::Key_End, Qt::AltModifier);
        }
        QCOMPARE(names(), before);
    }

    void movedRowStaysInView()
    {
        QStringList many;
        for (int i = 0; i < 500; ++i)
            many.append(QString::number(i));
        list(many);
        select({0}, 0);
        press(Qt::Key_End);
        QCOMPARE(names().constLast(), u"0"_s);
        const QRect place = window->files()->visualItemRect(window->files()->item(499));
        QVERIFY(window->files()->viewport()->rect().contains(place.center()));
    }

    void nothingMovesWhileADialogIsOpen()
    {
        list({u"b"_s, u"a"_s});
        select({1}, 1);
        QDialog dialog(window->get());
        dialog.show();
        sort("actionSortName");
        press(Qt::Key_Up);
        QCOMPARE(names(), QStringList({u"b"_s, u"a"_s}));
        dialog.hide();
        window->files()->setFocus();
        press(Qt::Key_Up);
        QCOMPARE(names(), QStringList({u"a"_s, u"b"_s}));
    }

    /// Whatever is selected and done, each file is there once, and selection and current row are the same
    /// files.
    void randomOrders()
    {
        QRandomGenerator random(5);
        QStringList files;
        for (int i = 0; i < 40; ++i)
            files.append(QString::number(random.bounded(1000)) + u'.' + QString::number(i % 7));
        list(files);
        files.sort();
        const QList<const char *> orders = {"actionSortName", "actionSortPathDescending",
                                            "actionSortExtension", "actionSortSize", "actionSortAdding"};
        const Qt::Key keys[] = {Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End};
        for (int round = 0; round < 300; ++round) {
            QList<int> rows;
            for (int row = 0; row < files.size(); ++row) {
                if (random.bounded(100) < (round % 4) * 25)
                    rows.append(row);
            }
            select(rows, random.bounded(41) - 1);
            QStringList selectedBefore = selected();
            const QString currentBefore = current();
            QStringList others = names();
            others.removeIf([&](const QString &name) { return selectedBefore.contains(name); });
            const bool isMove = random.bounded(2) == 0;
            if (isMove)
                press(keys[random.bounded(4)]);
            else
                sort(orders.at(random.bounded(5)));
            QCOMPARE(current(), currentBefore);
            QStringList after = names();
            if (isMove) {
                QCOMPARE(selected(), selectedBefore);
                after.removeIf([&](const QString &name) { return selectedBefore.contains(name); });
                QCOMPARE(after, others);
            } else {
                QStringList selectedAfter = selected();
                selectedAfter.sort();
                selectedBefore.sort();
                QCOMPARE(selectedAfter, selectedBefore);
            }
            after = names();
            after.sort();
            QCOMPARE(after, files);
        }
    }

    void ordersComeInSteps()
    {
        QStringList files;
        QList<int> places;
        QList<int> sources;
        for (int i = 0; i < 300; ++i) {
            files.append(QString::number(1000 + i));
            places.append(i + 1);
            sources.append((7 * i + 3) % 300);
        }
        list(QStringList{u"first"_s} + files + QStringList{u"last"_s});
        RowOrder order(*window->files(), places, sources);
        int steps = 0;
        while (order.goOn(-1)) {
            ++steps;
            QStringList now = names().sliced(1, 300);
            now.sort();
            QCOMPARE(now, files);
        }
        QVERIFY(steps >= 3);
        QCOMPARE(names().constFirst(), u"first"_s);
        QCOMPARE(names().constLast(), u"last"_s);
        for (int i = 0; i < 300; ++i) {
            QCOMPARE(names().at(i + 1), files.at((7 * i + 3) % 300));
            QCOMPARE(order.newPlace((7 * i + 3) % 300 + 1), i + 1);
        }
        QCOMPARE(order.newPlace(0), 0);
        QCOMPARE(order.newPlace(301), 301);
    }

    void longSortingCanBeCancelled()
    {
        auto *files = window->files();
        for (int i = 0; i < 500'000; ++i)
            files->appendRow(u"/p/%1 %2"_s.arg(i * 7919LL % 500'000).arg(i));
        files->showAddedRows();
        const QString first = files->path(0);
        const QString second = files->path(1);
        int dialogs = 0;
        {
            const DuringEvents cancel([&](int) {
                ProgressDialog *dialog = window->waitDialog();
                if (!dialog || dialog->isHidden())
                    return;
                ++dialogs;
                QCOMPARE(dialog->windowTitle(), u"Please wait"_s);
                QCOMPARE(dialog->labelText->text(), u"Sort the files"_s);
                // A second one waits for nothing, and does nothing.
                sort("actionSortPath");
                dialog->buttonCancel->click();
            });
            sort("actionSortName");
        }
        QCOMPARE(dialogs, 1);
        QCOMPARE(files->path(0), first);
        QCOMPARE(files->path(1), second);
        QVERIFY(!window->waitDialog());
        files->clear();
    }
};

QTEST_MAIN(MainWindowSort)
#include "tst_mainwindow_sort.moc"
