// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/fates.h"

#include "mainwindow/allornothing.h"
#include "mainwindow/fileitem.h"
#include "mainwindow/listwidgetfiles.h"
#include "mainwindow/planinhand.h"
#include "mainwindow/progressdialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>

namespace {

constexpr qint64 sliceLength = 8'000'000; // nanoseconds
constexpr int restTime = 40;              // milliseconds, while rows come or a wait dialog is shown

} // namespace

Fates::Refresh::Refresh(Fates &of, RowNames names)
    : fates(of)
{
    fates.list.forgetTexts();
    fates.names = std::make_shared<const RowNames>(std::move(names));
}

Fates::Refresh::~Refresh()
{
    fates.names.reset();
    fates.sinceRowsChanged.invalidate();
    fates.startAgain();
}

Fates::Fates(ListWidgetFiles &listToRefresh, const QAbstractButton &previewButton)
    : list(listToRefresh)
    , preview(previewButton)
{
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, &Fates::work);
    const QAbstractItemModel *rows = list.model();
    connect(rows, &QAbstractItemModel::rowsInserted, this, &Fates::rowsChanged);
    connect(rows, &QAbstractItemModel::rowsRemoved, this, &Fates::rowsChanged);
    connect(rows, &QAbstractItemModel::rowsMoved, this, &Fates::rowsChanged);
    connect(rows, &QAbstractItemModel::layoutChanged, this, &Fates::rowsChanged);
    connect(rows, &QAbstractItemModel::modelReset, this, &Fates::rowsChanged);
    // The run releases Preview without a click: the refresh comes at its end.
    connect(&preview, &QAbstractButton::toggled, this, [this] {
        list.forgetFates();
        list.viewport()->update();
        startAgain();
    });
    list.window()->installEventFilter(this);
    planner.setMaxThreadCount(1);
}

Fates::~Fates()
{
    planner.waitForDone();
}

void Fates::follow(const AllOrNothing &ofRuns)
{
    allOrNothing = &ofRuns;
    connect(allOrNothing, &AllOrNothing::changed, this, [this] {
        list.forgetFates();
        list.viewport()->update();
        startAgain();
    });
}

bool Fates::arePlanned() const
{
    return allOrNothing && allOrNothing->isOn();
}

void Fates::showFailures(const Failures &failures)
{
    for (const Failure &failure : failures) {
        if (FileItem *item = list.fileItem(failure.row))
            item->tell(failure.outcome, true);
    }
    list.viewport()->update();
}

bool Fates::areForetold() const
{
    return preview.isChecked() && list.count() > 0;
}

bool Fates::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::WindowActivate && areForetold())
        startAgain();
    return QObject::eventFilter(watched, event);
}

void Fates::startAgain()
{
    forecast.reset();
    plan.reset();
    stage = Stage::Texts;
    nextRow = 0;
    timer.start(0);
    emit changed();
}

void Fates::rowsChanged()
{
    sinceRowsChanged.start();
    // A hundred thousand rows may follow, one by one.
    if (stage != Stage::Texts || nextRow > 0 || !timer.isActive())
        startAgain();
}

bool Fates::hasToWait() const
{
    return (sinceRowsChanged.isValid() && !sinceRowsChanged.hasExpired(restTime)) ||
           qobject_cast<ProgressDialog *>(QApplication::activeModalWidget());
}

void Fates::work()
{
    if (hasToWait()) {
        timer.start(restTime);
        return;
    }
    QElapsedTimer clock;
    clock.start();
    while (stage != Stage::Done && stage != Stage::Planning && clock.nsecsElapsed() < sliceLength) {
        if (nextRow < list.count())
            doNextRow();
        else
            finishStage();
    }
    list.showTexts(stage == Stage::Done);
    if (stage == Stage::Done)
        emit changed();
    else if (stage != Stage::Planning)
        timer.start(0);
}

void Fates::doNextRow()
{
    const int row = nextRow;
    switch (stage) {
    case Stage::Texts:
        if (const FileItem *file = list.fileItem(row))
            file->settle();
        ++nextRow;
        break;
    case Stage::Listing:
        listRow(row);
        ++nextRow;
        break;
    case Stage::Telling:
        tellRow(row);
        break;
    case Stage::Planning:
    case Stage::Done:
        break;
    }
}

void Fates::listRow(int row)
{
    const FilePath file = filePaths.split(list.path(row));
    if (!plan) {
        forecast->add(file);
        return;
    }
    const FileItem *item = list.fileItem(row);
    plan->plan.add(file, item ? item->shownName() : file.name());
}

void Fates::tellRow(int row)
{
    FileItem *item = list.fileItem(row);
    const FilePath file = filePaths.split(list.path(row));
    const QString newName = item ? item->shownName() : file.name();
    if (!plan && !forecast->isReady(file, newName))
        return;
    const Outcome outcome = plan ? plan->outcome(row) : forecast->next(file, newName);
    told.add(outcome);
    if (item)
        item->tell(outcome, false);
    ++nextRow;
}

void Fates::finishStage()
{
    nextRow = 0;
    switch (stage) {
    case Stage::Texts:
    default:
        if (!areForetold()) {
            stage = Stage::Done;
            break;
        }
        beginListing();
        break;
    case Stage::Listing:
        if (plan)
            planAside();
        else
            stage = Stage::Telling;
        break;
    case Stage::Telling:
        forecast.reset();
        plan.reset();
        stage = Stage::Done;
        break;
    }
}

void Fates::beginListing()
{
    told = {};
    if (arePlanned())
        plan = std::make_shared<PlanInHand>();
    else
        forecast.emplace(disk);
    stage = Stage::Listing;
}

/// A plan is made in one go, which takes too long for the window.
void Fates::planAside()
{
    stage = Stage::Planning;
    planner.start([this, weak = std::weak_ptr(plan)] {
        const std::shared_ptr<PlanInHand> inHand = weak.lock();
        // Nobody wants it any more.
        if (!inHand)
            return;
        inHand->plan.make();
        QMetaObject::invokeMethod(this, [this, inHand] {
            if (plan != inHand)
                return;
            stage = Stage::Telling;
            timer.start(0);
        });
    });
}
