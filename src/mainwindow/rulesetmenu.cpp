// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/rulesetmenu.h"

#include "core/datapaths.h"
#include "mainwindow/activerules.h"
#include "mainwindow/elidedlabel.h"
#include "mainwindow/rulesetdialog.h"
#include "mainwindow/rulesetquestions.h"
#include "naming/examplerules.h"
#include "ui_mainwindow.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

QString folderOfSets()
{
    return dataDirectory() + "/rulesets"_L1;
}

QString lastUsedFile()
{
    return dataDirectory() + "/lastused"_L1 + ruleSetSuffix;
}

/// A name as a menu shows it.
QString entry(const QString &name)
{
    return QString(name).replace(u'&', "&&"_L1);
}

} // namespace

RuleSetMenu::RuleSetMenu(ActiveRules &ofRules, const QMap<int, Rule *> &ofKinds,
                         const Ui::MainWindow &ofWindow)
    : QObject(ofWindow.treeWidgetRules)
    , rules(ofRules)
    , loaded(ofRules, ofKinds)
    , folder(folderOfSets())
{
    createWidgets(ofWindow);
    connect(&menu, &QMenu::aboutToShow, this, &RuleSetMenu::fill);
    connect(&loaded, &LoadedRuleSet::changed, this, &RuleSetMenu::showName);
    retranslate();
}

void RuleSetMenu::createWidgets(const Ui::MainWindow &ofWindow)
{
    label = new ElidedLabel(ofWindow.tabFilters);
    label->setObjectName(u"labelRuleSet"_s);
    button = new QToolButton(ofWindow.tabFilters);
    button->setObjectName(u"buttonRuleSets"_s);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setMenu(&menu);
    // The look's border would let the arrow stand on the text.
    button->setStyleSheet(u"QToolButton{padding:2px 14px 2px 4px}"
                          "QToolButton::menu-indicator{subcontrol-position:right center;right:3px}"_s);
    button->installEventFilter(this);
    menu.setObjectName(u"menuRuleSets"_s);
    QHBoxLayout *row = ofWindow.horizontalLayout_3;
    QWidget::setTabOrder(row->itemAt(row->count() - 1)->widget(), button);
    row->addWidget(label);
    // The room is for the name, and for "Apply".
    ofWindow.horizontalSpacer_3->changeSize(0, 20, QSizePolicy::Expanding, QSizePolicy::Minimum);
    row->addWidget(button);
}

bool RuleSetMenu::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    return QObject::eventFilter(watched, event);
}

void RuleSetMenu::retranslate()
{
    button->setText(tr("Rule sets"));
    button->setStatusTip(tr("Save the active rules under a name, and take them up again"));
    showName();
}

void RuleSetMenu::showName()
{
    const bool isChanged = loaded.isChanged();
    label->setText(isChanged ? loaded.name() + " *"_L1 : loaded.name());
    label->setAccessibleDescription(isChanged ? tr("The rules were changed since.") : QString());
    label->setStatusTip(label->accessibleDescription());
}

void RuleSetMenu::fill()
{
    menu.clear();
    addSaved();
    if (QFileInfo::exists(lastUsedFile()))
        addCommand("actionLastUsed", tr("Last used"), &RuleSetMenu::chooseLastUsed);
    menu.addSeparator();
    // What cannot be done is left out: the look has but one colour for the entries of menus.
    if (!loaded.path().isEmpty() && loaded.isChanged())
        addCommand("actionSaveRuleSet", tr("Save"), &RuleSetMenu::save);
    if (rules.count() > 0)
        addCommand("actionSaveRuleSetAs", tr("Save as…"), &RuleSetMenu::saveAs);
    addCommand("actionManageRuleSets", tr("Manage…"), &RuleSetMenu::manage);
    addCommand("actionOpenRuleSet", tr("Open file…"), &RuleSetMenu::openFile);
    menu.addSeparator();
    addExamples();
}

