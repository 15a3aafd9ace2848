// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QDomDocument>
#include <QMap>
#include <QString>
#include <QVariant>

class QSaveFile;

/// The settings that have a number. Deliberate: 8 to 16 stay unassigned.
enum class SettingKey : int {
    MiscIsFirstStart = 0,
    MiscLanguage = 1,
    WindowOpacity = 2,
    WindowStayOnTop = 3,
    WindowLayoutData = 4,
    WindowGeometryData = 5,
    WindowLayoutRestore = 6,
    WindowGeometryRestore = 7,
    LogSave = 17,
    LogIncludeDebugInfo = 18,
    MiscMinimizeToTrayIcon = 19,
    MiscDisableSplashScreen = 20,
    MiscMinimizeOnStart = 21,
    VersionCheckAuto = 22,
    VersionCheckLast = 23,
    VersionCheckSkip = 24,
};

/// The process-wide settings, held as the document of one XML file. Every read names its own default; nothing
/// is written to disk until save(). Used on the GUI thread only.
class SettingsStore
{
public:
    /// The single store, made on the first call. Making it creates the folder "config" in the data directory.
    static SettingsStore *instance();
    /// Deletes the single store, if there is one. What was not saved is lost.
    static void destroy();

    SettingsStore();
    virtual ~SettingsStore();
    Q_DISABLE_COPY_MOVE(SettingsStore)

    /// Also creates the folder "config" in the data directory.
    void setFilePath(const QString &path);

    /// Takes over the first top-level element "Settings" of the file. A file that is missing, unreadable, not
    /// well-formed, larger than 16 MiB or nested deeper than 100 elements, or has no such element, is
    /// silently ignored.
    void load();

    /// Replaces the file as a whole: a reader sees the old file or the new one, at every moment. Where the
    /// folder allows no replacement the file is written in place. What load() ignored is kept beside it then,
    /// with ".bad" behind its name. Failures, and that, go to the debug channel only.
    void save();

    void setValue(SettingKey key, const QVariant &value, const QString &id = {});
    /// The stored text, or defaultValue where there is none.
    [[nodiscard]] QVariant value(SettingKey key, const QVariant &defaultValue, const QString &id = {}) const;

    /// name: element names joined by ".", for example "Window.Opacity".
    void setValueByName(const QString &name, const QVariant &value, const QString &id = {});
    [[nodiscard]] QVariant valueByName(const QString &name, const QVariant &defaultValue,
                                       const QString &id = {}) const;

private:
    bool read();
    bool replaceFile(QSaveFile &file);

    QMap<SettingKey, QString> keyNames;
    QDomDocument document;
    QDomElement root;
    QString filePath;
    bool fileIsIgnored = false;
};
