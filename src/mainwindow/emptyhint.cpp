// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/emptyhint.h"

#include <QEvent>
#include <QPainter>

namespace {

constexpr int margin = 12;        // pixels on all sides
constexpr double strength = 0.75; // of the view's own text

} // namespace

EmptyHint::EmptyHint(QAbstractItemView *ofView, std::function<QString()> inCurrentLanguage)
    : QWidget(ofView)
    , view(ofView)
    , translated(std::move(inCurrentLanguage))
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    view->viewport()->installEventFilter(this);
    const QAbstractItemModel *model = view->model();
    connect(model, &QAbstractItemModel::rowsInserted, this, &EmptyHint::follow);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &EmptyHint::follow);
    connect(model, &QAbstractItemModel::modelReset, this, &EmptyHint::follow);
    // The model empties itself while it goes with the view.
    connect(view, &QObject::destroyed, this, [this, model] { model->disconnect(this); });
    setGeometry(view->viewport()->geometry());
    retranslate();
    follow();
}

void EmptyHint::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setFont(view->font());
    QColor color = view->palette().color(QPalette::Text);
    color.setAlphaF(strength);
    painter.setPen(color);
    painter.drawText(rect().adjusted(margin, margin, -margin, -margin), Qt::AlignCenter | Qt::TextWordWrap,
                     shown);
}

void EmptyHint::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

bool EmptyHint::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
        setGeometry(view->viewport()->geometry());
    return QWidget::eventFilter(watched, event);
}

void EmptyHint::retranslate()
{
    shown = translated();
    tell();
    update();
}

void EmptyHint::follow()
{
    // Asked after each of a hundred thousand rows.
    const bool isEmpty = view->model()->rowCount() == 0;
    if (isEmpty == !isHidden())
        return;
    setVisible(isEmpty);
    tell();
}

void EmptyHint::tell()
{
    view->setAccessibleDescription(isHidden() ? QString() : shown);
}
