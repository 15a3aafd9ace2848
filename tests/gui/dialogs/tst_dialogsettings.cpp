// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "core/maker.h"
#include "dialogs/dialognotice.h"
#include "dialogs/dialogsettings.h"
#include "dialogs/faderwidget.h"
#include "dialogstest.h"
#include "platform/autostart.h"

#include <QCheckBox>
#include <QListWidget>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

class TestDialogSettings final : public DialogsTest
{
    Q_OBJECT

private slots:
    void loadsDefaults();
    void loadsWhatIsStored();
    void eachCheckBoxHasItsSetting_data();
    void eachCheckBoxHasItsSetting();
    void savesInOrder();
    void nothingIsSavedBefore();
    void ends_data();
    void ends();
    void tabReachesEverything_data();
    void tabReachesEverything();
    void pagesFollowTheList();
    void pagesFadeIn();
    void autoStartIsSwitchedAtOnce();
    void autoStartOfAnotherPathIsOverwritten();
    void autoStartFollowsTheEntryNotTheCheckBox();
    void autoStartComparesWithoutCase();
    void autoStartFailureIsTold();
    void dialogGoesWhileTheBoxIsOpen();
    void languageChangesAtOnce();
    void languageByKeyboard();
    void savedLanguageIsSelected();
    void infoButtons_data();
    void infoButtons();
    void unknownInfoButtonOpensNothing();
    void donateOpensThePage();

private:
    static void click(QCheckBox *checkBox)
    {
        QTest::mouseClick(checkBox, Qt::LeftButton, {}, QPoint(8, checkBox->height() / 2));
    }
    [[nodiscard]] QString autoStartEntry() const
    {
        return folder->filePath(u"xdg/autostart/Pendulix Basic.desktop"_s);
    }
    void writeEntry(const QByteArray &command) const
    {
        QVERIFY(QDir().mkpath(folder->filePath(u"xdg/autostart"_s)));
        QFile file(autoStartEntry());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[Desktop Entry]\nType=Application\nName=x\nExec=" + command + "\n");
    }
};

void TestDialogSettings::loadsDefaults()
{
    const DialogSettings dialog(nullptr);
    QVERIFY(!find<QCheckBox>(dialog, "checkBoxMinimizeToTrayicon")->isChecked());
    QVERIFY(!find<QCheckBox>(dialog, "checkBoxDisableSplash")->isChecked());
    QVERIFY(!find<QCheckBox>(dialog, "checkBoxMinimizeOnStart")->isChecked());
    QVERIFY(!find<QCheckBox>(dialog, "checkBoxEnableAutoStart")->isChecked());
    QVERIFY(find<QCheckBox>(dialog, "checkBoxFinal")->isChecked());
    // Deliberate: shown as switched on although saving and restoring take them as switched off.
    QVERIFY(find<QCheckBox>(dialog, "checkBoxRestoreLayout")->isChecked());
    QVERIFY(find<QCheckBox>(dialog, "checkBoxRestoreGeometry")->isChecked());
}

void TestDialogSettings::loadsWhatIsStored()
{
    DialogSettings dialog(nullptr);
    SettingsStore *store = SettingsStore::instance();
    store->setValue(SettingKey::MiscMinimizeToTrayIcon, true);
    store->setValue(SettingKey::VersionCheckAuto, u"FALSE"_s);
    store->setValue(SettingKey::WindowLayoutRestore, 0);
    store->setValue(SettingKey::MiscMinimizeOnStart, u"no"_s); // any other text means true
    dialog.load();
    QVERIFY(find<QCheckBox>(dialog, "checkBoxMinimizeToTrayicon")->isChecked());
    QVERIFY(!find<QCheckBox>(dialog, "checkBoxFinal")->isChecked());
    QVERIFY(!find<QCheckBox>(dialog, "checkBoxRestoreLayout")->isChecked());
    QVERIFY(find<QCheckBox>(dialog, "checkBoxMinimizeOnStart")->isChecked());
}

