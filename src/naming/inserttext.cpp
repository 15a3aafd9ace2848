// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "naming/insertion.h"
#include "naming/transform.h"

QString transformed(const InsertTextParameters &parameters, QString name, int /*row*/)
{
    return insertedInto(std::move(name), parameters.text, parameters.position, parameters.fromStart);
}
