// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "support/faketranslator.h"

/// "Rules" translated into itself with brackets around it; every other context stays untranslated.
class BracketTranslator final : public FakeTranslator
{
public:
    BracketTranslator()
        : FakeTranslator([](QLatin1StringView context, const QString &text) {
            return context == QLatin1StringView("Rules") ? u'[' + text + u']' : QString();
        })
    {
    }
};
