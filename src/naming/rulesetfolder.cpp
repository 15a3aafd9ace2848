// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "naming/rulesetfolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct RuleSets
{
    Q_DECLARE_TR_FUNCTIONS(RuleSets)
};

} // namespace

QString fileNameOfSet(const QString &name)
{
    // The longest name of a file has 255 bytes in UTF-8; a character of a set's name takes three at most.
    constexpr qsizetype mostCharacters = 70;
    QString result = name.left(mostCharacters);
    for (QChar &character : result) {
        if (character.unicode() < 0x20 || u"<>:\"/\\|?*"_s.contains(character))
            character = u'_';
    }
    if (result.endsWith(u'.') || result.startsWith(u'.'))
        result.replace(u'.', u'_');
    if (!result.isValidUtf16())
        result.chop(1);
    // On Windows "con", "nul" and others are devices, whatever stands behind a dot.
    static constexpr std::array devices{"con"_L1, "prn"_L1, "aux"_L1, "nul"_L1, "com"_L1, "lpt"_L1};
    const QString first = result.section(u'.', 0, 0).trimmed().toLower();
    if (std::any_of(devices.begin(), devices.end(), [&](QLatin1StringView device) {
            return first == device || (first.size() == 4 && first.startsWith(device));
        }))
        result.prepend(u'_');
    return result;
}

std::optional<RuleSet> readRuleSet(const QString &path, QString *error)
{
    QFile file(path);
    // What is no file, such as a pipe, may never answer.
    if (QFileInfo(path).exists() && !QFileInfo(path).isFile()) {
        *error = RuleSets::tr("is no file");
        return std::nullopt;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        *error = file.errorString();
        return std::nullopt;
    }
    RuleSetError wrong;
    auto set = ruleSetFromJson(file.read(mostBytesOfSet + 1), &wrong);
    if (!set)
        *error = wrong.text();
    return set;
}

QString writeRuleSet(const QString &path, const RuleSet &set)
{
    RuleSetError wrong;
    const auto json = jsonOf(set, &wrong);
    if (!json)
        return wrong.text();
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(*json) != json->size() || !file.commit())
        return file.errorString();
    return {};
}

QList<RuleSetFolder::Entry> RuleSetFolder::list() const
{
    const QFileInfoList files =
        QDir(folder).entryInfoList({u'*' + QString(ruleSetSuffix)}, QDir::Files | QDir::Hidden, QDir::Name);
    QList<Entry> entries;
    for (const QFileInfo &file : files) {
        QString error;
        const auto set = readRuleSet(file.filePath(), &error);
        entries.append({set ? set->name : file.fileName().chopped(ruleSetSuffix.size()), file.filePath()});
    }
    std::stable_sort(entries.begin(), entries.end(), [](const Entry &one, const Entry &other) {
        return one.name.localeAwareCompare(other.name) < 0;
    });
    return entries;
}

QString RuleSetFolder::find(const QString &name) const
{
    const QList<Entry> entries = list();
    const auto found =
        std::find_if(entries.begin(), entries.end(), [&](const Entry &entry) { return entry.name == name; });
    return found == entries.end() ? QString() : found->path;
}

QString RuleSetFolder::save(const RuleSet &set) const
{
    const QString path = find(set.name);
    if (!path.isEmpty())
        return writeRuleSet(path, set);
    // Whether that worked shows in what is done with it.
    QDir().mkpath(folder);
    return writeRuleSet(freePath(set.name), set);
}

bool RuleSetFolder::holds(const QString &path) const
{
    const QString way = QFileInfo(path).canonicalPath();
    return !way.isEmpty() && way == QFileInfo(folder).canonicalFilePath() &&
           path.endsWith(ruleSetSuffix, Qt::CaseInsensitive);
}

QString RuleSetFolder::add(RuleSet set, QString *path) const
{
    const QString name = set.name;
    for (int number = 2; !find(set.name).isEmpty(); ++number) {
        const QString behind = u' ' + QString::number(number);
        set.name = name.left(mostCharactersOfSetName - behind.size()) + behind;
    }
    const QString error = save(set);
    if (path && error.isEmpty())
        *path = find(set.name);
    return error;
}

QString RuleSetFolder::rename(const Entry &entry, const QString &newName) const
{
    if (newName == entry.name)
        return {};
    if (!find(newName).isEmpty())
        return RuleSets::tr("another rule set has this name");
    QString error;
    auto set = readRuleSet(entry.path, &error);
    if (!set)
        return error;
    set->name = newName;
    error = writeRuleSet(freePath(newName), *set);
    // The new file is there already: a set may be there twice for a moment, never not at all.
    if (error.isEmpty() && !QFile::remove(entry.path))
        return RuleSets::tr("the file with the old name could not be removed");
    return error;
}

bool RuleSetFolder::remove(const Entry &entry) const
{
    return QFile::remove(entry.path);
}

QString RuleSetFolder::freePath(const QString &name) const
{
    const QString base = folder + u'/' + fileNameOfSet(name);
    QString path = base + ruleSetSuffix;
    for (int number = 2; QFileInfo::exists(path) || QFileInfo(path).isSymLink(); ++number)
        path = base + u' ' + QString::number(number) + ruleSetSuffix;
    return path;
}
