// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/finishrun.h"

#include <QDir>
#include <QDirIterator>
#include <QMap>

#include <algorithm>

/// Which file has which name: numbers by paths below a folder.
using Disposition = QMap<QString, quint64>;

inline Disposition dispositionOf(const QString &folder)
{
    Disposition found;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        if (const auto there = fileIdentity(path))
            found.insert(path.sliced(folder.size() + 1), there->number);
    }
    return found;
}

/// A third name begins so.
inline bool hasThirdName(const Disposition &found)
{
    return std::any_of(found.keyBegin(), found.keyEnd(), [](const QString &path) {
        return QStringView(path).sliced(path.lastIndexOf(u'/') + 1).startsWith(u".orv-");
    });
}

/// The rows of "a>b b>a s/c>d": files below a folder, and their new names.
class PlannedScene final
{
public:
    PlannedScene(const QString &rootFolder, const QString &text)
        : root(rootFolder)
    {
        for (const QString &row : text.split(u' ', Qt::SkipEmptyParts))
            rows.append({row.section(u'>', 0, 0), row.section(u'>', 1)});
    }

    /// The files of the rows, each with its name in it.
    void plant() const
    {
        for (const auto &[name, newName] : rows) {
            QDir().mkpath(QFileInfo(pathOf(name)).path());
            QFile file(pathOf(name));
            if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly) || file.write(name.toUtf8()) < 0)
                qFatal("cannot make %s", qPrintable(pathOf(name)));
        }
    }
    void fill(Plan &plan) const
    {
        for (const auto &[name, newName] : rows)
            plan.add(FilePath::of(pathOf(name)), newName);
        plan.make();
    }
    /// What the rows make of the files that are there.
    [[nodiscard]] Disposition after(const Disposition &before) const
    {
        Disposition after = before;
        for (const auto &[name, newName] : rows)
            after.remove(name);
        for (const auto &[name, newName] : rows)
            after.insert(QDir::cleanPath(QFileInfo(name).path() + u'/' + newName), before.value(name));
        return after;
    }
    [[nodiscard]] QString pathOf(const QString &name) const { return root + u'/' + name; }
    [[nodiscard]] int count() const { return static_cast<int>(rows.size()); }

private:
    QString root;
    QList<std::pair<QString, QString>> rows;
};

/// What people do about a run that was interrupted; what went wrong, or nothing.
inline QString finishRun(JournalFolder &journals, const QString &name, Disk &disk)
{
    const SystemDiskView view;
    const auto begun = FinishRun::begin(journals, name, disk, view);
    if (!begun.run)
        return QStringLiteral("not to be finished: %1").arg(static_cast<int>(begun.refusal));
    if (begun.run->refused() > 0)
        return QStringLiteral("%1 rows cannot be").arg(begun.run->refused());
    while (begun.run->next()) {
    }
    begun.run->end();
    return begun.run->journalError();
}

inline QString putBack(JournalFolder &journals, const QString &name, Disk &disk)
{
    const auto begun = UndoRun::begin(journals, name, disk, {});
    if (!begun.run)
        return QStringLiteral("not to be put back: %1").arg(static_cast<int>(begun.refusal));
    while (const auto step = begun.run->next()) {
        if (!step->isDone())
            return step->from + QStringLiteral(": ") + idOf(step->result);
    }
    begun.run->end(false);
    return begun.run->journalError();
}
