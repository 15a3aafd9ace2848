// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "core/settingsstore.h"
#include "support/temptree.h"

#include <memory>

/// A current folder of its own with a folder for the settings, which hold nothing yet.
class SettingsFolder final
{
public:
    SettingsFolder() { tree.addFolder(QStringLiteral("config")); }

    [[nodiscard]] QString path(const QString &name = {}) const { return tree.path(name); }
    [[nodiscard]] QString file() const { return path(QStringLiteral("config/global.xml")); }
    /// With the path of the file, which it has not read.
    [[nodiscard]] std::unique_ptr<SettingsStore> newStore() const
    {
        auto store = std::make_unique<SettingsStore>();
        store->setFilePath(file());
        return store;
    }

private:
    TestFolder tree;
};

/// "none" where none is set.
inline QString languageIn(const SettingsStore &store)
{
    return store.value(SettingKey::MiscLanguage, QStringLiteral("none")).toString();
}
