// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/// Those of a table of mounts as the kernel tells it in /proc/self/mountinfo.
[[nodiscard]] QStringList volumesOf(const QByteArray &mountTable);
