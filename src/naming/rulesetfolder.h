// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "naming/ruleset.h"

#include <QString>

/// Reads a set from any file; nothing, and why, where it is none.
[[nodiscard]] std::optional<RuleSet> readRuleSet(const QString &path, QString *error);

/// Writes the whole file or leaves it as it was. The error is empty when it was written.
[[nodiscard]] QString writeRuleSet(const QString &path, const RuleSet &set);

/// The name of a set's file without its end: one that every file system takes, short enough for what
/// QSaveFile adds to it for a while.
[[nodiscard]] QString fileNameOfSet(const QString &name);

/// How files of rule sets end, with the dot.
inline constexpr QLatin1StringView ruleSetSuffix{".orvanto-rules"};

/// The rule sets that a person saved, each in a file that is named after it. The folder is made when the
/// first is saved.
class RuleSetFolder final
{
public:
    struct Entry
    {
        /// That of the set, or of its file where no set can be read from it.
        QString name;
        QString path;
    };

    explicit RuleSetFolder(QString folderPath)
        : folder(std::move(folderPath))
    {
    }

    /// All of them by name, anew from the disk.
    [[nodiscard]] QList<Entry> list() const;
    /// The file of the set of that name; empty where there is none.
    [[nodiscard]] QString find(const QString &name) const;

    /// Whether this is the file of one of them, whatever way leads to it.
    [[nodiscard]] bool holds(const QString &path) const;

    /// In the place of the one of the same name, if there is one. The error is empty when it was saved.
    [[nodiscard]] QString save(const RuleSet &set) const;
    /// Under its own name, or with a number behind it where that is in use: nothing is replaced. The path is
    /// that of its file then.
    [[nodiscard]] QString add(RuleSet set, QString *path = nullptr) const;
    /// Does nothing but tell where another set has the name.
    [[nodiscard]] QString rename(const Entry &entry, const QString &newName) const;
    /// False where it could not be removed.
    [[nodiscard]] bool remove(const Entry &entry) const;

private:
    [[nodiscard]] QString freePath(const QString &name) const;

    QString folder;
};
