// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "support/drivenwindow.h"
#include "support/duringevents.h"
#include "support/httpserver.h"
#include "support/modalanswer.h"
#include "update/versioncheck.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QNetworkProxy>
#include <QTest>

using namespace Qt::StringLiterals;

/// The window's automatic version check.
class MainWindowVersionCheck final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void asksUnlessSwitchedOff();
    void boxWaitsForTheRun();
    void boxWaitsForTheAddingOfAFolder();
    void boxWaitsForTheAddingOfFiles();

private:
    /// Lets the window tick until its check is due.
    void tickADay();
    /// Lets the check get its answer within the first event of what is in hand, and some time pass then.
    void answerWithin(int pass);
    [[nodiscard]] QStringList titles() const;
    [[nodiscard]] bool isAnswered() const;

    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<HttpServer> server;
    std::unique_ptr<DrivenWindow> window;
    std::unique_ptr<BoxAnswerer> boxes;
};

void MainWindowVersionCheck::initTestCase()
{
    QCoreApplication::setApplicationName(u"Orvanto"_s);
    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
}

void MainWindowVersionCheck::init()
{
    settings = std::make_unique<TestSettings>();
    server = std::make_unique<HttpServer>();
    server->answerBody("outdated=1\nlatest=2.0.0.0\n");
    VersionCheck::service().address = server->url();
    window = std::make_unique<DrivenWindow>();
    window->stopLogTimer();
    boxes = std::make_unique<BoxAnswerer>();
}

void MainWindowVersionCheck::cleanup()
{
    boxes.reset();
    window.reset();
    server.reset();
    settings.reset();
}

void MainWindowVersionCheck::tickADay()
{
    constexpr int ticksPerDay = 4 * 60 * 60 * 24;
    for (int tick = 0; tick <= ticksPerDay; ++tick)
        window->get()->onTimeout();
}

bool MainWindowVersionCheck::isAnswered() const
{
    return SettingsStore::instance()->value(SettingKey::VersionCheckLast, {}).isValid();
}

void MainWindowVersionCheck::answerWithin(int pass)
{
    if (pass > 1)
        return;
    tickADay();
    QVERIFY(QTest::qWaitFor([this] { return isAnswered(); }));
    // The check looks several times whether it may show its box by then.
    QElapsedTimer waiting;
    waiting.start();
    QVERIFY(QTest::qWaitFor([&] { return waiting.hasExpired(600) || !boxes->seen.isEmpty(); }));
    QCOMPARE(titles(), QStringList());
}

QStringList MainWindowVersionCheck::titles() const
{
    QStringList texts;
    for (const SeenBox &box : boxes->seen)
        texts.append(box.title);
    return texts;
}

void MainWindowVersionCheck::asksUnlessSwitchedOff()
{
    SettingsStore::instance()->setValue(SettingKey::VersionCheckAuto, false);
    tickADay();
    QVERIFY(!window->get()->findChild<VersionCheck *>());
    // Deliberate: what was never written counts as switched on.
    cleanup();
    init();
    tickADay();
    QTRY_COMPARE(titles(), QStringList{u"Orvanto"_s});
    QCOMPARE(server->requests.size(), 1);
}

void MainWindowVersionCheck::boxWaitsForTheRun()
{
    window->drop(settings->tree.addFiles(u"f%1.txt"_s, 3));
    window->addInsert(u"x"_s);
    {
        const DuringEvents events([this](int pass) { answerWithin(pass); });
        window->click("buttonRename");
    }
    QTRY_COMPARE(titles(), (QStringList{u"Report"_s, u"Orvanto"_s}));
    QCOMPARE(window->rowTexts(), (QStringList{u"xf000.txt"_s, u"xf001.txt"_s, u"xf002.txt"_s}));
}

void MainWindowVersionCheck::boxWaitsForTheAddingOfAFolder()
{
    settings->tree.addFiles(u"folder/f%1.txt"_s, 3);
    {
        const DuringEvents events([this](int pass) { answerWithin(pass); });
        window->drop({settings->tree.path(u"folder"_s)});
        QCOMPARE(window->files()->count(), 3);
    }
    QTRY_COMPARE(titles(), QStringList{u"Orvanto"_s});
}

void MainWindowVersionCheck::boxWaitsForTheAddingOfFiles()
{
    QMimeData data;
    QList<QUrl> urls;
    for (const QString &path : settings->tree.addFiles(u"f%1.txt"_s, 3))
        urls.append(QUrl::fromLocalFile(path));
    data.setUrls(urls);
    {
        // Single files show no wait dialog.
        const DuringEvents events([this](int pass) { answerWithin(pass); });
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window->files()->viewport(), &enter);
        QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window->files()->viewport(), &drop);
        QCOMPARE(window->files()->count(), 3);
    }
    QTRY_COMPARE(titles(), QStringList{u"Orvanto"_s});
}

QTEST_MAIN(MainWindowVersionCheck)
#include "tst_mainwindow_versioncheck.moc"
