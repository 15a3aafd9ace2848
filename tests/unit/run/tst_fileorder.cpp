// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/fileorder.h"
#include "run/filepath.h"
#include "run/listorder.h"
#include "support/temptree.h"

#include <QDateTime>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;
using By = FileOrder::By;

/// The orders that a person asks for.
class TestFileOrder : public QObject
{
    Q_OBJECT

private:
    static QStringList sorted(const QStringList &paths, FileOrder order, const QList<quint32> &numbers = {})
    {
        QStringList result;
        const QList<int> places = sortedFiles({paths, numbers}, order, false);
        for (const int index : places)
            result.append(paths.at(index));
        return result;
    }

    static void setTime(const QString &path, int seconds)
    {
        static const QDateTime day(QDate(2024, 1, 31), QTime(12, 0));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(day.addSecs(seconds), QFileDevice::FileModificationTime));
    }

    /// Below zero: the first comes before the other; written apart from the program.
    static int compare(const QString &left, const QString &right, FileOrder order)
    {
        static const NaturalOrder natural;
        const QFileInfo first(left);
        const QFileInfo second(right);
        const auto byKeys = [](const QString &one, const QString &other) {
            return natural.key(one).compare(natural.key(other));
        };
        const bool isDescending = order.direction == Qt::DescendingOrder;
        const auto directed = [isDescending](qint64 difference) {
            const int sign = difference < 0 ? -1 : int{difference > 0};
            return isDescending ? -sign : sign;
        };
        switch (order.by) {
        case By::Name:
            return directed(byKeys(first.fileName(), second.fileName()));
        case By::Path: {
            const QStringList folders = first.path().split(u'/');
            const QStringList others = second.path().split(u'/');
            for (qsizetype i = 0; i < std::min(folders.size(), others.size()); ++i) {
                if (const int difference = byKeys(folders.at(i), others.at(i)); difference != 0)
                    return directed(difference);
            }
            if (folders.size() != others.size())
                return directed(folders.size() - others.size());
            return directed(byKeys(first.fileName(), second.fileName()));
        }
        case By::Extension:
            return directed(byKeys(first.suffix(), second.suffix()));
        case By::Size:
        case By::Modified:
            if (first.exists() != second.exists())
                return first.exists() ? -1 : 1;
            if (!first.exists())
                return 0;
            return directed(order.by == By::Size ? first.size() - second.size()
                                                 : first.lastModified().toMSecsSinceEpoch() -
                                                       second.lastModified().toMSecsSinceEpoch());
        case By::Adding:
            break;
        }
        return 0;
    }

