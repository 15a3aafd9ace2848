// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QIcon>
#include <QList>
#include <QMessageBox>
#include <QTimer>

#include <functional>

/// What a message box showed when it was answered.
struct SeenBox
{
    QString title;
    QString text;
    QMessageBox::Icon icon;
    QMessageBox::StandardButtons buttons;
    QString styleSheet;
    QString buttonText;
    QIcon buttonIcon;
    QSize buttonIconSize;
    QWidget *parent;
};

/// Answers every message box that opens while it lives with its first button, and remembers it.
class BoxAnswerer
{
public:
    BoxAnswerer()
    {
        timer.setInterval(0);
        QObject::connect(&timer, &QTimer::timeout, &timer, [this] { answer(); });
        timer.start();
    }

    QList<SeenBox> seen;
    /// Called with the open box before it is answered.
    std::function<void(QMessageBox *)> beforeAnswer;

private:
    void answer()
    {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        // beforeAnswer may process events and come here again.
        if (!box || answering)
            return;
        answering = true;
        QAbstractButton *button = box->buttons().constFirst();
        seen.append({box->windowTitle(), box->text(), box->icon(), box->standardButtons(), box->styleSheet(),
                     button->text(), button->icon(), button->iconSize(), box->parentWidget()});
        if (beforeAnswer)
            beforeAnswer(box);
        button->click();
        answering = false;
    }

    QTimer timer;
    bool answering = false;
};
