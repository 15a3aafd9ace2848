// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT
//
// windowpictures FOLDER [forecast | rules]: starts the program as its main() does, shows one window after the
// other, and saves their pictures in the folder, with one picture of what the desktop's own colours look
// like. With "forecast" only what the window says of rows that are not renamed, with "rules" a chain of rules
// in somebody's hands; texts that are cut off end either with a message.

#include "app/application.h"
#include "dialogs/dialognotice.h"
#include "dialogs/dialogsettings.h"
#include "dialogs/dialogstart.h"
#include "mainwindow/commandids.h"
#include "mainwindow/mainwindow.h"
#include "mainwindow/progressdialog.h"
#include "rules/rulereplace.h"
#include "support/httpserver.h"
#include "support/temptree.h"
#include "support/toplevel.h"
#include "update/versioncheck.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDateTime>
#include <QDir>
#include <QDockWidget>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTableWidget>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QToolButton>
#include <QToolTip>
#include <QTreeView>
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QString folder;

/// Not by Qt's messages, which go to the program's log.
[[noreturn]] void fail(const QString &what)
{
    std::fputs(qPrintable(what + u'\n'), stderr);
    std::_Exit(1);
}

void save(QWidget *widget, const QString &name)
{
    if (!widget || !widget->grab().save(folder + u'/' + name + ".png"_L1))
        fail("no picture of "_L1 + name);
}

/// Shows a window and saves its picture as it looks while it is the active one.
void show(QWidget *window, const QString &name)
{
    window->show();
    window->activateWindow();
    if (!QTest::qWaitFor([window] { return QApplication::activeWindow() == window; }, 20000))
        fail(name + " was not activated"_L1);
    // The pages of some dialogs fade in, in a child that covers them and ends by itself.
    const auto isFading = [window] {
        const auto children = window->findChildren<QWidget *>();
        return std::any_of(children.begin(), children.end(),
                           [](const QWidget *child) { return child->inherits("FaderWidget"); });
    };
    if (!QTest::qWaitFor([&isFading] { return !isFading(); }, 20000))
        fail(name + " does not end fading in"_L1);
    // Texts, and the room that they and the scroll bars take, come one event after the other.
    QImage last;
    const auto isAtRest = [window, &last] {
        const QImage before = std::exchange(last, window->grab().toImage());
        // A window that needs more room gets it when the window manager answers.
        return before == last && window->size() == window->size().expandedTo(window->minimumSizeHint());
    };
    if (!QTest::qWaitFor(isAtRest, 20000))
        fail(name + " does not come to rest"_L1);
    save(window, name);
}

template <typename Widget>
Widget *child(const QObject *window, const char *name)
{
    auto *found = window->findChild<Widget *>(QLatin1StringView(name));
    if (!found)
        fail("no child "_L1 + QLatin1StringView(name));
    return found;
}

void expectWholeText(const QWidget *widget)
{
    const QRect inWindow(widget->mapTo(widget->window(), QPoint(0, 0)), widget->size());
    if (widget->width() < widget->sizeHint().width() || !widget->window()->rect().contains(inWindow))
        fail(u"cut off: "_s + widget->property("text").toString());
}

/// Calls open, waits for what it opens, saves its picture and closes it.
void showOpened(const QString &name, const std::function<void()> &open, QWidget *(*opened)(),
                const std::function<void(QWidget *)> &look = {})
{
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        QWidget *window = opened();
        if (!window || !window->isVisible())
            return;
        timer.stop();
        save(window, name);
        if (look)
            look(window);
        window->close();
    });
    timer.start(5);
    open();
    if (!QTest::qWaitFor([&timer] { return !timer.isActive(); }, 20000))
        fail(name + " did not open"_L1);
}

void showMenu(const QString &name, const std::function<void()> &open)
{
    showOpened(name, open, &QApplication::activePopupWidget);
}

void showBox(const QString &name, const std::function<void()> &open,
             const std::function<void(QWidget *)> &look = {})
{
    const auto opened = []() -> QWidget * {
        return qobject_cast<QMessageBox *>(QApplication::activeWindow());
    };
    showOpened(name, open, opened, look);
}

void showDetails(const QMessageBox *box)
{
    const auto buttons = box->findChildren<QPushButton *>();
    std::for_each(buttons.begin(), buttons.end(), &expectWholeText);
    const auto details = std::find_if(buttons.begin(), buttons.end(), [box](QPushButton *button) {
        return box->buttonRole(button) == QMessageBox::ActionRole;
    });
    if (details == buttons.end())
        fail(u"no details: "_s + box->text());
    const auto opened = []() -> QWidget * {
        QWidget *dialog = QApplication::activeWindow();
        return dialog && dialog->objectName() == "dialogFailures"_L1 ? dialog : nullptr;
    };
    showOpened(
        u"details"_s, [details] { (*details)->click(); }, opened,
        [](QWidget *dialog) {
            const auto inside = dialog->findChildren<QPushButton *>();
            std::for_each(inside.begin(), inside.end(), &expectWholeText);
        });
}

