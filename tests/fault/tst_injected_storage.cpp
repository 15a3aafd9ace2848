// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fault/faultrun.h"
#include "fault/inject/systemfaults.h"
#include "platform/autostart.h"

#include <QScopeGuard>
#include <QTableWidget>

#include <cerrno>

using namespace Qt::StringLiterals;

/// The disk fills, or breaks, while the log or the settings are written.
class InjectedStorage : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<FaultRun> run;
    std::unique_ptr<SystemFaults> faults;

    /// The lines of the only log file, without their times.
    [[nodiscard]] QStringList savedLines() const
    {
        const QStringList names = run->settings.tree.names(u"logs"_s);
        if (names.size() != 1)
            return {u"%1 files"_s.arg(names.size())};
        QStringList lines;
        for (const QByteArray &line : run->settings.tree.content(u"logs/"_s + names.constFirst()).split('\n'))
            lines.append(QString::fromLatin1(line).section(u'|', 1));
        return lines;
    }
    [[nodiscard]] QByteArray settingsFile() const
    {
        return run->settings.tree.content(u"config/global.xml"_s);
    }

private slots:
    void init()
    {
        run = std::make_unique<FaultRun>();
        faults = std::make_unique<SystemFaults>();
        run->window.addInsert(u"new-"_s);
    }
    void cleanup()
    {
        faults.reset();
        run.reset();
    }

    void logThatCannotBeWrittenHoldsUpNothing_data()
    {
        QTest::addColumn<int>("error");
        QTest::addColumn<int>("room");

        QTest::newRow("full") << ENOSPC << 0;
        QTest::newRow("full in the middle of a line") << ENOSPC << 40;
        QTest::newRow("over quota") << EDQUOT << 0;
        QTest::newRow("broken") << EIO << 0;
    }
    void logThatCannotBeWrittenHoldsUpNothing()
    {
        QFETCH(int, error);
        QFETCH(int, room);
        constexpr int count = 20;
        run->window.child<QCheckBox>("checkBoxSaveLog")->click();
        run->plant(u"file%1.txt"_s, count);
        QStringList failed;
        for (int i = 0; i < 5; ++i)
            failed.append(
                QFileInfo(run->tree.addFile(u"new-file00%1.txt"_s.arg(i), "in the way")).fileName().mid(4));
        faults->add({.call = SystemCall::Write, .part = "/logs/", .error = error, .room = room});
        run->run();
        QVERIFY(faults->hits() > 0);
        // All lines are there to see.
        QCOMPARE(run->boxes.seen.size(), 1);
        QCOMPARE(run->boxes.seen.constFirst().text, u"Total 20\nProcessed 15\nFailed 5"_s);
        run->window->onTimeout();
        const auto *table = run->window.child<QTableWidget>("tableWidgetLog");
        QCOMPARE(table->rowCount(), 7);
        QCOMPARE(table->item(0, 1)->text(), u"Total 20 Processed 15 Failed 5\n"_s);
        for (int i = 0; i < 5; ++i)
            QCOMPARE(table->item(5 - i, 1)->text(), "Could not rename file '"_L1 + failed.at(i) + u"'\n"_s);
        for (int i = 0; i < count; ++i) {
            const QString name = u"file%1.txt"_s.arg(i, 3, 10, QChar(u'0'));
            QCOMPARE(run->tree.content(i < 5 ? name : "new-"_L1 + name), name.toLatin1());
        }

        // With room again, the file takes what comes from then on.
        faults->clear();
        AppLog::instance()->append(u"room again"_s);
        AppLog::instance()->append(u"and more"_s);
        const QStringList lines = savedLines();
        QCOMPARE(lines.last(2), (QStringList{u"and more"_s, QString()}));
        QVERIFY(lines.at(lines.size() - 3).endsWith(u"room again"_s));
    }

    void settingsThatCannotBeWrittenStayAsTheyWere_data()
    {
        QTest::addColumn<int>("call");
        QTest::addColumn<int>("error");
        QTest::addColumn<int>("room");

        QTest::newRow("full") << int(SystemCall::Write) << ENOSPC << 0;
        QTest::newRow("full after some bytes") << int(SystemCall::Write) << ENOSPC << 100;
        QTest::newRow("broken") << int(SystemCall::Write) << EIO << 0;
        QTest::newRow("cannot take the old one's place") << int(SystemCall::Rename) << EIO << 0;
        QTest::newRow("read-only by now") << int(SystemCall::Rename) << EROFS << 0;
    }
    void settingsThatCannotBeWrittenStayAsTheyWere()
    {
        QFETCH(int, call);
        QFETCH(int, error);
        QFETCH(int, room);
        SettingsStore *settings = SettingsStore::instance();
        settings->setValueByName(u"Own.Remark"_s, u"before"_s);
        settings->save();
        const QByteArray before = settingsFile();
        QVERIFY(before.contains("before"));

        installLogMessageHandler();
        AppLog::instance()->clearPending();
        settings->setValueByName(u"Own.Remark"_s, u"after"_s);
        faults->add(
            {.call = static_cast<SystemCall>(call), .part = "/config/", .error = error, .room = room});
        settings->save();
        QVERIFY(faults->hits() > 0);
        QCOMPARE(settingsFile(), before);
        // Nothing of the attempt is left beside it.
        QCOMPARE(run->settings.tree.names(u"config"_s), QStringList(u"global.xml"_s));
        QCOMPARE(DrivenWindow::logLines(), QStringList("could not save all data in: "_L1 +
                                                       run->settings.tree.path() + u"/config/global.xml"_s));
        QCOMPARE(settings->valueByName(u"Own.Remark"_s, {}), QVariant(u"after"_s));

        faults->clear();
        settings->save();
        QVERIFY(settingsFile().contains("after"));
    }

    void ignoredSettingsThatCannotBeReplacedStayWhereTheyWere()
    {
        SettingsStore *settings = SettingsStore::instance();
        QFile file(run->settings.tree.path() + u"/config/global.xml");
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("mine") == 4);
        file.close();
        settings->load();
        for (const auto call : {SystemCall::GiveName, SystemCall::Rename})
            faults->add({.call = call, .part = "/config/", .error = EIO});
        settings->save();
        QVERIFY(faults->hits() > 0);
        QCOMPARE(settingsFile(), "mine");
        QCOMPARE(run->settings.tree.names(u"config"_s), QStringList(u"global.xml"_s));

        faults->clear();
        settings->save();
        QVERIFY(settingsFile().contains("<Settings"));
        QCOMPARE(run->settings.tree.content(u"config/global.xml.bad"_s), "mine");
    }

    // What a broken disk says when asked to keep it for good changes nothing for those who read it now.
    void settingsOnADiskThatCannotSync()
    {
        faults->add({.call = SystemCall::Sync, .part = "/config/", .error = EIO});
        SettingsStore::instance()->setValueByName(u"Own.Remark"_s, u"kept"_s);
        SettingsStore::instance()->save();
        QVERIFY(faults->hits() > 0);
        QVERIFY(settingsFile().contains("kept"));
        QVERIFY(settingsFile().endsWith("</Settings>\n"));
    }

    void autoStartEntryOnAFullDisk()
    {
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(run->tree.path()));
        const auto restore = qScopeGuard([] { qunsetenv("XDG_CONFIG_HOME"); });
        QVERIFY(setAutoStart(true));
        QVERIFY(isAutoStartEnabled());
        const QString name = "autostart/"_L1 + run->tree.names(u"autostart"_s).constFirst();
        const QByteArray before = run->tree.content(name);
        faults->add({.call = SystemCall::Write, .part = "/autostart/", .error = ENOSPC});
        QVERIFY(!setAutoStart(true));
        QVERIFY(faults->hits() > 0);
        QCOMPARE(run->tree.content(name), before);
        QCOMPARE(run->tree.names(u"autostart"_s).size(), 1);
    }

    void closingTheWindowOnAFullDisk()
    {
        SettingsStore::instance()->setValueByName(u"Own.Remark"_s, u"before"_s);
        SettingsStore::instance()->save();
        const QByteArray before = settingsFile();
        run->window.child<QCheckBox>("checkBoxSaveLog")->click();
        faults->add({.call = SystemCall::Write, .part = "/", .error = ENOSPC});
        AppLog::instance()->append(u"lost"_s);
        bool closed = false;
        run->window->closed = [&] {
            closed = true;
        };
        QVERIFY(run->window->close());
        QVERIFY(closed);
        QCOMPARE(settingsFile(), before);
    }
};

QTEST_MAIN(InjectedStorage)
#include "tst_injected_storage.moc"
