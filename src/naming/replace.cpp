// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "naming/transform.h"

ReplaceParameters::ReplaceParameters(const QString &what, const QString &with, bool isPattern)
    : replaceWhat(what)
    , replaceWith(with)
    , regExp(isPattern)
    , pattern(isPattern ? RegExp(what) : RegExp())
{
}

QString transformed(const ReplaceParameters &parameters, QString name, int /*row*/)
{
    if (parameters.regExp)
        return parameters.pattern.replacedIn(name, parameters.replaceWith);
    return name.replace(parameters.replaceWhat, parameters.replaceWith, Qt::CaseSensitive);
}
