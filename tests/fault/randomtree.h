// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "fault/randominput.h"
#include "support/temptree.h"

/// A tree six folders deep, so that a few steps up stay inside it. The files' contents are numbered on; the
/// result is the folder that they are in, with a separator at its end.
inline QString plantTree(const TempTree &tree, RandomInput &random, int &fileNumber)
{
    const QString base = u"1/2/3/4/5/base/"_s;
    tree.addFolder(base + u"sub"_s);
    const int count = 2 + random.below(10);
    for (int i = 0; i < count; ++i) {
        const QString name = base + (random.chance(15) ? u"sub/"_s : QString()) + random.fileName();
        const QFileInfo there(tree.path(name));
        if (there.exists() || there.isSymLink())
            continue;
        const int what = random.below(100);
        if (what < 4)
            tree.addFolder(name);
        else if (what < 10)
            tree.addLink(name, tree.path(base + random.fileName()));
        else
            tree.addFile(name, "content " + QByteArray::number(++fileNumber));
    }
    return tree.path(base);
}
