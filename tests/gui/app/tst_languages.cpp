// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "app/look.h"
#include "core/localizer.h"
#include "core/settingsstore.h"
#include "dialogs/dialognotice.h"
#include "dialogs/dialogsettings.h"
#include "dialogs/dialogstart.h"
#include "mainwindow/mainwindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <QTreeView>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

/// The shipped translations in the real windows.
class TestLanguages final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void switchingRetranslatesOpenWindows_data();
    void switchingRetranslatesOpenWindows();
    void languageMayChangeBeforeTheWindowIsInitialized();
    void nothingIsClipped_data();
    void nothingIsClipped();

private:
    void addLanguageRows();

    QString before = QDir::currentPath();
    QTemporaryDir folder;
};

namespace {

struct InstalledLanguage
{
    explicit InstalledLanguage(const QString &code)
    {
        loaded = translator.load(QStringLiteral(LOCALE_FOLDER "/orvanto-%1.qm").arg(code));
        QCoreApplication::installTranslator(&translator);
    }
    ~InstalledLanguage() { QCoreApplication::removeTranslator(&translator); }
    Q_DISABLE_COPY_MOVE(InstalledLanguage)

    QTranslator translator;
    bool loaded = false;
};

/// Labels and buttons of the window that are narrower than their text.
QStringList clippedTexts(QWidget *window)
{
    QStringList clipped;
    const auto check = [&](const QWidget *widget, const QString &text) {
        if (widget->isVisibleTo(window) && !text.isEmpty() &&
            widget->width() < widget->minimumSizeHint().width())
            clipped.append(widget->objectName() + ": "_L1 + text);
    };
    for (const auto *button : window->findChildren<QAbstractButton *>()) {
        if (button->isVisibleTo(window) && !button->text().isEmpty() &&
            button->width() < button->sizeHint().width())
            clipped.append(button->objectName() + ": "_L1 + button->text());
    }
    for (const auto *label : window->findChildren<QLabel *>())
        check(label, label->text());
    return clipped;
}

} // namespace

void TestLanguages::initTestCase()
{
    QDir::setCurrent(folder.path());
    QApplication::setStyle(u"Fusion"_s);
    applyLook();
    Localizer::instance()->discover();
}

void TestLanguages::cleanupTestCase()
{
    Localizer::destroy();
    SettingsStore::destroy();
    QDir::setCurrent(before);
}

void TestLanguages::addLanguageRows()
{
    QTest::addColumn<QString>("code");
    for (const char *code : {"de_DE", "fr_FR", "es_ES", "it_IT", "pt_BR", "nl_NL", "pl_PL", "tr_TR", "ru_RU",
                             "uk_UA", "zh_CN", "ja_JP"})
        QTest::newRow(code) << QString::fromLatin1(code);
}

void TestLanguages::switchingRetranslatesOpenWindows_data()
{
    addLanguageRows();
}

void TestLanguages::switchingRetranslatesOpenWindows()
{
    QFETCH(QString, code);
    MainWindow window({});
    window.initialize();
    window.show();
    auto *kinds = window.findChild<QComboBox *>(u"comboBoxRules"_s);
    auto *rules = window.findChild<QTreeWidget *>(u"treeWidgetRules"_s);
    kinds->setCurrentIndex(kinds->findData(2)); // Change Case
    window.on_buttonAddRule_clicked();
    window.on_buttonAddRule_clicked();
    rules->setCurrentItem(rules->topLevelItem(1));
    auto *pages = window.findChild<QStackedWidget *>(u"stackedWidgetRules"_s);
    const auto editorText = [&] {
        return pages->currentWidget()->findChild<QAbstractButton *>()->text();
    };
    const QString englishEditor = editorText();

    const InstalledLanguage language(code);
    QVERIFY(language.loaded);
    QCoreApplication::sendPostedEvents();
    QCOMPARE_NE(window.findChild<QPushButton *>(u"buttonRename"_s)->text(), u"Rename"_s);
    QCOMPARE_NE(rules->topLevelItem(0)->text(0), u"Change Case"_s);
    QCOMPARE_NE(editorText(), englishEditor);
    // The German word is the English one.
    if (code != "de_DE"_L1) {
        const auto *explorer = window.findChild<QTreeView *>(u"treeExplorer"_s);
        QCOMPARE_NE(explorer->model()->headerData(0, Qt::Horizontal).toString(), u"Name"_s);
    }
    QCOMPARE(kinds->currentData().toInt(), 2);
    QCOMPARE(kinds->count(), 5);
    QCOMPARE(pages->currentIndex(), 2);
    QCOMPARE(rules->indexOfTopLevelItem(rules->currentItem()), 1);
}

void TestLanguages::languageMayChangeBeforeTheWindowIsInitialized()
{
    // Crashed once: the first-start dialog changes the language of a window without its logo and docks.
    MainWindow window({});
    const InstalledLanguage language(u"de_DE"_s);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(window.findChild<QPushButton *>(u"buttonRename"_s)->text(), u"Umbenennen"_s);
    window.initialize();
    QVERIFY(!window.findChild<QPushButton *>(u"buttonLogo"_s)->accessibleName().isEmpty());
}

void TestLanguages::nothingIsClipped_data()
{
    addLanguageRows();
}

void TestLanguages::nothingIsClipped()
{
    QFETCH(QString, code);
    const InstalledLanguage language(code);
    MainWindow window({});
    window.initialize();
    window.show();
    auto *kinds = window.findChild<QComboBox *>(u"comboBoxRules"_s);
    for (int kind = 0; kind < kinds->count(); ++kind) {
        kinds->setCurrentIndex(kind);
        QCoreApplication::processEvents();
        QCOMPARE(clippedTexts(&window).join(u", "_s), QString());
    }
    DialogSettings settings(nullptr);
    settings.show();
    auto *list = settings.findChild<QListWidget *>(u"listWidget"_s);
    for (int page = 0; page < list->count(); ++page) {
        list->setCurrentRow(page);
        QCoreApplication::processEvents();
        QCOMPARE(clippedTexts(&settings).join(u", "_s), QString());
    }
    DialogNotice notice(nullptr, {});
    notice.show();
    QCoreApplication::processEvents();
    QCOMPARE(clippedTexts(&notice).join(u", "_s), QString());
    DialogStart start(nullptr, {});
    auto *startPages = start.findChild<QStackedWidget *>(u"stackedWidget"_s);
    for (int page = 0; page < startPages->count(); ++page) {
        startPages->setCurrentIndex(page);
        QCoreApplication::processEvents();
        QCOMPARE(clippedTexts(&start).join(u", "_s), QString());
    }
}

QTEST_MAIN(TestLanguages)
#include "tst_languages.moc"
