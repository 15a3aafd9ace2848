// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/newname.h"

#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

NewName::NewName(QStringView newName)
{
    const qsizetype separator = std::max(newName.lastIndexOf(u'/'), newName.lastIndexOf(QDir::separator()));
    leadsElsewhere = separator >= 0;
    lastPartAt = separator + 1;
    const QStringView lastPart = newName.sliced(lastPartAt);
    if (!newName.isValidUtf16())
        refusal = Fate::NoText;
    else if (newName.contains(QChar::Null))
        refusal = Fate::NotAllowed;
    else if (lastPart.isEmpty() || lastPart == u"." || lastPart == u"..")
        refusal = Fate::Empty;
}
