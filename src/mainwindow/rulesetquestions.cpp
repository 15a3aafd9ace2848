// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/rulesetquestions.h"

#include "desktop/messagebox.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

void tell(QWidget *parent, const QString &what, const QString &why)
{
    QMessageBox *box = createMessageBox(parent, QMessageBox::Warning);
    box->setTextFormat(Qt::PlainText);
    box->setText(what + '\n'_L1 + why);
    addCloseButton(box, RuleSetQuestions::tr("Close"));
    execMessageBox(box);
}

/// Cancel is what Enter and Escape choose.
bool isWanted(QWidget *parent, const QString &question, const QString &answer)
{
    QMessageBox *box = createMessageBox(parent, QMessageBox::Question);
    box->setTextFormat(Qt::PlainText);
    box->setText(question);
    addMessageButton(box, QMessageBox::Yes, answer, u":/img/submit.png"_s);
    box->setDefaultButton(
        addMessageButton(box, QMessageBox::Cancel, RuleSetQuestions::tr("Cancel"), u":/img/cancel.png"_s));
    return execMessageBox(box) == QMessageBox::Yes;
}

QStringList choose(QFileDialog *dialog, const QString &proposal = {})
{
    dialog->setWindowModality(Qt::WindowModal);
    dialog->setDirectory(QDir::homePath());
    // It is for rule sets, not for looking after files.
    dialog->setOption(QFileDialog::ReadOnly);
    dialog->setNameFilter(RuleSetQuestions::tr("Rule sets") + " (*"_L1 + ruleSetSuffix + u')');
    dialog->setDefaultSuffix(ruleSetSuffix.sliced(1));
    if (!proposal.isEmpty())
        dialog->selectFile(proposal);
    return dialog->exec() == QDialog::Accepted ? dialog->selectedFiles() : QStringList();
}

} // namespace

bool RuleSetQuestions::mayReplaceRules(QWidget *parent)
{
    return isWanted(parent, tr("The active rules are not saved. Replace them?"), tr("Replace"));
}

bool RuleSetQuestions::mayReplaceSet(QWidget *parent, const QString &name)
{
    return isWanted(parent, tr("There is a rule set \"%1\" already. Replace it?").arg(name), tr("Replace"));
}

bool RuleSetQuestions::mayDelete(QWidget *parent, const QString &name)
{
    return isWanted(parent, tr("Delete the rule set \"%1\"?").arg(name), tr("Delete"));
}

QString RuleSetQuestions::nameFor(QWidget *parent, const QString &proposal)
{
    QDialog dialog(parent);
    dialog.setObjectName(u"dialogRuleSetName"_s);
    dialog.setWindowTitle(tr("Save rule set"));
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto *edit = new QLineEdit(proposal);
    edit->setObjectName(u"lineEditRuleSetName"_s);
    edit->setMaxLength(static_cast<int>(mostCharactersOfSetName));
    edit->setMinimumWidth(280);
    edit->selectAll();
    auto *label = new QLabel(tr("Name of the rule set"));
    label->setBuddy(edit);
    auto *buttons = new QDialogButtonBox;
    QPushButton *ok = buttons->addButton(tr("Save"), QDialogButtonBox::AcceptRole);
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(label);
    layout->addWidget(edit);
    layout->addWidget(buttons);
    const auto judge = [ok, edit] {
        ok->setEnabled(!edit->text().trimmed().isEmpty());
    };
    judge();
    QObject::connect(edit, &QLineEdit::textChanged, ok, judge);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return dialog.exec() == QDialog::Accepted ? edit->text().trimmed() : QString();
}

QStringList RuleSetQuestions::filesToOpen(QWidget *parent, QFileDialog::FileMode mode)
{
    QFileDialog dialog(parent, tr("Open rule set"));
    dialog.setFileMode(mode);
    return choose(&dialog);
}

QString RuleSetQuestions::fileToWrite(QWidget *parent, const QString &name)
{
    QFileDialog dialog(parent, tr("Save rule set"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    return choose(&dialog, fileNameOfSet(name) + ruleSetSuffix).value(0);
}

QStringList RuleSetQuestions::importFiles(QWidget *parent, const RuleSetFolder &folder,
                                          const QStringList &paths)
{
    QStringList added;
    for (const QString &path : paths) {
        QString error;
        const auto set = readRuleSet(path, &error);
        if (!set) {
            tellNotRead(parent, path, error);
            continue;
        }
        QString file = path;
        error = folder.holds(path) ? QString() : folder.add(*set, &file);
        if (error.isEmpty())
            added.append(file);
        else
            tellNotSaved(parent, error);
    }
    return added;
}

void RuleSetQuestions::tellNotRead(QWidget *parent, const QString &path, const QString &error)
{
    tell(parent, tr("No rules were loaded from %1:").arg(QDir::toNativeSeparators(path)), error);
}

void RuleSetQuestions::tellNotSaved(QWidget *parent, const QString &error)
{
    tell(parent, tr("The rule set could not be saved:"), error);
}

void RuleSetQuestions::tellNotDeleted(QWidget *parent, const QString &name)
{
    tell(parent, tr("The rule set could not be deleted:"), name);
}

void RuleSetQuestions::tellNotRenamed(QWidget *parent, const QString &error)
{
    tell(parent, tr("The rule set could not be renamed:"), error);
}
