// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QFrame>
#include <QPixmap>

/// The splash picture with a text in its lower right corner.
class SplashFrame final : public QFrame
{
    Q_OBJECT

public:
    explicit SplashFrame(QWidget *parent);

    QPixmap image;
    QString text;
    int alignment = Qt::AlignRight | Qt::AlignBottom;
    QColor textColor{0x44, 0x44, 0x44};

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// Shows the splash over the active window and blocks for 1.5 seconds, also when there is no image.
void showSplash(const QString &text, const QPixmap &image);
