// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "unit/naming/applied.h"

using namespace Qt::StringLiterals;

class TestTrim final : public QObject
{
    Q_OBJECT

private slots:
    void removesTheRun_data();
    void removesTheRun();
    void fromTheEndTheNameLosesItsLastCharactersWhateverThePosition();
    void cutsASurrogatePairInTwo();
    void freshParametersAreZeroOneStart();
    void describesPositionLengthAndDirection();
    void describesInTheCurrentLanguage();
};

void TestTrim::removesTheRun_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("fromStart");
    QTest::addColumn<QString>("expected");

    QTest::newRow("from the start") << u"photo.jpg"_s << 0 << 2 << true << u"oto.jpg"_s;
    QTest::newRow("inside, from the start") << u"photo.jpg"_s << 2 << 3 << true << u"ph.jpg"_s;
    QTest::newRow("reaching past the end") << u"photo.jpg"_s << 5 << 100 << true << u"photo"_s;
    QTest::newRow("last character") << u"ab"_s << 1 << 1 << true << u"a"_s;
    QTest::newRow("start at the end of the name") << u"ab"_s << 2 << 1 << true << u"ab"_s;
    QTest::newRow("start beyond the end") << u"ab"_s << 5 << 1 << true << u"ab"_s;
    QTest::newRow("everything") << u"ab"_s << 0 << 512 << true << u""_s;
    QTest::newRow("largest position") << u"ab"_s << 512 << 512 << true << u"ab"_s;
    QTest::newRow("largest position inside a long name")
        << QString(514, u'a') + u"bc" << 512 << 3 << true << QString(512, u'a') + u'c';
    QTest::newRow("empty name") << u""_s << 0 << 1 << true << u""_s;

    QTest::newRow("extension with its dot, from the end") << u"photo.jpg"_s << 0 << 4 << false << u"photo"_s;
    QTest::newRow("position without effect, from the end")
        << u"photo.jpg"_s << 3 << 2 << false << u"photo.j"_s;
    QTest::newRow("position plus length equals the size") << u"abcd"_s << 2 << 2 << false << u"ab"_s;
    QTest::newRow("short name, the position shortens the run") << u"abcd"_s << 3 << 2 << false << u"abd"_s;
    QTest::newRow("short name, a run of nothing") << u"abcd"_s << 4 << 2 << false << u"abcd"_s;
    QTest::newRow("short name, a run of less than nothing") << u"abcd"_s << 9 << 2 << false << u"abcd"_s;
    QTest::newRow("start before the name, still negative") << u"ab"_s << 0 << 5 << false << u"ab"_s;
    QTest::newRow("start before the name counts from its end") << u"abcd"_s << 0 << 5 << false << u"abc"_s;
    QTest::newRow("start before the name, shortened") << u"abcd"_s << 3 << 7 << false << u"acd"_s;
    QTest::newRow("twice the size before the name") << u"abcd"_s << 0 << 8 << false << u""_s;
    QTest::newRow("more than twice the size before the name") << u"abcd"_s << 0 << 9 << false << u"abcd"_s;
    QTest::newRow("the whole name") << u"abcd"_s << 0 << 4 << false << u""_s;
    QTest::newRow("empty name, from the end") << u""_s << 0 << 1 << false << u""_s;
    QTest::newRow("largest values, from the end") << u"abcd"_s << 512 << 512 << false << u"abcd"_s;
    QTest::newRow("Unicode") << u"Ölß.jpg"_s << 1 << 2 << true << u"Ö.jpg"_s;
    QTest::newRow("surrogate pair counts as two") << u"😀ab"_s << 0 << 2 << true << u"ab"_s;
}

void TestTrim::removesTheRun()
{
    QFETCH(QString, name);
    QFETCH(int, position);
    QFETCH(int, length);
    QFETCH(bool, fromStart);
    QTEST(applied(TrimParameters{position, length, fromStart}, name), "expected");
    QTEST(applied(TrimParameters{position, length, fromStart}, name, 77), "expected");
}

void TestTrim::fromTheEndTheNameLosesItsLastCharactersWhateverThePosition()
{
    const QString name = u"0123456789"_s;
    for (int length = 1; length <= 10; ++length) {
        for (int position = 0; position + length <= 10; ++position)
            QCOMPARE(applied(TrimParameters{position, length, false}, name), name.chopped(length));
    }
}

void TestTrim::cutsASurrogatePairInTwo()
{
    const QString result = applied(TrimParameters{0, 1, true}, u"😀"_s);
    QCOMPARE(result.size(), 1);
    QVERIFY(result.at(0).isLowSurrogate());
}

void TestTrim::freshParametersAreZeroOneStart()
{
    const TrimParameters parameters;
    QCOMPARE(parameters.position, 0);
    QCOMPARE(parameters.length, 1);
    QVERIFY(parameters.fromStart);
}

void TestTrim::describesPositionLengthAndDirection()
{
    QCOMPARE(description(TrimParameters{0, 3, true}), u"0 - 3 / Start"_s);
    QCOMPARE(description(TrimParameters{2, 5, false}), u"2 - 5 / End"_s);
    QCOMPARE(description(TrimParameters{512, 512, false}), u"512 - 512 / End"_s);
}

void TestTrim::describesInTheCurrentLanguage()
{
    QCOMPARE(kindName(Kind::Trim), u"Trim"_s);
    const BracketTranslator translator;
    QCOMPARE(kindName(Kind::Trim), u"[Trim]"_s);
    QCOMPARE(description(TrimParameters{2, 5, false}), u"2 - 5 / [End]"_s);
    QCOMPARE(description(TrimParameters{2, 5, true}), u"2 - 5 / [Start]"_s);
}

QTEST_GUILESS_MAIN(TestTrim)
#include "tst_trim.moc"
