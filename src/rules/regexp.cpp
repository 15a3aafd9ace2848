// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/regexp.h"

#include <QRegExp>

RegExp::RegExp(const QString &pattern)
    : engine(std::make_shared<const QRegExp>(pattern, Qt::CaseSensitive, QRegExp::RegExp))
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
