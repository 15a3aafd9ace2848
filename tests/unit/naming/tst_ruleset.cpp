// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "naming/examplerules.h"
#include "naming/kind.h"
#include "naming/ruleset.h"
#include "support/temptree.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A set of one rule in JSON, the rule's fields as they stand.
QByteArray setOf(const QByteArray &rule)
{
    return R"({"format": "orvanto-rules", "version": 1, "name": "A", "rules": [)" + rule + "]}";
}

QString errorOf(const QByteArray &json)
{
    RuleSetError error;
    return ruleSetFromJson(json, &error) ? QString() : error.text();
}

Chain chainOf(const RuleSet &set)
{
    Chain chain;
    for (const SetRule &rule : set.rules)
        chain.append(rule.step);
    return chain;
}

/// The set after a way through a file.
RuleSet again(const RuleSet &set)
{
    RuleSetError error;
    const auto json = jsonOf(set, &error);
    if (!json)
        qFatal("%s", qPrintable(error.text()));
    const auto read = ruleSetFromJson(*json, &error);
    if (!read)
        qFatal("%s in %s", qPrintable(error.text()), json->constData());
    return *read;
}

class Random
{
public:
    int below(qsizetype end) { return generator.bounded(static_cast<int>(end)); }
    bool flag() { return below(2) == 1; }
    /// Of what names and patterns are made of, and what files of text trip over.
    QString text(int most)
    {
        static const QStringList parts = {u"a"_s,  u"B"_s,  u" "_s, u"_"_s,      u"."_s,  u"\\"_s, u"\""_s,
                                          u"1"_s,  u"é"_s,  u"ß"_s, u"🎉"_s,      u"\t"_s, u"^"_s,  u"("_s,
                                          u".*"_s, u"日"_s, u"/"_s, u"\u2028"_s, u"\n"_s, u"x"_s};
        QString result;
        for (int i = below(most + 1); i > 0; --i) {
            const int part = below(parts.size() + 2);
            result +=
                part < parts.size() ? parts.at(part) : QString(QChar(part == parts.size() ? 0xd83c : 0xdf89));
        }
        return result;
    }
    int number(Range range) { return range.least + below(range.most - range.least + 1); }
    Parameters parameters()
    {
        switch (allKinds.at(below(allKinds.size()))) {
        case Kind::Replace:
            // Judging a pattern takes hundredths of a second.
            return flag() ? ReplaceParameters(text(3), text(4), false)
                          : ReplaceParameters(patterns.at(below(patterns.size())), text(4), true);
        case Kind::Trim:
            return TrimParameters{below(8), 1 + below(4), flag()};
        case Kind::ChangeCase: {
            const int to = below(3);
            return ChangeCaseParameters{to == 0, to == 1, to == 2, flag()};
        }
        case Kind::InsertText:
            return InsertTextParameters{text(4), below(12), flag()};
        default:
            return EnumerateParameters{number(leadingZerosRange), number(startNumberRange), below(12),
                                       flag()};
        }
    }

private:
    QStringList patterns = {u"a"_s, u"^(.*)B"_s, u"[ _]+"_s, u"(\\d)"_s, u"(?:x|🎉)"_s, u"("_s};
    QRandomGenerator generator = QRandomGenerator::securelySeeded();
};

} // namespace

class TestRuleSet final : public QObject
{
    Q_OBJECT

private slots:
    void fileIsMadeForPeople();
    void everyFieldComesBack();
    void textsSurvive_data();
    void textsSurvive();
    void commentsAreKept();
    void savedSetGivesTheSameNames();
    void whatMayBeMissing();
    void wrongFilesAreTold_data();
    void wrongFilesAreTold();
    void hugeFilesAreRefusedQuickly_data();
    void hugeFilesAreRefusedQuickly();
    void whatCannotBeReadIsNotWritten();
    void filesOfTheSchemasTest();
    void examples_data();
    void examples();
};

