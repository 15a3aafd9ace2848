// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "dialogs/dialogsettings.h"
#include "dialogstest.h"
#include "support/httpserver.h"
#include "update/versioncheck.h"

#include <QNetworkProxy>

using namespace Qt::StringLiterals;

/// "Check Now" of the settings dialog.
class DialogSettingsUpdate final : public DialogsTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void checkNowAsksTheService();
    void checkNowIsDisabledUntilTheAnswer();
    void checkOutlivesTheDialog();
    void windowGoesWhilePending();
};

void DialogSettingsUpdate::initTestCase()
{
    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
}

void DialogSettingsUpdate::checkNowAsksTheService()
{
    HttpServer server;
    server.answerBody("outdated=0\n");
    VersionCheck::service().address = server.url();
    QWidget window;
    DialogSettings dialog(&window);
    dialog.show();
    const BoxAnswer box(QMessageBox::Ok);
    QTest::mouseClick(find<QPushButton>(dialog, "pushButtonUpdate"), Qt::LeftButton);
    QTRY_VERIFY(box.isDone());
    QCOMPARE(server.requests.size(), 1);
    QCOMPARE(box.text, u"You are using the latest version."_s);
    QCOMPARE(box.parent, &window); // not the dialog's
}

void DialogSettingsUpdate::checkNowIsDisabledUntilTheAnswer()
{
    HttpServer server;
    QPointer<QTcpSocket> pending;
    server.answer = [&pending](QTcpSocket *socket) {
        pending = socket;
    };
    VersionCheck::service().address = server.url();
    QWidget window;
    DialogSettings dialog(&window);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto *button = find<QPushButton>(dialog, "pushButtonUpdate");
    button->setFocus();
    // Presses in a row are one, and reach no other button.
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Space);
    QVERIFY(!button->isEnabled());
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Space);
    QTRY_VERIFY(pending);
    QVERIFY(dialog.isVisible());
    {
        const BoxAnswer box(QMessageBox::Ok);
        pending->write("HTTP/1.1 200 OK\r\nContent-Length: 11\r\n\r\noutdated=0\n");
        QTRY_VERIFY(box.isDone());
        QTRY_VERIFY(button->isEnabled());
    }
    QCOMPARE(dialog.focusWidget(), button);
    QCOMPARE(server.requests.size(), 1);

    server.close();
    const BoxAnswer failure(QMessageBox::Ok);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Space);
    QVERIFY(!button->isEnabled());
    QTRY_VERIFY(failure.isDone());
    QTRY_VERIFY(button->isEnabled());
}

void DialogSettingsUpdate::checkOutlivesTheDialog()
{
    HttpServer server;
    QPointer<QTcpSocket> pending;
    server.answer = [&pending](QTcpSocket *socket) {
        pending = socket;
    };
    VersionCheck::service().address = server.url();
    QWidget window;
    auto dialog = std::make_unique<DialogSettings>(&window);
    dialog->show();
    QTest::mouseClick(find<QPushButton>(*dialog, "pushButtonUpdate"), Qt::LeftButton);
    QTRY_VERIFY(pending);
    dialog.reset();
    const BoxAnswer box(QMessageBox::Ok);
    pending->write("HTTP/1.1 200 OK\r\nContent-Length: 11\r\n\r\noutdated=0\n");
    QTRY_VERIFY(box.isDone());
    QTRY_VERIFY(!window.findChild<VersionCheck *>());
}

void DialogSettingsUpdate::windowGoesWhilePending()
{
    HttpServer server;
    VersionCheck::service().address = server.url();
    auto window = std::make_unique<QWidget>();
    auto *dialog = new DialogSettings(window.get());
    dialog->show();
    QTest::mouseClick(find<QPushButton>(*dialog, "pushButtonUpdate"), Qt::LeftButton);
    QTRY_COMPARE(server.requests.size(), 1);
    window.reset();
    QTRY_COMPARE(server.disconnected, 1);
}

QTEST_MAIN(DialogSettingsUpdate)
#include "tst_dialogsettings_update.moc"
