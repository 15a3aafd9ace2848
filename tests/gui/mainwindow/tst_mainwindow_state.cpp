// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "desktop/messagebox.h"
#include "support/drivenwindow.h"
#include "support/modalanswer.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QDockWidget>
#include <QMenu>
#include <QScreen>
#include <QSystemTrayIcon>
#include <QTest>
#include <QWindow>

using namespace Qt::StringLiterals;

/// What the window keeps over its end.
class MainWindowState final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void opacityIsStoredWithTwoDecimals_data();
    void opacityIsStoredWithTwoDecimals();
    void opacityOutOfRangeBecomesFullAndIsWrittenBack_data();
    void opacityOutOfRangeBecomesFullAndIsWrittenBack();
    void geometryAndLayoutAreLeftAloneWhileRestoringIsOff();
    void layoutIsRestoredOnlyWhenAskedFor();
    void firstStartClosesTheLogDockAndTheFirstCloseEndsIt();
    void withoutATrayTheWindowIsMinimizedWhateverTheSettingSays();
    void onlyTheWindowSystemMinimizesIntoTheTray();
    void windowBeyondTheDesktopIsMovedBack_data();
    void windowBeyondTheDesktopIsMovedBack();
    void dialogsBlockTheirWindowAlone();
    void dialogsComeToTheFrontWithTheWindow();
    void closingWhileItAsksAsksNoSecondTime();
    void menuChecksTheEntryBelow_data();
    void menuChecksTheEntryBelow();

private:
    std::unique_ptr<TestSettings> settings;
};

void MainWindowState::init()
{
    settings = std::make_unique<TestSettings>();
}

void MainWindowState::cleanup()
{
    settings.reset();
}

void MainWindowState::opacityIsStoredWithTwoDecimals_data()
{
    QTest::addColumn<double>("opacity");
    QTest::addColumn<QString>("stored");
    // A window keeps its opacity in steps of 1/255; the rounding gives back what was set.
    QTest::newRow("quarter") << 0.25 << u"0.25"_s;
    QTest::newRow("half") << 0.5 << u"0.5"_s;
    QTest::newRow("in between") << 0.85 << u"0.85"_s;
    QTest::newRow("full") << 1.0 << u"1"_s;
}

void MainWindowState::opacityIsStoredWithTwoDecimals()
{
    QFETCH(double, opacity);
    QFETCH(QString, stored);
    MainWindow window({});
    window.setWindowOpacity(opacity);
    window.show();
    window.close();
    QCOMPARE(SettingsStore::instance()->value(SettingKey::WindowOpacity, {}).toString(), stored);
}

void MainWindowState::opacityOutOfRangeBecomesFullAndIsWrittenBack_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("restored");
    QTest::newRow("too small") << u"0.1"_s << u"1"_s;
    QTest::newRow("too large") << u"1.01"_s << u"1"_s;
    QTest::newRow("no number") << u"half"_s << u"1"_s;
    QTest::newRow("not a number") << u"nan"_s << u"1"_s;
    QTest::newRow("smallest") << u"0.25"_s << u"0.25"_s;
    QTest::newRow("three decimals") << u"0.856"_s << u"0.86"_s;
}

void MainWindowState::opacityOutOfRangeBecomesFullAndIsWrittenBack()
{
    QFETCH(QString, stored);
    QFETCH(QString, restored);
    SettingsStore::instance()->setValue(SettingKey::WindowOpacity, stored);
    MainWindow window({});
    window.initialize();
    window.restoreWindowSettings();
    QCOMPARE(SettingsStore::instance()->value(SettingKey::WindowOpacity, {}).toString(), restored);
}

void MainWindowState::geometryAndLayoutAreLeftAloneWhileRestoringIsOff()
{
    SettingsStore *store = SettingsStore::instance();
    store->setValue(SettingKey::WindowGeometryRestore, false);
    store->setValue(SettingKey::WindowLayoutRestore, false);
    store->setValue(SettingKey::WindowGeometryData, u"stale"_s);
    store->setValue(SettingKey::WindowLayoutData, u"stale"_s);
    MainWindow window({});
    window.initialize();
    window.restoreWindowSettings();
    window.show();
    window.close();
    QCOMPARE(store->value(SettingKey::WindowGeometryData, {}).toString(), u"stale"_s);
    QCOMPARE(store->value(SettingKey::WindowLayoutData, {}).toString(), u"stale"_s);
}

