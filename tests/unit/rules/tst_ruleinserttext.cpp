// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/ruleinserttext.h"
#include "unit/support/editors.h"

#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>

using namespace Qt::StringLiterals;

class TestRuleInsertText final : public QObject
{
    Q_OBJECT

private slots:
    void editorHasItsWidgetsInOrder();
    void editorStartsWithItsInitialValues();
    void editorLaysOutItsWidgets();
    void editorFollowsTheLanguage();
    void directionsExcludeEachOther();
    void createDataReadsTheEditor();
    void createDataWithoutAnEditorIsNull();

private:
    RuleInsertText rule;
};

void TestRuleInsertText::editorHasItsWidgetsInOrder()
{
    QWidget parent;
    const QWidget *editor = rule.createEditor(&parent);
    QCOMPARE(editor->parentWidget(), &parent);
    QVERIFY(qobject_cast<const RuleWidget *>(editor));
    QVERIFY(!editor->isWindow());
    const QStringList expected{u"QLineEdit"_s,        u"QSpinBox"_s,    u"QRadioButton:Start"_s,
                               u"QRadioButton:End"_s, u"QLabel:Text"_s, u"QLabel:Position"_s,
                               u"QLabel:Direction"_s};
    QCOMPARE(childLines(*editor), expected);
}

void TestRuleInsertText::editorStartsWithItsInitialValues()
{
    const RuleWidgetInsertText editor(nullptr);
    QCOMPARE(editor.lineEditText->text(), QString());
    QCOMPARE(editor.spinBoxPosition->minimum(), 0);
    QCOMPARE(editor.spinBoxPosition->maximum(), 512);
    QCOMPARE(editor.spinBoxPosition->value(), 0);
    QVERIFY(editor.direction.radioButtonStart->isChecked());
    QVERIFY(!editor.direction.radioButtonEnd->isChecked());
}

void TestRuleInsertText::editorLaysOutItsWidgets()
{
    const std::unique_ptr<QWidget> editor(rule.createEditor(nullptr));
    const QStringList expected{u"0,0 QLabel:Text"_s,
                               u"0,1 QLineEdit"_s,
                               u"1,0 spacer 16x16 Fixed Minimum"_s,
                               u"2,0 QLabel:Position"_s,
                               u"2,1 QSpinBox"_s,
                               u"3,0 QLabel:Direction"_s,
                               u"3,1 QHBoxLayout(QRadioButton:Start, QRadioButton:End)"_s};
    QCOMPARE(gridLines(*editor), expected);
}

void TestRuleInsertText::editorFollowsTheLanguage()
{
    const std::unique_ptr<QWidget> editor(rule.createEditor(nullptr));
    verifyFollowsLanguage(*editor);
    verifyAcceptsLanguageChange(*editor);
}

void TestRuleInsertText::directionsExcludeEachOther()
{
    const RuleWidgetInsertText editor(nullptr);
    editor.direction.radioButtonEnd->setChecked(true);
    QVERIFY(!editor.direction.radioButtonStart->isChecked());
    editor.direction.radioButtonStart->setChecked(true);
    QVERIFY(!editor.direction.radioButtonEnd->isChecked());
}

void TestRuleInsertText::createDataReadsTheEditor()
{
    RuleWidgetInsertText editor(nullptr);
    editor.lineEditText->setText(u" Ж 😀 "_s);
    editor.spinBoxPosition->setValue(512);
    editor.direction.radioButtonEnd->setChecked(true);
    const auto parameters = captured<InsertTextParameters>(rule, editor);
    QCOMPARE(parameters.text, u" Ж 😀 "_s);
    QCOMPARE(parameters.position, 512);
    QVERIFY(!parameters.fromStart);

    editor.direction.radioButtonStart->setChecked(true);
    QVERIFY(captured<InsertTextParameters>(rule, editor).fromStart);
    QVERIFY(!parameters.fromStart);
}

void TestRuleInsertText::createDataWithoutAnEditorIsNull()
{
    QCOMPARE(rule.createData(nullptr), nullptr);
}

QTEST_MAIN(TestRuleInsertText)
#include "tst_ruleinserttext.moc"
