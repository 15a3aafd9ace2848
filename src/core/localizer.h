// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>
#include <QTranslator>

class QTreeWidget;

/// One language on offer.
struct LanguageEntry
{
    QString language;
    QString country;
    /// Within the locale folder; empty for the built-in English.
    QString fileName;
    QString iconPath;
    /// For example "de_DE".
    QString code;
};

/// The process-wide translation manager: finds the translations in the folder "locale" beside the program and
/// installs the chosen one.
class Localizer final
{
public:
    static Localizer *instance();
    static void destroy();

    enum class Saved { Install, Ignore };

    Localizer() = default;
    Q_DISABLE_COPY_MOVE(Localizer)

    /// Fills the list of languages and installs the saved one, unless it is to be ignored: the interface is
    /// in English then, and the setting stays. To be called once.
    void discover(Saved saved = Saved::Install);

    /// Saves the code as the chosen language and installs its translation. A code without a translation, or a
    /// file that does not load, leaves the interface in English.
    void setLanguage(const QString &code);

    /// The first language with exactly this code, or null. Valid until the next discover().
    [[nodiscard]] LanguageEntry *find(const QString &code);

    /// Adds a row per language (code with flag, language, country) and selects the saved one, else English.
    void fillLanguageTree(QTreeWidget *tree) const;

private:
    void addDiscovered(const QString &fileName, Saved saved);
    bool load(const QString &path);

    QList<LanguageEntry> languages;
    // The translator reads from it for as long as it lives.
    QByteArray translation;
    QTranslator translator;
    QString localeDirectory;
};
