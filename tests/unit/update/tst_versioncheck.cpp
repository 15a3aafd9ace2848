// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "versionchecktest.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

const auto failed = u"version check failed"_s;
const auto successful = u"version check successful"_s;
constexpr auto newVersion = "outdated=1\nlatest=1.3.0.0\ndownload=http://files.example/get?a=b\n"
                            "changes=https://files.example/changes\n";

} // namespace

class TestVersionCheck final : public VersionCheckTest
{
    Q_OBJECT

private slots:
    void sendsExactlyTheForm();
    void encodesOddNames_data();
    void encodesOddNames();
    void automaticAsksOncePerDay_data();
    void automaticAsksOncePerDay();
    void forcedAsksOnTheSameDayAgain();
    void automaticIsSilentWhenUpToDate();
    void forcedTellsThatItIsUpToDate();
    void readsOutdatedAsBool_data();
    void readsOutdatedAsBool();
    void automaticOffersTheNewVersion();
    void forcedOffersNoSkipping();
    void buttonsDoTheirWork_data();
    void buttonsDoTheirWork();
    void skippedVersion_data();
    void skippedVersion();
    void readsLines_data();
    void readsLines();
    void failureIsSilentWhenAutomatic();
    void failureIsShownWhenForced();
    void httpErrorNamesNoHost();
    void redirectIsNotFollowed();
    void connectionRefused();
    void connectionClosedMidWay_data();
    void connectionClosedMidWay();
    void slowServiceIsWaitedFor();
    void neverTwoBoxes();
    void automaticWaitsWhileTheParentIsBusy();
    void forcedWaitsForNothing();
    void parentGoesWhileItWaits();
    void worksWithoutAParent();
};

void TestVersionCheck::sendsExactlyTheForm()
{
    server->answerBody("outdated=0\n");
    QVERIFY(run(false));
    QCOMPARE(server->requests.size(), 1);
    const HttpRequest request = server->requests.constFirst();
    QCOMPARE(request.startLine, "POST / HTTP/1.1");
    QCOMPARE(request.header("content-type"), "application/x-www-form-urlencoded");
    QCOMPARE(request.header("content-length").toLongLong(), request.body.size());
    QCOMPARE(request.body, "itm_name=orvanto&itm_vers=1.2.0.5&sys_type=windows&sys_arch=x64&usr_lang=" +
                               QLocale::system().name().toLatin1());
    // Nothing beyond what the network stack itself adds.
    const QByteArrayList known = {"host",       "content-type",    "content-length", "connection",
                                  "user-agent", "accept-encoding", "accept-language"};
    for (const QByteArray &line : request.headers)
        QVERIFY2(known.contains(line.left(line.indexOf(':')).toLower()), line.constData());
}

void TestVersionCheck::encodesOddNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("sent");
    QTest::newRow("three words in mixed case") << u"My Big Tool"_s << QByteArray("my_big_tool");
    QTest::newRow("blanks around") << u"  Tool "_s << QByteArray("tool");
    QTest::newRow("delimiters") << u"A&B=C+D;E#F"_s << QByteArray("a%26b%3Dc%2Bd%3Be%23f");
    QTest::newRow("percent") << u"100%41%"_s << QByteArray("100%2541%25");
    QTest::newRow("not ASCII") << u"\u00dcber"_s << QByteArray("%C3%BCber");
    QTest::newRow("quotes and slashes") << u"a\"b/c\\d"_s << QByteArray("a%22b%2Fc%5Cd");
}

void TestVersionCheck::encodesOddNames()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, sent);
    QCoreApplication::setApplicationName(name);
    server->answerBody("outdated=0\n");
    QVERIFY(run(false));
    QCOMPARE(server->requests.size(), 1);
    QCOMPARE(server->requests.constFirst().body.split('&').constFirst(), "itm_name=" + sent);
}

void TestVersionCheck::automaticAsksOncePerDay_data()
{
    const auto day = [](int offset) {
        return QDate::currentDate().addDays(offset).toString(u"dd.MM.yyyy"_s);
    };
    QTest::addColumn<QString>("last");
    QTest::addColumn<int>("requests");
    QTest::newRow("today") << day(0) << 0;
    QTest::newRow("yesterday") << day(-1) << 1;
    QTest::newRow("tomorrow") << day(1) << 1;
    QTest::newRow("a year ago") << day(-365) << 1;
    QTest::newRow("garbage") << u"soon"_s << 1;
    QTest::newRow("another form of today") << QDate::currentDate().toString(Qt::ISODate) << 1;
    QTest::newRow("no such day") << u"31.02.2024"_s << 1;
    QTest::newRow("nothing") << QString() << 1;
}

