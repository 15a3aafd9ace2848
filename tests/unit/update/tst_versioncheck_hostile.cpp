// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "versionchecktest.h"

#include <QFile>
#include <QLabel>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace {

constexpr auto endlessHead = "HTTP/1.1 200 OK\r\nContent-Type: text/plain\r\n\r\n";
constexpr qint64 mebibyte = 1048576;

/// The most memory that this process has held, in bytes.
qint64 peakMemory()
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QByteArrayList lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').constFirst().toLongLong() * 1024;
    }
    return 0;
}

} // namespace

/// A service that means harm, or is broken, or goes away; and a window that does.
class TestVersionCheckHostile final : public VersionCheckTest
{
    Q_OBJECT

private slots:
    void endlessReply_data();
    void endlessReply();
    void replyAtTheLimit_data();
    void replyAtTheLimit();
    void replyThatDrips();
    void headersThatNeverEnd();
    void longLines_data();
    void longLines();
    void oddBytes_data();
    void oddBytes();
    void markupIsShownAsText();
    void longVersionIsCut();
    void markupInTheStatusLine();
    void opensWebAddressesOnly_data();
    void opensWebAddressesOnly();
    void parentGoesWhilePending();
    void parentGoesWhileABoxIsOpen_data();
    void parentGoesWhileABoxIsOpen();
    void checkGoesWhilePending();
    void eventLoopEndsWhilePending();
};

void TestVersionCheckHostile::endlessReply_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::newRow("no length") << QByteArray(endlessHead);
    QTest::newRow("a gigabyte") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 1073741824\r\n\r\n");
    QTest::newRow("a lie of a length")
        << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 9223372036854775807\r\n\r\n");
    QTest::newRow("one huge chunk") << QByteArray(
        "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n40000000\r\n");
    QTest::newRow("after a good beginning") << QByteArray(endlessHead) + "outdated=1\nlatest=2\n";
}

void TestVersionCheckHostile::endlessReply()
{
    QFETCH(QByteArray, head);
    const qint64 memoryBefore = peakMemory();
    QVERIFY(memoryBefore > 0);
    server->answerEndlessly(head, QByteArray(mebibyte / 4, 'x'));
    const auto box = runAnswering(true, QMessageBox::Ok);
    QVERIFY(box->isDone());
    QVERIFY2(box->text.contains("[Data transmission failure]"_L1), qPrintable(box->text));
    QVERIFY(setting(SettingKey::VersionCheckLast).isNull());
    QTRY_COMPARE(server->disconnected, 1);
    QVERIFY2(server->written < 64 * mebibyte, QByteArray::number(server->written).constData());
    const qint64 grown = peakMemory() - memoryBefore;
    QVERIFY2(grown < 100 * mebibyte, QByteArray::number(grown).constData());
}

void TestVersionCheckHostile::replyAtTheLimit_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("at the limit") << VersionCheck::maxReplySize << true;
    QTest::newRow("one more") << VersionCheck::maxReplySize + 1 << false;
    QTest::newRow("between buffer and limit") << VersionCheck::maxReplySize * 3 / 2 << false;
    QTest::newRow("twice the limit") << VersionCheck::maxReplySize * 2 << false;
    QTest::newRow("more than the buffer") << VersionCheck::maxReplySize * 2 + 1 << false;
}

void TestVersionCheckHostile::replyAtTheLimit()
{
    QFETCH(qint64, size);
    QFETCH(bool, isTaken);
    QByteArray body = "outdated=0\n";
    while (body.size() < size)
        body += "filler=0123456789012345678901234567890123456789012345678901234567890123456789\n";
    body.truncate(size);
    server->answerBody(body);
    const auto box = runAnswering(true, QMessageBox::Ok);
    QVERIFY(box->isDone());
    QCOMPARE(box->objectName == "version_check"_L1, isTaken);
}

void TestVersionCheckHostile::replyThatDrips()
{
    VersionCheck::service().replyTime = std::chrono::milliseconds(300);
    server->answer = [](QTcpSocket *socket) {
        socket->write(QByteArray(endlessHead) + "outdated=1\n");
        auto *drip = new QTimer(socket);
        QObject::connect(drip, &QTimer::timeout, socket, [socket] { socket->write("x"); });
        drip->start(10);
    };
    const auto box = runAnswering(true, QMessageBox::Ok);
    QVERIFY(box->isDone());
    QVERIFY2(box->text.contains("[Data transmission failure]"_L1), qPrintable(box->text));
    QTRY_COMPARE(server->disconnected, 1);
}

