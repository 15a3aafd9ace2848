// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QList>
#include <QStyledItemDelegate>

#include <algorithm>

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
    void includeWidth(int width) { widest = std::max(widest, width); }
    [[nodiscard]] int widestText() const { return widest; }
    /// Starts anew: the texts to come decide.
    void forgetWidths();

    /// At the right end of what is seen of the row its mark, and after the text, where there is room, the
    /// name on disk.
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    void paintMarkOf(const QModelIndex &index, QPainter *painter, const QStyleOptionViewItem &option,
                     const QRect &end) const;
    void paintOldName(const QString &name, QPainter *painter, const QStyleOptionViewItem &option,
                      const QModelIndex &index, int right) const;
    [[nodiscard]] qint16 characterWidth(QChar character) const;
    void followFont(const QFont &font);

    QFont font;
    /// By UTF-16 unit, in pixels; -1 where not asked for yet.
    QList<qint16> characterWidths;
    int widest = 0;
};
