// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/patterncost.h"
#include "rules/regexp.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString nested(int depth)
{
    return u"("_s.repeated(depth) + u'a' + u")"_s.repeated(depth);
}

} // namespace

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
    void patternOfTooGreatACostMatchesNothing_data();
    void patternOfTooGreatACostMatchesNothing();
    void patternsThatPeopleWriteAreNotRefused_data();
    void patternsThatPeopleWriteAreNotRefused();
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

/// Without their bound these overflowed the stack, took all memory, or did not end.
void TestRegExp::patternOfTooGreatACostMatchesNothing_data()
{
    QTest::addColumn<QString>("pattern");

    QTest::newRow("nested one too deep") << nested(101);
    QTest::newRow("nested so deep that the stack overflows") << nested(16000);
    QTest::newRow("opened only") << u"("_s.repeated(32767);
    QTest::newRow("opened without capture") << u"(?:"_s.repeated(10900);
    QTest::newRow("lookaheads opened only") << u"(?="_s.repeated(10900);
    QTest::newRow("counts of counts") << u"(((a{50}){50}){50}){50}"_s;
    QTest::newRow("more of them") << u"(((a{1000}){1000}){1000}){1000}"_s;
    QTest::newRow("counts of nothing") << u"(((^{999}){999}){999}){999}"_s;
    QTest::newRow("counts of groups without a character") << u"(((){999}){999}){999}"_s;
    QTest::newRow("counts of something optional") << u"((a?){100}){100}"_s;
    QTest::newRow("ranges") << u"((a{0,99}){0,99}){0,99}"_s;
    QTest::newRow("endless counts") << u"((a{1000,}){1000,}){1000,}"_s;
    QTest::newRow("an open count") << u"((a{,1000}){,1000}){,1000}"_s;
    QTest::newRow("loops in a row") << u"a*"_s.repeated(1000) + u'b';
    QTest::newRow("loops side by side") << u"(?:"_s + u"(a*)|"_s.repeated(200) + u")*b"_s;
    QTest::newRow("lookaheads within lookaheads") << u"(?=.*(?=.*(?=.*(?=.*c))))"_s;
    QTest::newRow("lookaheads within loops") << u"(?:a(?=(?:a(?=.*c)|a)*c)|a)*b"_s;
    QTest::newRow("alternatives with lookaheads") << u"(?:b|(?=.*(?=.*(?=.*c)))|.)*c"_s;
    QTest::newRow("denied lookaheads within loops") << u"(?:a(?!(?:a(?!.*c)|a)*c)|a)*b"_s;
    QTest::newRow("lookaheads without number") << u"(?=((?=((?!b)){69})(?=a)|.*)).*|.*"_s;
    QTest::newRow("back-references") << u"(a*)"_s + u"\\1*"_s.repeated(300) + u'b';
    QTest::newRow("back-reference beyond all integers") << u"a\\16777216"_s;
    QTest::newRow("back-reference to capture 15") << u"a\\15"_s;
    QTest::newRow("captures") << u"(a*)"_s.repeated(100) + u'b';
    QTest::newRow("a set with a bracket") << u"((([](]{99}){99}){99}){99}"_s;
    QTest::newRow("a set with an escaped bracket") << u"((([\\](]{99}){99}){99}){99}"_s;
}

void TestRegExp::patternOfTooGreatACostMatchesNothing()
{
    QFETCH(QString, pattern);
    const QString name = u"a"_s.repeated(255);
    // Some would be invalid to the engine, too, but only when it has run out of memory, or nearly.
    QVERIFY(!isAffordablePattern(pattern));
    const RegExp regExp(pattern);
    QCOMPARE(regExp.replacedIn(name, u"x"_s), name);
    QCOMPARE(regExp.removedFrom(name), name);
    QCOMPARE(regExp.replacedIn(QString(), u"x"_s), QString());
}

void TestRegExp::patternsThatPeopleWriteAreNotRefused_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("text");

    const QString many = u"a"_s.repeated(255);
    QTest::newRow("nested as deep as may be") << nested(100) << u"a"_s;
    QTest::newRow("nested quantifiers") << u"(a*)*b|(a|aa)+$|((a+)+)"_s << many;
    QTest::newRow("the highest count") << u"^a{1,1000}$"_s << many;
    QTest::newRow("the name's first characters") << u"^.{0,255}"_s << many;
    QTest::newRow("every part of a date and time")
        << u"^(IMG|DSC|PXL)[_-](\\d{4})(\\d{2})(\\d{2})_(\\d{2})(\\d{2})(\\d{2})(.*)\\.(jpe?g|png|heic)$"_s
        << u"IMG_20240131_235959~2.jpeg"_s;
    QTest::newRow("the highest back-reference")
        << u"^(a)(a)(a)(a)(a)(a)(a)(a)(a)(a)(a)(a)(a)(a)\\14"_s << u"a"_s.repeated(15);
    QTest::newRow("escaped digits of another script") << u"\\\u0661\u0662"_s << u"\u0661\u0662"_s;
    QTest::newRow("as many lookaheads as may be") << u"^(?=a){13}a"_s << u"a"_s;
    QTest::newRow("several lookaheads") << u"^(?=.*\\d)(?=.*[a-z])(?=.*[A-Z]).{8,}$"_s << u"Photo 123"_s;
    QTest::newRow("a lookahead within a lookahead") << u"^(?=.*(?=.*c)).*"_s << u"abc"_s;
    QTest::newRow("a lookahead within a loop") << u"^(?:(?!--).)*"_s << u"no dashes"_s;
    QTest::newRow("a back-reference repeated") << u"^(.)\\1{20}$"_s << u"-"_s.repeated(21);
    QTest::newRow("nine back-references")
        << u"^(.)(.)(.)(.)(.)(.)(.)(.)(.)\\9\\8\\7\\6\\5\\4\\3\\2\\1$"_s << u"123456789987654321"_s;
    QTest::newRow("a thousand words")
        << u"^(?:"_s + u"holidays|"_s.repeated(1000) + u"pictures)$"_s << u"pictures"_s;
    QTest::newRow("thirty words, repeated")
        << u"^(?:"_s + u"holidays|"_s.repeated(30) + u"-)+$"_s << u"holidays-holidays"_s;
    QTest::newRow("loops in a row") << u"^.*a.*a.*a.*a.*a.*a.*a.*a.*a.*a.*$"_s << many;
}

void TestRegExp::patternsThatPeopleWriteAreNotRefused()
{
    QFETCH(QString, pattern);
    QFETCH(QString, text);
    QCOMPARE(RegExp(pattern).removedFrom(text), QString());
}

QTEST_APPLESS_MAIN(TestRegExp)
#include "tst_regexp.moc"