void TestVersionCheck::automaticAsksOncePerDay()
{
    QFETCH(QString, last);
    QFETCH(int, requests);
    if (!last.isNull())
        set(SettingKey::VersionCheckLast, last);
    server->answerBody("outdated=0\n");
    QVERIFY(run(false));
    QCOMPARE(server->requests.size(), requests);
    QCOMPARE(setting(SettingKey::VersionCheckLast).toString(), today());
}

void TestVersionCheck::forcedAsksOnTheSameDayAgain()
{
    set(SettingKey::VersionCheckLast, today());
    server->answerBody("outdated=0\n");
    QVERIFY(runAnswering(true, QMessageBox::Ok)->isDone());
    QCOMPARE(server->requests.size(), 1);
}

void TestVersionCheck::automaticIsSilentWhenUpToDate()
{
    server->answerBody("outdated=0\nlatest=1.2.0.5\n");
    const auto answer = runAnswering(false, QMessageBox::Ok);
    QVERIFY(!answer->isDone());
    QCOMPARE(setting(SettingKey::VersionCheckLast).toString(), today());
    QCOMPARE(messages(), QStringList{successful});
}

void TestVersionCheck::forcedTellsThatItIsUpToDate()
{
    server->answerBody("outdated=0\r\nlatest=1.2.0.5\r\n");
    const auto box = runAnswering(true, QMessageBox::Ok);
    QVERIFY(box->isDone());
    QCOMPARE(box->title, u"Orvanto"_s);
    QCOMPARE(box->text, u"You are using the latest version."_s);
    QCOMPARE(box->icon, QMessageBox::Information);
    QCOMPARE(box->objectName, u"version_check"_s);
    QCOMPARE(box->parent, window.get());
    QCOMPARE(box->buttonTexts, (QMap<QMessageBox::StandardButton, QString>{{QMessageBox::Ok, u"Close"_s}}));
    QVERIFY(box->areIconsOf24);
    QVERIFY(!box->hasContextHelp);
    QCOMPARE(setting(SettingKey::VersionCheckLast).toString(), today());
    QCOMPARE(messages(), QStringList{successful});
    QTRY_VERIFY(!window->findChild<QObject *>(u"version_check"_s));
}

void TestVersionCheck::readsOutdatedAsBool_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("isOutdated");
    QTest::newRow("0") << QByteArray("0") << false;
    QTest::newRow("false") << QByteArray("false") << false;
    QTest::newRow("False") << QByteArray("False") << false;
    QTest::newRow("1") << QByteArray("1") << true;
    QTest::newRow("true") << QByteArray("true") << true;
    QTest::newRow("no") << QByteArray("no") << true;
    QTest::newRow("00") << QByteArray("00") << true;
}

void TestVersionCheck::readsOutdatedAsBool()
{
    QFETCH(QByteArray, value);
    QFETCH(bool, isOutdated);
    server->answerBody("outdated=" + value + "\n");
    const auto box = runAnswering(true, QMessageBox::NoButton);
    QVERIFY(box->isDone());
    QCOMPARE(box->buttons.testFlag(QMessageBox::Yes), isOutdated);
}

void TestVersionCheck::automaticOffersTheNewVersion()
{
    server->answerBody(newVersion);
    const auto box = runAnswering(false, QMessageBox::Close);
    QVERIFY(box->isDone());
    QCOMPARE(box->title, u"Orvanto"_s);
    QCOMPARE(box->text, u"<span style='font:bold 9pt'>There is a new version available!<br/>"
                        "<span style='color:#448'>Orvanto (1.3.0.0)</span></span>"_s);
    QCOMPARE(box->informativeText,
             u"<span style='font:bold 9pt;color:#444'>Would you like to download it now?</span>"_s);
    QCOMPARE(box->icon, QMessageBox::Information);
    QCOMPARE(box->objectName, u"version_check"_s);
    QCOMPARE(box->parent, window.get());
    QCOMPARE(box->buttonTexts,
             (QMap<QMessageBox::StandardButton, QString>{{QMessageBox::Yes, u"Download"_s},
                                                         {QMessageBox::Close, u"Later"_s},
                                                         {QMessageBox::Retry, u"What's new?"_s},
                                                         {QMessageBox::Ignore, u"Skip Version"_s}}));
    QCOMPARE(box->defaultButton, u"Download"_s);
    QVERIFY(box->areIconsOf24);
    QVERIFY(!box->hasContextHelp);
    QCOMPARE(messages(), QStringList{successful});
}

