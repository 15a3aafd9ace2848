// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "core/maker.h"
#include "dialogs/dialogstart.h"
#include "dialogs/faderwidget.h"
#include "dialogstest.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QStackedWidget>
#include <QTextBrowser>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// As start-up opens it: no title bar, on top.
constexpr Qt::WindowFlags flags = Qt::CustomizeWindowHint | Qt::WindowStaysOnTopHint;

} // namespace

class TestDialogStart final : public DialogsTest
{
    Q_OBJECT

private slots:
    void form();
    void slotsInOrder();
    void welcomeText();
    void shownAndFocusedAtOnce();
    void fillingInstallsTheLanguage_data();
    void fillingInstallsTheLanguage();
    void goesThroughBothPages();
    void byKeyboard();
    void cannotBeClosed_data();
    void cannotBeClosed();
    void noKeyClosesIt();
    void languageChangesAtOnce();
    void versionCheckChoiceIsSaved_data();
    void versionCheckChoiceIsSaved();
    void secondPageFadesIn();
    void dragMovesIt();
    void otherButtonsDoNotDrag();
    void linkOpensThePage();
};

void TestDialogStart::form()
{
    const DialogStart dialog(nullptr, flags);
    QCOMPARE(dialog.objectName(), u"DialogStart"_s);
    QCOMPARE(dialog.minimumSize(), QSize(460, 380));
    QCOMPARE(dialog.size(), QSize(460, 380));
    QVERIFY(dialog.isModal());
    QCOMPARE(dialog.windowFlags() & flags, flags);
    QCOMPARE(dialog.layout(), find<QVBoxLayout>(dialog, "verticalLayout_2"));
    QCOMPARE(dialog.layout()->itemAt(0)->widget(), find<QLabel>(dialog, "labelVersion"));
    auto *pages = find<QStackedWidget>(dialog, "stackedWidget");
    QCOMPARE(dialog.layout()->itemAt(1)->widget(), pages);
    QCOMPARE(pages->count(), 2);
    QCOMPARE(pages->currentIndex(), 0);
    QCOMPARE(pages->widget(0)->objectName(), u"page"_s);
    QCOMPARE(pages->widget(1)->objectName(), u"page_2"_s);
    QCOMPARE(pages->widget(0)->layout()->objectName(), u"verticalLayout_3"_s);
    QCOMPARE(pages->widget(1)->layout()->objectName(), u"verticalLayout"_s);
    auto *list = find<QTreeWidget>(dialog, "listLocale");
    QCOMPARE(list->editTriggers(), QAbstractItemView::NoEditTriggers);
    QVERIFY(!list->alternatingRowColors());
    QCOMPARE(list->selectionMode(), QAbstractItemView::SingleSelection);
    QCOMPARE(list->selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(list->iconSize(), QSize(20, 20));
    QVERIFY(!list->rootIsDecorated());
    QCOMPARE(list->header()->defaultSectionSize(), 120);
    const QTreeWidgetItem *header = list->headerItem();
    QCOMPARE((QStringList{header->text(0), header->text(1), header->text(2)}),
             (QStringList{u"Code"_s, u"Language"_s, u"Country"_s}));
    QVERIFY(find<QTextBrowser>(dialog, "textBrowser")->openExternalLinks());
    auto *checkBox = find<QCheckBox>(dialog, "checkBoxFinal");
    QCOMPARE(checkBox->text(), u"Automatically check for new versions"_s);
    QCOMPARE(checkBox->minimumHeight(), 24);
    QCOMPARE(checkBox->iconSize(), QSize(16, 16));
    QVERIFY(checkBox->isChecked());
    QVERIFY(dialog.findChild<QHBoxLayout *>(u"horizontalLayout_3"_s));
    auto *button = find<QPushButton>(dialog, "buttonNext");
    QCOMPARE(button->text(), u"&Next"_s);
    QCOMPARE(button->minimumWidth(), 140);
    QCOMPARE(button->iconSize(), QSize(24, 24));
}

void TestDialogStart::slotsInOrder()
{
    QCOMPARE(slotsOf(DialogStart::staticMetaObject),
             (QByteArrayList{"retranslate()", "buttonNextPressed()", "fadeInWidget(int)"}));
}

void TestDialogStart::welcomeText()
{
    const DialogStart dialog(nullptr, flags);
    auto *browser = find<QTextBrowser>(dialog, "textBrowser");
    QCOMPARE(browser->toPlainText().replace(QChar(QChar::LineSeparator), u'\n'),
             u"We would like to thank you for your confidence and hope you'll enjoy this software.\n"
             "Discover more products from us:\nwww.kavrondel.example/products\n"
             "We are looking for native speaking translators.\nPlease contact us at: \n"
             "www.kavrondel.example/contact"_s);
    const QString html = browser->toHtml();
    QVERIFY(html.contains(u"<a href=\"%1\">"_s.arg(Maker::productsUrl())));
    QVERIFY(html.contains(u"<a href=\"%1\">"_s.arg(Maker::contactUrl())));
}

void TestDialogStart::shownAndFocusedAtOnce()
{
    DialogStart dialog(nullptr, flags);
    QVERIFY(dialog.isVisible());
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QCOMPARE(QApplication::focusWidget()->objectName(), u"buttonNext"_s);
    QVERIFY(dialog.findChildren<FaderWidget *>().isEmpty());
}

void TestDialogStart::fillingInstallsTheLanguage_data()
{
    QTest::addColumn<QString>("saved");
    QTest::addColumn<QString>("installed");
    QTest::addColumn<QString>("button");
    QTest::newRow("on offer") << u"de_DE"_s << u"de_DE"_s << u"&Weiter"_s;
    QTest::newRow("not on offer") << u"xx_XX"_s << u"en_UK"_s << u"&Next"_s;
}

void TestDialogStart::fillingInstallsTheLanguage()
{
    QFETCH(QString, saved);
    // Start-up writes the system's language just before, without installing it.
    SettingsStore::instance()->setValue(SettingKey::MiscLanguage, saved);
    const DialogStart dialog(nullptr, flags);
    QTEST(setting(SettingKey::MiscLanguage).toString(), "installed");
    QFETCH(QString, button);
    QTRY_COMPARE(find<QPushButton>(dialog, "buttonNext")->text(), button);
}

void TestDialogStart::goesThroughBothPages()
{
    DialogStart dialog(nullptr, flags);
    auto *button = find<QPushButton>(dialog, "buttonNext");
    int page = -1;
    bool isClosed = false;
    const ModalAnswer answer([&](QDialog *) {
        QTest::mouseClick(button, Qt::LeftButton);
        page = find<QStackedWidget>(dialog, "stackedWidget")->currentIndex();
        QTest::mouseClick(button, Qt::LeftButton);
        isClosed = !dialog.isVisible();
    });
    dialog.exec();
    QVERIFY(answer.isDone());
    QCOMPARE(page, 1);
    QVERIFY(isClosed);
}

void TestDialogStart::byKeyboard()
{
    DialogStart dialog(nullptr, flags);
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QCOMPARE(tabbed(dialog), (QStringList{u"buttonNext"_s, u"listLocale"_s}));
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Return);
    QCOMPARE(find<QStackedWidget>(dialog, "stackedWidget")->currentIndex(), 1);
    QCOMPARE(tabbed(dialog), (QStringList{u"buttonNext"_s, u"textBrowser"_s, u"checkBoxFinal"_s}));
    find<QCheckBox>(dialog, "checkBoxFinal")->setFocus();
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Space);
    QVERIFY(!find<QCheckBox>(dialog, "checkBoxFinal")->isChecked());
    QTest::keyClick(dialog.windowHandle(), Qt::Key_N, Qt::AltModifier);
    QTRY_VERIFY(!dialog.isVisible());
}

