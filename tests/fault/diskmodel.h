// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "support/temptree.h"

#include <QByteArray>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMap>

#include <algorithm>

#include <optional>

/// What a folder tree holds and what a rename makes of it: a plain restatement of the file system's rules, to
/// compare the real one with. Paths are bytes, as the system sees them; a node is "D", "L" and the link's
/// target, or "F" and the file's content.
class DiskModel
{
public:
    explicit DiskModel(QString rootFolder)
        : root(std::move(rootFolder))
    {
        nodes.insert(QFile::encodeName(root), "D");
        QDirIterator entries(root, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                             QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            const QFileInfo entry(entries.next());
            nodes.insert(QFile::encodeName(entry.filePath()), describe(entry));
        }
    }

    [[nodiscard]] bool operator==(const DiskModel &other) const { return nodes == other.nodes; }

    /// Where the path leads: nothing if a folder on the way does not exist or the last part names no entry
    /// that could be made. leftRoot tells whether the way goes above the root.
    [[nodiscard]] std::optional<QByteArray> resolve(const QString &path, bool *leftRoot = nullptr) const
    {
        const QByteArray top = QFile::encodeName(root);
        const QByteArray prefix = top + "/";
        const QByteArray bytes = QFile::encodeName(path);
        // Half a character cannot be written.
        if (!path.isValidUtf16() || !bytes.startsWith(prefix))
            return std::nullopt;
        QByteArrayList parts = bytes.mid(prefix.size()).split('/');
        const QByteArray last = parts.takeLast();
        QByteArray folder = top;
        for (const QByteArray &part : std::as_const(parts)) {
            if (part.isEmpty() || part == ".")
                continue;
            if (part == ".." && folder == top) {
                if (leftRoot)
                    *leftRoot = true;
                return std::nullopt;
            }
            folder = part == ".." ? folder.left(folder.lastIndexOf('/')) : folder + '/' + part;
            if (nodes.value(folder) != "D")
                return std::nullopt;
        }
        if (last.isEmpty() || last == "." || last == ".." || last.size() > maxName)
            return std::nullopt;
        return folder + '/' + last;
    }

    /// Whether something is there that can be opened: a link counts only with its target, and links that lead
    /// in a circle lead nowhere.
    [[nodiscard]] bool exists(const QByteArray &path) const
    {
        std::optional<QByteArray> place = path;
        for (int links = 0; place && links <= maxLinks; ++links) {
            const QByteArray node = nodes.value(*place);
            if (!node.startsWith('L'))
                return !node.isEmpty();
            place = resolve(QFile::decodeName(node.mid(1)));
        }
        return false;
    }

    /// Moves what is at one path to another that must be free; false where that is not possible.
    bool rename(const QString &from, const QString &to)
    {
        const auto source = resolve(from);
        const auto target = resolve(to);
        if (!source || !target || !nodes.contains(*source) || nodes.contains(*target))
            return false;
        nodes.insert(*target, nodes.take(*source));
        return true;
    }

    /// The files' contents, sorted; none may ever be lost or doubled.
    [[nodiscard]] QByteArrayList contents() const
    {
        QByteArrayList result;
        for (const QByteArray &node : nodes) {
            if (node.startsWith('F'))
                result.append(node);
        }
        std::sort(result.begin(), result.end());
        return result;
    }

    /// The entries that only one of two trees has, for a failure's text.
    [[nodiscard]] QByteArray differenceTo(const DiskModel &other) const
    {
        QByteArray text;
        for (auto [path, node] : nodes.asKeyValueRange()) {
            if (other.nodes.value(path) != node)
                text += "\n  only here: " + path + " = " + node.left(80);
        }
        for (auto [path, node] : other.nodes.asKeyValueRange()) {
            if (nodes.value(path) != node)
                text += "\n  only there: " + path + " = " + node.left(80);
        }
        return text;
    }

private:
    static constexpr qsizetype maxName = 255;
    static constexpr qsizetype maxLinks = 40; // on the way to one file

    static QByteArray describe(const QFileInfo &entry)
    {
        if (entry.isSymLink())
            return 'L' + QFile::encodeName(entry.symLinkTarget());
        if (entry.isDir())
            return "D";
        QFile file(entry.filePath());
        if (!file.open(QIODevice::ReadOnly))
            qFatal("cannot read %s", qPrintable(entry.filePath()));
        return 'F' + file.readAll();
    }

    QString root;
    QMap<QByteArray, QByteArray> nodes;
};
