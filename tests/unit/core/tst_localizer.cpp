// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "localefolder.h"

#include "fileidentity.h"

#include <QApplication>
#include <QDataStream>
#include <QLocale>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray sampleContent()
{
    return readFile(u":/languages/sample-de_DE.qm"_s);
}

class LanguageWatcher final : public QWidget
{
public:
    int changes = 0;

protected:
    void changeEvent(QEvent *event) override
    {
        if (event->type() == QEvent::LanguageChange)
            ++changes;
        QWidget::changeEvent(event);
    }
};

} // namespace

class TestLocalizer final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { locale.reset(); }
    void withoutLocaleFolderThereIsEnglishOnly();
    void fileInThePlaceOfTheLocaleFolder();
    void codesComeFromTheFileNames_data();
    void codesComeFromTheFileNames();
    void entriesHaveTheirFields();
    void entriesAreFoundByTheirExactCode();
    void otherFilesAreNoLanguages();
    void savedLanguageIsInstalledAtDiscovery();
    void savedLanguageCanBeIgnoredForOnce();
    void savedEnglishInstallsNothing_data();
    void savedEnglishInstallsNothing();
    void savedLanguageWhoseFileIsGoneIsKept();
    void languageSavedAfterDiscoveryWaits();
    void discoveryProcessesEventsOnce();
    void switchingSavesAndInstalls();
    void switchingTellsTheWidgets();
    void badFileFallsBackToEnglish_data();
    void badFileFallsBackToEnglish();
    void damagedFileHarmsNothing_data();
    void damagedFileHarmsNothing();
    void fileThatDependsOnItselfIsItsOwnEnd();
    void pipeInThePlaceOfAFileIsNotOpened();
    void vanishedFileIsNotReplacedByANeighbour();
    void thereIsOneLocalizer();
    void destroyingRemovesTheTranslation();

private:
    std::unique_ptr<LocaleFolder> locale;
};

void TestLocalizer::init()
{
    locale = std::make_unique<LocaleFolder>();
    QCOMPARE(word(), u"Replace"_s);
}

void TestLocalizer::withoutLocaleFolderThereIsEnglishOnly()
{
    Localizer localizer;
    QVERIFY(!localizer.find(u"en_UK"_s));
    localizer.discover();
    const auto tree = newTree();
    localizer.fillLanguageTree(tree.get());
    QCOMPARE(rowsOf(*tree), QStringList(u"en_UK|English|United Kingdom"_s));
    QCOMPARE(tree->currentItem(), tree->topLevelItem(0));
    QCOMPARE(savedLanguage(), u"none"_s);
}

void TestLocalizer::fileInThePlaceOfTheLocaleFolder()
{
    QVERIFY(writeFile(LocaleFolder::path(), "x"));
    Localizer localizer;
    localizer.discover();
    const auto tree = newTree();
    localizer.fillLanguageTree(tree.get());
    QCOMPARE(tree->topLevelItemCount(), 1);
}

void TestLocalizer::codesComeFromTheFileNames_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("code");

    QTest::newRow("prefix") << u"app-de_DE.qm"_s << u"de_DE"_s;
    QTest::newRow("another prefix") << u"x-fr_FR.qm"_s << u"fr_FR"_s;
    QTest::newRow("no prefix") << u"fr_FR.qm"_s << u"fr_FR"_s;
    QTest::newRow("cut at the first hyphen") << u"my-app-de_DE.qm"_s << u"app-de_DE"_s;
    QTest::newRow("cut at the last dot") << u"app.1.2-de_DE.x.qm"_s << u"de_DE.x"_s;
    QTest::newRow("nothing behind the hyphen") << u"app-.qm"_s << u""_s;
    QTest::newRow("unknown to the locales") << u"app-xx_YY.qm"_s << u"xx_YY"_s;
    QTest::newRow("blanks") << u"app - de.qm"_s << u" de"_s;
    QTest::newRow("Unicode") << u"app-Ж.qm"_s << u"Ж"_s;
}

