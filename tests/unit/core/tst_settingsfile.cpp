// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "support/messagecatcher.h"
#include "unit/core/settingsfolder.h"

#include "fileidentity.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStringEncoder>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mebibyte = qsizetype{1024} * 1024;
constexpr qsizetype largestFile = 16 * mebibyte;

/// "<Settings>" and elements in it down to this depth, with a language beside them.
QByteArray nested(int depth)
{
    return "<Settings><Misc><Language>de_DE</Language></Misc>" + QByteArray("<a>").repeated(depth - 1) +
           QByteArray("</a>").repeated(depth - 1) + "</Settings>";
}

QByteArray utf16(const QByteArray &xml)
{
    QStringEncoder encoder(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
    return encoder.encode(QString::fromUtf8(xml));
}

/// A well-formed file of exactly this size.
QByteArray sized(qsizetype size)
{
    const QByteArray before = "<Settings><Misc><Language>de_DE</Language></Misc><!--";
    const QByteArray after = "--></Settings>";
    return before + QByteArray(size - before.size() - after.size(), 'x') + after;
}

} // namespace

class TestSettingsFile final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void freshFolderHasNoFileUntilItIsSaved();
    void writtenValuesComeBack();
    void editedFileIsTakenAsItIs();
    void textsReadAsTruth_data();
    void textsReadAsTruth();
    void readsWhatHandsMayWrite_data();
    void readsWhatHandsMayWrite();
    void damagedFileGivesDefaultsAndIsReplaced_data();
    void damagedFileGivesDefaultsAndIsReplaced();
    void foreignFilesAreNotReadThroughEntities();
    void loadingReplacesWhatWasSet();
    void missingFileLeavesWhatWasSet();
    void commentOfTheReplacedRootIsGone();
    void whatStandsBesideTheRootIsNotKept();
    void versionIsThatOfTheLastSave();
    void folderInThePlaceOfTheFile();
    void pipeInThePlaceOfTheFile();
    void fileInThePlaceOfTheConfigFolder();

private:
    [[nodiscard]] QString file() const { return folder->file(); }

    std::unique_ptr<SettingsFolder> folder;
};

void TestSettingsFile::init()
{
    folder = std::make_unique<SettingsFolder>();
    QCoreApplication::setApplicationVersion(u"1.2.0.5"_s);
}

void TestSettingsFile::cleanup()
{
    folder.reset();
}

void TestSettingsFile::freshFolderHasNoFileUntilItIsSaved()
{
    const auto store = folder->newStore();
    store->load();
    QCOMPARE(languageIn(*store), u"none"_s);
    QVERIFY(!QFileInfo::exists(file()));
    store->save();
    QCOMPARE(readFile(file()), "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
                               "<Settings version=\"1.2.0.5\">\n"
                               "  <!--here you can find the global settings-->\n"
                               "</Settings>\n");
}

void TestSettingsFile::writtenValuesComeBack()
{
    const auto store = folder->newStore();
    for (int number = 0; number <= 24; ++number) {
        if (number < 8 || number > 16)
            store->setValue(static_cast<SettingKey>(number), number);
    }
    store->setValueByName(u"ShowTrayiconHint"_s, false);
    store->save();
    const QByteArray first = readFile(file());

    const auto again = folder->newStore();
    again->load();
    for (int number = 0; number <= 24; ++number) {
        if (number < 8 || number > 16)
            QCOMPARE(again->value(static_cast<SettingKey>(number), -1).toInt(), number);
    }
    QVERIFY(!again->valueByName(u"ShowTrayiconHint"_s, true).toBool());
    again->save();
    QCOMPARE(readFile(file()), first);
}

