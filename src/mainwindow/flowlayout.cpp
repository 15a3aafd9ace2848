// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/flowlayout.h"

#include <algorithm>

FlowLayout::FlowLayout(QWidget *parent, int gap)
    : QLayout(parent)
{
    setSpacing(gap);
}

FlowLayout::~FlowLayout()
{
    qDeleteAll(items);
}

void FlowLayout::addItem(QLayoutItem *item)
{
    items.append(item);
    if (QLayout *inner = item->layout())
        addChildLayout(inner);
    invalidate();
}

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return items.value(index);
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    if (index < 0 || index >= count())
        return nullptr;
    QLayoutItem *item = items.takeAt(index);
    if (QLayout *inner = item->layout())
        inner->setParent(nullptr);
    invalidate();
    return item;
}

int FlowLayout::heightForWidth(int width) const
{
    const QMargins margins = contentsMargins();
    const QList<QRect> places = placesIn(width - margins.left() - margins.right());
    int bottom = 0;
    for (const QRect &place : places)
        bottom = std::max(bottom, place.top() + place.height());
    return bottom + margins.top() + margins.bottom();
}

QSize FlowLayout::sizeHint() const
{
    int width = 0;
    int height = 0;
    for (const QRect &place : placesIn(QLAYOUTSIZE_MAX)) {
        width = std::max(width, place.left() + place.width());
        height = std::max(height, place.height());
    }
    return QSize(width, height).grownBy(contentsMargins());
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const QLayoutItem *item : items) {
        if (!item->isEmpty())
            size = size.expandedTo(item->minimumSize());
    }
    return size.grownBy(contentsMargins());
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    const QRect contents = rect.marginsRemoved(contentsMargins());
    const QList<QRect> places = placesIn(contents.width());
    for (int i = 0; i < count(); ++i)
        items.at(i)->setGeometry(places.at(i).translated(contents.topLeft()));
}

QList<QRect> FlowLayout::placesIn(int width) const
{
    QList<QRect> places;
    QPoint next(0, 0);
    int lineHeight = 0;
    for (const QLayoutItem *item : items) {
        // A spacer, or a widget that is hidden.
        if (item->isEmpty()) {
            places.append(QRect(0, next.y(), 0, 0));
            continue;
        }
        const QSize size = item->sizeHint();
        if (next.x() > 0 && next.x() + size.width() > width) {
            next = {0, next.y() + lineHeight + spacing()};
            lineHeight = 0;
        }
        places.append(QRect(next, size));
        next.rx() += size.width() + spacing();
        lineHeight = std::max(lineHeight, size.height());
    }
    return places;
}
