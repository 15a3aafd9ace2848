// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QRandomGenerator>
#include <QString>
#include <QStringList>
#include <QWidget>

/// Mouse and keyboard, moved at random but repeatably.
class Hands final
{
public:
    explicit Hands(quint32 seed);

    [[nodiscard]] int below(int limit) { return generator.bounded(limit); }
    [[nodiscard]] bool chance(int percent) { return below(100) < percent; }
    [[nodiscard]] QString oneOf(const QStringList &texts) { return texts.at(below(int(texts.size()))); }

    /// Clicks anywhere in a window on something that takes clicks.
    void click(QWidget *window);
    /// Types a text, or presses keys, into what has the focus in a window.
    void type(QWidget *window);
    /// Gives a window another size.
    void resize(QWidget *window);

private:
    QRandomGenerator generator;
};
