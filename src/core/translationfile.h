// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

/// What QTranslator may be given of a .qm file's content: its language, contexts, hashes, messages and rules
/// for numbers. QTranslator trusts the lengths and positions in them; here they were looked at. Dependencies
/// are left out: a file that names itself would be loaded without end. Empty for a file that is damaged.
[[nodiscard]] QByteArray installableTranslation(const QByteArray &content);
