// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

class QByteArray;

/// Looks at what QMainWindow::saveState() and QWidget::saveGeometry() wrote before it is restored: Qt trusts
/// the numbers in it, and one wrong byte in the settings file would crash or stall every start. Both may
/// answer false also where Qt restores nothing anyway.
class SavedState final
{
public:
    /// Whether QMainWindow::restoreState() can be given this.
    [[nodiscard]] static bool isSafeLayout(const QByteArray &data);
    /// Whether QWidget::restoreGeometry() can be given this.
    [[nodiscard]] static bool isSafeGeometry(const QByteArray &data);
};
