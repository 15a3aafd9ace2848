// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/regexp.h"

#include "rules/patterncost.h"

#include <QRegExp>

using namespace Qt::StringLiterals;

namespace {

// In place of a pattern that the engine must not see.
const auto invalidPattern = u"("_s;

} // namespace

RegExp::RegExp(const QString &pattern)
    : engine(std::make_shared<const QRegExp>(isAffordablePattern(pattern) ? pattern : invalidPattern,
                                             Qt::CaseSensitive, QRegExp::RegExp))
{
}

QString RegExp::replacedIn(const QString &text, const QString &replacement) const
{
    return engine->replaceIn(text, replacement);
}

QString RegExp::removedFrom(const QString &text) const
{
    return engine->removeIn(text);
}
