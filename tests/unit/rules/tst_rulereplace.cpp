// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/processortime.h"
#include "rules/rulereplace.h"
#include "unit/support/editors.h"

#include <QAction>
#include <QLineEdit>
#include <QTimer>
#include <QToolButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

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

class TestRuleReplace final : public QObject
{
    Q_OBJECT

private slots:
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

void TestRuleReplace::editorHasItsWidgetsInOrder()
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

void TestRuleReplace::editorStartsWithItsInitialValues()
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

void TestRuleReplace::editorLaysOutItsWidgets()
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

void TestRuleReplace::editorFollowsTheLanguage()
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

void TestRuleReplace::markTellsThatAPatternChangesNothing_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("toolTip");

    QTest::newRow("invalid") << u"img(_"_s << u"No valid pattern: it will change nothing."_s;
    QTest::newRow("slow") << u"(a*){200}b"_s
                          << u"This pattern would take too long: it will change nothing."_s;
    QTest::newRow("usable") << u"a(b)"_s << QString();
    QTest::newRow("empty") << QString() << QString();
}

void TestRuleReplace::markTellsThatAPatternChangesNothing()
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

void TestRuleReplace::plainTextsHaveNoMark()
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
void TestRuleReplace::markWaitsForAPauseInTyping()
{
    const std::unique_ptr<QWidget> widget(rule.createEditor(nullptr));
    const auto *editor = qobject_cast<const RuleWidgetReplace *>(widget.get());
    editor->toolButtonRegExp->click();
    const ProcessorTime time;
    for (int loops = 200; loops < 300; ++loops) {
        editor->lineEditReplaceWhat->setText(u"(a*){%1}b"_s.arg(loops));
        QCoreApplication::processEvents();
    }
    // Each of them takes a tenth of a second at least.
    QVERIFY(time.milliseconds() < 5'000);
    QTRY_VERIFY(!markOf(editor->lineEditReplaceWhat).isEmpty());
}

void TestRuleReplace::markFollowsTheLanguage()
{
    const std::unique_ptr<QWidget> widget(rule.createEditor(nullptr));
    const auto *editor = qobject_cast<const RuleWidgetReplace *>(widget.get());
    editor->lineEditReplaceWhat->setText(u"("_s);
    editor->toolButtonRegExp->click();
    const BracketTranslator translator;
    QCoreApplication::processEvents();
    QCOMPARE(markOf(editor->lineEditReplaceWhat), u"[No valid pattern: it will change nothing.]"_s);
}

void TestRuleReplace::createDataReadsTheEditor()
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

void TestRuleReplace::createDataWithoutAnEditorIsNull()
{
    QCOMPARE(rule.createData(nullptr), nullptr);
}

QTEST_MAIN(TestRuleReplace)
#include "tst_rulereplace.moc"