void TestDialogSettings::eachCheckBoxHasItsSetting_data()
{
    QTest::addColumn<SettingKey>("key");
    QTest::newRow("checkBoxMinimizeToTrayicon") << SettingKey::MiscMinimizeToTrayIcon;
    QTest::newRow("checkBoxDisableSplash") << SettingKey::MiscDisableSplashScreen;
    QTest::newRow("checkBoxMinimizeOnStart") << SettingKey::MiscMinimizeOnStart;
    QTest::newRow("checkBoxRestoreLayout") << SettingKey::WindowLayoutRestore;
    QTest::newRow("checkBoxRestoreGeometry") << SettingKey::WindowGeometryRestore;
    QTest::newRow("checkBoxFinal") << SettingKey::VersionCheckAuto;
}

void TestDialogSettings::eachCheckBoxHasItsSetting()
{
    QFETCH(SettingKey, key);
    DialogSettings dialog(nullptr);
    dialog.show();
    auto *checkBox = find<QCheckBox>(dialog, QTest::currentDataTag());
    for (int i = 0; i < 2; ++i) {
        const bool wasChecked = checkBox->isChecked();
        click(checkBox);
        QCOMPARE(checkBox->isChecked(), !wasChecked);
        dialog.save();
        QCOMPARE(setting(key).toString(), wasChecked ? u"false"_s : u"true"_s);
        const DialogSettings later(nullptr);
        QCOMPARE(find<QCheckBox>(later, QTest::currentDataTag())->isChecked(), !wasChecked);
    }
}

void TestDialogSettings::savesInOrder()
{
    const DialogSettings dialog(nullptr);
    dialog.save();
    const QString path = folder->filePath(u"saved.xml"_s);
    SettingsStore::instance()->setFilePath(path);
    SettingsStore::instance()->save();
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray xml = file.readAll().simplified().replace(" ", "");
    QVERIFY2(xml.contains("<Misc><MinimizeToTrayIcon>false</MinimizeToTrayIcon>"
                          "<DisableSplashScreen>false</DisableSplashScreen>"
                          "<MinimizeOnStart>false</MinimizeOnStart></Misc>"
                          "<Window><Layout><Restore>true</Restore></Layout>"
                          "<Geometry><Restore>true</Restore></Geometry></Window>"
                          "<VersionCheck><Auto>true</Auto></VersionCheck></Settings>"),
             xml.constData());
}

void TestDialogSettings::nothingIsSavedBefore()
{
    DialogSettings dialog(nullptr);
    dialog.show();
    click(find<QCheckBox>(dialog, "checkBoxFinal"));
    QVERIFY(setting(SettingKey::VersionCheckAuto).isNull());
    dialog.accept(); // the caller saves
    QVERIFY(setting(SettingKey::VersionCheckAuto).isNull());
}

void TestDialogSettings::ends_data()
{
    QTest::addColumn<QString>("button"); // empty: a key
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("result");
    QTest::newRow("Save") << u"pushButton"_s << 0 << 0 << int(QDialog::Accepted);
    QTest::newRow("Cancel") << u"pushButton_2"_s << 0 << 0 << int(QDialog::Rejected);
    QTest::newRow("Enter") << QString() << int(Qt::Key_Enter) << 0 << int(QDialog::Accepted);
    QTest::newRow("Return") << QString() << int(Qt::Key_Return) << 0 << int(QDialog::Accepted);
    QTest::newRow("Return among languages")
        << QString() << int(Qt::Key_Return) << 2 << int(QDialog::Accepted);
    QTest::newRow("Escape") << QString() << int(Qt::Key_Escape) << 0 << int(QDialog::Rejected);
    QTest::newRow("Escape among languages")
        << QString() << int(Qt::Key_Escape) << 2 << int(QDialog::Rejected);
    QTest::newRow("window closed") << QString() << 0 << 0 << int(QDialog::Rejected);
}

void TestDialogSettings::ends()
{
    QFETCH(QString, button);
    QFETCH(int, key);
    QFETCH(int, page);
    DialogSettings dialog(nullptr);
    bool isClosed = false;
    const ModalAnswer answer([&](QDialog *) {
        if (!QTest::qWaitForWindowActive(&dialog))
            return;
        find<QListWidget>(dialog, "listWidget")->setCurrentRow(page);
        if (page == 2)
            find<QTreeWidget>(dialog, "listLocale")->setFocus();
        if (!button.isEmpty())
            QTest::mouseClick(dialog.findChild<QPushButton *>(button), Qt::LeftButton);
        else if (key != 0)
            QTest::keyClick(dialog.windowHandle(), Qt::Key(key));
        else
            dialog.close();
        isClosed = !dialog.isVisible();
    });
    QTEST(dialog.exec(), "result");
    QVERIFY(answer.isDone());
    QVERIFY(isClosed);
}

