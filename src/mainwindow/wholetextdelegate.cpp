// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/wholetextdelegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

using namespace Qt::StringLiterals;

QString WholeTextDelegate::displayText(const QVariant &value, const QLocale &locale) const
{
    const QString text = QStyledItemDelegate::displayText(value, locale);
    return text.endsWith(QChar::LineSeparator) ? text.chopped(1) : text;
}

bool WholeTextDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                  const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QString tip;
    const QSize size = sizeHint(option, index);
    // As rich text it has several lines where it needs them.
    if (size.width() > option.rect.width() || size.height() > option.rect.height())
        tip = "<p>"_L1 + index.data().toString().trimmed().toHtmlEscaped() + "</p>"_L1;
    QToolTip::showText(event->globalPos(), tip, view->viewport(), option.rect);
    return true;
}
