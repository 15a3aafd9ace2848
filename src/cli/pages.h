// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

/// What packages bring along, made of the table of options: the manual page, and what shells propose.
[[nodiscard]] QByteArray manualPage(const QByteArray &date);
[[nodiscard]] QByteArray bashCompletion();
[[nodiscard]] QByteArray zshCompletion();
[[nodiscard]] QByteArray fishCompletion();
