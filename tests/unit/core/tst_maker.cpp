// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "core/maker.h"

#include <QTest>
#include <QUrl>

#if defined(QT_GUI_LIB) || defined(QT_XML_LIB)
#error "A program without windows and settings needs orvanto_core, which is to link Qt Core alone."
#endif

using namespace Qt::StringLiterals;

class TestMaker final : public QObject
{
    Q_OBJECT

private slots:
    void versionIsThatOfTheProject();
    void addressesAreWebAddresses();
    void schemeIsCutOff_data();
    void schemeIsCutOff();
};

void TestMaker::versionIsThatOfTheProject()
{
    QCOMPARE(Maker::applicationVersion(), QString::fromLatin1(PROJECT_VERSION));
    QCOMPARE(Maker::applicationVersion().count(u'.'), 3);
}

void TestMaker::addressesAreWebAddresses()
{
    for (const QString &address : {Maker::updateUrl(), Maker::homeUrl(), Maker::contactUrl(),
                                   Maker::donateUrl(), Maker::contributeUrl(), Maker::productsUrl()}) {
        const QUrl url(address, QUrl::StrictMode);
        QVERIFY2(url.isValid() && url.scheme().startsWith(u"http") && !url.host().isEmpty(),
                 qPrintable(address));
    }
    QVERIFY(!Maker::organizationDomain().isEmpty());
}

void TestMaker::schemeIsCutOff_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("expected");

    QTest::newRow("http") << u"http://www.kavrondel.example/"_s << u"www.kavrondel.example/"_s;
    QTest::newRow("https") << u"https://a/b?c=d://e"_s << u"a/b?c=d://e"_s;
    QTest::newRow("none") << u"www.kavrondel.example"_s << u"www.kavrondel.example"_s;
    QTest::newRow("empty") << u""_s << u""_s;
    QTest::newRow("nothing behind it") << u"http://"_s << u""_s;
}

void TestMaker::schemeIsCutOff()
{
    QFETCH(QString, address);
    QTEST(Maker::withoutScheme(address), "expected");
}

QTEST_APPLESS_MAIN(TestMaker)
#include "tst_maker.moc"
