// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "naming/regexp.h"
#include "unit/naming/applied.h"

#include <QFileInfo>
#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace {

enum Case { FirstLetters, Upper, Lower, None };

ChangeCaseParameters parametersFor(int chosen, bool ignoreExtension)
{
    return {chosen == FirstLetters, chosen == Upper, chosen == Lower, ignoreExtension};
}

QString random(QRandomGenerator &generator, const QStringList &alphabet)
{
    QString name;
    for (auto length = generator.bounded(12); length > 0; --length)
        name += alphabet.at(generator.bounded(alphabet.size()));
    return name;
}

} // namespace

class TestChangeCase final : public QObject
{
    Q_OBJECT

private slots:
    void changesTheCase_data();
    void changesTheCase();
    void usesTheExtensionUnescaped_data();
    void usesTheExtensionUnescaped();
    void extensionOfTooGreatACostIsLikeAnInvalidOne_data();
    void extensionOfTooGreatACostIsLikeAnInvalidOne();
    void nameWithoutDotLosesItsLastCharacterAndGetsADot_data();
    void nameWithoutDotLosesItsLastCharacterAndGetsADot();
    void keepsHalvesOfCharacters_data();
    void keepsHalvesOfCharacters();
    void letterOutsideLatin1CountsAsNoLetter_data();
    void letterOutsideLatin1CountsAsNoLetter();
    void lowerGoesBeforeUpperAndFirstLettersBeforeBoth();
    void withoutAChoiceTheNameIsLost();
    void plainExtensionsGiveWhatThePatternGives();
    void ignoresTheFileIndex();
    void lowerIsListedAsUppercaseAndUpperAsLowercase();
    void describesInTheCurrentLanguage();
};

void TestChangeCase::changesTheCase_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("chosen");
    QTest::addColumn<bool>("ignoreExtension");
    QTest::addColumn<QString>("expected");

    QTest::newRow("first letters, extension ignored")
        << u"my holiday photo.JPG"_s << int(FirstLetters) << true << u"My Holiday Photo.JPG"_s;
    QTest::newRow("first letters with extension")
        << u"my photo.jpg"_s << int(FirstLetters) << false << u"My Photo.Jpg"_s;
    QTest::newRow("lower, extension ignored, which is upper")
        << u"Report.TXT"_s << int(Lower) << true << u"report.TXT"_s;
    QTest::newRow("lower with extension") << u"Report.TXT"_s << int(Lower) << false << u"report.txt"_s;
    QTest::newRow("upper, extension ignored") << u"Report.txt"_s << int(Upper) << true << u"REPORT.txt"_s;
    QTest::newRow("upper with extension") << u"Report.txt"_s << int(Upper) << false << u"REPORT.TXT"_s;
    QTest::newRow("apostrophe, hyphen and digit start a word")
        << u"o'neil-smith_2nd.doc"_s << int(FirstLetters) << true << u"O'Neil-Smith_2Nd.doc"_s;
    QTest::newRow("letters inside a word are never lowered")
        << u"McDONALD.txt"_s << int(FirstLetters) << true << u"McDONALD.txt"_s;
    QTest::newRow("the dot starts a word")
        << u"McDONALD.txt"_s << int(FirstLetters) << false << u"McDONALD.Txt"_s;
    QTest::newRow("only the last suffix is kept")
        << u"archive.tar.gz"_s << int(Upper) << true << u"ARCHIVE.TAR.gz"_s;
    QTest::newRow("nothing before the dot") << u".bashrc"_s << int(Upper) << true << u".bashrc"_s;
    QTest::newRow("nothing behind the dot") << u"Name."_s << int(Lower) << true << u"name."_s;
    QTest::newRow("two dots at the end") << u"Name.."_s << int(Lower) << true << u"name.."_s;
    QTest::newRow("a dot alone") << u"."_s << int(Lower) << true << u"."_s;
    QTest::newRow("empty name") << u""_s << int(Lower) << false << u""_s;
    QTest::newRow("empty name, extension ignored, becomes a dot") << u""_s << int(Lower) << true << u"."_s;
    QTest::newRow("null name, extension ignored") << QString() << int(FirstLetters) << true << u"."_s;
    QTest::newRow("one letter grows to two") << u"straße.txt"_s << int(Upper) << true << u"STRASSE.txt"_s;
    QTest::newRow("a first letter never grows") << u"ßx.txt"_s << int(FirstLetters) << true << u"ßx.txt"_s;
    QTest::newRow("letters of Latin-1 are letters")
        << u"élan éa.txt"_s << int(FirstLetters) << true << u"Élan Éa.txt"_s;
    QTest::newRow("Cyrillic, lower") << u"ПРИВЕТ.ТХТ"_s << int(Lower) << true << u"привет.ТХТ"_s;
    QTest::newRow("case beyond the basic plane")
        << u"\U00010428.txt"_s << int(Upper) << true << u"\U00010400.txt"_s;
    QTest::newRow("emoji, extension of an emoji") << u"AB.😀"_s << int(Lower) << true << u"ab.😀"_s;
    QTest::newRow("blanks in the extension") << u"A.B C"_s << int(Lower) << true << u"a.B C"_s;
    QTest::newRow("line feed in the name") << u"A\nB.TXT"_s << int(Lower) << true << u"a\nb.TXT"_s;
}