void TestRuleSet::fileIsMadeForPeople()
{
    const RuleSet set{u"Holidays"_s,
                      {{{ReplaceParameters(u"IMG_"_s, u"Beach "_s, false), true}, {}},
                       {{TrimParameters{2, 3, false}, true}, {}},
                       {{ChangeCaseParameters{.upper = true, .ignoreExtension = true}, false}, u"loud"_s},
                       {{InsertTextParameters{u"x"_s, 4, true}, true}, {}},
                       {{EnumerateParameters{2, 1, 0, true}, true}, {}}},
                      u"Ours"_s};
    RuleSetError error;
    QCOMPARE(jsonOf(set, &error).value_or(QByteArray()), QByteArrayView(R"({
  "format": "orvanto-rules",
  "version": 1,
  "name": "Holidays",
  "comment": "Ours",
  "rules": [
    { "kind": "replace", "enabled": true, "what": "IMG_", "with": "Beach ", "regexp": false },
    { "kind": "trim", "enabled": true, "position": 2, "length": 3, "from": "end" },
    { "kind": "case", "enabled": false, "to": "upper", "extension": "keep", "comment": "loud" },
    { "kind": "insert", "enabled": true, "text": "x", "position": 4, "from": "start" },
    { "kind": "number", "enabled": true, "start": 1, "zeros": 2, "position": 0, "from": "start" }
  ]
}
)"));
    QCOMPARE(error.text(), QString());
}

void TestRuleSet::everyFieldComesBack()
{
    const RuleSet set =
        again({u"All"_s,
               {{{ReplaceParameters(u"a"_s, u"b"_s, true), false}, {}},
                {{TrimParameters{512, 512, false}, true}, {}},
                {{ChangeCaseParameters{.firstLetters = true, .ignoreExtension = false}, true}, {}},
                {{ChangeCaseParameters{.lower = true, .ignoreExtension = true}, true}, {}},
                {{InsertTextParameters{u" t "_s, 1, false}, true}, {}},
                {{EnumerateParameters{9, 512, 512, false}, true}, {}}},
               {}});
    QCOMPARE(set.name, u"All"_s);
    QVERIFY(set.comment.isNull());
    QCOMPARE(set.rules.size(), 6);
    QCOMPARE(set.rules.at(0).step.isOn, false);
    QCOMPARE(set.rules.at(1).step.isOn, true);
    const auto replace = std::get<ReplaceParameters>(set.rules.at(0).step.parameters);
    QCOMPARE(replace.replaceWhat, u"a"_s);
    QCOMPARE(replace.replaceWith, u"b"_s);
    QVERIFY(replace.regExp);
    QCOMPARE(replace.pattern.replacedIn(u"aca"_s, u"x"_s), u"xcx"_s);
    const auto trim = std::get<TrimParameters>(set.rules.at(1).step.parameters);
    QCOMPARE(trim.position, 512);
    QCOMPARE(trim.length, 512);
    QVERIFY(!trim.fromStart);
    const auto title = std::get<ChangeCaseParameters>(set.rules.at(2).step.parameters);
    QVERIFY(title.firstLetters && !title.upper && !title.lower && !title.ignoreExtension);
    const auto lower = std::get<ChangeCaseParameters>(set.rules.at(3).step.parameters);
    QVERIFY(!lower.firstLetters && !lower.upper && lower.lower && lower.ignoreExtension);
    const auto insert = std::get<InsertTextParameters>(set.rules.at(4).step.parameters);
    QCOMPARE(insert.text, u" t "_s);
    QCOMPARE(insert.position, 1);
    QVERIFY(!insert.fromStart);
    const auto number = std::get<EnumerateParameters>(set.rules.at(5).step.parameters);
    QCOMPARE(number.leadingZeros, 9);
    QCOMPARE(number.startNumber, 512);
    QCOMPARE(number.position, 512);
    QVERIFY(!number.fromStart);
}

