// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/failures.h"

#include "mainwindow/failuremodel.h"
#include "mainwindow/fatetexts.h"

#include <QClipboard>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QTreeView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// Groups of more rows stay closed at first: opening one takes a pass over its rows.
constexpr qsizetype rowsToOpen = 10'000;

void copy(const QTreeView &tree, const FailureModel &model)
{
    const QModelIndexList rows = tree.selectionModel()->selectedRows();
    QGuiApplication::clipboard()->setText(rows.isEmpty() ? model.allAsText() : model.asText(rows));
}

QTreeView *createTree(FailureModel *model, QDialog *dialog)
{
    auto *tree = new QTreeView(dialog);
    tree->setObjectName(u"treeFailures"_s);
    tree->setModel(model);
    tree->setUniformRowHeights(true);
    tree->setAlternatingRowColors(true);
    tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    for (int group = 0; group < model->rowCount(); ++group)
        tree->setFirstColumnSpanned(group, {}, true);
    for (int column : {FailureModel::NameColumn, FailureModel::NewNameColumn})
        tree->header()->resizeSection(column, 220);
    return tree;
}

void showDetails(const Failures &failures, QWidget *parent)
{
    QDialog dialog(parent);
    dialog.setObjectName(u"dialogFailures"_s);
    dialog.setWindowTitle(detailsTitle());
    dialog.setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    dialog.resize(720, 380);
    auto *model = new FailureModel(failures, &dialog);
    QTreeView *tree = createTree(model, &dialog);
    auto *buttons = new QDialogButtonBox(&dialog);
    QPushButton *copyButton = buttons->addButton(copyText(), QDialogButtonBox::ActionRole);
    copyButton->setObjectName(u"buttonCopy"_s);
    copyButton->setAutoDefault(false);
    QPushButton *closeButton = buttons->addButton(closeText(), QDialogButtonBox::RejectRole);
    closeButton->setDefault(true);
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(tree);
    layout->addWidget(buttons);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    const auto copyRows = [tree, model] {
        copy(*tree, *model);
    };
    QObject::connect(copyButton, &QPushButton::clicked, tree, copyRows);
    const auto *shortcut = new QShortcut(QKeySequence::Copy, &dialog);
    QObject::connect(shortcut, &QShortcut::activated, tree, copyRows);
    if (failures.size() <= rowsToOpen)
        tree->expandAll();
    dialog.exec();
}

} // namespace

void addDetailsButton(QMessageBox *box, const Failures &failures)
{
    if (failures.isEmpty())
        return;
    QPushButton *button = box->addButton(showDetailsText(), QMessageBox::ActionRole);
    button->setIcon(QIcon(u":/img/glass.png"_s));
    button->setIconSize({24, 24});
    // Enter closes the box also when this button was clicked last.
    button->setAutoDefault(false);
    // Every button of a message box closes it.
    QObject::disconnect(button, &QPushButton::clicked, nullptr, nullptr);
    QObject::connect(button, &QPushButton::clicked, box, [box, &failures] { showDetails(failures, box); });
    box->setDefaultButton(QMessageBox::Ok);
    box->setEscapeButton(QMessageBox::Ok);
}
