// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/ruleexample.h"

#include "mainwindow/activerules.h"
#include "mainwindow/elidedlabel.h"
#include "mainwindow/fates.h"
#include "mainwindow/fileitem.h"
#include "mainwindow/ruleedit.h"
#include "rules/rule.h"
#include "ui_mainwindow.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int pauseInTyping = 300; // milliseconds

} // namespace

RuleExample::RuleExample(const QMap<int, Rule *> &ofKinds, const ActiveRules &ofRules, const RuleEdit &ofEdit,
                         const Fates &ofFates, const Ui::MainWindow &ofWindow)
    : QObject(ofWindow.stackedWidgetRules)
    , kinds(ofKinds)
    , rules(ofRules)
    , edit(ofEdit)
    , ui(ofWindow)
    , label(new ElidedLabel(ofWindow.tabFilters))
{
    label->setObjectName(u"labelRuleExample"_s);
    ui.horizontalLayout_5->addWidget(label);
    // The room is for the example.
    ui.horizontalSpacer_4->changeSize(0, 20, QSizePolicy::Expanding, QSizePolicy::Minimum);
    pause.setSingleShot(true);
    connect(&pause, &QTimer::timeout, this, &RuleExample::refresh);
    connect(ui.stackedWidgetRules, &QStackedWidget::currentChanged, this, &RuleExample::refresh);
    const auto refreshSoon = [this] {
        pause.start(0);
    };
    connect(ui.listWidgetFiles, &QListWidget::currentItemChanged, this, refreshSoon);
    connect(&ofFates, &Fates::changed, this, refreshSoon);
    connect(&edit, &RuleEdit::editingChanged, this, refreshSoon);
    watchEditors();
}

void RuleExample::watchEditors()
{
    const auto lineEdits = ui.stackedWidgetRules->findChildren<QLineEdit *>();
    for (const QLineEdit *field : lineEdits)
        connect(field, &QLineEdit::textChanged, this, [this] { pause.start(pauseInTyping); });
    const auto buttons = ui.stackedWidgetRules->findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons)
        connect(button, &QAbstractButton::toggled, this, &RuleExample::refresh);
}

void RuleExample::refresh()
{
    const int row = ui.listWidgetFiles->currentRow();
    const FileItem *item = ui.listWidgetFiles->fileItem(row);
    const Rule *kind = kinds.value(ui.stackedWidgetRules->currentIndex());
    if (!item || !kind) {
        label->setNames({}, {}, {});
        return;
    }
    const std::unique_ptr<RuleData> record(kind->createData(ui.stackedWidgetRules->currentWidget()));
    const QString name = nameOf(*item, row);
    label->setNames(name, u" → "_s, applyRuleChain(record.get(), name, row));
}

QString RuleExample::nameOf(const FileItem &item, int row) const
{
    if (edit.editedRow() < 0 || !ui.buttonPreview->isChecked())
        return item.shownName();
    return applyRules(rules.stepsAbove(edit.editedRow()), FilePaths().split(item.path()).name(), row);
}
