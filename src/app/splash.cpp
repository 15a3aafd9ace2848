// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "app/splash.h"

#include <QApplication>
#include <QPainter>
#include <QThread>

namespace {

constexpr int rightMargin = 28;
constexpr int bottomMargin = 20;
constexpr unsigned long duration = 1500; // milliseconds

} // namespace

SplashFrame::SplashFrame(QWidget *parent)
    : QFrame(parent, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
{
}

void SplashFrame::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.drawPixmap(rect(), image);
    painter.setPen(textColor);
    painter.drawText(rect().adjusted(0, 0, -rightMargin, -bottomMargin), alignment, text);
}

void showSplash(const QString &text, const QPixmap &image)
{
    SplashFrame frame(QApplication::activeWindow());
    frame.image = image;
    frame.setAttribute(Qt::WA_TranslucentBackground);
    frame.setFixedSize(image.deviceIndependentSize().toSize());
    QFont font = frame.font();
    font.setBold(true);
    frame.setFont(font);
    frame.setWindowModality(Qt::WindowModal);
    frame.show();
    frame.activateWindow();
    frame.text = text;
    frame.repaint();
    // Deliberate: the splash holds the thread; no event is processed meanwhile.
    QThread::msleep(duration);
    frame.setWindowOpacity(0);
}
