// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// The first top-level element "Settings" of a settings file, behind what stands before the first element of
/// all: a document that QDomDocument reads, which refuses a second top-level element. Empty where there is no
/// such element, and for a file that is not well-formed otherwise, or nested deeper than 100 elements.
[[nodiscard]] QString settingsElement(const QByteArray &xml);
