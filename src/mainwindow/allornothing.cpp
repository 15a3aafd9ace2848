// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/allornothing.h"

#include "core/settingsstore.h"
#include "mainwindow/plannedtexts.h"

#include <QAction>
#include <QBoxLayout>
#include <QEvent>
#include <QIcon>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

const QString settingName = u"Run.AllOrNothing"_s;

} // namespace

AllOrNothing::AllOrNothing(QBoxLayout *layoutOfMark, QWidget *window)
    : QObject(window)
    , layout(layoutOfMark)
    , actionAllOrNothing(new QAction(this))
{
    actionAllOrNothing->setObjectName(u"actionAllOrNothing"_s);
    actionAllOrNothing->setCheckable(true);
    actionAllOrNothing->setChecked(SettingsStore::instance()->valueByName(settingName, false).toBool());
    connect(actionAllOrNothing, &QAction::toggled, this, &AllOrNothing::change);
    window->installEventFilter(this);
    showMark();
}

bool AllOrNothing::isOn() const
{
    return actionAllOrNothing->isChecked();
}

void AllOrNothing::change()
{
    SettingsStore::instance()->setValueByName(settingName, isOn());
    showMark();
    emit changed();
}

void AllOrNothing::showMark()
{
    if (!isOn()) {
        delete mark;
        mark = nullptr;
    } else if (!mark) {
        mark = new QLabel;
        mark->setObjectName(u"labelAllOrNothing"_s);
        mark->setPixmap(QIcon(u":/img/allornothing.png"_s).pixmap(16));
        mark->setContentsMargins(0, 0, 4, 0);
        layout->insertWidget(0, mark);
        mark->show();
        // A layout that is asked before it hears of the mark would go on with what it knew.
        for (QWidget *widget = mark; widget; widget = widget->parentWidget())
            widget->updateGeometry();
    }
    retranslate();
}

void AllOrNothing::retranslate()
{
    actionAllOrNothing->setText(allOrNothingText());
    if (!mark)
        return;
    mark->setToolTip(allOrNothingTip());
    mark->setAccessibleName(allOrNothingText());
    mark->setAccessibleDescription(allOrNothingTip());
}

bool AllOrNothing::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    return QObject::eventFilter(watched, event);
}
