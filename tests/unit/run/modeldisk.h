// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/disk.h"
#include "run/diskview.h"

#include "namesofthesystem.h"

#include <QDir>
#include <QFileInfo>
#include <QMap>

/// A disk in memory, whose file systems are what a test wants them to be. Names that are one name there are
/// told by their lower case; links lead nowhere.
class ModelDisk final : public Disk, public DiskView
{
public:
    struct Node
    {
        FileIdentity::Kind kind = FileIdentity::Kind::File;
        quint64 number = 0;
    };
    struct Folder
    {
        FolderTraits traits;
        QMap<QString, Node> nodes;
        bool ignoresCase = false;
        /// As where each spelling of a name has a number of its own.
        bool numbersSpellings = false;
        int timesRead = 0;
        int timesAsked = 0;
    };

    /// Whether two files can be given each other's name at once.
    bool exchanges = false;
    /// Whether a file can be known again by its number; otherwise all look alike.
    bool keepsNumbers = true;
    /// By their full paths, which have a drive on Windows.
    mutable QMap<QString, Folder> folders;

    Folder &addFolder(const QString &path)
    {
        Folder &folder = folderAt(path);
        folder.traits.volume = 1;
        folder.traits.number = ++lastNumber;
        return folder;
    }
    void addFolderLikeTheSystems(const QString &path)
    {
        FolderTraits &traits = addFolder(path).traits;
        traits.names = namesOfTheSystem;
        traits.lengthUnit = lengthsOfTheSystem;
    }
    Folder &folderAt(const QString &path) { return folders[QFileInfo(path).absoluteFilePath()]; }
    void add(const QString &path, FileIdentity::Kind kind = FileIdentity::Kind::File)
    {
        const FilePath file = FilePath::of(path);
        folders[file.folder().toString()].nodes.insert(file.name(), {kind, ++lastNumber});
    }

    RenameResult rename(const FilePath &from, const QString &to) override
    {
        Folder *source = folderOf(from.path);
        Folder *target = folderOf(to);
        const QString name = lastPart(to);
        const QString oldName = lastPart(from.path);
        const QString old = source ? spelled(*source, oldName) : QString();
        if (old.isNull())
            return RenameResult::SourceMissing;
        if (!target)
            return RenameResult::Other;
        if (name.toUtf8().size() > target->traits.longestName)
            return RenameResult::TooLong;
        const QString there = spelled(*target, name);
        const bool isItself = target == source && there == old && oldName != name;
        if (!there.isNull() && (!isItself || target->numbersSpellings))
            return RenameResult::TargetExists;
        if (!source->traits.writable || !target->traits.writable)
            return RenameResult::NotPermitted;
        const Node node = source->nodes.take(old);
        target->nodes.insert(name, node);
        return RenameResult::Done;
    }

    std::optional<RenameResult> exchange(const FilePath &one, const QString &other) override
    {
        if (!exchanges)
            return std::nullopt;
        Folder *first = folderOf(one.path);
        Folder *second = folderOf(other);
        const QString name = lastPart(one.path);
        const QString otherName = lastPart(other);
        if (!first || !second || !first->nodes.contains(name) || !second->nodes.contains(otherName))
            return RenameResult::SourceMissing;
        std::swap(first->nodes[name], second->nodes[otherName]);
        return RenameResult::Done;
    }
    Volume volume(const QString & /*path*/) const override
    {
        return {.id = QStringLiteral("model"), .keepsNumbers = keepsNumbers};
    }

    std::optional<FileIdentity> identity(const QString &path) const override
    {
        const QString clean = QDir::cleanPath(path);
        if (folders.contains(clean)) {
            const FolderTraits &traits = folders[clean].traits;
            return FileIdentity{
                .volume = traits.volume, .number = traits.number, .kind = FileIdentity::Kind::Folder};
        }
        Folder *folder = folderOf(path);
        const QString name = clean.sliced(clean.lastIndexOf(u'/') + 1);
        const QString there = folder && !path.endsWith(u'.') ? spelled(*folder, name) : QString();
        if (there.isNull())
            return std::nullopt;
        ++folder->timesAsked;
        const Node &node = folder->nodes[there];
        const bool isOther = folder->numbersSpellings && there != name;
        return FileIdentity{.volume = folder->traits.volume,
                            .number = isOther ? node.number + 1000 : node.number,
                            .kind = node.kind};
    }

    std::unique_ptr<FolderReader> open(const QString &path) const override
    {
        const QString clean = QDir::cleanPath(path);
        if (!folders.contains(clean))
            return std::make_unique<Reader>(missingFolder());
        Folder &folder = folders[clean];
        ++folder.timesRead;
        return std::make_unique<Reader>(folder);
    }

private:
    class Reader final : public FolderReader
    {
    public:
        explicit Reader(const Folder &ofFolder)
            : folder(ofFolder)
        {
        }
        const FolderTraits &traits() const override { return folder.traits; }
        std::optional<FolderEntry> next() override
        {
            if (folder.traits.state != FolderTraits::State::There || at == folder.nodes.constEnd())
                return std::nullopt;
            const auto node = at++;
            return FolderEntry{node.key(), node->kind};
        }

    private:
        const Folder folder;
        QMap<QString, Node>::const_iterator at = folder.nodes.constBegin();
    };

    static QString lastPart(const QString &path) { return path.sliced(path.lastIndexOf(u'/') + 1); }
    static Folder missingFolder()
    {
        Folder missing;
        missing.traits.state = FolderTraits::State::Missing;
        return missing;
    }
    Folder *folderOf(const QString &path) const
    {
        const QString folder = QDir::cleanPath(path.first(path.lastIndexOf(u'/')));
        return folders.contains(folder) ? &folders[folder] : nullptr;
    }
    /// How the name is spelled in the folder; null if it is not there.
    static QString spelled(const Folder &folder, const QString &name)
    {
        if (folder.nodes.contains(name))
            return name;
        for (const QString &there : folder.nodes.keys()) {
            if (folder.ignoresCase && there.toLower() == name.toLower())
                return there;
        }
        return {};
    }

    quint64 lastNumber = 0;
};
