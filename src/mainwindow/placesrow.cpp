// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/placesrow.h"

#include "mainwindow/fatetexts.h"
#include "mainwindow/flowlayout.h"

#include <QDir>
#include <QEvent>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int iconSize = 20;
constexpr int gap = 2;

QString pictureOf(Place::Kind kind)
{
    switch (kind) {
    case Place::Home:
        return u"home"_s;
    case Place::Desktop:
        return u"desktop"_s;
    case Place::Pictures:
        return u"pictures"_s;
    case Place::Music:
        return u"music"_s;
    case Place::Documents:
        return u"documents"_s;
    case Place::Downloads:
        return u"downloads"_s;
    case Place::Volume:
        break;
    }
    return u"volume"_s;
}

} // namespace

PlacesRow::PlacesRow(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(u"placesRow"_s);
    looker.setMaxThreadCount(1);
    auto *layout = new FlowLayout(this, gap);
    layout->setContentsMargins({});
}

PlacesRow::~PlacesRow()
{
    looker.clear();
    looker.waitForDone();
}

void PlacesRow::showEvent(QShowEvent *event)
{
    look();
    QWidget::showEvent(event);
}

void PlacesRow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    // A volume may have come or gone while another program was in use.
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        look();
    QWidget::changeEvent(event);
}

void PlacesRow::look()
{
    if (isLooking || !isVisible())
        return;
    isLooking = true;
    looker.start([this] {
        const QList<Place> found = placesThere();
        QMetaObject::invokeMethod(this, [this, found] { take(found); });
    });
}

void PlacesRow::take(const QList<Place> &found)
{
    isLooking = false;
    if (found == places)
        return;
    places = found;
    qDeleteAll(buttons);
    buttons.clear();
    for (const Place &place : std::as_const(places)) {
        auto *button = new QToolButton(this);
        button->setObjectName("buttonPlace"_L1 + QString::number(buttons.size()));
        button->setIcon(QIcon(u":/img/place_%1.png"_s.arg(pictureOf(place.kind))));
        button->setIconSize({iconSize, iconSize});
        button->setAutoRaise(true);
        connect(button, &QToolButton::clicked, this, [this, path = place.path] { emit chosen(path); });
        layout()->addWidget(button);
        buttons.append(button);
    }
    retranslate();
}

void PlacesRow::retranslate()
{
    for (qsizetype i = 0; i < buttons.size(); ++i) {
        const QString path = QDir::toNativeSeparators(places.at(i).path);
        const QString name = places.at(i).name();
        buttons.at(i)->setAccessibleName(name);
        buttons.at(i)->setStatusTip(name);
        buttons.at(i)->setToolTip(plainToolTip(name == path ? path : name + u'\n' + path));
    }
}
