// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QCollator>
#include <QLocale>
#include <QString>

#include <algorithm>
#include <utility>
#include <vector>

/// A name with its place in the natural order. Keys of one locale can be compared with each other.
class NaturalKey final
{
public:
    NaturalKey(QCollatorSortKey sortKey, QString name)
        : collation(std::move(sortKey))
        , text(std::move(name))
    {
    }

    [[nodiscard]] const QString &name() const { return text; }

    friend bool operator<(const NaturalKey &left, const NaturalKey &right)
    {
        const int order = left.collation.compare(right.collation);
        // "a1" and "a01" are alike to the collation, and yet two files.
        return order < 0 || (order == 0 && left.text < right.text);
    }

private:
    QCollatorSortKey collation;
    QString text;
};

/// The order in which people expect names: by the alphabet of the locale, and numbers by their value, so that
/// IMG_2 comes before IMG_10. Not to be used by two threads at once.
class NaturalOrder final
{
public:
    /// The C locale knows no numbers: it counts as English.
    explicit NaturalOrder(const QLocale &locale = QLocale::system().collation());

    [[nodiscard]] NaturalKey key(const QString &name) const;

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
        if (items.size() % runLength == 0)
            completeRun();
    }

    /// All items so far, in order; none are left.
    [[nodiscard]] std::vector<Item> take()
    {
        std::size_t sorted = items.size() / runLength * runLength;
        std::stable_sort(at(sorted), items.end());
        // Each bit of the number of runs is one sorted stretch, the longest first.
        for (std::size_t length = runLength; sorted > 0; length *= 2) {
            if (sorted & length) {
                sorted -= length;
                std::inplace_merge(at(sorted), at(sorted + length), items.end());
            }
        }
        return std::exchange(items, {});
    }

private:
    static constexpr std::size_t runLength = 1024; // a power of two

    auto at(std::size_t position) { return items.begin() + static_cast<std::ptrdiff_t>(position); }

    void completeRun()
    {
        const std::size_t end = items.size();
        std::stable_sort(at(end - runLength), items.end());
        for (std::size_t length = runLength; (end & length) == 0; length *= 2)
            std::inplace_merge(at(end - 2 * length), at(end - length), items.end());
    }

    std::vector<Item> items;
};
