// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "core/settingsstore.h"
#include "support/httpserver.h"
#include "support/httpurls.h"
#include "support/modalanswer.h"
#include "update/versioncheck.h"

#include <QDate>
#include <QDir>
#include <QNetworkProxy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

/// What every test of the version check starts with: a service on 127.0.0.1, an empty settings store, a main
/// window, and the debug messages kept.
class VersionCheckTest : public QObject
{
    Q_OBJECT

public:
    static QStringList &messages()
    {
        static QStringList theMessages;
        return theMessages;
    }

protected:
    static QString today() { return QDate::currentDate().toString(QStringLiteral("dd.MM.yyyy")); }
    static QVariant setting(SettingKey key) { return SettingsStore::instance()->value(key, QVariant()); }
    static void set(SettingKey key, const QString &value) { SettingsStore::instance()->setValue(key, value); }

    QPointer<VersionCheck> start(bool isForced)
    {
        QPointer<VersionCheck> check = new VersionCheck(window.get());
        check->check(isForced);
        return check;
    }

    /// Runs one check to its end. False when it does not end.
    bool run(bool isForced)
    {
        const QPointer<VersionCheck> check = start(isForced);
        return QTest::qWaitFor([&check] { return check.isNull(); }, 20000);
    }

    /// Runs one check that must show a box, and answers it.
    std::unique_ptr<BoxAnswer> runAnswering(bool isForced, QMessageBox::StandardButton button)
    {
        auto answer = std::make_unique<BoxAnswer>(button);
        if (!run(isForced))
            qWarning("the check did not end");
        return answer;
    }

    QTemporaryDir folder;
    std::unique_ptr<HttpServer> server;
    std::unique_ptr<QWidget> window;
    std::unique_ptr<OpenedUrls> opened;

private slots:
    void initTestCase()
    {
        QVERIFY(folder.isValid());
        QVERIFY(QDir::setCurrent(folder.path()));
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) {
            // The offscreen platform says this of every box.
            if (!text.contains(QLatin1String("propagateSizeHints")))
                messages().append(text);
        });
    }

    void init()
    {
        QCoreApplication::setApplicationName(QStringLiteral("Orvanto"));
        QCoreApplication::setApplicationVersion(QStringLiteral("1.2.0.5"));
        SettingsStore::destroy();
        server = std::make_unique<HttpServer>();
        window = std::make_unique<QWidget>();
        opened = std::make_unique<OpenedUrls>(
            QStringList{QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("file"),
                        QStringLiteral("javascript"), QStringLiteral("data"), QStringLiteral("ftp")});
        VersionCheck::service() = {server->url(), std::chrono::minutes(10)};
        messages().clear();
    }

    void cleanup()
    {
        window.reset();
        server.reset();
        opened.reset();
    }

    void cleanupTestCase()
    {
        qInstallMessageHandler(nullptr);
        QDir::setCurrent(QDir::rootPath());
        SettingsStore::destroy();
    }
};
