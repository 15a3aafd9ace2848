// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "naming/insertion.h"
#include "naming/transform.h"

using namespace Qt::StringLiterals;

QString transformed(const EnumerateParameters &parameters, QString name, int row)
{
    const qint64 number = qint64{row} + parameters.startNumber;
    const QString text = u"%1"_s.arg(number, parameters.leadingZeros + 1, 10, QChar(u'0'));
    return insertedInto(std::move(name), text, parameters.position, parameters.fromStart);
}
