// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "mainwindow/places.h"

#include <QThreadPool>
#include <QWidget>

class QToolButton;

/// A button for each place of the machine that people go to. Which of them exist is looked up by another
/// thread, when the row is shown and when its window becomes the active one.
class PlacesRow final : public QWidget
{
    Q_OBJECT

public:
    explicit PlacesRow(QWidget *parent);
    ~PlacesRow() override;
    Q_DISABLE_COPY_MOVE(PlacesRow)

signals:
    void chosen(const QString &path);

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void look();
    void take(const QList<Place> &found);
    void retranslate();

    QList<Place> places;
    QList<QToolButton *> buttons;
    bool isLooking = false;
    /// The last member: gone before what it works for.
    QThreadPool looker;
};
