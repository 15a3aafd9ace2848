// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/explorermodel.h"
#include "support/duringevents.h"
#include "support/environment.h"
#include "support/explorerrows.h"
#include "support/temptree.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QMimeData>
#include <QProxyStyle>
#include <QRandomGenerator>
#include <QTest>
#include <QTreeView>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

/// Counts how often the style is asked for the icon of a file or folder.
class CountingStyle final : public QProxyStyle
{
public:
    [[nodiscard]] QIcon standardIcon(StandardPixmap which, const QStyleOption *option,
                                     const QWidget *widget) const override
    {
        ++asked;
        return QProxyStyle::standardIcon(which, option, widget);
    }
    [[nodiscard]] QPixmap standardPixmap(StandardPixmap which, const QStyleOption *option,
                                         const QWidget *widget) const override
    {
        ++asked;
        return QProxyStyle::standardPixmap(which, option, widget);
    }
    mutable int asked = 0;
};

} // namespace

/// The model of the explorer: what it shows of a folder, and how it follows what becomes of it.
class ExplorerModelTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TempTree> tree;
    std::unique_ptr<ExplorerModel> model;
    std::unique_ptr<QAbstractItemModelTester> tester;

    /// Reads the folders on the way to a path, and the folder itself. Persistent: in the folders above, other
    /// programs work.
    [[nodiscard]] QPersistentModelIndex open(const QString &path) const
    {
        QStringList way = path.split(u'/', Qt::SkipEmptyParts);
        if (path.startsWith(u'/'))
            way.prepend(u"/"_s);
        QModelIndex index;
        for (const QString &name : std::as_const(way)) {
            index = child(index, name);
            if (!index.isValid())
                qFatal("%s is not there", qPrintable(name));
            read(index);
        }
        return index;
    }
    void read(const QModelIndex &folder) const
    {
        model->fetchMore(folder);
        settle();
    }
    void settle() const
    {
        QVERIFY(QTest::qWaitFor([this] { return !model->isBusy(); }, 60000));
    }
    void refresh(const QModelIndex &folder) const
    {
        model->refresh(folder);
        settle();
    }
    [[nodiscard]] QModelIndex child(const QModelIndex &folder, const QString &name) const
    {
        return explorerRow(model.get(), folder, name);
    }
    [[nodiscard]] QStringList names(const QModelIndex &folder) const
    {
        return explorerNames(model.get(), folder);
    }

