// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QTranslator>

/// "Rules" translated into itself with brackets around it; every other context stays untranslated.
class BracketTranslator final : public QTranslator
{
public:
    BracketTranslator() { QCoreApplication::installTranslator(this); }
    ~BracketTranslator() override { QCoreApplication::removeTranslator(this); }
    Q_DISABLE_COPY_MOVE(BracketTranslator)

    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *context, const char *source, const char * /*comment*/,
                                    int /*n*/) const override
    {
        if (qstrcmp(context, "Rules") != 0)
            return {};
        return u'[' + QString::fromUtf8(source) + u']';
    }
};
