// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "core/settingsstore.h"
#include "fuzztarget.h"
#include "mainwindow/mainwindow.h"

#include <QCoreApplication>
#include <QDomDocument>
#include <QFile>
#include <QXmlStreamReader>

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

/// Whether the reader of Qt's document classes, which walk it recursively, can be given it.
bool isShallow(const QByteArray &xml)
{
    QXmlStreamReader reader(xml);
    int depth = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        depth += reader.isStartElement() ? 1 : reader.isEndElement() ? -1 : 0;
        if (depth > 100)
            return false;
    }
    return true;
}

/// Written apart from the program, for files with one top-level element: the text of the settings that were
/// read.
QByteArray expectedSettings(const QByteArray &xml)
{
    QDomDocument expected;
    expected.appendChild(
        expected.createProcessingInstruction(u"xml"_s, u"version=\"1.0\" encoding=\"utf-8\""_s));
    QDomDocument document;
    QDomElement root = expected.createElement(u"Settings"_s);
    root.appendChild(expected.createComment(u"here you can find the global settings"_s));
    if (document.setContent(xml) && document.documentElement().tagName() == "Settings"_L1)
        root = expected.importNode(document.documentElement(), true).toElement();
    root.setAttribute(u"version"_s, QCoreApplication::applicationVersion());
    expected.appendChild(root);
    return expected.toByteArray(2);
}

QByteArray loadedAndSaved(const QString &path, const QByteArray &xml)
{
    write(path, xml);
    SettingsStore store;
    store.setFilePath(path);
    store.load();
    store.save();
    QFile file(path);
    FUZZ_VERIFY(file.open(QIODevice::ReadOnly), file.errorString());
    return file.readAll();
}

void verifyWhatIsRead(const QString &path, const QByteArray &xml)
{
    QDomDocument document;
    if (!isShallow(xml) || !document.setContent(xml))
        return;
    const QByteArray expected = expectedSettings(xml);
    const QByteArray saved = loadedAndSaved(path, xml);
    FUZZ_VERIFY(saved == expected, QString::fromUtf8(saved));
    // Another element beside it, before or behind, changes nothing.
    const bool isWide = xml.contains('\0');
    if (document.documentElement().tagName() != "Settings"_L1 || isWide)
        return;
    FUZZ_VERIFY(loadedAndSaved(path, xml + "<Other/>") == expected, QString::fromUtf8(expected));
    if (xml.startsWith("<Settings"))
        FUZZ_VERIFY(loadedAndSaved(path, "<Other a='>'>&#x416;</Other>\n" + xml) == expected,
                    QString::fromUtf8(expected));
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
    // Settings that cannot be read are told of.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    return 0;
}

/// Two bytes choose a key, the first line is the text written to it, and what is left is the file.
int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QString path = u"settings.xml"_s;
    FuzzInput input(data, size);
    const auto key = static_cast<SettingKey>(input.number(firstKey, lastKey));
    const QString text = input.line();
    const QByteArray xml = input.rest();
    verifyWhatIsRead(path, xml);
    write(path, xml);
    SettingsStore store;
    store.setFilePath(path);
    store.load();
    verifyRoundTrip(path, store);
    store.setValue(key, text);
    verifyRoundTrip(path, store);
    restoreWindow(path);
    return 0;
}
