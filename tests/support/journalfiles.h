// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/journalfolder.h"
#include "run/journalleddisk.h"
#include "run/journalreader.h"
#include "run/plannedrun.h"
#include "run/renamerun.h"
#include "run/systemdisk.h"
#include "run/undorun.h"
#include "support/temptree.h"

#include <memory>

/// A tree with a folder of journals beside the files, and runs over them.
class JournalledTree
{
public:
    TempTree tree;
    SystemDisk disk;
    JournalFolder journals{tree.path(QStringLiteral("data/undo"))};

    /// Renames files of the tree, each from the first name to the second, with a journal; gives its name.
    QString run(const QList<std::pair<QString, QString>> &renames)
    {
        auto journal = begin(static_cast<int>(renames.size()));
        renameAll(*journal, renames);
        const QString name = nameOf(*journal);
        journal->end(false);
        return name;
    }

    /// The same, ended by a kill: the journal stays as it is in the middle of a run.
    QString interruptedRun(const QList<std::pair<QString, QString>> &renames)
    {
        auto journal = begin(static_cast<int>(renames.size()));
        renameAll(*journal, renames);
        const QString name = nameOf(*journal);
        const QByteArray asItWas = bytes(name);
        journal->end(false);
        write(name, asItWas);
        return name;
    }

    /// A planned run of several renames that ends after the first of them.
    QString interruptedPlan(const QList<std::pair<QString, QString>> &renames)
    {
        const SystemDiskView view;
        Plan plan(view);
        for (const auto &[from, to] : renames)
            plan.add(FilePath::of(tree.path(from)), to);
        plan.make();
        QString error;
        const auto journal = journals.beginPlanned(QStringLiteral("1.2.3"), plan.order().size(), &error);
        if (!journal)
            qFatal("no journal: %s", qPrintable(error));
        PlannedRun planned(disk, plan, journal.get());
        while (planned.next() && planned.renamed() < 1) {
        }
        planned.end();
        return nameOf(*journal);
    }

    std::unique_ptr<Journal> begin(int rows)
    {
        QString error;
        auto journal = journals.begin(QStringLiteral("1.2.3"), rows, {}, &error);
        if (!journal)
            qFatal("no journal: %s", qPrintable(error));
        return journal;
    }

    void renameAll(Journal &journal, const QList<std::pair<QString, QString>> &renames)
    {
        JournalledDisk journalled(disk, journal);
        RenameRun rename(journalled);
        for (const auto &[from, to] : renames)
            (void)rename.next(FilePath::of(tree.path(from)), to);
    }

    /// Takes a journal back; the ids of the steps' results, in their order.
    QStringList undo(const QString &name)
    {
        const auto begun = UndoRun::begin(journals, name, disk, QStringLiteral("1.2.3"));
        if (!begun.run)
            return {QStringLiteral("refusal %1").arg(static_cast<int>(begun.refusal))};
        QStringList results;
        while (const auto step = begun.run->next())
            results.append(idOf(step->result));
        begun.run->end(false);
        return results;
    }

    /// The newest that Undo would take back, or Redo.
    [[nodiscard]] QString undoable() const { return nameOf(JournalFolder::undoable(journals.list())); }
    [[nodiscard]] QString redoable() const { return nameOf(JournalFolder::redoable(journals.list())); }

    [[nodiscard]] JournalInfo info(const QString &name) const
    {
        for (const JournalInfo &journal : journals.list()) {
            if (journal.name == name)
                return journal;
        }
        return {};
    }

    [[nodiscard]] QByteArray bytes(const QString &name) const
    {
        QFile file(journals.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(journals.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(name));
    }

    static QString nameOf(const Journal &journal) { return QFileInfo(journal.path()).fileName(); }
    static QString nameOf(const JournalInfo *journal) { return journal ? journal->name : QString(); }
};