void TestRuleSet::textsSurvive_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << u""_s;
    QTest::newRow("blanks at the ends") << u"  a \t"_s;
    QTest::newRow("what JSON escapes") << u"\"\\/\b\f\n\r\t\u0001\u001f"_s;
    QTest::newRow("what looks like an escape") << u"\\u0041\\n"_s;
    QTest::newRow("a null character") << QString(QChar(0));
    QTest::newRow("ends of lines elsewhere") << u"\u0085\u2028\u2029"_s;
    QTest::newRow("beyond 16 bits") << u"🎉"_s;
    QTest::newRow("first half of a character") << u"a"_s + QChar(0xd83c);
    QTest::newRow("second half of a character") << QChar(0xdf89) + u"a"_s;
    QTest::newRow("halves the wrong way round") << QString(QChar(0xdf89)) + QChar(0xd83c);
    QTest::newRow("a byte order mark") << u"\ufeff"_s;
    QTest::newRow("no character") << QString(QChar(0xffff));
    QTest::newRow("as long as a line edit takes") << QString(mostCharactersOfRuleText, u'日');
}

void TestRuleSet::textsSurvive()
{
    QFETCH(QString, text);
    const RuleSet set = again({u"A"_s,
                               {{{ReplaceParameters(text, text, false), true}, text},
                                {{InsertTextParameters{text, 0, true}, true}, {}}},
                               text});
    QCOMPARE(std::get<ReplaceParameters>(set.rules.at(0).step.parameters).replaceWhat, text);
    QCOMPARE(std::get<ReplaceParameters>(set.rules.at(0).step.parameters).replaceWith, text);
    QCOMPARE(std::get<InsertTextParameters>(set.rules.at(1).step.parameters).text, text);
    QCOMPARE(set.rules.at(0).comment, text);
    QCOMPARE(set.comment, text);
}

void TestRuleSet::commentsAreKept()
{
    RuleSetError error;
    const auto set = ruleSetFromJson(
        R"({"comment": "why", "rules": [{"kind": "insert", "text": "x", "position": 0, "from": "start",
            "comment": "so"}], "name": "A", "version": 1, "format": "orvanto-rules"})",
        &error);
    QVERIFY2(set, qPrintable(error.text()));
    QCOMPARE(set->comment, u"why"_s);
    QCOMPARE(set->rules.at(0).comment, u"so"_s);
    QCOMPARE(again(*set).comment, u"why"_s);
    QCOMPARE(again(*set).rules.at(0).comment, u"so"_s);
}

// 10,000 random names by 500 random sets.
void TestRuleSet::savedSetGivesTheSameNames()
{
    Random random;
    for (int round = 0; round < 500; ++round) {
        RuleSet set{u"Random"_s, {}, {}};
        for (int i = random.below(5); i >= 0; --i)
            set.rules.append(SetRule{{random.parameters(), random.below(5) != 0}, {}});
        const RuleSet other = again(set);
        QCOMPARE(other.rules.size(), set.rules.size());
        for (int row = 0; row < 20; ++row) {
            const QString name = random.text(12);
            QCOMPARE(newName(chainOf(other), name, row), newName(chainOf(set), name, row));
        }
    }
}

void TestRuleSet::whatMayBeMissing()
{
    RuleSetError error;
    const auto set = ruleSetFromJson(
        "\xef\xbb\xbf" + setOf(R"({"kind": "insert", "text": "x", "position": 0, "from": "start"})"), &error);
    QVERIFY2(set, qPrintable(error.text()));
    QVERIFY(set->rules.at(0).step.isOn);
    QVERIFY(ruleSetFromJson(setOf({}), &error));
}

