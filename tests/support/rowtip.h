// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QListWidgetItem>
#include <QTextDocumentFragment>

/// What a tool tip shows, line by line where it breaks them itself.
inline QStringList tipLines(const QString &tip)
{
    QString text = QTextDocumentFragment::fromHtml(tip).toPlainText();
    text.remove(QChar(0x200b)); // where it may break them, too
    return text.split(QLatin1Char('\n'));
}

/// Whether a row's tool tip is this sentence, if any, and its path.
inline bool tipIs(const QListWidgetItem *row, const QString &sentence)
{
    QStringList expected(QDir::toNativeSeparators(row->data(Qt::UserRole).toString()));
    if (!sentence.isEmpty())
        expected.prepend(sentence);
    return tipLines(row->data(Qt::ToolTipRole).toString()) == expected;
}