void TestVersionCheck::forcedOffersNoSkipping()
{
    server->answerBody(newVersion);
    const auto box = runAnswering(true, QMessageBox::Close);
    QVERIFY(box->isDone());
    QCOMPARE(box->buttons, QMessageBox::Yes | QMessageBox::Close | QMessageBox::Retry);
}

void TestVersionCheck::buttonsDoTheirWork_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("button");
    QTest::addColumn<QString>("openedUrl");
    QTest::addColumn<QString>("skipped");
    QTest::newRow("Download") << QMessageBox::Yes << u"http://files.example/get?a=b"_s << QString();
    QTest::newRow("What's new?") << QMessageBox::Retry << u"https://files.example/changes"_s << QString();
    QTest::newRow("Later") << QMessageBox::Close << QString() << QString();
    QTest::newRow("Skip Version") << QMessageBox::Ignore << QString() << u"1.3.0.0"_s;
    QTest::newRow("closed") << QMessageBox::NoButton << QString() << QString();
}

void TestVersionCheck::buttonsDoTheirWork()
{
    QFETCH(QMessageBox::StandardButton, button);
    QFETCH(QString, openedUrl);
    QFETCH(QString, skipped);
    server->answerBody(newVersion);
    QVERIFY(runAnswering(false, button)->isDone());
    QCOMPARE(opened->urls, openedUrl.isEmpty() ? QList<QUrl>() : QList<QUrl>{QUrl(openedUrl)});
    QCOMPARE(setting(SettingKey::VersionCheckSkip).toString(), skipped);
    QTRY_VERIFY(!window->findChild<QObject *>(u"version_check"_s));
}

void TestVersionCheck::skippedVersion_data()
{
    QTest::addColumn<bool>("isForced");
    QTest::addColumn<QString>("skip");
    QTest::addColumn<QByteArray>("latest");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("automatic, skipped") << false << u"1.3.0.0"_s << QByteArray("1.3.0.0") << false;
    QTest::newRow("forced, skipped: deliberate") << true << u"1.3.0.0"_s << QByteArray("1.3.0.0") << true;
    QTest::newRow("automatic, another") << false << u"1.3.0.0"_s << QByteArray("1.3.0.1") << true;
    QTest::newRow("automatic, no trimming") << false << u"1.3.0.0"_s << QByteArray(" 1.3.0.0") << true;
    QTest::newRow("automatic, default") << false << QString() << QByteArray("0.0.0.0") << false;
    QTest::newRow("automatic, none skipped") << false << QString() << QByteArray("1.3.0.0") << true;
}

void TestVersionCheck::skippedVersion()
{
    QFETCH(bool, isForced);
    QFETCH(QString, skip);
    QFETCH(QByteArray, latest);
    QFETCH(bool, isShown);
    if (!skip.isNull())
        set(SettingKey::VersionCheckSkip, skip);
    server->answerBody("outdated=1\nlatest=" + latest + "\n");
    const auto box = runAnswering(isForced, QMessageBox::Close);
    QCOMPARE(box->isDone(), isShown);
    QVERIFY(!box->buttons.testFlag(QMessageBox::Ignore) || !isForced);
    QCOMPARE(setting(SettingKey::VersionCheckLast).toString(), today());
}

