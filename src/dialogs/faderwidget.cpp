// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "dialogs/faderwidget.h"

#include <QPainter>

namespace {

constexpr int timerPeriod = 10; // ms

} // namespace

FaderWidget::FaderWidget(QWidget *page)
    : QWidget(page)
    , startColor(page->palette().window().color())
{
    connect(&timer, &QTimer::timeout, this, qOverload<>(&QWidget::update));
    setAttribute(Qt::WA_DeleteOnClose);
    resize(page->size());
}

void FaderWidget::fadeIn(QPointer<FaderWidget> &current, QWidget *page)
{
    if (current)
        current->close();
    if (!page)
        return;
    current = new FaderWidget(page);
    current->start();
}

void FaderWidget::start()
{
    currentAlpha = 255;
    timer.start(timerPeriod);
    show();
}

void FaderWidget::paintEvent(QPaintEvent *)
{
    QColor color = startColor;
    color.setAlpha(currentAlpha);
    QPainter painter(this);
    painter.fillRect(rect(), color);
    painter.end();
    currentAlpha -= duration / timerPeriod;
    if (currentAlpha < 1) {
        timer.stop();
        close();
    }
}
