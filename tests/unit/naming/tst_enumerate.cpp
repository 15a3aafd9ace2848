// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "naming/chain.h"
#include "unit/naming/applied.h"

#include <QLocale>

#include <limits>

using namespace Qt::StringLiterals;

class TestEnumerate final : public QObject
{
    Q_OBJECT

private slots:
    void insertsTheNumber_data();
    void insertsTheNumber();
    void numbersFollowTheRowOfTheFile();
    void swappedFilesSwapTheirNumbers();
    void twoNumberingRulesUseTheSameRow();
    void numbersAreNeverGrouped();
    void describesStartNumberPositionAndDirection();
    void describesInTheCurrentLanguage();
};

void TestEnumerate::insertsTheNumber_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("leadingZeros");
    QTest::addColumn<int>("startNumber");
    QTest::addColumn<int>("position");
    QTest::addColumn<bool>("fromStart");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("expected");

    QTest::newRow("row 0 has the start number") << u"a.jpg"_s << 0 << 7 << 0 << true << 0 << u"7a.jpg"_s;
    QTest::newRow("nine") << u"a"_s << 0 << 9 << 0 << true << 0 << u"9a"_s;
    QTest::newRow("nine and one row") << u"a"_s << 0 << 9 << 0 << true << 1 << u"10a"_s;
    QTest::newRow("wider than the minimum is never cut") << u"a"_s << 1 << 0 << 0 << true << 150 << u"150a"_s;
    QTest::newRow("exactly the minimum width") << u"a"_s << 1 << 0 << 0 << true << 15 << u"15a"_s;
    QTest::newRow("most zeros") << u"a"_s << 9 << 0 << 0 << true << 0 << u"0000000000a"_s;
    QTest::newRow("most zeros, three digits") << u"a"_s << 9 << 512 << 0 << true << 0 << u"0000000512a"_s;
    QTest::newRow("before the extension") << u"a.jpg"_s << 2 << 1 << 4 << false << 0 << u"a001.jpg"_s;
    QTest::newRow("behind the extension") << u"a.jpg"_s << 0 << 1 << 0 << false << 0 << u"a.jpg1"_s;
    QTest::newRow("inside") << u"abc"_s << 0 << 1 << 1 << true << 0 << u"a1bc"_s;
    QTest::newRow("beyond the end pads with blanks") << u"ab"_s << 0 << 1 << 4 << true << 0 << u"ab  1"_s;
    QTest::newRow("before the start changes nothing") << u"ab"_s << 0 << 1 << 3 << false << 0 << u"ab"_s;
    QTest::newRow("largest position")
        << u"ab"_s << 0 << 1 << 512 << true << 0 << u"ab"_s + QString(510, u' ') + u'1';
    QTest::newRow("largest position from the end") << u"ab"_s << 0 << 1 << 512 << false << 0 << u"ab"_s;
    QTest::newRow("empty name") << u""_s << 0 << 3 << 0 << true << 4 << u"7"_s;
    QTest::newRow("empty name from the end") << u""_s << 0 << 3 << 0 << false << 4 << u"7"_s;
    QTest::newRow("surrogate pair counts as two") << u"😀a"_s << 0 << 1 << 2 << true << 0 << u"😀1a"_s;
    QTest::newRow("a million rows") << u"a"_s << 2 << 512 << 0 << true << 999999 << u"1000511a"_s;
    QTest::newRow("the last row there can be")
        << u"a"_s << 0 << 512 << 0 << true << std::numeric_limits<int>::max() << u"2147484159a"_s;
}

void TestEnumerate::insertsTheNumber()
{
    QFETCH(QString, name);
    QFETCH(int, leadingZeros);
    QFETCH(int, startNumber);
    QFETCH(int, position);
    QFETCH(bool, fromStart);
    QFETCH(int, row);
    const EnumerateParameters parameters{leadingZeros, startNumber, position, fromStart};
    QTEST(applied(parameters, name, row), "expected");
}

void TestEnumerate::numbersFollowTheRowOfTheFile()
{
    const QStringList names{u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s};
    QStringList fromStart;
    QStringList fromEnd;
    for (int row = 0; row < 3; ++row) {
        fromStart.append(applied(EnumerateParameters{2, 1, 0, true}, names.at(row), row));
        fromEnd.append(applied(EnumerateParameters{2, 1, 4, false}, names.at(row), row));
    }
    QCOMPARE(fromStart, (QStringList{u"001a.jpg"_s, u"002b.jpg"_s, u"003c.jpg"_s}));
    QCOMPARE(fromEnd, (QStringList{u"a001.jpg"_s, u"b002.jpg"_s, u"c003.jpg"_s}));
}

void TestEnumerate::swappedFilesSwapTheirNumbers()
{
    const EnumerateParameters parameters{0, 1, 0, true};
    QCOMPARE(applied(parameters, u"x"_s, 4), u"5x"_s);
    QCOMPARE(applied(parameters, u"y"_s, 3), u"4y"_s);
    QCOMPARE(applied(parameters, u"x"_s, 3), u"4x"_s);
    QCOMPARE(applied(parameters, u"y"_s, 4), u"5y"_s);
}

void TestEnumerate::twoNumberingRulesUseTheSameRow()
{
    const Chain chain{{EnumerateParameters{0, 1, 0, true}}, {EnumerateParameters{1, 100, 0, false}}};
    QCOMPARE(newName(chain, u"-"_s, 6), u"7-106"_s);
}

void TestEnumerate::numbersAreNeverGrouped()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const QString german = applied(EnumerateParameters{0, 0, 0, true}, u"a"_s, 1234567);
    QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
    const QString arabic = applied(EnumerateParameters{9, 0, 0, true}, u"a"_s, 1234567);
    QLocale::setDefault(before);
    QCOMPARE(german, u"1234567a"_s);
    QCOMPARE(arabic, u"0001234567a"_s);
}

void TestEnumerate::describesStartNumberPositionAndDirection()
{
    QCOMPARE(description(EnumerateParameters{0, 1, 0, true}), u"Start Number 1 / Position 0 / Start"_s);
    QCOMPARE(description(EnumerateParameters{9, 512, 511, false}),
             u"Start Number 512 / Position 511 / End"_s);
}

void TestEnumerate::describesInTheCurrentLanguage()
{
    QCOMPARE(kindName(Kind::Enumerate), u"Enumerate"_s);
    const BracketTranslator translator;
    QCOMPARE(kindName(Kind::Enumerate), u"[Enumerate]"_s);
    QCOMPARE(description(EnumerateParameters{0, 1, 2, false}), u"[Start Number] 1 / [Position] 2 / [End]"_s);
    QCOMPARE(description(EnumerateParameters{0, 1, 2, true}), u"[Start Number] 1 / [Position] 2 / [Start]"_s);
}

QTEST_GUILESS_MAIN(TestEnumerate)
#include "tst_enumerate.moc"