void TestDialogStart::cannotBeClosed_data()
{
    QTest::addColumn<int>("page");
    QTest::newRow("first page") << 0;
    QTest::newRow("second page") << 1;
}

void TestDialogStart::cannotBeClosed()
{
    QFETCH(int, page);
    DialogStart dialog(nullptr, flags);
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    if (page == 1)
        QTest::mouseClick(find<QPushButton>(dialog, "buttonNext"), Qt::LeftButton);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);
    QVERIFY(dialog.isVisible());
    QVERIFY(!dialog.close());
    QVERIFY(dialog.isVisible());
    dialog.windowHandle()->close(); // as the window manager asks
    QCoreApplication::processEvents();
    QVERIFY(dialog.isVisible());
    QCOMPARE(find<QStackedWidget>(dialog, "stackedWidget")->currentIndex(), page);
}

void TestDialogStart::noKeyClosesIt()
{
    DialogStart dialog(nullptr, flags);
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Cancel, Qt::Key_Back}) {
        // Straight to the dialog, past the button with the focus.
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&dialog, &press);
        QVERIFY(dialog.isVisible());
    }
    QCOMPARE(find<QStackedWidget>(dialog, "stackedWidget")->currentIndex(), 0);
}

void TestDialogStart::languageChangesAtOnce()
{
    DialogStart dialog(nullptr, flags);
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto *list = find<QTreeWidget>(dialog, "listLocale");
    auto *browser = find<QTextBrowser>(dialog, "textBrowser");
    selectLanguage(list, u"de_DE"_s);
    QCOMPARE(setting(SettingKey::MiscLanguage).toString(), u"de_DE"_s);
    QVERIFY(browser->toPlainText().contains("Entdecken Sie weitere Produkte von uns:"_L1));
    QTRY_COMPARE(find<QPushButton>(dialog, "buttonNext")->text(), u"&Weiter"_s);
    QCOMPARE(list->headerItem()->text(2), u"Land"_s);
    QCOMPARE(find<QCheckBox>(dialog, "checkBoxFinal")->text(), u"Automatisch nach neuen Versionen suchen"_s);
    QVERIFY(!browser->toPlainText().isEmpty());
    selectLanguage(list, u"en_UK"_s);
    QVERIFY(browser->toPlainText().contains("Discover more products from us:"_L1));
    QTRY_COMPARE(find<QPushButton>(dialog, "buttonNext")->text(), u"&Next"_s);
}

