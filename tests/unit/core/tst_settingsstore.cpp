// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "core/settingsstore.h"
#include "support/temptree.h"

#include <QCoreApplication>
#include <QTest>

#include <memory>

#ifdef QT_GUI_LIB
#error "Settings and log are to be had without windows: orvanto_settings is not to link them."
#endif

using namespace Qt::StringLiterals;

class TestSettingsStore final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void keysHaveTheirNumbersAndNames_data();
    void keysHaveTheirNumbersAndNames();
    void numbersEightToSixteenStayUnassigned();
    void valuesAreStoredAsText_data();
    void valuesAreStoredAsText();
    void everyReadNamesItsOwnDefault();
    void writingTwiceReplacesTheText();
    void writingKeepsChildElements();
    void elementsAreNestedByTheirNames();
    void emptyTextIsAValueUntilTheFileIsReadAgain();
    void elementWithAnIdIsInvisibleWithoutIt();
    void writingWithoutIdGoesIntoAnElementThatHasOne();
    void newIdOverwritesTheFirstElementOfThatName();
    void siblingsAreSearchedForTheIdWhateverTheirName();
    void thereIsOneStore();
    void twoStoresKnowNothingOfEachOther();
    void makingAStoreMakesTheConfigFolder();
    void settingTheFilePathMakesTheConfigFolder();
    void charactersThatXmlCannotHoldAreDropped_data();
    void charactersThatXmlCannotHoldAreDropped();

private:
    [[nodiscard]] QString file() const { return folder->path(u"config/global.xml"_s); }
    /// A store that has read this text from its file.
    std::unique_ptr<SettingsStore> loaded(const QByteArray &xml) const
    {
        auto store = std::make_unique<SettingsStore>();
        store->setFilePath(file());
        if (!writeFile(file(), xml))
            return nullptr;
        store->load();
        return store;
    }

    std::unique_ptr<TestFolder> folder;
};

void TestSettingsStore::init()
{
    folder = std::make_unique<TestFolder>();
    QCoreApplication::setApplicationVersion(u"1.2.0.5"_s);
}

void TestSettingsStore::cleanup()
{
    SettingsStore::destroy();
    folder.reset();
}

void TestSettingsStore::keysHaveTheirNumbersAndNames_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<SettingKey>("key");

    QTest::newRow("Misc.IsFirstStart") << 0 << SettingKey::MiscIsFirstStart;
    QTest::newRow("Misc.Language") << 1 << SettingKey::MiscLanguage;
    QTest::newRow("Window.Opacity") << 2 << SettingKey::WindowOpacity;
    QTest::newRow("Window.StayOnTop") << 3 << SettingKey::WindowStayOnTop;
    QTest::newRow("Window.Layout.Data") << 4 << SettingKey::WindowLayoutData;
    QTest::newRow("Window.Geometry.Data") << 5 << SettingKey::WindowGeometryData;
    QTest::newRow("Window.Layout.Restore") << 6 << SettingKey::WindowLayoutRestore;
    QTest::newRow("Window.Geometry.Restore") << 7 << SettingKey::WindowGeometryRestore;
    QTest::newRow("Log.Save") << 17 << SettingKey::LogSave;
    QTest::newRow("Log.IncludeDebugInfo") << 18 << SettingKey::LogIncludeDebugInfo;
    QTest::newRow("Misc.MinimizeToTrayIcon") << 19 << SettingKey::MiscMinimizeToTrayIcon;
    QTest::newRow("Misc.DisableSplashScreen") << 20 << SettingKey::MiscDisableSplashScreen;
    QTest::newRow("Misc.MinimizeOnStart") << 21 << SettingKey::MiscMinimizeOnStart;
    QTest::newRow("VersionCheck.Auto") << 22 << SettingKey::VersionCheckAuto;
    QTest::newRow("VersionCheck.Last") << 23 << SettingKey::VersionCheckLast;
    QTest::newRow("VersionCheck.Skip") << 24 << SettingKey::VersionCheckSkip;
}

void TestSettingsStore::keysHaveTheirNumbersAndNames()
{
    QFETCH(int, number);
    QFETCH(SettingKey, key);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    QCOMPARE(static_cast<int>(key), number);
    SettingsStore store;
    store.setValue(key, u"by key"_s);
    QCOMPARE(store.valueByName(name, u"none"_s).toString(), u"by key"_s);
    store.setValueByName(name, u"by name"_s);
    QCOMPARE(store.value(key, u"none"_s).toString(), u"by name"_s);
}

