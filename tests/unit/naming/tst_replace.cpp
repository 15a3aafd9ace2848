// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "unit/naming/applied.h"

using namespace Qt::StringLiterals;

namespace {

ReplaceParameters literal(const QString &what, const QString &with)
{
    return {what, with, false};
}

ReplaceParameters pattern(const QString &what, const QString &with)
{
    return {what, with, true};
}

} // namespace

class TestReplace final : public QObject
{
    Q_OBJECT

private slots:
    void replacesALiteralText_data();
    void replacesALiteralText();
    void replacesAPattern_data();
    void replacesAPattern();
    void emptySearchInsertsBeforeEveryCharacterAndAtTheEnd_data();
    void emptySearchInsertsBeforeEveryCharacterAndAtTheEnd();
    void invalidPatternsLeaveTheNameUnchanged_data();
    void invalidPatternsLeaveTheNameUnchanged();
    void oneRecordServesManyNames();
    void describesBothTexts_data();
    void describesBothTexts();
    void nameFollowsTheLanguage();
};

void TestReplace::replacesALiteralText_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("with");
    QTest::addColumn<QString>("expected");

    QTest::newRow("prefix") << u"IMG_0001.JPG"_s << u"IMG_"_s << u"Holiday "_s << u"Holiday 0001.JPG"_s;
    QTest::newRow("letter case must match") << u"Photo.jpg"_s << u"photo"_s << u"x"_s << u"Photo.jpg"_s;
    QTest::newRow("matches never overlap") << u"aaa.txt"_s << u"aa"_s << u"b"_s << u"ba.txt"_s;
    QTest::newRow("empty replacement deletes every match") << u"a.jpg.jpg"_s << u".jpg"_s << u""_s << u"a"_s;
    QTest::newRow("null replacement") << u"a.jpg.jpg"_s << u".jpg"_s << QString() << u"a"_s;
    QTest::newRow("the dot is an ordinary character") << u"a.b-c"_s << u"."_s << u"!"_s << u"a!b-c"_s;
    QTest::newRow("specials are ordinary") << u"a[1]+(2)"_s << u"[1]+("_s << u"^"_s << u"a^2)"_s;
    QTest::newRow("no back-references") << u"abc"_s << u"b"_s << u"\\1"_s << u"a\\1c"_s;
    QTest::newRow("the replacement is not searched again") << u"aa"_s << u"a"_s << u"aa"_s << u"aaaa"_s;
    QTest::newRow("the extension is not protected") << u"a.txt"_s << u"t"_s << u"T"_s << u"a.TxT"_s;
    QTest::newRow("no match") << u"abc"_s << u"x"_s << u"y"_s << u"abc"_s;
    QTest::newRow("longer than the name") << u"ab"_s << u"abc"_s << u"y"_s << u"ab"_s;
    QTest::newRow("whole name") << u"abc"_s << u"abc"_s << u""_s << u""_s;
    QTest::newRow("by itself") << u"abc"_s << u"b"_s << u"b"_s << u"abc"_s;
    QTest::newRow("empty name") << u""_s << u"x"_s << u"y"_s << u""_s;
    QTest::newRow("Unicode") << u"Straße Ж.txt"_s << u"ße Ж"_s << u"é"_s << u"Straé.txt"_s;
    QTest::newRow("Unicode case must match") << u"ж"_s << u"Ж"_s << u"x"_s << u"ж"_s;
    QTest::newRow("surrogate pair") << u"a😀b😀"_s << u"😀"_s << u"-"_s << u"a-b-"_s;
    QTest::newRow("blanks") << u"a  b"_s << u" "_s << u"_"_s << u"a__b"_s;
}

void TestReplace::replacesALiteralText()
{
    QFETCH(QString, name);
    QFETCH(QString, what);
    QFETCH(QString, with);
    QTEST(applied(literal(what, with), name), "expected");
    QTEST(applied(literal(what, with), name, 5), "expected");
}

