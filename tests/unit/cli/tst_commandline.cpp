// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/commandline.h"

#include "naming/kind.h"
#include "unit/cli/shellwords.h"

#include <QCoreApplication>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

std::optional<Chain> noSet(const QString &name, QString *error)
{
    *error = u"no set "_s + name;
    return std::nullopt;
}

/// What is read of the words, with the error in its place where there is one.
struct Read
{
    explicit Read(const QStringList &words, const SetFinder &find = noSet)
    {
        line = readCommandLine(words, find, &error);
    }

    std::optional<CommandLine> line;
    QString error;
};

QStringList wordsOf(const char *text)
{
    return QString::fromUtf8(text).split(u' ', Qt::SkipEmptyParts);
}

/// What a chain makes of a name, as a check that each value has come to its place.
QString made(const QStringList &words, const QString &name, int row = 0)
{
    const Read read(QStringList{u"preview"_s, u"file"_s} + words);
    return read.line ? newName(read.line->rules, name, row) : read.error;
}

} // namespace

/// The reading of the command line.
class TestCommandLine final : public QObject
{
    Q_OBJECT

private slots:
    void rulesAreReadInTheirOrder();
    void eachRuleMeansWhatItsEditorMeans_data();
    void eachRuleMeansWhatItsEditorMeans();
    void wrongValuesAreToldWithTheirOption_data();
    void wrongValuesAreToldWithTheirOption();
    void everyRuleCanBeWrittenAsAnOption();
    void valuesThatLookLikeOptionsAreValues();
    void twoDashesEndTheOptions();
    void optionsStandBeforeAndBehindFiles();
    void setsAreFoundInTheirPlace();
    void filesAreChosen();
    void outputIsChosen();
    void wrongLinesAreRefused_data();
    void wrongLinesAreRefused();
    void helpIsAskedForInEveryPlace();
};

void TestCommandLine::rulesAreReadInTheirOrder()
{
    QCOMPARE(made(wordsOf("--replace a b --replace b c --insert a@0"), u"ab"_s), u"acc"_s);
    QCOMPARE(made(wordsOf("--insert a@0 --replace a b --replace b c"), u"ab"_s), u"ccc"_s);
}

void TestCommandLine::eachRuleMeansWhatItsEditorMeans_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("result");
    const auto row = [](const char *words, const QString &result) {
        QTest::newRow(words) << wordsOf(words) << result;
    };
    row("--replace b xx", u"axxC.txt"_s);
    row("--replace b.+ x", u"abC.txt"_s);
    row("--regexp (a)(b) \\2\\1", u"baC.txt"_s);
    row("--trim 1,2", u"a.txt"_s);
    row("--trim=1,2", u"a.txt"_s);
    row("--trim 0,4,end", u"abC"_s);
    row("--case upper", u"ABC.txt"_s);
    row("--case upper,all", u"ABC.TXT"_s);
    row("--case lower", u"abc.txt"_s);
    row("--case title", u"AbC.txt"_s);
    row("--insert x@1", u"axbC.txt"_s);
    row("--insert x@4,end", u"abCx.txt"_s);
    row("--insert x@y@1", u"ax@ybC.txt"_s);
    row("--insert x,end@1", u"ax,endbC.txt"_s);
    row("--insert @0", u"abC.txt"_s);
    row("--number 7", u"9abC.txt"_s);
    row("--number 7,2", u"009abC.txt"_s);
    row("--number 7,2,3", u"abC009.txt"_s);
    row("--number 7,0,4,end", u"abC9.txt"_s);
}

void TestCommandLine::eachRuleMeansWhatItsEditorMeans()
{
    QFETCH(QStringList, words);
    QFETCH(QString, result);
    QCOMPARE(made(words, u"abC.txt"_s, 2), result);
}

