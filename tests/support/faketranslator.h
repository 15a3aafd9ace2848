// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QTranslator>

#include <functional>
#include <utility>

/// A language of a test's own, spoken while it lives: what the function makes of a text in its context. A
/// null text stays as it is.
class FakeTranslator : public QTranslator
{
public:
    using Language = std::function<QString(QLatin1StringView context, const QString &text)>;

    explicit FakeTranslator(Language spoken)
        : language(std::move(spoken))
    {
        QCoreApplication::installTranslator(this);
    }
    ~FakeTranslator() override { QCoreApplication::removeTranslator(this); }
    Q_DISABLE_COPY_MOVE(FakeTranslator)

    [[nodiscard]] bool isEmpty() const final { return false; }
    [[nodiscard]] QString translate(const char *context, const char *text, const char * /*comment*/,
                                    int /*n*/) const final
    {
        return language(QLatin1StringView(context), QString::fromUtf8(text));
    }

private:
    Language language;
};
