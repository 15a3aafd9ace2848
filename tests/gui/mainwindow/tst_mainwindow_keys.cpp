// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "support/drivenwindow.h"
#include "support/explorerrows.h"
#include "support/faketranslator.h"
#include "support/modalanswer.h"

#include <QAccessible>
#include <QAction>
#include <QClipboard>
#include <QStatusBar>
#include <QTest>
#include <QToolBar>
#include <QTreeView>

using namespace Qt::StringLiterals;

/// What the keyboard does in the window as a whole, what says so, and where Tab goes.
class MainWindowKeys : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<DrivenWindow> window;
    TempTree *tree = nullptr;

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QWidget *target = window->get()->focusWidget() ? window->get()->focusWidget() : window->get();
        QTest::keyClick(target, key, modifiers);
    }
    [[nodiscard]] QString tip(const char *button) const
    {
        return window->child<QAbstractButton>(button)->toolTip();
    }

private slots:
    void init()
    {
        settings = std::make_unique<TestSettings>();
        tree = &settings->tree;
        window = std::make_unique<DrivenWindow>();
        window->stopLogTimer();
        QVERIFY(window->showActive());
    }
    void cleanup()
    {
        QGuiApplication::clipboard()->clear();
        window.reset();
        settings.reset();
    }

    void f5PressesPreview()
    {
        window->drop({tree->addFile(u"a"_s)});
        window->addInsert(u"x"_s);
        for (QWidget *focus :
             {static_cast<QWidget *>(window->files()), static_cast<QWidget *>(window->ruleTree()),
              static_cast<QWidget *>(window->child<QLineEdit>("lineEditFileFilter"))}) {
            focus->setFocus();
            press(Qt::Key_F5);
            QVERIFY(window->preview()->isChecked());
            QCOMPARE(window->rowTexts(), QStringList{u"xa"_s});
            press(Qt::Key_F5);
            QVERIFY(!window->preview()->isChecked());
            QCOMPARE(window->rowTexts(), QStringList{u"a"_s});
        }
    }

    void ctrlReturnRenames_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("Return") << Qt::Key_Return;
        QTest::newRow("Enter") << Qt::Key_Enter;
    }

    void ctrlReturnRenames()
    {
        QFETCH(Qt::Key, key);
        window->drop({tree->addFile(u"dir/a"_s)});
        window->addInsert(u"x"_s);
        window->child<QLineEdit>("lineEditFileFilter")->setFocus();
        const BoxAnswerer boxes;
        press(key, Qt::ControlModifier);
        QCOMPARE(boxes.seen.size(), 1);
        QCOMPARE(boxes.seen.constFirst().title, u"Report"_s);
        QCOMPARE(tree->names(u"dir"_s), QStringList{u"xa"_s});
    }

    void nothingIsPressedWhileADialogIsOpen()
    {
        window->drop({tree->addFile(u"dir/a"_s)});
        window->addInsert(u"x"_s);
        window->files()->setFocus();
        QDialog dialog(window->get());
        dialog.show();
        QVERIFY(window->showActive());
        press(Qt::Key_F5);
        press(Qt::Key_Return, Qt::ControlModifier);
        QVERIFY(!window->preview()->isChecked());
        QCOMPARE(tree->names(u"dir"_s), QStringList{u"a"_s});
        dialog.hide();
        press(Qt::Key_F5);
        QVERIFY(window->preview()->isChecked());
    }

    void toolTipsNameTheKeys()
    {
        QCOMPARE(tip("buttonAddFiles"), u"Add files and folders (Ctrl+O, Ctrl+Shift+O, Ctrl+V)"_s);
        QCOMPARE(tip("buttonSort"), u"Sort the files"_s);
        QCOMPARE(tip("buttonFileListUp"), u"Move up (Alt+Up)"_s);
        QCOMPARE(tip("buttonFileListRemove"), u"Remove (Del)"_s);
        QCOMPARE(tip("buttonRuleListDown"), u"Move down (Alt+Down)"_s);
        QCOMPARE(tip("buttonPreview"), u"Preview (F5)"_s);
        QCOMPARE(tip("buttonRename"), u"Rename (Ctrl+Return)"_s);
        QCOMPARE(tip("buttonUndo"), u"Undo (Ctrl+Z)"_s);
        QCOMPARE(window->child<QAction>("actionGlobalSettings")->toolTip(), u"Global Settings (Ctrl+G)"_s);
        QCOMPARE(window->child<QAction>("actionExplorer")->toolTip(), u"File Explorer"_s);
    }

    void everyButtonWithoutATextHasAToolTip()
    {
        const auto buttons = window->get()->findChildren<QAbstractButton *>();
        int seen = 0;
        for (const QAbstractButton *button : buttons) {
            if (!button->isVisible() || !button->text().isEmpty())
                continue;
            ++seen;
            QVERIFY2(!button->toolTip().isEmpty(), qPrintable(button->objectName()));
            QVERIFY2(!button->accessibleName().isEmpty(), qPrintable(button->objectName()));
            QVERIFY2(button->toolTip().startsWith(button->accessibleName()) ||
                         button->objectName() == u"buttonUndo"_s,
                     qPrintable(button->toolTip()));
        }
        QVERIFY(seen >= 20);
    }

    void whatTabReachesHasANameForScreenReaders()
    {
        const FakeTranslator translator(
            [](QLatin1StringView, const QString &text) { return text.toUpper(); });
        QCoreApplication::processEvents();
        int seen = 0;
        for (const RuleKind kind : {ReplaceKind, TrimKind, ChangeCaseKind, InsertTextKind, EnumerateKind}) {
            QVERIFY(window->chooseKind(kind));
            const auto widgets = window->get()->findChildren<QWidget *>();
            for (QWidget *widget : widgets) {
                // The tab widget hands the focus on to its tabs, a spin box to the field in it.
                if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus) || widget->focusProxy() ||
                    qobject_cast<QAbstractSpinBox *>(widget->parent()))
                    continue;
                ++seen;
                const QString name = QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
                QVERIFY2(!name.isEmpty() && name == name.toUpper(), qPrintable(widget->objectName() + name));
            }
        }
        QVERIFY(seen > 150);
    }

    void toolTipsFollowTheLanguage()
    {
        const FakeTranslator translator([](QLatin1StringView context, const QString &text) {
            return context == "QShortcut"_L1 || context == "MainWindow"_L1 ? text.toUpper() : QString();
        });
        QCoreApplication::processEvents();
        QCOMPARE(tip("buttonFileListUp"), u"MOVE UP (ALT+UP)"_s);
        QCOMPARE(tip("buttonPreview"), u"PREVIEW (F5)"_s);
        QCOMPARE(window->child<QAction>("actionLog")->toolTip(), u"APPLICATION LOG (CTRL+L)"_s);
    }

    void tabFollowsTheEye()
    {
        QStringList names;
        const QWidget *last = window->child<QToolButton>("buttonRuns");
        for (const QWidget *next = window->child<QLineEdit>("lineEditFileFilter"); next != last;
             next = next->nextInFocusChain()) {
            if (next->focusPolicy() & Qt::TabFocus)
                names.append(next->objectName());
        }
        QCOMPARE(names, QStringList({u"lineEditFileFilter"_s, u"buttonFileFilterClear"_s, u"buttonAddFiles"_s,
                                     u"buttonSort"_s, u"listWidgetFiles"_s, u"buttonFileListUp"_s,
                                     u"buttonFileListRemove"_s, u"buttonFileListDown"_s,
                                     u"buttonFileListClear"_s, u"buttonPreview"_s, u"buttonRename"_s,
                                     u"checkBoxShowFullPath"_s, u"buttonUndo"_s}));
    }

    /// Whoever has no mouse gets everywhere.
    void everyButtonIsReachedByTab()
    {
        window->drop({tree->addFile(u"a"_s)});
        window->child<QComboBox>("comboBoxRules")->setFocus();
        QSet<QWidget *> reached;
        for (int presses = 0; presses < 100; ++presses) {
            QWidget *focus = QApplication::focusWidget();
            QVERIFY(focus);
            reached.insert(focus);
            // A list of rows keeps Tab to itself in no window of ours.
            QTest::keyClick(focus, Qt::Key_Tab);
        }
        const auto buttons = window->get()->findChildren<QAbstractButton *>();
        for (QAbstractButton *button : buttons) {
            // The docks' own are pressed by the tool bar's buttons, too; one radio button stands for all.
            if (button->isVisible() && button->isEnabled() && !button->objectName().startsWith("qt_"_L1) &&
                !qobject_cast<QRadioButton *>(button))
                QVERIFY2(reached.contains(button), qPrintable(button->objectName()));
        }
        for (const char *name : {"listWidgetFiles", "treeWidgetRules", "treeExplorer", "lineEditFileFilter"})
            QVERIFY2(reached.contains(window->child<QWidget>(name)), name);
    }

    void toolBarIsWorkedByTheKeyboard()
    {
        const auto *bar = window->child<QToolBar>("toolBar");
        auto *dock = window->child<QWidget>("dockWidgetExplorer");
        QVERIFY(dock->isVisible());
        QWidget *button = bar->widgetForAction(window->child<QAction>("actionExplorer"));
        button->setFocus(Qt::TabFocusReason);
        press(Qt::Key_Space);
        QVERIFY(!dock->isVisible());
    }

    void explorersFilesAreCopiedAndPasted()
    {
        const QStringList paths = tree->addFiles(u"%1"_s, 3);
        auto *explorer = window->child<QTreeView>("treeExplorer");
        const QModelIndex folder = openInExplorer(explorer, tree->path());
        const auto *model = explorer->model();
        QTRY_VERIFY(explorerRow(model, folder, u"002"_s).isValid());
        explorer->setFocus();
        press(Qt::Key_C, Qt::ControlModifier);
        const QMimeData *copied = QGuiApplication::clipboard()->mimeData();
        QVERIFY(!copied || !copied->hasUrls());
        for (const QString &name : {u"000"_s, u"002"_s})
            explorer->selectionModel()->select(explorerRow(model, folder, name), QItemSelectionModel::Select);
        press(Qt::Key_C, Qt::ControlModifier);
        press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(window->rowPaths(), QStringList({paths.at(0), paths.at(2)}));
    }
};

QTEST_MAIN(MainWindowKeys)
#include "tst_mainwindow_keys.moc"
