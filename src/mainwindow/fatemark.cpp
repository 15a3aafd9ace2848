// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/fatemark.h"

#include <QPainter>
#include <QPainterPath>

FateMark markOf(Fate fate, Fate reason)
{
    if (reason == Fate::Renamed)
        return fate == Fate::Separator ? FateMark::Moves : FateMark::None;
    if (reason == Fate::Unchanged)
        return FateMark::Keeps;
    return reason == Fate::Unknown ? FateMark::Unknown : FateMark::Stays;
}

namespace {

QColor colorOf(FateMark mark)
{
    switch (mark) {
    case FateMark::Stays:
        return {0xb3, 0x26, 0x1e};
    case FateMark::Unknown:
        return {0x9a, 0x62, 0x00};
    case FateMark::Moves:
        return {0x2b, 0x5f, 0x9e};
    default:
        return {0x5f, 0x6b, 0x73};
    }
}

/// In a square of 16 x 16.
QPainterPath signOf(FateMark mark)
{
    QPainterPath path;
    const auto line = [&path](QPointF from, QPointF to) {
        path.moveTo(from);
        path.lineTo(to);
    };
    switch (mark) {
    case FateMark::Stays:
        line({5.2, 5.2}, {10.8, 10.8});
        line({10.8, 5.2}, {5.2, 10.8});
        break;
    case FateMark::Unknown:
        path.moveTo(5.7, 6.1);
        path.cubicTo({5.7, 2.9}, {10.3, 2.9}, {10.3, 6.1});
        path.cubicTo({10.3, 7.9}, {8, 7.7}, {8, 9.6});
        line({8, 12}, {8, 12.1});
        break;
    case FateMark::Moves:
        line({4, 8}, {12, 8});
        line({8.8, 4.8}, {12, 8});
        line({8.8, 11.2}, {12, 8});
        break;
    default:
        line({4.8, 6.5}, {11.2, 6.5});
        line({4.8, 9.5}, {11.2, 9.5});
        break;
    }
    return path;
}

} // namespace

void paintMark(QPainter *painter, const QRectF &square, FateMark mark)
{
    if (mark == FateMark::None)
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(square.topLeft());
    painter->scale(square.width() / 16, square.height() / 16);
    // The white ring sets it off a selected row.
    painter->setPen(QPen(Qt::white, 1.2));
    painter->setBrush(colorOf(mark));
    const QRectF body(0.8, 0.8, 14.4, 14.4);
    if (mark == FateMark::Stays)
        painter->drawEllipse(body);
    else if (mark == FateMark::Unknown)
        painter->drawConvexPolygon(QPolygonF({{8, -0.4}, {16.4, 8}, {8, 16.4}, {-0.4, 8}}));
    else
        painter->drawRoundedRect(body, 4, 4);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(signOf(mark));
    painter->restore();
}