void TestLocalizer::codesComeFromTheFileNames()
{
    QFETCH(QString, fileName);
    QFETCH(QString, code);
    QVERIFY(LocaleFolder::offer(fileName));
    Localizer localizer;
    localizer.discover();
    const LanguageEntry *entry = localizer.find(code);
    QVERIFY(entry);
    QCOMPARE(entry->code, code);
    QCOMPARE(entry->fileName, fileName);
    QCOMPARE(entry->iconPath, LocaleFolder::path(code + u".png"));
    QCOMPARE(entry->language, QLocale::languageToString(QLocale(code).language()));
    QCOMPARE(entry->country, QLocale::territoryToString(QLocale(code).territory()));
    QCOMPARE(word(), u"Replace"_s);

    localizer.setLanguage(code);
    QCOMPARE(word(), u"Ersetzen"_s);
}

// Deliberate: the built-in English is "en_UK", which is no code of any locale.
void TestLocalizer::entriesHaveTheirFields()
{
    QVERIFY(LocaleFolder::offer(u"app-de_DE.qm"_s));
    Localizer localizer;
    localizer.discover();
    const LanguageEntry *english = localizer.find(u"en_UK"_s);
    QVERIFY(english);
    QCOMPARE(english->language, u"English"_s);
    QCOMPARE(english->country, u"United Kingdom"_s);
    QCOMPARE(english->fileName, QString());
    QCOMPARE(english->iconPath, u":/img/lang_en.png"_s);
    const LanguageEntry *german = localizer.find(u"de_DE"_s);
    QVERIFY(german);
    QCOMPARE(german->language, u"German"_s);
    QCOMPARE(german->country, u"Germany"_s);
    QVERIFY(!localizer.find(u"en_EN"_s));
}

void TestLocalizer::entriesAreFoundByTheirExactCode()
{
    QVERIFY(LocaleFolder::offer(u"a-de_DE.qm"_s));
    QVERIFY(LocaleFolder::offer(u"b-de_DE.qm"_s, u"fr_FR"_s));
    Localizer localizer;
    localizer.discover();
    QCOMPARE(localizer.find(u"de_DE"_s)->fileName, u"a-de_DE.qm"_s);
    QVERIFY(!localizer.find(u"DE_de"_s));
    QVERIFY(!localizer.find(u"de"_s));
    QVERIFY(!localizer.find(QString()));
}

void TestLocalizer::otherFilesAreNoLanguages()
{
    QVERIFY(LocaleFolder::offer(u"app-de_DE.qm.bak"_s));
    QVERIFY(LocaleFolder::offer(u"app-de_DE.ts"_s));
    QVERIFY(LocaleFolder::offer(u"de_DE.png"_s));
    QVERIFY(LocaleFolder::offer(u".qm"_s));
    Localizer localizer;
    localizer.discover();
    const auto tree = newTree();
    localizer.fillLanguageTree(tree.get());
    QCOMPARE(rowsOf(*tree), QStringList(u"en_UK|English|United Kingdom"_s));
    localizer.setLanguage(u"en_UK"_s);
    QCOMPARE(word(), u"Replace"_s);
}

void TestLocalizer::savedLanguageIsInstalledAtDiscovery()
{
    QVERIFY(LocaleFolder::offer(u"x-de_DE.qm"_s));
    QVERIFY(LocaleFolder::offer(u"x-fr_FR.qm"_s, u"fr_FR"_s));
    saveLanguage(u"fr_FR"_s);
    Localizer localizer;
    localizer.discover();
    QCOMPARE(word(), u"Remplacer"_s);
    QCOMPARE(savedLanguage(), u"fr_FR"_s);
}

void TestLocalizer::savedLanguageCanBeIgnoredForOnce()
{
    QVERIFY(LocaleFolder::offer(u"x-de_DE.qm"_s));
    saveLanguage(u"de_DE"_s);
    Localizer localizer;
    localizer.discover(Localizer::Saved::Ignore);
    QCOMPARE(word(), u"Replace"_s);
    QCOMPARE(savedLanguage(), u"de_DE"_s);
    localizer.setLanguage(u"de_DE"_s);
    QCOMPARE(word(), u"Ersetzen"_s);
}

void TestLocalizer::savedEnglishInstallsNothing_data()
{
    QTest::addColumn<QString>("code");

    QTest::newRow("built-in English") << u"en_UK"_s;
    QTest::newRow("the code for no translation") << u"en_EN"_s;
}

