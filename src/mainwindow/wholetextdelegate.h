// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QStyledItemDelegate>

/// Shows the whole text of a cell that is too narrow for it as a tool tip.
class WholeTextDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Without the line break that a line of the log may end with.
    [[nodiscard]] QString displayText(const QVariant &value, const QLocale &locale) const override;

protected:
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;
};
