// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/mainwindow.h"

#include "core/applog.h"
#include "core/datapaths.h"
#include "core/maker.h"
#include "core/settingsstore.h"
#include "desktop/shell.h"
#include "desktop/taskbar.h"
#include "dialogs/dialogsettings.h"
#include "mainwindow/activerules.h"
#include "mainwindow/addbutton.h"
#include "mainwindow/allornothing.h"
#include "mainwindow/buttontips.h"
#include "mainwindow/checkschedule.h"
#include "mainwindow/commandids.h"
#include "mainwindow/commandkeys.h"
#include "mainwindow/editorlayout.h"
#include "mainwindow/emptyhint.h"
#include "mainwindow/explorer.h"
#include "mainwindow/explorermodel.h"
#include "mainwindow/explorerroad.h"
#include "mainwindow/fates.h"
#include "mainwindow/finishing.h"
#include "mainwindow/forecastlabel.h"
#include "mainwindow/handbookkey.h"
#include "mainwindow/logrows.h"
#include "mainwindow/placesrow.h"
#include "mainwindow/plannedrenaming.h"
#include "mainwindow/progressdialog.h"
#include "mainwindow/ruleedit.h"
#include "mainwindow/ruleexample.h"
#include "mainwindow/rulekeys.h"
#include "mainwindow/rulesetmenu.h"
#include "mainwindow/ruleswitches.h"
#include "mainwindow/ruletreedrag.h"
#include "mainwindow/runhistory.h"
#include "mainwindow/smallscreen.h"
#include "mainwindow/sortmenu.h"
#include "mainwindow/takingback.h"
#include "mainwindow/undobuttons.h"
#include "mainwindow/wholetextdelegate.h"
#include "mainwindow/windowdrops.h"
#include "rules/rule.h"
#include "rules/rulechain.h"
#include "ui_mainwindow.h"
#include "update/versioncheck.h"

#include <QDesktopServices>
#include <QDir>
#include <QKeyEvent>
#include <QSignalMapper>
#include <QTimer>
#include <QTreeView>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int renameButtonWidth = 140; // pixels, at least
constexpr int logTimerInterval = 250;  // milliseconds
// Deliberate: the cap is applied after each insertion, so the table holds at most 99 rows.
constexpr int logRowLimit = 100;

} // namespace

MainWindow::MainWindow(Qt::WindowFlags flags)
    : QMainWindow(nullptr, flags)
    , ui(std::make_unique<Ui::MainWindow>())
{
    ui->setupUi(this);
    fates = std::make_unique<Fates>(*ui->listWidgetFiles, *ui->buttonPreview);
    watchRules();
    ui->statusbar->addPermanentWidget(new ForecastLabel(*fates, *ui->listWidgetFiles));
    runHistory = new RunHistory(this);
}

MainWindow::~MainWindow()
{
    qDebug("terminate main window");
    if (logTimer)
        logTimer->stop();
    qDeleteAll(ruleTypes);
    ruleTypes.clear();
    qDeleteAll(ruleList);
    ruleList.clear();
    taskbarList.reset();
}

void MainWindow::initialize()
{
    createExplorer();
    createHints();
    createUndo();
    connect(ui->listWidgetFiles, &ListWidgetFiles::contentChanged, this, &MainWindow::onFileListAdded);
    addDockWidget(Qt::RightDockWidgetArea, dockExplorer);
    createRules();
    createWaysIn();
    addHandbookKey(this);
    retranslateExplorer();
    ui->tabWidgetMain->setMinimumSize(ui->tabWidgetMain->sizeHint());
    ui->treeWidgetRules->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    ui->comboBoxRules->setCurrentIndex(0);
    ui->tabWidgetMain->setCurrentIndex(0);
    createMappers();
    setLocale(QLocale(QLocale::system().language(), QLocale::AnyCountry));
    if (!ensureTrayIcon())
        SettingsStore::instance()->setValue(SettingKey::MiscMinimizeToTrayIcon, false);
    createLogo();
    adjustToTexts();
    taskbarList = TaskbarList::create(winId());
    ui->tableWidgetLog->setItemDelegate(new WholeTextDelegate(ui->tableWidgetLog));
    fitRowsToMessages(ui->tableWidgetLog);
    ui->tableWidgetLog->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    logTimer = new QTimer(this);
    logTimer->setInterval(logTimerInterval);
    logTimer->start();
    connect(logTimer, &QTimer::timeout, this, &MainWindow::onTimeout);
    new SmallScreen(this, *ui);
}

