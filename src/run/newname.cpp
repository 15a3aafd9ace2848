// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/newname.h"

#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

bool leadsElsewhere(QStringView newName)
{
    return std::any_of(newName.utf16(), newName.utf16() + newName.size(), [](char16_t character) {
        return character == u'/' || QChar(character) == QDir::separator();
    });
}

NewName::NewName(QStringView newName)
{
    lastPartAt = std::max(newName.lastIndexOf(u'/'), newName.lastIndexOf(QDir::separator())) + 1;
    const QStringView lastPart = newName.sliced(lastPartAt);
    if (!newName.isValidUtf16())
        refusal = Fate::NoText;
    else if (newName.contains(QChar::Null))
        refusal = Fate::NotAllowed;
    else if (lastPart.isEmpty() || lastPart == u"." || lastPart == u"..")
        refusal = Fate::Empty;
}
