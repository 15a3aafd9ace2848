// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/elidedlabel.h"

#include <QHelpEvent>
#include <QStyle>
#include <QStylePainter>
#include <QToolTip>

#include <algorithm>

using namespace Qt::StringLiterals;

ElidedLabel::ElidedLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

void ElidedLabel::setNames(const QString &left, const QString &between, const QString &right)
{
    separator = between;
    separatorAt = left.size();
    setText(left + between + right);
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

QString ElidedLabel::shownText() const
{
    const QFontMetrics metrics = fontMetrics();
    const int room = contentsRect().width();
    if (separator.isEmpty() || metrics.horizontalAdvance(text()) <= room)
        return metrics.elidedText(text(), Qt::ElideMiddle, room);
    const QString left = text().first(separatorAt);
    const QString right = text().sliced(separatorAt + separator.size());
    const int forNames = room - metrics.horizontalAdvance(separator);
    // A short one leaves more to the other.
    const int forLeft = std::max(forNames / 2, forNames - metrics.horizontalAdvance(right));
    const QString shownLeft = metrics.elidedText(left, Qt::ElideMiddle, forLeft);
    const int forRight = forNames - metrics.horizontalAdvance(shownLeft);
    return shownLeft + separator + metrics.elidedText(right, Qt::ElideMiddle, forRight);
}

void ElidedLabel::paintEvent(QPaintEvent * /*event*/)
{
    QStylePainter painter(this);
    painter.drawItemText(contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(), shownText(),
                         foregroundRole());
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || shownText() == text())
        return QLabel::event(event);
    const QString tip = "<p>"_L1 + text().toHtmlEscaped() + "</p>"_L1;
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), tip, this);
    return true;
}