void MainWindowState::layoutIsRestoredOnlyWhenAskedFor()
{
    SettingsStore *store = SettingsStore::instance();
    {
        MainWindow window({});
        window.initialize();
        window.findChild<QDockWidget *>(u"dockWidgetExplorer"_s)->hide();
        store->setValue(SettingKey::WindowLayoutData, QString::fromLatin1(window.saveState(0).toHex()));
    }
    for (const bool restores : {false, true}) {
        store->setValue(SettingKey::WindowLayoutRestore, restores);
        MainWindow window({});
        window.initialize();
        window.restoreWindowSettings();
        QCOMPARE(window.findChild<QDockWidget *>(u"dockWidgetExplorer"_s)->isHidden(), restores);
    }
}

void MainWindowState::firstStartClosesTheLogDockAndTheFirstCloseEndsIt()
{
    MainWindow window({});
    window.initialize();
    window.restoreWindowSettings();
    window.show();
    QVERIFY(!window.findChild<QDockWidget *>(u"dockWidgetLog"_s)->isVisible());
    QVERIFY(window.findChild<QDockWidget *>(u"dockWidgetExplorer"_s)->isVisible());
    window.close();
    QCOMPARE(SettingsStore::instance()->value(SettingKey::MiscIsFirstStart, {}).toString(), u"false"_s);
    // Saved at once, whatever may come between the closing and the end.
    QVERIFY(settings->tree.content(u"config/global.xml"_s).contains("<IsFirstStart>false</IsFirstStart>"));
}

void MainWindowState::withoutATrayTheWindowIsMinimizedWhateverTheSettingSays()
{
    MainWindow window({});
    window.initialize();
    window.show();
    // Ticked in the settings dialog, or written by another instance.
    SettingsStore::instance()->setValue(SettingKey::MiscMinimizeToTrayIcon, true);
    window.minimizeWindow();
    QVERIFY(window.isVisible());
    QVERIFY(window.isMinimized());
    QVERIFY(!window.findChild<QSystemTrayIcon *>());
}

void MainWindowState::onlyTheWindowSystemMinimizesIntoTheTray()
{
    MainWindow window({});
    window.initialize();
    // Minimising what is hidden would show it.
    window.setWindowState(Qt::WindowMinimized);
    QVERIFY(window.isMinimized());
    QVERIFY(window.isHidden());
}

void MainWindowState::windowBeyondTheDesktopIsMovedBack_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<bool>("stays");
    const QSize desktop = QGuiApplication::primaryScreen()->virtualGeometry().size();
    const int right = desktop.width() - 64;
    const int bottom = desktop.height() - 64;
    QTest::newRow("first corner") << QPoint(0, 0) << true;
    QTest::newRow("last corner") << QPoint(right, bottom) << true;
    QTest::newRow("left") << QPoint(-1, 10) << false;
    QTest::newRow("top") << QPoint(10, -1) << false;
    QTest::newRow("right") << QPoint(right + 1, 10) << false;
    QTest::newRow("bottom") << QPoint(10, bottom + 1) << false;
}

void MainWindowState::windowBeyondTheDesktopIsMovedBack()
{
    QFETCH(QPoint, place);
    QFETCH(bool, stays);
    SettingsStore::instance()->setValue(SettingKey::WindowGeometryRestore, true);
    MainWindow window({});
    window.initialize();
    // Qt itself moves what it restores, but data that does not restore leave the window where it is.
    window.move(place);
    window.restoreWindowSettings();
    QCOMPARE(window.pos(), stays ? place : QPoint(64, 64));
}

