// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "naming/insertion.h"
#include "unit/naming/applied.h"

using namespace Qt::StringLiterals;

class TestInsertText final : public QObject
{
    Q_OBJECT

private slots:
    void insertsTheText_data();
    void insertsTheText();
    void ignoresTheFileIndex();
    void splitsASurrogatePairWhenThePositionFallsIntoIt();
    void describesTextPositionAndDirection_data();
    void describesTextPositionAndDirection();
    void describesInTheCurrentLanguage();
};

void TestInsertText::insertsTheText_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("position");
    QTest::addColumn<bool>("fromStart");
    QTest::addColumn<QString>("expected");

    QTest::newRow("at the start") << u"photo.jpg"_s << u"new_"_s << 0 << true << u"new_photo.jpg"_s;
    QTest::newRow("inside") << u"photo.jpg"_s << u"-"_s << 2 << true << u"ph-oto.jpg"_s;
    QTest::newRow("at the length appends") << u"ab"_s << u"Z"_s << 2 << true << u"abZ"_s;
    QTest::newRow("behind the extension, which is not protected")
        << u"photo.jpg"_s << u"_x"_s << 0 << false << u"photo.jpg_x"_s;
    QTest::newRow("before the extension") << u"photo.jpg"_s << u"_x"_s << 4 << false << u"photo_x.jpg"_s;
    QTest::newRow("the whole length from the end is the start")
        << u"photo.jpg"_s << u"_x"_s << 9 << false << u"_xphoto.jpg"_s;
    QTest::newRow("beyond the end pads with blanks") << u"ab"_s << u"Z"_s << 5 << true << u"ab   Z"_s;
    QTest::newRow("before the start changes nothing") << u"ab"_s << u"Z"_s << 5 << false << u"ab"_s;
    QTest::newRow("one before the start") << u"ab"_s << u"Z"_s << 3 << false << u"ab"_s;
    QTest::newRow("largest position from the start")
        << u"ab"_s << u"Z"_s << 512 << true << u"ab"_s + QString(510, u' ') + u'Z';
    QTest::newRow("largest position from the end") << u"ab"_s << u"Z"_s << 512 << false << u"ab"_s;
    QTest::newRow("largest position inside a long name")
        << QString(600, u'n') << u"Z"_s << 512 << false << QString(88, u'n') + u'Z' + QString(512, u'n');
    QTest::newRow("empty text") << u"ab"_s << QString() << 1 << true << u"ab"_s;
    QTest::newRow("empty text beyond the end pads nothing") << u"ab"_s << u""_s << 9 << true << u"ab"_s;
    QTest::newRow("empty name") << QString() << u"Z"_s << 0 << true << u"Z"_s;
    QTest::newRow("empty name from the end") << u""_s << u"Z"_s << 0 << false << u"Z"_s;
    QTest::newRow("empty name padded") << u""_s << u"Z"_s << 2 << true << u"  Z"_s;
    QTest::newRow("Unicode") << u"Ölß.jpg"_s << u"Жα"_s << 3 << true << u"ÖlßЖα.jpg"_s;
    QTest::newRow("surrogate pair counts as two") << u"😀a"_s << u"Z"_s << 2 << true << u"😀Za"_s;
    QTest::newRow("a text of percent signs stays as typed")
        << u"ab"_s << u"%1%2"_s << 1 << true << u"a%1%2b"_s;
    QTest::newRow("separators are not refused") << u"ab"_s << u"/"_s << 1 << true << u"a/b"_s;
}

void TestInsertText::insertsTheText()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    QFETCH(int, position);
    QFETCH(bool, fromStart);
    QTEST(applied(InsertTextParameters{text, position, fromStart}, name), "expected");
}

void TestInsertText::ignoresTheFileIndex()
{
    const InsertTextParameters parameters{u"x"_s, 1, true};
    QCOMPARE(applied(parameters, u"ab"_s, 0), u"axb"_s);
    QCOMPARE(applied(parameters, u"ab"_s, 12345), u"axb"_s);
}

void TestInsertText::splitsASurrogatePairWhenThePositionFallsIntoIt()
{
    const QString result = applied(InsertTextParameters{u"Z"_s, 1, true}, u"😀"_s);
    QCOMPARE(result.size(), 3);
    QVERIFY(result.at(0).isHighSurrogate());
    QCOMPARE(result.at(1), u'Z');
    QVERIFY(result.at(2).isLowSurrogate());
}

void TestInsertText::describesTextPositionAndDirection_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("position");
    QTest::addColumn<bool>("fromStart");
    QTest::addColumn<QString>("expected");

    QTest::newRow("from the start") << u"abc"_s << 3 << true << u"'abc' / Position 3 / Start"_s;
    QTest::newRow("from the end") << u"x"_s << 0 << false << u"'x' / Position 0 / End"_s;
    QTest::newRow("empty text") << QString() << 512 << true << u"'' / Position 512 / Start"_s;
    QTest::newRow("a place marker in the text") << u"%1%2"_s << 1 << false << u"'%1%2' / Position 1 / End"_s;
}

void TestInsertText::describesTextPositionAndDirection()
{
    QFETCH(QString, text);
    QFETCH(int, position);
    QFETCH(bool, fromStart);
    QTEST(description(InsertTextParameters{text, position, fromStart}), "expected");
}

void TestInsertText::describesInTheCurrentLanguage()
{
    QCOMPARE(kindName(Kind::InsertText), u"Insert Text"_s);
    const BracketTranslator translator;
    QCOMPARE(kindName(Kind::InsertText), u"[Insert Text]"_s);
    QCOMPARE(description(InsertTextParameters{u"x"_s, 0, false}), u"'x' / [Position] 0 / [End]"_s);
    QCOMPARE(description(InsertTextParameters{u"x"_s, 7, true}), u"'x' / [Position] 7 / [Start]"_s);
}

QTEST_GUILESS_MAIN(TestInsertText)
#include "tst_inserttext.moc"
