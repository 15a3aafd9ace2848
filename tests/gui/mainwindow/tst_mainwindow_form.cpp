// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "support/drivenwindow.h"

#include <QAction>
#include <QDockWidget>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSplitter>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

QImage imageOf(const QIcon &icon, QSize size)
{
    return icon.pixmap(size).toImage();
}

/// The object names of a layout's items, "-" for spacers.
QStringList itemNames(const QLayout *layout)
{
    QStringList names;
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem *item = layout->itemAt(i);
        if (item->widget())
            names.append(item->widget()->objectName());
        else
            names.append(item->layout() ? item->layout()->objectName() : u"-"_s);
    }
    return names;
}

} // namespace

/// What the main window is made of: names, classes, texts, icons, sizes and the order of things.
class MainWindowForm : public QObject
{
    Q_OBJECT

private:
    TestSettings settings;
    std::unique_ptr<DrivenWindow> window;

private slots:
    void init() { window = std::make_unique<DrivenWindow>(); }
    void cleanup() { window.reset(); }

    void slotsStandInTheirOrder()
    {
        const QMetaObject &meta = MainWindow::staticMetaObject;
        QStringList signatures;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
            signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
        }
        QCOMPARE(
            signatures,
            QStringList({u"onTimeout()"_s, u"onTrayIconActivated(QSystemTrayIcon::ActivationReason)"_s,
                         u"onRestoreWindow()"_s, u"onFileListAdded(const QMimeData*)"_s, u"onClicked(int)"_s,
                         u"onClickedVarious(int)"_s, u"onClickedFileList(int)"_s, u"onClickedRuleList(int)"_s,
                         u"on_buttonPreview_clicked()"_s, u"on_buttonRename_clicked()"_s,
                         u"on_buttonAddRule_clicked()"_s, u"on_comboBoxRules_currentIndexChanged(int)"_s}));
    }

    void windowItself()
    {
        const MainWindow *w = window->get();
        QCOMPARE(w->objectName(), u"MainWindow"_s);
        QCOMPARE(w->size(), QSize(1066, 515));
        QCOMPARE(w->dockOptions(), QMainWindow::DockOptions(QMainWindow::AnimatedDocks));
        QVERIFY(w->windowFlags() & Qt::CustomizeWindowHint);
        QCOMPARE(w->parentWidget(), nullptr);
        QCOMPARE(w->locale().language(), QLocale(QLocale::system().language()).language());
        QCOMPARE(w->centralWidget()->objectName(), u"centralwidget"_s);
    }

    void formBeforeInitialize()
    {
        const MainWindow bare(Qt::WindowFlags{});
        QCOMPARE(bare.locale(), QLocale(QLocale::English, QLocale::UnitedStates));
        QCOMPARE(bare.findChild<QStackedWidget *>(u"stackedWidgetRules"_s)->currentIndex(), -1);
        // Before the style sheet gives it another size.
        QCOMPARE(bare.findChild<QDockWidget *>(u"dockWidgetLog"_s)->font().pointSize(), 8);
    }

    void styleSheetIsExact()
    {
        const QStringList lines = {
            u"QToolBar::handle {image:url(:/img/toolbar_handle.png)}"_s,
            u"QToolBar{border:0;min-height:42px;background-color:qlineargradient(x1:0, y1:0, x2:0, y2:1, "
            "stop:0 #fafafa, stop:1 #ddd);border-top: 1px solid #ddd;border-bottom: 1px solid #ccc;}"_s,
            u"QToolBar QToolButton{margin-left:8px;}"_s,
            u"QToolBar QToolButton:pressed{padding-top:1px}"_s,
            u"QToolBar QToolButton:hover{border:2px solid #ccc;border-radius:4px}"_s,
            {},
            u"QTabWidget > QWidget{font-weight:bold;color:#333}"_s,
            {},
            u"QDateEdit, QTimeEdit{font-size:9pt}"_s,
            {},
            u"QMainWindow::separator:horizontal{"_s,
            u"border-top: 2px dotted #bbb;"_s,
            u"margin:0 90% 0 90%;"_s,
            u"}"_s,
            u"QMainWindow::separator:vertical{"_s,
            u"border-left: 2px dotted #bbb;"_s,
            u"margin:90% 0 90% 0;"_s,
            u"}"_s,
            u"horizontal,QMainWindow::separator:hover{"_s,
            u"border-color:#747474;"_s,
            u"}"_s,
            {},
            u"QDockWidget{"_s,
            u"color:#666;"_s,
            u"font-size:8.4pt;"_s,
            u"font-weight:bold;"_s,
            u"margin-top:8px;"_s,
            u"}"_s,
            {},
            u"QDockWidget::title {"_s,
            u"text-align: left;"_s,
            u"background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #fafafa, stop:1 #d6d6d6);"_s,
            u"margin: 8px 8px 0 8px;"_s,
            u"border: 1px solid #cacaca;"_s,
            u"padding:2px 0 0px 12px;"_s,
            u"border-radius:3px;"_s,
            u"}"_s,
            {},
            u"QDockWidget {"_s,
            u"titlebar-close-icon: url(:/img/dock_close.png);"_s,
            u"icon-size:20px; "_s,
            u"}"_s,
            {},
            u"QDockWidget::close-button {"_s,
            u"border:1px solid transparent;"_s,
            u"border-radius:4px;"_s,
            u"right:14px;"_s,
            u"top:12px;"_s,
            u"}"_s,
            u"QDockWidget::close-button:hover {background-color:#f8f8f8;border-color:#ccc}"_s,
            u"QDockWidget::close-button:pressed {background-color:#fff;padding:0}"_s};
        QCOMPARE(window->get()->styleSheet(), lines.join(u'\n'));
    }

    void buttons_data()
    {
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("statusTip");
        QTest::addColumn<QString>("picture");
        QTest::addColumn<int>("iconWidth");
        QTest::addColumn<QSize>("minimum");
        QTest::addColumn<bool>("checkable");
        QTest::addColumn<bool>("autoRaise");
        const QString tool = u"QToolButton"_s;
        const QString push = u"QPushButton"_s;
        const QString check = u"QCheckBox"_s;
        const QSize square(24, 24);
        const QSize none(0, 0);
        const QString no;
        QTest::newRow("buttonAddRule") << push << u"Add"_s << no << u"add"_s << 20 << none << false << false;
        QTest::newRow("buttonRuleListUp")
            << tool << no << no << u"item_up"_s << 20 << square << false << false;
        QTest::newRow("buttonRuleListRemove")
            << tool << no << no << u"item_remove"_s << 20 << square << false << false;
        QTest::newRow("buttonRuleListDown")
            << tool << no << no << u"item_down"_s << 20 << square << false << false;
        QTest::newRow("buttonRuleListClear")
            << tool << no << u"Clear list"_s << u"clear_left"_s << 20 << square << false << true;
        QTest::newRow("buttonFileFilterClear")
            << tool << no << u"Clear"_s << u"clear_left"_s << 20 << none << false << false;
        QTest::newRow("buttonFileListUp") << tool << no << no << u"item_up"_s << 20 << none << false << false;
        QTest::newRow("buttonFileListRemove")
            << tool << no << no << u"item_remove"_s << 20 << none << false << false;
        QTest::newRow("buttonFileListDown")
            << tool << no << no << u"item_down"_s << 20 << none << false << false;
        QTest::newRow("buttonFileListClear")
            << tool << no << u"Clear list"_s << u"clear_left"_s << 20 << none << false << true;
        QTest::newRow("buttonPreview")
            << push << u"Preview"_s << no << u"glass"_s << 20 << none << true << false;
        QTest::newRow("buttonRename")
            << push << u"Rename"_s << no << u"start"_s << 20 << QSize(140, 0) << false << false;
        QTest::newRow("checkBoxShowFullPath")
            << check << u"Show full path"_s << no << u"folder"_s << 20 << none << true << false;
        QTest::newRow("buttonUndo") << tool << no << u"Undo the last run"_s << u"undo"_s << 16
                                    << QSize(16, 24) << false << false;
        QTest::newRow("buttonRuns") << tool << no << u"Undo, redo and earlier runs"_s << u"runs"_s << 16
                                    << QSize(16, 24) << false << false;
        QTest::newRow("buttonAddFiles")
            << tool << no << u"Add files and folders"_s << u"add_files"_s << 20 << square << false << false;
        QTest::newRow("buttonSort") << tool << no << u"Sort the files"_s << u"sort"_s << 20 << square << false
                                    << false;
        QTest::newRow("checkBoxSaveLog")
            << check << u"Save"_s << u"Save logs"_s << u"save"_s << 20 << none << true << false;
        QTest::newRow("checkBoxDebug") << check << u"Debug"_s << u"Include debug messages"_s << u"debug"_s
                                       << 20 << none << true << false;
        QTest::newRow("toolButtonOpenLogDir")
            << tool << no << u"Open log directory"_s << u"folder"_s << 20 << none << false << false;
        QTest::newRow("toolButtonClearLog")
            << tool << no << u"Clear list"_s << u"clear_top"_s << 20 << none << false << false;
    }

    void buttons()
    {
        QFETCH(QString, className);
        QFETCH(QString, text);
        QFETCH(QString, statusTip);
        QFETCH(QString, picture);
        QFETCH(int, iconWidth);
        QFETCH(QSize, minimum);
        QFETCH(bool, checkable);
        QFETCH(bool, autoRaise);
        const auto *button = window->child<QAbstractButton>(QTest::currentDataTag());
        QCOMPARE(QString::fromLatin1(button->metaObject()->className()), className);
        QCOMPARE(button->text(), text);
        QCOMPARE(button->statusTip(), statusTip);
        QCOMPARE(button->iconSize(), QSize(iconWidth, iconWidth));
        const QImage expected = imageOf(QIcon(u":/img/%1.png"_s.arg(picture)), button->iconSize());
        QVERIFY(!expected.isNull());
        QCOMPARE(imageOf(button->icon(), button->iconSize()), expected);
        QCOMPARE(button->minimumSize(), minimum);
        QCOMPARE(button->isCheckable(), checkable);
        QVERIFY(!button->isChecked());
        if (const auto *toolButton = qobject_cast<const QToolButton *>(button))
            QCOMPARE(toolButton->autoRaise(), autoRaise);
    }

    void actions_data()
    {
        QTest::addColumn<QString>("statusTip");
        QTest::addColumn<QString>("picture");
        QTest::addColumn<QKeySequence>("shortcut");
        QTest::newRow("actionGlobalSettings")
            << u"Global Settings"_s << u"dock_config"_s << QKeySequence(u"Ctrl+G"_s);
        QTest::newRow("actionLog") << u"Application Log"_s << u"dock_log"_s << QKeySequence(u"Ctrl+L"_s);
        QTest::newRow("actionExplorer") << u"File Explorer"_s << u"dock_explorer"_s << QKeySequence();
    }

    void actions()
    {
        QFETCH(QString, statusTip);
        QFETCH(QString, picture);
        QFETCH(QKeySequence, shortcut);
        const auto *action = window->child<QAction>(QTest::currentDataTag());
        QCOMPARE(action->statusTip(), statusTip);
        QCOMPARE(action->shortcut(), shortcut);
        const QImage expected = imageOf(QIcon(u":/img/%1.png"_s.arg(picture)), {28, 28});
        QVERIFY(!expected.isNull());
        QCOMPARE(imageOf(action->icon(), {28, 28}), expected);
    }

    void ruleArea()
    {
        const auto *splitter = window->child<QSplitter>("splitter");
        QCOMPARE(splitter->orientation(), Qt::Horizontal);
        QCOMPARE(splitter->handleWidth(), 16);
        QCOMPARE(splitter->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(splitter->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(splitter->widget(0)->objectName(), u"tabWidgetMain"_s);
        QCOMPARE(splitter->widget(1)->objectName(), u"groupBox"_s);
        QCOMPARE(itemNames(window->get()->centralWidget()->layout()), QStringList{u"splitter"_s});
        QCOMPARE(window->get()->centralWidget()->layout()->objectName(), u"verticalLayout_3"_s);

        const auto *tabs = window->child<QTabWidget>("tabWidgetMain");
        QCOMPARE(tabs->count(), 1);
        QCOMPARE(tabs->currentIndex(), 0);
        QCOMPARE(tabs->iconSize(), QSize(24, 24));
        QCOMPARE(tabs->widget(0)->objectName(), u"tabFilters"_s);
        QCOMPARE(tabs->tabText(0), u"Rules"_s);
        QCOMPARE(imageOf(tabs->tabIcon(0), {24, 24}), imageOf(QIcon(u":/img/custom/rules.png"_s), {24, 24}));
        QVERIFY(!tabs->tabIcon(0).isNull());
        QVERIFY(tabs->minimumSize().width() > 0 && tabs->minimumSize().height() > 0);
        QCOMPARE(itemNames(tabs->widget(0)->layout()),
                 QStringList({u"horizontalLayout_5"_s, u"stackedWidgetRules"_s, u"horizontalLayout_3"_s,
                              u"groupBox_3"_s}));
        QCOMPARE(tabs->widget(0)->layout()->objectName(), u"verticalLayout_4"_s);
        QCOMPARE(itemNames(window->child<QHBoxLayout>("horizontalLayout_5")),
                 QStringList({u"comboBoxRules"_s, u"-"_s, u"labelRuleExample"_s}));
        QCOMPARE(itemNames(window->child<QHBoxLayout>("horizontalLayout_3")),
                 QStringList({u"buttonAddRule"_s, u"-"_s, u"buttonApplyRule"_s, u"buttonLeaveRule"_s,
                              u"labelRuleSet"_s, u"buttonRuleSets"_s}));

        const auto *comboBox = window->child<QComboBox>("comboBoxRules");
        QCOMPARE(comboBox->minimumSize().width(), 140);
        QCOMPARE(comboBox->font().pointSize(), 9);
        QCOMPARE(window->child<QGroupBox>("groupBox_3")->title(), u"Active Rules"_s);
    }

    void ruleTree()
    {
        const QTreeWidget *tree = window->ruleTree();
        QCOMPARE(tree->columnCount(), 2);
        QCOMPARE(tree->headerItem()->text(0), u"Rule"_s);
        QCOMPARE(tree->headerItem()->text(1), u"Properties"_s);
        QCOMPARE(tree->minimumSize(), QSize(200, 0));
        QCOMPARE(tree->font().pointSize(), 10);
        QVERIFY(!tree->rootIsDecorated());
        QVERIFY(tree->uniformRowHeights());
        QCOMPARE(tree->header()->minimumSectionSize(), 100);
        QCOMPARE(tree->header()->sectionResizeMode(0), QHeaderView::ResizeToContents);
        QCOMPARE(itemNames(window->child<QVBoxLayout>("verticalLayout_5")),
                 QStringList({u"-"_s, u"buttonRuleListUp"_s, u"buttonRuleListRemove"_s,
                              u"buttonRuleListDown"_s, u"-"_s, u"buttonRuleListClear"_s}));
        QCOMPARE(window->child<QVBoxLayout>("verticalLayout_5")->itemAt(0)->sizeHint(), QSize(24, 13));
        QCOMPARE(itemNames(window->child<QGroupBox>("groupBox_3")->layout()),
                 QStringList({u"treeWidgetRules"_s, u"verticalLayout_5"_s}));
    }

    void fileArea()
    {
        QCOMPARE(window->child<QGroupBox>("groupBox")->title(), u"File List"_s);
        QCOMPARE(itemNames(window->child<QVBoxLayout>("verticalLayout")),
                 QStringList({u"horizontalLayout_8"_s, u"horizontalLayout_9"_s, u"horizontalLayout_2"_s}));
        QCOMPARE(itemNames(window->child<QHBoxLayout>("horizontalLayout_8")),
                 QStringList({u"label"_s, u"lineEditFileFilter"_s, u"buttonFileFilterClear"_s, u"-"_s,
                              u"layoutAddFiles"_s}));
        QCOMPARE(itemNames(window->child<QHBoxLayout>("layoutAddFiles")),
                 QStringList({u"buttonAddFiles"_s, u"buttonSort"_s}));
        QCOMPARE(itemNames(window->child<QHBoxLayout>("horizontalLayout_9")),
                 QStringList({u"listWidgetFiles"_s, u"verticalLayout_8"_s}));
        QCOMPARE(itemNames(window->child<QVBoxLayout>("verticalLayout_8")),
                 QStringList({u"-"_s, u"buttonFileListUp"_s, u"buttonFileListRemove"_s,
                              u"buttonFileListDown"_s, u"-"_s, u"buttonFileListClear"_s}));
        QCOMPARE(itemNames(window->child<QHBoxLayout>("horizontalLayout_2")),
                 QStringList({u"buttonPreview"_s, u"buttonRename"_s, u"checkBoxShowFullPath"_s, u"-"_s,
                              u"layoutUndo"_s}));
        QCOMPARE(itemNames(window->child<QHBoxLayout>("layoutUndo")),
                 QStringList({u"buttonUndo"_s, u"buttonRuns"_s}));
        QCOMPARE(window->child<QLabel>("label")->text(), u"Name Filter"_s);
        QCOMPARE(window->child<QLineEdit>("lineEditFileFilter")->text(), QString());
        QCOMPARE(window->child<QLineEdit>("lineEditFileFilter")->placeholderText(), u"*.*"_s);
        QCOMPARE(window->child<QPushButton>("buttonRename")->font().pointSize(), 9);

        const ListWidgetFiles *list = window->files();
        QCOMPARE(QString::fromLatin1(list->metaObject()->className()), u"ListWidgetFiles"_s);
        QCOMPARE(list->minimumSize(), QSize(200, 0));
        QVERIFY(list->acceptDrops());
        QVERIFY(list->viewport()->acceptDrops());
        QVERIFY(list->dragEnabled());
        QVERIFY(list->showDropIndicator());
        QVERIFY(list->alternatingRowColors());
        QVERIFY(list->autoFillBackground());
        QCOMPARE(list->selectionMode(), QAbstractItemView::ExtendedSelection);
        QCOMPARE(list->count(), 0);
    }

    void toolBar()
    {
        const auto *bar = window->child<QToolBar>("toolBar");
        QVERIFY(!bar->isMovable());
        QVERIFY(!bar->isFloatable());
        QCOMPARE(bar->iconSize(), QSize(28, 28));
        QCOMPARE(window->get()->toolBarArea(bar), Qt::TopToolBarArea);
        const QList<QAction *> actions = bar->actions();
        QCOMPARE(actions.size(), 5);
        QCOMPARE(actions.at(0)->objectName(), u"actionGlobalSettings"_s);
        QCOMPARE(actions.at(1)->objectName(), u"actionLog"_s);
        QCOMPARE(actions.at(2)->objectName(), u"actionExplorer"_s);
        const QWidget *spacer = bar->widgetForAction(actions.at(3));
        QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);

        auto *logo = window->child<QPushButton>("buttonLogo");
        QCOMPARE(bar->widgetForAction(actions.at(4)), logo);
        QCOMPARE(logo->text(), QString());
        QCOMPARE(logo->iconSize(), QSize(102, 30));
        QVERIFY(!QIcon(u":/img/logo.png"_s).isNull());
        QCOMPARE(imageOf(logo->icon(), logo->iconSize()),
                 imageOf(QIcon(u":/img/logo.png"_s), logo->iconSize()));
        QCOMPARE(logo->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(logo->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(logo->cursor().shape(), Qt::PointingHandCursor);
        QCOMPARE(logo->styleSheet(), u"border:0;background:0;"_s);
        QVERIFY(bar->minimumWidth() > logo->minimumSizeHint().width() + 64);
    }

    void logDock()
    {
        auto *dock = window->child<QDockWidget>("dockWidgetLog");
        QCOMPARE(dock->windowTitle(), u"Application Log"_s);
        QCOMPARE(dock->features(), QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable);
        QCOMPARE(dock->allowedAreas(), Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
        QCOMPARE(window->get()->dockWidgetArea(dock), Qt::RightDockWidgetArea);
        QVERIFY(dock->font().bold());
        QCOMPARE(dock->widget()->objectName(), u"dockWidgetContents_2"_s);
        QCOMPARE(itemNames(dock->widget()->layout()),
                 QStringList({u"tableWidgetLog"_s, u"horizontalLayout_14"_s, u"widgetLog"_s}));
        QCOMPARE(dock->widget()->layout()->objectName(), u"verticalLayout_19"_s);
        QCOMPARE(itemNames(window->child<QHBoxLayout>("horizontalLayout_14")),
                 QStringList({u"checkBoxSaveLog"_s, u"checkBoxDebug"_s, u"-"_s, u"toolButtonOpenLogDir"_s,
                              u"toolButtonClearLog"_s}));

        const auto *table = window->child<QTableWidget>("tableWidgetLog");
        QCOMPARE(table->columnCount(), 2);
        QCOMPARE(table->horizontalHeaderItem(0)->text(), u"Time"_s);
        QCOMPARE(table->horizontalHeaderItem(1)->text(), u"Message"_s);
        QCOMPARE(table->editTriggers(), QAbstractItemView::EditTriggers(QAbstractItemView::NoEditTriggers));
        QVERIFY(!table->tabKeyNavigation());
        QCOMPARE(table->selectionMode(), QAbstractItemView::NoSelection);
        QCOMPARE(table->selectionBehavior(), QAbstractItemView::SelectRows);
        QVERIFY(table->horizontalHeader()->stretchLastSection());
        QVERIFY(table->verticalHeader()->isHidden());
        QCOMPARE(table->horizontalHeader()->sectionResizeMode(0), QHeaderView::ResizeToContents);

        const auto *form = qobject_cast<QFormLayout *>(window->child<QWidget>("widgetLog")->layout());
        QVERIFY(form);
        QCOMPARE(form->objectName(), u"formLayout_6"_s);
        QCOMPARE(form->count(), 0);
        QCOMPARE(form->contentsMargins(), QMargins());
        QCOMPARE(form->fieldGrowthPolicy(), QFormLayout::AllNonFixedFieldsGrow);
    }

    void explorerDock()
    {
        auto *dock = window->child<QDockWidget>("dockWidgetExplorer");
        QCOMPARE(dock->windowTitle(), u"File Explorer"_s);
        QCOMPARE(dock->minimumWidth(), 260);
        QCOMPARE(dock->features(), QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable);
        QCOMPARE(dock->allowedAreas(), Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
        QCOMPARE(window->get()->dockWidgetArea(dock), Qt::RightDockWidgetArea);

        const auto trees = dock->widget()->findChildren<QTreeView *>();
        QCOMPARE(trees.size(), 1);
        const QTreeView *tree = trees.constFirst();
        QCOMPARE(tree->dragDropMode(), QAbstractItemView::DragOnly);
        QCOMPARE(tree->selectionMode(), QAbstractItemView::ExtendedSelection);
        QCOMPARE(tree->objectName(), u"treeExplorer"_s);
        QVERIFY(tree->dragEnabled());
        QVERIFY(!tree->isHeaderHidden());
        QCOMPARE(tree->model()->QObject::parent(), window->get());
        // Names, and nothing else.
        QCOMPARE(tree->model()->columnCount(), 1);
        QVERIFY(!tree->isColumnHidden(0));
    }

    void statusBarShowsStatusTips()
    {
        auto *bar = window->child<QStatusBar>("statusbar");
        QVERIFY(bar->font().bold());
        QCOMPARE(bar->styleSheet(), u"QStatusBar{font:bold 9pt;color:#383838}"_s);
        QVERIFY(bar->isSizeGripEnabled());
        QStatusTipEvent tip(u"Clear list"_s);
        QCoreApplication::sendEvent(window->child<QToolButton>("buttonFileListClear"), &tip);
        QCOMPARE(bar->currentMessage(), u"Clear list"_s);
    }

    void logTimerTicksFourTimesASecond()
    {
        QList<const QTimer *> own;
        for (const QTimer *timer : window->get()->findChildren<QTimer *>(Qt::FindDirectChildrenOnly)) {
            if (timer->isActive() && timer->interval() == 250 && !timer->isSingleShot())
                own.append(timer);
        }
        QCOMPARE(own.size(), 1);
        AppLog::instance()->append(u"a line"_s);
        QTRY_COMPARE(window->child<QTableWidget>("tableWidgetLog")->rowCount(), 1);
    }
};

QTEST_MAIN(MainWindowForm)
#include "tst_mainwindow_form.moc"
