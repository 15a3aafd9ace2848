// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/forecastfolder.h"

#include "run/spelling.h"

using Spelling = FolderTraits::Spelling;

ForecastFolder::ForecastFolder(const DiskView &onView, const QString &ofPath)
    : view(onView)
    , path(ofPath)
{
}

void ForecastFolder::addRow(QStringView name, int row)
{
    rows.append({namesOfRows.keep(name), row});
    expectRow();
}

bool ForecastFolder::read(int atMost)
{
    if (!isRead)
        isRead = hasNames ? placeRows(atMost) : readNames(atMost);
    return isRead;
}

void ForecastFolder::giveUp()
{
    known.state = FolderTraits::State::Unreadable;
    isRead = true;
}

bool ForecastFolder::readNames(int atMost)
{
    if (!reader) {
        reader = view.open(path);
        known = reader->traits();
        // Those that are there, and those that come.
        names.reserve(2 * expectedRows);
    }
    for (int i = 0; i < atMost; ++i) {
        const std::optional<FolderEntry> entry = reader->next();
        if (!entry) {
            reader.reset();
            hasNames = true;
            if (known.spelling == Spelling::Unknown)
                findOutSpelling();
            return placeRows(atMost - i);
        }
        put(entry->name, {.isThere = true, .kind = entry->kind});
    }
    return false;
}

bool ForecastFolder::placeRows(int atMost)
{
    const qsizetype end = std::min(rows.size(), placedRows + atMost);
    for (; placedRows < end; ++placedRows) {
        const Row &row = rows.at(placedRows);
        Entry *entry = find(row.name);
        if (entry && entry->row < 0)
            entry->row = row.row;
    }
    if (placedRows < rows.size())
        return false;
    rows.clear();
    rows.squeeze();
    namesOfRows = {};
    return true;
}

/// By asking for a file under a spelling that is not in the listing.
void ForecastFolder::findOutSpelling()
{
    for (auto name = names.keyBegin(); name != names.keyEnd(); ++name) {
        const QString other = otherCase(*name);
        if (names.contains(other))
            continue;
        const auto file = view.identity(path + *name);
        if (!file)
            continue;
        const auto same = view.identity(path + other);
        known.spelling = same ? Spelling::AnyCase : Spelling::Exact;
        if (same) {
            // Whoever gives each spelling a number of its own takes the change of case for another file.
            canChangeCase = same->isSameFile(*file);
            foldNames();
        }
        return;
    }
    for (auto name = names.keyBegin(); name != names.keyEnd(); ++name)
        ++alike[foldedName(*name, Spelling::AnyCase)];
}

void ForecastFolder::foldNames()
{
    const QHash<QStringView, Entry *> exact = std::exchange(names, {});
    names.reserve(exact.size());
    for (auto name = exact.begin(); name != exact.end(); ++name)
        names.insert(store.keep(keyOf(name.key())), name.value());
}

QStringView ForecastFolder::keyOf(QStringView name) const
{
    if (known.names == FolderTraits::Names::Windows) {
        while (endsInDotOrBlank(name))
            name.chop(1);
    }
    if (known.spelling == Spelling::Exact || known.spelling == Spelling::Unknown)
        return name;
    folded = foldedName(name, known.spelling);
    return folded;
}

ForecastFolder::Entry *ForecastFolder::find(QStringView name)
{
    return names.value(keyOf(name));
}

void ForecastFolder::put(QStringView name, const Entry &entry)
{
    names.insert(store.keep(keyOf(name)), &entries.emplace_back(entry));
}

void ForecastFolder::insert(Entry *gone, QStringView name, int row, std::optional<FileIdentity::Kind> kind)
{
    const Entry entry{.row = row, .isThere = true, .kind = kind};
    if (gone)
        *gone = entry;
    else
        put(name, entry);
    if (known.spelling == Spelling::Unknown)
        ++alike[foldedName(name, Spelling::AnyCase)];
}

void ForecastFolder::remove(Entry *entry, QStringView name)
{
    entry->isThere = false;
    if (known.spelling == Spelling::Unknown)
        --alike[foldedName(name, Spelling::AnyCase)];
}

ForecastFolder::Entry &ForecastFolder::claim(QStringView name, int row)
{
    // One look for both: of a name that is there, too, the key is kept a second time.
    Entry *&entry = names[store.keep(keyOf(name))];
    if (!entry)
        entry = &entries.emplace_back();
    if (entry->taker >= 0)
        return *entry;
    entry->taker = row;
    if (known.spelling == Spelling::Unknown)
        ++alike[foldedName(name, Spelling::AnyCase)];
    return *entry;
}

void ForecastFolder::doubt(Entry *entry, QStringView name)
{
    if (entry)
        entry->isSure = false;
    else
        put(name, {.isSure = false, .kind = {}});
}

bool ForecastFolder::mayClash(QStringView name, QStringView ownName) const
{
    if (known.spelling != Spelling::Unknown)
        return false;
    const QString key = foldedName(name, Spelling::AnyCase);
    const int own = foldedName(ownName, Spelling::AnyCase) == key ? 1 : 0;
    return alike.value(key) > own;
}

std::optional<Fate> ForecastFolder::refusalOf(QStringView name) const
{
    if (known.names == FolderTraits::Names::Any)
        return std::nullopt;
    const bool isWindows = known.names == FolderTraits::Names::Windows;
    if (hasForbiddenCharacter(name))
        return known.names == FolderTraits::Names::Unknown ? Fate::Unknown : Fate::NotAllowed;
    if (namesDevice(name))
        return isWindows ? Fate::NotAllowed : Fate::Unknown;
    // Windows drops them; something has to be left.
    if (endsInDotOrBlank(name) && !isWindows)
        return Fate::Unknown;
    if (isWindows && keyOf(name).isEmpty())
        return Fate::NotAllowed;
    return std::nullopt;
}

bool ForecastFolder::mayMove(const QString &file) const
{
    if (!known.writable || !known.ownFilesOnly)
        return known.writable;
    const auto there = view.identity(file);
    return !there || there->isOwn;
}
