// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// name with text inserted at position, counted in UTF-16 units from the start or from the end. A position
/// beyond the end pads the name with blanks first; one before the start leaves the name as it is, and so does
/// an empty text.
[[nodiscard]] QString insertedInto(QString name, const QString &text, int position, bool fromStart);