void TestVersionCheckHostile::headersThatNeverEnd()
{
    VersionCheck::service().replyTime = std::chrono::milliseconds(300);
    server->answerEndlessly("HTTP/1.1 200 OK\r\n", "X-Filler: " + QByteArray(1000, 'x') + "\r\n");
    const auto box = runAnswering(true, QMessageBox::Ok);
    QVERIFY(box->isDone());
    QCOMPARE(box->title, u"Version check failed"_s);
    QTRY_COMPARE(server->disconnected, 1);
}

void TestVersionCheckHostile::longLines_data()
{
    QTest::addColumn<qint64>("length");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("the longest") << VersionCheck::maxLineLength << true;
    QTest::newRow("one more") << VersionCheck::maxLineLength + 1 << false;
    QTest::newRow("many more") << VersionCheck::maxLineLength * 20 << false;
}

void TestVersionCheckHostile::longLines()
{
    QFETCH(qint64, length);
    QFETCH(bool, isTaken);
    const QByteArray key = "download=http://h/";
    const QByteArray path(length - key.size() - 1, 'p'); // the newline counts
    server->answerBody("outdated=1\n" + key + path + "\nlatest=2\n");
    const auto box = runAnswering(true, QMessageBox::Yes);
    QVERIFY(box->isDone());
    QVERIFY(box->text.contains("(2)"_L1));
    QCOMPARE(opened->urls.size(), isTaken ? 1 : 0);
}

void TestVersionCheckHostile::oddBytes_data()
{
    QTest::addColumn<QByteArray>("latest");
    QTest::newRow("NUL") << QByteArray("1\0.2", 4);
    QTest::newRow("only NULs") << QByteArray(500, '\0');
    QTest::newRow("invalid UTF-8") << QByteArray("\xff\xfe\xc3\x28\xed\xa0\x80");
    QTest::newRow("cut UTF-8") << QByteArray("1.2\xe2\x82");
    QTest::newRow("control characters") << QByteArray("\x01\x1b[31m\x07\x7f");
    QTest::newRow("carriage return inside") << QByteArray("1\r2");
    QTest::newRow("direction marks") << QByteArray("\xe2\x80\xae"
                                                   "1.2\xe2\x80\xac");
    QTest::newRow("not a character") << QByteArray("\xef\xbf\xbf\xef\xbf\xbe");
    QTest::newRow("place holders") << QByteArray("%1 %2 %L1 %n");
}

void TestVersionCheckHostile::oddBytes()
{
    QFETCH(QByteArray, latest);
    server->answerBody(QByteArray("\0\0\n", 3) + "\xff=\xff\noutdated=1\nlatest=" + latest + "\n");
    const auto box = runAnswering(false, QMessageBox::Ignore);
    QVERIFY(box->isDone());
    QVERIFY(box->text.contains("Orvanto ("_L1));
    // What is saved must leave the settings file readable.
    const QString path = folder.filePath(u"odd.xml"_s);
    SettingsStore::instance()->setFilePath(path);
    SettingsStore::instance()->save();
    SettingsStore::destroy();
    SettingsStore::instance()->setFilePath(path);
    SettingsStore::instance()->load();
    QCOMPARE(setting(SettingKey::VersionCheckLast).toString(), today());
}

void TestVersionCheckHostile::markupIsShownAsText()
{
    const QString latest = u"<img src='file:///etc/passwd'/><a href='http://evil.example'>9</a>&amp;\"'"_s;
    server->answerBody("outdated=1\nlatest=" + latest.toUtf8() + "\n");
    const auto box = runAnswering(true, QMessageBox::Close);
    QVERIFY(box->isDone());
    QVERIFY(!box->text.contains("<img"_L1));
    QVERIFY(!box->text.contains("<a"_L1));
    QTextDocument shown;
    shown.setHtml(box->text);
    QVERIFY2(shown.toPlainText().endsWith(u"Orvanto (%1)"_s.arg(latest)), qPrintable(shown.toPlainText()));
    // What is skipped is the version itself, not the way it was shown.
    SettingsStore::destroy();
    QVERIFY(runAnswering(false, QMessageBox::Ignore)->isDone());
    QCOMPARE(setting(SettingKey::VersionCheckSkip).toString(), latest);
}

void TestVersionCheckHostile::longVersionIsCut()
{
    server->answerBody("outdated=1\nlatest=" + QByteArray(2000, '9') + "\n");
    const auto box = runAnswering(true, QMessageBox::Close);
    QVERIFY(box->isDone());
    QCOMPARE(box->text.count(u'9'), 100 + 1); // and the one of "9pt"
}

