// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/pathorder.h"

#include <algorithm>
#include <numeric>

void sortFiles(PathList &list, std::optional<FileOrder::By> order, bool isReverse)
{
    if (!order && !isReverse)
        return;
    std::vector<int> rows(static_cast<size_t>(list.count()));
    if (order) {
        FilesToSort files;
        files.paths.reserve(list.count());
        for (int row = 0; row < list.count(); ++row)
            files.paths.append(list.file(row).path);
        const QList<int> sorted =
            sortedFiles(files, {*order, isReverse ? Qt::DescendingOrder : Qt::AscendingOrder}, false);
        rows.assign(sorted.begin(), sorted.end());
    } else {
        std::iota(rows.rbegin(), rows.rend(), 0);
    }
    list.reorder(std::move(rows));
}
