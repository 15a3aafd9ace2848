// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "mainwindow/failures.h"

#include <QMainWindow>
#include <QMap>
#include <QMimeData>
#include <QSystemTrayIcon>

#include <functional>
#include <memory>

class ActiveRules;
class AllOrNothing;
class Explorer;
class Fates;
class Finishing;
class PlannedRenaming;
class ProgressDialog;
class QPushButton;
class QSignalMapper;
class QTreeView;
class RenameRun;
class Rule;
class RuleEdit;
class RuleSetMenu;
class RunHistory;
class RunProgress;
class TakingBack;
class TaskbarList;
struct RuleData;

namespace Ui {
class MainWindow;
}

/// The program's only main window. Its code lies in one file per concern: the window itself, the rule list,
/// the file list, the rename run, and the window's state.
class MainWindow final : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(Qt::WindowFlags flags);
    ~MainWindow() override;
    Q_DISABLE_COPY_MOVE(MainWindow)

    /// Builds what the form does not hold and connects everything. To be called once, before the first show.
    void initialize();

    /// Adds one file, or every matching file below a folder; a path that is listed already is skipped. Events
    /// are processed after each file.
    void addPath(const QString &path);
    /// Sets a row's text from its path: the name on disk, or with Preview on the name that the rules make of
    /// it.
    void updateFileItem(int row);

public slots:
    void onTimeout();
    void onTrayIconActivated(QSystemTrayIcon::ActivationReason reason);
    void onRestoreWindow();
    void onFileListAdded(const QMimeData *mimeData);
    void onClicked(int id);
    void onClickedVarious(int id);
    void onClickedFileList(int id);
    void onClickedRuleList(int id);
    void on_buttonPreview_clicked();
    void on_buttonRename_clicked();
    void on_buttonAddRule_clicked();
    void on_comboBoxRules_currentIndexChanged(int index);

public:
    /// Minimises to the task bar, or into the tray when the settings say so.
    void minimizeWindow();
    /// To be called after initialize() and before the first show. Leaves the opacity in the settings, in
    /// range.
    void restoreWindowSettings();
    /// Closes without the request for support: the system ends the program. False when a drop is in hand: the
    /// window closes by itself then, when it is done.
    bool closeQuietly();

    /// Called when the window has been closed: with its icon in the tray it may have been hidden before.
    std::function<void()> closed;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void createExplorer();
    void createHints();
    void createUndo();
    void createWaysIn();
    void createRules();
    void watchRules();
    void createMappers();
    void createLogo();
    void createTrayIcon();
    /// False while there is no system tray to show the icon in.
    [[nodiscard]] bool ensureTrayIcon();
    void retranslateExplorer();
    void adjustToTexts();
    void openLogFolder();
    void moveLogLinesToTable();
    void checkForNewVersion();
    void editSettings();

    void retranslateTrayMenu();
    void raiseDialogs();
    void restoreWindowGeometry();
    void saveWindowSettings();
    void requestSupport();
    void closeFromAnyState();

    void fillRuleComboBox();
    void refreshRuleTree();

    [[nodiscard]] QStringList collectFiles(const QString &folder, std::unique_ptr<ProgressDialog> &dialog);
    void addRow(const QString &path);
    void moveFile(int from, int to);

    [[nodiscard]] QString newName(const QString &name, int row) const;
    /// False when it was cancelled.
    [[nodiscard]] bool renameAll(RenameRun &run, RunProgress &progress, Failures &failures);
    void renameRow(RenameRun &run, int row, Failures &failures);

    std::unique_ptr<Ui::MainWindow> ui;
    FilePaths filePaths;
    std::unique_ptr<Fates> fates;
    RunHistory *runHistory = nullptr;
    std::unique_ptr<TakingBack> takingBack;
    std::unique_ptr<Finishing> finishing;
    AllOrNothing *allOrNothing = nullptr;
    std::unique_ptr<PlannedRenaming> plannedRenaming;
    std::unique_ptr<TaskbarList> taskbarList;
    QMap<int, Rule *> ruleTypes; ///< by page of stackedWidgetRules; owned
    QList<RuleData *> ruleList;  ///< in the order of application; owned; changed by activeRules alone
    std::unique_ptr<ActiveRules> activeRules;
    RuleEdit *ruleEdit = nullptr;
    RuleSetMenu *ruleSets = nullptr;
    QTimer *logTimer = nullptr;
    /// Null until there was a system tray.
    QSystemTrayIcon *trayIcon = nullptr;
    /// Runs while the window is in the tray; belongs to its icon.
    QTimer *trayWatch = nullptr;
    /// As saveGeometry() tells it; empty while the window is not in the tray.
    QByteArray placeBeforeTray;
    QDockWidget *dockExplorer = nullptr;
    QTreeView *treeExplorer = nullptr;
    Explorer *explorer = nullptr;
    QSignalMapper *commandMapper = nullptr; ///< to onClicked()
    QPushButton *buttonLogo = nullptr;
    QAction *actionRestore = nullptr; ///< of the tray's menu
    QAction *actionQuit = nullptr;    ///< of the tray's menu
    bool closesQuietly = false;
    bool closesAfterDrop = false;
};
