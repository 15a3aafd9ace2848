// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "dialogs/dialogsettings.h"
#include "dialogstest.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QListWidget>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

/// The settings dialog's form: names, classes, texts, style sheets and the order of things.
class TestDialogSettingsForm final : public DialogsTest
{
    Q_OBJECT

private slots:
    void dialog();
    void slotsInOrder();
    void pageList();
    void pages();
    void generalPage();
    void localisationPage();
    void donatePage();
    void infoPage();
    void styleSheets_data();
    void styleSheets();
    void checkBoxes_data();
    void checkBoxes();
    void buttons_data();
    void buttons();
    void separators();
    void tabOrderIsSensible();
};

void TestDialogSettingsForm::dialog()
{
    const DialogSettings dialog(nullptr);
    QCOMPARE(dialog.objectName(), u"DialogSettings"_s);
    QCOMPARE(dialog.windowTitle(), u"Global Settings"_s);
    QVERIFY(!dialog.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
    QCOMPARE(dialog.layout(), find<QVBoxLayout>(dialog, "verticalLayout_4"));
    QCOMPARE(dialog.size(), dialog.minimumSizeHint());
    auto *grid = find<QGridLayout>(dialog, "gridLayout_3");
    QCOMPARE(dialog.layout()->itemAt(0)->layout(), grid);
    QCOMPARE(grid->itemAtPosition(0, 0)->widget(), find<QListWidget>(dialog, "listWidget"));
    QCOMPARE(grid->itemAtPosition(0, 1)->widget(), find<QStackedWidget>(dialog, "stackedWidget"));
}

void TestDialogSettingsForm::slotsInOrder()
{
    QCOMPARE(slotsOf(DialogSettings::staticMetaObject),
             (QByteArrayList{"onInfoButtonClicked(int)", "retranslate()", "on_pushButtonUpdate_clicked()",
                             "on_pushButtonDonate_clicked()", "checkBoxEnableAutoStart()",
                             "showValidationBox(bool)", "fadeInWidget(int)"}));
}

void TestDialogSettingsForm::pageList()
{
    const DialogSettings dialog(nullptr);
    auto *list = find<QListWidget>(dialog, "listWidget");
    QStringList texts;
    for (int row = 0; row < list->count(); ++row)
        texts.append(list->item(row)->text());
    QCOMPARE(texts, (QStringList{u"General"_s, u"Add-ons"_s, u"Localisation"_s, u"Donate"_s, u"Info"_s}));
    QCOMPARE(list->currentRow(), 0);
    QCOMPARE(list->minimumWidth(), 160);
    QCOMPARE(list->maximumWidth(), 200);
    QCOMPARE(list->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(list->editTriggers(), QAbstractItemView::NoEditTriggers);
    QCOMPARE(list->iconSize(), QSize(32, 24));
}

void TestDialogSettingsForm::pages()
{
    const DialogSettings dialog(nullptr);
    auto *pages = find<QStackedWidget>(dialog, "stackedWidget");
    QStringList names;
    for (int index = 0; index < pages->count(); ++index)
        names.append(pages->widget(index)->objectName());
    QCOMPARE(names, (QStringList{u"stackedWidgetPage1"_s, u"stackedWidgetPage3"_s, u"stackedWidgetPage4"_s,
                                 u"page_2"_s, u"stackedWidgetPage5"_s}));
    QCOMPARE(pages->currentIndex(), 0);
    // The add-ons page holds its heading and nothing else.
    QCOMPARE(pages->widget(1)->findChildren<QWidget *>(),
             QList<QWidget *>{find<QLabel>(dialog, "label_plugins")});
    QCOMPARE(find<QLabel>(dialog, "label_plugins")->text(), u"Plugins"_s);
}

void TestDialogSettingsForm::generalPage()
{
    const DialogSettings dialog(nullptr);
    const QObject *page = find<QStackedWidget>(dialog, "stackedWidget")->widget(0);
    QStringList names;
    const QList<QWidget *> children = page->findChildren<QWidget *>();
    for (const QWidget *child : children)
        names.append(child->objectName());
    QCOMPARE(names, (QStringList{u"checkBoxEnableAutoStart"_s, u"checkBoxMinimizeOnStart"_s,
                                 u"checkBoxDisableSplash"_s, u"line"_s, u"checkBoxRestoreLayout"_s,
                                 u"checkBoxRestoreGeometry"_s, u"checkBoxMinimizeToTrayicon"_s, u"line_2"_s,
                                 u"checkBoxFinal"_s, u"pushButtonUpdate"_s}));
    auto *form = find<QFormLayout>(dialog, "formLayout_2");
    QCOMPARE(form->itemAt(0, QFormLayout::LabelRole)->widget(), find<QCheckBox>(dialog, "checkBoxFinal"));
    QCOMPARE(form->itemAt(0, QFormLayout::FieldRole)->widget(),
             find<QPushButton>(dialog, "pushButtonUpdate"));
}

void TestDialogSettingsForm::localisationPage()
{
    const DialogSettings dialog(nullptr);
    auto *list = find<QTreeWidget>(dialog, "listLocale");
    QCOMPARE(list->minimumWidth(), 400);
    QCOMPARE(list->font().pointSize(), 10);
    QCOMPARE(list->editTriggers(), QAbstractItemView::NoEditTriggers);
    QCOMPARE(list->selectionMode(), QAbstractItemView::SingleSelection);
    QCOMPARE(list->selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(list->iconSize(), QSize(20, 20));
    QCOMPARE(list->indentation(), 0);
    QVERIFY(!list->rootIsDecorated());
    const QTreeWidgetItem *header = list->headerItem();
    QCOMPARE((QStringList{header->text(0), header->text(1), header->text(2)}),
             (QStringList{u"Code"_s, u"Language"_s, u"Country"_s}));
    QCOMPARE(list->columnCount(), 3);
    QCOMPARE(list->topLevelItemCount(), 2); // the built-in English and the tests' German
    QCOMPARE(list->currentItem()->text(0), u"en_UK"_s);
    QVERIFY(!find<QLabel>(dialog, "label_4")->text().isEmpty());
}

void TestDialogSettingsForm::donatePage()
{
    const DialogSettings dialog(nullptr);
    QCOMPARE(find<QLabel>(dialog, "label_plugins_3")->text(), u"Support this project"_s);
    // Deliberate: the blank at the end.
    QCOMPARE(find<QLabel>(dialog, "label_2")->text(),
             u"This application is freeware and will always remain free. "_s);
    QCOMPARE(find<QLabel>(dialog, "label_3")->text(),
             u"By making a small contribution you can help us in developing, upgrading and maintaining "
             "our products."_s);
    QVERIFY(find<QPushButton>(dialog, "pushButtonDonate")->isFlat());
}

void TestDialogSettingsForm::infoPage()
{
    const DialogSettings dialog(nullptr);
    QCOMPARE(find<QLabel>(dialog, "labelInfoVersion")->text(),
             u"<b style='color:#888;font-size:10pt'>1.2.0.5</b>"_s);
    const QObject *holder = find<QWidget>(dialog, "widget");
    QCOMPARE(holder->findChild<QFormLayout *>(u"formLayout"_s), find<QFormLayout>(dialog, "formLayout"));
    QCOMPARE(holder->findChildren<QPushButton *>().size(), 4);
    QVERIFY(find<QLabel>(dialog, "label")->text().startsWith("<b style='color:#888'>"_L1));
    QVERIFY(dialog.findChild<QLabel *>(u"label_6"_s));
}

void TestDialogSettingsForm::styleSheets_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("styleSheet");
    const auto heading = u"color:#777;font-size:11pt;font-weight:bold"_s;
    QTest::newRow("dialog") << QString()
                            << u"#line,\n#line_2,\n#line_3,\n#line_4,\n#line_5{\nmax-height:1px;border:0;"
                               "background-color:#dcdcdc;margin:2px 0;\n}"_s;
    QTest::newRow("page list")
        << u"listWidget"_s
        << u"QListWidget{background:transparent;font-weight:bold;font-size:9pt;margin-top:8px;border:0;"
           "outline:none}\nQListView::item{\nborder-radius:4px;height:26px;color:#555;border:2px solid "
           "#d4d4d4;background:qlineargradient(spread:pad, x1:0, y1:0, x2:0, y2:1, stop:0 #fafafa, stop:1 "
           "#e4e4e4);padding:3px;\n}\nQListView::item:hover,\nQListView::item:selected{\ncolor:#333;\n"
           "background:qlineargradient(x1:0,y1:0,x2:0,y2:1,stop:0 #d4d4d4,stop:0.2 #f2f2f2, stop:0.8 "
           "#f4f4f4, stop:1 #d4d4d4);\nborder-color:#a5a5a5;\n}"_s;
    QTest::newRow("add-ons heading") << u"label_plugins"_s << heading;
    QTest::newRow("donate heading") << u"label_plugins_3"_s << heading;
    QTest::newRow("translator") << u"label_4"_s << u"color:#666;font-weight:bold;font-size:8.2pt;"_s;
    QTest::newRow("first text") << u"label_2"_s << u"color:#222;"_s;
    QTest::newRow("second text") << u"label_3"_s << u"color:#222;"_s;
    QTest::newRow("donate button")
        << u"pushButtonDonate"_s
        << u"QPushButton{color:#003366;font:bold 12pt;border:2px solid #cc9966;padding:3px 26px;"
           "border-radius:14px;\nbackground:qlineargradient(x1:0,y1:0,x2:0,y2:1,stop:0 #fff6e5,stop:0.7 "
           "#fdb94d, stop:0.7 #ffb542, stop:1 #ffe5bd)}\nQPushButton:hover{border-color:#887766;}"_s;
    QTest::newRow("version") << u"labelInfoVersion"_s << u"padding-top:4px"_s;
    QTest::newRow("info buttons")
        << u"widget"_s << u"QPushButton{background:0}\nQPushButton:!hover{border-color:transparent;}"_s;
}

void TestDialogSettingsForm::styleSheets()
{
    QFETCH(QString, name);
    const DialogSettings dialog(nullptr);
    const QWidget *widget = name.isEmpty() ? &dialog : dialog.findChild<QWidget *>(name);
    QVERIFY(widget);
    QTEST(widget->styleSheet(), "styleSheet");
}

void TestDialogSettingsForm::checkBoxes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("toolTip");
    const auto registry = u"Requires registry entry"_s;
    QTest::newRow("checkBoxEnableAutoStart") << u"Load on system start-up"_s << registry;
    QTest::newRow("checkBoxMinimizeOnStart") << u"Minimize on start"_s << registry;
    QTest::newRow("checkBoxDisableSplash") << u"Disable splash screen"_s << QString();
    QTest::newRow("checkBoxRestoreLayout") << u"Restore window layout"_s << QString();
    QTest::newRow("checkBoxRestoreGeometry") << u"Restore window geometry"_s << QString();
    QTest::newRow("checkBoxMinimizeToTrayicon") << u"Minimize to tray icon"_s << QString();
    QTest::newRow("checkBoxFinal") << u"Automatically check for new version"_s << QString();
}

void TestDialogSettingsForm::checkBoxes()
{
    const DialogSettings dialog(nullptr);
    auto *checkBox = find<QCheckBox>(dialog, QTest::currentDataTag());
    QTEST(checkBox->text(), "text");
    QTEST(checkBox->toolTip(), "toolTip");
}

void TestDialogSettingsForm::buttons_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("iconSize"); // 0: the style's
    QTest::addColumn<bool>("isAutoDefault");
    QTest::newRow("pushButtonUpdate") << u"Check Now"_s << 16 << false;
    QTest::newRow("pushButtonDonate") << u"Donate"_s << 0 << true;
    QTest::newRow("buttonInfoAppDir") << u"Application Directory"_s << 24 << true;
    QTest::newRow("buttonInfoAppDataDir") << u"Application Data Directory"_s << 24 << true;
    QTest::newRow("buttonInfoWebsite") << u"Visit our website"_s << 24 << true;
    QTest::newRow("buttonInfoFeedback") << u"Send us feedback"_s << 24 << true;
    QTest::newRow("pushButton") << u"Save"_s << 0 << true;
    QTest::newRow("pushButton_2") << u"Cancel"_s << 0 << true;
}

