// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "naming/rulesetfolder.h"
#include "unit/cli/shelltest.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

RuleSet holiday()
{
    return {u"Holiday"_s,
            {{{ReplaceParameters(u"_"_s, u" "_s, false), true}, {}},
             {{InsertTextParameters{u"off"_s, 0, true}, false}, {}},
             {{InsertTextParameters{u"it's "_s, 0, true}, true}, {}}},
            {}};
}

} // namespace

/// Rule sets in a shell.
class TestSets final : public QObject
{
    Q_OBJECT

private slots:
    void savedSetsAreListedBeforeTheExamples();
    void rulesAreShownAsOptions();
    void setsAreFoundByNameAndFile();
    void filesAreChecked();
};

void TestSets::savedSetsAreListedBeforeTheExamples()
{
    ShellTest shell;
    QCOMPARE(RuleSetFolder(shell.data.path(u"rulesets"_s)).save(holiday()), QString());
    const auto ended = shell.run({u"sets"_s, u"list"_s});
    QVERIFY(ended.out.startsWith("Holiday\n'Number photos' (comes with the program)\n"));
    const QList<QJsonObject> sets = shell.run({u"sets"_s, u"list"_s, u"--json"_s}).objects();
    QCOMPARE(sets.at(0), (QJsonObject{{u"name"_s, u"Holiday"_s}, {u"origin"_s, u"saved"_s}}));
    QCOMPARE(sets.at(1), (QJsonObject{{u"name"_s, u"Number photos"_s}, {u"origin"_s, u"example"_s}}));
}

void TestSets::rulesAreShownAsOptions()
{
    ShellTest shell;
    QCOMPARE(RuleSetFolder(shell.data.path(u"rulesets"_s)).save(holiday()), QString());
    QCOMPARE(shell.run({u"sets"_s, u"show"_s, u"Holiday"_s}).out,
             QByteArray("--replace _ ' '\n# off: --insert off@0\n--insert \"it's @0\"\n"));
    RuleSetError error;
    QCOMPARE(shell.run({u"sets"_s, u"show"_s, u"Holiday"_s, u"--json"_s}).out, *jsonOf(holiday(), &error));
    const auto ended = shell.run({u"sets"_s, u"show"_s, u"Never"_s});
    QCOMPARE(ended.code, ExitCode::AllFailed);
    QCOMPARE(ended.trouble,
             QByteArray("orvanto-cli: Never: there is neither a rule set nor a file of this name\n"));
}

void TestSets::setsAreFoundByNameAndFile()
{
    const TestFolder folder;
    ShellTest shell;
    folder.addFile(u"a_b"_s);
    QCOMPARE(RuleSetFolder(shell.data.path(u"rulesets"_s)).save(holiday()), QString());
    RuleSet other = holiday();
    other.rules.resize(1);
    QCOMPARE(writeRuleSet(folder.path(u"Holiday"_s), other), QString());
    const auto made = [&](const QString &set) {
        return shell.run({u"preview"_s, u"--set"_s, set, u"a_b"_s}).out;
    };
    QCOMPARE(made(u"Holiday"_s), QByteArray("a_b → \"it's a b\"\n"));
    QCOMPARE(made(u"./Holiday"_s), QByteArray("a_b → 'a b'\n"));
    QCOMPARE(made(u"Blanks for underscores"_s), QByteArray("a_b → 'a b'\n"));
    QVERIFY(QFile::remove(shell.data.path(u"rulesets/Holiday.orvanto-rules"_s)));
    QCOMPARE(made(u"Holiday"_s), QByteArray("a_b → 'a b'\n"));
    const auto none = shell.run({u"preview"_s, u"--set"_s, u"Never"_s, u"a_b"_s});
    QCOMPARE(none.code, ExitCode::Usage);
    QVERIFY(none.trouble.startsWith("orvanto-cli: --set: Never: there is neither"));
}

void TestSets::filesAreChecked()
{
    const TestFolder folder;
    ShellTest shell;
    QCOMPARE(writeRuleSet(folder.path(u"good"_s), holiday()), QString());
    folder.addFile(u"bad"_s, "{}");
    const auto ended = shell.run({u"sets"_s, u"check"_s, u"good"_s, u"bad"_s});
    QCOMPARE(ended.out, QByteArray("good: 3 rules\n"));
    QVERIFY(ended.trouble.startsWith("orvanto-cli: bad: "));
    QCOMPARE(ended.code, ExitCode::SomeFailed);
    QCOMPARE(shell.run({u"sets"_s, u"check"_s, u"good"_s}).code, ExitCode::Done);
    QCOMPARE(shell.run({u"sets"_s, u"check"_s, u"bad"_s}).code, ExitCode::AllFailed);
}

QTEST_GUILESS_MAIN(TestSets)
#include "tst_sets.moc"
