// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/listorder.h"

NaturalOrder::NaturalOrder(const QLocale &locale)
    : collator(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale)
{
    collator.setNumericMode(true);
}
