// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QKeySequence>
#include <QList>

class QWidget;

/// "Add files and folders (Ctrl+O)"; the text alone where there is no key.
[[nodiscard]] QString tipWithKeys(const QString &text, const QList<QKeySequence> &keys);
/// Gives the window's buttons that have no text, or a key, tool tips with both. To be called when their names
/// for screen readers are there, and again in another language.
void setButtonTips(const QWidget *window);
