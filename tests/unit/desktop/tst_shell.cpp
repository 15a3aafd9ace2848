// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "desktop/shell.h"
#include "desktop/taskbar.h"
#include "support/httpurls.h"
#include "support/messagecatcher.h"
#include "support/temptree.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestShell final : public QObject
{
    Q_OBJECT

private slots:
    void opensFoldersAndAddresses_data();
    void opensFoldersAndAddresses();
    void opensNothingForAnEmptyText();
    void thereIsNoTaskbarHere();
};

void TestShell::opensFoldersAndAddresses_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("url");

    QTest::newRow("folder") << u"/tmp/logs"_s << u"file:///tmp/logs"_s;
    QTest::newRow("folder with blanks") << u"/tmp/my logs/"_s << u"file:///tmp/my%20logs/"_s;
    QTest::newRow("folder with characters of an address")
        << u"/tmp/a#b?c%20d&e"_s << u"file:///tmp/a%23b%3Fc%2520d&e"_s;
    QTest::newRow("Unicode folder") << u"/tmp/Ж"_s << u"file:///tmp/%D0%96"_s;
    QTest::newRow("http address") << u"http://127.0.0.1:1/a?b=c%20d#e"_s
                                  << u"http://127.0.0.1:1/a?b=c%20d#e"_s;
    QTest::newRow("https address") << u"https://127.0.0.1/"_s << u"https://127.0.0.1/"_s;
    QTest::newRow("longer than 260 characters")
        << u"/"_s + QString(300, u'a') << u"file:///"_s + QString(300, u'a');
}

void TestShell::opensFoldersAndAddresses()
{
    QFETCH(QString, file);
    const OpenedUrls opened({u"file"_s, u"http"_s, u"https"_s});
    openWithShell(file);
    openWithShell(file, u"parameters are not passed on"_s);
    QCOMPARE(opened.urls.size(), 2);
    QTEST(opened.urls.at(0).toString(QUrl::FullyEncoded), "url");
    QCOMPARE(opened.urls.at(1), opened.urls.at(0));
}

void TestShell::opensNothingForAnEmptyText()
{
    const OpenedUrls opened({u"file"_s, u"http"_s, u"https"_s});
    const MessageCatcher messages;
    openWithShell(QString());
    openWithShell(u""_s, u"parameters"_s);
    QVERIFY(opened.urls.isEmpty());
    QCOMPARE(messages.messages(), QStringList());
}

void TestShell::thereIsNoTaskbarHere()
{
    QCOMPARE(TaskbarList::create(0), nullptr);
}

QTEST_MAIN(TestShell)
#include "tst_shell.moc"
