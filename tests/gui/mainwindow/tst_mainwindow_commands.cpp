// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "support/drivenwindow.h"
#include "support/faketranslator.h"

#include "core/maker.h"

#include <QAction>
#include <QDesktopServices>
#include <QDockWidget>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalMapper>
#include <QSystemTrayIcon>
#include <QTableWidget>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolTip>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// Turns every text of a context into "<text reversed>", so that nothing sorts as it did.
QString mirrored(QLatin1StringView context, const QString &text)
{
    if (context != "MainWindow"_L1 && context != "Rules"_L1)
        return {};
    QString result = text;
    std::reverse(result.begin(), result.end());
    return result;
}

} // namespace

/// The commands of the window: log table, check boxes, docks, keys and a change of the language.
class MainWindowCommands : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<DrivenWindow> window;
    QList<QUrl> opened;

    [[nodiscard]] QTableWidget *table() const { return window->child<QTableWidget>("tableWidgetLog"); }
    /// What shows when the mouse rests on a line of the log.
    [[nodiscard]] QString toolTipAt(int row, int column) const
    {
        QToolTip::hideText();
        if (!QTest::qWaitFor([] { return !QToolTip::isVisible(); }))
            return u"the last tip"_s;
        const QPoint place = table()->visualRect(table()->model()->index(row, column)).center();
        QHelpEvent event(QEvent::ToolTip, place, table()->viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(table()->viewport(), &event);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }
    [[nodiscard]] static QString stored(SettingKey key)
    {
        return SettingsStore::instance()->value(key, u"(none)"_s).toString();
    }

public slots:
    void open(const QUrl &url) { opened.append(url); }

private slots:
    void init()
    {
        settings = std::make_unique<TestSettings>();
        window = std::make_unique<DrivenWindow>();
        window->stopLogTimer();
        AppLog::instance()->clearPending();
        opened.clear();
        QDesktopServices::setUrlHandler(u"file"_s, this, "open");
        QDesktopServices::setUrlHandler(u"http"_s, this, "open");
    }

    void cleanup()
    {
        QDesktopServices::unsetUrlHandler(u"file"_s);
        QDesktopServices::unsetUrlHandler(u"http"_s);
        window.reset();
        settings.reset();
    }

    void newestLogLineIsAtTheTop()
    {
        AppLog::instance()->append(u"first"_s);
        AppLog::instance()->append(u"second"_s);
        window->get()->onTimeout();
        QCOMPARE(table()->rowCount(), 2);
        QCOMPARE(table()->item(0, 1)->text(), u"second"_s);
        QCOMPARE(table()->item(1, 1)->text(), u"first"_s);
        static const QRegularExpression time(u"^\\d\\d:\\d\\d:\\d\\d( [AP]M)?$"_s);
        QVERIFY(time.match(table()->item(0, 0)->text()).hasMatch());
        QVERIFY(AppLog::instance()->pendingLines().isEmpty());
        window->get()->onTimeout();
        QCOMPARE(table()->rowCount(), 2);
    }

    void hundredAndFiftyLinesInOneTickLeaveTheNewest99()
    {
        for (int i = 1; i <= 150; ++i)
            AppLog::instance()->append(u"line %1"_s.arg(i));
        window->get()->onTimeout();
        QCOMPARE(table()->rowCount(), 99);
        for (int row = 0; row < 99; ++row)
            QCOMPARE(table()->item(row, 1)->text(), u"line %1"_s.arg(150 - row));
    }

    void tableHoldsAtMost99RowsOverManyTicks()
    {
        for (int i = 1; i <= 98; ++i)
            AppLog::instance()->append(u"line %1"_s.arg(i));
        window->get()->onTimeout();
        QCOMPARE(table()->rowCount(), 98);
        for (int i = 99; i <= 103; ++i) {
            AppLog::instance()->append(u"line %1"_s.arg(i));
            window->get()->onTimeout();
            QCOMPARE(table()->rowCount(), 99);
            QCOMPARE(table()->item(0, 1)->text(), u"line %1"_s.arg(i));
        }
        QCOMPARE(table()->item(98, 1)->text(), u"line 5"_s);
    }

    void onlyTheTextBeforeTheSecondBarReachesTheTable()
    {
        AppLog::instance()->append(u"shown|dropped|too"_s);
        AppLog::instance()->append(u"|all dropped"_s);
        window->get()->onTimeout();
        QCOMPARE(table()->item(1, 1)->text(), u"shown"_s);
        QCOMPARE(table()->item(0, 1)->text(), QString());
        QCOMPARE(table()->columnCount(), 2);
    }

    void newlineOfAWrittenLineIsKeptInTheTable()
    {
        AppLog::instance()->setSaveToFile(true);
        AppLog::instance()->append(u"written"_s);
        AppLog::instance()->setSaveToFile(false);
        AppLog::instance()->append(u"not written"_s);
        window->get()->onTimeout();
        QCOMPARE(table()->item(1, 1)->text(), u"written\n"_s);
        QCOMPARE(table()->item(0, 1)->text(), u"not written"_s);
    }

    void longLineHasRoomForItsText()
    {
        const QString longLine = u"<b>long</b> "_s + u"/folder"_s.repeated(30);
        AppLog::instance()->setSaveToFile(true); // ends its lines
        AppLog::instance()->append(longLine);
        AppLog::instance()->append(u"short"_s);
        AppLog::instance()->setSaveToFile(false);
        window->get()->onTimeout();
        window->get()->show();
        QCoreApplication::processEvents();
        const int line = table()->fontMetrics().height();
        QVERIFY(table()->rowHeight(0) >= line && table()->rowHeight(0) < 2 * line);
        QVERIFY(table()->rowHeight(1) >= 5 * line);
        QCOMPARE(toolTipAt(0, 1), QString());
        QCOMPARE(toolTipAt(1, 1), QString());
        table()->setRowHeight(1, line + 4);
        QVERIFY(!toolTipAt(1, 1).isEmpty());
        // A wider dock has it in fewer lines.
        table()->horizontalHeader()->setStretchLastSection(false);
        table()->setColumnWidth(1, 2 * table()->fontMetrics().horizontalAdvance(longLine));
        QTRY_VERIFY(table()->rowHeight(1) < 2 * line);
    }

    // Without a place for a line break.
    void longWordHasItsWholeTextAsAToolTip()
    {
        const QString word = u"<b>"_s + u"x"_s.repeated(500);
        AppLog::instance()->append(word);
        window->get()->onTimeout();
        window->get()->show();
        QCOMPARE(toolTipAt(0, 0), QString());
        // Markup is text.
        QCOMPARE(QTextDocumentFragment::fromHtml(toolTipAt(0, 1)).toPlainText(), word);
        table()->horizontalHeader()->setStretchLastSection(false);
        table()->setColumnWidth(1, 2 * table()->fontMetrics().horizontalAdvance(word));
        QCOMPARE(toolTipAt(0, 1), QString());
    }

    void clearLogRemovesAllRows()
    {
        for (int i = 0; i < 20; ++i)
            AppLog::instance()->append(u"line"_s);
        window->get()->onTimeout();
        QCOMPARE(table()->rowCount(), 20);
        window->click("toolButtonClearLog");
        QCOMPARE(table()->rowCount(), 0);
        QCOMPARE(table()->columnCount(), 2);
    }

    void saveLogsSwitchesTheFileAtOnceButStoresTheSettingAtClose()
    {
        window->click("checkBoxSaveLog");
        QVERIFY(window->child<QCheckBox>("checkBoxSaveLog")->isChecked());
        QCOMPARE(stored(SettingKey::LogSave), u"(none)"_s);
        AppLog::instance()->append(u"to the file"_s);
        const QStringList logs = settings->tree.names(u"logs"_s);
        QCOMPARE(logs.size(), 1);
        QVERIFY(settings->tree.content(u"logs/"_s + logs.constFirst()).endsWith("|to the file\n"));
        window->get()->close();
        QCOMPARE(stored(SettingKey::LogSave), u"true"_s);
    }

    void saveLogsSwitchedOffWritesNoMore()
    {
        window->click("checkBoxSaveLog");
        AppLog::instance()->append(u"one"_s);
        window->click("checkBoxSaveLog");
        AppLog::instance()->append(u"two"_s);
        const QString log = u"logs/"_s + settings->tree.names(u"logs"_s).constFirst();
        QVERIFY(settings->tree.content(log).contains("|one\n"));
        QVERIFY(!settings->tree.content(log).contains("two"));
    }

    void includeDebugStoresItsSettingAtOnce()
    {
        QCOMPARE(stored(SettingKey::LogIncludeDebugInfo), u"(none)"_s);
        window->click("checkBoxDebug");
        QCOMPARE(stored(SettingKey::LogIncludeDebugInfo), u"true"_s);
        window->click("checkBoxDebug");
        QCOMPARE(stored(SettingKey::LogIncludeDebugInfo), u"false"_s);
    }

    void includeDebugOffKeepsDebugMessagesOutButNotTheLinesOfARun()
    {
        SettingsStore::instance()->setValue(SettingKey::LogIncludeDebugInfo, true);
        installLogMessageHandler();
        window->click("checkBoxDebug");
        window->click("checkBoxDebug");
        qDebug("a debug message");
        AppLog::instance()->append(u"a line of a run"_s);
        QCOMPARE(DrivenWindow::logLines(), QStringList{u"a line of a run"_s});
        window->click("checkBoxDebug");
        qDebug("a \"quoted\" message");
        QCOMPARE(DrivenWindow::logLines(), QStringList({u"a line of a run"_s, u"a quoted message"_s}));
        qInstallMessageHandler(nullptr);
    }

    void checkBoxesShowWhatWasStored()
    {
        window->get()->restoreWindowSettings();
        QVERIFY(!window->child<QCheckBox>("checkBoxDebug")->isChecked());
        QVERIFY(!window->child<QCheckBox>("checkBoxSaveLog")->isChecked());
        SettingsStore::instance()->setValue(SettingKey::LogIncludeDebugInfo, true);
        SettingsStore::instance()->setValue(SettingKey::LogSave, true);
        window->get()->restoreWindowSettings();
        QVERIFY(window->child<QCheckBox>("checkBoxDebug")->isChecked());
        QVERIFY(window->child<QCheckBox>("checkBoxSaveLog")->isChecked());
    }

    void openLogFolderMakesItAndOpensIt()
    {
        window->click("toolButtonOpenLogDir");
        QVERIFY(QDir(settings->tree.path(u"logs"_s)).exists());
        QCOMPARE(opened,
                 QList<QUrl>{QUrl::fromLocalFile(QDir(settings->tree.path(u"logs"_s)).canonicalPath())});
        // Again, with the folder there already.
        window->click("toolButtonOpenLogDir");
        QCOMPARE(opened.size(), 2);
    }

    void logoOpensTheHomePage()
    {
        window->click("buttonLogo");
        QCOMPARE(opened, QList<QUrl>{QUrl(Maker::homeUrl())});
    }

    void actionsToggleTheDocksShownOrNot()
    {
        auto *log = window->child<QDockWidget>("dockWidgetLog");
        auto *explorer = window->child<QDockWidget>("dockWidgetExplorer");
        for (const bool shown : {false, true}) {
            window->get()->setVisible(shown);
            QVERIFY(log->isVisibleTo(window->get()));
            window->child<QAction>("actionLog")->trigger();
            QVERIFY(!log->isVisibleTo(window->get()));
            QVERIFY(explorer->isVisibleTo(window->get()));
            window->child<QAction>("actionLog")->trigger();
            QVERIFY(log->isVisibleTo(window->get()));

            window->child<QAction>("actionExplorer")->trigger();
            QVERIFY(!explorer->isVisibleTo(window->get()));
            QVERIFY(log->isVisibleTo(window->get()));
            window->child<QAction>("actionExplorer")->trigger();
            QVERIFY(explorer->isVisibleTo(window->get()));
        }
    }

    void mapperIds()
    {
        const auto mappers = window->get()->findChildren<QSignalMapper *>(Qt::FindDirectChildrenOnly);
        QCOMPARE(mappers.size(), 4);
        const QList<QMap<int, QString>> expected = {
            {{2, u"buttonFileListUp"_s}, {3, u"buttonFileListDown"_s}, {4, u"buttonFileListRemove"_s}},
            {{5, u"buttonRuleListRemove"_s},
             {6, u"buttonRuleListUp"_s},
             {7, u"buttonRuleListDown"_s},
             {8, u"buttonRuleListClear"_s}},
            {{0, u"checkBoxShowFullPath"_s}, {1, u"actionExplorer"_s}},
            {{0, u"toolButtonClearLog"_s},
             {1, u"checkBoxSaveLog"_s},
             {2, u"actionLog"_s},
             {3, u"toolButtonOpenLogDir"_s},
             {4, u"checkBoxDebug"_s},
             {5, u"actionGlobalSettings"_s},
             {6, u"buttonLogo"_s}}};
        QList<QMap<int, QString>> found;
        for (const QSignalMapper *mapper : mappers) {
            QMap<int, QString> ids;
            for (int id = -1; id < 20; ++id) {
                if (const QObject *sender = mapper->mapping(id))
                    ids.insert(id, sender->objectName());
            }
            found.append(ids);
        }
        for (const auto &ids : expected)
            QVERIFY2(found.contains(ids), qPrintable(ids.constBegin().value()));
    }

    void unknownIdsDoNothing()
    {
        settings->tree.addFile(u"a.txt"_s);
        window->drop({settings->tree.path(u"a.txt"_s)});
        window->addInsert(u"x"_s);
        for (const int id : {-1, 99}) {
            window->get()->onClicked(id);
            window->get()->onClickedVarious(id);
            window->get()->onClickedFileList(id);
            window->get()->onClickedRuleList(id);
        }
        QCOMPARE(window->files()->count(), 1);
        QCOMPARE(window->rules().size(), 1);
    }

    void fileFilterClearButtonClearsTheFilter()
    {
        window->child<QLineEdit>("lineEditFileFilter")->setText(u"*.jpg"_s);
        window->click("buttonFileFilterClear");
        QCOMPARE(window->child<QLineEdit>("lineEditFileFilter")->text(), QString());
    }

    void deleteKeyWithTheFileListFocusedRemovesTheSelectedFiles()
    {
        window->drop(settings->tree.addFiles(u"f%1.txt"_s, 3));
        window->addInsert(u"x"_s);
        window->selectRule(0);
        showActive();
        window->files()->setCurrentRow(1);
        window->files()->setFocus();
        QVERIFY(window->files()->hasFocus());
        QTest::keyClick(window->files(), Qt::Key_Delete);
        QCOMPARE(window->rowTexts(), QStringList({u"f000.txt"_s, u"f002.txt"_s}));
        QCOMPARE(window->rules().size(), 1);
    }

    void deleteKeyWithTheRuleTreeFocusedRemovesTheSelectedRule()
    {
        window->drop(settings->tree.addFiles(u"f%1.txt"_s, 1));
        window->files()->setCurrentRow(0);
        window->addInsert(u"x"_s);
        window->addInsert(u"y"_s);
        window->selectRule(0);
        showActive();
        window->ruleTree()->setFocus();
        QVERIFY(window->ruleTree()->hasFocus());
        QTest::keyClick(window->ruleTree(), Qt::Key_Delete);
        QCOMPARE(window->rules(), QStringList{u"Insert Text: 'y' / Position 0 / Start"_s});
        QCOMPARE(window->files()->count(), 1);
    }

    void deleteKeyElsewhereBehavesAsUsual()
    {
        window->drop(settings->tree.addFiles(u"f%1.txt"_s, 1));
        window->files()->setCurrentRow(0);
        window->addInsert(u"x"_s);
        window->selectRule(0);
        showActive();
        auto *filter = window->child<QLineEdit>("lineEditFileFilter");
        filter->setText(u"abc"_s);
        filter->setFocus();
        filter->setCursorPosition(0);
        QTest::keyClick(filter, Qt::Key_Delete);
        QCOMPARE(filter->text(), u"bc"_s);
        window->preview()->setFocus();
        QTest::keyClick(window->preview(), Qt::Key_Delete);
        QCOMPARE(window->files()->count(), 1);
        QCOMPARE(window->rules().size(), 1);

        QKeyEvent unhandled(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
        QCoreApplication::sendEvent(window->get(), &unhandled);
        QVERIFY(!unhandled.isAccepted());
        window->files()->setFocus();
        QKeyEvent handled(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
        QCoreApplication::sendEvent(window->get(), &handled);
        QVERIFY(handled.isAccepted());
        QKeyEvent otherKey(QEvent::KeyPress, Qt::Key_F7, Qt::NoModifier);
        QCoreApplication::sendEvent(window->get(), &otherKey);
        QVERIFY(!otherKey.isAccepted());
    }

    void languageChangeRetitlesTheExplorerDockRefillsTheRulesAndTheForm()
    {
        const auto *comboBox = window->child<QComboBox>("comboBoxRules");
        QVERIFY(window->chooseKind(TrimKind));
        std::optional<FakeTranslator> translator(mirrored);
        QCoreApplication::processEvents();
        QCOMPARE(window->child<QDockWidget>("dockWidgetExplorer")->windowTitle(), u"rerolpxE eliF"_s);
        QCOMPARE(window->child<QAction>("actionExplorer")->statusTip(), u"rerolpxE eliF"_s);
        QCOMPARE(window->child<QDockWidget>("dockWidgetLog")->windowTitle(), u"goL noitacilppA"_s);
        QCOMPARE(window->child<QPushButton>("buttonRename")->text(), u"emaneR"_s);
        QCOMPARE(comboBox->currentText(), u"mirT"_s);
        translator.reset();
        QCoreApplication::processEvents();
        QCOMPARE(window->child<QDockWidget>("dockWidgetExplorer")->windowTitle(), u"File Explorer"_s);
        QCOMPARE(window->child<QPushButton>("buttonRename")->text(), u"Rename"_s);
        QCOMPARE(comboBox->currentText(), u"Trim"_s);
    }

    void withoutASystemTrayMinimizingToItIsForcedOff()
    {
        QVERIFY(!QSystemTrayIcon::isSystemTrayAvailable());
        SettingsStore::instance()->setValue(SettingKey::MiscMinimizeToTrayIcon, true);
        const DrivenWindow next;
        QCOMPARE(stored(SettingKey::MiscMinimizeToTrayIcon), u"false"_s);
        QVERIFY(!next->findChild<QSystemTrayIcon *>());
    }

    void closeSavesTheSettingsFile()
    {
        window->click("checkBoxDebug");
        QVERIFY(!QFile::exists(settings->tree.path(u"config/global.xml"_s)));
        QVERIFY(window->get()->close());
        QVERIFY(settings->tree.content(u"config/global.xml"_s).contains("<IncludeDebugInfo>true<"));
    }

private:
    void showActive() { QVERIFY(window->showActive()); }
};

QTEST_MAIN(MainWindowCommands)
#include "tst_mainwindow_commands.moc"