// Deliberate: the two codes differ. A file for "en_EN" is never loaded.
void TestLocalizer::savedEnglishInstallsNothing()
{
    QFETCH(QString, code);
    QVERIFY(LocaleFolder::offer(u"app-de_DE.qm"_s));
    QVERIFY(LocaleFolder::offer(u"app-en_EN.qm"_s));
    saveLanguage(code);
    Localizer localizer;
    localizer.discover();
    QCOMPARE(word(), u"Replace"_s);
    localizer.setLanguage(u"de_DE"_s);
    QCOMPARE(word(), u"Ersetzen"_s);
    localizer.setLanguage(code);
    QCOMPARE(word(), u"Replace"_s);
    QCOMPARE(savedLanguage(), code);
}

void TestLocalizer::savedLanguageWhoseFileIsGoneIsKept()
{
    QVERIFY(LocaleFolder::offer(u"app-de_DE.qm"_s));
    saveLanguage(u"fr_FR"_s);
    Localizer localizer;
    localizer.discover();
    QCOMPARE(word(), u"Replace"_s);
    QCOMPARE(savedLanguage(), u"fr_FR"_s);
}

void TestLocalizer::languageSavedAfterDiscoveryWaits()
{
    QVERIFY(LocaleFolder::offer(u"app-de_DE.qm"_s));
    Localizer localizer;
    localizer.discover();
    saveLanguage(u"de_DE"_s);
    QCOMPARE(word(), u"Replace"_s);
    localizer.setLanguage(savedLanguage());
    QCOMPARE(word(), u"Ersetzen"_s);
}

void TestLocalizer::discoveryProcessesEventsOnce()
{
    QVERIFY(LocaleFolder::offer(u"app-de_DE.qm"_s));
    bool processed = false;
    QMetaObject::invokeMethod(
        this, [&processed] { processed = true; }, Qt::QueuedConnection);
    Localizer localizer;
    localizer.discover();
    QVERIFY(processed);
}

void TestLocalizer::switchingSavesAndInstalls()
{
    QVERIFY(LocaleFolder::offer(u"app-de_DE.qm"_s));
    QVERIFY(LocaleFolder::offer(u"app-fr_FR.qm"_s, u"fr_FR"_s));
    Localizer localizer;
    localizer.discover();
    for (int i = 0; i < 3; ++i) {
        localizer.setLanguage(u"de_DE"_s);
        QCOMPARE(word(), u"Ersetzen"_s);
        QCOMPARE(savedLanguage(), u"de_DE"_s);
        localizer.setLanguage(u"fr_FR"_s);
        QCOMPARE(word(), u"Remplacer"_s);
        QCOMPARE(savedLanguage(), u"fr_FR"_s);
    }
    localizer.setLanguage(u"no_SUCH"_s);
    QCOMPARE(word(), u"Replace"_s);
    QCOMPARE(savedLanguage(), u"no_SUCH"_s);
    localizer.setLanguage(QString());
    QCOMPARE(savedLanguage(), QString());
}

void TestLocalizer::switchingTellsTheWidgets()
{
    QVERIFY(LocaleFolder::offer(u"app-de_DE.qm"_s));
    LanguageWatcher watcher;
    Localizer localizer;
    localizer.discover();
    QCoreApplication::processEvents();
    QCOMPARE(watcher.changes, 0);
    localizer.setLanguage(u"de_DE"_s);
    QCoreApplication::processEvents();
    QCOMPARE(watcher.changes, 1);
    localizer.setLanguage(u"en_UK"_s);
    QCoreApplication::processEvents();
    QCOMPARE(watcher.changes, 2);
    localizer.setLanguage(u"en_UK"_s);
    QCoreApplication::processEvents();
    QCOMPARE(watcher.changes, 2);
}

void TestLocalizer::badFileFallsBackToEnglish_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray good = sampleContent();

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("no translation at all");
    QTest::newRow("header alone") << good.left(16);
    QTest::newRow("cut off") << good.left(20);
    QTest::newRow("broken header") << 'x' + good.mid(1);
    QTest::newRow("nulls") << QByteArray(4096, '\0');
}

void TestLocalizer::badFileFallsBackToEnglish()
{
    QFETCH(QByteArray, content);
    QVERIFY(LocaleFolder::offer(u"app-de_DE.qm"_s));
    QVERIFY(writeFile(LocaleFolder::path(u"app-it_IT.qm"_s), content));
    QVERIFY(QDir().mkdir(LocaleFolder::path(u"app-es_ES.qm"_s)));
    Localizer localizer;
    localizer.discover();
    for (const QString &code : {u"it_IT"_s, u"es_ES"_s}) {
        localizer.setLanguage(u"de_DE"_s);
        QCOMPARE(word(), u"Ersetzen"_s);
        localizer.setLanguage(code);
        QCOMPARE(word(), u"Replace"_s);
        QCOMPARE(savedLanguage(), code);
    }
}

