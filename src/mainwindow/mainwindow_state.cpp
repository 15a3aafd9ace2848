// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/mainwindow.h"

#include "core/maker.h"
#include "core/settingsstore.h"
#include "dialogs/dialognotice.h"
#include "dialogs/dialogsettings.h"
#include "mainwindow/opendialogs.h"
#include "mainwindow/progressdialog.h"
#include "mainwindow/rulesetmenu.h"
#include "mainwindow/savedstate.h"
#include "ui_mainwindow.h"

#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const QString trayIconHint = u"ShowTrayiconHint"_s;
const QString supportUsHint = u"SupportUsHint"_s;

constexpr double smallestOpacity = 0.25;
constexpr int opacitySteps = 4;         // 25 % to 100 %
constexpr int balloonTime = 60000;      // milliseconds
constexpr int trayWatchInterval = 1000; // milliseconds
constexpr int screenEdge = 64;          // pixels of the window that must stay on the desktop

double roundedToTwoDecimals(double value)
{
    return std::floor(value * 100 + 0.5) / 100.0;
}

/// The entry of the menu, 0 to 3, that an opacity checks: values in between fall to the one below.
int opacityEntry(double opacity)
{
    const int percent = static_cast<int>(std::floor(opacity * 100 + 0.5));
    // Deliberate: an opacity of 0 gives -1, which as an unsigned number is beyond the last entry.
    const auto entry = static_cast<unsigned>(static_cast<int>(percent * opacitySteps / 100.0 - 1));
    return static_cast<int>(std::min(entry, opacitySteps - 1U));
}

QByteArray storedBytes(SettingKey key)
{
    return QByteArray::fromHex(SettingsStore::instance()->value(key, {}).toString().toLatin1());
}

QString supportRequest()
{
    const QString url = Maker::contributeUrl();
    // Deliberate: the link's bold tag is closed by the end tag of a span.
    return "<span style='color:#333'>"_L1 +
           MainWindow::tr("Please support us if you like this software and want to keep our service alive.") +
           "</span><br/><a href='"_L1 + url + "'><b>"_L1 + Maker::withoutScheme(url) +
           "</span></a><br/><span style='color:#333'>"_L1 + MainWindow::tr("Thank you!") + "</span>"_L1;
}

} // namespace

void MainWindow::createTrayIcon()
{
    trayIcon = new QSystemTrayIcon(QIcon(QPixmap(u":/img/custom/tray_icon.png"_s)), this);
    trayIcon->setToolTip(QCoreApplication::applicationName());
    auto *menu = new QMenu(this);
    menu->setWindowFlag(Qt::WindowStaysOnTopHint);
    actionRestore = menu->addAction(QIcon(u":/img/refresh.png"_s), {}, this, &MainWindow::onRestoreWindow);
    actionQuit = menu->addAction(QIcon(u":/img/cancel.png"_s), {}, this, &MainWindow::closeFromAnyState);
    retranslateTrayMenu();
    trayIcon->setContextMenu(menu);
    connect(trayIcon, &QSystemTrayIcon::activated, this, &MainWindow::onTrayIconActivated);

    trayWatch = new QTimer(trayIcon);
    trayWatch->setInterval(trayWatchInterval);
    trayWatch->callOnTimeout(this, [this] {
        if (QSystemTrayIcon::isSystemTrayAvailable())
            return;
        // Nobody could get at the window any more.
        trayIcon->hide();
        onRestoreWindow();
    });
}

bool MainWindow::ensureTrayIcon()
{
    const bool isThere = QSystemTrayIcon::isSystemTrayAvailable();
    // At the start of a session the program may come before the tray.
    if (isThere && !trayIcon)
        createTrayIcon();
    return isThere;
}

void MainWindow::retranslateTrayMenu()
{
    if (!trayIcon)
        return;
    actionRestore->setText(QCoreApplication::translate("TrayIcon", "&Restore"));
    actionQuit->setText(QCoreApplication::translate("TrayIcon", "&Quit"));
}