void TestVersionCheck::readsLines_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("latest"); // null: a transmission failure
    QTest::newRow("plain") << QByteArray("outdated=1\nlatest=2\n") << u"2"_s;
    QTest::newRow("no newline at the end") << QByteArray("outdated=1\nlatest=2") << u"2"_s;
    QTest::newRow("carriage returns") << QByteArray("outdated=1\r\nlatest=2\r\n") << u"2"_s;
    QTest::newRow("blanks around lines") << QByteArray("  outdated=1\t\n\v latest=2 \n") << u"2"_s;
    QTest::newRow("blank before =") << QByteArray("outdated =1\nlatest=2\n") << QString();
    QTest::newRow("blank after =") << QByteArray("outdated=1\nlatest= 2\n") << u" 2"_s;
    QTest::newRow("no value") << QByteArray("outdated=1\nlatest=\n") << u""_s;
    QTest::newRow("outdated without value") << QByteArray("outdated=\nlatest=2\n") << QString();
    QTest::newRow("no key") << QByteArray("outdated=1\n=7\nlatest=2\n") << u"2"_s;
    QTest::newRow("= in the value") << QByteArray("outdated=1\nlatest=2=3=\n") << u"2=3="_s;
    QTest::newRow("later line wins") << QByteArray("outdated=0\nlatest=2\noutdated=1\nlatest=3") << u"3"_s;
    QTest::newRow("other case") << QByteArray("Outdated=1\nlatest=2\n") << QString();
    QTest::newRow("other lines") << QByteArray("hello\n\n\noutdated=1\nx=y\nlatest=2\n") << u"2"_s;
    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("a page") << QByteArray("<!DOCTYPE html>\n<a href=\"x\">outdated</a>\n") << QString();
    QTest::newRow("UTF-8") << QByteArray("outdated=1\nlatest=\xc3\xa4\n") << u"\u00e4"_s;
}

void TestVersionCheck::readsLines()
{
    QFETCH(QByteArray, body);
    QFETCH(QString, latest);
    server->answerBody(body);
    const auto box = runAnswering(true, QMessageBox::NoButton);
    QVERIFY(box->isDone());
    if (latest.isNull())
        QVERIFY2(box->text.contains("[Data transmission failure]"_L1), qPrintable(box->text));
    else
        QVERIFY2(box->text.contains(u"Orvanto (%1)<"_s.arg(latest)), qPrintable(box->text));
    QCOMPARE(messages(), QStringList{latest.isNull() ? failed : successful});
}

void TestVersionCheck::failureIsSilentWhenAutomatic()
{
    server->answerBody("hello\n");
    const auto box = runAnswering(false, QMessageBox::Ok);
    QVERIFY(!box->isDone());
    QVERIFY(setting(SettingKey::VersionCheckLast).isNull());
    QCOMPARE(messages(), QStringList{failed});
    // Nothing was achieved today, so the next attempt asks again.
    QVERIFY(run(false));
    QCOMPARE(server->requests.size(), 2);
}

void TestVersionCheck::failureIsShownWhenForced()
{
    server->answerBody("hello\n");
    const auto box = runAnswering(true, QMessageBox::Ok);
    QVERIFY(box->isDone());
    QCOMPARE(box->title, u"Version check failed"_s);
    QCOMPARE(box->text, u"Error connecting to server. [Data transmission failure]\n"
                        "Please check manually at: http://www.kavrondel.example/"_s);
    QCOMPARE(box->icon, QMessageBox::Warning);
    QCOMPARE(box->buttons, QMessageBox::Ok);
    QCOMPARE(box->parent, window.get());
    QVERIFY(setting(SettingKey::VersionCheckLast).isNull());
    QCOMPARE(messages(), QStringList{failed});
}

void TestVersionCheck::httpErrorNamesNoHost()
{
    server->answerBody("outdated=1\n", "404 Not Found");
    const auto box = runAnswering(true, QMessageBox::Ok);
    QVERIFY(box->isDone());
    QVERIFY2(box->text.contains(u"http://:%1/"_s.arg(server->serverPort())), qPrintable(box->text));
    QVERIFY(box->text.contains("Not Found"_L1));
    QVERIFY(!box->text.contains("127.0.0.1"_L1));
    QVERIFY(setting(SettingKey::VersionCheckLast).isNull());
    QCOMPARE(messages(), QStringList{failed});
}

void TestVersionCheck::redirectIsNotFollowed()
{
    HttpServer other;
    other.answerBody("outdated=0\n");
    server->answerWith("HTTP/1.1 302 Found\r\nLocation: " + other.url().toEncoded() +
                       "/\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
    const auto box = runAnswering(true, QMessageBox::Ok);
    QVERIFY(box->isDone());
    QVERIFY2(box->text.contains("[Data transmission failure]"_L1), qPrintable(box->text));
    QCOMPARE(server->requests.size(), 1);
    QVERIFY(other.requests.isEmpty());
}

void TestVersionCheck::connectionRefused()
{
    server->close();
    const auto box = runAnswering(true, QMessageBox::Ok);
    QVERIFY(box->isDone());
    QVERIFY2(box->text.contains("[Connection refused]"_L1), qPrintable(box->text));
    QCOMPARE(messages(), QStringList{failed});
    QVERIFY(!runAnswering(false, QMessageBox::Ok)->isDone());
}

void TestVersionCheck::connectionClosedMidWay_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("at once") << QByteArray();
    QTest::newRow("in the headers") << QByteArray("HTTP/1.1 200 OK\r\nContent-Le");
    QTest::newRow("in the body") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\noutdated=1\n");
    QTest::newRow("in a chunk") << QByteArray("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n"
                                              "40\r\noutdated=1\n");
    QTest::newRow("no HTTP at all") << QByteArray("outdated=1\nlatest=2\n");
}