void TestDialogSettingsForm::buttons()
{
    QFETCH(int, iconSize);
    const DialogSettings dialog(nullptr);
    auto *button = find<QPushButton>(dialog, QTest::currentDataTag());
    QTEST(button->text(), "text");
    QTEST(button->autoDefault(), "isAutoDefault");
    if (iconSize > 0)
        QCOMPARE(button->iconSize(), QSize(iconSize, iconSize));
    QCOMPARE(button->isDefault(), button->objectName() == "pushButton"_L1);
}

void TestDialogSettingsForm::separators()
{
    const DialogSettings dialog(nullptr);
    for (const char *name : {"line", "line_2", "line_3", "line_4", "line_5"})
        QCOMPARE(find<QFrame>(dialog, name)->frameShape(), QFrame::HLine);
}

void TestDialogSettingsForm::tabOrderIsSensible()
{
    const DialogSettings dialog(nullptr);
    QCOMPARE(
        tabOrder(dialog),
        (QStringList{u"listWidget"_s, u"checkBoxEnableAutoStart"_s, u"checkBoxMinimizeOnStart"_s,
                     u"checkBoxDisableSplash"_s, u"checkBoxRestoreLayout"_s, u"checkBoxRestoreGeometry"_s,
                     u"checkBoxMinimizeToTrayicon"_s, u"checkBoxFinal"_s, u"pushButtonUpdate"_s,
                     u"listLocale"_s, u"pushButtonDonate"_s, u"buttonInfoAppDir"_s, u"buttonInfoAppDataDir"_s,
                     u"buttonInfoWebsite"_s, u"buttonInfoFeedback"_s, u"pushButton"_s, u"pushButton_2"_s}));
}

QTEST_MAIN(TestDialogSettingsForm)
#include "tst_dialogsettings_form.moc"
