// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "core/applog.h"
#include "core/localizer.h"
#include "core/settingsstore.h"
#include "mainwindow/listwidgetfiles.h"
#include "mainwindow/mainwindow.h"
#include "mainwindow/progressdialog.h"
#include "rules/rulechangecase.h"
#include "rules/ruleenumerate.h"
#include "rules/ruleinserttext.h"
#include "rules/rulereplace.h"
#include "rules/ruletrim.h"
#include "support/temptree.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>
#include <QUrl>

#include <memory>

/// The keys of the rule kinds: their editor's page.
enum RuleKind { ReplaceKind, TrimKind, ChangeCaseKind, InsertTextKind, EnumerateKind };

/// A folder of its own that is current while the object lives, with fresh process-wide objects.
class TestSettings
{
public:
    TestSettings()
    {
        SettingsStore::instance()->setFilePath(tree.path(QStringLiteral("config/global.xml")));
        // Closing a window would ask for support otherwise, and wait for an answer.
        SettingsStore::instance()->setValueByName(QStringLiteral("SupportUsHint"), false);
    }
    ~TestSettings()
    {
        qInstallMessageHandler(nullptr);
        Localizer::destroy();
        AppLog::destroy();
        SettingsStore::destroy();
    }
    Q_DISABLE_COPY_MOVE(TestSettings)

    TestFolder tree;
};

/// The real main window, driven as a user drives it.
class DrivenWindow
{
public:
    DrivenWindow()
        : window(std::make_unique<MainWindow>(Qt::CustomizeWindowHint | Qt::WindowCloseButtonHint |
                                              Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint))
    {
        window->initialize();
    }

    /// Shows it as the window that has the keyboard; false when it does not get that.
    [[nodiscard]] bool showActive() const
    {
        window->show();
        window->activateWindow();
        return QTest::qWaitForWindowActive(window.get());
    }

    /// Leaves log lines pending until onTimeout() is called: they are drained at no other moment then.
    void stopLogTimer() const
    {
        for (QTimer *timer : window->findChildren<QTimer *>(Qt::FindDirectChildrenOnly))
            timer->stop();
    }

    MainWindow *operator->() const { return window.get(); }
    [[nodiscard]] MainWindow *get() const { return window.get(); }

    template <typename Widget>
    [[nodiscard]] Widget *child(const char *name) const
    {
        auto *found = window->findChild<Widget *>(QLatin1StringView(name));
        if (!found)
            qFatal("no such child: %s", name);
        return found;
    }

    [[nodiscard]] ListWidgetFiles *files() const { return child<ListWidgetFiles>("listWidgetFiles"); }
    [[nodiscard]] QTreeWidget *ruleTree() const { return child<QTreeWidget>("treeWidgetRules"); }
    [[nodiscard]] QPushButton *preview() const { return child<QPushButton>("buttonPreview"); }
    void click(const char *name) const { child<QAbstractButton>(name)->click(); }