void MainWindow::createExplorer()
{
    dockExplorer = new QDockWidget(this);
    dockExplorer->setObjectName(u"dockWidgetExplorer"_s);
    auto *contents = new QWidget;
    dockExplorer->setWidget(contents);
    dockExplorer->setMinimumWidth(260);
    dockExplorer->setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable);
    dockExplorer->setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);

    treeExplorer = new QTreeView(contents);
    treeExplorer->setObjectName(u"treeExplorer"_s);
    treeExplorer->setDragDropMode(QAbstractItemView::DragOnly);
    treeExplorer->setSelectionMode(QAbstractItemView::ExtendedSelection);
    auto *layout = new QVBoxLayout(contents);
    layout->addWidget(treeExplorer);
    treeExplorer->setUniformRowHeights(true);
    auto *model = new ExplorerModel(this);
    treeExplorer->setModel(model);
    explorer = new Explorer(treeExplorer, model);
    auto *road = new ExplorerRoad(treeExplorer, model, QDir::homePath());
    auto *places = new PlacesRow(contents);
    layout->addWidget(places);
    connect(places, &PlacesRow::chosen, road, &ExplorerRoad::goTo);
}

void MainWindow::createHints()
{
    new EmptyHint(ui->listWidgetFiles, [] { return tr("Drop files or folders here, or press Ctrl+O"); });
    new EmptyHint(ui->treeWidgetRules, [] {
        //: %1 is the text of the button "Add"
        return tr("Choose a kind of rule above, fill in its fields and press \"%1\"").arg(tr("Add"));
    });
}

void MainWindow::createUndo()
{
    const WindowParts parts{*ui->listWidgetFiles, *ui->buttonPreview, *explorer, *fates, [this] {
                                on_buttonPreview_clicked();
                            }};
    takingBack = std::make_unique<TakingBack>(parts, *runHistory);
    finishing = std::make_unique<Finishing>(parts, *runHistory);
    auto *buttons = new UndoButtons(ui->buttonUndo, ui->buttonRuns, *runHistory, *takingBack, *finishing);
    allOrNothing = new AllOrNothing(ui->layoutUndo, this);
    buttons->addEntry(allOrNothing->entry());
    fates->follow(*allOrNothing);
    plannedRenaming = std::make_unique<PlannedRenaming>(
        parts, *runHistory, [this](const QString &name, int row) { return newName(name, row); });
}

void MainWindow::createWaysIn()
{
    new AddButton(ui->buttonAddFiles, *ui->listWidgetFiles);
    new WindowDrops(*ui->listWidgetFiles, treeExplorer);
    new SortMenu(ui->buttonSort, *ui->listWidgetFiles, *ui->buttonPreview,
                 [this] { on_buttonPreview_clicked(); });
    addRunKeys(*ui->listWidgetFiles, ui->buttonPreview, ui->buttonRename);
    addExplorerKeys(treeExplorer);
}

void MainWindow::createRules()
{
    const QList<RuleFactory *> factories = createRuleFactories();
    for (const RuleFactory *factory : factories) {
        Rule *rule = factory->create();
        const int page = ui->stackedWidgetRules->addWidget(rule->createEditor(ui->stackedWidgetRules));
        ruleTypes.insert(page, rule);
    }
    qDeleteAll(factories);
    ui->stackedWidgetRules->adjustSize();
    (new EditorLayout(ui->stackedWidgetRules))->orderTabs(ui->comboBoxRules, ui->buttonAddRule);
    new RuleExample(ruleTypes, *activeRules, *ruleEdit, *fates, *ui);
}

void MainWindow::watchRules()
{
    activeRules = std::make_unique<ActiveRules>(ruleList);
    const auto showNames = [this] {
        if (ui->buttonPreview->isChecked())
            on_buttonPreview_clicked();
    };
    connect(activeRules.get(), &ActiveRules::changed, this, [this, showNames] {
        refreshRuleTree();
        showNames();
    });
    connect(activeRules.get(), &ActiveRules::switched, this, showNames);
    ui->treeWidgetRules->setItemDelegate(new WholeTextDelegate(ui->treeWidgetRules));
    new RuleSwitches(*activeRules, ui->treeWidgetRules);
    ruleEdit = new RuleEdit(*activeRules, ruleTypes, *ui);
    ruleSets = new RuleSetMenu(*activeRules, ruleTypes, *ui);
    connect(ruleEdit, &RuleEdit::editingChanged, ruleSets, &RuleSetMenu::setHidden);
    const auto *drag = new RuleTreeDrag(*activeRules, ui->treeWidgetRules);
    connect(drag, &RuleTreeDrag::ruleSetsDropped, ruleSets, &RuleSetMenu::importFiles);
    addRuleKeys(this, ui->treeWidgetRules, *activeRules);
}