void TestVersionCheckHostile::markupInTheStatusLine()
{
    server->answerBody({}, "500 <b>x</b><img src=':/x'/>" + QByteArray(100000, 'y'));
    const auto box = runAnswering(true, QMessageBox::Ok);
    QVERIFY(box->isDone());
    QCOMPARE(box->format, Qt::PlainText);
    QVERIFY2(box->text.contains("<b>x</b>"_L1), qPrintable(box->text));
    QVERIFY(box->text.size() < 400);
}

void TestVersionCheckHostile::opensWebAddressesOnly_data()
{
    QTest::addColumn<QByteArray>("address");
    QTest::addColumn<bool>("isOpened");
    QTest::newRow("http") << QByteArray("http://a.example/x") << true;
    QTest::newRow("https in capitals") << QByteArray("HTTPS://a.example/x") << true;
    QTest::newRow("a blank and a broken escape") << QByteArray("http://a.example/x y%zz") << true;
    QTest::newRow("file") << QByteArray("file:///etc/passwd") << false;
    QTest::newRow("javascript") << QByteArray("javascript:alert(1)") << false;
    QTest::newRow("data") << QByteArray("data:text/html,x") << false;
    QTest::newRow("ftp") << QByteArray("ftp://a.example/x") << false;
    QTest::newRow("a path") << QByteArray("/usr/bin/true") << false;
    QTest::newRow("a network path") << QByteArray("//host/share/setup.exe") << false;
    QTest::newRow("a drive") << QByteArray("C:\\setup.exe") << false;
    QTest::newRow("words") << QByteArray("see our page") << false;
    QTest::newRow("only a scheme's likeness") << QByteArray("httpx://a.example/") << false;
}

void TestVersionCheckHostile::opensWebAddressesOnly()
{
    QFETCH(QByteArray, address);
    QFETCH(bool, isOpened);
    server->answerBody("outdated=1\nlatest=2\ndownload=" + address + "\nchanges=" + address + "\n");
    QVERIFY(runAnswering(true, QMessageBox::Yes)->isDone());
    QVERIFY(runAnswering(true, QMessageBox::Retry)->isDone());
    const QUrl url(QString::fromUtf8(address));
    QCOMPARE(opened->urls, isOpened ? (QList<QUrl>{url, url}) : QList<QUrl>());
}

void TestVersionCheckHostile::parentGoesWhilePending()
{
    const QPointer<VersionCheck> check = start(true); // the service never answers
    QTRY_COMPARE(server->requests.size(), 1);
    window.reset();
    QVERIFY(check.isNull());
    QTRY_COMPARE(server->disconnected, 1);
    QCOMPARE(messages(), QStringList());
}

void TestVersionCheckHostile::parentGoesWhileABoxIsOpen_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("new version") << QByteArray("outdated=1\nlatest=2\ndownload=http://a.example/\n");
    QTest::newRow("up to date") << QByteArray("outdated=0\n");
    QTest::newRow("failure") << QByteArray("nothing\n");
    QTest::newRow("cut off") << QByteArray(VersionCheck::maxReplySize * 10, 'x');
}

void TestVersionCheckHostile::parentGoesWhileABoxIsOpen()
{
    QFETCH(QByteArray, body);
    server->answerBody(body);
    const ModalAnswer answer([this](QDialog *) { window.reset(); });
    QVERIFY(run(true));
    QVERIFY(answer.isDone());
    QVERIFY(opened->urls.isEmpty());
    QVERIFY(setting(SettingKey::VersionCheckSkip).isNull());
    QCOMPARE(messages().size(), 1);
}

void TestVersionCheckHostile::checkGoesWhilePending()
{
    const QPointer<VersionCheck> check = start(false);
    delete check.data();
    // A later check works as if nothing had been.
    server->answerBody("outdated=0\n");
    QVERIFY(run(false));
    QCOMPARE(messages(), QStringList{u"version check successful"_s});
}

void TestVersionCheckHostile::eventLoopEndsWhilePending()
{
    const QPointer<VersionCheck> check = start(false);
    QEventLoop loop;
    QTimer::singleShot(0, &loop, &QEventLoop::quit);
    loop.exec();
    QVERIFY(!check.isNull());
    window.reset();
    QVERIFY(check.isNull());
}

QTEST_MAIN(TestVersionCheckHostile)
#include "tst_versioncheck_hostile.moc"
