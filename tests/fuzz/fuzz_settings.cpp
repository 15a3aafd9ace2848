// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "core/settingsstore.h"
#include "fuzztarget.h"
#include "mainwindow/mainwindow.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int firstKey = 0;
constexpr int lastKey = 24;
MainWindow *window = nullptr;
constexpr std::array windowKeys{SettingKey::WindowOpacity, SettingKey::WindowLayoutData,
                                SettingKey::WindowGeometryData};
// No file can hold this.
const auto absent = u"\x01 none"_s;

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    FUZZ_VERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), file.errorString());
}

/// What every key, and two of the settings that have none, read as; with and without an id.
QStringList valuesOf(const SettingsStore &store)
{
    QStringList values;
    for (int key = firstKey; key <= lastKey; ++key) {
        values += store.value(static_cast<SettingKey>(key), absent).toString();
        values += store.value(static_cast<SettingKey>(key), absent, u"1"_s).toString();
    }
    values += store.valueByName(u"SupportUsHint"_s, absent).toString();
    values += store.valueByName(u"a.b.c"_s, absent).toString();
    return values;
}

void verifyRoundTrip(const QString &path, SettingsStore &store)
{
    QStringList before = valuesOf(store);
    // Deliberate: an element with nothing but blanks reads as one that is not there.
    for (QString &value : before)
        value = value.trimmed().isEmpty() ? absent : value;
    store.save();
    SettingsStore second;
    second.setFilePath(path);
    second.load();
    const QStringList after = valuesOf(second);
    for (qsizetype i = 0; i < before.size(); ++i)
        FUZZ_VERIFY(before.at(i) == after.at(i), u"value %1: \"%2\""_s.arg(i).arg(after.at(i)));
}

/// The window takes whatever the file holds, also for its docks and its place.
void restoreWindow(const QString &path)
{
    SettingsStore::destroy();
    SettingsStore *store = SettingsStore::instance();
    store->setFilePath(path);
    store->load();
    const bool isUsed = std::any_of(windowKeys.begin(), windowKeys.end(),
                                    [&](SettingKey key) { return store->value(key, {}).isValid(); });
    if (!isUsed)
        return; // it would cost more than all of the above
    store->setValue(SettingKey::WindowLayoutRestore, true);
    store->setValue(SettingKey::WindowGeometryRestore, true);
    window->restoreWindowSettings();
    window->show();
    QCoreApplication::processEvents();
    window->hide();
}

} // namespace

int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    startFuzzApplication();
    // Never deleted: libFuzzer ends the process without leaving main().
    window = new MainWindow(Qt::Window);
    window->initialize();
    return 0;
}

/// Two bytes choose a key, the first line is the text written to it, and what is left is the file.
int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QString path = u"settings.xml"_s;
    FuzzInput input(data, size);
    const auto key = static_cast<SettingKey>(input.number(firstKey, lastKey));
    const QString text = input.line();
    write(path, input.rest());
    SettingsStore store;
    store.setFilePath(path);
    store.load();
    verifyRoundTrip(path, store);
    store.setValue(key, text);
    verifyRoundTrip(path, store);
    restoreWindow(path);
    return 0;
}
