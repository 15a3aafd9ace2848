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
    int width = 0;
    for (const QChar character : text)
        width += characterWidth(character.unicode());
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

int FileItemDelegate::characterWidth(char16_t character)
{
    qint16 &width = characterWidths[character];
    if (width < 0)
        width =
            static_cast<qint16>(std::clamp(QFontMetrics(font).horizontalAdvance(QChar(character)), 0, 1000));
    return width;
}

void FileItemDelegate::followFont(const QFont &newFont)
{
    font = newFont;
    characterWidths.fill(-1, 1 << 16);
    widest = 0;
}
