// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/runhistory.h"

#include "core/applog.h"
#include "core/datapaths.h"
#include "dialogs/runtexts.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

std::optional<JournalInfo> valueOf(const JournalInfo *journal)
{
    return journal ? std::optional(*journal) : std::nullopt;
}

} // namespace

RunHistory::RunHistory(QWidget *window)
    : QObject(window)
    , folder(dataDirectory() + "/undo"_L1)
{
    reader.setMaxThreadCount(1);
    window->installEventFilter(this);
    // Once the window is there.
    QTimer::singleShot(0, this, &RunHistory::refresh);
}

RunHistory::~RunHistory()
{
    reader.waitForDone();
}

void RunHistory::refresh()
{
    if (isReading)
        readsAgain = true;
    else
        read();
}

void RunHistory::pruneAndRefresh()
{
    prunes = true;
    refresh();
}

void RunHistory::read()
{
    isReading = true;
    reader.start([this, journals = folder, prunesNow = std::exchange(prunes, false)]() mutable {
        if (prunesNow)
            journals.prune();
        QMetaObject::invokeMethod(this, [this, list = journals.list()] { take(list); });
    });
}

void RunHistory::take(const QList<JournalInfo> &newestFirst)
{
    isReading = false;
    undo = valueOf(JournalFolder::undoable(newestFirst));
    redo = valueOf(JournalFolder::redoable(newestFirst));
    tellOfInterruption(newestFirst);
    emit changed();
    if (std::exchange(readsAgain, false))
        read();
}

void RunHistory::tellOfInterruption(const QList<JournalInfo> &newestFirst)
{
    if (std::exchange(toldOfInterruption, true))
        return;
    const auto found = std::find_if(newestFirst.begin(), newestFirst.end(),
                                    [](const JournalInfo &journal) { return journal.isOpen; });
    if (found != newestFirst.end())
        AppLog::instance()->append(interruptedText(*found));
}

bool RunHistory::eventFilter(QObject *watched, QEvent *event)
{
    // Another instance may have run meanwhile.
    if (event->type() == QEvent::WindowActivate)
        refresh();
    return QObject::eventFilter(watched, event);
}
