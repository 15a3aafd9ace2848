// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QStackedWidget;

/// Lets the fields of all editors begin at one column, whatever their labels say.
class EditorLayout final : public QObject
{
    Q_OBJECT

public:
    explicit EditorLayout(QStackedWidget *ofEditors);

    /// The fields of the editors follow the widget by the Tab key, and the other widget them.
    void orderTabs(QWidget *before, QWidget *after) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void align() const;

    QStackedWidget *editors;
};
