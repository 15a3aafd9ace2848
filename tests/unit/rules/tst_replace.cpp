// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/rulereplace.h"
#include "unit/support/editors.h"

#include <QAction>
#include <QLineEdit>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

ReplaceParameters literal(const QString &what, const QString &with)
{
    return {what, with, false, RegExp()};
}

ReplaceParameters pattern(const QString &what, const QString &with)
{
    return {what, with, true, RegExp(what)};
}

/// The tool tip of the field and of the mark in it; empty without a mark.
QString markOf(const QLineEdit *edit)
{
    const QList<QAction *> marks = edit->actions();
    if (marks.isEmpty())
        return edit->toolTip().isEmpty() ? QString() : u"no mark"_s;
    const bool isWhole = marks.size() == 1 && !marks.constFirst()->icon().isNull() &&
                         marks.constFirst()->toolTip() == edit->toolTip() &&
                         edit->accessibleDescription() == edit->toolTip();
    return isWhole ? edit->toolTip() : u"another mark"_s;
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
    void editorHasItsWidgetsInOrder();
    void editorStartsWithItsInitialValues();
    void editorLaysOutItsWidgets();
    void editorFollowsTheLanguage();
    void markTellsThatAPatternChangesNothing_data();
    void markTellsThatAPatternChangesNothing();
    void plainTextsHaveNoMark();
    void markWaitsForAPauseInTyping();
    void markFollowsTheLanguage();
    void createDataReadsTheEditor();
    void createDataWithoutAnEditorIsNull();

private:
    RuleReplace rule;
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
    QTEST(applied(rule, literal(what, with), name), "expected");
    QTEST(applied(rule, literal(what, with), name, 5), "expected");
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
    QTEST(applied(rule, pattern(what, with), name), "expected");
    QTEST(applied(rule, pattern(what, with), name, 5), "expected");
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
    QTEST(applied(rule, literal(u""_s, with), name), "expected");
    QTEST(applied(rule, literal(QString(), with), name), "expected");
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
        QCOMPARE(applied(rule, pattern(what, u"x"_s), name), name);
}

void TestReplace::oneRecordServesManyNames()
{
    const RuleData data{&rule, pattern(u"^(\\d+)_(.*)$"_s, u"\\2 \\1"_s)};
    for (int i = 0; i < 1000; ++i) {
        const QString number = QString::number(i);
        QCOMPARE(rule.apply(&data, number + u"_name", i), u"name " + number);
        QCOMPARE(rule.apply(&data, u"name"_s, i), u"name"_s);
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
    QTEST(described(rule, literal(what, with)), "expected");
    QTEST(described(rule, pattern(what, with)), "expected");
}

void TestReplace::nameFollowsTheLanguage()
{
    QCOMPARE(rule.name(), u"Replace"_s);
    const BracketTranslator translator;
    QCOMPARE(rule.name(), u"[Replace]"_s);
}

void TestReplace::editorHasItsWidgetsInOrder()
{
    QWidget parent;
    const QWidget *editor = rule.createEditor(&parent);
    QCOMPARE(editor->parentWidget(), &parent);
    const QStringList expected{u"QLineEdit"_s, u"QLineEdit"_s, u"QToolButton"_s, u"QLabel:Replace what"_s,
                               u"QLabel:Replace with"_s};
    QCOMPARE(childLines(*editor), expected);
    const auto *typed = qobject_cast<const RuleWidgetReplace *>(editor);
    const auto lines = editor->findChildren<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(lines, (QList<QLineEdit *>{typed->lineEditReplaceWhat, typed->lineEditReplaceWith}));
}

void TestReplace::editorStartsWithItsInitialValues()
{
    const std::unique_ptr<QWidget> widget(rule.createEditor(nullptr));
    const auto *editor = qobject_cast<const RuleWidgetReplace *>(widget.get());
    QCOMPARE(editor->lineEditReplaceWhat->text(), QString());
    QCOMPARE(editor->lineEditReplaceWith->text(), QString());
    QVERIFY(editor->toolButtonRegExp->isCheckable());
    QVERIFY(!editor->toolButtonRegExp->isChecked());
    QCOMPARE(editor->toolButtonRegExp->text(), QString());
    QCOMPARE(editor->toolButtonRegExp->statusTip(), u"Regular Expression"_s);
    QCOMPARE(editor->toolButtonRegExp->iconSize(), QSize(20, 20));
    QCOMPARE(editor->toolButtonRegExp->icon().pixmap(20, 20).toImage().convertToFormat(QImage::Format_RGB32),
             QImage(u":/img/regexp.png"_s).convertToFormat(QImage::Format_RGB32));
    QVERIFY(!QImage(u":/img/regexp.png"_s).isNull());
}

void TestReplace::editorLaysOutItsWidgets()
{
    const std::unique_ptr<QWidget> editor(rule.createEditor(nullptr));
    const QStringList expected{u"1,0 QLabel:Replace what"_s, u"1,1 QLineEdit"_s, u"1,2 QToolButton"_s,
                               u"2,0 QLabel:Replace with"_s, u"2,1 QLineEdit"_s};
    QCOMPARE(gridLines(*editor), expected);
    const auto *typed = qobject_cast<const RuleWidgetReplace *>(editor.get());
    const auto *grid = qobject_cast<const QGridLayout *>(editor->layout());
    QCOMPARE(grid->itemAtPosition(1, 1)->widget(), typed->lineEditReplaceWhat);
    QCOMPARE(grid->itemAtPosition(2, 1)->widget(), typed->lineEditReplaceWith);
}

void TestReplace::editorFollowsTheLanguage()
{
    const std::unique_ptr<QWidget> editor(rule.createEditor(nullptr));
    verifyFollowsLanguage(*editor);
    verifyAcceptsLanguageChange(*editor);
    const auto *typed = qobject_cast<const RuleWidgetReplace *>(editor.get());
    {
        const BracketTranslator translator;
        QCoreApplication::processEvents();
        QCOMPARE(typed->toolButtonRegExp->statusTip(), u"[Regular Expression]"_s);
    }
    QCoreApplication::processEvents();
    QCOMPARE(typed->toolButtonRegExp->statusTip(), u"Regular Expression"_s);
}

void TestReplace::markTellsThatAPatternChangesNothing_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("toolTip");

    QTest::newRow("invalid") << u"img(_"_s << u"No valid pattern: it will change nothing."_s;
    QTest::newRow("slow") << u"(a*){200}b"_s
                          << u"This pattern would take too long: it will change nothing."_s;
    QTest::newRow("usable") << u"a(b)"_s << QString();
    QTest::newRow("empty") << QString() << QString();
}