void MainWindow::createMappers()
{
    const auto createMapper = [this](void (MainWindow::*slot)(int)) {
        auto *mapper = new QSignalMapper(this);
        connect(mapper, &QSignalMapper::mappedInt, this, slot);
        return mapper;
    };
    const auto mapButton = [](QSignalMapper *mapper, QAbstractButton *button, int id) {
        connect(button, &QAbstractButton::clicked, mapper, qOverload<>(&QSignalMapper::map));
        mapper->setMapping(button, id);
    };
    const auto mapAction = [](QSignalMapper *mapper, QAction *action, int id) {
        connect(action, &QAction::triggered, mapper, qOverload<>(&QSignalMapper::map));
        mapper->setMapping(action, id);
    };

    QSignalMapper *fileListMapper = createMapper(&MainWindow::onClickedFileList);
    mapButton(fileListMapper, ui->buttonFileListUp, MoveFileUp);
    mapButton(fileListMapper, ui->buttonFileListDown, MoveFileDown);
    mapButton(fileListMapper, ui->buttonFileListRemove, RemoveFiles);

    QSignalMapper *ruleListMapper = createMapper(&MainWindow::onClickedRuleList);
    mapButton(ruleListMapper, ui->buttonRuleListRemove, RemoveRule);
    mapButton(ruleListMapper, ui->buttonRuleListUp, MoveRuleUp);
    mapButton(ruleListMapper, ui->buttonRuleListDown, MoveRuleDown);
    mapButton(ruleListMapper, ui->buttonRuleListClear, ClearRules);

    QSignalMapper *variousMapper = createMapper(&MainWindow::onClickedVarious);
    mapButton(variousMapper, ui->checkBoxShowFullPath, ShowFullPath);
    mapAction(variousMapper, ui->actionExplorer, ToggleExplorerDock);

    commandMapper = createMapper(&MainWindow::onClicked);
    mapButton(commandMapper, ui->toolButtonClearLog, ClearLog);
    mapButton(commandMapper, ui->checkBoxSaveLog, SaveLog);
    mapAction(commandMapper, ui->actionLog, ToggleLogDock);
    mapButton(commandMapper, ui->toolButtonOpenLogDir, OpenLogFolder);
    mapButton(commandMapper, ui->checkBoxDebug, IncludeDebug);
    mapAction(commandMapper, ui->actionGlobalSettings, GlobalSettings);
}

void MainWindow::createLogo()
{
    auto *spacer = new QWidget;
    spacer->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    ui->toolBar->addWidget(spacer);

    buttonLogo = new QPushButton;
    buttonLogo->setObjectName(u"buttonLogo"_s);
    buttonLogo->setIcon(QIcon(u":/img/logo.png"_s));
    buttonLogo->setIconSize({102, 30});
    buttonLogo->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    buttonLogo->setCursor(Qt::PointingHandCursor);
    buttonLogo->setStyleSheet(u"border:0;background:0;"_s);
    ui->toolBar->addWidget(buttonLogo);
    connect(buttonLogo, &QPushButton::clicked, commandMapper, qOverload<>(&QSignalMapper::map));
    commandMapper->setMapping(buttonLogo, VisitHome);
    ui->toolBar->setMinimumWidth(ui->toolBar->minimumSizeHint().width() +
                                 buttonLogo->minimumSizeHint().width() + 64);
    addTabStops(ui->toolBar);
}

void MainWindow::retranslateExplorer()
{
    if (dockExplorer) {
        dockExplorer->setWindowTitle(tr("File Explorer"));
        ui->actionExplorer->setStatusTip(tr("File Explorer"));
    }
    fillRuleComboBox();
}

void MainWindow::adjustToTexts()
{
    // The first-start dialog can change the language before initialize().
    if (!buttonLogo)
        return;
    // For screen readers: what has no text is named by its status tip.
    const auto buttons = findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        if (button->text().isEmpty() && !button->statusTip().isEmpty())
            button->setAccessibleName(button->statusTip());
    }
    const auto actions = ui->toolBar->actions();
    for (QAction *action : actions) {
        if (QWidget *button = ui->toolBar->widgetForAction(action); button && !action->statusTip().isEmpty())
            button->setAccessibleName(action->statusTip());
    }
    ui->listWidgetFiles->setAccessibleName(ui->groupBox->title());
    ui->treeWidgetRules->setAccessibleName(ui->groupBox_3->title());
    // Windows' readers are told nothing else of it but what is chosen.
    ui->comboBoxRules->setAccessibleName(ui->treeWidgetRules->headerItem()->text(0));
    ui->tableWidgetLog->setAccessibleName(ui->dockWidgetLog->windowTitle());
    if (dockExplorer)
        treeExplorer->setAccessibleName(dockExplorer->windowTitle());
    // Its minimum width hides from the layout what a longer text needs.
    ui->buttonRename->setMinimumWidth(std::max(renameButtonWidth, ui->buttonRename->sizeHint().width()));
    buttonLogo->setAccessibleName(QCoreApplication::translate("DialogSettings", "Visit our website"));
    setButtonTips(this);
}