void MainWindow::onTrayIconActivated(QSystemTrayIcon::ActivationReason reason)
{
    if (reason != QSystemTrayIcon::Trigger)
        return;
    trayIcon->hide();
    // After the tray's own handling of the click.
    QTimer::singleShot(0, this, &MainWindow::onRestoreWindow);
}

void MainWindow::onRestoreWindow()
{
    // Deliberate: the same call as on minimising; it makes the native window anew. The icon stays in the tray
    // when the menu restores the window.
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint);
    if (trayWatch)
        trayWatch->stop();
    placeBeforeTray.clear();
    if (isMaximized())
        show();
    else
        showNormal();
    activateWindow();
    raiseDialogs();
}

void MainWindow::raiseDialogs()
{
    const auto dialogs = openDialogs(this);
    for (QDialog *dialog : dialogs) {
        dialog->setWindowState(dialog->windowState() & ~Qt::WindowMinimized);
        dialog->raise();
        dialog->activateWindow();
    }
}

void MainWindow::minimizeWindow()
{
    SettingsStore *settings = SettingsStore::instance();
    if (!settings->value(SettingKey::MiscMinimizeToTrayIcon, false).toBool() || !ensureTrayIcon()) {
        showMinimized();
        return;
    }
    // The native window that is made anew stands where the frame of the old one did.
    if (placeBeforeTray.isEmpty())
        placeBeforeTray = saveGeometry();
    const auto dialogs = openDialogs(this);
    for (QDialog *dialog : dialogs)
        dialog->setWindowState(dialog->windowState() | Qt::WindowMinimized);
    // Changing the flags hides the window.
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint);
    if (QWindow *window = windowHandle()) {
        window->destroy();
        // Else the window that is made anew would be minimised at once.
        window->setWindowStates(window->windowStates() & ~Qt::WindowMinimized);
        setWindowState(windowState() & ~Qt::WindowMinimized);
    }
    trayIcon->show();
    trayWatch->start();
    if (!settings->valueByName(trayIconHint, true).toBool())
        return;
    trayIcon->showMessage(QCoreApplication::applicationName(),
                          tr("Application has been minimized.") + u'\n' + tr("Click the tray icon to show."),
                          QSystemTrayIcon::Information, balloonTime);
    settings->setValueByName(trayIconHint, false);
}

void MainWindow::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu menu(this);
    for (int entry = 0; entry < opacitySteps; ++entry) {
        QAction *action = menu.addAction(tr("Opacity") + u" %1%"_s.arg((entry + 1) * 25));
        action->setData(entry);
        action->setCheckable(true);
        action->setChecked(entry == opacityEntry(windowOpacity()));
    }
    menu.addSeparator();
    QAction *stayOnTop = menu.addAction(tr("Stay on Top"));
    stayOnTop->setData(opacitySteps);
    stayOnTop->setCheckable(true);
    stayOnTop->setChecked(windowFlags().testFlag(Qt::WindowStaysOnTopHint));

    if (const QAction *chosen = menu.exec(event->globalPos())) {
        const int entry = chosen->data().toInt();
        if (entry >= opacitySteps) {
            setWindowFlags(windowFlags() ^ Qt::WindowStaysOnTopHint);
            show();
        } else {
            setWindowOpacity((entry + 1) * smallestOpacity);
        }
    }
    event->accept();
}