    /// Hands paths to the list as a drop does.
    void drop(const QStringList &paths) const
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls.append(QUrl::fromLocalFile(path));
        data.setUrls(urls);
        window->onFileListAdded(&data);
    }

    /// Makes a refresh of the rows visible: it overwrites these texts.
    void spoilRowTexts() const
    {
        for (int row = 0; row < files()->count(); ++row)
            files()->item(row)->setText(QStringLiteral("spoilt"));
    }

    [[nodiscard]] QStringList rowTexts() const
    {
        QStringList texts;
        for (int row = 0; row < files()->count(); ++row)
            texts.append(files()->item(row)->text());
        return texts;
    }
    [[nodiscard]] QStringList rowPaths() const
    {
        QStringList paths;
        for (int row = 0; row < files()->count(); ++row)
            paths.append(files()->item(row)->data(Qt::UserRole).toString());
        return paths;
    }

    /// Whether the list's answers about paths agree with what its rows hold.
    [[nodiscard]] bool pathsAgree(const QStringList &absent = {}) const
    {
        const QStringList paths = rowPaths();
        for (int row = 0; row < paths.size(); ++row) {
            if (files()->path(row) != paths.at(row) || !files()->containsPath(paths.at(row)))
                return false;
        }
        for (const QString &path : absent) {
            if (files()->containsPath(path) != paths.contains(path))
                return false;
        }
        return true;
    }

    /// Shows the editor of a kind through the combo box.
    [[nodiscard]] QWidget *chooseKind(RuleKind kind) const
    {
        auto *comboBox = child<QComboBox>("comboBoxRules");
        comboBox->setCurrentIndex(comboBox->findData(int{kind}));
        return child<QStackedWidget>("stackedWidgetRules")->currentWidget();
    }
    template <typename Editor>
    [[nodiscard]] Editor *editor(RuleKind kind) const
    {
        auto *found = qobject_cast<Editor *>(chooseKind(kind));
        if (!found)
            qFatal("the editor of kind %d is another one", int{kind});
        return found;
    }

    void addReplace(const QString &what, const QString &with, bool regExp = false) const
    {
        auto *form = editor<RuleWidgetReplace>(ReplaceKind);
        form->lineEditReplaceWhat->setText(what);
        form->lineEditReplaceWith->setText(with);
        form->toolButtonRegExp->setChecked(regExp);
        click("buttonAddRule");
    }
    void addTrim(int position, int length, bool fromStart = true) const
    {
        auto *form = editor<RuleWidgetTrim>(TrimKind);
        form->spinBoxPosition->setValue(position);
        form->spinBoxLength->setValue(length);
        setDirection(form->direction, fromStart);
        click("buttonAddRule");
    }
    void addChangeCase(QRadioButton *RuleWidgetChangeCase::*choice, bool ignoreExtension = true) const
    {
        auto *form = editor<RuleWidgetChangeCase>(ChangeCaseKind);
        (form->*choice)->setChecked(true);
        form->checkBoxIgnoreExtension->setChecked(ignoreExtension);
        click("buttonAddRule");
    }
    void addInsert(const QString &text, int position = 0, bool fromStart = true) const
    {
        auto *form = editor<RuleWidgetInsertText>(InsertTextKind);
        form->lineEditText->setText(text);
        form->spinBoxPosition->setValue(position);
        setDirection(form->direction, fromStart);
        click("buttonAddRule");
    }
    void addEnumerate(int start, int leadingZeros = 0, int position = 0, bool fromStart = true) const
    {
        auto *form = editor<RuleWidgetEnumerate>(EnumerateKind);
        form->spinBoxStartNumber->setValue(start);
        form->spinBoxLeadingZeros->setValue(leadingZeros);
        form->spinBoxPosition->setValue(position);
        setDirection(form->direction, fromStart);
        click("buttonAddRule");
    }

    /// The rules that are listed, as "name: description".
    [[nodiscard]] QStringList rules() const
    {
        QStringList texts;
        for (int row = 0; row < ruleTree()->topLevelItemCount(); ++row) {
            const QTreeWidgetItem *item = ruleTree()->topLevelItem(row);
            texts.append(item->text(0) + QStringLiteral(": ") + item->text(1));
        }
        return texts;
    }
    [[nodiscard]] int currentRule() const { return ruleTree()->currentIndex().row(); }
    void selectRule(int row) const { ruleTree()->setCurrentItem(ruleTree()->topLevelItem(row), 0); }

    /// The wait dialog that is alive, shown or not; null when there is none.
    [[nodiscard]] ProgressDialog *waitDialog() const { return window->findChild<ProgressDialog *>(); }

    /// The log lines not yet shown, without their times.
    [[nodiscard]] static QStringList logLines()
    {
        QStringList texts;
        for (const QString &line : AppLog::instance()->pendingLines())
            texts.append(line.section(QLatin1Char('|'), 1));
        return texts;
    }

private:
    static void setDirection(const DirectionBox &direction, bool fromStart)
    {
        (fromStart ? direction.radioButtonStart : direction.radioButtonEnd)->setChecked(true);
    }

    std::unique_ptr<MainWindow> window;
};