void TestDialogSettings::tabReachesEverything_data()
{
    QTest::addColumn<QStringList>("controls");
    QTest::newRow("0") << QStringList{u"checkBoxEnableAutoStart"_s, u"checkBoxMinimizeOnStart"_s,
                                      u"checkBoxDisableSplash"_s,   u"checkBoxRestoreLayout"_s,
                                      u"checkBoxRestoreGeometry"_s, u"checkBoxMinimizeToTrayicon"_s,
                                      u"checkBoxFinal"_s,           u"pushButtonUpdate"_s};
    QTest::newRow("1") << QStringList();
    QTest::newRow("2") << QStringList{u"listLocale"_s};
    QTest::newRow("3") << QStringList{u"pushButtonDonate"_s};
    QTest::newRow("4") << QStringList{u"buttonInfoAppDir"_s, u"buttonInfoAppDataDir"_s,
                                      u"buttonInfoWebsite"_s, u"buttonInfoFeedback"_s};
}

void TestDialogSettings::tabReachesEverything()
{
    QFETCH(QStringList, controls);
    DialogSettings dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto *list = find<QListWidget>(dialog, "listWidget");
    QCOMPARE(QApplication::focusWidget(), list);
    for (int i = 0; i < QByteArray(QTest::currentDataTag()).toInt(); ++i)
        QTest::keyClick(dialog.windowHandle(), Qt::Key_Down);
    controls.prepend(u"listWidget"_s);
    controls << u"pushButton"_s << u"pushButton_2"_s;
    QCOMPARE(tabbed(dialog), controls);
}

void TestDialogSettings::pagesFollowTheList()
{
    DialogSettings dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto *list = find<QListWidget>(dialog, "listWidget");
    auto *pages = find<QStackedWidget>(dialog, "stackedWidget");
    for (const int row : {4, 1, 3, 2, 0}) {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->item(row)).center());
        QCOMPARE(pages->currentIndex(), row);
        QVERIFY(pages->widget(row)->isVisible());
    }
}

void TestDialogSettings::pagesFadeIn()
{
    DialogSettings dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(dialog.findChildren<FaderWidget *>().isEmpty());
    auto *list = find<QListWidget>(dialog, "listWidget");
    auto *pages = find<QStackedWidget>(dialog, "stackedWidget");
    list->setCurrentRow(3);
    const QPointer<FaderWidget> first = pages->widget(3)->findChild<FaderWidget *>();
    QVERIFY(first);
    QVERIFY(first->isVisible());
    QCOMPARE(first->size(), pages->widget(3)->size());
    list->setCurrentRow(4); // before the first has ended
    QVERIFY(!first || first->isHidden());
    const QPointer<FaderWidget> second = pages->widget(4)->findChild<FaderWidget *>();
    QVERIFY(second);
    QTRY_VERIFY(!second);
    QTRY_VERIFY(dialog.findChildren<FaderWidget *>().isEmpty());
}

void TestDialogSettings::autoStartIsSwitchedAtOnce()
{
    DialogSettings dialog(nullptr);
    dialog.show();
    auto *checkBox = find<QCheckBox>(dialog, "checkBoxEnableAutoStart");
    for (const bool isEnabled : {true, false}) {
        const BoxAnswer box(QMessageBox::Ok);
        click(checkBox);
        QVERIFY(box.isDone());
        QCOMPARE(box.title, u"Orvanto"_s);
        QCOMPARE(box.text, u"The command completed successfully."_s);
        QCOMPARE(box.icon, QMessageBox::Information);
        QCOMPARE(box.parent, &dialog);
        QCOMPARE(box.buttonTexts,
                 (QMap<QMessageBox::StandardButton, QString>{{QMessageBox::Ok, u"Close"_s}}));
        QVERIFY(box.areIconsOf24);
        QVERIFY(!box.hasContextHelp);
        QCOMPARE(QFile::exists(autoStartEntry()), isEnabled);
        QCOMPARE(isAutoStartEnabled(), isEnabled);
        QCOMPARE(checkBox->isChecked(), isEnabled);
    }
    // Cancelling undoes nothing.
    const BoxAnswer box(QMessageBox::Ok);
    click(checkBox);
    dialog.reject();
    QVERIFY(isAutoStartEnabled());
    const DialogSettings later(nullptr);
    QVERIFY(find<QCheckBox>(later, "checkBoxEnableAutoStart")->isChecked());
}

