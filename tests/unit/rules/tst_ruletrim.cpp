// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/ruletrim.h"
#include "unit/support/editors.h"

#include <QRadioButton>
#include <QSpinBox>

using namespace Qt::StringLiterals;

class TestRuleTrim final : public QObject
{
    Q_OBJECT

private slots:
    void editorHasItsWidgetsInOrder();
    void editorStartsWithItsInitialValues();
    void editorLaysOutItsWidgets();
    void editorFollowsTheLanguage();
    void createDataReadsTheEditor();
    void createDataWithoutAnEditorIsNull();

private:
    RuleTrim rule;
};

void TestRuleTrim::editorHasItsWidgetsInOrder()
{
    QWidget parent;
    const QWidget *editor = rule.createEditor(&parent);
    QCOMPARE(editor->parentWidget(), &parent);
    const QStringList expected{u"QSpinBox"_s,         u"QSpinBox"_s,        u"QRadioButton:Start"_s,
                               u"QRadioButton:End"_s, u"QLabel:Position"_s, u"QLabel:Length"_s,
                               u"QLabel:Direction"_s};
    QCOMPARE(childLines(*editor), expected);
}

void TestRuleTrim::editorStartsWithItsInitialValues()
{
    const RuleWidgetTrim editor(nullptr);
    QCOMPARE(editor.spinBoxPosition->minimum(), 0);
    QCOMPARE(editor.spinBoxPosition->maximum(), 512);
    QCOMPARE(editor.spinBoxPosition->value(), 0);
    QCOMPARE(editor.spinBoxLength->minimum(), 1);
    QCOMPARE(editor.spinBoxLength->maximum(), 512);
    QCOMPARE(editor.spinBoxLength->value(), 1);
    QVERIFY(editor.direction.radioButtonStart->isChecked());
    QVERIFY(!editor.direction.radioButtonEnd->isChecked());
}

void TestRuleTrim::editorLaysOutItsWidgets()
{
    const std::unique_ptr<QWidget> editor(rule.createEditor(nullptr));
    const QStringList expected{u"0,0 QLabel:Position"_s,
                               u"0,1 QSpinBox"_s,
                               u"1,0 QLabel:Length"_s,
                               u"1,1 QSpinBox"_s,
                               u"2,0 QLabel:Direction"_s,
                               u"2,1 QHBoxLayout(QRadioButton:Start, QRadioButton:End)"_s,
                               u"3,0 spacer 20x20 Preferred Expanding"_s};
    QCOMPARE(gridLines(*editor), expected);
}

void TestRuleTrim::editorFollowsTheLanguage()
{
    const std::unique_ptr<QWidget> editor(rule.createEditor(nullptr));
    verifyFollowsLanguage(*editor);
    verifyAcceptsLanguageChange(*editor);
}

void TestRuleTrim::createDataReadsTheEditor()
{
    const RuleWidgetTrim editor(nullptr);
    editor.spinBoxPosition->setValue(7);
    editor.spinBoxLength->setValue(9);
    editor.direction.radioButtonEnd->setChecked(true);
    const auto parameters = captured<TrimParameters>(rule, editor);
    QCOMPARE(parameters.position, 7);
    QCOMPARE(parameters.length, 9);
    QVERIFY(!parameters.fromStart);
    editor.direction.radioButtonStart->setChecked(true);
    QVERIFY(captured<TrimParameters>(rule, editor).fromStart);
}

void TestRuleTrim::createDataWithoutAnEditorIsNull()
{
    QCOMPARE(rule.createData(nullptr), nullptr);
}

QTEST_MAIN(TestRuleTrim)
#include "tst_ruletrim.moc"
