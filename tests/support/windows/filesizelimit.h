// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/// Windows has no such limit: a test that needs it does not hold here.
class FileSizeLimit final
{
public:
    explicit FileSizeLimit(qint64 /*bytes*/) {}
    Q_DISABLE_COPY_MOVE(FileSizeLimit)
};
