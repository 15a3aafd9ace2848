// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/sortkey.h"

#include <QCollator>
#include <QLocale>
#include <QString>

#include <algorithm>
#include <deque>
#include <utility>
#include <vector>

/// The order in which people expect names: by the alphabet of the locale, and numbers by their value, so that
/// IMG_2 comes before IMG_10. Not to be used by two threads at once.
class NaturalOrder final
{
public:
    /// The C locale knows no numbers: it counts as English.
    explicit NaturalOrder(const QLocale &locale = QLocale::system().collation());

    /// A name's place in the order: what compares below another comes first. "a1" and "a01" have the same
    /// one; on Windows, whose order is the system's, the zero comes first.
    [[nodiscard]] SortKey key(const QString &name) const { return sortKey(collator, name); }

private:
    QCollator collator;
};

/// Collects items and gives them back in the order of operator<, equal ones in the order in which they came.
/// They are sorted as they come: with a hundred thousand of them no call takes more than milliseconds.
template <typename Item>
class SortedItems final
{
public:
    void add(Item item)
    {
        items.push_back(std::move(item));
        order.push_back(&items.back());
        if (order.size() % runLength == 0)
            completeRun();
    }

    /// Hands over all items so far, in order; none are left.
    template <typename Receiver>
    void take(Receiver receive)
    {
        std::size_t sorted = order.size() / runLength * runLength;
        std::stable_sort(at(sorted), order.end(), comesFirst);
        // Each bit of the number of runs is one sorted stretch, the longest first.
        for (std::size_t length = runLength; sorted > 0; length *= 2) {
            if (sorted & length) {
                sorted -= length;
                std::inplace_merge(at(sorted), at(sorted + length), order.end(), comesFirst);
            }
        }
        for (Item *item : order)
            receive(std::move(*item));
        order.clear();
        items.clear();
    }

private:
    static constexpr std::size_t runLength = 1024; // a power of two

    static bool comesFirst(const Item *left, const Item *right) { return *left < *right; }
    auto at(std::size_t position) { return order.begin() + static_cast<std::ptrdiff_t>(position); }

    void completeRun()
    {
        const std::size_t end = order.size();
        std::stable_sort(at(end - runLength), order.end(), comesFirst);
        for (std::size_t length = runLength; (end & length) == 0; length *= 2)
            std::inplace_merge(at(end - 2 * length), at(end - length), order.end(), comesFirst);
    }

    std::deque<Item> items;
    /// Moved instead of the items: a sort key cannot be moved cheaply.
    std::vector<Item *> order;
};