void TestLocalizer::damagedFileHarmsNothing_data()
{
    QTest::addColumn<int>("value");

    for (const int value : {0x00, 0x01, 0x03, 0x06, 0x7f, 0x80, 0xff})
        QTest::addRow("0x%02x", static_cast<unsigned>(value)) << value;
}

// QTranslator trusts the file: with most of these a translated text would crash the program.
void TestLocalizer::damagedFileHarmsNothing()
{
    QFETCH(int, value);
    const QByteArray good = sampleContent();
    const QString path = LocaleFolder::path(u"app-de_DE.qm"_s);
    QVERIFY(QDir().mkdir(LocaleFolder::path()) && writeFile(path, good));
    Localizer localizer;
    localizer.discover();
    for (qsizetype i = 0; i < good.size(); ++i) {
        QByteArray damaged = good;
        damaged[i] = static_cast<char>(value);
        QVERIFY(writeFile(path, damaged));
        localizer.setLanguage(u"de_DE"_s);
        const QString translated = word();
        QVERIFY(!translated.isEmpty());
        static_cast<void>(QCoreApplication::translate("Rules", "%n files", nullptr, value));
    }
}

void TestLocalizer::fileThatDependsOnItselfIsItsOwnEnd()
{
    QVERIFY(QDir().mkdir(LocaleFolder::path()));
    const QString path = LocaleFolder::path(u"app-de_DE.qm"_s);
    QByteArray dependency;
    QDataStream stream(&dependency, QIODevice::WriteOnly);
    stream << path;
    QByteArray section("\x96\0\0\0", 4);
    section += static_cast<char>(dependency.size());
    QVERIFY(writeFile(path, sampleContent() + section + dependency));
    Localizer localizer;
    localizer.discover();
    localizer.setLanguage(u"de_DE"_s);
    QCOMPARE(word(), u"Ersetzen"_s);
}

void TestLocalizer::pipeInThePlaceOfAFileIsNotOpened()
{
    const QString path = LocaleFolder::path(u"app-de_DE.qm"_s);
    QVERIFY(QDir().mkdir(LocaleFolder::path()) && writeFile(path, sampleContent()));
    Localizer localizer;
    localizer.discover();
    QVERIFY(QFile::remove(path));
    // Where there are no pipes the file is merely gone.
    static_cast<void>(makePipe(path));
    localizer.setLanguage(u"de_DE"_s);
    QCOMPARE(word(), u"Replace"_s);
}

// QTranslator looks for files of shorter names by itself: "app-de.qm", "app-de", and so on up the path.
void TestLocalizer::vanishedFileIsNotReplacedByANeighbour()
{
    QVERIFY(LocaleFolder::offer(u"app-de_DE.qm"_s));
    QVERIFY(LocaleFolder::offer(u"app-de.qm"_s, u"fr_FR"_s));
    QVERIFY(LocaleFolder::offer(u"app-de_DE.qm.qm"_s, u"fr_FR"_s));
    Localizer localizer;
    localizer.discover();
    QVERIFY(QFile::remove(LocaleFolder::path(u"app-de_DE.qm"_s)));
    localizer.setLanguage(u"de_DE"_s);
    QCOMPARE(word(), u"Replace"_s);
}

// Deliberate: the code column takes its width from the language names.
void TestLocalizer::thereIsOneLocalizer()
{
    Localizer *localizer = Localizer::instance();
    QCOMPARE(Localizer::instance(), localizer);
    localizer->discover();
    QVERIFY(Localizer::instance()->find(u"en_UK"_s));
    Localizer::destroy();
    Localizer::destroy();
    QVERIFY(!Localizer::instance()->find(u"en_UK"_s));
}

void TestLocalizer::destroyingRemovesTheTranslation()
{
    QVERIFY(LocaleFolder::offer(u"app-de_DE.qm"_s));
    saveLanguage(u"de_DE"_s);
    Localizer::instance()->discover();
    QCOMPARE(word(), u"Ersetzen"_s);
    Localizer::destroy();
    QCOMPARE(word(), u"Replace"_s);
}

QTEST_MAIN(TestLocalizer)
#include "tst_localizer.moc"
