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
    return engine->isValid() ? engine->replaceIn(text, replacement) : text;
}

QString RegExp::removedFrom(const QString &text) const
{
    return engine->isValid() ? engine->removeIn(text) : text;
}
