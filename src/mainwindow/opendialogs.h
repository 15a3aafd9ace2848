// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QList>

class ListWidgetFiles;

/// The dialogs of a window that are open, each before those that it opened itself.
[[nodiscard]] QList<QDialog *> openDialogs(const QWidget *window);
/// Whether commands may change the list: no dialog is open, not that of a run either, and no files are being
/// added.
[[nodiscard]] bool isAtRest(const ListWidgetFiles &list);
