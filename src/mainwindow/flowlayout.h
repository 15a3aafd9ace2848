// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QLayout>

/// Puts widgets and layouts side by side, and into further lines where a line is full.
class FlowLayout final : public QLayout
{
    Q_OBJECT

public:
    /// The gap lies between widgets and between lines, in pixels.
    FlowLayout(QWidget *parent, int gap);
    ~FlowLayout() override;
    Q_DISABLE_COPY_MOVE(FlowLayout)

    void addItem(QLayoutItem *item) override;
    [[nodiscard]] int count() const override { return static_cast<int>(items.size()); }
    [[nodiscard]] QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;

    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    /// Where each item comes within this width, relative to the contents.
    [[nodiscard]] QList<QRect> placesIn(int width) const;

    QList<QLayoutItem *> items;
};