void TestDialogSettings::autoStartOfAnotherPathIsOverwritten()
{
    writeEntry("\"/another/program\" -auto");
    DialogSettings dialog(nullptr);
    dialog.show();
    auto *checkBox = find<QCheckBox>(dialog, "checkBoxEnableAutoStart");
    QVERIFY(!checkBox->isChecked());
    const BoxAnswer box(QMessageBox::Ok);
    click(checkBox);
    QVERIFY(box.isDone());
    QVERIFY(isAutoStartEnabled());
    QVERIFY(checkBox->isChecked());
}

void TestDialogSettings::autoStartFollowsTheEntryNotTheCheckBox()
{
    DialogSettings dialog(nullptr);
    dialog.show();
    auto *checkBox = find<QCheckBox>(dialog, "checkBoxEnableAutoStart");
    for (const bool isEnabled : {true, false}) {
        // Another instance may have written the entry since the box was set.
        QVERIFY(isAutoStartEnabled() == isEnabled || setAutoStart(isEnabled));
        checkBox->setChecked(!isEnabled);
        const BoxAnswer box(QMessageBox::Ok);
        click(checkBox);
        QVERIFY(box.isDone());
        QCOMPARE(isAutoStartEnabled(), !isEnabled);
        QCOMPARE(checkBox->isChecked(), !isEnabled);
    }
}

void TestDialogSettings::autoStartComparesWithoutCase()
{
    writeEntry(autoStartCommand(QCoreApplication::applicationFilePath()).toUpper().toUtf8());
    const DialogSettings dialog(nullptr);
    QVERIFY(find<QCheckBox>(dialog, "checkBoxEnableAutoStart")->isChecked());
}

void TestDialogSettings::autoStartFailureIsTold()
{
    QVERIFY(QDir().mkpath(autoStartEntry())); // a folder in the way refuses root too
    DialogSettings dialog(nullptr);
    dialog.show();
    auto *checkBox = find<QCheckBox>(dialog, "checkBoxEnableAutoStart");
    const BoxAnswer box(QMessageBox::Ok);
    click(checkBox);
    QVERIFY(box.isDone());
    QCOMPARE(box.title, u"Orvanto"_s);
    QCOMPARE(box.text, u"The command failed to execute.\nMake sure you have administrator rights."_s);
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.buttonTexts, (QMap<QMessageBox::StandardButton, QString>{{QMessageBox::Ok, u"Close"_s}}));
    QVERIFY(!checkBox->isChecked());
}

void TestDialogSettings::dialogGoesWhileTheBoxIsOpen()
{
    auto dialog = std::make_unique<DialogSettings>(nullptr);
    const ModalAnswer answer([&dialog](QDialog *) { dialog.reset(); });
    QMetaObject::invokeMethod(dialog.get(), "checkBoxEnableAutoStart");
    QVERIFY(answer.isDone());
    QVERIFY(!dialog);
}

