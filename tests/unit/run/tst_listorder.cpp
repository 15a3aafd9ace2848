// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/listorder.h"

#include <QRandomGenerator>
#include <QStringList>
#include <QTest>

using namespace Qt::StringLiterals;

class ListOrder : public QObject
{
    Q_OBJECT

private:
    struct Name
    {
        SortKey key;
        QString name;
        bool operator<(const Name &other) const { return key.compare(other.key) < 0; }
    };

    static QStringList sorted(const QStringList &names, const NaturalOrder &order)
    {
        SortedItems<Name> items;
        for (const QString &name : names)
            items.add({order.key(name), name});
        QStringList result;
        items.take([&result](Name &&item) { result.append(item.name); });
        return result;
    }

private slots:
    void naturalOrder_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("numbers by value") << u"en_US"_s << QStringList{u"IMG_1"_s, u"IMG_2"_s, u"IMG_10"_s};
        QTest::newRow("the C locale, too") << u"C"_s << QStringList{u"IMG_1"_s, u"IMG_2"_s, u"IMG_10"_s};
        QTest::newRow("letters before case") << u"C"_s << QStringList{u"a"_s, u"A"_s, u"b"_s, u"B"_s};
        QTest::newRow("numbers with zeros before them")
            << u"en_US"_s << QStringList{u"a1"_s, u"a002"_s, u"a3"_s};
        QTest::newRow("numbers beyond 64 bits")
            << u"en_US"_s << QStringList{QString(30, u'9'), u'1' + QString(30, u'0')};
        QTest::newRow("numbers of one, two and three digits")
            << u"en_US"_s << QStringList{u"0.txt"_s, u"9.txt"_s, u"20.txt"_s, u"100.txt"_s};
        QTest::newRow("nothing before anything") << u"en_US"_s << QStringList{u""_s, u" "_s, u"a"_s};
        QTest::newRow("long before longer")
            << u"en_US"_s << QStringList{QString(254, u'x') + u'1', QString(254, u'x') + u'2'};
        QTest::newRow("several numbers")
            << u"en_US"_s << QStringList{u"2 of 9"_s, u"2 of 10"_s, u"10 of 9"_s};
        QTest::newRow("German umlauts") << u"de_DE"_s << QStringList{u"a"_s, u"\u00e4"_s, u"b"_s, u"z"_s};
        QTest::newRow("Swedish umlauts") << u"sv_SE"_s << QStringList{u"a"_s, u"b"_s, u"z"_s, u"\u00e4"_s};
    }

    void naturalOrder()
    {
        QFETCH(QString, locale);
        QFETCH(QStringList, expected);
        const NaturalOrder order{QLocale(locale)};
        QStringList names = expected;
        std::sort(names.begin(), names.end());
        do {
            QCOMPARE(sorted(names, order), expected);
        } while (std::next_permutation(names.begin(), names.end()));
    }

    void namesThatDifferByZerosHaveOnePlace()
    {
        const NaturalOrder order;
        QCOMPARE(order.key(u"a1"_s).compare(order.key(u"a01"_s)), 0);
        QVERIFY(order.key(u"a1"_s).compare(order.key(u"A1"_s)) != 0);
    }

    // Around each length at which sorted stretches are merged.
    void anyNumberOfItemsIsSortedAndStable_data()
    {
        QTest::addColumn<int>("count");
        for (const int count : {0, 1, 2, 1023, 1024, 1025, 2047, 2048, 2049, 3072, 4096, 7168, 7169, 20000})
            QTest::addRow("%d", count) << count;
    }

    void anyNumberOfItemsIsSortedAndStable()
    {
        QFETCH(int, count);
        struct Item
        {
            int value;
            int number;
            bool operator<(const Item &other) const { return value < other.value; }
        };
        QRandomGenerator random(7);
        SortedItems<Item> items;
        for (int i = 0; i < count; ++i)
            items.add({random.bounded(50), i});
        std::vector<Item> result;
        const auto take = [&] {
            items.take([&result](Item &&item) { result.push_back(item); });
        };
        take();
        QCOMPARE(int(result.size()), count);
        for (std::size_t i = 1; i < result.size(); ++i) {
            QVERIFY(result[i - 1].value <= result[i].value);
            QVERIFY(result[i - 1].value < result[i].value || result[i - 1].number < result[i].number);
        }
        take();
        QCOMPARE(int(result.size()), count);
    }
};

QTEST_GUILESS_MAIN(ListOrder)
#include "tst_listorder.moc"