void MainWindow::onTimeout()
{
    static CheckSchedule schedule(logTimerInterval);
    moveLogLinesToTable();
    if (schedule.isDue())
        checkForNewVersion();
}

void MainWindow::checkForNewVersion()
{
    if (!SettingsStore::instance()->value(SettingKey::VersionCheckAuto, true).toBool())
        return;
    auto *check = new VersionCheck(this); // deletes itself
    // A run or an adding of files waits inside an event loop, which a box would not leave.
    check->isParentBusy = [this] {
        return findChild<ProgressDialog *>() || ui->listWidgetFiles->isHandlingDrop();
    };
    check->check(false);
}

void MainWindow::moveLogLinesToTable()
{
    const QStringList lines = AppLog::instance()->pendingLines();
    if (lines.isEmpty())
        return;
    QTableWidget *table = ui->tableWidgetLog;
    // Lines that newer ones would push out of the table at once need not enter it.
    QList<QStringList> rows;
    for (auto line = lines.crbegin(); line != lines.crend() && rows.size() < logRowLimit - 1; ++line) {
        const QStringList parts = line->split(u'|');
        if (parts.size() >= 2)
            rows.append(parts);
    }
    std::reverse(rows.begin(), rows.end());
    for (const QStringList &parts : std::as_const(rows)) {
        table->insertRow(0);
        table->setItem(0, 0, new QTableWidgetItem(parts.at(0)));
        table->setItem(0, 1, new QTableWidgetItem(parts.at(1)));
        if (table->rowCount() >= logRowLimit)
            table->removeRow(table->rowCount() - 1);
    }
    AppLog::instance()->clearPending();
}

void MainWindow::onClicked(int id)
{
    switch (id) {
    case ClearLog:
        for (int row = ui->tableWidgetLog->rowCount() - 1; row >= 0; --row)
            ui->tableWidgetLog->removeRow(row);
        break;
    case SaveLog:
        // The setting itself is written at close.
        AppLog::instance()->setSaveToFile(ui->checkBoxSaveLog->isChecked());
        break;
    case ToggleLogDock:
        ui->dockWidgetLog->setVisible(!ui->dockWidgetLog->isVisibleTo(this));
        break;
    case OpenLogFolder:
        openLogFolder();
        break;
    case IncludeDebug:
        // Deliberate: written at once, unlike the check box beside it.
        SettingsStore::instance()->setValue(SettingKey::LogIncludeDebugInfo, ui->checkBoxDebug->isChecked());
        break;
    case GlobalSettings:
        editSettings();
        break;
    case VisitHome:
        QDesktopServices::openUrl(QUrl(Maker::homeUrl()));
        break;
    default:
        break;
    }
}

void MainWindow::editSettings()
{
    DialogSettings dialog(this);
    dialog.setWindowModality(Qt::WindowModal); // the icon in the tray stays alive
    if (dialog.exec() == QDialog::Accepted)
        dialog.save();
}

void MainWindow::openLogFolder()
{
    const QString path = dataDirectory() + "/logs/"_L1;
    QDir().mkdir(path);
    openWithShell(QDir(path).canonicalPath());
}

void MainWindow::onClickedVarious(int id)
{
    if (id == ShowFullPath)
        on_buttonPreview_clicked();
    else if (id == ToggleExplorerDock && dockExplorer)
        dockExplorer->setVisible(!dockExplorer->isVisibleTo(this));
}

void MainWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Delete && ui->listWidgetFiles->hasFocus()) {
        onClickedFileList(RemoveFiles);
        event->accept();
    } else if (event->key() == Qt::Key_Delete && ui->treeWidgetRules->hasFocus()) {
        onClickedRuleList(RemoveRule);
        event->accept();
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateExplorer();
        ui->retranslateUi(this);
        retranslateTrayMenu();
        adjustToTexts();
        event->accept();
        return;
    }
    if (event->type() == QEvent::WindowStateChange && event->spontaneous() && isMinimized()) {
        minimizeWindow();
        event->accept();
        return;
    }
    // Window managers do not know any more which dialog belongs to a native window that was made anew.
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        raiseDialogs();
    QMainWindow::changeEvent(event);
}
