// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/fileitemdelegate.h"

#include "mainwindow/fileitem.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int markMargin = 2;     // pixels on both sides
constexpr int oldNameMargin = 16; // pixels on both sides

/// A part of the first, in percent, and the rest of the second.
QColor mixed(const QColor &first, int part, const QColor &second)
{
    const auto mix = [part](int from, int to) {
        return (from * part + to * (100 - part)) / 100;
    };
    return {mix(first.red(), second.red()), mix(first.green(), second.green()),
            mix(first.blue(), second.blue())};
}

} // namespace

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

void FileItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const auto *view = qobject_cast<const QAbstractItemView *>(parent());
    const QRect seen = option.rect & view->viewport()->rect();
    const auto mark = static_cast<FateMark>(index.data(FileItem::MarkRole).toInt());
    QRect end = seen;
    end.setLeft(end.right() + 1);
    if (mark != FateMark::None) {
        end.setLeft(end.left() - seen.height() - 2 * markMargin);
        paintMarkOf(index, painter, option, end);
    }
    if (const QVariant oldName = index.data(FileItem::OldNameRole); oldName.isValid())
        paintOldName(displayText(oldName, option.locale), painter, option, index, end.left());
}

QSize FileItemDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    const int textWidth =
        QFontMetrics(option.font).horizontalAdvance(displayText(index.data(), option.locale));
    size.rwidth() += std::max(0, widest - textWidth);
    return size;
}

void FileItemDelegate::paintMarkOf(const QModelIndex &index, QPainter *painter,
                                   const QStyleOptionViewItem &option, const QRect &end) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const QWidget *view = option.widget;
    const QStyle *style = view ? view->style() : QApplication::style();
    painter->save();
    // Nothing of a long text behind the mark.
    painter->setClipRect(end);
    painter->fillRect(end, row.palette.brush(row.features & QStyleOptionViewItem::Alternate
                                                 ? QPalette::AlternateBase
                                                 : QPalette::Base));
    style->drawPrimitive(QStyle::PE_PanelItemViewRow, &row, painter, view);
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &row, painter, view);
    const int size = end.height();
    paintMark(painter, QRectF(end.right() - markMargin - size, end.top(), size, size),
              static_cast<FateMark>(index.data(FileItem::MarkRole).toInt()));
    painter->restore();
}

void FileItemDelegate::paintOldName(const QString &name, QPainter *painter,
                                    const QStyleOptionViewItem &option, const QModelIndex &index,
                                    int right) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const QWidget *view = option.widget;
    const QStyle *style = view ? view->style() : QApplication::style();
    QRect place = style->subElementRect(QStyle::SE_ItemViewItemText, &row, view);
    const QFontMetrics metrics(row.font);
    place.setLeft(place.left() + metrics.horizontalAdvance(row.text) + oldNameMargin);
    place.setRight(right - oldNameMargin);
    if (metrics.horizontalAdvance(name) > place.width())
        return;
    const bool isSelected = row.state & QStyle::State_Selected;
    const auto group = row.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
    const auto color = [&](QPalette::ColorRole role) {
        return row.palette.color(group, role);
    };
    painter->save();
    painter->setFont(row.font);
    painter->setPen(isSelected ? mixed(color(QPalette::HighlightedText), 75, color(QPalette::Highlight))
                               : mixed(color(QPalette::Text), 60, color(QPalette::Base)));
    painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, name);
    painter->restore();
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
