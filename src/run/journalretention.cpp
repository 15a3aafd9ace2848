// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/filelock.h"
#include "platform/sharedfile.h"
#include "run/journalfolder.h"

#include <QFile>
#include <QHash>
#include <QLockFile>

using namespace Qt::StringLiterals;

namespace {

/// A run with the undos and redos that belong to it: none means anything without the others.
struct Family
{
    QStringList names;
    qint64 bytes = 0;
    /// Whether it must stay, whatever it takes.
    bool stays = false;
};

/// The families, that with the newest run first.
class Families final
{
public:
    explicit Families(const QList<JournalInfo> &newestFirst)
    {
        // Runs are older than what takes them back.
        for (auto journal = newestFirst.crbegin(); journal != newestFirst.crend(); ++journal) {
            const QString root = roots.value(journal->takesBack, journal->name);
            roots.insert(journal->name, root);
            if (root == journal->name)
                order.prepend(root);
            Family &family = families[root];
            family.names.append(journal->name);
            family.bytes += journal->bytes;
            family.stays = family.stays || journal->isOpen || journal->state == JournalInfo::State::InHand ||
                           journal->name == newestFirst.first().name;
        }
    }

    [[nodiscard]] const QStringList &newestFirst() const { return order; }
    [[nodiscard]] const Family &at(const QString &root) const { return *families.constFind(root); }
    [[nodiscard]] QStringList of(const QString &name) const
    {
        return families.value(roots.value(name)).names;
    }

private:
    QHash<QString, QString> roots;
    QHash<QString, Family> families;
    QStringList order;
};

/// Undos of which nothing stands, with the redos that undid them: without them all is as it is with them.
QStringList withoutEffect(const QList<JournalInfo> &newestFirst)
{
    QStringList names;
    for (const JournalInfo &undo : newestFirst) {
        if (undo.isRun() || undo.standing > 0 || undo.kept > 0 || undo.renamed == 0)
            continue;
        QStringList group = {undo.name};
        for (const JournalInfo &redo : newestFirst) {
            if (redo.takesBack == undo.name)
                group.append(redo.name);
        }
        if (!group.contains(newestFirst.first().name))
            names += group;
    }
    return names;
}

} // namespace

void JournalFolder::prune()
{
    const auto lock = locked();
    if (!lock)
        return;
    QStringList empty;
    QList<JournalInfo> journals;
    for (const JournalInfo &journal : list()) {
        // A run that was killed before its first rename leaves these.
        if (journal.isEmpty)
            empty.append(journal.name);
        else
            journals.append(journal);
    }
    remove(empty);
    const auto isTooMuch = [](const QList<JournalInfo> &some) {
        qint64 bytes = 0;
        for (const JournalInfo &journal : some)
            bytes += journal.bytes;
        return some.size() > mostJournals || bytes > mostBytes;
    };
    if (isTooMuch(journals))
        remove(withoutEffect(journals));
    journals = list();
    const Families families(journals);
    qsizetype count = journals.size();
    qint64 bytes = 0;
    for (const JournalInfo &journal : journals)
        bytes += journal.bytes;
    for (auto root = families.newestFirst().crbegin(); root != families.newestFirst().crend(); ++root) {
        const Family &family = families.at(*root);
        if ((count <= mostJournals && bytes <= mostBytes) || family.stays)
            continue;
        remove(family.names);
        count -= family.names.size();
        bytes -= family.bytes;
    }
}

bool JournalFolder::forget(const QString &name)
{
    const auto lock = locked();
    if (!lock)
        return false;
    const QStringList names = Families(list()).of(name);
    return !names.isEmpty() && remove(names);
}

bool JournalFolder::forgetAll()
{
    const auto lock = locked();
    return lock && remove(names());
}

bool JournalFolder::remove(const QStringList &some)
{
    bool all = true;
    for (const QString &name : some) {
        QFile file(filePath(name));
        // Locked by whoever writes it, or takes it back.
        const bool isInHand = openShared(file, QIODevice::ReadOnly) && isLocked(file);
        file.close();
        all = !isInHand && removeShared(filePath(name)) && all;
    }
    return all;
}