void MainWindow::restoreWindowSettings()
{
    DialogSettings(this).load();
    SettingsStore *settings = SettingsStore::instance();
    ui->checkBoxDebug->setChecked(settings->value(SettingKey::LogIncludeDebugInfo, false).toBool());
    ui->checkBoxSaveLog->setChecked(settings->value(SettingKey::LogSave, false).toBool());

    bool isNumber = false;
    double opacity = settings->value(SettingKey::WindowOpacity, 1.0).toDouble(&isNumber);
    // Written so that "not a number" is out of range, too.
    if (!isNumber || !(opacity >= smallestOpacity && opacity <= 1.0))
        opacity = 1.0;
    settings->setValue(SettingKey::WindowOpacity, roundedToTwoDecimals(opacity));

    const QByteArray layout = storedBytes(SettingKey::WindowLayoutData);
    if (settings->value(SettingKey::WindowLayoutRestore, false).toBool() && SavedState::isSafeLayout(layout))
        restoreState(layout, 0);
    if (settings->value(SettingKey::WindowGeometryRestore, false).toBool())
        restoreWindowGeometry();
    if (settings->value(SettingKey::MiscIsFirstStart, true).toBool())
        ui->dockWidgetLog->close();
}

void MainWindow::restoreWindowGeometry()
{
    const QByteArray geometry = storedBytes(SettingKey::WindowGeometryData);
    if (SavedState::isSafeGeometry(geometry))
        restoreGeometry(geometry);
    const QSize desktop = QGuiApplication::primaryScreen()->virtualGeometry().size();
    if (x() < 0 || y() < 0 || x() > desktop.width() - screenEdge || y() > desktop.height() - screenEdge)
        move(screenEdge, screenEdge);
}

void MainWindow::saveWindowSettings()
{
    DialogSettings(this).save();
    SettingsStore *settings = SettingsStore::instance();
    settings->setValue(SettingKey::LogIncludeDebugInfo, ui->checkBoxDebug->isChecked());
    settings->setValue(SettingKey::LogSave, ui->checkBoxSaveLog->isChecked());
    settings->setValue(SettingKey::WindowStayOnTop, windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    settings->setValue(SettingKey::WindowOpacity, roundedToTwoDecimals(windowOpacity()));
    if (settings->value(SettingKey::WindowGeometryRestore, false).toBool()) {
        const QByteArray place = placeBeforeTray.isEmpty() ? saveGeometry() : placeBeforeTray;
        settings->setValue(SettingKey::WindowGeometryData, QString::fromLatin1(place.toHex()));
    }
    if (settings->value(SettingKey::WindowLayoutRestore, false).toBool())
        settings->setValue(SettingKey::WindowLayoutData, QString::fromLatin1(saveState(0).toHex()));
    settings->setValue(SettingKey::MiscIsFirstStart, false);
    settings->save();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->ignore();
    qDebug("close event call");
    // The tray's menu can close the window in the middle of a run or an adding: that ends as if cancelled.
    const auto dialogs = findChildren<ProgressDialog *>();
    for (ProgressDialog *dialog : dialogs)
        dialog->reject();
    // The adding runs within the drop, and Qt's drag and drop would go on with a native window that is gone.
    closesAfterDrop = ui->listWidgetFiles->isHandlingDrop();
    if (closesAfterDrop)
        return;
    // While it asks Qt closes nothing a second time.
    if (!closesQuietly)
        requestSupport();
    saveWindowSettings();
    ruleSets->keepLastUsed();
    event->accept();
    if (closed)
        closed();
}

void MainWindow::requestSupport()
{
    SettingsStore *settings = SettingsStore::instance();
    if (!settings->valueByName(supportUsHint, true).toBool())
        return;
    DialogNotice dialog(this, QPixmap(u":/img/contribute.png"_s));
    dialog.setWindowModality(Qt::WindowModal); // the icon in the tray stays alive
    dialog.labelAdvice()->setText(supportRequest());
    dialog.exec();
    if (dialog.checkBox()->isChecked())
        settings->setValueByName(supportUsHint, false);
}

bool MainWindow::closeQuietly()
{
    closesQuietly = true;
    closeFromAnyState();
    return !closesAfterDrop;
}

void MainWindow::closeFromAnyState()
{
    // Hidden in the tray the window has no native one, and Qt closes nothing then.
    winId();
    close();
}
