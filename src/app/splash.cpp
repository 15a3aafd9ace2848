// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "app/splash.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPainter>
#include <QThread>
#include <QWindow>

namespace {

constexpr int rightMargin = 28;
constexpr int bottomMargin = 20;
constexpr unsigned long duration = 1500; // milliseconds
constexpr qint64 longestMapping = 1000;  // milliseconds

/// Some window systems put a window on the screen only after a round of messages: what is painted before is
/// lost.
void waitUntilOnScreen(const QWidget &widget)
{
    QElapsedTimer timer;
    timer.start();
    while (!widget.windowHandle()->isExposed() && !timer.hasExpired(longestMapping))
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 10);
}

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
    if (!image.isNull())
        waitUntilOnScreen(frame);
    frame.repaint();
    // Deliberate: the splash holds the thread; no event is processed meanwhile.
    QThread::msleep(duration);
    frame.setWindowOpacity(0);
}
