// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "support/drivenwindow.h"
#include "support/duringevents.h"

#include "withoutprivileges.h"

#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/// The file list: what a drop brings in, the name filter, and the buttons beside it.
class MainWindowFiles : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<DrivenWindow> window;
    TempTree *tree = nullptr;

    void setFilter(const QString &filter) const
    {
        window->child<QLineEdit>("lineEditFileFilter")->setText(filter);
    }
    /// What a dropped folder brings in, as sorted names below it.
    [[nodiscard]] QStringList namesFrom(const QString &folder) const
    {
        window->click("buttonFileListClear");
        window->drop({folder});
        QStringList names;
        for (const QString &path : window->rowPaths())
            names.append(QDir(folder).relativeFilePath(path));
        names.sort();
        return names;
    }
    void select(const QList<int> &rows) const
    {
        window->files()->clearSelection();
        for (const int row : rows)
            window->files()->item(row)->setSelected(true);
    }
    /// Whether the list accepts what is dragged in.
    [[nodiscard]] bool enter(const QMimeData &data) const
    {
        QDragEnterEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        event.ignore();
        QCoreApplication::sendEvent(window->files()->viewport(), &event);
        return event.isAccepted();
    }
    /// Whether the list accepts what is dragged in, moved over it and dropped.
    [[nodiscard]] bool dragAndDrop(const QMimeData &data) const
    {
        if (!enter(data))
            return false;
        QDragMoveEvent move({6, 6}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window->files()->viewport(), &move);
        QDropEvent event({6, 6}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        event.ignore();
        QCoreApplication::sendEvent(window->files()->viewport(), &event);
        return event.isAccepted();
    }
    void showActive() const { QVERIFY(window->showActive()); }

private slots:
    void init()
    {
        settings = std::make_unique<TestSettings>();
        tree = &settings->tree;
        window = std::make_unique<DrivenWindow>();
    }
    void cleanup()
    {
        QVERIFY(window->pathsAgree());
        window.reset();
        settings.reset();
    }

    void dragWithUrlsTakesFocusAndIsAccepted()
    {
        showActive();
        window->preview()->setFocus();
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(u"/some/file"_s)});
        QVERIFY(enter(data));
        QVERIFY(window->files()->hasFocus());
    }

    void dragWithoutUrlsIsIgnoredAndTakesNoFocus()
    {
        showActive();
        window->preview()->setFocus();
        QMimeData data;
        data.setData(u"application/x-qabstractitemmodeldatalist"_s, "rows");
        QVERIFY(!enter(data));
        QVERIFY(!window->files()->hasFocus());
    }

    void dragMoveAndLeaveAreLeftAsTheyAre()
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(u"/some/file"_s)});
        QVERIFY(enter(data));
        for (const bool accepted : {true, false}) {
            QDragMoveEvent move({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            move.setAccepted(accepted);
            QCoreApplication::sendEvent(window->files()->viewport(), &move);
            QCOMPARE(move.isAccepted(), accepted);
        }
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(window->files()->viewport(), &leave);
        QCOMPARE(window->files()->count(), 0);
    }

    void dropAddsTheFilesInTheirOrder()
    {
        const QStringList paths = {tree->addFile(u"z.txt"_s), tree->addFile(u"a.txt"_s),
                                   tree->addFile(u"no dot"_s), tree->addFile(u".hidden"_s)};
        QMimeData data;
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls.append(QUrl::fromLocalFile(path));
        data.setUrls(urls);
        QSignalSpy changed(window->files(), &ListWidgetFiles::contentChanged);
        QVERIFY(dragAndDrop(data));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.constFirst().constFirst().value<const QMimeData *>(), &data);
        QCOMPARE(window->rowPaths(), paths);
        QCOMPARE(window->rowTexts(), QStringList({u"z.txt"_s, u"a.txt"_s, u"no dot"_s, u".hidden"_s}));
    }

    void closingTheWindowCutsADropOff()
    {
        showActive();
        QMimeData data;
        QList<QUrl> urls;
        for (const QString &path : tree->addFiles(u"%1"_s, 10))
            urls.append(QUrl::fromLocalFile(path));
        data.setUrls(urls);
        {
            const DuringEvents watch([&](int pass) {
                if (pass == 3)
                    window->get()->close();
            });
            QVERIFY(dragAndDrop(data));
        }
        QCOMPARE(window->rowTexts(), QStringList({u"000"_s, u"001"_s, u"002"_s}));
        QTRY_VERIFY(window->get()->isHidden());
    }

    void dropWithoutUrlsAddsNothing()
    {
        QMimeData data;
        data.setText(u"just a text"_s);
        QVERIFY(!dragAndDrop(data));
        window->get()->onFileListAdded(&data);
        QCOMPARE(window->files()->count(), 0);
    }

    void rowsArePlainItemsWithAPathAsString()
    {
        window->drop({tree->addFile(u"a.txt"_s)});
        const QListWidgetItem *item = window->files()->item(0);
        QCOMPARE(item->type(), 0);
        QCOMPARE(item->data(Qt::UserRole).typeId(), int{QMetaType::QString});
    }

    void droppingTheSameFileTwiceLeavesOneRow()
    {
        const QString path = tree->addFile(u"a.txt"_s);
        window->drop({path, path});
        window->drop({path});
        QCOMPARE(window->rowPaths(), QStringList{path});
    }

    void droppingAFolderWithAListedFileAddsOnlyTheOthers()
    {
        const QStringList paths = tree->addFiles(u"folder/f%1.txt"_s, 3);
        window->drop({paths.at(1)});
        window->drop({tree->path(u"folder"_s)});
        QCOMPARE(window->files()->count(), 3);
        QCOMPARE(window->rowPaths().constFirst(), paths.at(1));
        window->drop({tree->path(u"folder"_s)});
        QCOMPARE(window->files()->count(), 3);
    }

    void sameFileByDifferentlyWrittenPathsGivesTwoRows()
    {
        const QString path = tree->addFile(u"folder/a.txt"_s);
        const QStringList paths = {path, tree->path(u"folder//a.txt"_s), tree->path(u"folder/A.TXT"_s),
                                   tree->path(u"folder/./a.txt"_s)};
        for (const QString &written : paths)
            window->get()->addPath(written);
        QCOMPARE(window->rowPaths(), paths);
    }

    void foldersAreScannedThroughTheirSubfolders()
    {
        tree->addFile(u"folder/a.txt"_s);
        tree->addFile(u"folder/sub/b.txt"_s);
        tree->addFile(u"folder/sub/deep/c.txt"_s);
        tree->addFolder(u"folder/empty.d"_s);
        QCOMPARE(namesFrom(tree->path(u"folder"_s)),
                 QStringList({u"a.txt"_s, u"sub/b.txt"_s, u"sub/deep/c.txt"_s}));
        QVERIFY(window->rowPaths().contains(tree->path(u"folder/a.txt"_s)));
    }

    void withoutAFilterAFileWithoutADotIsTakenOnlyWhenDroppedItself()
    {
        const QString noDot = tree->addFile(u"folder/no_dot"_s);
        tree->addFile(u"folder/with.dot"_s);
        QCOMPARE(namesFrom(tree->path(u"folder"_s)), QStringList{u"with.dot"_s});
        window->drop({noDot});
        QCOMPARE(window->files()->count(), 2);
        QCOMPARE(window->rowPaths().constLast(), noDot);
    }

    void nameFilters_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QStringList>("expected");
        const QStringList all = {u" d.png"_s, u"a.jpg"_s, u"b.png"_s, u"c.txt"_s, u"e.JPG"_s};
        QTest::newRow("empty") << QString() << all;
        QTest::newRow("only separators") << u";;;"_s << all;
        QTest::newRow("one") << u"*.png"_s << QStringList({u" d.png"_s, u"b.png"_s});
        QTest::newRow("two") << u"*.txt;*.png"_s << QStringList({u" d.png"_s, u"b.png"_s, u"c.txt"_s});
        QTest::newRow("letter case does not count") << u"*.jpg"_s << QStringList({u"a.jpg"_s, u"e.JPG"_s});
        // The blank belongs to the second part: only a name that begins with one matches.
        QTest::newRow("blank after the semicolon")
            << u"*.txt; *.png"_s << QStringList({u" d.png"_s, u"c.txt"_s});
        QTest::newRow("a blank alone is a part") << u" "_s << QStringList();
        QTest::newRow("everything") << u"*"_s
                                    << QStringList({u" d.png"_s, u"a.jpg"_s, u"b.png"_s, u"c.txt"_s,
                                                    u"e.JPG"_s, u"no_dot"_s});
        QTest::newRow("none matches") << u"*.gif"_s << QStringList();
    }

    void nameFilters()
    {
        QFETCH(QString, filter);
        QFETCH(QStringList, expected);
        for (const QString &name : {u"a.jpg"_s, u"b.png"_s, u"c.txt"_s, u" d.png"_s, u"e.JPG"_s, u"no_dot"_s})
            tree->addFile(u"folder/"_s + name);
        setFilter(filter);
        QCOMPARE(namesFrom(tree->path(u"folder"_s)), expected);
    }

    void filterPartAfterABlankMatchesNoPlainName()
    {
        tree->addFile(u"folder/a.jpg"_s);
        tree->addFile(u"folder/b.png"_s);
        setFilter(u"*.jpg; *.png"_s);
        QCOMPARE(namesFrom(tree->path(u"folder"_s)), QStringList{u"a.jpg"_s});
    }

    void filterDoesNotApplyToDroppedFiles()
    {
        setFilter(u"*.jpg"_s);
        window->drop({tree->addFile(u"c.txt"_s)});
        QCOMPARE(window->files()->count(), 1);
    }

    void hiddenFilesAndLinksInAFolderAreNotAdded()
    {
        const QString file = tree->addFile(u"folder/a.txt"_s);
        tree->addFile(u"folder/.hidden.txt"_s);
        tree->addFile(u"folder/.config/inside.txt"_s);
        tree->addFile(u"outside/b.txt"_s);
        tree->addLink(u"folder/link.txt"_s, file);
        tree->addLink(u"folder/dangling.txt"_s, tree->path(u"nowhere"_s));
        tree->addLink(u"folder/linked.d"_s, tree->path(u"outside"_s));
        tree->addLink(u"folder/loop.d"_s, tree->path(u"folder"_s));
        QCOMPARE(namesFrom(tree->path(u"folder"_s)), QStringList{u"a.txt"_s});
    }

    void hiddenFilesAndLinksDroppedThemselvesAreAdded()
    {
        const QString file = tree->addFile(u".hidden"_s);
        const QString link = tree->addLink(u"link"_s, file);
        const QString dangling = tree->addLink(u"dangling"_s, tree->path(u"nowhere"_s));
        window->drop({file, link, dangling});
        QCOMPARE(window->rowPaths(), QStringList({file, link, dangling}));
    }

    void pathThatDoesNotExistIsAddedAsAFile()
    {
        window->drop({tree->path(u"nowhere/at all.txt"_s)});
        QCOMPARE(window->rowTexts(), QStringList{u"at all.txt"_s});
    }

    void folderWithoutFilesGivesNothing()
    {
        tree->addFolder(u"empty/sub"_s);
        QCOMPARE(namesFrom(tree->path(u"empty"_s)), QStringList());
    }

    void folderWithoutPermissionGivesNothing()
    {
        tree->addFile(u"open/a.txt"_s);
        tree->addFile(u"open/closed/b.txt"_s);
        const QFile::Permissions all = WithoutPrivileges::readable | QFile::WriteOwner;
        QVERIFY(QFile::setPermissions(tree->path(), all));
        QVERIFY(QFile::setPermissions(tree->path(u"open/closed"_s), {}));
        {
            const WithoutPrivileges drop;
            QCOMPARE(namesFrom(tree->path(u"open/closed"_s)), QStringList());
            QCOMPARE(namesFrom(tree->path(u"open"_s)), QStringList{u"a.txt"_s});
        }
        QVERIFY(QFile::setPermissions(tree->path(u"open/closed"_s), all));
        QCOMPARE(namesFrom(tree->path(u"open/closed"_s)), QStringList{u"b.txt"_s});
    }

    void pathTooLongForTheSystemIsAddedAsAFile()
    {
        const QString path = tree->path(u"x/"_s.repeated(3000));
        window->drop({path});
        QCOMPARE(window->rowPaths(), QStringList{path});
    }

    void addressesOfOtherMachinesGiveOneEmptyPathAtMost()
    {
        QMimeData data;
        data.setUrls({QUrl(u"http://127.0.0.1/a.txt"_s), QUrl(u"http://127.0.0.1/b.txt"_s)});
        window->get()->onFileListAdded(&data);
        // Neither has a local path; the second empty one is a duplicate of the first.
        QCOMPARE(window->rowPaths(), QStringList{QString()});
    }

    void upAndDownMoveTheCurrentRow()
    {
        window->drop(tree->addFiles(u"%1"_s, 3));
        window->files()->setCurrentRow(2);
        window->click("buttonFileListUp");
        QCOMPARE(window->rowTexts(), QStringList({u"000"_s, u"002"_s, u"001"_s}));
        QCOMPARE(window->files()->currentRow(), 1);
        window->click("buttonFileListUp");
        QCOMPARE(window->rowTexts(), QStringList({u"002"_s, u"000"_s, u"001"_s}));
        window->click("buttonFileListDown");
        window->click("buttonFileListDown");
        QCOMPARE(window->rowTexts(), QStringList({u"000"_s, u"001"_s, u"002"_s}));
        QCOMPARE(window->files()->currentRow(), 2);
        QVERIFY(window->files()->item(2)->isSelected());
    }

    void upOnTheFirstAndDownOnTheLastRowDoNothing_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("button");
        QTest::newRow("up on row 0") << 0 << u"buttonFileListUp"_s;
        QTest::newRow("down on the last row") << 2 << u"buttonFileListDown"_s;
        QTest::newRow("up without a current row") << -1 << u"buttonFileListUp"_s;
        QTest::newRow("remove without a current row") << -1 << u"buttonFileListRemove"_s;
    }

    void upOnTheFirstAndDownOnTheLastRowDoNothing()
    {
        QFETCH(int, row);
        QFETCH(QString, button);
        window->drop(tree->addFiles(u"%1"_s, 3));
        window->click("buttonPreview");
        window->files()->setCurrentRow(row);
        const QStringList paths = window->rowPaths();
        window->spoilRowTexts();
        window->click(button.toLatin1().constData());
        QCOMPARE(window->rowPaths(), paths);
        QCOMPARE(window->files()->currentRow(), row);
        QCOMPARE(window->rowTexts(), QStringList({u"spoilt"_s, u"spoilt"_s, u"spoilt"_s}));
    }

    void downWithoutACurrentRowMakesTheFirstOneCurrent()
    {
        // Nothing to make current.
        window->click("buttonFileListDown");
        QCOMPARE(window->files()->currentRow(), -1);
        window->drop(tree->addFiles(u"%1"_s, 3));
        window->click("buttonPreview");
        const QStringList paths = window->rowPaths();
        window->files()->setCurrentRow(-1);
        window->spoilRowTexts();
        window->click("buttonFileListDown");
        QCOMPARE(window->rowPaths(), paths);
        QCOMPARE(window->files()->currentRow(), 0);
        QVERIFY(window->files()->item(0)->isSelected());
        // As after any other move, the rows are shown anew.
        QCOMPARE(window->rowTexts(), QStringList({u"000"_s, u"001"_s, u"002"_s}));
    }

    void removeDeletesAllSelectedRowsAndKeepsTheRowNumber_data()
    {
        QTest::addColumn<int>("current");
        QTest::addColumn<QList<int>>("selected");
        QTest::addColumn<QString>("left");
        QTest::addColumn<int>("currentAfter");
        QTest::newRow("one in the middle") << 2 << QList<int>{2} << u"0134"_s << 2;
        QTest::newRow("several") << 1 << QList<int>{0, 1, 3} << u"24"_s << 1;
        QTest::newRow("number gone") << 4 << QList<int>{3, 4} << u"012"_s << 2;
        QTest::newRow("all") << 3 << QList<int>{0, 1, 2, 3, 4} << QString() << -1;
        QTest::newRow("current not among them") << 2 << QList<int>{0, 4} << u"123"_s << 2;
        QTest::newRow("nothing selected") << 2 << QList<int>{} << u"01234"_s << 2;
        QTest::newRow("the first") << 0 << QList<int>{0} << u"1234"_s << 0;
    }

    void removeDeletesAllSelectedRowsAndKeepsTheRowNumber()
    {
        QFETCH(int, current);
        QFETCH(QList<int>, selected);
        QFETCH(QString, left);
        QFETCH(int, currentAfter);
        for (const QString &name : {u"0"_s, u"1"_s, u"2"_s, u"3"_s, u"4"_s})
            window->drop({tree->addFile(name)});
        window->files()->setCurrentRow(current);
        select(selected);
        window->click("buttonFileListRemove");
        QCOMPARE(window->rowTexts().join(QString()), left);
        QCOMPARE(window->files()->currentRow(), currentAfter);
    }

    void removeRefreshesOnlyWithPreviewOn()
    {
        window->drop(tree->addFiles(u"%1"_s, 3));
        window->files()->setCurrentRow(0);
        window->spoilRowTexts();
        window->click("buttonFileListRemove");
        QCOMPARE(window->rowTexts(), QStringList({u"spoilt"_s, u"spoilt"_s}));
        window->click("buttonPreview");
        window->spoilRowTexts();
        window->click("buttonFileListRemove");
        QCOMPARE(window->rowTexts(), QStringList{u"002"_s});
    }

    void buttonsKeepTheCurrentRowInView()
    {
        window->get()->show();
        window->drop(tree->addFiles(u"%1"_s, 200));
        window->files()->setCurrentRow(150);
        window->files()->scrollToTop();
        window->click("buttonFileListDown");
        const QRect rect = window->files()->visualItemRect(window->files()->item(151));
        QVERIFY(window->files()->viewport()->rect().contains(rect.center()));
    }

    void clearButtonEmptiesTheList()
    {
        const QStringList paths = tree->addFiles(u"%1"_s, 3);
        window->drop(paths);
        window->click("buttonFileListClear");
        QCOMPARE(window->files()->count(), 0);
        for (const QString &path : paths)
            QVERIFY(!window->files()->containsPath(path));
        window->drop(paths);
        QCOMPARE(window->rowPaths(), paths);
        window->files()->onClear();
        QCOMPARE(window->files()->count(), 0);
    }

    void showFullPathShowsFolderAndNewName()
    {
        window->drop({tree->addFile(u"folder/a.txt"_s)});
        window->addInsert(u"x"_s);
        window->click("checkBoxShowFullPath");
        QCOMPARE(window->rowTexts(), QStringList{tree->path(u"folder/a.txt"_s)});
        window->click("buttonPreview");
        QCOMPARE(window->rowTexts(), QStringList{tree->path(u"folder/xa.txt"_s)});
        window->click("checkBoxShowFullPath");
        QCOMPARE(window->rowTexts(), QStringList{u"xa.txt"_s});
    }

    // The folder ends with the separator itself: it is shown twice.
    void fullPathDirectlyBelowTheRootHasTwoSeparators()
    {
        const QString root = QFileInfo(u"/"_s).absoluteFilePath();
        window->drop({root + u"no such file.txt"_s});
        window->addInsert(u"x"_s);
        window->click("buttonPreview");
        window->click("checkBoxShowFullPath");
        QCOMPARE(window->rowTexts(), QStringList{QDir::toNativeSeparators(root + u"/xno such file.txt"_s)});
    }
};

QTEST_MAIN(MainWindowFiles)
#include "tst_mainwindow_files.moc"
