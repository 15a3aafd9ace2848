// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/newname.h"

#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool isSeparator(char16_t character)
{
    return character == u'/' || QChar(character) == QDir::separator();
}

/// Whether it has to be looked at more closely than most names.
bool isPlain(QStringView name)
{
    return std::none_of(name.utf16(), name.utf16() + name.size(), [](char16_t character) {
        return isSeparator(character) || character == 0 || QChar::isSurrogate(character);
    });
}

} // namespace

bool leadsElsewhere(QStringView newName)
{
    return std::any_of(newName.utf16(), newName.utf16() + newName.size(), isSeparator);
}

NewName::NewName(QStringView newName)
{
    const bool isSimple = isPlain(newName);
    if (!isSimple)
        lastPartAt = std::max(newName.lastIndexOf(u'/'), newName.lastIndexOf(QDir::separator())) + 1;
    const QStringView lastPart = newName.sliced(lastPartAt);
    if (!isSimple && !newName.isValidUtf16())
        refusal = Fate::NoText;
    else if (!isSimple && newName.contains(QChar::Null))
        refusal = Fate::NotAllowed;
    else if (lastPart.isEmpty() || lastPart == u"." || lastPart == u"..")
        refusal = Fate::Empty;
}