// Deliberate: these numbers are left free.
void TestSettingsStore::numbersEightToSixteenStayUnassigned()
{
    SettingsStore store;
    for (int number = 0; number <= 7; ++number)
        store.setValue(static_cast<SettingKey>(number), u"x"_s);
    for (int number = 17; number <= 24; ++number)
        store.setValue(static_cast<SettingKey>(number), u"x"_s);
    for (int number = 8; number <= 16; ++number)
        QCOMPARE(store.value(static_cast<SettingKey>(number), u"none"_s).toString(), u"none"_s);
}

void TestSettingsStore::valuesAreStoredAsText_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("true") << QVariant(true) << u"true"_s;
    QTest::newRow("false") << QVariant(false) << u"false"_s;
    QTest::newRow("integer") << QVariant(-42) << u"-42"_s;
    QTest::newRow("real") << QVariant(0.85) << u"0.85"_s;
    QTest::newRow("whole real") << QVariant(1.0) << u"1"_s;
    QTest::newRow("text") << QVariant(u"de_DE"_s) << u"de_DE"_s;
    QTest::newRow("bytes as hexadecimal text")
        << QVariant(QByteArray("\0\x01\xff", 3).toHex()) << u"0001ff"_s;
    QTest::newRow("markup") << QVariant(u"<a href=\"x\">&amp;'</a>]]>"_s) << u"<a href=\"x\">&amp;'</a>]]>"_s;
    QTest::newRow("blanks around") << QVariant(u"  a b  "_s) << u"  a b  "_s;
    QTest::newRow("line ends") << QVariant(u"a\nb\r\nc\td"_s) << u"a\nb\r\nc\td"_s;
    QTest::newRow("Unicode") << QVariant(u"Ж日😀"_s) << u"Ж日😀"_s;
    QTest::newRow("long") << QVariant(QString(1000000, u'x')) << QString(1000000, u'x');
}

void TestSettingsStore::valuesAreStoredAsText()
{
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    SettingsStore store;
    store.setFilePath(file());
    store.setValue(SettingKey::MiscLanguage, value);
    const QVariant read = store.value(SettingKey::MiscLanguage, {});
    QCOMPARE(read.metaType(), QMetaType::fromType<QString>());
    QCOMPARE(read.toString(), text);

    store.save();
    SettingsStore again;
    again.setFilePath(file());
    again.load();
    QCOMPARE(again.value(SettingKey::MiscLanguage, {}).toString(), text);
}

void TestSettingsStore::everyReadNamesItsOwnDefault()
{
    const SettingsStore store;
    QCOMPARE(store.value(SettingKey::LogIncludeDebugInfo, true), QVariant(true));
    QCOMPARE(store.value(SettingKey::LogIncludeDebugInfo, false), QVariant(false));
    QCOMPARE(store.value(SettingKey::WindowOpacity, 1.0), QVariant(1.0));
    QVERIFY(!store.value(SettingKey::MiscLanguage, {}).isValid());
    QCOMPARE(store.valueByName(u"ShowTrayiconHint"_s, true), QVariant(true));
    QCOMPARE(store.valueByName(u"No.Such.Name"_s, 7), QVariant(7));
}

void TestSettingsStore::writingTwiceReplacesTheText()
{
    SettingsStore store;
    store.setFilePath(file());
    store.setValue(SettingKey::WindowOpacity, 0.5);
    store.setValue(SettingKey::WindowOpacity, 0.75);
    QCOMPARE(store.value(SettingKey::WindowOpacity, {}).toString(), u"0.75"_s);
    store.save();
    QCOMPARE(readFile(file()).count("<Opacity>"), 1);
    QVERIFY(readFile(file()).contains("<Opacity>0.75</Opacity>"));
}