private slots:
    void init()
    {
        tree = std::make_unique<TempTree>();
        model = std::make_unique<ExplorerModel>();
        tester = std::make_unique<QAbstractItemModelTester>(
            model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        // It would read the whole disk.
        tester->setUseFetchMore(false);
    }
    void cleanup()
    {
        tester.reset();
        model.reset();
        tree.reset();
    }

    void rootsAreThereAtOnce()
    {
        QStringList roots;
        for (int row = 0; row < model->rowCount(); ++row)
            roots.append(model->path(model->index(row, 0)));
        QStringList drives;
        for (const QFileInfo &drive : QDir::drives())
            drives.append(drive.filePath());
        QCOMPARE(roots, drives);
        QCOMPARE(model->columnCount(), 1);
        QCOMPARE(model->headerData(0, Qt::Horizontal).toString(), u"Name"_s);
        QVERIFY(model->hasChildren(model->index(0, 0)));
    }

    void foldersComeFirstEachInNaturalOrder()
    {
        for (const QString &name : {u"b10.txt"_s, u"b2.txt"_s, u"A.txt"_s, u"f10/x"_s, u"f2/x"_s, u"z/x"_s})
            tree->addFile(name);
        const QPersistentModelIndex folder = open(tree->path());
        QCOMPARE(names(folder),
                 QStringList({u"f2"_s, u"f10"_s, u"z"_s, u"A.txt"_s, u"b2.txt"_s, u"b10.txt"_s}));
        QVERIFY(model->hasChildren(child(folder, u"f2"_s)));
        QVERIFY(!model->hasChildren(child(folder, u"b2.txt"_s)));
        QCOMPARE(model->path(child(folder, u"b2.txt"_s)), tree->path(u"b2.txt"_s));
    }

    void hiddenNamesAndLinksThatLeadNowhereAreLeftOut()
    {
        tree->addFile(u"file"_s);
        tree->addFile(u".hidden"_s);
        tree->addFolder(u"folder"_s);
        tree->addLink(u"toFile"_s, tree->path(u"file"_s));
        tree->addLink(u"toFolder"_s, tree->path(u"folder"_s));
        tree->addLink(u"nowhere"_s, tree->path(u"gone"_s));
        const QPersistentModelIndex folder = open(tree->path());
        QCOMPARE(names(folder), QStringList({u"folder"_s, u"toFolder"_s, u"file"_s, u"toFile"_s}));
        QVERIFY(model->hasChildren(child(folder, u"toFolder"_s)));
    }

    void draggedRowsAreTheirPaths()
    {
        tree->addFile(u"a b.txt"_s);
        tree->addFile(u"\u65e5.txt"_s);
        const QPersistentModelIndex folder = open(tree->path());
        const QModelIndexList rows = {child(folder, u"\u65e5.txt"_s), child(folder, u"a b.txt"_s)};
        const std::unique_ptr<QMimeData> data(model->mimeData(rows));
        QCOMPARE(data->urls(), QList<QUrl>({QUrl::fromLocalFile(tree->path(u"\u65e5.txt"_s)),
                                            QUrl::fromLocalFile(tree->path(u"a b.txt"_s))}));
        QVERIFY(data->hasUrls());
        QVERIFY(model->supportedDragActions().testFlag(Qt::CopyAction));
        for (const QModelIndex &row : rows)
            QVERIFY(row.flags().testFlag(Qt::ItemIsDragEnabled));
    }

    void refreshShowsWhatChangedAndKeepsTheRest()
    {
        for (const QString &name : {u"a"_s, u"b"_s, u"c"_s, u"d/inside"_s})
            tree->addFile(name);
        const QPersistentModelIndex folder = open(tree->path());
        read(child(folder, u"d"_s));
        const QPersistentModelIndex b = child(folder, u"b"_s);
        const QPersistentModelIndex inside = child(child(folder, u"d"_s), u"inside"_s);
        QVERIFY(QFile::rename(tree->path(u"a"_s), tree->path(u"z"_s)));
        QVERIFY(QFile::remove(tree->path(u"c"_s)));
        tree->addFile(u"a1"_s);
        QCOMPARE(names(folder), QStringList({u"d"_s, u"a"_s, u"b"_s, u"c"_s}));
        refresh(folder);
        QCOMPARE(names(folder), QStringList({u"d"_s, u"a1"_s, u"b"_s, u"z"_s}));
        QVERIFY(b.isValid());
        QCOMPARE(b.data().toString(), u"b"_s);
        QVERIFY(inside.isValid());
        QCOMPARE(model->path(inside), tree->path(u"d/inside"_s));
    }

    void fileInThePlaceOfAFolderIsNoFolder()
    {
        tree->addFile(u"x/inside"_s);
        const QPersistentModelIndex folder = open(tree->path());
        read(child(folder, u"x"_s));
        QVERIFY(QDir(tree->path(u"x"_s)).removeRecursively());
        tree->addFile(u"x"_s);
        refresh(folder);
        QCOMPARE(names(folder), QStringList{u"x"_s});
        QVERIFY(!model->hasChildren(child(folder, u"x"_s)));
    }

    void folderThatGoesWhileItIsReadTakesItsRowsAlong()
    {
        tree->addFile(u"x/y/inside"_s);
        const QPersistentModelIndex folder = open(tree->path());
        read(child(folder, u"x"_s));
        read(child(child(folder, u"x"_s), u"y"_s));
        // All three are read at the same time; whichever is done first, the rows below it go.
        QVERIFY(QDir(tree->path(u"x"_s)).removeRecursively());
        model->refresh(child(child(folder, u"x"_s), u"y"_s));
        model->refresh(child(folder, u"x"_s));
        model->refresh(folder);
        settle();
        QCOMPARE(model->rowCount(folder), 0);
        const QPersistentModelIndex parent = folder.parent();
        QVERIFY(QDir(tree->path()).removeRecursively());
        refresh(folder);
        refresh(parent);
        QVERIFY(!child(parent, QFileInfo(tree->path()).fileName()).isValid());
    }

    // The time stamps of file systems are coarse: what follows a change at once may have the same one.
    void changeRightAfterReadingIsSeen()
    {
        const QPersistentModelIndex folder = open(tree->path());
        for (int i = 0; i < 20; ++i) {
            tree->addFile(QString::number(i));
            refresh(folder);
            QCOMPARE(model->rowCount(folder), i + 1);
        }
    }

    void folderThatCannotHaveChangedIsNotReadAgain()
    {
        const QDateTime now = QDateTime::currentDateTimeUtc();
        tree->addFile(u"a"_s);
        const ExplorerListing fresh = readForExplorer(tree->path());
        QVERIFY(fresh.isNew);
        // Too recent to tell.
        QVERIFY(!fresh.stamp.isValid());
        const QString quiet = QDir::rootPath();
        const ExplorerListing first = readForExplorer(quiet);
        QVERIFY(first.stamp.isValid());
        QVERIFY(first.stamp < now);
        const ExplorerListing second = readForExplorer(quiet, first.stamp);
        QVERIFY(!second.isNew);
        QVERIFY(second.entries.empty());
        QVERIFY(readForExplorer(quiet, first.stamp.addMSecs(1)).isNew);
    }

    void randomChangesAgreeWithTheDisk()
    {
        QRandomGenerator random(randomSeed());
        const QPersistentModelIndex folder = open(tree->path());
        const QPersistentModelIndex kept = folder;
        for (int round = 0; round < 60; ++round) {
            for (int step = random.bounded(40); step > 0; --step)
                changeSomething(random);
            model->refresh(folder);
            if (random.bounded(3) == 0)
                changeSomething(random);
            settle();
            refresh(folder);
            QCOMPARE(names(folder), expected());
            QCOMPARE(model->path(kept), tree->path());
        }
    }

    void largeChangeLeavesTheWindowAlive()
    {
        constexpr int count = 20000;
        for (int i = 0; i < count; ++i)
            tree->addFile(QString::number(i), "");
        tester.reset(); // walks all rows at every change
        QTreeView view;
        view.setModel(model.get());
        const QPersistentModelIndex folder = open(tree->path());
        QCOMPARE(model->rowCount(folder), count);
        // Every other name: no two of the changes are neighbours.
        for (int i = 0; i < count; i += 2) {
            const QString name = QString::number(i);
            QVERIFY(QFile::rename(tree->path(name), tree->path(name + u'x')));
        }
        int changes = 0;
        int mostInAPass = 0;
        const auto countOne = [&] {
            ++changes;
        };
        connect(model.get(), &ExplorerModel::rowsInserted, model.get(), countOne);
        connect(model.get(), &ExplorerModel::rowsRemoved, model.get(), countOne);
        const DuringEvents watch(
            [&](int) { mostInAPass = std::max(mostInAPass, std::exchange(changes, 0)); });
        model->refresh(folder);
        QTRY_VERIFY_WITH_TIMEOUT(!model->isBusy(), 60000);
        QVERIFY(mostInAPass > 0);
        QVERIFY2(mostInAPass < count, qPrintable(QString::number(mostInAPass)));
        QCOMPARE(model->rowCount(folder), count);
        QCOMPARE(model->index(0, 0, folder).data().toString(), u"0x"_s);
    }

    void iconsAreFoundOnce()
    {
        auto *style = new CountingStyle;
        QApplication::setStyle(style);
        model = std::make_unique<ExplorerModel>();
        tree->addFiles(u"%1.txt"_s, 300);
        for (int i = 0; i < 300; ++i)
            tree->addFolder(u"folder%1"_s.arg(i));
        const QPersistentModelIndex folder = open(tree->path());
        QCOMPARE(model->rowCount(folder), 600);
        for (int row = 0; row < 600; ++row)
            QVERIFY(!model->index(row, 0, folder).data(Qt::DecorationRole).value<QIcon>().isNull());
        QVERIFY2(style->asked < 20, qPrintable(QString::number(style->asked)));
    }

private:
    void changeSomething(QRandomGenerator &random) const
    {
        const QString name = u"n%1"_s.arg(random.bounded(60));
        switch (random.bounded(4)) {
        case 0:
            QDir(tree->path()).mkdir(name);
            break;
        case 1:
            QFile::rename(tree->path(name), tree->path(u"n%1"_s.arg(random.bounded(60))));
            break;
        case 2:
            if (!QDir(tree->path()).rmdir(name))
                QFile::remove(tree->path(name));
            break;
        default:
            if (!QFileInfo::exists(tree->path(name)))
                tree->addFile(name);
            break;
        }
    }
    [[nodiscard]] QStringList expected() const
    {
        const auto numbered = [this](QDir::Filter kind) {
            QStringList found = QDir(tree->path()).entryList(kind | QDir::NoDotAndDotDot);
            std::sort(found.begin(), found.end(), [](const QString &left, const QString &right) {
                return left.mid(1).toInt() < right.mid(1).toInt();
            });
            return found;
        };
        return numbered(QDir::Dirs) + numbered(QDir::Files);
    }
};

QTEST_MAIN(ExplorerModelTest)
#include "tst_mainwindow_explorermodel.moc"