void RuleSetMenu::addSaved()
{
    const QList<RuleSetFolder::Entry> entries = folder.list();
    for (const RuleSetFolder::Entry &saved : entries) {
        connect(menu.addAction(entry(saved.name)), &QAction::triggered, this,
                [this, path = saved.path] { chooseFile(path, path, LoadedRuleSet::Kept::Yes); });
    }
    if (!entries.isEmpty())
        menu.addSeparator();
}

void RuleSetMenu::addExamples()
{
    QMenu *examples = menu.addMenu(tr("Examples"));
    examples->setObjectName(u"menuRuleExamples"_s);
    const QList<RuleSet> sets = exampleRuleSets();
    for (const RuleSet &set : sets) {
        connect(examples->addAction(entry(set.name)), &QAction::triggered, this,
                [this, set] { choose(set, {}, LoadedRuleSet::Kept::Yes); });
    }
}

void RuleSetMenu::addCommand(const char *objectName, const QString &text, void (RuleSetMenu::*command)())
{
    QAction *action = menu.addAction(text);
    action->setObjectName(QLatin1StringView(objectName));
    connect(action, &QAction::triggered, this, command);
}

void RuleSetMenu::choose(const RuleSet &set, const QString &path, LoadedRuleSet::Kept kept)
{
    if (QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier))
        loaded.append(set);
    else if (!loaded.isUnsaved() || RuleSetQuestions::mayReplaceRules(window()))
        loaded.load(set, path, kept);
}

void RuleSetMenu::chooseFile(const QString &path, const QString &savePath, LoadedRuleSet::Kept kept)
{
    QString error;
    if (const auto set = readRuleSet(path, &error))
        choose(*set, savePath, kept);
    else
        RuleSetQuestions::tellNotRead(window(), path, error);
}

void RuleSetMenu::chooseLastUsed()
{
    // The end of the program may leave others in their place.
    chooseFile(lastUsedFile(), {}, LoadedRuleSet::Kept::No);
}

void RuleSetMenu::save()
{
    const QString error = writeRuleSet(loaded.path(), loaded.activeAs(loaded.name()));
    if (error.isEmpty())
        loaded.becomeSaved(loaded.name(), loaded.path());
    else
        RuleSetQuestions::tellNotSaved(window(), error);
}

void RuleSetMenu::saveAs()
{
    const QString name = RuleSetQuestions::nameFor(window(), loaded.name());
    if (name.isEmpty() || (!folder.find(name).isEmpty() && !RuleSetQuestions::mayReplaceSet(window(), name)))
        return;
    const QString error = folder.save(loaded.activeAs(name));
    if (error.isEmpty())
        loaded.becomeSaved(name, folder.find(name));
    else
        RuleSetQuestions::tellNotSaved(window(), error);
}

void RuleSetMenu::manage()
{
    RuleSetDialog dialog(window(), folder, loaded);
    dialog.exec();
}

void RuleSetMenu::openFile()
{
    const QStringList paths = RuleSetQuestions::filesToOpen(window(), QFileDialog::ExistingFile);
    if (!paths.isEmpty())
        chooseFile(paths.constFirst(), paths.constFirst(), LoadedRuleSet::Kept::Yes);
}

void RuleSetMenu::setHidden(bool isHidden)
{
    button->setHidden(isHidden);
    label->setHidden(isHidden);
}

void RuleSetMenu::importFiles(const QStringList &paths)
{
    const QStringList added = RuleSetQuestions::importFiles(window(), folder, paths);
    if (added.size() == 1 && paths.size() == 1)
        chooseFile(added.constFirst(), added.constFirst(), LoadedRuleSet::Kept::Yes);
}

void RuleSetMenu::keepLastUsed() const
{
    if (rules.count() == 0)
        return;
    const QString name = loaded.name().isEmpty() ? tr("Last used") : loaded.name();
    QDir().mkpath(QFileInfo(lastUsedFile()).path());
    const QString error = writeRuleSet(lastUsedFile(), loaded.activeAs(name));
    if (!error.isEmpty())
        qWarning("could not keep the rules: %s", qPrintable(error));
}

QWidget *RuleSetMenu::window() const
{
    return button->window();
}