void TestRuleSet::wrongFilesAreTold_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error");
    const auto root = [](const char *name, const QByteArray &json, const QString &error) {
        QTest::newRow(name) << json << error;
    };
    root("empty", "", u"line 1 is no JSON"_s);
    root("no JSON", "{\n\"format\": orvanto}", u"line 2 is no JSON"_s);
    root("cut off", setOf("{").chopped(3), u"line 1 is no JSON"_s);
    root("bytes that are no text", "{\"format\": \"\xff\"}", u"line 1 is no JSON"_s);
    root("a list", "[]", u"\"format\": is missing"_s);
    root("another format", R"({"format": "other"})", u"\"format\": must be \"orvanto-rules\""_s);
    root("no version", R"({"format": "orvanto-rules"})", u"\"version\": is missing"_s);
    root("a newer version", R"({"format": "orvanto-rules", "version": 2, "what": "ever"})",
         u"\"version\": a newer version of the program wrote this file"_s);
    root("an older version", R"({"format": "orvanto-rules", "version": 0})", u"\"version\": must be 1"_s);
    root("half a version", R"({"format": "orvanto-rules", "version": 0.5})", u"\"version\": must be 1"_s);
    root("version as a text", R"({"format": "orvanto-rules", "version": "1"})", u"\"version\": must be 1"_s);
    root("no name", R"({"format": "orvanto-rules", "version": 1, "rules": []})", u"\"name\": is missing"_s);
    const QString name = u"\"name\": must be a name, without blanks at its ends"_s;
    root("an empty name", R"({"format": "orvanto-rules", "version": 1, "name": "", "rules": []})", name);
    root("blanks around the name", R"({"format": "orvanto-rules", "version": 1, "name": " a", "rules": []})",
         name);
    root("a name of two lines", R"({"format": "orvanto-rules", "version": 1, "name": "a\nb", "rules": []})",
         name);
    root("a name with half a character",
         R"({"format": "orvanto-rules", "version": 1, "name": "\ud83c", "rules": []})", name);
    root("a long name",
         R"({"format": "orvanto-rules", "version": 1, "rules": [], "name": ")" + QByteArray(101, 'x') + "\"}",
         u"\"name\": must be a text of at most 100 characters"_s);
    root("no rules", R"({"format": "orvanto-rules", "version": 1, "name": "A"})", u"\"rules\": is missing"_s);
    root("rules that are none", R"({"format": "orvanto-rules", "version": 1, "name": "A", "rules": {}})",
         u"\"rules\": must be a list of at most 256 rules"_s);
    root("an unknown field", R"({"format": "orvanto-rules", "version": 1, "name": "A", "rules": [], "x": 1})",
         u"\"x\": no such field is known"_s);
    root("a comment that is no text",
         R"({"format": "orvanto-rules", "version": 1, "name": "A", "rules": [], "comment": 1})",
         u"\"comment\": must be a text of at most 16777216 characters"_s);

    const auto rule = [](const char *row, const QByteArray &fields, const QString &error) {
        QTest::newRow(row) << setOf(R"({"kind": "insert", "text": "x", "position": 0, "from": "start"}, )" +
                                    fields)
                           << u"rule 2, "_s + error;
    };
    rule("a rule that is a text", "\"insert\"", u"must be an object"_s);
    rule("no kind", "{}", u"\"kind\": is missing"_s);
    rule("an unknown kind", R"({"kind": "Insert", "text": "x"})",
         u"\"kind\": must be one of \"replace\", \"trim\", \"case\", \"insert\", \"number\""_s);
    rule("kind as a number", R"({"kind": 3})",
         u"\"kind\": must be one of \"replace\", \"trim\", \"case\", \"insert\", \"number\""_s);
    rule("a misspelt field",
         R"({"kind": "insert", "enable": false, "text": "x", "position": 0, "from": "start"})",
         u"\"enable\": no such field is known"_s);
    rule("enabled as a text",
         R"({"kind": "insert", "enabled": "no", "text": "x", "position": 0, "from": "start"})",
         u"\"enabled\": must be true or false"_s);
    rule("a missing text", R"({"kind": "insert", "position": 0, "from": "start"})",
         u"\"text\": is missing"_s);
    rule("text as a number", R"({"kind": "insert", "text": 1, "position": 0, "from": "start"})",
         u"\"text\": must be a text of at most 32767 characters"_s);
    rule("a text that no line edit holds",
         R"({"kind": "insert", "position": 0, "from": "start", "text": ")" + QByteArray(32768, 'x') + "\"}",
         u"\"text\": must be a text of at most 32767 characters"_s);
    const QString position = u"\"position\": must be a whole number from 0 to 512"_s;
    rule("position below", R"({"kind": "trim", "position": -1, "length": 1, "from": "start"})", position);
    rule("position above", R"({"kind": "trim", "position": 513, "length": 1, "from": "start"})", position);
    rule("position between", R"({"kind": "trim", "position": 0.5, "length": 1, "from": "start"})", position);
    rule("position without end", R"({"kind": "trim", "position": 1e300, "length": 1, "from": "start"})",
         position);
    rule("position as a text", R"({"kind": "trim", "position": "0", "length": 1, "from": "start"})",
         position);
    rule("no position", R"({"kind": "trim", "length": 1, "from": "start"})", u"\"position\": is missing"_s);
    rule("no length", R"({"kind": "trim", "position": 1, "length": 0, "from": "start"})",
         u"\"length\": must be a whole number from 1 to 512"_s);
    rule("from the middle", R"({"kind": "trim", "position": 1, "length": 1, "from": "middle"})",
         u"\"from\": must be one of \"start\", \"end\""_s);
    rule("to another case", R"({"kind": "case", "to": "camel", "extension": "keep"})",
         u"\"to\": must be one of \"lower\", \"upper\", \"title\""_s);
    rule("extension as a flag", R"({"kind": "case", "to": "lower", "extension": true})",
         u"\"extension\": must be one of \"keep\", \"change\""_s);
    rule("a start beyond", R"({"kind": "number", "start": 513, "zeros": 0, "position": 0, "from": "end"})",
         u"\"start\": must be a whole number from 0 to 512"_s);
    rule("too many zeros", R"({"kind": "number", "start": 1, "zeros": 10, "position": 0, "from": "end"})",
         u"\"zeros\": must be a whole number from 0 to 9"_s);
    rule("regexp as a number", R"({"kind": "replace", "what": "a", "with": "b", "regexp": 1})",
         u"\"regexp\": must be true or false"_s);
    rule("a field of another kind",
         R"({"kind": "replace", "what": "a", "with": "b", "regexp": true, "text": "x"})",
         u"\"text\": no such field is known"_s);
}

