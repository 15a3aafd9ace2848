// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/rulechangecase.h"
#include "unit/support/editors.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

class TestRuleChangeCase final : public QObject
{
    Q_OBJECT

private slots:
    void editorHasItsWidgetsInOrder();
    void editorStartsWithItsInitialValues();
    void editorLaysOutItsWidgets();
    void tabGoesThroughTheWidgetsInTheirOrder();
    void editorFollowsTheLanguage();
    void createDataReadsTheEditor();
    void createDataWithoutAnEditorIsNull();

private:
    RuleChangeCase rule;
};

void TestRuleChangeCase::editorHasItsWidgetsInOrder()
{
    QWidget parent;
    const QWidget *editor = rule.createEditor(&parent);
    QCOMPARE(editor->parentWidget(), &parent);
    const QStringList expected{u"QRadioButton:Uppercase first letter of each word"_s,
                               u"QRadioButton:Uppercase letters"_s, u"QRadioButton:Lowercase letters"_s,
                               u"QCheckBox:Ignore File Extension"_s};
    QCOMPARE(childLines(*editor), expected);
}

void TestRuleChangeCase::editorStartsWithItsInitialValues()
{
    const RuleWidgetChangeCase editor(nullptr);
    QVERIFY(!editor.radioButtonFirstLetters->isChecked());
    QVERIFY(!editor.radioButtonUpper->isChecked());
    QVERIFY(editor.radioButtonLower->isChecked());
    QVERIFY(editor.checkBoxIgnoreExtension->isChecked());
}

void TestRuleChangeCase::editorLaysOutItsWidgets()
{
    const std::unique_ptr<QWidget> editor(rule.createEditor(nullptr));
    auto *layout = qobject_cast<QVBoxLayout *>(editor->layout());
    QVERIFY(layout);
    QStringList lines;
    for (int i = 0; i < layout->count(); ++i)
        lines.append(itemLine(layout->itemAt(i)));
    const QStringList expected{u"QRadioButton:Lowercase letters"_s, u"QRadioButton:Uppercase letters"_s,
                               u"QRadioButton:Uppercase first letter of each word"_s,
                               u"spacer 8x8 Minimum Minimum"_s, u"QCheckBox:Ignore File Extension"_s};
    QCOMPARE(lines, expected);
}

// The order of the widgets, which is not that of the layout.
void TestRuleChangeCase::tabGoesThroughTheWidgetsInTheirOrder()
{
    const RuleWidgetChangeCase editor(nullptr);
    QList<const QWidget *> order;
    for (const QWidget *next = editor.nextInFocusChain(); next != &editor; next = next->nextInFocusChain())
        order.append(next);
    QCOMPARE(order, (QList<const QWidget *>{editor.radioButtonFirstLetters, editor.radioButtonUpper,
                                            editor.radioButtonLower, editor.checkBoxIgnoreExtension}));
}

void TestRuleChangeCase::editorFollowsTheLanguage()
{
    const std::unique_ptr<QWidget> editor(rule.createEditor(nullptr));
    verifyFollowsLanguage(*editor);
    verifyAcceptsLanguageChange(*editor);
}

void TestRuleChangeCase::createDataReadsTheEditor()
{
    const RuleWidgetChangeCase editor(nullptr);
    auto parameters = captured<ChangeCaseParameters>(rule, editor);
    QVERIFY(!parameters.firstLetters && !parameters.upper && parameters.lower && parameters.ignoreExtension);

    editor.radioButtonUpper->setChecked(true);
    editor.checkBoxIgnoreExtension->setChecked(false);
    parameters = captured<ChangeCaseParameters>(rule, editor);
    QVERIFY(!parameters.firstLetters && parameters.upper && !parameters.lower && !parameters.ignoreExtension);

    editor.radioButtonFirstLetters->setChecked(true);
    parameters = captured<ChangeCaseParameters>(rule, editor);
    QVERIFY(parameters.firstLetters && !parameters.upper && !parameters.lower && !parameters.ignoreExtension);
}

void TestRuleChangeCase::createDataWithoutAnEditorIsNull()
{
    QCOMPARE(rule.createData(nullptr), nullptr);
}

QTEST_MAIN(TestRuleChangeCase)
#include "tst_rulechangecase.moc"
