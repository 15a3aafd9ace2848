// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/// The roots of the volumes that a person may keep files on: the drives of Windows; elsewhere "/", and what
/// is mounted of disks and networks, save what is the system's own. None of them is asked for anything: a
/// network that does not answer holds up nobody.
[[nodiscard]] QStringList mountedVolumes();