void TestCommandLine::wrongValuesAreToldWithTheirOption_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *words, const QString &error) {
        QTest::newRow(words) << wordsOf(words) << error;
    };
    const auto number = [](const char *option, const char *name, int least, int most) {
        return u"--%1: %2 must be a whole number from %3 to %4"_s.arg(
            QLatin1StringView(option), QLatin1StringView(name), QString::number(least),
            QString::number(most));
    };
    row("--trim 513,1", number("trim", "POSITION", 0, 512));
    row("--trim 0,0", number("trim", "LENGTH", 1, 512));
    row("--trim 0,513", number("trim", "LENGTH", 1, 512));
    row("--trim -1,1", number("trim", "POSITION", 0, 512));
    row("--trim +1,1", number("trim", "POSITION", 0, 512));
    row("--trim 1,99999999999999999999", number("trim", "LENGTH", 1, 512));
    row("--trim 1", u"--trim: must be POSITION,LENGTH[,end]"_s);
    row("--trim 1,2,3", u"--trim: must be POSITION,LENGTH[,end]"_s);
    row("--trim 1,2,End", u"--trim: must be POSITION,LENGTH[,end]"_s);
    row("--trim", u"--trim needs POSITION,LENGTH[,end]"_s);
    row("--replace a", u"--replace needs WHAT WITH"_s);
    row("--regexp ( a", u"--regexp: PATTERN is no valid regular expression"_s);
    row("--regexp (a*){200}b x", u"--regexp: PATTERN would take too long"_s);
    row("--case Upper", u"--case: must be lower, upper or title, which all may follow behind a comma"_s);
    row("--case all", u"--case: must be lower, upper or title, which all may follow behind a comma"_s);
    row("--insert x", u"--insert: must be TEXT@POSITION[,end]"_s);
    row("--insert x@", number("insert", "POSITION", 0, 512));
    row("--insert x@513", number("insert", "POSITION", 0, 512));
    row("--insert x@1,2", u"--insert: must be TEXT@POSITION[,end]"_s);
    row("--number 513", number("number", "START", 0, 512));
    row("--number 1,10", number("number", "ZEROS", 0, 9));
    row("--number 1,1,513", number("number", "POSITION", 0, 512));
    row("--number 1,end", u"--number: must be START[,ZEROS[,POSITION[,end]]]"_s);
    row("--number 1,2,3,4", u"--number: must be START[,ZEROS[,POSITION[,end]]]"_s);
    row("--set holiday", u"--set: no set holiday"_s);
}

void TestCommandLine::wrongValuesAreToldWithTheirOption()
{
    QFETCH(QStringList, words);
    QFETCH(QString, error);
    QCOMPARE(made(words, u"name"_s), error);
}

void TestCommandLine::everyRuleCanBeWrittenAsAnOption()
{
    const QList<Parameters> rules{ReplaceParameters(u"it's"_s, u"a b"_s, false),
                                  ReplaceParameters(u"^(.)"_s, u"\\1"_s, true),
                                  TrimParameters{3, 4, false},
                                  ChangeCaseParameters{true, false, false, true},
                                  ChangeCaseParameters{false, false, true, false},
                                  InsertTextParameters{u"x@y"_s, 5, false},
                                  EnumerateParameters{2, 7, 9, true}};
    for (const Parameters &rule : rules) {
        const QString option = optionOf(rule);
        QStringList words{u"preview"_s, u"file"_s};
        for (const QByteArray &word : shellWords(option))
            words.append(QString::fromUtf8(word));
        const Read read(words);
        QVERIFY2(read.line, qPrintable(option + u": "_s + read.error));
        QCOMPARE(read.line->rules.size(), 1);
        const Parameters &again = read.line->rules.constFirst().parameters;
        QCOMPARE(optionOf(again), option);
        QVERIFY(kindOf(again) == kindOf(rule));
        for (const QString &name : {u"it's a name.txt"_s, u"x"_s, u"photo 1.JPG"_s})
            QCOMPARE(newName({{again, true}}, name, 4), newName({{rule, true}}, name, 4));
    }
}

void TestCommandLine::valuesThatLookLikeOptionsAreValues()
{
    QCOMPARE(made({u"--replace"_s, u"--trim"_s, u"--"_s}, u"a--trim"_s), u"a--"_s);
    const Read read({u"preview"_s, u"--filter"_s, u"--trim"_s, u"file"_s});
    QVERIFY2(read.line, qPrintable(read.error));
    QCOMPARE(read.line->filters, QStringList(u"--trim"_s));
    QVERIFY(read.line->rules.isEmpty());
}

void TestCommandLine::twoDashesEndTheOptions()
{
    const Read read(wordsOf("preview --json -- -x --trim --json --"));
    QVERIFY2(read.line, qPrintable(read.error));
    QCOMPARE(read.line->operands, wordsOf("-x --trim --json --"));
    QVERIFY(read.line->rules.isEmpty());
}

void TestCommandLine::optionsStandBeforeAndBehindFiles()
{
    const Read read(wordsOf("apply a --yes b --trim 0,1 c --classic"));
    QVERIFY2(read.line, qPrintable(read.error));
    QCOMPARE(read.line->operands, wordsOf("a b c"));
    QVERIFY(read.line->isConfirmed && read.line->isClassic && read.line->isUndoable);
    QCOMPARE(read.line->rules.size(), 1);
}