void TestChangeCase::changesTheCase()
{
    QFETCH(QString, name);
    QFETCH(int, chosen);
    QFETCH(bool, ignoreExtension);
    QTEST(applied(parametersFor(chosen, ignoreExtension), name), "expected");
}

void TestChangeCase::usesTheExtensionUnescaped_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");

    QTest::newRow("plus repeats, so nothing matches") << u"A.t+x"_s << u"a.t+x.t+x"_s;
    QTest::newRow("question mark cuts inside the extension") << u"A.x?x"_s << u"a.x.x?x"_s;
    QTest::newRow("invalid: open parenthesis") << u"X.("_s << u"x.(.("_s;
    QTest::newRow("invalid: open bracket") << u"X.["_s << u"x.[.["_s;
    QTest::newRow("plus twice") << u"X.c++"_s << u"x.c++.c++"_s;
    QTest::newRow("a set stands for one character") << u"X.[A]"_s << u"x.[a].[A]"_s;
    QTest::newRow("alternatives match inside the name") << u"XA.A|B"_s << u"|.A|B"_s;
    QTest::newRow("star matches the last character") << u"X.a*"_s << u"x.a.a*"_s;
    QTest::newRow("question mark") << u"X.a?"_s << u"x.a.a?"_s;
    QTest::newRow("caret never matches") << u"X.^"_s << u"x.^.^"_s;
    QTest::newRow("dollar before the end") << u"X.$"_s << u"x..$"_s;
    QTest::newRow("backslash escapes the end") << u"X.a\\"_s << u"x.a\\.a\\"_s;
    QTest::newRow("a class of digits") << u"X.\\d"_s << u"x.\\d.\\d"_s;
    QTest::newRow("a class that takes its own letter") << u"X.\\w"_s << u"x.\\w"_s.chopped(2) + u".\\w";
    QTest::newRow("braces count") << u"X.a{2}"_s << u"x.a{2}.a{2}"_s;
}

void TestChangeCase::usesTheExtensionUnescaped()
{
    QFETCH(QString, name);
    QTEST(applied(parametersFor(Lower, true), name), "expected");
}

/// A file from elsewhere may be named like this: the window froze, or the memory was used up.
void TestChangeCase::extensionOfTooGreatACostIsLikeAnInvalidOne_data()
{
    QTest::addColumn<QString>("extension");

    QTest::newRow("invalid") << u"(A"_s;
    QTest::newRow("counts of counts") << u"(((A{99}){99}){99}){99}"_s;
    QTest::newRow("counts of something optional") << u"((A?){99}){99}"_s;
    QTest::newRow("lookaheads within lookaheads") << u"(?=A*(?=A*(?=A*c)))A"_s;
    QTest::newRow("nested") << u"("_s.repeated(120) + u'A' + u")"_s.repeated(120);
}

