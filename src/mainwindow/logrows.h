// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

class QTableWidget;

/// Lets every row of the log be as high as its message in the width that it has.
void fitRowsToMessages(QTableWidget *log);
