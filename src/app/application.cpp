// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "app/application.h"

#include "app/datadirectory.h"
#include "app/look.h"
#include "app/splash.h"
#include "core/applog.h"
#include "core/datapaths.h"
#include "core/localizer.h"
#include "core/maker.h"
#include "core/settingsstore.h"
#include "dialogs/dialogstart.h"
#include "mainwindow/mainwindow.h"
#include "platform/osversion.h"
#include "platform/termination.h"

#include <QDebug>
#include <QIcon>
#include <QLocale>
#include <QScreen>
#include <QStyleFactory>

using namespace Qt::StringLiterals;

namespace {

QIcon applicationIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addFile(u":/img/app/orvanto-%1.png"_s.arg(size));
    return icon;
}

void setWidgetStyle()
{
    const QString style = u"plastique"_s;
    const bool available = QStyleFactory::keys().contains(style, Qt::CaseInsensitive);
    QApplication::setStyle(available ? style : u"Fusion"_s);
}

} // namespace

Application::Application(int &argumentCount, char **arguments)
    : QApplication(argumentCount, arguments)
{
    setApplicationName(u"Orvanto"_s);
    setApplicationVersion(Maker::applicationVersion());
    setOrganizationName(u"Kavrondel"_s);
    setOrganizationDomain(Maker::organizationDomain());
    setWindowIcon(applicationIcon());
}

Application::~Application()
{
    if (initialized)
        SettingsStore::instance()->save();
    delete mainWindow;
    Localizer::destroy();
    // From here on a message would find neither log nor settings.
    qInstallMessageHandler(nullptr);
    AppLog::destroy();
    SettingsStore::destroy();
}

void Application::init()
{
    setValidationPatterns();
    setupDataDirectory();
    SettingsStore *settings = SettingsStore::instance();
    settings->setFilePath(dataDirectory() + "/config/global.xml"_L1);
    settings->load();
    AppLog::instance()->setSaveToFile(settings->value(SettingKey::LogSave, false).toBool());
    installLogMessageHandler();
    logStart();
    setWidgetStyle();
    onTerminationRequest(this, [this] { terminate(); });
    loadLanguages();
    addLibraryPath(applicationDirPath() + "/plugins"_L1);
    applyLook();
    createMainWindow();
    welcome();
    mainWindow->initialize();
    mainWindow->restoreWindowSettings();
    if (!ended)
        presentMainWindow();
    initialized = true;
    startMarker->remove();
}

int Application::run()
{
    return ended ? 0 : exec();
}

void Application::setValidationPatterns()
{
    // Deliberate: parentheses and bars stand inside the character classes and are excluded, too.
    setProperty("valid_dirpath", uR"([^(*|?|<|>)]*)"_s);
    setProperty("valid_xmlentry", uR"([^('|<|>)]*)"_s);
    setProperty("valid_url", uR"([^(*|?|"|<|>|@)]*)"_s);
    setProperty("valid_filename", uR"([^(\|\\|/|*|?|"|'|<|>|:)]*)"_s);
}

void Application::logStart() const
{
    qDebug() << applicationName() << "started";
    qDebug() << "App version" << applicationVersion();
    qDebug() << "OS version" << osVersionText();
    qDebug() << "running in"
             << "64-bit"
             << "mode";
}

void Application::loadLanguages()
{
    startMarker.emplace(dataDirectory() + "/config/starting"_L1);
    // Should it be the translation that crashes the program, nobody could choose another in a window that
    // never comes.
    const bool inEnglish = startMarker->lastStartCrashed();
    if (inEnglish)
        AppLog::instance()->append(
            u"The last start crashed before the window was shown: starting in English"_s);
    Localizer::instance()->discover(inEnglish ? Localizer::Saved::Ignore : Localizer::Saved::Install);
    qDebug("languages loaded");
}

void Application::createMainWindow()
{
    const SettingsStore *settings = SettingsStore::instance();
    Qt::WindowFlags flags = Qt::WindowCloseButtonHint | Qt::CustomizeWindowHint |
                            Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint;
    if (settings->value(SettingKey::WindowStayOnTop, false).toBool())
        flags |= Qt::WindowStaysOnTopHint;
    mainWindow = new MainWindow(flags);
    mainWindow->setWindowTitle(applicationName());
    // With the window in the tray, the last visible window may be a box: closing that ends nothing.
    setQuitOnLastWindowClosed(false);
    mainWindow->closed = [this] {
        ended = true;
        exit(0);
    };
}

void Application::terminate()
{
    // During the start there is nothing to close: the first-start dialog ends with its event loop.
    ended = true;
    if (!initialized || mainWindow->closeQuietly())
        exit(0);
}

void Application::welcome()
{
    SettingsStore *settings = SettingsStore::instance();
    if (ended || !settings->value(SettingKey::MiscIsFirstStart, true).toBool())
        return;
    // The dialog installs it.
    if (!startMarker->lastStartCrashed())
        settings->setValue(SettingKey::MiscLanguage, QLocale::system().name());
    if (screens().size() == 1)
        mainWindow->move(primaryScreen()->geometry().center() - mainWindow->rect().center());
    DialogStart(mainWindow, Qt::CustomizeWindowHint | Qt::WindowStaysOnTopHint).exec();
}

void Application::presentMainWindow()
{
    const SettingsStore *settings = SettingsStore::instance();
    mainWindow->setWindowOpacity(0);
    mainWindow->show();
    if (!settings->value(SettingKey::MiscDisableSplashScreen, false).toBool())
        showSplash("Version: "_L1 + applicationVersion() + u'\n' + "by Kavrondel"_L1,
                   QPixmap(u":/img/custom/splash.png"_s));
    qDebug("initialization complete");
    if (settings->value(SettingKey::MiscMinimizeOnStart, false).toBool()) {
        mainWindow->minimizeWindow();
    } else {
        mainWindow->activateWindow();
        mainWindow->raise();
    }
    mainWindow->setWindowOpacity(settings->value(SettingKey::WindowOpacity, 1).toDouble());
}