void TestSettingsFile::editedFileIsTakenAsItIs()
{
    QVERIFY(writeFile(file(), "<Settings><Mine note=\"keep\"><Deeper/></Mine><Misc><Language>fr_FR</Language>"
                              "</Misc><Misc><Language>second</Language></Misc></Settings>"));
    const auto store = folder->newStore();
    store->load();
    QCOMPARE(languageIn(*store), u"fr_FR"_s);
    store->setValue(SettingKey::MiscLanguage, u"de_DE"_s);
    store->save();
    const QByteArray xml = readFile(file());
    QVERIFY(xml.contains("<Mine note=\"keep\">"));
    QVERIFY(xml.contains("<Deeper/>"));
    QVERIFY(xml.contains("<Language>de_DE</Language>"));
    QVERIFY(xml.contains("<Language>second</Language>"));
}

void TestSettingsFile::textsReadAsTruth_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("truth");

    QTest::newRow("true") << QByteArray("true") << true;
    QTest::newRow("TRUE") << QByteArray("TRUE") << true;
    QTest::newRow("1") << QByteArray("1") << true;
    QTest::newRow("no") << QByteArray("no") << true;
    QTest::newRow("false") << QByteArray("false") << false;
    QTest::newRow("False") << QByteArray("False") << false;
    QTest::newRow("FALSE") << QByteArray("FALSE") << false;
    QTest::newRow("0") << QByteArray("0") << false;
}

// A hand-edited "no" means true.
void TestSettingsFile::textsReadAsTruth()
{
    QFETCH(QByteArray, text);
    QVERIFY(writeFile(file(), "<Settings><Log><Save>" + text + "</Save></Log></Settings>"));
    const auto store = folder->newStore();
    store->load();
    QTEST(store->value(SettingKey::LogSave, false).toBool(), "truth");
    QTEST(store->value(SettingKey::LogSave, true).toBool(), "truth");
}

