// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/filepath.h"
#include "run/outcome.h"

#include <QList>

class QMessageBox;

/// A row that a run did not rename.
struct Failure
{
    int row = 0;
    FilePath file;
    Outcome outcome;
};

using Failures = QList<Failure>;

/// Gives a box that reports a run a button for the rows that were not renamed, if there are any. It leaves
/// the box open; the failures have to live as long as the box.
void addDetailsButton(QMessageBox *box, const Failures &failures);
