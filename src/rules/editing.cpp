// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/editing.h"

#include "rules/rulechangecase.h"
#include "rules/ruleenumerate.h"
#include "rules/ruleinserttext.h"
#include "rules/rulereplace.h"
#include "rules/ruletrim.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QToolButton>

namespace {

void choose(const DirectionBox &direction, bool fromStart)
{
    (fromStart ? direction.radioButtonStart : direction.radioButtonEnd)->setChecked(true);
}

void show(const RuleWidgetReplace &editor, const ReplaceParameters &parameters)
{
    // No pattern is judged that is half of one rule and half of another.
    editor.toolButtonRegExp->setChecked(false);
    editor.lineEditReplaceWhat->setText(parameters.replaceWhat);
    editor.lineEditReplaceWith->setText(parameters.replaceWith);
    editor.toolButtonRegExp->setChecked(parameters.regExp);
}

void show(const RuleWidgetTrim &editor, const TrimParameters &parameters)
{
    editor.spinBoxPosition->setValue(parameters.position);
    editor.spinBoxLength->setValue(parameters.length);
    choose(editor.direction, parameters.fromStart);
}

void show(const RuleWidgetChangeCase &editor, const ChangeCaseParameters &parameters)
{
    editor.radioButtonFirstLetters->setChecked(parameters.firstLetters);
    editor.radioButtonUpper->setChecked(parameters.upper);
    editor.radioButtonLower->setChecked(parameters.lower);
    editor.checkBoxIgnoreExtension->setChecked(parameters.ignoreExtension);
}

void show(const RuleWidgetInsertText &editor, const InsertTextParameters &parameters)
{
    editor.lineEditText->setText(parameters.text);
    editor.spinBoxPosition->setValue(parameters.position);
    choose(editor.direction, parameters.fromStart);
}

void show(const RuleWidgetEnumerate &editor, const EnumerateParameters &parameters)
{
    editor.spinBoxStartNumber->setValue(parameters.startNumber);
    editor.spinBoxLeadingZeros->setValue(parameters.leadingZeros);
    editor.spinBoxPosition->setValue(parameters.position);
    choose(editor.direction, parameters.fromStart);
}

class Shower
{
public:
    explicit Shower(QWidget *inEditor)
        : editor(inEditor)
    {
    }

    bool operator()(const ReplaceParameters &parameters) { return showIn<RuleWidgetReplace>(parameters); }
    bool operator()(const TrimParameters &parameters) { return showIn<RuleWidgetTrim>(parameters); }
    bool operator()(const ChangeCaseParameters &parameters)
    {
        return showIn<RuleWidgetChangeCase>(parameters);
    }
    bool operator()(const InsertTextParameters &parameters)
    {
        return showIn<RuleWidgetInsertText>(parameters);
    }
    bool operator()(const EnumerateParameters &parameters) { return showIn<RuleWidgetEnumerate>(parameters); }

private:
    template <typename Editor, typename OwnParameters>
    bool showIn(const OwnParameters &parameters)
    {
        const auto *own = qobject_cast<const Editor *>(editor);
        if (own)
            show(*own, parameters);
        return own != nullptr;
    }

    QWidget *editor;
};

} // namespace

bool showParameters(QWidget *editor, const Parameters &parameters)
{
    return std::visit(Shower(editor), parameters);
}

std::unique_ptr<RuleData> createRecord(const Rule &rule, const Parameters &parameters)
{
    const std::unique_ptr<QWidget> editor(rule.createEditor(nullptr));
    if (!showParameters(editor.get(), parameters))
        return nullptr;
    return std::unique_ptr<RuleData>(rule.createData(editor.get()));
}
