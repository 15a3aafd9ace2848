// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/fileorder.h"

#include "platform/fileidentity.h"
#include "run/filepath.h"
#include "run/listorder.h"

#include <QHash>
#include <QStringTokenizer>

#include <algorithm>
#include <limits>
#include <optional>
#include <vector>

namespace {

/// A file, with what decides on its place.
struct Candidate
{
    qint64 value = 0;
    /// Decides where the values are equal.
    std::optional<SortKey> key;
    int index = 0;
    bool isDescending = false;

    bool operator<(const Candidate &other) const
    {
        if (value != other.value)
            return value < other.value;
        if (!key)
            return false;
        const int order = key->compare(*other.key);
        return isDescending ? order > 0 : order < 0;
    }
};

/// Different texts by numbers, and the places of these in natural order.
class RankedTexts final
{
public:
    /// To be asked for every text before the first rank.
    [[nodiscard]] int numberOf(QStringView text)
    {
        // Files of one folder mostly follow one another.
        if (last < 0 || texts.at(last) != text)
            last = add(text.toString());
        return last;
    }

    void rank(const NaturalOrder &natural)
    {
        struct Text
        {
            std::vector<SortKey> keys;
            QString text;
            int number;
            bool operator<(const Text &other) const
            {
                const size_t both = std::min(keys.size(), other.keys.size());
                for (size_t i = 0; i < both; ++i) {
                    if (const int order = keys[i].compare(other.keys[i]); order != 0)
                        return order < 0;
                }
                // Two texts may have one place: their files do not mix.
                return keys.size() != other.keys.size() ? keys.size() < other.keys.size() : text < other.text;
            }
        };
        SortedItems<Text> sorted;
        for (int number = 0; number < texts.size(); ++number)
            sorted.add({keysOf(texts.at(number), natural), texts.at(number), number});
        ranks.resize(texts.size());
        int rank = 0;
        sorted.take([&](Text &&text) { ranks[text.number] = rank++; });
    }

    [[nodiscard]] int rankOf(int number) const { return ranks.at(number); }

private:
    /// Folder by folder: no separator comes before all that names may have, in every system's order.
    [[nodiscard]] std::vector<SortKey> keysOf(const QString &text, const NaturalOrder &natural)
    {
        std::vector<SortKey> all;
        for (const QStringView part : QStringTokenizer(text, u'/')) {
            auto key = keys.constFind(part);
            if (key == keys.constEnd())
                key = keys.insert(part, natural.key(part.toString()));
            all.push_back(*key);
        }
        return all;
    }

    [[nodiscard]] int add(const QString &text)
    {
        const auto known = numbers.constFind(text);
        if (known != numbers.constEnd())
            return *known;
        texts.append(text);
        return *numbers.insert(text, static_cast<int>(texts.size()) - 1);
    }

    QStringList texts;
    QHash<QString, int> numbers;
    /// Of parts of the texts.
    QHash<QStringView, SortKey> keys;
    QList<int> ranks;
    int last = -1;
};

/// Without the dot; empty where there is none but at the front.
QStringView extensionOf(const FilePath &file)
{
    const QStringView name = QStringView(file.path).sliced(file.nameAt);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? name.sliced(dot + 1) : QStringView();
}

/// No value where nothing is, or nobody may look.
std::optional<qint64> numberOnDisk(const QString &path, FileOrder::By by)
{
    const auto file = fileIdentity(path);
    if (!file)
        return std::nullopt;
    return by == FileOrder::By::Size ? file->size : file->modified;
}

/// One sorting of files.
class Sorting final
{
public:
    Sorting(const FilesToSort &filesToSort, FileOrder wantedOrder)
        : files(filesToSort)
        , order(wantedOrder)
    {
    }

    [[nodiscard]] QList<int> run(const std::atomic<bool> &isCancelled)
    {
        if (isRanked()) {
            for (qsizetype i = 0; i < files.paths.size() && !isCancelled; ++i)
                textNumbers.append(texts.numberOf(textOf(paths.split(files.paths.at(i)))));
            texts.rank(natural);
        }
        SortedItems<Candidate> candidates;
        for (int i = 0; i < files.paths.size() && !isCancelled; ++i)
            candidates.add(candidate(i));
        QList<int> sorted;
        if (isCancelled)
            return sorted;
        sorted.reserve(files.paths.size());
        candidates.take([&sorted](Candidate &&file) { sorted.append(file.index); });
        return sorted;
    }

private:
    using By = FileOrder::By;

    [[nodiscard]] bool isRanked() const { return order.by == By::Path || order.by == By::Extension; }
    [[nodiscard]] QStringView textOf(const FilePath &file) const
    {
        return order.by == By::Path ? file.folder() : extensionOf(file);
    }

    [[nodiscard]] Candidate candidate(int i)
    {
        Candidate file;
        file.index = i;
        file.isDescending = order.direction == Qt::DescendingOrder;
        if (order.by == By::Name || order.by == By::Path)
            file.key = natural.key(paths.split(files.paths.at(i)).name());
        const std::optional<qint64> value = valueOf(i);
        if (!value)
            file.value = std::numeric_limits<qint64>::max();
        else
            file.value = file.isDescending ? -*value : *value;
        return file;
    }

    [[nodiscard]] std::optional<qint64> valueOf(int i) const
    {
        switch (order.by) {
        case By::Path:
        case By::Extension:
            return texts.rankOf(textNumbers.at(i));
        case By::Size:
        case By::Modified:
            return numberOnDisk(files.paths.at(i), order.by);
        case By::Adding:
            return files.numbers.at(i);
        case By::Name:
            break;
        }
        return 0;
    }

    const FilesToSort &files;
    const FileOrder order;
    const NaturalOrder natural;
    FilePaths paths;
    /// Of folders, or of extensions.
    RankedTexts texts;
    QList<int> textNumbers;
};

} // namespace

QList<int> sortedFiles(const FilesToSort &files, FileOrder order, const std::atomic<bool> &isCancelled)
{
    return Sorting(files, order).run(isCancelled);
}
