// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "dialogs/dialogstart.h"

#include "core/localizer.h"
#include "core/maker.h"
#include "core/settingsstore.h"
#include "dialogs/faderwidget.h"
#include "ui_dialogstart.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>

using namespace Qt::StringLiterals;

namespace {

QString link(const QString &url)
{
    return u"<a href='%1'>%2</a>"_s.arg(url, Maker::withoutScheme(url));
}

} // namespace

DialogStart::DialogStart(QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , ui(std::make_unique<Ui::DialogStart>())
{
    ui->setupUi(this);
    ui->stackedWidget->setCurrentIndex(0);
    setWelcomeText();
    connect(ui->listLocale, &QTreeWidget::itemSelectionChanged, this, &DialogStart::retranslate);
    connect(ui->buttonNext, &QPushButton::clicked, this, &DialogStart::buttonNextPressed);
    connect(ui->stackedWidget, &QStackedWidget::currentChanged, this, &DialogStart::fadeInWidget);
    Localizer::instance()->fillLanguageTree(ui->listLocale);
    ui->buttonNext->setFocus();
    show();
}

DialogStart::~DialogStart()
{
    SettingsStore::instance()->setValue(SettingKey::VersionCheckAuto, ui->checkBoxFinal->isChecked());
}

void DialogStart::setWelcomeText()
{
    ui->textBrowser->setHtml(
        "<span style='font-weight:bold;color:#333;font-size:14px'>"_L1 +
        tr("We would like to thank you for your confidence and hope you'll enjoy this software.") + "<p>"_L1 +
        tr("Discover more products from us:") + "<br/>"_L1 + link(Maker::productsUrl()) + "</p><p>"_L1 +
        tr("We are looking for native speaking translators.") + "<br/>"_L1 + tr("Please contact us at: ") +
        "<br/>"_L1 + link(Maker::contactUrl()) + "</p></span>"_L1);
}

void DialogStart::retranslate()
{
    const QTreeWidgetItem *item = ui->listLocale->currentItem();
    if (!item)
        return;
    Localizer::instance()->setLanguage(item->text(0));
    setWelcomeText();
}

void DialogStart::buttonNextPressed()
{
    if (ui->stackedWidget->currentIndex() == 0) {
        ui->stackedWidget->setCurrentIndex(1);
        return;
    }
    finished = true;
    close();
}

void DialogStart::fadeInWidget(int index)
{
    FaderWidget::fadeIn(fader, ui->stackedWidget->widget(index));
}

void DialogStart::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    dragPosition = event->globalPosition().toPoint() - frameGeometry().topLeft();
    event->accept();
}

void DialogStart::mouseMoveEvent(QMouseEvent *event)
{
    if (!event->buttons().testFlag(Qt::LeftButton))
        return;
    move(event->globalPosition().toPoint() - dragPosition);
    event->accept();
}

void DialogStart::keyPressEvent(QKeyEvent *event)
{
    // Deliberate: the base class sees no key at all, so none closes or rejects the dialog.
    if (event->key() == Qt::Key_Escape)
        event->ignore();
}

void DialogStart::closeEvent(QCloseEvent *event)
{
    if (finished)
        QDialog::closeEvent(event);
    else
        event->ignore();
}

void DialogStart::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    QDialog::changeEvent(event);
}