void TestSettingsStore::writingKeepsChildElements()
{
    const auto store = loaded("<Settings><Window>one<Opacity>0.5</Opacity>two<!--c--></Window></Settings>");
    QCOMPARE(store->valueByName(u"Window"_s, {}).toString(), u"one"_s);
    store->setValueByName(u"Window"_s, u"three"_s);
    QCOMPARE(store->valueByName(u"Window"_s, {}).toString(), u"three"_s);
    QCOMPARE(store->value(SettingKey::WindowOpacity, {}).toString(), u"0.5"_s);
    store->save();
    const QByteArray xml = readFile(file());
    QVERIFY(xml.contains("<!--c-->"));
    QVERIFY(xml.contains("three"));
    QVERIFY(!xml.contains("one"));
    QVERIFY(!xml.contains("two"));
}

void TestSettingsStore::elementsAreNestedByTheirNames()
{
    SettingsStore store;
    store.setFilePath(file());
    store.setValue(SettingKey::WindowGeometryRestore, true);
    store.setValueByName(u"SupportUsHint"_s, false);
    store.setValue(SettingKey::MiscIsFirstStart, false);
    store.setValue(SettingKey::WindowGeometryData, u"00ff"_s);
    store.save();
    QCOMPARE(readFile(file()), "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
                               "<Settings version=\"1.2.0.5\">\n"
                               "  <!--here you can find the global settings-->\n"
                               "  <Window>\n"
                               "    <Geometry>\n"
                               "      <Restore>true</Restore>\n"
                               "      <Data>00ff</Data>\n"
                               "    </Geometry>\n"
                               "  </Window>\n"
                               "  <SupportUsHint>false</SupportUsHint>\n"
                               "  <Misc>\n"
                               "    <IsFirstStart>false</IsFirstStart>\n"
                               "  </Misc>\n"
                               "</Settings>\n");
}

void TestSettingsStore::emptyTextIsAValueUntilTheFileIsReadAgain()
{
    SettingsStore store;
    store.setFilePath(file());
    store.setValue(SettingKey::MiscLanguage, u""_s);
    QCOMPARE(store.value(SettingKey::MiscLanguage, u"none"_s).toString(), u""_s);
    store.save();
    SettingsStore again;
    again.setFilePath(file());
    again.load();
    QCOMPARE(again.value(SettingKey::MiscLanguage, u"none"_s).toString(), u"none"_s);
}

void TestSettingsStore::elementWithAnIdIsInvisibleWithoutIt()
{
    SettingsStore store;
    store.setValue(SettingKey::MiscLanguage, u"text"_s, u"a"_s);
    QCOMPARE(store.value(SettingKey::MiscLanguage, u"none"_s).toString(), u"none"_s);
    QCOMPARE(store.value(SettingKey::MiscLanguage, u"none"_s, u"a"_s).toString(), u"text"_s);
    QCOMPARE(store.value(SettingKey::MiscLanguage, u"none"_s, u"A"_s).toString(), u"none"_s);
    QCOMPARE(store.value(SettingKey::WindowOpacity, u"none"_s, u"a"_s).toString(), u"none"_s);
}

void TestSettingsStore::writingWithoutIdGoesIntoAnElementThatHasOne()
{
    SettingsStore store;
    store.setValue(SettingKey::MiscLanguage, u"with"_s, u"a"_s);
    store.setValue(SettingKey::MiscLanguage, u"without"_s);
    QCOMPARE(store.value(SettingKey::MiscLanguage, u"none"_s).toString(), u"none"_s);
    QCOMPARE(store.value(SettingKey::MiscLanguage, u"none"_s, u"a"_s).toString(), u"without"_s);
}

// Deliberate: it makes no sibling.
void TestSettingsStore::newIdOverwritesTheFirstElementOfThatName()
{
    SettingsStore store;
    store.setFilePath(file());
    store.setValue(SettingKey::MiscLanguage, u"first"_s, u"a"_s);
    store.setValue(SettingKey::MiscLanguage, u"second"_s, u"b"_s);
    QCOMPARE(store.value(SettingKey::MiscLanguage, u"none"_s, u"a"_s).toString(), u"none"_s);
    QCOMPARE(store.value(SettingKey::MiscLanguage, u"none"_s, u"b"_s).toString(), u"second"_s);
    store.save();
    QCOMPARE(readFile(file()).count("<Language"), 1);
    QVERIFY(readFile(file()).contains("<Language id=\"b\">second</Language>"));
}