void TestChangeCase::extensionOfTooGreatACostIsLikeAnInvalidOne()
{
    QFETCH(QString, extension);
    const QString name = u"A"_s.repeated(200) + u'.' + extension;
    QCOMPARE(applied(parametersFor(Lower, true), name), name.toLower() + u'.' + extension);
}

void TestChangeCase::nameWithoutDotLosesItsLastCharacterAndGetsADot_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("chosen");
    QTest::addColumn<QString>("expected");

    QTest::newRow("lower") << u"README"_s << int(Lower) << u"readm."_s;
    QTest::newRow("upper") << u"readme"_s << int(Upper) << u"READM."_s;
    QTest::newRow("first letters") << u"readme"_s << int(FirstLetters) << u"Readm."_s;
    QTest::newRow("one letter") << u"R"_s << int(Lower) << u"."_s;
    QTest::newRow("ends in a line feed") << u"AB\n"_s << int(Lower) << u"ab."_s;
}

void TestChangeCase::nameWithoutDotLosesItsLastCharacterAndGetsADot()
{
    QFETCH(QString, name);
    QFETCH(int, chosen);
    QTEST(applied(parametersFor(chosen, true), name), "expected");
}

// A rule before this one parted a character, and one behind it may join its halves again.
void TestChangeCase::keepsHalvesOfCharacters_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("chosen");
    QTest::addColumn<QString>("expected");

    const QString parted = u"-A-\xD83C-\xDF89-.-t-"_s;
    QTest::newRow("lower") << parted << int(Lower) << u"-a-\xD83C-\xDF89-.-t-"_s;
    QTest::newRow("upper") << parted << int(Upper) << u"-A-\xD83C-\xDF89-.-T-"_s;
    QTest::newRow("first letters") << parted << int(FirstLetters) << u"-A-\xD83C-\xDF89-.-T-"_s;
    QTest::newRow("at the start") << u"\xDF89_A"_s << int(Lower) << u"\xDF89_a"_s;
    QTest::newRow("at the end") << u"A\xD83C"_s << int(Lower) << u"a\xD83C"_s;
    QTest::newRow("in the wrong order") << u"A\xDF89\xD83CZ"_s << int(Lower) << u"a\xDF89\xD83Cz"_s;
    QTest::newRow("beside whole characters")
        << u"\xD801\xD801\xDC28\xDC28ß"_s << int(Upper) << u"\xD801\xD801\xDC00\xDC28SS"_s;
    QTest::newRow("alone") << u"\xD83C"_s << int(Lower) << u"\xD83C"_s;
}

void TestChangeCase::keepsHalvesOfCharacters()
{
    QFETCH(QString, name);
    QFETCH(int, chosen);
    QTEST(applied(parametersFor(chosen, false), name), "expected");
    QFETCH(QString, expected);
    QCOMPARE(applied(parametersFor(chosen, true), name + u".X\xD83C"_s), expected + u".X\xD83C"_s);
}

void TestChangeCase::letterOutsideLatin1CountsAsNoLetter_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");

    QTest::newRow("Greek") << u"αβγ δε"_s << u"ΑΒΓ ΔΕ"_s;
    QTest::newRow("Cyrillic") << u"привет"_s << u"ПРИВЕТ"_s;
    QTest::newRow("Latin after Greek") << u"αbc"_s << u"ΑBc"_s;
    QTest::newRow("Latin beyond Latin-1") << u"šab"_s << u"ŠAb"_s;
    QTest::newRow("upper case leaves Latin-1") << u"ÿab"_s << u"ŸAb"_s;
    QTest::newRow("micro sign") << u"µab"_s << u"ΜAb"_s;
    QTest::newRow("surrogate pair") << u"a😀bc"_s << u"A😀Bc"_s;
    QTest::newRow("ideograph") << u"日ab"_s << u"日Ab"_s;
}

void TestChangeCase::letterOutsideLatin1CountsAsNoLetter()
{
    QFETCH(QString, name);
    QTEST(applied(parametersFor(FirstLetters, false), name), "expected");
}

