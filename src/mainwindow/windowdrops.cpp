// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/windowdrops.h"

#include "mainwindow/listwidgetfiles.h"
#include "mainwindow/opendialogs.h"

#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QUrl>

#include <algorithm>

namespace {

bool hasFiles(const QMimeData *data)
{
    const QList<QUrl> urls = data->urls();
    return std::any_of(urls.begin(), urls.end(), [](const QUrl &url) { return url.isLocalFile(); });
}

} // namespace

WindowDrops::WindowDrops(ListWidgetFiles &listOfFiles, const QWidget *explorerTree)
    : QObject(listOfFiles.window())
    , window(listOfFiles.window())
    , list(listOfFiles)
    , explorer(explorerTree)
{
    window->setAcceptDrops(true);
    window->installEventFilter(this);
    // They would take the addresses of files for texts.
    const auto fields = window->findChildren<QLineEdit *>();
    for (QLineEdit *field : fields)
        field->installEventFilter(this);
}

bool WindowDrops::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::DragEnter && hasFiles(static_cast<QDropEvent *>(event)->mimeData()))
        enter(watched, static_cast<QDropEvent *>(event));
    else if (type == QEvent::DragMove && watched == window)
        answer(static_cast<QDropEvent *>(event));
    else if (type == QEvent::Drop && watched == window)
        take(static_cast<QDropEvent *>(event));
    else
        return QObject::eventFilter(watched, event);
    return true;
}

void WindowDrops::enter(const QObject *watched, QDropEvent *event) const
{
    // What a field leaves comes to the window. Taken on the explorer, too: what the window leaves when it
    // comes in would not be offered again where it is moved to.
    if (watched == window && isAtRest(list))
        event->acceptProposedAction();
    else
        event->ignore();
}

bool WindowDrops::isBackOnExplorer(const QDropEvent &event) const
{
    return event.source() == explorer && explorer->isVisible() &&
           explorer->rect().contains(explorer->mapFrom(window, event.position().toPoint()));
}

void WindowDrops::answer(QDropEvent *event) const
{
    if (!isAtRest(list) || isBackOnExplorer(*event)) {
        event->ignore();
        return;
    }
    // Never moved: the files are renamed where they are.
    if (event->possibleActions().testFlag(Qt::CopyAction))
        event->setDropAction(Qt::CopyAction);
    event->accept();
}

void WindowDrops::take(QDropEvent *event)
{
    answer(event);
    if (!event->isAccepted())
        return;
    list.setFocus();
    list.handOver(event->mimeData());
}
