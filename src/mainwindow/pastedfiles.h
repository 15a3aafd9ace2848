// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QMimeData>
#include <QUrl>

/// The files that the clipboard holds: those that were copied in a file manager, or else those that a text
/// names, an absolute path a line, with or without quotes. Empty where the text says anything else; what it
/// names and is not there is left out.
[[nodiscard]] QList<QUrl> pastedFiles(const QMimeData &data);