private slots:
    void namedOrders_data()
    {
        QTest::addColumn<By>("by");
        QTest::addColumn<QStringList>("ascending");
        QTest::newRow("names, whatever their folder")
            << By::Name << QStringList{u"/z/IMG_2"_s, u"/a/IMG_10"_s, u"/b/IMG_100"_s};
        QTest::newRow("a folder's files before those below it")
            << By::Path
            << QStringList{u"/a/2"_s, u"/a/10"_s, u"/a/b/1"_s, u"/a 1/1"_s, u"/a2/1"_s, u"/a10/1"_s};
        QTest::newRow("folders that differ by zeros do not mix")
            << By::Path << QStringList{u"/d01/1"_s, u"/d01/3"_s, u"/d1/2"_s, u"/d1/4"_s};
        QTest::newRow("extensions") << By::Extension
                                    << QStringList{u"/none"_s, u"/x/y.c"_s, u"/a.jpg"_s, u"/b.r2"_s,
                                                   u"/a.r10"_s};
        QTest::newRow("a dot at the front begins no extension")
            << By::Extension << QStringList{u"/.zzz"_s, u"/b.aaa"_s};
        QTest::newRow("the last dot counts") << By::Extension << QStringList{u"/a.z.gz"_s, u"/b.a.zip"_s};
    }

    void namedOrders()
    {
        QFETCH(By, by);
        QFETCH(QStringList, ascending);
        QStringList descending = ascending;
        std::reverse(descending.begin(), descending.end());
        QStringList paths = ascending;
        std::sort(paths.begin(), paths.end());
        do {
            QCOMPARE(sorted(paths, {by, Qt::AscendingOrder}), ascending);
            QCOMPARE(sorted(paths, {by, Qt::DescendingOrder}), descending);
        } while (std::next_permutation(paths.begin(), paths.end()));
    }

    void equalOnesKeepTheirPlaces()
    {
        const QStringList paths = {u"/a/x.2"_s, u"/b/y.1"_s, u"/c/z.2"_s, u"/d/y.1"_s};
        for (const Qt::SortOrder direction : {Qt::AscendingOrder, Qt::DescendingOrder}) {
            const bool isUp = direction == Qt::AscendingOrder;
            const QStringList ones = {paths.at(1), paths.at(3)};
            const QStringList twos = {paths.at(0), paths.at(2)};
            QCOMPARE(sorted(paths, {By::Extension, direction}), isUp ? ones + twos : twos + ones);
        }
    }

    void sizesAndTimes()
    {
        const TempTree tree;
        const QStringList paths = {tree.addFile(u"a"_s, "123"), tree.path(u"missing"_s),
                                   tree.addFile(u"b"_s, ""), tree.addFile(u"c"_s, "12")};
        for (const auto &[index, seconds] : {std::pair(0, 5), std::pair(2, 7), std::pair(3, 6)})
            setTime(paths.at(index), seconds);
        const auto at = [&paths](const QList<int> &order) {
            QStringList result;
            for (const int index : order)
                result.append(paths.at(index));
            return result;
        };
        // What is missing comes last.
        QCOMPARE(sorted(paths, {By::Size, Qt::AscendingOrder}), at({2, 3, 0, 1}));
        QCOMPARE(sorted(paths, {By::Size, Qt::DescendingOrder}), at({0, 3, 2, 1}));
        QCOMPARE(sorted(paths, {By::Modified, Qt::AscendingOrder}), at({0, 3, 2, 1}));
        QCOMPARE(sorted(paths, {By::Modified, Qt::DescendingOrder}), at({2, 3, 0, 1}));
    }

    void orderOfAdding()
    {
        const QStringList paths = {u"/c"_s, u"/a"_s, u"/b"_s};
        QCOMPARE(sorted(paths, {By::Adding}, {7, 3, 4'000'000'000}),
                 QStringList({u"/a"_s, u"/c"_s, u"/b"_s}));
    }

    void randomFilesInEveryOrder_data()
    {
        QTest::addColumn<By>("by");
        QTest::newRow("name") << By::Name;
        QTest::newRow("path") << By::Path;
        QTest::newRow("extension") << By::Extension;
        QTest::newRow("size") << By::Size;
        QTest::newRow("time") << By::Modified;
    }

    /// Each file once, in order, and equal ones as they were.
    void randomFilesInEveryOrder()
    {
        QFETCH(By, by);
        const TempTree tree;
        QRandomGenerator random(11);
        const QStringList parts = {u"a"_s, u"B"_s, u"ä"_s, u"7"_s, u"10"_s, u" "_s, u"."_s, u"_"_s};
        const auto word = [&]() -> QString {
            QString text;
            for (int i = 1 + random.bounded(3); i > 0; --i)
                text += parts.at(random.bounded(7));
            // Names that have a dot alone before them are no matter here, nor what Windows drops at their
            // end.
            return u'x' + text + u'x';
        };
        QStringList paths;
        const bool isOnDisk = by == By::Size || by == By::Modified;
        for (int i = 0; i < (isOnDisk ? 200 : 3000); ++i) {
            const QString name = word() + u'/' + word();
            if (isOnDisk && random.bounded(5) > 0 && !QFile::exists(tree.path(name)))
                setTime(tree.addFile(name, QByteArray(random.bounded(4), 'x')), random.bounded(5));
            paths.append(tree.path(name));
        }
        for (const Qt::SortOrder direction : {Qt::AscendingOrder, Qt::DescendingOrder}) {
            const FileOrder order{by, direction};
            const QList<int> places = sortedFiles({paths, {}}, order, false);
            QList<int> all = places;
            std::sort(all.begin(), all.end());
            QList<int> expected(paths.size());
            std::iota(expected.begin(), expected.end(), 0);
            QCOMPARE(all, expected);
            for (qsizetype i = 1; i < places.size(); ++i) {
                const QString &before = paths.at(places.at(i - 1));
                const QString &after = paths.at(places.at(i));
                const int difference = compare(before, after, order);
                QVERIFY2(difference <= 0, qPrintable(before + u" before "_s + after));
                // Folders that count as equal are kept apart all the same.
                if (difference == 0 &&
                    (by != By::Path || QFileInfo(before).path() == QFileInfo(after).path()))
                    QVERIFY(places.at(i - 1) < places.at(i));
            }
        }
    }

    void cancelledThereIsNone()
    {
        QCOMPARE(sortedFiles({{u"/b"_s, u"/a"_s}, {}}, {By::Path}, true), QList<int>());
    }
};

QTEST_GUILESS_MAIN(TestFileOrder)
#include "tst_fileorder.moc"
