// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QCollator>
#include <QString>

#ifdef Q_OS_WIN
/// The system's bytes. QCollatorSortKey holds them two by two, the second one counting for more, and what was
/// in memory behind them.
class SortKey final
{
public:
    explicit SortKey(QByteArray ofSystem)
        : bytes(std::move(ofSystem))
    {
    }
    /// Below zero: this one comes first.
    [[nodiscard]] int compare(const SortKey &other) const { return bytes.compare(other.bytes); }

private:
    QByteArray bytes;
};
#else
using SortKey = QCollatorSortKey;
#endif

/// A name's place in the order of the collator's locale.
[[nodiscard]] SortKey sortKey(const QCollator &collator, const QString &name);
