// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/mainwindow.h"

#include "core/settingsstore.h"
#include "ui_mainwindow.h"

#include <QCloseEvent>

void MainWindow::createTrayIcon() {}

void MainWindow::onTrayIconActivated(QSystemTrayIcon::ActivationReason /*reason*/) {}

void MainWindow::onRestoreWindow() {}

void MainWindow::minimizeWindow()
{
    showMinimized();
}

void MainWindow::restoreWindowSettings()
{
    const SettingsStore *settings = SettingsStore::instance();
    ui->checkBoxDebug->setChecked(settings->value(SettingKey::LogIncludeDebugInfo, false).toBool());
    ui->checkBoxSaveLog->setChecked(settings->value(SettingKey::LogSave, false).toBool());
}

void MainWindow::saveWindowSettings()
{
    SettingsStore *settings = SettingsStore::instance();
    settings->setValue(SettingKey::LogIncludeDebugInfo, ui->checkBoxDebug->isChecked());
    settings->setValue(SettingKey::LogSave, ui->checkBoxSaveLog->isChecked());
    settings->save();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->ignore();
    qDebug("close event call");
    saveWindowSettings();
    event->accept();
}

void MainWindow::contextMenuEvent(QContextMenuEvent *event)
{
    QMainWindow::contextMenuEvent(event);
}
