// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/fileitemdelegate.h"

#include <QFontMetrics>
#include <QWidget>

#include <algorithm>

FileItemDelegate::FileItemDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{
}

void FileItemDelegate::includeWidth(const QString &text)
{
    const auto *view = qobject_cast<const QWidget *>(parent());
    if (view->font() != font || characterWidths.isEmpty())
        followFont(view->font());
    qint16 *const widths = characterWidths.data();
    int width = 0;
    for (const QChar character : text) {
        qint16 &known = widths[character.unicode()];
        if (known < 0)
            known = characterWidth(character);
        width += known;
    }
    widest = std::max(widest, width);
}

void FileItemDelegate::forgetWidths()
{
    widest = 0;
}

QSize FileItemDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    const int textWidth =
        QFontMetrics(option.font).horizontalAdvance(displayText(index.data(), option.locale));
    size.rwidth() += std::max(0, widest - textWidth);
    return size;
}

void FileItemDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    // A name that holds a line break still takes one line.
    option->text.replace(QChar::LineSeparator, QChar::Space);
}

qint16 FileItemDelegate::characterWidth(QChar character) const
{
    return static_cast<qint16>(std::clamp(QFontMetrics(font).horizontalAdvance(character), 0, 1000));
}

void FileItemDelegate::followFont(const QFont &newFont)
{
    font = newFont;
    characterWidths.fill(-1, 1 << 16);
    widest = 0;
}
