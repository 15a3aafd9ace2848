// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QWidget>

/// The first window of a kind, shown or not; null where there is none.
template <typename Window>
[[nodiscard]] Window *topLevel()
{
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (auto *window = qobject_cast<Window *>(widget))
            return window;
    }
    return nullptr;
}