/// Widgets of every sort, those too that the program does not have: what Qt's own dialogs show, and what the
/// program may have one day.
std::unique_ptr<QWidget> widgetsOfAllSorts()
{
    auto window = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(window.get());
    auto *ticked = new QCheckBox(u"Check box"_s);
    ticked->setChecked(true);
    auto *bar = new QProgressBar;
    bar->setValue(40);
    auto *edit = new QLineEdit;
    edit->setPlaceholderText(u"Placeholder"_s);
    auto *combo = new QComboBox;
    combo->addItems({u"Combo box"_s, u"Second"_s});
    auto *text = new QTextBrowser;
    text->setHtml(u"Text with a <a href='x'>link</a>"_s);
    auto *tree = new QTreeWidget;
    tree->setAlternatingRowColors(true);
    for (int row = 0; row < 3; ++row)
        tree->addTopLevelItem(new QTreeWidgetItem({u"Row"_s}));
    tree->setCurrentItem(tree->topLevelItem(1));
    auto *tabs = new QTabWidget;
    tabs->addTab(tree, u"Tab"_s);
    tabs->addTab(new QWidget, u"Other"_s);
    for (QWidget *widget : std::initializer_list<QWidget *>{
             ticked, bar, edit, combo, text, tabs, new QLabel(u"Label"_s), new QPushButton(u"Button"_s),
             new QSpinBox, new QPlainTextEdit(u"Plain text"_s)})
        layout->addWidget(widget);
    return window;
}

void fillMainWindow(MainWindow *window, const TempTree &files)
{
    QMimeData data;
    QList<QUrl> urls;
    for (const QString &name : {u"one.txt"_s, u"two.txt"_s, u"three.txt"_s})
        urls.append(QUrl::fromLocalFile(files.addFile(name)));
    data.setUrls(urls);
    window->onFileListAdded(&data);
    child<QListWidget>(window, "listWidgetFiles")->setCurrentRow(1);
}

/// Leaves one line in the log, always the same: those that the program wrote have the time in them.
void tidyLog(MainWindow *window)
{
    window->onTimeout();
    auto *log = child<QTableWidget>(window, "tableWidgetLog");
    log->setRowCount(0);
    log->insertRow(0);
    log->setItem(0, 0, new QTableWidgetItem(u"12:00:00"_s));
    log->setItem(0, 1, new QTableWidgetItem(u"A line of the log"_s));
}

/// The same rows when all or none are renamed: nothing is.
void showPlanned(MainWindow *window)
{
    auto *entry = child<QAction>(window, "actionAllOrNothing");
    entry->trigger();
    showMenu(u"menu-runs"_s, [window] { child<QAbstractButton>(window, "buttonRuns")->click(); });
    tidyLog(window);
    show(window, u"planned"_s);
    showBox(u"report-refused"_s, [window] { window->on_buttonRename_clicked(); });
    entry->trigger();
}

/// What the window says of rows that are not renamed: one after another, one by a file, one that keeps its
/// name.
void showForecast(MainWindow *window, bool withPlanned)
{
    // The details show the folder's path, which must be the same each time.
    const QDir photos(QDir::homePath() + "/photos"_L1);
    const auto add = [&photos](const QString &name) {
        if (!photos.mkpath(u"."_s) || !writeFile(photos.filePath(name), {}))
            fail(u"no file to rename"_s);
    };
    for (const QString &name : {u"IMG_1 a.txt"_s, u"IMG_2 a.txt"_s, u"IMG_3 b.txt"_s, u"c.txt"_s})
        add(name);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(photos.path())});
    window->onFileListAdded(&data);
    add(u"b.txt"_s);
    auto *kinds = child<QComboBox>(window, "comboBoxRules");
    const int kind = kinds->currentIndex();
    auto *editor = window->findChild<RuleWidgetReplace *>();
    kinds->setCurrentIndex(
        kinds->findData(child<QStackedWidget>(window, "stackedWidgetRules")->indexOf(editor)));
    editor->lineEditReplaceWhat->setText(u"IMG_. "_s);
    editor->toolButtonRegExp->setChecked(true);
    window->on_buttonAddRule_clicked();
    auto *preview = child<QPushButton>(window, "buttonPreview");
    preview->click();
    const auto *label = child<QLabel>(window, "labelForecast");
    if (!QTest::qWaitFor([label] { return label->text().contains(u'4'); }, 20000))
        fail(u"the preview tells nothing"_s);
    tidyLog(window);
    show(window, u"preview"_s);
    expectWholeText(label);
    showBox(
        u"report-with-details"_s, [window] { window->on_buttonRename_clicked(); },
        [](QWidget *box) { showDetails(qobject_cast<QMessageBox *>(box)); });
    if (withPlanned)
        showPlanned(window);
    preview->setChecked(false);
    child<QAbstractButton>(window, "buttonFileListClear")->click();
    window->onClickedRuleList(ClearRules);
    editor->lineEditReplaceWhat->clear();
    editor->toolButtonRegExp->setChecked(false);
    kinds->setCurrentIndex(kind);
}