void TestSettingsFile::readsWhatHandsMayWrite_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("expected");
    const auto settings = [](const QByteArray &content) -> QByteArray {
        return "<Settings><Misc>" + content + "</Misc></Settings>";
    };

    QTest::newRow("empty element") << settings("<Language/>") << u"none"_s;
    QTest::newRow("element without text") << settings("<Language></Language>") << u"none"_s;
    QTest::newRow("only a comment") << settings("<Language><!--de_DE--></Language>") << u"none"_s;
    QTest::newRow("only a child") << settings("<Language><de_DE/></Language>") << u"none"_s;
    QTest::newRow("first text counts") << settings("<Language>de<!--x-->_DE</Language>") << u"de"_s;
    QTest::newRow("text behind a child") << settings("<Language><x>1</x>de_DE</Language>") << u"de_DE"_s;
    QTest::newRow("verbatim section") << settings("<Language><![CDATA[<de>]]></Language>") << u"<de>"_s;
    QTest::newRow("escapes") << settings("<Language>&lt;&#x416;&amp;</Language>") << u"<Ж&"_s;
    QTest::newRow("blanks stay") << settings("<Language> de_DE\n</Language>") << u" de_DE\n"_s;
    QTest::newRow("first element counts")
        << settings("<Language>one</Language><Language>two</Language>") << u"one"_s;
    QTest::newRow("first element counts, though empty")
        << settings("<Language/><Language>two</Language>") << u"none"_s;
    QTest::newRow("names keep their case") << settings("<language>de_DE</language>") << u"none"_s;
    QTest::newRow("unknown prefix") << settings("<x:y/><Language>de_DE</Language>") << u"de_DE"_s;
    QTest::newRow("prefixed name is another name") << settings("<x:Language>de_DE</x:Language>") << u"none"_s;
    QTest::newRow("with an id") << settings("<Language id=\"\">de_DE</Language>") << u"none"_s;
    QTest::newRow("declaration, comment and type before the root")
        << "<?xml version=\"1.0\"?><!--c--><!DOCTYPE Settings><?p i?>" +
               settings("<Language>de_DE</Language>")
        << u"de_DE"_s;
    QTest::newRow("another element before the root")
        << "<Other/>" + settings("<Language>de_DE</Language>") << u"de_DE"_s;
    QTest::newRow("several elements, comments and blanks before the root")
        << "<?xml version=\"1.0\"?>\r\n<!--c--><Other a=\"b\">&#x416;<Settings/></Other>\n<!--c--> "
           "<settings/><?p i?>\t" +
               settings("<Language>de_DE</Language>")
        << u"de_DE"_s;
    QTest::newRow("another element behind the root")
        << settings("<Language>de_DE</Language>") + "<Other/>" << u"de_DE"_s;
    QTest::newRow("first of several roots counts")
        << settings("<Language>one</Language>") + settings("<Language>two</Language>") << u"one"_s;
    QTest::newRow("first of several roots counts, though empty")
        << "<Settings/>" + settings("<Language>two</Language>") << u"none"_s;
    QTest::newRow("entity of the document type behind another element")
        << "<!DOCTYPE s [<!ENTITY e \"de_DE\">]><Other>&e;</Other>" + settings("<Language>&e;</Language>")
        << u"de_DE"_s;
    QTest::newRow("Latin-1 that says so, behind another element")
        << "<?xml version=\"1.0\" encoding=\"iso-8859-1\"?><Other>\xe9</Other>" +
               settings("<Language>\xe9</Language>")
        << u"é"_s;
    QTest::newRow("outside the basic plane, behind another element")
        << "<Other>\xf0\x9f\x8e\x89</Other>" + settings("<Language>\xf0\x9f\x8e\x89</Language>") << u"🎉"_s;
    QTest::newRow("UTF-16") << utf16(settings("<Language>Ж</Language>")) << u"Ж"_s;
    QTest::newRow("UTF-16 behind another element")
        << utf16("<Other/>" + settings("<Language>Ж</Language>")) << u"Ж"_s;
    QTest::newRow("byte order mark behind another element")
        << "\xef\xbb\xbf<Other/>" + settings("<Language>Ж</Language>") << u"Ж"_s;
    QTest::newRow("element in a verbatim section is text")
        << "<Other><![CDATA[" + settings("<Language>de_DE</Language>") + "]]></Other>" << u"none"_s;
    QTest::newRow("one too deep behind another element") << "<Other/>" + nested(101) << u"none"_s;
    QTest::newRow("deepest behind another element") << "<Other/>" + nested(100) << u"de_DE"_s;
    QTest::newRow("byte order mark") << "\xef\xbb\xbf" + settings("<Language>Ж</Language>") << u"Ж"_s;
    QTest::newRow("Latin-1 that says so")
        << "<?xml version=\"1.0\" encoding=\"iso-8859-1\"?>" + settings("<Language>\xe9</Language>")
        << u"é"_s;
    QTest::newRow("own entity") << "<!DOCTYPE s [<!ENTITY e \"de_DE\">]>" +
                                       settings("<Language>&e;</Language>")
                                << u"de_DE"_s;
    QTest::newRow("deepest that is read") << nested(100) << u"de_DE"_s;
    QTest::newRow("one too deep") << nested(101) << u"none"_s;
    QTest::newRow("largest that is read") << sized(largestFile) << u"de_DE"_s;
    QTest::newRow("one byte too large") << sized(largestFile + 1) << u"none"_s;
}

void TestSettingsFile::readsWhatHandsMayWrite()
{
    QFETCH(QByteArray, xml);
    QVERIFY(writeFile(file(), xml));
    const auto store = folder->newStore();
    store->load();
    QTEST(languageIn(*store), "expected");
}