void TestCommandLine::setsAreFoundInTheirPlace()
{
    const auto find = [](const QString &name, QString *) {
        return std::optional<Chain>(
            {{InsertTextParameters{name, 0, true}, true}, {InsertTextParameters{u"off"_s, 0, true}, false}});
    };
    const Read read(wordsOf("preview file --insert 1@0 --set 2 --insert 3@0"), find);
    QVERIFY2(read.line, qPrintable(read.error));
    QCOMPARE(newName(read.line->rules, u"x"_s, 0), u"321x"_s);
}

void TestCommandLine::filesAreChosen()
{
    const Read plain(wordsOf("preview file"));
    QVERIFY(!plain.line->order && !plain.line->isReverse && plain.line->filters.isEmpty());
    QVERIFY(!Read(wordsOf("preview file --sort none")).line->order);
    const QStringList keys = wordsOf("name path extension size modified");
    for (int i = 0; i < keys.size(); ++i) {
        const Read read({u"preview"_s, u"file"_s, u"--sort"_s, keys.at(i)});
        QCOMPARE(static_cast<int>(*read.line->order), i);
    }
    const Read read(wordsOf("preview --files-from - -0 --filter *.jpg;*.png --filter *.gif --reverse"));
    QVERIFY2(read.line, qPrintable(read.error));
    QCOMPARE(read.line->filters, wordsOf("*.jpg *.png *.gif"));
    QCOMPARE(read.line->filesFrom, u"-"_s);
    QVERIFY(read.line->isNullSeparated && read.line->isReverse);
}

void TestCommandLine::outputIsChosen()
{
    const auto formOf = [](const char *words) {
        return Read(wordsOf(words)).line->form;
    };
    QVERIFY(formOf("preview file") == OutputForm::Text);
    QVERIFY(formOf("preview file --json") == OutputForm::Json);
    QVERIFY(formOf("undo --print0") == OutputForm::Paths);
    QVERIFY(formOf("apply file --quiet") == OutputForm::Nothing);
    QVERIFY(Read(wordsOf("history --color never")).line->color == ColorUse::Never);
    QVERIFY(Read(wordsOf("history --color always")).line->color == ColorUse::Always);
    QVERIFY(!Read(wordsOf("apply file --no-undo")).line->isUndoable);
}

void TestCommandLine::wrongLinesAreRefused_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *words, const QString &error) {
        QTest::newRow(words) << wordsOf(words) << error;
    };
    row("", u"no command is named"_s);
    row("rename", u"there is no command rename"_s);
    row("preview", u"no file is named"_s);
    row("preview --nonsense x", u"there is no option --nonsense"_s);
    row("preview -x", u"there is no option -x"_s);
    row("preview x --yes", u"preview has no option --yes"_s);
    row("history --quiet", u"history has no option --quiet"_s);
    row("undo --trim 0,1", u"there is no option --trim"_s);
    row("undo a b", u"only one run can be taken back at a time"_s);
    row("history x", u"nothing can stand behind history"_s);
    row("sets", u"sets needs list | show NAME|FILE | check FILE..."_s);
    row("sets list x", u"sets needs list | show NAME|FILE | check FILE..."_s);
    row("sets check", u"sets needs list | show NAME|FILE | check FILE..."_s);
    row("preview x -0", u"-0 needs --files-from"_s);
    row("preview x --sort date", u"--sort: must be none, name, path, extension, size or modified"_s);
    row("preview x --color maybe", u"--color: must be auto, always or never"_s);
    row("preview x --json --print0", u"--json and --print0 exclude each other"_s);
    row("preview x --print0 --quiet", u"--print0 and --quiet exclude each other"_s);
}

void TestCommandLine::wrongLinesAreRefused()
{
    QFETCH(QStringList, words);
    QFETCH(QString, error);
    const Read read(words);
    QVERIFY(!read.line);
    QCOMPARE(read.error, error);
}

void TestCommandLine::helpIsAskedForInEveryPlace()
{
    QVERIFY(Read(wordsOf("--help")).line->wantsHelp);
    QVERIFY(Read(wordsOf("--version")).line->wantsVersion);
    for (const CommandInfo &command : allCommands()) {
        for (const QString &option : {u"--help"_s, u"-h"_s})
            QVERIFY(Read({command.name, option}).line->wantsHelp);
    }
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
