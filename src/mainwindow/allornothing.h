// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QAction;
class QBoxLayout;
class QLabel;

/// Whether runs rename all files or none: a check entry for a menu, kept in the settings, and while it is on
/// a mark in the window.
class AllOrNothing final : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the window; the mark comes first in the layout.
    AllOrNothing(QBoxLayout *layoutOfMark, QWidget *window);

    [[nodiscard]] bool isOn() const;
    [[nodiscard]] QAction *entry() const { return actionAllOrNothing; }

signals:
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void change();
    void showMark();
    void retranslate();

    QBoxLayout *layout;
    QAction *actionAllOrNothing;
    /// Null while it is off.
    QLabel *mark = nullptr;
};