void TestSettingsFile::damagedFileGivesDefaultsAndIsReplaced_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray good = "<Settings><Misc><Language>de_DE</Language></Misc></Settings>";

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("blanks") << QByteArray(" \n\n");
    QTest::newRow("no XML") << QByteArray("[Settings]\nLanguage=de_DE\n");
    QTest::newRow("another root") << "<Other>" + good + "</Other>";
    QTest::newRow("another letter case")
        << QByteArray(good).replace("<Settings>", "<settings>").replace("</Settings>", "</settings>");
    QTest::newRow("cut off") << good.chopped(12);
    QTest::newRow("text beside the root") << "text" + good;
    QTest::newRow("text between top-level elements") << "<Other/>text" + good;
    QTest::newRow("root out of an entity")
        << "<!DOCTYPE s [<!ENTITY e \"" + QByteArray(good) + "\">]><Other/>&e;";
    QTest::newRow("verbatim section beside the root") << good + "<![CDATA[ ]]>";
    QTest::newRow("end tag without a start") << "</Other>" + good;
    QTest::newRow("end tag before another start") << "<Other/></all>" + good + "<all>";
    QTest::newRow("end tag behind the root") << good + "</all>";
    QTest::newRow("second declaration") << "<Other/><?xml version=\"1.0\"?>" + good;
    QTest::newRow("document type behind an element") << "<Other/><!DOCTYPE Settings>" + good;
    QTest::newRow("element not closed behind the root") << good + "<Other>";
    QTest::newRow("unknown encoding") << "<?xml version=\"1.0\" encoding=\"x-none\"?>" + good;
    QTest::newRow("not closed") << QByteArray(good).replace("</Misc>", "");
    QTest::newRow("nested without end") << nested(100000);
    QTest::newRow("opened without end") << "<Settings>" + QByteArray("<a>").repeated(100000);
    QTest::newRow("20 MiB") << sized(20 * mebibyte);
    QTest::newRow("20 MiB of nothing") << QByteArray(20 * mebibyte, '\0');
    QTest::newRow("invalid UTF-8") << QByteArray(good).replace("de_DE", "\xff\xfe\xc0\x80");
    QTest::newRow("null character") << QByteArray(good).replace("de_DE", QByteArray("d\0e", 3));
    QTest::newRow("control character") << QByteArray(good).replace("de_DE", "d\x01"
                                                                            "e");
    QTest::newRow("escaped control character") << QByteArray(good).replace("de_DE", "d&#1;e");
    QTest::newRow("unknown entity") << QByteArray(good).replace("de_DE", "&nothing;");
    QTest::newRow("entities that multiply")
        << "<!DOCTYPE s [<!ENTITY a \"xxxxxxxxxx\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;\">"
           "<!ENTITY c \"&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;\"><!ENTITY d \"&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;\">"
           "<!ENTITY e \"&d;&d;&d;&d;&d;&d;&d;&d;&d;&d;\">]>" +
               QByteArray(good).replace("de_DE", "&e;");
}

void TestSettingsFile::damagedFileGivesDefaultsAndIsReplaced()
{
    QFETCH(QByteArray, content);
    QVERIFY(writeFile(file(), content));
    const auto store = folder->newStore();
    const MessageCatcher catcher;
    store->load();
    QCOMPARE(languageIn(*store), u"none"_s);
    QCOMPARE(catcher.messages(), QStringList());
    QCOMPARE(readFile(file()), content);

    store->setValue(SettingKey::MiscLanguage, u"fr_FR"_s);
    store->save();
    QCOMPARE(readFile(file()), "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
                               "<Settings version=\"1.2.0.5\">\n"
                               "  <!--here you can find the global settings-->\n"
                               "  <Misc>\n"
                               "    <Language>fr_FR</Language>\n"
                               "  </Misc>\n"
                               "</Settings>\n");
}

void TestSettingsFile::foreignFilesAreNotReadThroughEntities()
{
    const QString secret = folder->path(u"secret"_s);
    QVERIFY(writeFile(secret, "secret text"));
    QVERIFY(writeFile(file(), "<!DOCTYPE s [<!ENTITY e SYSTEM \"file://" + secret.toUtf8() +
                                  "\">]><Settings><Misc><Language>&e;</Language></Misc></Settings>"));
    const auto store = folder->newStore();
    store->load();
    QVERIFY(!languageIn(*store).contains(u"secret"));
    store->save();
    QVERIFY(!readFile(file()).contains("secret"));
}