void MainWindowState::dialogsBlockTheirWindowAlone()
{
    DrivenWindow window;
    window->show();
    QStringList blocking;
    // A dialog that blocked all windows would block the icon in the tray, too.
    const auto look = [&](const QDialog *dialog) {
        if (dialog->windowModality() == Qt::WindowModal)
            blocking.append(QString::fromLatin1(dialog->metaObject()->className()));
    };
    {
        const ModalAnswer settingsDialog([&](const QDialog *dialog) {
            look(dialog);
            const ModalAnswer box(look);
            QMessageBox *sibling = createMessageBox(window.get(), QMessageBox::Information);
            execMessageBox(sibling);
            QVERIFY(box.isDone());
            QCOMPARE(sibling->windowHandle()->transientParent(), dialog->windowHandle());
        });
        window.child<QAction>("actionGlobalSettings")->trigger();
    }
    settings->tree.addFile(u"a.txt"_s);
    window.drop({settings->tree.path(u"a.txt"_s)});
    {
        BoxAnswerer report;
        report.beforeAnswer = look;
        window.click("buttonRename");
    }
    SettingsStore::instance()->setValueByName(u"SupportUsHint"_s, true);
    const ModalAnswer notice(look);
    window->close();
    QCOMPARE(blocking,
             (QStringList{u"DialogSettings"_s, u"QMessageBox"_s, u"QMessageBox"_s, u"DialogNotice"_s}));
    QCOMPARE(ProgressDialog(window.get()).windowModality(), Qt::WindowModal);
}

void MainWindowState::dialogsComeToTheFrontWithTheWindow()
{
    MainWindow window({});
    window.initialize();
    window.show();
    ProgressDialog dialog(&window);
    dialog.show();
    dialog.showMinimized();
    window.onRestoreWindow();
    QVERIFY(!dialog.isMinimized());
    QVERIFY(dialog.isVisible());
    QTRY_VERIFY(dialog.isActiveWindow());
    QCOMPARE(dialog.windowHandle()->transientParent(), window.windowHandle());
    window.activateWindow();
    QTRY_VERIFY(dialog.isActiveWindow());
    dialog.reject();
}

void MainWindowState::closingWhileItAsksAsksNoSecondTime()
{
    const DrivenWindow window;
    window->show();
    SettingsStore::instance()->setValueByName(u"SupportUsHint"_s, true);
    bool isAskedAgain = false;
    const ModalAnswer first([&](const QDialog *) {
        const ModalAnswer second([&](const QDialog *) { isAskedAgain = true; });
        window->close();
    });
    window->close();
    QVERIFY(first.isDone());
    QVERIFY(!isAskedAgain);
}

void MainWindowState::menuChecksTheEntryBelow_data()
{
    QTest::addColumn<double>("opacity");
    QTest::addColumn<QString>("entry");
    QTest::newRow("quarter") << 0.25 << u"Opacity 25%"_s;
    QTest::newRow("half") << 0.5 << u"Opacity 50%"_s;
    QTest::newRow("in between") << 0.6 << u"Opacity 50%"_s;
    QTest::newRow("three quarters") << 0.75 << u"Opacity 75%"_s;
    QTest::newRow("full") << 1.0 << u"Opacity 100%"_s;
    QTest::newRow("deliberate: nothing checks full") << 0.0 << u"Opacity 100%"_s;
}

void MainWindowState::menuChecksTheEntryBelow()
{
    QFETCH(double, opacity);
    QFETCH(QString, entry);
    MainWindow window({});
    window.show();
    window.setWindowOpacity(opacity);
    QStringList entries;
    QStringList checked;
    QTimer poll;
    connect(&poll, &QTimer::timeout, &window, [&] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu)
            return;
        const auto actions = menu->actions();
        for (const QAction *action : actions) {
            entries.append(action->text());
            if (action->isChecked())
                checked.append(action->text());
        }
        menu->close();
    });
    poll.start(1);
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, window.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&window, &event);
    QCOMPARE(checked, QStringList{entry});
    QCOMPARE(entries, (QStringList{u"Opacity 25%"_s, u"Opacity 50%"_s, u"Opacity 75%"_s, u"Opacity 100%"_s,
                                   QString(), u"Stay on Top"_s}));
    QVERIFY(event.isAccepted());
}

QTEST_MAIN(MainWindowState)
#include "tst_mainwindow_state.moc"