/// A chain of rules: one of them off, one edited, the menu of rule sets and the dialogs behind it.
void showRules(MainWindow *window)
{
    auto *sets = child<QToolButton>(window, "buttonRuleSets");
    const auto choose = [sets](const char *action) {
        emit sets->menu()->aboutToShow();
        child<QAction>(sets->menu(), action)->trigger();
    };
    emit sets->menu()->aboutToShow();
    child<QMenu>(sets->menu(), "menuRuleExamples")->actions().at(2)->trigger();
    auto *tree = child<QTreeWidget>(window, "treeWidgetRules");
    tree->topLevelItem(1)->setCheckState(0, Qt::Unchecked);
    tree->setCurrentItem(tree->topLevelItem(0));
    child<QListWidget>(window, "listWidgetFiles")->setCurrentRow(0);
    tidyLog(window);
    show(window, u"rules"_s);
    expectWholeText(sets);
    showMenu(u"menu-rule-sets"_s, [sets] { QTimer::singleShot(0, sets, &QToolButton::showMenu); });
    tree->setFocus();
    QTest::keyClick(tree, Qt::Key_F2);
    show(window, u"rules-edited"_s);
    for (const char *button : {"buttonAddRule", "buttonApplyRule", "buttonLeaveRule"})
        expectWholeText(child<QAbstractButton>(window, button));
    QTest::keyClick(tree, Qt::Key_Escape);
    const auto expectWholeButtons = [](QWidget *dialog) {
        const auto inside = dialog->findChildren<QAbstractButton *>();
        std::for_each(inside.begin(), inside.end(), &expectWholeText);
    };
    const auto dialog = []() -> QWidget * {
        return qobject_cast<QDialog *>(QApplication::activeWindow());
    };
    showOpened(
        u"rule-set-name"_s, [&] { choose("actionSaveRuleSetAs"); }, dialog, expectWholeButtons);
    showOpened(
        u"rule-sets"_s, [&] { choose("actionManageRuleSets"); }, dialog, expectWholeButtons);
    const auto load = [sets] {
        emit sets->menu()->aboutToShow();
        child<QMenu>(sets->menu(), "menuRuleExamples")->actions().at(0)->trigger();
    };
    showBox(u"rules-unsaved"_s, load, expectWholeButtons);
}

/// What stands beside the home folder comes and goes.
void closeExplorerTree(const MainWindow *window)
{
    auto *tree = child<QTreeView>(window, "treeExplorer");
    const auto isOpen = [tree] {
        return tree->isExpanded(tree->model()->index(0, 0));
    };
    if (!QTest::qWaitFor(isOpen, 20000))
        fail(u"the explorer does not open the home folder"_s);
    tree->collapse(tree->model()->index(0, 0));
}

void showMainWindow(MainWindow *window)
{
    tidyLog(window);
    auto *kinds = child<QComboBox>(window, "comboBoxRules");
    // It comes with the first turn of the event loop after the rows.
    const auto *example = child<QLabel>(window, "labelRuleExample");
    if (!QTest::qWaitFor([example] { return !example->text().isEmpty(); }, 20000))
        fail(u"no example of a rule's work"_s);
    for (int kind = 0; kind < kinds->count(); ++kind) {
        kinds->setCurrentIndex(kind);
        window->on_buttonAddRule_clicked();
        show(window, u"main-window-%1"_s.arg(kinds->currentData().toInt()));
    }
    window->setEnabled(false);
    save(window, u"main-window-disabled"_s);
    window->setEnabled(true);
    const auto docks = window->findChildren<QDockWidget *>();
    for (QDockWidget *dock : docks)
        save(dock, u"dock-"_s + dock->objectName());
    showMenu(u"menu-main-window"_s, [window] {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, window->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(window, &event);
    });
    showMenu(u"menu-combo-box"_s, [kinds] { kinds->showPopup(); });
    auto *edit = child<QLineEdit>(window, "lineEditFileFilter");
    edit->setText(u"*.txt"_s);
    showMenu(u"menu-line-edit"_s, [edit] {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, edit->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(edit, &event);
    });
    edit->clear();
}

