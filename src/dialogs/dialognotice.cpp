// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "dialogs/dialognotice.h"

#include "ui_dialognotice.h"

#include <QDesktopServices>
#include <QEvent>
#include <QTimer>
#include <QUrl>

namespace {

constexpr int secondsShown = 15;

} // namespace

DialogNotice::DialogNotice(QWidget *parent, const QPixmap &pixmap)
    : QDialog(parent)
    , ui(std::make_unique<Ui::DialogNotice>())
    , timer(new QTimer(this))
    , interval(secondsShown)
{
    ui->setupUi(this);
    setWindowFlags((windowFlags() & ~Qt::WindowContextHelpButtonHint) | Qt::WindowStaysOnTopHint);
    setWindowTitle(tr("Advice"));
    ui->labelPix->setPixmap(pixmap);
    ui->spinBox->setValue(interval);
    ui->buttonOkay->setFocus();
    connect(timer, &QTimer::timeout, this, &DialogNotice::updateInterval);
    timer->start(1000);
    connect(ui->labelAdvice, &QLabel::linkActivated, this, &DialogNotice::linkClicked);
}

DialogNotice::~DialogNotice() = default;

QLabel *DialogNotice::labelAdvice() const
{
    return ui->labelAdvice;
}

QCheckBox *DialogNotice::checkBox() const
{
    return ui->checkBox;
}

void DialogNotice::updateInterval()
{
    --interval;
    ui->spinBox->setValue(interval);
    if (interval < 1) {
        timer->stop();
        close();
    }
}

void DialogNotice::linkClicked(const QString &link)
{
    QDesktopServices::openUrl(QUrl(link));
}

void DialogNotice::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    QDialog::changeEvent(event);
}