void TestReplace::replacesAPattern_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("with");
    QTest::addColumn<QString>("expected");

    QTest::newRow("captured text") << u"img_42.jpg"_s << u"img_(\\d+)\\.jpg"_s << u"\\1.jpg"_s << u"42.jpg"_s;
    QTest::newRow("two captures swapped") << u"a-b.txt"_s << u"(\\w)-(\\w)"_s << u"\\2-\\1"_s << u"b-a.txt"_s;
    QTest::newRow("nine captures") << u"123456789"_s << u"(.)(.)(.)(.)(.)(.)(.)(.)(.)"_s
                                   << u"\\9\\8\\7\\6\\5\\4\\3\\2\\1"_s << u"987654321"_s;
    QTest::newRow("a capture that took no part is empty")
        << u"b"_s << u"(a)|(b)"_s << u"<\\1\\2>"_s << u"<b>"_s;
    QTest::newRow("a group that is not there stays as typed")
        << u"b"_s << u"(b)"_s << u"\\1\\2"_s << u"b\\2"_s;
    QTest::newRow("the dot matches any character") << u"a.b-c"_s << u"."_s << u"!"_s << u"!!!!!"_s;
    QTest::newRow("every match") << u"a1b22c333"_s << u"\\d+"_s << u"#"_s << u"a#b#c#"_s;
    QTest::newRow("quantifiers are greedy") << u"<a><b>"_s << u"<.*>"_s << u"x"_s << u"x"_s;
    QTest::newRow("letter case must match") << u"Photo"_s << u"photo"_s << u"x"_s << u"Photo"_s;
    QTest::newRow("character class") << u"Photo-1"_s << u"[A-Z0-9]"_s << u"_"_s << u"_hoto-_"_s;
    QTest::newRow("anchored at the start") << u"aaab"_s << u"^a"_s << u""_s << u"aab"_s;
    QTest::newRow("anchored at the end") << u"a.txt.txt"_s << u"\\.txt$"_s << u""_s << u"a.txt"_s;
    QTest::newRow("alternatives") << u"cat dog"_s << u"cat|dog"_s << u"pet"_s << u"pet pet"_s;
    QTest::newRow("back-reference in the pattern") << u"abba"_s << u"(b)\\1"_s << u"x"_s << u"axa"_s;
    QTest::newRow("lookahead") << u"foobar foobaz"_s << u"foo(?=baz)"_s << u"x"_s << u"foobar xbaz"_s;
    QTest::newRow("word boundary") << u"cat concat"_s << u"\\bcat"_s << u"x"_s << u"x concat"_s;
    QTest::newRow("empty replacement deletes every match") << u"a1b2"_s << u"\\d"_s << u""_s << u"ab"_s;
    QTest::newRow("the extension is not protected") << u"a.txt"_s << u"t+"_s << u"T"_s << u"a.TxT"_s;
    QTest::newRow("no match") << u"abc"_s << u"\\d"_s << u"y"_s << u"abc"_s;
    QTest::newRow("empty name") << u""_s << u"a"_s << u"y"_s << u""_s;
    QTest::newRow("Unicode letters") << u"жЖ1"_s << u"[а-я]"_s << u"x"_s << u"xЖ1"_s;
    QTest::newRow("a surrogate pair is two characters") << u"😀"_s << u"."_s << u"x"_s << u"xx"_s;
}

void TestReplace::replacesAPattern()
{
    QFETCH(QString, name);
    QFETCH(QString, what);
    QFETCH(QString, with);
    QTEST(applied(pattern(what, with), name), "expected");
    QTEST(applied(pattern(what, with), name, 5), "expected");
}

void TestReplace::emptySearchInsertsBeforeEveryCharacterAndAtTheEnd_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("with");
    QTest::addColumn<QString>("expected");

    QTest::newRow("two characters") << u"ab"_s << u"-"_s << u"-a-b-"_s;
    QTest::newRow("longer replacement") << u"ab"_s << u"xy"_s << u"xyaxybxy"_s;
    QTest::newRow("nothing by nothing") << u"ab"_s << u""_s << u"ab"_s;
    QTest::newRow("surrogate pair is parted") << u"\xD83D\xDE00"_s << u"-"_s << u"-\xD83D-\xDE00-"_s;
}

void TestReplace::emptySearchInsertsBeforeEveryCharacterAndAtTheEnd()
{
    QFETCH(QString, name);
    QFETCH(QString, with);
    QTEST(applied(literal(u""_s, with), name), "expected");
    QTEST(applied(literal(QString(), with), name), "expected");
}

void TestReplace::invalidPatternsLeaveTheNameUnchanged_data()
{
    QTest::addColumn<QString>("what");

    QTest::newRow("open parenthesis") << u"img(_"_s;
    QTest::newRow("closing parenthesis") << u"img)_"_s;
    QTest::newRow("open set") << u"[abc"_s;
    QTest::newRow("nothing to repeat") << u"*a"_s;
    QTest::newRow("open count") << u"a{2"_s;
    QTest::newRow("unknown lookahead") << u"(?<=a)b"_s;
}

void TestReplace::invalidPatternsLeaveTheNameUnchanged()
{
    QFETCH(QString, what);
    for (const QString &name : {u"img(_1.jpg"_s, u"[abc"_s, u"*a aab a{2"_s, u""_s})
        QCOMPARE(applied(pattern(what, u"x"_s), name), name);
}

void TestReplace::oneRecordServesManyNames()
{
    const Parameters parameters = pattern(u"^(\\d+)_(.*)$"_s, u"\\2 \\1"_s);
    for (int i = 0; i < 1000; ++i) {
        const QString number = QString::number(i);
        QCOMPARE(transformed(parameters, number + u"_name", i), u"name " + number);
        QCOMPARE(transformed(parameters, u"name"_s, i), u"name"_s);
    }
}

void TestReplace::describesBothTexts_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("with");
    QTest::addColumn<QString>("expected");

    QTest::newRow("two texts") << u"IMG_"_s << u"Holiday "_s << u"'IMG_' - 'Holiday '"_s;
    QTest::newRow("empty texts") << u""_s << QString() << u"'' - ''"_s;
    QTest::newRow("a place marker is not expanded again") << u"%2"_s << u"b"_s << u"'%2' - 'b'"_s;
    QTest::newRow("both place markers") << u"%2%1"_s << u"%1"_s << u"'%2%1' - '%1'"_s;
}

void TestReplace::describesBothTexts()
{
    QFETCH(QString, what);
    QFETCH(QString, with);
    QTEST(description(literal(what, with)), "expected");
    QTEST(description(pattern(what, with)), "expected");
}

void TestReplace::nameFollowsTheLanguage()
{
    QCOMPARE(kindName(Kind::Replace), u"Replace"_s);
    const BracketTranslator translator;
    QCOMPARE(kindName(Kind::Replace), u"[Replace]"_s);
}

QTEST_GUILESS_MAIN(TestReplace)
#include "tst_replace.moc"