void TestSettingsFile::loadingReplacesWhatWasSet()
{
    QVERIFY(writeFile(file(), "<Settings><Log><Save>true</Save></Log></Settings>"));
    const auto store = folder->newStore();
    store->setValue(SettingKey::MiscLanguage, u"de_DE"_s);
    store->load();
    QCOMPARE(languageIn(*store), u"none"_s);
    QVERIFY(store->value(SettingKey::LogSave, false).toBool());
    store->load();
    QVERIFY(store->value(SettingKey::LogSave, false).toBool());
    store->save();
    QCOMPARE(readFile(file()).count("<Settings"), 1);
}

void TestSettingsFile::missingFileLeavesWhatWasSet()
{
    const auto store = folder->newStore();
    store->setValue(SettingKey::MiscLanguage, u"de_DE"_s);
    store->load();
    QCOMPARE(languageIn(*store), u"de_DE"_s);
}

void TestSettingsFile::commentOfTheReplacedRootIsGone()
{
    QVERIFY(writeFile(file(), "<Settings version=\"0.1\"><Log><Save>true</Save></Log></Settings>"));
    const auto store = folder->newStore();
    store->load();
    store->save();
    QCOMPARE(readFile(file()), "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
                               "<Settings version=\"1.2.0.5\">\n"
                               "  <Log>\n"
                               "    <Save>true</Save>\n"
                               "  </Log>\n"
                               "</Settings>\n");
}

void TestSettingsFile::whatStandsBesideTheRootIsNotKept()
{
    QVERIFY(
        writeFile(file(), "<?xml version=\"1.0\" encoding=\"iso-8859-1\"?><!--mine--><Settings/><!--too-->"));
    const auto store = folder->newStore();
    store->load();
    store->save();
    QCOMPARE(readFile(file()),
             "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<Settings version=\"1.2.0.5\"/>\n");
}

void TestSettingsFile::versionIsThatOfTheLastSave()
{
    const auto store = folder->newStore();
    store->save();
    QVERIFY(readFile(file()).contains("<Settings version=\"1.2.0.5\">"));
    QCoreApplication::setApplicationVersion(u"9.8.7.6"_s);
    store->save();
    QVERIFY(readFile(file()).contains("<Settings version=\"9.8.7.6\">"));
}

void TestSettingsFile::folderInThePlaceOfTheFile()
{
    QVERIFY(QDir().mkpath(file() + u"/inside"));
    const auto store = folder->newStore();
    const MessageCatcher catcher;
    store->load();
    QCOMPARE(languageIn(*store), u"none"_s);
    store->setValue(SettingKey::MiscLanguage, u"de_DE"_s);
    store->save();
    QCOMPARE(catcher.messages(), QStringList(u"could not save: %1"_s.arg(file())));
    QCOMPARE(entriesOf(file()), QStringList(u"inside"_s));
    QCOMPARE(languageIn(*store), u"de_DE"_s);
}

void TestSettingsFile::pipeInThePlaceOfTheFile()
{
    QVERIFY(makePipe(file()));
    const auto store = folder->newStore();
    store->load();
    QCOMPARE(languageIn(*store), u"none"_s);
    store->setValue(SettingKey::MiscLanguage, u"de_DE"_s);
    store->save();
    QVERIFY(QFileInfo(file()).isFile());
    QVERIFY(readFile(file()).contains("<Language>de_DE</Language>"));
}

void TestSettingsFile::fileInThePlaceOfTheConfigFolder()
{
    QVERIFY(QDir().rmdir(u"config"_s));
    QVERIFY(writeFile(u"config"_s, "mine"));
    const auto store = folder->newStore();
    const MessageCatcher catcher;
    store->load();
    store->save();
    QCOMPARE(catcher.messages(), QStringList(u"could not save: %1"_s.arg(file())));
    QCOMPARE(readFile(u"config"_s), "mine");
}

QTEST_GUILESS_MAIN(TestSettingsFile)
#include "tst_settingsfile.moc"
