// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "core/localizer.h"
#include "core/settingsstore.h"
#include "support/temptree.h"

#include <QCoreApplication>
#include <QTreeWidget>

#include <memory>

inline QString word()
{
    return QCoreApplication::translate("Rules", "Replace");
}

inline QString savedLanguage()
{
    return SettingsStore::instance()->value(SettingKey::MiscLanguage, QStringLiteral("none")).toString();
}

inline void saveLanguage(const QString &code)
{
    SettingsStore::instance()->setValue(SettingKey::MiscLanguage, code);
}

/// "code|language|country" for each row.
inline QStringList rowsOf(const QTreeWidget &tree)
{
    QStringList rows;
    for (int i = 0; i < tree.topLevelItemCount(); ++i) {
        const QTreeWidgetItem *item = tree.topLevelItem(i);
        rows.append(item->text(0) + u'|' + item->text(1) + u'|' + item->text(2));
    }
    return rows;
}

inline std::unique_ptr<QTreeWidget> newTree()
{
    auto tree = std::make_unique<QTreeWidget>();
    tree->setColumnCount(3);
    return tree;
}

/// The folder "locale" beside the executable, for the length of a test.
class LocaleFolder final
{
public:
    LocaleFolder() { clear(); }
    ~LocaleFolder()
    {
        Localizer::destroy();
        SettingsStore::destroy();
        clear();
    }
    Q_DISABLE_COPY_MOVE(LocaleFolder)

    [[nodiscard]] static QString path(const QString &name = {})
    {
        const QString folder = QCoreApplication::applicationDirPath() + u"/locale";
        return name.isEmpty() ? folder : folder + u'/' + name;
    }

    /// Puts the sample translation into the folder under another file name; makes the folder if need be.
    [[nodiscard]] static bool offer(const QString &name, const QString &sample = QStringLiteral("de_DE"))
    {
        return QDir().mkpath(path()) &&
               QFile::copy(QStringLiteral(":/languages/sample-%1.qm").arg(sample), path(name));
    }

private:
    /// A test that crashed leaves the folder behind.
    static void clear()
    {
        QDir(path()).removeRecursively();
        QFile::remove(path());
    }

    TestFolder current;
};
