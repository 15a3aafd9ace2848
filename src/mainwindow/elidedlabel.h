// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

/// One line of plain text that takes the room that there is: what does not fit is left out in its middle, or
/// in the middle of both of its names, and is in the tool tip.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    /// Two names with something between them that is always seen.
    void setNames(const QString &left, const QString &between, const QString &right);

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    [[nodiscard]] QString shownText() const;

    /// What stands between the names of the text, which are on both sides of it.
    QString separator;
    qsizetype separatorAt = 0;
};
