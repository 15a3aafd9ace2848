// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/sortmenu.h"

#include "mainwindow/listwidgetfiles.h"

#include <QAction>
#include <QEvent>
#include <QMenu>
#include <QShortcut>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

using SortBy = FileOrder::By;

struct SortEntry
{
    SortBy by;
    /// Of its entries; what follows is its direction.
    QLatin1StringView objectName;
};

constexpr SortEntry sortEntries[] = {
    {SortBy::Name, "actionSortName"_L1},           {SortBy::Path, "actionSortPath"_L1},
    {SortBy::Extension, "actionSortExtension"_L1}, {SortBy::Size, "actionSortSize"_L1},
    {SortBy::Modified, "actionSortModified"_L1},   {SortBy::Adding, "actionSortAdding"_L1}};

QString orderName(SortBy by)
{
    switch (by) {
    case SortBy::Name:
        return SortMenu::tr("Name");
    case SortBy::Path:
        return SortMenu::tr("Path");
    case SortBy::Extension:
        return SortMenu::tr("Extension");
    case SortBy::Size:
        return SortMenu::tr("Size");
    case SortBy::Modified:
        return SortMenu::tr("Time of modification");
    case SortBy::Adding:
        break;
    }
    return SortMenu::tr("Order of adding");
}

QString orderText(FileOrder order)
{
    if (order.by == SortBy::Adding)
        return orderName(order.by);
    const QString text = order.direction == Qt::AscendingOrder ? SortMenu::tr("%1, ascending")
                                                               : SortMenu::tr("%1, descending");
    return text.arg(orderName(order.by));
}

} // namespace

Q_DECLARE_METATYPE(FileOrder)

SortMenu::SortMenu(QToolButton *sortButton, ListWidgetFiles &listOfFiles, const QAbstractButton &preview,
                   const std::function<void()> &refreshRows)
    : QObject(sortButton->window())
    , button(sortButton)
    , menu(new QMenu(button))
    , sorter(listOfFiles, preview, refreshRows)
{
    menu->setObjectName(u"menuSort"_s);
    for (const SortEntry &entry : sortEntries) {
        if (entry.by == SortBy::Adding)
            menu->addSeparator();
        addOrder({entry.by, Qt::AscendingOrder}, entry.objectName);
        if (entry.by != SortBy::Adding)
            addOrder({entry.by, Qt::DescendingOrder}, entry.objectName);
    }
    connect(button, &QToolButton::clicked, this, &SortMenu::openMenu);
    using To = RowMoves::To;
    for (const auto &[key, where] : {std::pair(Qt::Key_Up, To::Up), std::pair(Qt::Key_Down, To::Down),
                                     std::pair(Qt::Key_Home, To::First), std::pair(Qt::Key_End, To::Last)}) {
        auto *shortcut = new QShortcut(Qt::ALT | key, &listOfFiles);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, [this, where = where] { sorter.move(where); });
    }
    button->window()->installEventFilter(this);
    retranslate();
}

void SortMenu::addOrder(FileOrder order, QLatin1StringView objectName)
{
    QAction *action = menu->addAction(QString());
    const bool isDescending = order.direction == Qt::DescendingOrder;
    action->setObjectName(isDescending ? objectName + "Descending"_L1 : QString(objectName));
    action->setData(QVariant::fromValue(order));
    connect(action, &QAction::triggered, this, [this, order] { sorter.sort(order); });
}

void SortMenu::openMenu()
{
    menu->popup(button->mapToGlobal(QPoint(0, button->height())));
}

void SortMenu::retranslate()
{
    const auto actions = menu->actions();
    for (QAction *action : actions) {
        if (!action->isSeparator())
            action->setText(orderText(action->data().value<FileOrder>()));
    }
}

bool SortMenu::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    return QObject::eventFilter(watched, event);
}
