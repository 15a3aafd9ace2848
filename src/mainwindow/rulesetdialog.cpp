// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/rulesetdialog.h"

#include "mainwindow/loadedruleset.h"
#include "mainwindow/rulesetquestions.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>

using namespace Qt::StringLiterals;

RuleSetDialog::RuleSetDialog(QWidget *parent, const RuleSetFolder &ofSets, LoadedRuleSet &ofLoaded)
    : QDialog(parent)
    , folder(ofSets)
    , loaded(ofLoaded)
{
    setObjectName(u"dialogRuleSets"_s);
    setWindowTitle(tr("Rule sets"));
    setWindowModality(Qt::WindowModal);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    list = new QListWidget(this);
    list->setObjectName(u"listRuleSets"_s);
    list->setAccessibleName(windowTitle());
    list->setMinimumSize(260, 180);
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(list);
    createButtons();
    connect(list, &QListWidget::currentRowChanged, this, &RuleSetDialog::enableButtons);
    connect(list, &QListWidget::itemChanged, this, &RuleSetDialog::rename);
    fill({});
}

void RuleSetDialog::createButtons()
{
    auto *column = new QVBoxLayout;
    const auto add = [this, column](const char *name, const QString &text, const auto &action) {
        auto *button = new QPushButton(text, this);
        button->setObjectName(QLatin1StringView(name));
        button->setAutoDefault(false);
        column->addWidget(button);
        connect(button, &QPushButton::clicked, this, action);
        return button;
    };
    renameButton = add("buttonRenameRuleSet", tr("Rename"), [this] { list->editItem(list->currentItem()); });
    deleteButton = add("buttonDeleteRuleSet", tr("Delete"), &RuleSetDialog::remove);
    add("buttonImportRuleSets", tr("Import…"), &RuleSetDialog::importFiles);
    exportButton = add("buttonExportRuleSet", tr("Export…"), &RuleSetDialog::exportFile);
    column->addStretch();
    add("buttonCloseRuleSets", tr("Close"), &QDialog::accept);
    static_cast<QHBoxLayout *>(layout())->addLayout(column);
}

/// The one of the path becomes current, or else the first.
void RuleSetDialog::fill(const QString &currentPath)
{
    const QSignalBlocker quiet(list);
    list->clear();
    entries = folder.list();
    for (const RuleSetFolder::Entry &entry : std::as_const(entries)) {
        auto *item = new QListWidgetItem(entry.name, list);
        item->setFlags(item->flags() | Qt::ItemIsEditable);
        if (entry.path == currentPath)
            list->setCurrentItem(item);
    }
    if (!list->currentItem())
        list->setCurrentRow(0);
    enableButtons();
}

void RuleSetDialog::enableButtons()
{
    for (QPushButton *button : {renameButton, deleteButton, exportButton})
        button->setEnabled(list->currentRow() >= 0);
}

RuleSetFolder::Entry RuleSetDialog::current() const
{
    return entries.value(list->currentRow());
}

void RuleSetDialog::rename(const QListWidgetItem *item)
{
    const RuleSetFolder::Entry entry = entries.at(list->row(item));
    const QString name = item->text().trimmed();
    const QString error = folder.rename(entry, name);
    const bool isLoaded = loaded.path() == entry.path;
    const QString path = error.isEmpty() ? folder.find(name) : entry.path;
    if (isLoaded && error.isEmpty())
        loaded.follow(name, path);
    // The editor of the row is still at work.
    QMetaObject::invokeMethod(
        this,
        [this, path, error] {
            fill(path);
            if (!error.isEmpty())
                RuleSetQuestions::tellNotRenamed(this, error);
        },
        Qt::QueuedConnection);
}

void RuleSetDialog::remove()
{
    const RuleSetFolder::Entry entry = current();
    if (!RuleSetQuestions::mayDelete(this, entry.name))
        return;
    if (!folder.remove(entry))
        RuleSetQuestions::tellNotDeleted(this, entry.name);
    else if (loaded.path() == entry.path)
        loaded.follow(loaded.name(), {});
    fill({});
}

void RuleSetDialog::importFiles()
{
    const QStringList paths = RuleSetQuestions::filesToOpen(this, QFileDialog::ExistingFiles);
    fill(RuleSetQuestions::importFiles(this, folder, paths).value(0));
}

void RuleSetDialog::exportFile()
{
    const RuleSetFolder::Entry entry = current();
    QString error;
    const auto set = readRuleSet(entry.path, &error);
    if (!set) {
        RuleSetQuestions::tellNotRead(this, entry.path, error);
        return;
    }
    const QString path = RuleSetQuestions::fileToWrite(this, entry.name);
    if (path.isEmpty())
        return;
    error = writeRuleSet(path, *set);
    if (!error.isEmpty())
        RuleSetQuestions::tellNotSaved(this, error);
}