void TestDialogStart::versionCheckChoiceIsSaved_data()
{
    QTest::addColumn<bool>("isChecked");
    QTest::newRow("left checked") << true;
    QTest::newRow("unchecked") << false;
}

void TestDialogStart::versionCheckChoiceIsSaved()
{
    QFETCH(bool, isChecked);
    {
        DialogStart dialog(nullptr, flags);
        QTest::mouseClick(find<QPushButton>(dialog, "buttonNext"), Qt::LeftButton);
        auto *checkBox = find<QCheckBox>(dialog, "checkBoxFinal");
        if (!isChecked)
            QTest::mouseClick(checkBox, Qt::LeftButton, {}, QPoint(8, checkBox->height() / 2));
        QTest::mouseClick(find<QPushButton>(dialog, "buttonNext"), Qt::LeftButton);
        QVERIFY(setting(SettingKey::VersionCheckAuto).isNull());
    }
    QCOMPARE(setting(SettingKey::VersionCheckAuto).toString(), isChecked ? u"true"_s : u"false"_s);
}

void TestDialogStart::secondPageFadesIn()
{
    DialogStart dialog(nullptr, flags);
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTest::mouseClick(find<QPushButton>(dialog, "buttonNext"), Qt::LeftButton);
    QWidget *page = find<QStackedWidget>(dialog, "stackedWidget")->widget(1);
    const QPointer<FaderWidget> fader = page->findChild<FaderWidget *>();
    QVERIFY(fader);
    QCOMPARE(fader->size(), page->size());
    QTRY_VERIFY(!fader);
}

void TestDialogStart::dragMovesIt()
{
    DialogStart dialog(nullptr, flags);
    dialog.move(50, 60);
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const QPoint before = dialog.pos();
    // On the banner, which leaves the mouse to the dialog.
    const QPoint pressed = find<QLabel>(dialog, "labelVersion")->geometry().center();
    QTest::mousePress(dialog.windowHandle(), Qt::LeftButton, {}, pressed);
    QMouseEvent moved(QEvent::MouseMove, pressed + QPoint(30, 20),
                      dialog.mapToGlobal(pressed) + QPoint(30, 20), Qt::NoButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&dialog, &moved);
    QVERIFY(moved.isAccepted());
    QCOMPARE(dialog.pos(), before + QPoint(30, 20));
    QTest::mouseRelease(dialog.windowHandle(), Qt::LeftButton, {}, pressed);
}

void TestDialogStart::otherButtonsDoNotDrag()
{
    DialogStart dialog(nullptr, flags);
    dialog.move(50, 60);
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const QPoint before = dialog.pos();
    const QPoint pressed(5, 5);
    QTest::mousePress(&dialog, Qt::RightButton, {}, pressed);
    for (const Qt::MouseButtons buttons : {Qt::MouseButtons(Qt::RightButton), Qt::MouseButtons()}) {
        QMouseEvent moved(QEvent::MouseMove, pressed + QPoint(30, 20),
                          dialog.mapToGlobal(pressed) + QPoint(30, 20), Qt::NoButton, buttons,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(&dialog, &moved);
        QCOMPARE(dialog.pos(), before);
    }
    // Nor do they take a drag over.
    QTest::mousePress(&dialog, Qt::LeftButton, {}, pressed);
    QTest::mousePress(&dialog, Qt::RightButton, {}, pressed + QPoint(3, 3));
    QMouseEvent dragged(QEvent::MouseMove, pressed + QPoint(30, 20),
                        dialog.mapToGlobal(pressed) + QPoint(30, 20), Qt::NoButton,
                        Qt::LeftButton | Qt::RightButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&dialog, &dragged);
    QCOMPARE(dialog.pos(), before + QPoint(30, 20));
}

void TestDialogStart::linkOpensThePage()
{
    DialogStart dialog(nullptr, flags);
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTest::mouseClick(find<QPushButton>(dialog, "buttonNext"), Qt::LeftButton);
    QWidget *view = find<QTextBrowser>(dialog, "textBrowser")->viewport();
    for (int y = 4; y < view->height() && opened->urls.isEmpty(); y += 4)
        QTest::mouseClick(view, Qt::LeftButton, {}, QPoint(20, y));
    QCOMPARE(opened->urls, QList<QUrl>{QUrl(Maker::productsUrl())});
    QVERIFY(dialog.isVisible());
}

QTEST_MAIN(TestDialogStart)
#include "tst_dialogstart.moc"
