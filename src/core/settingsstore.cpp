// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "core/settingsstore.h"

#include "core/datapaths.h"
#include "core/settingselement.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QSaveFile>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 maxFileSize = qint64{16} * 1024 * 1024;
constexpr int indent = 2;

Q_GLOBAL_STATIC(QMutex, settingsMutex)
SettingsStore *theStore = nullptr;

void ensureConfigFolder()
{
    const QDir folder(dataDirectory());
    if (!folder.exists(u"config"_s))
        folder.mkpath(u"config"_s);
}

/// Without the quotes and backslashes that the debug stream puts into texts.
void report(const char *what, const QString &path)
{
    qDebug().noquote().nospace() << what << path;
}

/// From element on, the first of its following siblings (itself included) whose "id" equals id; null if none.
QDomElement siblingWithId(QDomElement element, const QString &id)
{
    while (!element.isNull() && element.attribute(u"id"_s) != id)
        element = element.nextSiblingElement();
    return element;
}

} // namespace

SettingsStore *SettingsStore::instance()
{
    const QMutexLocker locker(settingsMutex());
    if (!theStore)
        theStore = new SettingsStore;
    return theStore;
}

void SettingsStore::destroy()
{
    const QMutexLocker locker(settingsMutex());
    delete theStore;
    theStore = nullptr;
}

SettingsStore::SettingsStore()
{
    // A value may come from outside (a file name, the update service): characters that XML cannot hold would
    // make the whole file unreadable at the next start.
    QDomImplementation::setInvalidDataPolicy(QDomImplementation::DropInvalidChars);
    document.appendChild(
        document.createProcessingInstruction(u"xml"_s, u"version=\"1.0\" encoding=\"utf-8\""_s));
    root = document.createElement(u"Settings"_s);
    document.appendChild(root);
    ensureConfigFolder();
    keyNames = {
        {SettingKey::MiscIsFirstStart, u"Misc.IsFirstStart"_s},
        {SettingKey::MiscLanguage, u"Misc.Language"_s},
        {SettingKey::WindowOpacity, u"Window.Opacity"_s},
        {SettingKey::WindowStayOnTop, u"Window.StayOnTop"_s},
        {SettingKey::WindowLayoutData, u"Window.Layout.Data"_s},
        {SettingKey::WindowGeometryData, u"Window.Geometry.Data"_s},
        {SettingKey::WindowLayoutRestore, u"Window.Layout.Restore"_s},
        {SettingKey::WindowGeometryRestore, u"Window.Geometry.Restore"_s},
        {SettingKey::LogSave, u"Log.Save"_s},
        {SettingKey::LogIncludeDebugInfo, u"Log.IncludeDebugInfo"_s},
        {SettingKey::MiscMinimizeToTrayIcon, u"Misc.MinimizeToTrayIcon"_s},
        {SettingKey::MiscDisableSplashScreen, u"Misc.DisableSplashScreen"_s},
        {SettingKey::MiscMinimizeOnStart, u"Misc.MinimizeOnStart"_s},
        {SettingKey::VersionCheckAuto, u"VersionCheck.Auto"_s},
        {SettingKey::VersionCheckLast, u"VersionCheck.Last"_s},
        {SettingKey::VersionCheckSkip, u"VersionCheck.Skip"_s},
    };
    root.appendChild(document.createComment(u"here you can find the global settings"_s));
}

SettingsStore::~SettingsStore() = default;

void SettingsStore::setFilePath(const QString &path)
{
    ensureConfigFolder();
    filePath = path;
}

void SettingsStore::load()
{
    fileIsIgnored = !read() && QFileInfo::exists(filePath);
}

bool SettingsStore::read()
{
    QFile file(filePath);
    // Opening a pipe in the file's place would wait for its other end.
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly) || file.size() > maxFileSize)
        return false;
    QDomDocument loaded;
    if (!loaded.setContent(settingsElement(file.readAll())))
        return false;
    const QDomElement imported = document.importNode(loaded.documentElement(), true).toElement();
    document.replaceChild(imported, root);
    root = imported;
    return true;
}

void SettingsStore::save()
{
    root.setAttribute(u"version"_s, QCoreApplication::applicationVersion());
    QSaveFile file(filePath);
    file.setDirectWriteFallback(true);
    // Without a name QSaveFile would open a file with a name of its own.
    if (filePath.isEmpty() || !file.open(QIODevice::WriteOnly)) {
        report("could not save: ", filePath);
        return;
    }
    const QByteArray xml = document.toByteArray(indent);
    // Committing does not notice when the disk is full for what is still buffered, and an empty file would
    // take the old one's place.
    if (file.write(xml) < xml.size() || !file.flush() || !replaceFile(file))
        report("could not save all data in: ", filePath);
}

bool SettingsStore::replaceFile(QSaveFile &file)
{
    // Someone may have written it by hand, and want it back.
    const QString ignored = fileIsIgnored ? QFileInfo(filePath).canonicalFilePath() : QString();
    const QString kept = ignored + ".bad"_L1;
    bool isKept = false;
    if (!ignored.isEmpty()) {
        QFile::remove(kept);
        isKept = QFile::rename(ignored, kept);
    }
    if (!file.commit()) {
        if (isKept)
            QFile::rename(kept, ignored);
        return false;
    }
    if (!ignored.isEmpty())
        report(isKept ? "could not be read, and is kept as: " : "could not be read, nor kept: ",
               isKept ? kept : ignored);
    fileIsIgnored = false;
    return true;
}

void SettingsStore::setValue(SettingKey key, const QVariant &value, const QString &id)
{
    setValueByName(keyNames.value(key), value, id);
}

QVariant SettingsStore::value(SettingKey key, const QVariant &defaultValue, const QString &id) const
{
    return valueByName(keyNames.value(key), defaultValue, id);
}

void SettingsStore::setValueByName(const QString &name, const QVariant &value, const QString &id)
{
    QDomElement target = root;
    const QStringList components = name.split(u'.');
    for (const QString &component : components) {
        QDomElement child = target.firstChildElement(component);
        if (child.isNull()) {
            child = document.createElement(component);
            target.appendChild(child);
        }
        target = child;
    }
    if (!id.isEmpty()) {
        // Deliberate: a new id overwrites the first element of that name instead of adding a sibling.
        const QDomElement sibling = siblingWithId(target, id);
        if (!sibling.isNull())
            target = sibling;
    }
    for (QDomNode child = target.firstChild(); !child.isNull();) {
        const QDomNode next = child.nextSibling();
        if (child.isText())
            target.removeChild(child);
        child = next;
    }
    if (!id.isEmpty())
        target.setAttribute(u"id"_s, id);
    target.appendChild(document.createTextNode(value.toString()));
}

QVariant SettingsStore::valueByName(const QString &name, const QVariant &defaultValue,
                                    const QString &id) const
{
    QDomElement element = root;
    const QStringList components = name.split(u'.');
    for (const QString &component : components) {
        element = element.firstChildElement(component);
        if (element.isNull())
            return defaultValue;
    }
    if (id.isEmpty()) {
        if (element.hasAttribute(u"id"_s))
            return defaultValue;
    } else {
        element = siblingWithId(element, id);
        if (element.isNull())
            return defaultValue;
    }
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isText())
            return child.nodeValue();
    }
    return defaultValue;
}