void TestRuleSet::wrongFilesAreTold()
{
    QFETCH(QByteArray, json);
    QTEST(errorOf(json), "error");
}

void TestRuleSet::hugeFilesAreRefusedQuickly_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error");
    QTest::newRow("100 MB") << QByteArray(100'000'000, ' ') << u"too large"_s;
    QTest::newRow("100,000 rules") << setOf(QByteArray(R"({"kind": "insert"},)").repeated(99'999) +
                                            R"({"kind": "insert"})")
                                   << u"\"rules\": must be a list of at most 256 rules"_s;
    QTest::newRow("deep") << setOf(QByteArray(1'000'000, '[')) << u"line 1 is no JSON"_s;
}

void TestRuleSet::hugeFilesAreRefusedQuickly()
{
    QFETCH(QByteArray, json);
    QElapsedTimer timer;
    timer.start();
    QTEST(errorOf(json), "error");
    // Hundredths of a second; what would read all of it takes many seconds.
    QVERIFY(timer.elapsed() < 5000);
}

void TestRuleSet::whatCannotBeReadIsNotWritten()
{
    RuleSetError error;
    const SetRule rule{{TrimParameters{}, true}, {}};
    QVERIFY(jsonOf({u"A"_s, QList<SetRule>(mostRulesOfSet, rule), {}}, &error));
    QVERIFY(!jsonOf({u"A"_s, QList<SetRule>(mostRulesOfSet + 1, rule), {}}, &error));
    QCOMPARE(error.text(), u"\"rules\": must be a list of at most 256 rules"_s);
    QVERIFY(!jsonOf({u" "_s, {}, {}}, &error));
    QCOMPARE(error.text(), u"\"name\": must be a name, without blanks at its ends"_s);
    const SetRule large{{InsertTextParameters{QString(mostCharactersOfRuleText, u'日'), 0, true}, true}, {}};
    QVERIFY(!jsonOf({u"A"_s, QList<SetRule>(mostRulesOfSet, large), {}}, &error));
    QCOMPARE(error.text(), u"too large"_s);
}

