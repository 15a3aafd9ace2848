// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/forecastlabel.h"

#include "mainwindow/fates.h"
#include "mainwindow/fileitem.h"
#include "mainwindow/listwidgetfiles.h"
#include "mainwindow/plannedtexts.h"

#include <QMouseEvent>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace {

int selectedRows(const QListWidget &list)
{
    int rows = 0;
    const QItemSelection selection = list.selectionModel()->selection();
    for (const QItemSelectionRange &range : selection)
        rows += range.height();
    return rows;
}

} // namespace

ForecastLabel::ForecastLabel(const Fates &ofFates, ListWidgetFiles &ofList)
    : fates(ofFates)
    , list(ofList)
{
    setObjectName(u"labelForecast"_s);
    later.setSingleShot(true);
    connect(&later, &QTimer::timeout, this, &ForecastLabel::refresh);
    connect(&fates, &Fates::changed, this, &ForecastLabel::refresh);
    connect(list.selectionModel(), &QItemSelectionModel::selectionChanged, &later,
            qOverload<>(&QTimer::start));
    for (const auto &[key, direction] : {std::pair(QKeySequence(Qt::Key_F8), Onwards),
                                         std::pair(QKeySequence(Qt::SHIFT | Qt::Key_F8), Backwards)}) {
        auto *shortcut = new QShortcut(key, list.window());
        connect(shortcut, &QShortcut::activated, this,
                [this, direction = direction] { goToTrouble(direction); });
    }
    refresh();
}

void ForecastLabel::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        goToTrouble(Onwards);
}

void ForecastLabel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        refresh();
    ElidedLabel::changeEvent(event);
}

void ForecastLabel::refresh()
{
    if (!fates.areForetold())
        setText(selectionText(list.count(), selectedRows(list)));
    else
        setText(fates.isDone() ? toldText() : checkingText());
    const bool isTroubled = fates.areForetold() && fates.isDone() && rowsInTrouble() > 0;
    setToolTip(isTroubled ? troubleText() : QString());
    if (isTroubled)
        setCursor(Qt::PointingHandCursor);
    else
        unsetCursor();
}

int ForecastLabel::rowsInTrouble() const
{
    return fates.counts().stuck + fates.counts().unknown;
}

QString ForecastLabel::toldText() const
{
    const bool isRefused = fates.arePlanned() && rowsInTrouble() > 0;
    return isRefused ? refusedCountsText(list.count(), rowsInTrouble())
                     : countsText(list.count(), fates.counts());
}

void ForecastLabel::goToTrouble(Direction direction)
{
    const int rows = list.count();
    const int start = list.currentRow() < 0 ? (direction == Onwards ? -1 : rows) : list.currentRow();
    for (int step = 1; step <= rows; ++step) {
        const int row = ((start + direction * step) % rows + rows) % rows;
        const FileItem *item = list.fileItem(row);
        if (item && isTrouble(item->mark())) {
            list.setCurrentRow(row);
            list.scrollTo(list.currentIndex(), QAbstractItemView::EnsureVisible);
            return;
        }
    }
}
