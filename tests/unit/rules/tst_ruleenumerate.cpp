// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/ruleenumerate.h"
#include "unit/support/editors.h"

#include <QRadioButton>
#include <QSpinBox>

using namespace Qt::StringLiterals;

class TestRuleEnumerate final : public QObject
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
    RuleEnumerate rule;
};

void TestRuleEnumerate::editorHasItsWidgetsInOrder()
{
    QWidget parent;
    const QWidget *editor = rule.createEditor(&parent);
    QCOMPARE(editor->parentWidget(), &parent);
    const QStringList expected{u"QSpinBox"_s,
                               u"QSpinBox"_s,
                               u"QSpinBox"_s,
                               u"QRadioButton:Start"_s,
                               u"QRadioButton:End"_s,
                               u"QLabel:Start Number"_s,
                               u"QLabel:Leading Zeros"_s,
                               u"QLabel:Position"_s,
                               u"QLabel:Direction"_s};
    QCOMPARE(childLines(*editor), expected);
    const auto *typed = qobject_cast<const RuleWidgetEnumerate *>(editor);
    const auto boxes = editor->findChildren<QSpinBox *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(boxes, (QList<QSpinBox *>{typed->spinBoxStartNumber, typed->spinBoxLeadingZeros,
                                       typed->spinBoxPosition}));
}

void TestRuleEnumerate::editorStartsWithItsInitialValues()
{
    const RuleWidgetEnumerate editor(nullptr);
    QCOMPARE(editor.spinBoxStartNumber->minimum(), 0);
    QCOMPARE(editor.spinBoxStartNumber->maximum(), 512);
    QCOMPARE(editor.spinBoxStartNumber->value(), 0);
    QCOMPARE(editor.spinBoxLeadingZeros->minimum(), 0);
    QCOMPARE(editor.spinBoxLeadingZeros->maximum(), 9);
    QCOMPARE(editor.spinBoxLeadingZeros->value(), 0);
    QCOMPARE(editor.spinBoxPosition->minimum(), 0);
    QCOMPARE(editor.spinBoxPosition->maximum(), 512);
    QCOMPARE(editor.spinBoxPosition->value(), 0);
    QVERIFY(editor.direction.radioButtonStart->isChecked());
    QVERIFY(!editor.direction.radioButtonEnd->isChecked());
}

void TestRuleEnumerate::editorLaysOutItsWidgets()
{
    const std::unique_ptr<QWidget> editor(rule.createEditor(nullptr));
    const QStringList expected{u"0,0 QLabel:Start Number"_s,
                               u"0,1 QSpinBox"_s,
                               u"1,0 QLabel:Leading Zeros"_s,
                               u"1,1 QSpinBox"_s,
                               u"2,0 spacer 16x16 Fixed Minimum"_s,
                               u"3,0 QLabel:Position"_s,
                               u"3,1 QSpinBox"_s,
                               u"4,0 QLabel:Direction"_s,
                               u"4,1 QHBoxLayout(QRadioButton:Start, QRadioButton:End)"_s};
    QCOMPARE(gridLines(*editor), expected);
    const auto *typed = qobject_cast<const RuleWidgetEnumerate *>(editor.get());
    const auto *grid = qobject_cast<const QGridLayout *>(editor->layout());
    QCOMPARE(grid->itemAtPosition(0, 1)->widget(), typed->spinBoxStartNumber);
    QCOMPARE(grid->itemAtPosition(1, 1)->widget(), typed->spinBoxLeadingZeros);
    QCOMPARE(grid->itemAtPosition(3, 1)->widget(), typed->spinBoxPosition);
}

void TestRuleEnumerate::editorFollowsTheLanguage()
{
    const std::unique_ptr<QWidget> editor(rule.createEditor(nullptr));
    verifyFollowsLanguage(*editor);
    verifyAcceptsLanguageChange(*editor);
}

void TestRuleEnumerate::createDataReadsTheEditor()
{
    const RuleWidgetEnumerate editor(nullptr);
    editor.spinBoxStartNumber->setValue(11);
    editor.spinBoxLeadingZeros->setValue(2);
    editor.spinBoxPosition->setValue(33);
    editor.direction.radioButtonEnd->setChecked(true);
    const auto parameters = captured<EnumerateParameters>(rule, editor);
    QCOMPARE(parameters.startNumber, 11);
    QCOMPARE(parameters.leadingZeros, 2);
    QCOMPARE(parameters.position, 33);
    QVERIFY(!parameters.fromStart);
    editor.direction.radioButtonStart->setChecked(true);
    QVERIFY(captured<EnumerateParameters>(rule, editor).fromStart);
}

void TestRuleEnumerate::createDataWithoutAnEditorIsNull()
{
    QCOMPARE(rule.createData(nullptr), nullptr);
}

QTEST_MAIN(TestRuleEnumerate)
#include "tst_ruleenumerate.moc"