void TestVersionCheck::connectionClosedMidWay()
{
    QFETCH(QByteArray, bytes);
    server->answerWith(bytes);
    const auto box = runAnswering(true, QMessageBox::Ok);
    QVERIFY(box->isDone());
    QCOMPARE(box->title, u"Version check failed"_s);
    QVERIFY(!box->text.contains("127.0.0.1"_L1));
    QVERIFY(setting(SettingKey::VersionCheckLast).isNull());
    QCOMPARE(messages(), QStringList{failed});
}

void TestVersionCheck::slowServiceIsWaitedFor()
{
    server->answer = [](QTcpSocket *socket) {
        QTimer::singleShot(1500, socket, [socket] {
            socket->write("HTTP/1.1 200 OK\r\nContent-Length: 11\r\n\r\noutdated=0\n");
        });
    };
    QVERIFY(run(false));
    QCOMPARE(messages(), QStringList{successful});
}

void TestVersionCheck::neverTwoBoxes()
{
    server->answerBody(newVersion);
    int boxes = 0;
    bool hasSecondEnded = false;
    const ModalAnswer answer([&](QDialog *) {
        const QPointer<VersionCheck> second = start(true);
        hasSecondEnded = QTest::qWaitFor([&] { return second.isNull() && messages().size() == 2; }, 20000);
        boxes = static_cast<int>(window->findChildren<QMessageBox *>().size());
    });
    QVERIFY(run(false));
    QVERIFY(answer.isDone());
    QVERIFY(hasSecondEnded);
    QCOMPARE(boxes, 1);
    QCOMPARE(server->requests.size(), 2);
    // The first box is gone: a further check shows one again.
    QTRY_VERIFY(!window->findChild<QObject *>(u"version_check"_s));
    QVERIFY(runAnswering(true, QMessageBox::Close)->isDone());
}

void TestVersionCheck::automaticWaitsWhileTheParentIsBusy()
{
    server->answerBody(newVersion);
    bool isBusy = true;
    int asked = 0;
    const QPointer<VersionCheck> check = start(false);
    check->isParentBusy = [&] {
        ++asked;
        return isBusy;
    };
    const BoxAnswer box(QMessageBox::Close);
    QTRY_VERIFY(asked > 2);
    QVERIFY(!box.isDone());
    // What needs no answer is done already.
    QCOMPARE(setting(SettingKey::VersionCheckLast).toString(), today());
    QCOMPARE(messages(), QStringList{successful});
    isBusy = false;
    QTRY_VERIFY(box.isDone());
    QCOMPARE(box.objectName, u"version_check"_s);
    QTRY_VERIFY(check.isNull());
}

void TestVersionCheck::forcedWaitsForNothing()
{
    server->answerBody(newVersion);
    const QPointer<VersionCheck> check = start(true);
    check->isParentBusy = [] {
        return true;
    };
    const BoxAnswer box(QMessageBox::Close);
    QTRY_VERIFY(box.isDone());
    QTRY_VERIFY(check.isNull());
}

void TestVersionCheck::parentGoesWhileItWaits()
{
    server->answerBody(newVersion);
    int asked = 0;
    const QPointer<VersionCheck> check = start(false);
    check->isParentBusy = [&] {
        return ++asked > 0;
    };
    QTRY_VERIFY(asked > 0);
    window.reset();
    QVERIFY(check.isNull());
}

void TestVersionCheck::worksWithoutAParent()
{
    window.reset();
    server->answerBody("outdated=0\n");
    QVERIFY(runAnswering(true, QMessageBox::Ok)->isDone());
}

QTEST_MAIN(TestVersionCheck)
#include "tst_versioncheck.moc"
