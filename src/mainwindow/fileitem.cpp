// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/fileitem.h"

#include "mainwindow/fatetexts.h"
#include "mainwindow/listwidgetfiles.h"

#include <tuple>

using namespace Qt::StringLiterals;

FileItem::FileItem(const QString &path, const RowText &shown, quint32 number)
    : filePath(path)
    , text(shown.text)
    , nameAt(static_cast<int>(shown.nameAt))
    , numberOfAdding(number)
{
}

FileItem *FileItem::clone() const
{
    return new FileItem(*this);
}

QVariant FileItem::data(int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return rowText();
    case Qt::UserRole:
        return filePath;
    case FateRole:
        return isTold() ? QVariant(idOf(toldFate)) : QVariant();
    case MarkRole:
        return static_cast<int>(mark());
    case OldNameRole:
        return oldName();
    case Qt::AccessibleDescriptionRole:
        return sentence();
    case Qt::ToolTipRole:
        return rowToolTip(sentence(), path());
    default:
        return QListWidgetItem::data(role);
    }
}

void FileItem::setData(int role, const QVariant &value)
{
    settle();
    if (role == Qt::UserRole) {
        setPath(value.toString());
        if (const QListWidget *list = listWidget()) {
            const QModelIndex index = list->indexFromItem(this);
            emit list->model()->dataChanged(index, index, {role});
        }
        return;
    }
    if (role == Qt::DisplayRole || role == Qt::EditRole) {
        text = value.toString();
        nameAt = 0;
    }
    QListWidgetItem::setData(role, value);
}

void FileItem::setPath(const QString &path)
{
    // The path decides what a text that waits would be.
    settle();
    filePath = path;
}

auto FileItem::contents()
{
    return std::tie(filePath, awaited, text, nameAt, awaitedRow, numberOfAdding, age, toldFate, toldReason,
                    otherRow, isPast);
}

void FileItem::swapWith(FileItem &other)
{
    auto mine = contents();
    auto its = other.contents();
    mine.swap(its);
}

void FileItem::awaitText(const std::shared_ptr<const RowNames> &names, int row)
{
    awaited = names;
    awaitedRow = row;
}

void FileItem::setRowText(const RowText &shown)
{
    awaited.reset();
    text = shown.text;
    nameAt = static_cast<int>(shown.nameAt);
    if (auto *list = static_cast<ListWidgetFiles *>(listWidget()))
        list->includeWidth(text);
}

void FileItem::settle() const
{
    if (!awaited)
        return;
    const std::shared_ptr<const RowNames> names = std::move(awaited);
    const_cast<FileItem *>(this)->setRowText(names->textOf(path(), awaitedRow));
}

const QString &FileItem::rowText() const
{
    settle();
    return text;
}

QString FileItem::shownName() const
{
    return rowText().sliced(nameAt);
}

void FileItem::tell(const Outcome &outcome, bool past)
{
    const auto *list = static_cast<ListWidgetFiles *>(listWidget());
    age = list ? list->ageOfFates() : 0;
    toldFate = outcome.fate;
    toldReason = outcome.reason;
    otherRow = outcome.row;
    isPast = past;
}

bool FileItem::isTold() const
{
    const auto *list = static_cast<ListWidgetFiles *>(listWidget());
    return list && age == list->ageOfFates();
}

std::optional<Fate> FileItem::fate() const
{
    return isTold() ? std::optional(toldFate) : std::nullopt;
}

FateMark FileItem::mark() const
{
    return isTold() ? markOf(toldFate, toldReason) : FateMark::None;
}

QString FileItem::sentence() const
{
    if (!isTold())
        return {};
    const Outcome outcome = {toldFate, toldReason, otherRow, {}};
    return isPast ? pastSentence(outcome) : futureSentence(outcome, FilePath::of(path()), shownName());
}

QVariant FileItem::oldName() const
{
    const QString onDisk = FilePath::of(path()).name();
    return onDisk == shownName() ? QVariant() : QVariant(onDisk);
}
