// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "naming/regexp.h"
#include "rules/patternhelp.h"

#include <QTest>
#include <QTextDocumentFragment>

using namespace Qt::StringLiterals;

/// The short help of patterns says what the engine does.
class TestPatternHelp final : public QObject
{
    Q_OBJECT

private slots:
    void everyLineIsTrue_data();
    void everyLineIsTrue();
    void lastLineIsTrue();
    void toolTipAndDescriptionHoldEveryLine();

private:
    QStringList tried;
};

void TestPatternHelp::everyLineIsTrue_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("meaning");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("replacement");
    QTest::addColumn<QString>("expected");
    // What stands around it in the pattern that is tried.
    QTest::addColumn<QString>("within");
    const auto add = [](const char *pattern, const char *meaning, const char *name, const char *replacement,
                        const char *expected, const char *within = "%1") {
        const auto text = [](const char *utf8) {
            return QString::fromUtf8(utf8);
        };
        QTest::addRow("%s in %s", pattern, name) << text(pattern) << text(meaning) << text(name)
                                                 << text(replacement) << text(expected) << text(within);
    };
    const char *any = "any character";
    add(".", any, "a.é 1", "x", "xxxxx");
    add("\\.", "the dot itself", "a.b,c.d", "", "ab,cd");
    add("[abc]", "one of these characters", "abcdeABCé", "", "deABCé");
    add("[^abc]", "any other character", "abcdeABCé", "x", "abcxxxxxx");
    add("\\d", "a digit", "a1b23-_é", "", "ab-_é");
    add("\\w", "a letter, a digit or _", "aÉж9_-. (", "", "-. (");
    add("\\s", "a blank", "a b  c_d", "", "abc_d");
    const char *many = "any number of a, also none";
    add("a*", many, "<> <a> <aaaaa> <b> <ab>", "x", "x x x <b> <ab>", "<%1>");
    const char *more = "one a or more";
    add("a+", more, "<> <a> <aaaaa> <b> <ab>", "x", "<> x x <b> <ab>", "<%1>");
    const char *some = "one a or none";
    add("a?", some, "<> <a> <aa> <b> <ab>", "x", "x x <aa> <b> <ab>", "<%1>");
    const char *counted = "two to four a";
    add("a{2,4}", counted, "<> <a> <aa> <aaa> <aaaa> <aaaaa> <aab>", "x", "<> <a> x x x <aaaaa> <aab>",
        "<%1>");
    add("ab|cd", "either ab or cd", "abcdacbd", "x", "xxacbd");
    add("^", "the beginning of the name", "name", "x", "xname");
    add("$", "the end of the name", "name", "x", "namex");
    add("(ab)", "a group: \\1 in the new text is what it found", "1ab2", "<\\1>", "1<ab>2");
}

void TestPatternHelp::everyLineIsTrue()
{
    QFETCH(QString, pattern);
    QFETCH(QString, meaning);
    QFETCH(QString, name);
    QFETCH(QString, replacement);
    QFETCH(QString, expected);
    QFETCH(QString, within);
    const RegExp regExp(within.arg(pattern));
    QCOMPARE(regExp.verdict(), RegExp::Verdict::Usable);
    QCOMPARE(regExp.replacedIn(name, replacement), expected);
    const QList<PatternHelpLine> lines = patternHelp();
    QVERIFY(std::any_of(lines.begin(), lines.end(), [&](const PatternHelpLine &line) {
        return line.pattern == pattern && line.meaning == meaning;
    }));
    tried.append(pattern);
}

void TestPatternHelp::lastLineIsTrue()
{
    QVERIFY(patternDescription().endsWith("Upper and lower case differ; as much as possible is found."_L1));
    QCOMPARE(RegExp(u"a"_s).replacedIn(u"aA"_s, u"x"_s), u"xA"_s);
    QCOMPARE(RegExp(u"a.*b"_s).replacedIn(u"a1b2b3"_s, u"x"_s), u"x3"_s);
}

void TestPatternHelp::toolTipAndDescriptionHoldEveryLine()
{
    const QString tip = QTextDocumentFragment::fromHtml(patternToolTip(u"<Title>"_s)).toPlainText();
    QVERIFY(tip.startsWith("<Title>"_L1));
    const QList<PatternHelpLine> lines = patternHelp();
    for (const PatternHelpLine &line : lines) {
        QVERIFY2(tried.contains(line.pattern), qPrintable(line.pattern));
        QVERIFY2(tip.contains(line.pattern) && tip.contains(line.meaning), qPrintable(tip));
        QVERIFY(patternDescription().contains(line.pattern + ": "_L1 + line.meaning + u';'));
    }
    QVERIFY(tip.endsWith("is found."_L1));
}

QTEST_MAIN(TestPatternHelp)
#include "tst_patternhelp.moc"