void showFileDialog(QWidget *parent)
{
    // The dialog shows the folder's path and the file's time.
    const QString shown = QDir::homePath() + "/shown"_L1;
    QFile file(shown + "/file.txt"_L1);
    if (!QDir().mkpath(shown) || !file.open(QIODevice::WriteOnly) ||
        !file.setFileTime(QDateTime({2000, 1, 1}, {12, 0}), QFileDevice::FileModificationTime))
        fail(u"no file to show"_s);
    file.close();
    QFileDialog dialog(parent, u"Open"_s, shown);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    const auto *view = child<QTreeView>(&dialog, "treeView");
    if (!QTest::qWaitFor([view] { return view->model()->rowCount(view->rootIndex()) == 1; }, 20000))
        fail(u"the file dialog is empty"_s);
    show(&dialog, u"file-dialog"_s);
}

void showDialogs(MainWindow *window)
{
    {
        DialogSettings settings(window);
        auto *list = child<QListWidget>(&settings, "listWidget");
        for (int page = 0; page < list->count(); ++page) {
            list->setCurrentRow(page);
            show(&settings, u"settings-%1"_s.arg(page));
        }
        // Now in the groups of an inactive window.
        save(window, u"main-window-inactive"_s);
    }
    {
        DialogStart start(window, Qt::CustomizeWindowHint);
        auto *pages = child<QStackedWidget>(&start, "stackedWidget");
        for (int page = 0; page < pages->count(); ++page) {
            pages->setCurrentIndex(page);
            show(&start, u"first-start-%1"_s.arg(page));
        }
    }
    {
        DialogNotice notice(window, QPixmap(u":/img/contribute.png"_s));
        notice.labelAdvice()->setText(u"Some advice with a <a href='x'>link</a>"_s);
        show(&notice, u"notice"_s);
    }
    for (const int page : {ProgressDialog::ProgressPage, ProgressDialog::TextPage}) {
        ProgressDialog wait(window);
        wait.stackedWidget->setCurrentIndex(page);
        wait.labelText->setText(u"Some text"_s);
        wait.showValue(40);
        show(&wait, u"wait-%1"_s.arg(page));
    }
    showFileDialog(window);
    const auto widgets = widgetsOfAllSorts();
    show(widgets.get(), u"widgets"_s);
    widgets->setEnabled(false);
    save(widgets.get(), u"widgets-disabled"_s);
}

void showBoxes(MainWindow *window)
{
    showBox(u"report"_s, [window] { window->on_buttonRename_clicked(); });
    HttpServer server;
    VersionCheck::service() = {server.url(), std::chrono::minutes(1)};
    const auto check = [window] {
        (new VersionCheck(window))->check(true);
    };
    server.answerBody("outdated=1\nlatest=9.9.9.9\ndownload=http://127.0.0.1/\nchanges=http://127.0.0.1/\n");
    showBox(u"version-new"_s, check);
    server.answerBody("outdated=0\nlatest=1.2.0.5\n");
    showBox(u"version-latest"_s, check);
    server.answerBody("");
    showBox(u"version-failed"_s, check);
}

void showToolTip(QWidget *window)
{
    QToolTip::showText(window->mapToGlobal(QPoint(100, 100)), u"A tool tip"_s, window);
    const auto tip = [] {
        const auto widgets = QApplication::topLevelWidgets();
        const auto found = std::find_if(widgets.begin(), widgets.end(), [](const QWidget *widget) {
            return widget->inherits("QTipLabel") && widget->isVisible();
        });
        return found == widgets.end() ? nullptr : *found;
    };
    if (!QTest::qWaitFor([&tip] { return tip() != nullptr; }, 20000))
        fail(u"no tool tip"_s);
    save(tip(), u"tool-tip"_s);
    QToolTip::hideText();
}

} // namespace

int main(int argc, char **argv)
{
    const QLatin1StringView only(argc == 3 ? argv[2] : "");
    if (argc != 2 && only != "forecast"_L1 && only != "rules"_L1)
        return 2;
    folder = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
    Application application(argc, argv);
    QApplication::setCursorFlashTime(0);
    // What the desktop's theme makes of widgets: without it the pictures would prove nothing.
    widgetsOfAllSorts()->grab().save(folder + "/desktop.png"_L1);
    application.init();
    const TempTree files;
    MainWindow *window = topLevel<MainWindow>();
    closeExplorerTree(window);
    if (only != "rules"_L1)
        showForecast(window, only.isEmpty());
    if (only.isEmpty() || only == "rules"_L1)
        fillMainWindow(window, files);
    if (only == "rules"_L1)
        showRules(window);
    if (!only.isEmpty()) {
        window->closeQuietly();
        return 0;
    }
    showMainWindow(window);
    showDialogs(window);
    showBoxes(window);
    tidyLog(window);
    show(window, u"main-window-renamed"_s);
    showToolTip(window);
    window->closeQuietly();
    return 0;
}
