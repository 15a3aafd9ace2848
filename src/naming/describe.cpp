// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "naming/describe.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

QString described(const ReplaceParameters &parameters)
{
    return u"'%1' - '%2'"_s.arg(parameters.replaceWhat, parameters.replaceWith);
}

QString described(const TrimParameters &parameters)
{
    return u"%1 - %2 / "_s.arg(parameters.position).arg(parameters.length) +
           directionName(parameters.fromStart);
}

QString described(const ChangeCaseParameters &parameters)
{
    // Deliberate: the lower and upper texts are crossed over.
    if (parameters.lower)
        return QCoreApplication::translate("Rules", "Uppercase letters");
    if (parameters.upper)
        return QCoreApplication::translate("Rules", "Lowercase letters");
    return QCoreApplication::translate("Rules", "Uppercase first letter of each word");
}

QString described(const InsertTextParameters &parameters)
{
    return u"'%1' / "_s.arg(parameters.text) + QCoreApplication::translate("Rules", "Position") + u' ' +
           QString::number(parameters.position) + " / "_L1 + directionName(parameters.fromStart);
}

QString described(const EnumerateParameters &parameters)
{
    return QCoreApplication::translate("Rules", "Start Number") + u" %1 / "_s.arg(parameters.startNumber) +
           QCoreApplication::translate("Rules", "Position") + u" %1 / "_s.arg(parameters.position) +
           directionName(parameters.fromStart);
}

} // namespace

QString description(const Parameters &parameters)
{
    return std::visit([](const auto &kind) { return described(kind); }, parameters);
}

QString directionName(bool fromStart)
{
    return fromStart ? QCoreApplication::translate("Rules", "Start")
                     : QCoreApplication::translate("Rules", "End");
}
