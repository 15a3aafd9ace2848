// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "dialogs/dialogsettings.h"

#include "core/datapaths.h"
#include "core/localizer.h"
#include "core/maker.h"
#include "core/settingsstore.h"
#include "desktop/messagebox.h"
#include "desktop/shell.h"
#include "dialogs/faderwidget.h"
#include "platform/adminrights.h"
#include "platform/autostart.h"
#include "ui_dialogsettings.h"
#include "update/versioncheck.h"

#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QSignalMapper>
#include <QStyle>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

enum InfoButton { Website, Feedback, ApplicationFolder, DataFolder };

QString infoTarget(int id)
{
    switch (id) {
    case Website:
        return Maker::homeUrl();
    case Feedback:
        return Maker::contactUrl();
    case ApplicationFolder:
        return QCoreApplication::applicationDirPath();
    case DataFolder:
        return dataDirectory();
    default:
        return {};
    }
}

} // namespace

DialogSettings::DialogSettings(QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , ui(std::make_unique<Ui::DialogSettings>())
{
    ui->setupUi(this);
    ui->listWidget->setCurrentRow(0);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    Localizer::instance()->fillLanguageTree(ui->listLocale);
    load();
    ui->checkBoxEnableAutoStart->setChecked(isAutoStartEnabled());
    // Deliberate: the shield is fetched and shown nowhere.
    if (!isUserAdministrator())
        static_cast<void>(style()->standardIcon(QStyle::SP_VistaShield, nullptr, this).pixmap(24, 24));
    connectWidgets();
    mapInfoButtons();
    ui->labelInfoVersion->setText(u"<b style='color:#888;font-size:10pt'>%1</b>"_s.arg(
        QCoreApplication::applicationVersion().toHtmlEscaped()));
    resize(minimumSizeHint());
}

DialogSettings::~DialogSettings() = default;

void DialogSettings::connectWidgets()
{
    connect(ui->listLocale, &QTreeWidget::itemSelectionChanged, this, &DialogSettings::retranslate);
    connect(ui->checkBoxEnableAutoStart, &QCheckBox::clicked, this, &DialogSettings::checkBoxEnableAutoStart);
    connect(ui->stackedWidget, &QStackedWidget::currentChanged, this, &DialogSettings::fadeInWidget);
}

void DialogSettings::mapInfoButtons()
{
    auto *mapper = new QSignalMapper(this);
    const auto map = [mapper](QPushButton *button, InfoButton id) {
        mapper->setMapping(button, id);
        connect(button, &QPushButton::clicked, mapper, qOverload<>(&QSignalMapper::map));
    };
    map(ui->buttonInfoWebsite, Website);
    map(ui->buttonInfoFeedback, Feedback);
    map(ui->buttonInfoAppDir, ApplicationFolder);
    map(ui->buttonInfoAppDataDir, DataFolder);
    connect(mapper, &QSignalMapper::mappedInt, this, &DialogSettings::onInfoButtonClicked);
}

void DialogSettings::save() const
{
    SettingsStore *store = SettingsStore::instance();
    store->setValue(SettingKey::MiscMinimizeToTrayIcon, ui->checkBoxMinimizeToTrayicon->isChecked());
    store->setValue(SettingKey::MiscDisableSplashScreen, ui->checkBoxDisableSplash->isChecked());
    store->setValue(SettingKey::MiscMinimizeOnStart, ui->checkBoxMinimizeOnStart->isChecked());
    store->setValue(SettingKey::WindowLayoutRestore, ui->checkBoxRestoreLayout->isChecked());
    store->setValue(SettingKey::WindowGeometryRestore, ui->checkBoxRestoreGeometry->isChecked());
    store->setValue(SettingKey::VersionCheckAuto, ui->checkBoxFinal->isChecked());
}

void DialogSettings::load()
{
    const SettingsStore *store = SettingsStore::instance();
    const auto set = [store](QCheckBox *box, SettingKey key, bool defaultValue) {
        box->setChecked(store->value(key, defaultValue).toBool());
    };
    set(ui->checkBoxMinimizeToTrayicon, SettingKey::MiscMinimizeToTrayIcon, false);
    set(ui->checkBoxDisableSplash, SettingKey::MiscDisableSplashScreen, false);
    set(ui->checkBoxFinal, SettingKey::VersionCheckAuto, true);
    // Deliberate: these two are shown as switched on where the window itself takes them as switched off.
    set(ui->checkBoxRestoreLayout, SettingKey::WindowLayoutRestore, true);
    set(ui->checkBoxRestoreGeometry, SettingKey::WindowGeometryRestore, true);
    set(ui->checkBoxMinimizeOnStart, SettingKey::MiscMinimizeOnStart, false);
}

void DialogSettings::onInfoButtonClicked(int id)
{
    const QString target = infoTarget(id);
    if (target.isEmpty())
        return;
    if (target.startsWith("http"_L1))
        QDesktopServices::openUrl(QUrl(target));
    else
        openWithShell(QDir(target).canonicalPath());
}

void DialogSettings::retranslate()
{
    if (const QTreeWidgetItem *item = ui->listLocale->currentItem())
        Localizer::instance()->setLanguage(item->text(0));
}

void DialogSettings::on_pushButtonUpdate_clicked()
{
    auto *check = new VersionCheck(parent()); // deletes itself, with the answer
    // The next button would have the focus, and a second press.
    setFocus();
    ui->pushButtonUpdate->setEnabled(false);
    connect(check, &QObject::destroyed, this, [this] {
        ui->pushButtonUpdate->setEnabled(true);
        if (focusWidget() == this)
            ui->pushButtonUpdate->setFocus();
    });
    check->check(true);
}

void DialogSettings::on_pushButtonDonate_clicked()
{
    QDesktopServices::openUrl(QUrl(Maker::donateUrl()));
}

void DialogSettings::checkBoxEnableAutoStart()
{
    // Deliberate: the entry itself decides what a click does, not the state of the check box.
    const bool isDone = setAutoStart(!isAutoStartEnabled());
    const QPointer<DialogSettings> guard(this);
    showValidationBox(isDone);
    if (guard)
        ui->checkBoxEnableAutoStart->setChecked(isAutoStartEnabled());
}

void DialogSettings::showValidationBox(bool isOkay)
{
    QMessageBox *box = createMessageBox(this, isOkay ? QMessageBox::Information : QMessageBox::Warning);
    box->setText(isOkay ? tr("The command completed successfully.")
                        : tr("The command failed to execute.") + u'\n' +
                              tr("Make sure you have administrator rights."));
    addCloseButton(box, tr("Close"));
    execMessageBox(box);
}

void DialogSettings::fadeInWidget(int index)
{
    FaderWidget::fadeIn(fader, ui->stackedWidget->widget(index));
}

void DialogSettings::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        event->accept();
        return;
    }
    QDialog::changeEvent(event);
}
