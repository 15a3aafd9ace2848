// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/ruleedit.h"

#include "mainwindow/activerules.h"
#include "naming/kind.h"
#include "rules/editing.h"
#include "rules/rule.h"
#include "ui_mainwindow.h"

#include <QEvent>
#include <QMouseEvent>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace {

/// Whether this place of a row is that of its check box.
bool isOnCheckBox(const QTreeWidget *tree, const QModelIndex &index, QPoint place)
{
    QStyleOptionViewItem option;
    option.initFrom(tree);
    option.rect = tree->visualRect(index);
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    const QRect box = tree->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, tree);
    return index.column() == 0 && box.contains(place);
}

void focusFirstField(QWidget *editor)
{
    QWidget *field = editor->nextInFocusChain();
    while (field != editor && !(editor->isAncestorOf(field) && field->focusPolicy() & Qt::TabFocus))
        field = field->nextInFocusChain();
    field->setFocus(Qt::TabFocusReason);
}

} // namespace

RuleEdit::RuleEdit(ActiveRules &ofRules, const QMap<int, Rule *> &ofKinds, const Ui::MainWindow &ofWindow)
    : QObject(ofWindow.treeWidgetRules)
    , rules(ofRules)
    , kinds(ofKinds)
    , ui(ofWindow)
{
    createButtons();
    addKeys();
    setEditing(false);
    ui.treeWidgetRules->viewport()->installEventFilter(this);
    connect(&rules, &ActiveRules::changed, this, &RuleEdit::followRules);
}

int RuleEdit::editedRow() const
{
    return edited ? rules.rowOf(edited) : -1;
}

void RuleEdit::createButtons()
{
    applyButton = new QPushButton(ui.tabFilters);
    applyButton->setObjectName(u"buttonApplyRule"_s);
    leaveButton = new QToolButton(ui.tabFilters);
    leaveButton->setObjectName(u"buttonLeaveRule"_s);
    leaveButton->setIcon(QIcon(u":/img/cancel.png"_s));
    for (QAbstractButton *button : std::initializer_list<QAbstractButton *>{applyButton, leaveButton}) {
        button->setIconSize({20, 20});
        ui.horizontalLayout_3->addWidget(button);
    }
    applyButton->setIcon(QIcon(u":/img/submit.png"_s));
    applyButton->installEventFilter(this);
    connect(applyButton, &QAbstractButton::clicked, this, &RuleEdit::apply);
    connect(leaveButton, &QAbstractButton::clicked, this, &RuleEdit::leave);
    QWidget::setTabOrder(ui.buttonAddRule, applyButton);
    QWidget::setTabOrder(applyButton, leaveButton);
    retranslate();
}

void RuleEdit::addKeys()
{
    for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter}) {
        auto *shortcut = new QShortcut(key, ui.treeWidgetRules);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this,
                [this] { begin(ui.treeWidgetRules->currentIndex().row()); });
    }
    leaveKey = new QShortcut(Qt::Key_Escape, ui.tabFilters);
    connect(leaveKey, &QShortcut::activated, this, &RuleEdit::leave);
}

void RuleEdit::retranslate()
{
    applyButton->setText(tr("Apply"));
    applyButton->setToolTip(tr("Put these values in the place of the rule"));
    applyButton->setStatusTip(applyButton->toolTip());
    leaveButton->setToolTip(tr("Leave the rule as it is"));
    leaveButton->setStatusTip(leaveButton->toolTip());
    leaveButton->setAccessibleName(leaveButton->toolTip());
}

bool RuleEdit::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == applyButton && event->type() == QEvent::LanguageChange)
        retranslate();
    if (event->type() == QEvent::MouseButtonDblClick && watched == ui.treeWidgetRules->viewport()) {
        const auto *click = static_cast<QMouseEvent *>(event);
        const QPoint place = click->position().toPoint();
        const QModelIndex index = ui.treeWidgetRules->indexAt(place);
        // Whoever clicks fast on a check box switches the rule twice.
        if (click->button() == Qt::LeftButton && !isOnCheckBox(ui.treeWidgetRules, index, place))
            begin(index.row());
    }
    return QObject::eventFilter(watched, event);
}

void RuleEdit::begin(int row)
{
    if (row < 0)
        return;
    edited = &rules.record(row);
    const int page = static_cast<int>(kindOf(edited->parameters));
    ui.comboBoxRules->setCurrentIndex(ui.comboBoxRules->findData(page));
    showParameters(ui.stackedWidgetRules->widget(page), edited->parameters);
    setEditing(true);
    focusFirstField(ui.stackedWidgetRules->widget(page));
}

void RuleEdit::apply()
{
    const int page = ui.stackedWidgetRules->currentIndex();
    std::unique_ptr<RuleData> record(kinds.value(page)->createData(ui.stackedWidgetRules->currentWidget()));
    const int row = rules.rowOf(edited);
    if (row < 0)
        return;
    leave();
    rules.replace(row, std::move(record));
    ui.treeWidgetRules->setCurrentItem(ui.treeWidgetRules->topLevelItem(row), 0);
}

void RuleEdit::leave()
{
    edited = nullptr;
    // The focus would go to the next button.
    if (applyButton->hasFocus() || leaveButton->hasFocus() ||
        ui.stackedWidgetRules->isAncestorOf(QApplication::focusWidget()))
        ui.treeWidgetRules->setFocus();
    setEditing(false);
}

void RuleEdit::setEditing(bool isEditing)
{
    applyButton->setVisible(isEditing);
    leaveButton->setVisible(isEditing);
    leaveKey->setEnabled(isEditing);
    emit editingChanged(isEditing);
}

void RuleEdit::followRules()
{
    if (edited && rules.rowOf(edited) < 0)
        leave();
}
