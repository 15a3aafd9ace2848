// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/regexp.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestRegExp final : public QObject
{
    Q_OBJECT

private slots:
    void removesEveryMatch_data();
    void removesEveryMatch();
    void replacesEveryMatch();
    void invalidPatternMatchesNothing();
    void emptyPatternMatchesBetweenTheCharacters();
    void copiesShareThePattern();
    void anchorsLookAtTheWholeText();
};

void TestRegExp::removesEveryMatch_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("end of the text") << u".jpg$"_s << u"photo.jpg"_s << u"photo"_s;
    QTest::newRow("the dot is any character") << u".jpg$"_s << u"photojpg"_s << u"phot"_s;
    QTest::newRow("the dot is a line feed too") << u".jpg$"_s << u"a\njpg"_s << u"a"_s;
    QTest::newRow("not before a last line feed") << u".jpg$"_s << u"a.jpg\n"_s << u"a.jpg\n"_s;
    QTest::newRow("every match") << u"\\d"_s << u"a1b2"_s << u"ab"_s;
    QTest::newRow("alternatives") << u".a|b$"_s << u"xa.a|b"_s << u"|"_s;
    QTest::newRow("no match") << u"z"_s << u"abc"_s << u"abc"_s;
    QTest::newRow("empty text") << u".$"_s << u""_s << u""_s;
}

void TestRegExp::removesEveryMatch()
{
    QFETCH(QString, pattern);
    QFETCH(QString, text);
    QTEST(RegExp(pattern).removedFrom(text), "expected");
    QTEST(RegExp(pattern).replacedIn(text, QString()), "expected");
}

void TestRegExp::replacesEveryMatch()
{
    QCOMPARE(RegExp(u"(a+)(b*)"_s).replacedIn(u"aab-a"_s, u"[\\2\\1]"_s), u"[baa]-[a]"_s);
}

void TestRegExp::invalidPatternMatchesNothing()
{
    for (const QString &pattern : {u"("_s, u")"_s, u"["_s, u"*"_s, u"a{"_s}) {
        QCOMPARE(RegExp(pattern).removedFrom(u"(a)[*]{a{"_s), u"(a)[*]{a{"_s);
        QCOMPARE(RegExp(pattern).replacedIn(u"(a)[*]{a{"_s, u"x"_s), u"(a)[*]{a{"_s);
    }
}

void TestRegExp::emptyPatternMatchesBetweenTheCharacters()
{
    QCOMPARE(RegExp().replacedIn(u"ab"_s, u"-"_s), u"-a-b-"_s);
    QCOMPARE(RegExp(u""_s).removedFrom(u"ab"_s), u"ab"_s);
}

void TestRegExp::copiesShareThePattern()
{
    const RegExp original(u"b"_s);
    RegExp copy = original;
    QCOMPARE(copy.removedFrom(u"abc"_s), u"ac"_s);
    copy = RegExp(u"c"_s);
    QCOMPARE(copy.removedFrom(u"abc"_s), u"ab"_s);
    QCOMPARE(original.removedFrom(u"abc"_s), u"ac"_s);
}

void TestRegExp::anchorsLookAtTheWholeText()
{
    QCOMPARE(RegExp(u"^a"_s).removedFrom(u"aaa"_s), u"aa"_s);
    QCOMPARE(RegExp(u"a$"_s).removedFrom(u"aaa"_s), u"aa"_s);
    QCOMPARE(RegExp(u"^b"_s).removedFrom(u"a\nb"_s), u"a\nb"_s);
}

QTEST_APPLESS_MAIN(TestRegExp)
#include "tst_regexp.moc"
