// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QPointer>
#include <QTimer>
#include <QWidget>

/// Fades a page in: covers it in its background colour and grows more transparent with every paint, until it
/// closes and deletes itself. Used once.
class FaderWidget final : public QWidget
{
    Q_OBJECT
    /// Taken from the opacity (0 to 255) at each paint, after division by the timer's period of 10 ms:
    /// deliberate, a larger duration makes the fade faster. Below 10 the fade never ends.
    Q_PROPERTY(int fadeDuration READ fadeDuration WRITE setFadeDuration)

public:
    /// page: the widget to fade in. The fader keeps the size that the page has now.
    explicit FaderWidget(QWidget *page);

    /// Ends the fade that current points to, if it still runs, and starts one on the page. Null does nothing
    /// more.
    static void fadeIn(QPointer<FaderWidget> &current, QWidget *page);

    void start();

    [[nodiscard]] int fadeDuration() const { return duration; }
    void setFadeDuration(int milliseconds) { duration = milliseconds; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QTimer timer;
    QColor startColor;
    int currentAlpha = 0;
    int duration = 200;
};
