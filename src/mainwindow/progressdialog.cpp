// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/progressdialog.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 paintInterval = 40; // milliseconds

QWidget *createPage(QWidget *content)
{
    auto *page = new QWidget;
    auto *layout = new QHBoxLayout(page);
    layout->addWidget(content);
    return page;
}

} // namespace

ProgressDialog::ProgressDialog(QWidget *parent)
    : QDialog(parent)
    , buttonCancel(new QPushButton(this))
    , labelText(new QLabel)
    , progressBar(new QProgressBar)
    , stackedWidget(new QStackedWidget(this))
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setStyleSheet(u"QLabel,QProgressBar{font:bold 11pt;color:#444}"_s);
    resize(320, 110);
    setWindowModality(Qt::WindowModal); // the icon in the tray stays alive

    buttonCancel->setText(QCoreApplication::translate("QDialog", "Cancel"));
    buttonCancel->setIcon(QIcon(u":/img/cancel.png"_s));
    buttonCancel->setIconSize({24, 24});
    buttonCancel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(buttonCancel, &QPushButton::clicked, this, &QDialog::reject);

    // Whatever text it is given, markup in it is text.
    labelText->setTextFormat(Qt::PlainText);
    stackedWidget->addWidget(createPage(progressBar));
    stackedWidget->addWidget(createPage(labelText));
    stackedWidget->setCurrentIndex(ProgressPage);

    auto *labelGear = new QLabel(this);
    labelGear->setPixmap(QPixmap(u":/img/gear.png"_s));
    auto *firstRow = new QHBoxLayout;
    firstRow->addWidget(labelGear);
    firstRow->addWidget(stackedWidget);
    auto *secondRow = new QHBoxLayout;
    secondRow->addStretch();
    secondRow->addWidget(buttonCancel);
    secondRow->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(firstRow);
    layout->addLayout(secondRow);
}

void ProgressDialog::setProgress(int item)
{
    current = item;
    if (mode != progressMode)
        return;
    showValue(total > 0 ? static_cast<int>(std::min<qint64>(qint64{item} * 100 / total, 100)) : 0);
}

void ProgressDialog::showValue(int percent)
{
    // The bar repaints itself at once for each new value, which takes longer than renaming a file.
    const bool painted = !sincePainted.isValid() || sincePainted.hasExpired(paintInterval);
    if (painted)
        sincePainted.start();
    progressBar->setUpdatesEnabled(painted);
    progressBar->setValue(percent);
}