void TestChangeCase::lowerGoesBeforeUpperAndFirstLettersBeforeBoth()
{
    QCOMPARE(applied(ChangeCaseParameters{true, true, true, false}, u"aB cD"_s), u"AB CD"_s);
    QCOMPARE(applied(ChangeCaseParameters{true, false, true, false}, u"aB cD"_s), u"AB CD"_s);
    QCOMPARE(applied(ChangeCaseParameters{false, true, true, false}, u"aB cD"_s), u"ab cd"_s);
}

void TestChangeCase::withoutAChoiceTheNameIsLost()
{
    QCOMPARE(applied(parametersFor(None, false), u"Name.Txt"_s), QString());
    QCOMPARE(applied(parametersFor(None, true), u"Name.Txt"_s), u".Txt"_s);
}

// Most extensions are cut off without compiling a pattern; the result must not tell.
void TestChangeCase::plainExtensionsGiveWhatThePatternGives()
{
    const QStringList alphabet{u"a"_s, u"B"_s,  u"."_s, u"."_s, u"ß"_s,  u"é"_s,     u"Ж"_s, u"7"_s,
                               u"_"_s, u"-"_s,  u" "_s, u"'"_s, u"+"_s,  u"*"_s,     u"?"_s, u"("_s,
                               u")"_s, u"["_s,  u"]"_s, u"{"_s, u"}"_s,  u"^"_s,     u"$"_s, u"|"_s,
                               u"~"_s, u"\\"_s, u"d"_s, u"😀"_s, u"日"_s, u"\n"_s,    u"t"_s, u"gz"_s,
                               u"1"_s, u","_s,  u"/"_s, u"٣"_s, u"½"_s,  u"\u0301"_s};
    QRandomGenerator generator(20260101);
    for (int i = 0; i < 20000; ++i) {
        const QString name = random(generator, alphabet);
        const QString extension = QFileInfo(name).suffix();
        const QString stem = RegExp(u'.' + extension + u'$').removedFrom(name);
        QCOMPARE(applied(parametersFor(Lower, true), name), stem.toLower() + u'.' + extension);
        QCOMPARE(applied(parametersFor(Upper, true), name), stem.toUpper() + u'.' + extension);
        QCOMPARE(applied(parametersFor(FirstLetters, true), name),
                 applied(parametersFor(FirstLetters, false), stem) + u'.' + extension);
    }
}

void TestChangeCase::ignoresTheFileIndex()
{
    QCOMPARE(applied(parametersFor(Lower, true), u"A.TXT"_s, 99), u"a.TXT"_s);
}

// Deliberate: the two texts are crossed over in the rule list.
void TestChangeCase::lowerIsListedAsUppercaseAndUpperAsLowercase()
{
    for (const bool ignoreExtension : {false, true}) {
        QCOMPARE(description(parametersFor(Lower, ignoreExtension)), u"Uppercase letters"_s);
        QCOMPARE(description(parametersFor(Upper, ignoreExtension)), u"Lowercase letters"_s);
        QCOMPARE(description(parametersFor(FirstLetters, ignoreExtension)),
                 u"Uppercase first letter of each word"_s);
        QCOMPARE(description(parametersFor(None, ignoreExtension)), u"Uppercase first letter of each word"_s);
    }
}

void TestChangeCase::describesInTheCurrentLanguage()
{
    QCOMPARE(kindName(Kind::ChangeCase), u"Change Case"_s);
    const BracketTranslator translator;
    QCOMPARE(kindName(Kind::ChangeCase), u"[Change Case]"_s);
    QCOMPARE(description(parametersFor(Lower, true)), u"[Uppercase letters]"_s);
    QCOMPARE(description(parametersFor(Upper, true)), u"[Lowercase letters]"_s);
    QCOMPARE(description(parametersFor(FirstLetters, true)), u"[Uppercase first letter of each word]"_s);
}

QTEST_GUILESS_MAIN(TestChangeCase)
#include "tst_changecase.moc"