// What the schema of the documents takes and refuses, lint.rulesets checks.
void TestRuleSet::filesOfTheSchemasTest()
{
    const QDir folder(QStringLiteral(RULE_SETS));
    const QStringList files = folder.entryList(QDir::Files);
    QVERIFY(files.size() >= 30);
    for (const QString &file : files) {
        const QString error = errorOf(readFile(folder.filePath(file)));
        if (file.startsWith("good-"_L1))
            QVERIFY2(error.isEmpty(), qPrintable(file + ": "_L1 + error));
        else if (file.startsWith("bad-"_L1))
            QVERIFY2(!error.isEmpty(), qPrintable(file));
    }
    // The examples of the menu are among them.
    const QList<RuleSet> examples = exampleRuleSets();
    for (int i = 0; i < examples.size(); ++i) {
        RuleSetError error;
        QCOMPARE(jsonOf(examples.at(i), &error).value_or(QByteArray()),
                 readFile(folder.filePath(u"good-example-%1"_s.arg(i))));
    }
}

void TestRuleSet::examples_data()
{
    QTest::addColumn<int>("example");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("photos") << 0
                            << QStringList{u"IMG_2041.JPG"_s, u"DSC00017.jpg"_s, u"20240131_101500.heic"_s,
                                           u"a.b.png"_s}
                            << QStringList{u"Photo 001.JPG"_s, u"Photo 002.jpg"_s, u"Photo 003.heic"_s,
                                           u"Photo 004.png"_s};
    QTest::newRow("blanks") << 1 << QStringList{u"My_summer_list.txt"_s, u"none.txt"_s}
                            << QStringList{u"My summer list.txt"_s, u"none.txt"_s};
    QTest::newRow("case") << 2
                          << QStringList{u"MY SUMMER list.TXT"_s, u"readme"_s, u"archive.TAR.GZ"_s,
                                         u"a-b_c.Txt"_s}
                          << QStringList{u"My Summer List.txt"_s, u"Readme"_s, u"Archive.Tar.gz"_s,
                                         u"A-B_C.txt"_s};
    QTest::newRow("prefixes") << 3 << QStringList{u"IMG_2041.JPG"_s, u"DSC00017.jpg"_s,     u"DSCN-5.jpg"_s,
                                                  u"P1010001.JPG"_s, u"PXL_20240131.jpg"_s, u"Party.jpg"_s,
                                                  u"IMG.jpg"_s}
                              << QStringList{u"2041.JPG"_s,     u"00017.jpg"_s, u"5.jpg"_s,  u"1010001.JPG"_s,
                                             u"20240131.jpg"_s, u"Party.jpg"_s, u"IMG.jpg"_s};
    QTest::newRow("dates") << 4 << QStringList{u"20240131.jpg"_s,      u"PXL_20240131_101500.jpg"_s,
                                               u"scan 19991231.pdf"_s, u"20241301.jpg"_s,
                                               u"120240131.jpg"_s,     u"202401311.jpg"_s}
                           << QStringList{u"2024-01-31.jpg"_s,      u"PXL_2024-01-31_101500.jpg"_s,
                                          u"scan 1999-12-31.pdf"_s, u"20241301.jpg"_s,
                                          u"120240131.jpg"_s,       u"202401311.jpg"_s};
    QTest::newRow("tracks") << 5 << QStringList{u"1 Intro.mp3"_s, u"12 End.mp3"_s, u"7.flac"_s, u"Song.mp3"_s}
                            << QStringList{u"01 Intro.mp3"_s, u"12 End.mp3"_s, u"07.flac"_s, u"Song.mp3"_s};
    QTest::newRow("artists") << 6
                             << QStringList{u"Miles Davis - So What.mp3"_s, u"AC-DC - T.N.T..flac"_s,
                                            u"A - B - C.ogg"_s, u"No artist.mp3"_s}
                             << QStringList{u"So What - Miles Davis.mp3"_s, u"T.N.T. - AC-DC.flac"_s,
                                            u"B - C - A.ogg"_s, u"No artist.mp3"_s};
}

void TestRuleSet::examples()
{
    QFETCH(int, example);
    QFETCH(QStringList, names);
    const QList<RuleSet> sets = exampleRuleSets();
    QCOMPARE(sets.size(), 7);
    QStringList results;
    for (int row = 0; row < names.size(); ++row)
        results.append(newName(chainOf(again(sets.at(example))), names.at(row), row));
    QTEST(results, "expected");
}

QTEST_GUILESS_MAIN(TestRuleSet)
#include "tst_ruleset.moc"
