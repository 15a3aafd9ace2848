// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "dialogs/dialogruns.h"

#include "desktop/messagebox.h"
#include "dialogs/runfilesmodel.h"
#include "dialogs/runmodel.h"
#include "dialogs/runtexts.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QTreeView *createTable(QAbstractItemModel *model, QWidget *parent)
{
    auto *table = new QTreeView(parent);
    table->setModel(model);
    table->setRootIsDecorated(false);
    table->setUniformRowHeights(true);
    table->setAlternatingRowColors(true);
    return table;
}

/// Enter presses no button but the one that closes.
QPushButton *addButton(QDialogButtonBox *box, const QString &text, const QString &name,
                       QDialogButtonBox::ButtonRole role = QDialogButtonBox::ActionRole)
{
    QPushButton *button = box->addButton(text, role);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

void addCloseButtonTo(QDialogButtonBox *box, QDialog *dialog)
{
    addButton(box, closeRunsText(), u"buttonClose"_s, QDialogButtonBox::RejectRole)->setDefault(true);
    QObject::connect(box, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
}

bool isReadable(const JournalInfo &run)
{
    using State = JournalInfo::State;
    return run.state != State::Newer && run.state != State::Unreadable && run.state != State::InHand;
}

} // namespace

DialogRuns::DialogRuns(const JournalFolder &journals, QWidget *parent)
    : QDialog(parent)
    , folder(journals)
    , model(new RunModel(this))
    , tree(createTable(model, this))
    , labelNote(new QLabel(this))
{
    setObjectName(u"DialogRuns"_s);
    setWindowTitle(runsTitle());
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowModality(Qt::WindowModal); // the icon in the tray stays alive
    // The application's style sheet draws buttons that are off as if they were on.
    setStyleSheet(
        u"QPushButton[flat='false']:disabled{color:#707070;background:#f4f4f4;border-color:#e2e2e2}"_s);
    resize(640, 360);
    reader.setMaxThreadCount(1);
    createWidgets();
    load();
}

DialogRuns::~DialogRuns()
{
    stops = true;
    reader.waitForDone();
}

void DialogRuns::createWidgets()
{
    tree->setObjectName(u"treeRuns"_s);
    tree->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    tree->header()->setMinimumSectionSize(90);
    labelNote->setObjectName(u"labelNote"_s);
    labelNote->setTextFormat(Qt::PlainText);
    labelNote->setWordWrap(true);
    // A line of its own: all in one are too wide for small screens.
    choices = new QDialogButtonBox(this);
    buttonFinish = addButton(choices, finishButtonText(), u"buttonFinish"_s);
    buttonPutBack = addButton(choices, putBackButtonText(), u"buttonPutBack"_s);
    buttonLeave = addButton(choices, leaveButtonText(), u"buttonLeave"_s);
    auto *box = new QDialogButtonBox(this);
    buttonTakeBack = addButton(box, takeBackButtonText(), u"buttonTakeBack"_s);
    buttonShowFiles = addButton(box, showFilesText(), u"buttonShowFiles"_s);
    buttonForget = addButton(box, forgetText(), u"buttonForget"_s);
    buttonForgetAll = addButton(box, forgetAllText(), u"buttonForgetAll"_s);
    addCloseButtonTo(box, this);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(tree);
    layout->addWidget(labelNote);
    layout->addWidget(choices);
    layout->addWidget(box);
    connect(buttonFinish, &QPushButton::clicked, this, &DialogRuns::finishSelected);
    connect(buttonPutBack, &QPushButton::clicked, this, &DialogRuns::takeSelectedBack);
    connect(buttonLeave, &QPushButton::clicked, this, &DialogRuns::leaveSelected);
    connect(buttonTakeBack, &QPushButton::clicked, this, &DialogRuns::takeSelectedBack);
    connect(buttonShowFiles, &QPushButton::clicked, this, &DialogRuns::showFiles);
    connect(buttonForget, &QPushButton::clicked, this, &DialogRuns::forgetSelected);
    connect(buttonForgetAll, &QPushButton::clicked, this, &DialogRuns::forgetAll);
    connect(tree->selectionModel(), &QItemSelectionModel::selectionChanged, this, &DialogRuns::showSelected);
}

void DialogRuns::load()
{
    const QString selected = selectedRow() < 0 ? QString() : model->run(selectedRow()).name;
    model->setJournals(folder.list());
    int row = 0;
    for (int i = 0; i < model->rowCount(); ++i)
        row = model->run(i).name == selected ? i : row;
    tree->setCurrentIndex(model->index(row, 0));
    findTouched();
    showSelected();
}

void DialogRuns::findTouched()
{
    stops = true;
    reader.waitForDone();
    stops = false;
    reader.start([this, journals = folder, asked = ++question] {
        QMetaObject::invokeMethod(this, [this, asked, touched = journals.touchedRuns(stops)] {
            if (asked != question)
                return;
            model->setTouched(touched);
            showSelected();
        });
    });
}

int DialogRuns::selectedRow() const
{
    const QModelIndexList rows = tree->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void DialogRuns::showSelected()
{
    const int row = selectedRow();
    const JournalInfo run = row < 0 ? JournalInfo() : model->run(row);
    const JournalInfo *later = row < 0 ? nullptr : model->touchedBy(row);
    buttonTakeBack->setEnabled(run.canTakeBack() && !run.canFinish() && !later);
    buttonShowFiles->setEnabled(row >= 0 && isReadable(run));
    buttonForget->setEnabled(row >= 0 && run.state != JournalInfo::State::InHand);
    buttonForgetAll->setEnabled(model->rowCount() > 0);
    showChoices(run, later);
    labelNote->setText(later ? touchedText(*later) : noteText(run));
    labelNote->setVisible(!labelNote->text().isEmpty());
}

/// They are there only where some run was interrupted that can be finished.
void DialogRuns::showChoices(const JournalInfo &run, const JournalInfo *later)
{
    bool isAnyUnfinished = false;
    for (int row = 0; row < model->rowCount(); ++row)
        isAnyUnfinished = isAnyUnfinished || model->run(row).canFinish();
    choices->setVisible(isAnyUnfinished);
    buttonFinish->setEnabled(run.canFinish() && !later);
    buttonPutBack->setEnabled(run.canTakeBack() && run.canFinish() && !later);
    buttonLeave->setEnabled(run.canFinish());
}

void DialogRuns::finishSelected()
{
    if (selectedRow() < 0 || !finish)
        return;
    finish(model->run(selectedRow()).name);
    load();
}

void DialogRuns::leaveSelected()
{
    if (selectedRow() >= 0)
        (void)folder.leave(model->run(selectedRow()).name);
    load();
}

void DialogRuns::takeSelectedBack()
{
    const int row = selectedRow();
    if (row < 0 || !takeBack)
        return;
    takeBack(model->run(row).name);
    load();
}

void DialogRuns::showFiles()
{
    const JournalInfo run = model->run(selectedRow());
    QDialog dialog(this);
    dialog.setObjectName(u"dialogRunFiles"_s);
    dialog.setWindowTitle(filesTitle(run));
    dialog.setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    dialog.resize(720, 380);
    auto *files = new RunFilesModel(folder.filePath(run.name), run.time, &dialog);
    QTreeView *table = createTable(files, &dialog);
    table->setObjectName(u"treeRunFiles"_s);
    for (const int column : {RunFilesModel::OldNameColumn, RunFilesModel::NewNameColumn})
        table->header()->resizeSection(column, 190);
    table->header()->resizeSection(RunFilesModel::NowColumn, 150);
    auto *box = new QDialogButtonBox(&dialog);
    addCloseButtonTo(box, &dialog);
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(table);
    layout->addWidget(box);
    dialog.exec();
}

void DialogRuns::forgetSelected()
{
    if (selectedRow() >= 0)
        (void)folder.forget(model->run(selectedRow()).name);
    load();
}

void DialogRuns::forgetAll()
{
    QMessageBox *box = createMessageBox(this, QMessageBox::Question);
    box->setText(forgetAllQuestion());
    addMessageButton(box, QMessageBox::Yes, forgetAllText(), u":/img/clear_left.png"_s);
    addMessageButton(box, QMessageBox::Cancel, QCoreApplication::translate("QDialog", "Cancel"),
                     u":/img/cancel.png"_s);
    box->setDefaultButton(QMessageBox::Cancel);
    if (execMessageBox(box) != QMessageBox::Yes)
        return;
    (void)folder.forgetAll();
    load();
}
