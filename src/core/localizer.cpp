// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "core/localizer.h"

#include "core/settingsstore.h"
#include "core/translationfile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QTreeWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

Localizer *theLocalizer = nullptr;

constexpr qint64 maxFileSize = qint64{16} * 1024 * 1024;

enum Column { CodeColumn, LanguageColumn, CountryColumn };

/// "app-de_DE.qm" gives "de_DE"; a name without "-" keeps its whole stem.
QString codeOf(const QString &fileName)
{
    const QString stem = fileName.left(fileName.lastIndexOf(u'.'));
    return stem.mid(stem.indexOf(u'-') + 1);
}

} // namespace

Localizer *Localizer::instance()
{
    if (!theLocalizer)
        theLocalizer = new Localizer;
    return theLocalizer;
}

void Localizer::destroy()
{
    delete theLocalizer;
    theLocalizer = nullptr;
}

void Localizer::discover(Saved saved)
{
    localeDirectory = QCoreApplication::applicationDirPath() + "/locale"_L1;
    // Deliberate: the built-in English is "en_UK" here, while setLanguage() takes "en_EN" for no translation.
    languages.append({u"English"_s, u"United Kingdom"_s, {}, u":/img/lang_en.png"_s, u"en_UK"_s});
    const QDir directory(localeDirectory);
    if (!directory.exists())
        return;
    const QStringList fileNames = directory.entryList({u"*.qm"_s});
    for (const QString &fileName : fileNames)
        addDiscovered(fileName, saved);
    QCoreApplication::processEvents();
}

void Localizer::addDiscovered(const QString &fileName, Saved saved)
{
    const QString code = codeOf(fileName);
    const QLocale locale(code);
    languages.append({QLocale::languageToString(locale.language()),
                      QLocale::territoryToString(locale.territory()), fileName,
                      u"%1/%2.png"_s.arg(localeDirectory, code), code});
    if (saved == Saved::Install &&
        SettingsStore::instance()->value(SettingKey::MiscLanguage, QVariant()) == QVariant(code))
        setLanguage(code);
}

void Localizer::setLanguage(const QString &code)
{
    SettingsStore::instance()->setValue(SettingKey::MiscLanguage, code);
    QCoreApplication::removeTranslator(&translator);
    if (code == "en_EN"_L1)
        return;
    const LanguageEntry *entry = find(code);
    if (entry && load(u"%1/%2"_s.arg(localeDirectory, entry->fileName)))
        QCoreApplication::installTranslator(&translator);
}

bool Localizer::load(const QString &path)
{
    QFile file(path);
    // Opening a pipe in the file's place would wait for its other end.
    if (!QFileInfo(file).isFile() || file.size() > maxFileSize || !file.open(QIODevice::ReadOnly))
        return false;
    translation = installableTranslation(file.readAll());
    return translator.load(reinterpret_cast<const uchar *>(translation.constData()),
                           static_cast<int>(translation.size()));
}

LanguageEntry *Localizer::find(const QString &code)
{
    const auto entry =
        std::find_if(languages.begin(), languages.end(),
                     [&code](const LanguageEntry &candidate) { return candidate.code == code; });
    return entry == languages.end() ? nullptr : &*entry;
}

void Localizer::fillLanguageTree(QTreeWidget *tree) const
{
    qsizetype longestName = 0;
    for (const LanguageEntry &entry : languages) {
        auto *item = new QTreeWidgetItem({entry.code, entry.language, entry.country});
        item->setIcon(CodeColumn, QIcon(entry.iconPath));
        tree->addTopLevelItem(item);
        longestName = std::max(longestName, entry.language.size());
    }
    // Deliberate: the code column takes its width from the language names.
    tree->setColumnWidth(CodeColumn, static_cast<int>(longestName + 4) * tree->font().pointSize());
    const QString saved = SettingsStore::instance()->value(SettingKey::MiscLanguage, QVariant()).toString();
    QList<QTreeWidgetItem *> found =
        tree->findItems(saved, Qt::MatchExactly | Qt::MatchCaseSensitive, CodeColumn);
    if (found.isEmpty())
        found = tree->findItems(u"English"_s, Qt::MatchExactly | Qt::MatchCaseSensitive, LanguageColumn);
    if (!found.isEmpty())
        tree->setCurrentItem(found.constFirst());
}
