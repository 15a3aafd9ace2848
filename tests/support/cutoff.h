// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QWidget>

/// How a message names a widget.
inline QString nameOf(const QWidget *widget)
{
    const QRect place = widget->geometry();
    return QStringLiteral("%1 %2 (%3, %4, %5 x %6)")
        .arg(QString::fromLatin1(widget->metaObject()->className()), widget->objectName())
        .arg(place.x())
        .arg(place.y())
        .arg(place.width())
        .arg(place.height());
}

/// What is seen of a window's widgets and lies outside what they are in, or has less room than its text
/// needs. What scroll bars bring into view counts as seen.
inline QStringList cutOff(const QWidget *window)
{
    QStringList faults;
    const auto widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const QWidget *parent = widget->parentWidget();
        if (!widget->isVisible() || widget->window() != window || widget->size().isEmpty())
            continue;
        const auto *area = qobject_cast<const QScrollArea *>(parent->parentWidget());
        const bool isScrolled = area && area->viewport() == parent;
        // The rows of views are scrolled by themselves, and so is what they hold.
        const auto *view = qobject_cast<const QAbstractScrollArea *>(parent->parentWidget());
        if (!isScrolled && !view && !parent->rect().contains(widget->geometry()))
            faults.append(nameOf(widget) + QStringLiteral(" sticks out of ") + nameOf(parent));
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        const bool hasText = (button && !button->text().isEmpty()) || qobject_cast<const QLabel *>(widget) ||
                             qobject_cast<const QComboBox *>(widget) ||
                             qobject_cast<const QGroupBox *>(widget);
        const QSize least = hasText ? widget->minimumSizeHint() : button ? button->iconSize() : QSize(0, 0);
        if (!view && (widget->width() < least.width() || widget->height() < least.height()))
            faults.append(nameOf(widget) +
                          QStringLiteral(" needs %1 x %2").arg(least.width()).arg(least.height()));
    }
    return faults;
}

/// The same, and whether the window with its frame lies on its screen.
inline QStringList cutOffOnScreen(const QWidget *window)
{
    QStringList faults = cutOff(window);
    const QRect frame = window->frameGeometry();
    const QRect screen = window->screen()->availableGeometry();
    if (!screen.contains(frame))
        faults.append(QStringLiteral("%1 x %2 at %3, %4 is not on the screen of %5 x %6 at %7, %8")
                          .arg(frame.width())
                          .arg(frame.height())
                          .arg(frame.x())
                          .arg(frame.y())
                          .arg(screen.width())
                          .arg(screen.height())
                          .arg(screen.x())
                          .arg(screen.y()));
    return faults;
}
