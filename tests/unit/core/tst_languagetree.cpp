// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "localefolder.h"

#include <QImage>
#include <QTest>

using namespace Qt::StringLiterals;

class TestLanguageTree final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { locale.reset(); }
    void treeListsTheLanguages();
    void treeSelectsTheSavedLanguage_data();
    void treeSelectsTheSavedLanguage();
    void treeSizesTheCodesByTheLongestLanguage();
    void treeShowsFlagsWhereThereAreSome();
    void thousandsOfFiles();

private:
    std::unique_ptr<LocaleFolder> locale;
};

void TestLanguageTree::init()
{
    locale = std::make_unique<LocaleFolder>();
    QCOMPARE(word(), u"Replace"_s);
}

void TestLanguageTree::treeListsTheLanguages()
{
    QVERIFY(LocaleFolder::offer(u"b-de_DE.qm"_s));
    QVERIFY(LocaleFolder::offer(u"a-pt_BR.qm"_s));
    QVERIFY(LocaleFolder::offer(u"c-en_US.qm"_s));
    Localizer localizer;
    localizer.discover();
    const auto tree = newTree();
    localizer.fillLanguageTree(tree.get());
    const QStringList expected{u"en_UK|English|United Kingdom"_s, u"pt_BR|Portuguese|Brazil"_s,
                               u"de_DE|German|Germany"_s, u"en_US|English|United States"_s};
    QCOMPARE(rowsOf(*tree), expected);
}

void TestLanguageTree::treeSelectsTheSavedLanguage_data()
{
    QTest::addColumn<QString>("saved");
    QTest::addColumn<QString>("selected");

    QTest::newRow("nothing saved") << QString() << u"en_UK"_s;
    QTest::newRow("saved") << u"en_US"_s << u"en_US"_s;
    QTest::newRow("built-in English") << u"en_UK"_s << u"en_UK"_s;
    QTest::newRow("no translation") << u"en_EN"_s << u"en_UK"_s;
    QTest::newRow("its file is gone") << u"fr_FR"_s << u"en_UK"_s;
    QTest::newRow("another letter case") << u"DE_de"_s << u"en_UK"_s;
    QTest::newRow("part of a code") << u"de"_s << u"en_UK"_s;
    QTest::newRow("pattern") << u"de*"_s << u"en_UK"_s;
}

void TestLanguageTree::treeSelectsTheSavedLanguage()
{
    QFETCH(QString, saved);
    QFETCH(QString, selected);
    QVERIFY(LocaleFolder::offer(u"a-en_US.qm"_s));
    QVERIFY(LocaleFolder::offer(u"b-de_DE.qm"_s));
    Localizer localizer;
    localizer.discover();
    if (!saved.isEmpty())
        saveLanguage(saved);
    const auto tree = newTree();
    localizer.fillLanguageTree(tree.get());
    QCOMPARE(tree->selectedItems().size(), 1);
    QCOMPARE(tree->selectedItems().first(), tree->currentItem());
    QCOMPARE(tree->currentItem()->text(0), selected);
    QCOMPARE(savedLanguage(), saved.isEmpty() ? u"none"_s : saved);
}

void TestLanguageTree::treeSizesTheCodesByTheLongestLanguage()
{
    const auto tree = newTree();
    QFont font = tree->font();
    font.setPointSize(11);
    tree->setFont(font);
    {
        Localizer localizer;
        localizer.discover();
        localizer.fillLanguageTree(tree.get());
        QCOMPARE(tree->columnWidth(0), (7 + 4) * 11);
    }
    QVERIFY(LocaleFolder::offer(u"app-pt_BR.qm"_s));
    Localizer localizer;
    localizer.discover();
    localizer.fillLanguageTree(tree.get());
    QCOMPARE(tree->columnWidth(0), (10 + 4) * 11);
}

void TestLanguageTree::treeShowsFlagsWhereThereAreSome()
{
    QVERIFY(LocaleFolder::offer(u"app-de_DE.qm"_s));
    QVERIFY(LocaleFolder::offer(u"app-fr_FR.qm"_s));
    QVERIFY(LocaleFolder::offer(u"app-it_IT.qm"_s));
    QImage flag(16, 16, QImage::Format_RGB32);
    flag.fill(Qt::red);
    QVERIFY(flag.save(LocaleFolder::path(u"de_DE.png"_s)));
    QVERIFY(writeFile(LocaleFolder::path(u"it_IT.png"_s), "no picture"));
    Localizer localizer;
    localizer.discover();
    const auto tree = newTree();
    localizer.fillLanguageTree(tree.get());
    QCOMPARE(tree->topLevelItem(1)->icon(0).pixmap(16).toImage().pixelColor(8, 8), QColor(Qt::red));
    QVERIFY(tree->topLevelItem(1)->icon(1).isNull());
    QVERIFY(tree->topLevelItem(2)->icon(0).pixmap(16).isNull());
    QVERIFY(tree->topLevelItem(3)->icon(0).pixmap(16).isNull());
    QCOMPARE(tree->topLevelItem(2)->text(0), u"fr_FR"_s);
}

void TestLanguageTree::thousandsOfFiles()
{
    QVERIFY(QDir().mkpath(LocaleFolder::path()));
    for (int i = 0; i < 5000; ++i)
        QVERIFY(writeFile(LocaleFolder::path(u"app-x%1.qm"_s.arg(i, 4, 10, QChar(u'0'))), "no translation"));
    QVERIFY(LocaleFolder::offer(u"app-y.qm"_s));
    saveLanguage(u"y"_s);
    Localizer localizer;
    localizer.discover();
    QCOMPARE(word(), u"Ersetzen"_s);
    const auto tree = newTree();
    localizer.fillLanguageTree(tree.get());
    QCOMPARE(tree->topLevelItemCount(), 5002);
    QCOMPARE(tree->currentItem(), tree->topLevelItem(5001));
}

QTEST_MAIN(TestLanguageTree)
#include "tst_languagetree.moc"
