// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/plannedfiles.h"

#include "run/forecast.h"

QString PlannedFiles::newName(int row, const FilePath &file) const
{
    // Half a character stands for such bytes.
    if (!file.path.isValidUtf16())
        return QString(QChar(0xDC80));
    return ::newName(chain, file.name(), row);
}

bool PlannedFiles::makePlan(const Shell &shell)
{
    madePlan = std::make_unique<Plan>(view);
    for (int row = 0; row < count(); ++row) {
        const FilePath file = list.file(row);
        madePlan->add(file, newName(row, file));
        if (shell.isInterrupted())
            return false;
    }
    madePlan->make();
    told.reserve(static_cast<size_t>(count()));
    for (int row = 0; row < count(); ++row)
        told.emplace_back(madePlan->outcome(row));
    return !shell.isInterrupted();
}

bool PlannedFiles::foretell(const Shell &shell)
{
    Progress progress(shell);
    Forecast forecast(view);
    for (int row = 0; row < count(); ++row) {
        forecast.add(list.file(row));
        if (shell.isInterrupted())
            return false;
    }
    told.reserve(static_cast<size_t>(count()));
    for (int row = 0; row < count(); ++row) {
        const FilePath file = list.file(row);
        const QString name = newName(row, file);
        while (!forecast.isReady(file, name)) {
            if (shell.isInterrupted())
                return false;
        }
        const Outcome outcome = forecast.next(file, name);
        told.emplace_back(outcome);
        if (shell.isInterrupted())
            return false;
        progress.show("Checked", row, count());
    }
    return true;
}

Outcome PlannedFiles::outcome(int row) const
{
    const Told &one = told.at(static_cast<size_t>(row));
    return {.fate = static_cast<Fate>(one.fate),
            .reason = static_cast<Fate>(one.reason),
            .row = one.row,
            .path = {}};
}

void PlannedFiles::setOutcome(int row, const Outcome &outcome)
{
    told.at(static_cast<size_t>(row)) = Told(outcome);
}

PlanCounts PlannedFiles::counts() const
{
    PlanCounts counts;
    for (int row = 0; row < count(); ++row) {
        const Outcome one = outcome(row);
        counts.renamed += one.isRenamed() ? 1 : 0;
        counts.unchanged += one.reason == Fate::Unchanged ? 1 : 0;
        counts.stuck += isStuck(one) ? 1 : 0;
        counts.unknown += one.reason == Fate::Unknown ? 1 : 0;
    }
    return counts;
}

bool isStuck(const Outcome &outcome)
{
    return !outcome.isRenamed() && outcome.reason != Fate::Unchanged;
}