void TestDialogSettings::languageChangesAtOnce()
{
    const DialogNotice other(nullptr, QPixmap());
    DialogSettings dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    find<QListWidget>(dialog, "listWidget")->setCurrentRow(2);
    auto *list = find<QTreeWidget>(dialog, "listLocale");
    selectLanguage(list, u"de_DE"_s);
    QCOMPARE(setting(SettingKey::MiscLanguage).toString(), u"de_DE"_s);
    QTRY_COMPARE(dialog.windowTitle(), u"Globale Einstellungen"_s);
    QCOMPARE(find<QPushButton>(dialog, "pushButton")->text(), u"Speichern"_s);
    QCOMPARE(find<QListWidget>(dialog, "listWidget")->item(0)->text(), u"Allgemein"_s);
    QCOMPARE(find<QListWidget>(dialog, "listWidget")->currentRow(), 2);
    QCOMPARE(list->headerItem()->text(1), u"Sprache"_s);
    QCOMPARE(list->topLevelItemCount(), 2);
    QCOMPARE(find<QCheckBox>(dialog, "checkBoxEnableAutoStart")->toolTip(),
             u"Erfordert einen Eintrag in der Registrierung"_s);
    QCOMPARE(find<QLabel>(dialog, "label_4")->text(), u"Übersetzung: Kavrondel"_s);
    QVERIFY(find<QLabel>(dialog, "labelInfoVersion")->text().contains("1.2.0.5"_L1));
    QTRY_COMPARE(find<QPushButton>(other, "buttonOkay")->text(), u"Schließen"_s);
    dialog.reject();
    QCOMPARE(setting(SettingKey::MiscLanguage).toString(), u"de_DE"_s);
    QCOMPARE(find<QPushButton>(dialog, "pushButton")->text(), u"Speichern"_s);
    Localizer::instance()->setLanguage(u"en_UK"_s);
    QTRY_COMPARE(dialog.windowTitle(), u"Global Settings"_s);
}

void TestDialogSettings::languageByKeyboard()
{
    DialogSettings dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    find<QListWidget>(dialog, "listWidget")->setCurrentRow(2);
    auto *list = find<QTreeWidget>(dialog, "listLocale");
    list->setFocus();
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Down);
    QTRY_COMPARE(dialog.windowTitle(), u"Globale Einstellungen"_s);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Up);
    QTRY_COMPARE(dialog.windowTitle(), u"Global Settings"_s);
}

void TestDialogSettings::savedLanguageIsSelected()
{
    Localizer::instance()->setLanguage(u"de_DE"_s);
    const DialogSettings dialog(nullptr);
    QCOMPARE(find<QTreeWidget>(dialog, "listLocale")->currentItem()->text(0), u"de_DE"_s);
    QCOMPARE(dialog.windowTitle(), u"Globale Einstellungen"_s);
}

void TestDialogSettings::infoButtons_data()
{
    QTest::addColumn<int>("id");
    QTest::newRow("buttonInfoWebsite") << 0;
    QTest::newRow("buttonInfoFeedback") << 1;
    QTest::newRow("buttonInfoAppDir") << 2;
    QTest::newRow("buttonInfoAppDataDir") << 3;
}

void TestDialogSettings::infoButtons()
{
    QFETCH(int, id);
    const QList<QUrl> targets = {
        QUrl(Maker::homeUrl()), QUrl(Maker::contactUrl()),
        QUrl::fromLocalFile(QDir(QCoreApplication::applicationDirPath()).canonicalPath()),
        QUrl::fromLocalFile(QDir(folder->path()).canonicalPath())};
    DialogSettings dialog(nullptr);
    dialog.show();
    find<QListWidget>(dialog, "listWidget")->setCurrentRow(4);
    QTest::mouseClick(find<QPushButton>(dialog, QTest::currentDataTag()), Qt::LeftButton);
    QCOMPARE(opened->urls, QList<QUrl>{targets.at(id)});
}

void TestDialogSettings::unknownInfoButtonOpensNothing()
{
    DialogSettings dialog(nullptr);
    for (const int id : {-1, 4, 99})
        QVERIFY(QMetaObject::invokeMethod(&dialog, "onInfoButtonClicked", Q_ARG(int, id)));
    QVERIFY(opened->urls.isEmpty());
}

void TestDialogSettings::donateOpensThePage()
{
    DialogSettings dialog(nullptr);
    dialog.show();
    find<QListWidget>(dialog, "listWidget")->setCurrentRow(3);
    QTest::mouseClick(find<QPushButton>(dialog, "pushButtonDonate"), Qt::LeftButton);
    QCOMPARE(opened->urls, QList<QUrl>{QUrl(Maker::donateUrl())});
}

QTEST_MAIN(TestDialogSettings)
#include "tst_dialogsettings.moc"