void TestReplace::markTellsThatAPatternChangesNothing()
{
    QFETCH(QString, pattern);
    QFETCH(QString, toolTip);
    const std::unique_ptr<QWidget> widget(rule.createEditor(nullptr));
    const auto *editor = qobject_cast<const RuleWidgetReplace *>(widget.get());
    QLineEdit *what = editor->lineEditReplaceWhat;
    what->setText(pattern);
    QCOMPARE(markOf(what), QString());
    editor->toolButtonRegExp->click();
    QCOMPARE(markOf(what), toolTip);
    editor->toolButtonRegExp->click();
    QCOMPARE(markOf(what), QString());
    // Typed while the button is down.
    editor->toolButtonRegExp->click();
    what->setText(u"x"_s);
    QTRY_COMPARE(markOf(what), QString());
    what->setText(pattern);
    QTRY_COMPARE(markOf(what), toolTip);
    // The rule is what it would be without a mark.
    const auto parameters = captured<ReplaceParameters>(rule, *editor);
    QCOMPARE(parameters.replaceWhat, pattern);
    QVERIFY(parameters.regExp);
    QVERIFY(editor->lineEditReplaceWith->toolTip().isEmpty());
}

void TestReplace::plainTextsHaveNoMark()
{
    const std::unique_ptr<QWidget> widget(rule.createEditor(nullptr));
    const auto *editor = qobject_cast<const RuleWidgetReplace *>(widget.get());
    editor->toolButtonRegExp->click();
    editor->lineEditReplaceWhat->setText(u"("_s);
    QTRY_VERIFY(!markOf(editor->lineEditReplaceWhat).isEmpty());
    editor->toolButtonRegExp->click();
    QCOMPARE(markOf(editor->lineEditReplaceWhat), QString());
    // No look at it is due either.
    editor->lineEditReplaceWhat->setText(u"(("_s);
    const auto timers = editor->findChildren<QTimer *>();
    QVERIFY(
        std::none_of(timers.begin(), timers.end(), [](const QTimer *timer) { return timer->isActive(); }));
}

// A verdict may take some tenths of a second, and each key makes another pattern.
void TestReplace::markWaitsForAPauseInTyping()
{
    const std::unique_ptr<QWidget> widget(rule.createEditor(nullptr));
    const auto *editor = qobject_cast<const RuleWidgetReplace *>(widget.get());
    editor->toolButtonRegExp->click();
    const std::clock_t start = std::clock();
    for (int loops = 200; loops < 300; ++loops) {
        editor->lineEditReplaceWhat->setText(u"(a*){%1}b"_s.arg(loops));
        QCoreApplication::processEvents();
    }
    // Each of them takes a tenth of a second at least.
    QVERIFY(std::clock() - start < 5 * CLOCKS_PER_SEC);
    QTRY_VERIFY(!markOf(editor->lineEditReplaceWhat).isEmpty());
}

void TestReplace::markFollowsTheLanguage()
{
    const std::unique_ptr<QWidget> widget(rule.createEditor(nullptr));
    const auto *editor = qobject_cast<const RuleWidgetReplace *>(widget.get());
    editor->lineEditReplaceWhat->setText(u"("_s);
    editor->toolButtonRegExp->click();
    const BracketTranslator translator;
    QCoreApplication::processEvents();
    QCOMPARE(markOf(editor->lineEditReplaceWhat), u"[No valid pattern: it will change nothing.]"_s);
}

void TestReplace::createDataReadsTheEditor()
{
    const RuleWidgetReplace editor(nullptr);
    editor.lineEditReplaceWhat->setText(u"(b+)"_s);
    editor.lineEditReplaceWith->setText(u"<\\1>"_s);
    const std::unique_ptr<RuleData> plain(rule.createData(&editor));
    editor.toolButtonRegExp->setChecked(true);
    const std::unique_ptr<RuleData> regular(rule.createData(&editor));
    editor.lineEditReplaceWhat->setText(u"changed later"_s);

    for (const RuleData *data : {plain.get(), regular.get()}) {
        QCOMPARE(data->rule, &rule);
        const auto &parameters = std::get<ReplaceParameters>(data->parameters);
        QCOMPARE(parameters.replaceWhat, u"(b+)"_s);
        QCOMPARE(parameters.replaceWith, u"<\\1>"_s);
        QCOMPARE(parameters.regExp, data == regular.get());
    }
    QCOMPARE(rule.apply(plain.get(), u"abb(b+)"_s, 0), u"abb<\\1>"_s);
    QCOMPARE(rule.apply(regular.get(), u"abb"_s, 0), u"a<bb>"_s);
}

void TestReplace::createDataWithoutAnEditorIsNull()
{
    QCOMPARE(rule.createData(nullptr), nullptr);
}

QTEST_MAIN(TestReplace)
#include "tst_replace.moc"
