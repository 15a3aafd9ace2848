// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "mainwindow/elidedlabel.h"

#include <QTimer>

class Fates;
class ListWidgetFiles;

/// The status bar's account of the file list: what the run will come to or, while Preview is up, how many
/// files are selected. A click goes to the next row in trouble, as F8 does; Shift+F8 goes back.
class ForecastLabel final : public ElidedLabel
{
    Q_OBJECT

public:
    ForecastLabel(const Fates &ofFates, ListWidgetFiles &ofList);

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    enum Direction { Backwards = -1, Onwards = 1 };

    void refresh();
    [[nodiscard]] int rowsInTrouble() const;
    [[nodiscard]] QString toldText() const;
    void goToTrouble(Direction direction);

    const Fates &fates;
    ListWidgetFiles &list;
    /// For changes that may come a thousand times in one go.
    QTimer later;
};