void TestSettingsStore::siblingsAreSearchedForTheIdWhateverTheirName()
{
    const auto store = loaded("<Settings><Misc><Before id=\"c\">0</Before><Language id=\"a\">1</Language>"
                              "<Other id=\"b\">2</Other><Language id=\"b\">3</Language></Misc></Settings>");
    QCOMPARE(store->value(SettingKey::MiscLanguage, {}, u"b"_s).toString(), u"2"_s);
    QVERIFY(!store->value(SettingKey::MiscLanguage, {}, u"c"_s).isValid());
    store->setValue(SettingKey::MiscLanguage, u"new"_s, u"b"_s);
    store->save();
    const QByteArray xml = readFile(file());
    QVERIFY(xml.contains("<Language id=\"a\">1</Language>"));
    QVERIFY(xml.contains("<Other id=\"b\">new</Other>"));
    QVERIFY(xml.contains("<Language id=\"b\">3</Language>"));
}

void TestSettingsStore::thereIsOneStore()
{
    SettingsStore *store = SettingsStore::instance();
    QCOMPARE(SettingsStore::instance(), store);
    store->setValue(SettingKey::MiscLanguage, u"de_DE"_s);
    QCOMPARE(SettingsStore::instance()->value(SettingKey::MiscLanguage, {}).toString(), u"de_DE"_s);
    SettingsStore::destroy();
    SettingsStore::destroy();
    QVERIFY(!SettingsStore::instance()->value(SettingKey::MiscLanguage, {}).isValid());
}

void TestSettingsStore::twoStoresKnowNothingOfEachOther()
{
    SettingsStore first;
    SettingsStore second;
    first.setFilePath(file());
    second.setFilePath(file());
    first.setValue(SettingKey::MiscLanguage, u"de_DE"_s);
    second.setValue(SettingKey::WindowOpacity, 0.5);
    QVERIFY(!second.value(SettingKey::MiscLanguage, {}).isValid());
    first.save();
    second.save();
    first.load();
    QVERIFY(!first.value(SettingKey::MiscLanguage, {}).isValid());
    QCOMPARE(first.value(SettingKey::WindowOpacity, {}).toString(), u"0.5"_s);
}

void TestSettingsStore::makingAStoreMakesTheConfigFolder()
{
    QVERIFY(entriesOf(folder->path()).isEmpty());
    const SettingsStore store;
    QCOMPARE(entriesOf(folder->path()), QStringList(u"config"_s));
    QVERIFY(entriesOf(folder->path(u"config"_s)).isEmpty());
}

void TestSettingsStore::settingTheFilePathMakesTheConfigFolder()
{
    SettingsStore store;
    const TestFolder other;
    store.setFilePath(u"anywhere"_s);
    QCOMPARE(entriesOf(other.path()), QStringList(u"config"_s));
}

void TestSettingsStore::charactersThatXmlCannotHoldAreDropped_data()
{
    QTest::addColumn<QString>("value");

    QTest::newRow("control character") << u"a\x01\x1f"
                                          "b"_s;
    QTest::newRow("null character") << u"a"_s + QChar(0) + u'b';
    QTest::newRow("escape") << u"a\x1b[0mb"_s;
    QTest::newRow("lone high surrogate") << u"a"_s + QChar(0xd83d) + u'b';
    QTest::newRow("lone low surrogate") << u"a"_s + QChar(0xde00) + u'b';
    QTest::newRow("high surrogate at the end") << u"ab"_s + QChar(0xd83d);
    QTest::newRow("not a character") << u"a\xffff"
                                        "b\xfffe"_s;
}

// One bad value must not make the whole file unreadable at the next start.
void TestSettingsStore::charactersThatXmlCannotHoldAreDropped()
{
    QFETCH(QString, value);
    SettingsStore store;
    store.setFilePath(file());
    store.setValue(SettingKey::VersionCheckSkip, value);
    store.setValue(SettingKey::MiscLanguage, u"de_DE"_s);
    store.save();
    SettingsStore again;
    again.setFilePath(file());
    again.load();
    QCOMPARE(again.value(SettingKey::MiscLanguage, u"none"_s).toString(), u"de_DE"_s);
    const QString read = again.value(SettingKey::VersionCheckSkip, u"none"_s).toString();
    QVERIFY2(read.startsWith(u'a') && read.contains(u'b'), qPrintable(read));
}

QTEST_GUILESS_MAIN(TestSettingsStore)
#include "tst_settingsstore.moc"
