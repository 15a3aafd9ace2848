// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QList>
#include <QStyledItemDelegate>

/// Draws a row of the file list on one line. All rows have the size of the widest text, which is estimated
/// from the widths of its characters: asking the font to shape a hundred thousand texts would take most of a
/// second.
class FileItemDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit FileItemDelegate(QObject *parent);

    /// Makes rows wide enough for this text.
    void includeWidth(const QString &text);
    /// Starts anew: the texts to come decide.
    void forgetWidths();

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    [[nodiscard]] qint16 characterWidth(QChar character) const;
    void followFont(const QFont &font);

    QFont font;
    /// By UTF-16 unit, in pixels; -1 where not asked for yet.
    QList<qint16> characterWidths;
    int widest = 0;
};
