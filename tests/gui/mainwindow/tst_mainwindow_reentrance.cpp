// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "support/drivenwindow.h"
#include "support/duringevents.h"
#include "support/environment.h"
#include "support/faketranslator.h"
#include "support/modalanswer.h"

#include <QRandomGenerator>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

QString inBrackets(QLatin1StringView /*context*/, const QString &text)
{
    return u"<%1>"_s.arg(text);
}

} // namespace

/// What a user does while a run or an adding processes events: nothing crashes, nothing is lost, and the list
/// still knows its rows.
class MainWindowReentrance : public QObject
{
    Q_OBJECT

private:
    using Action = std::function<void()>;

    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<DrivenWindow> window;
    std::unique_ptr<BoxAnswerer> boxes;
    TempTree *tree = nullptr;
    static constexpr int fileCount = 12;

    /// Everything that can reach the window while it works, by name.
    [[nodiscard]] QMap<QString, Action> actions()
    {
        MainWindow *w = window->get();
        const auto dialog = [this](const std::function<void(ProgressDialog *)> &what) {
            return [this, what] {
                if (ProgressDialog *open = window->waitDialog())
                    what(open);
            };
        };
        return {
            {u"cancel"_s, dialog([](ProgressDialog *d) { d->buttonCancel->click(); })},
            {u"close the dialog"_s, dialog([](ProgressDialog *d) { d->close(); })},
            {u"cancel twice"_s, dialog([](ProgressDialog *d) {
                 d->buttonCancel->click();
                 d->reject();
             })},
            {u"show the dialog again"_s, dialog([](ProgressDialog *d) {
                 d->hide();
                 d->show();
             })},
            {u"drop files"_s,
             [this] {
                 window->drop({tree->path(u"more/m000"_s), tree->path(u"gone"_s)});
             }},
            {u"drop a folder"_s,
             [this] {
                 window->drop({tree->path(u"more"_s)});
             }},
            {u"drop the same folder"_s,
             [this] {
                 window->drop({tree->path(u"dir"_s)});
             }},
            {u"clear the list"_s,
             [this] {
                 window->click("buttonFileListClear");
             }},
            {u"remove the first row"_s,
             [this] {
                 window->files()->setCurrentRow(0);
                 window->click("buttonFileListRemove");
             }},
            {u"remove all rows"_s,
             [this] {
                 window->files()->setCurrentRow(0);
                 window->files()->selectAll();
                 window->click("buttonFileListRemove");
             }},
            {u"move rows"_s,
             [this] {
                 window->files()->setCurrentRow(window->files()->count() - 1);
                 window->click("buttonFileListUp");
                 window->files()->setCurrentRow(0);
                 window->click("buttonFileListDown");
             }},
            {u"rename"_s,
             [w] {
                 w->on_buttonRename_clicked();
             }},
            {u"preview"_s,
             [this] {
                 window->click("buttonPreview");
             }},
            {u"full path"_s,
             [this] {
                 window->click("checkBoxShowFullPath");
             }},
            {u"add a rule"_s,
             [this] {
                 window->addInsert(u"y"_s);
             }},
            {u"add an enumeration"_s,
             [this] {
                 window->addEnumerate(0);
             }},
            {u"remove a rule"_s,
             [this] {
                 if (window->ruleTree()->topLevelItemCount() > 0)
                     window->selectRule(0);
                 window->click("buttonRuleListRemove");
             }},
            {u"clear the rules"_s,
             [this] {
                 window->click("buttonRuleListClear");
             }},
            {u"close the window"_s,
             [w] {
                 w->close();
             }},
            {u"close and show the window"_s,
             [w] {
                 w->close();
                 w->show();
             }},
            {u"change the language"_s,
             [] {
                 const FakeTranslator translator(inBrackets);
                 QCoreApplication::processEvents();
             }},
            {u"tick"_s,
             [w] {
                 w->onTimeout();
             }},
        };
    }

    void rows(bool whileRunning) const
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<int>("pass");
        const QList<int> passes = whileRunning ? QList<int>{1, 5, fileCount}
                                               : QList<int>{1, fileCount, fileCount + 1, 2 * fileCount};
        for (const QString &action : {u"cancel"_s,
                                      u"close the dialog"_s,
                                      u"cancel twice"_s,
                                      u"drop files"_s,
                                      u"drop a folder"_s,
                                      u"drop the same folder"_s,
                                      u"clear the list"_s,
                                      u"remove the first row"_s,
                                      u"remove all rows"_s,
                                      u"move rows"_s,
                                      u"rename"_s,
                                      u"preview"_s,
                                      u"full path"_s,
                                      u"add a rule"_s,
                                      u"add an enumeration"_s,
                                      u"remove a rule"_s,
                                      u"clear the rules"_s,
                                      u"close the window"_s,
                                      u"close and show the window"_s,
                                      u"change the language"_s,
                                      u"tick"_s,
                                      u"show the dialog again"_s}) {
            for (const int pass : passes)
                QTest::addRow("%s in pass %d", qPrintable(action), pass) << action << pass;
        }
    }

    /// The contents of all files below the tree, sorted.
    [[nodiscard]] QByteArrayList contents() const
    {
        QByteArrayList result;
        for (const QString &folder : {u"dir"_s, u"more"_s}) {
            for (const QString &name : tree->names(folder))
                result.append(tree->content(folder + u'/' + name));
        }
        std::sort(result.begin(), result.end());
        return result;
    }

    /// What must hold whatever was done meanwhile.
    void checkAll(const QByteArrayList &expectedContents)
    {
        QCoreApplication::processEvents();
        QVERIFY(window->pathsAgree({tree->path(u"dir/f000"_s), tree->path(u"dir/xf000"_s),
                                    tree->path(u"more/m000"_s), tree->path(u"gone"_s)}));
        QCOMPARE(contents(), expectedContents);
        QVERIFY(!window->waitDialog());
        QVERIFY(!QApplication::activeModalWidget());
        // Rows show what their paths and the chain make of them.
        const QStringList texts = window->rowTexts();
        window->get()->on_buttonPreview_clicked();
        if (!window->preview()->isChecked())
            QCOMPARE(window->rowTexts(), texts);
        // The window still works.
        window->click("buttonFileListClear");
        window->drop({tree->path(u"more"_s)});
        QCOMPARE(window->files()->count(), 3);
    }

private slots:
    void init()
    {
        settings = std::make_unique<TestSettings>();
        tree = &settings->tree;
        window = std::make_unique<DrivenWindow>();
        window->get()->show();
        boxes = std::make_unique<BoxAnswerer>();
        tree->addFiles(u"dir/f%1"_s, fileCount);
        tree->addFiles(u"more/m%1"_s, 3);
        // Every name without a dot, too.
        window->child<QLineEdit>("lineEditFileFilter")->setText(u"*"_s);
        window->addInsert(u"x"_s);
    }
    void cleanup()
    {
        boxes.reset();
        window.reset();
        settings.reset();
    }

    void duringARun_data() { rows(true); }
    void duringARun()
    {
        QFETCH(QString, action);
        QFETCH(int, pass);
        window->drop({tree->path(u"dir"_s)});
        const QByteArrayList before = contents();
        bool done = false;
        {
            const Action act = actions().value(action);
            const DuringEvents during([&](int current) {
                if (current == pass) {
                    act();
                    done = true;
                }
            });
            window->click("buttonRename");
        }
        QVERIFY(done);
        QVERIFY(!boxes->seen.isEmpty());
        boxes->seen.clear();
        // Only whole names of a chain may appear: nothing was renamed by half a chain.
        for (const QString &name : tree->names(u"dir"_s))
            QVERIFY2(name.contains(u"f0"_s), qPrintable(name));
        checkAll(before);
    }

    void duringAnAdding_data() { rows(false); }
    void duringAnAdding()
    {
        QFETCH(QString, action);
        QFETCH(int, pass);
        const QByteArrayList before = contents();
        bool done = false;
        {
            const Action act = actions().value(action);
            const DuringEvents during([&](int current) {
                if (current == pass) {
                    act();
                    done = true;
                }
            });
            window->drop({tree->path(u"dir"_s)});
        }
        QVERIFY(done);
        checkAll(before);
    }

    void droppingTheSameFolderWhileItIsAddedLeavesEachFileOnce()
    {
        {
            const DuringEvents during([&](int pass) {
                if (pass == fileCount + 3)
                    window->drop({tree->path(u"dir"_s)});
            });
            window->drop({tree->path(u"dir"_s)});
        }
        QStringList paths = window->rowPaths();
        QCOMPARE(paths.size(), fileCount);
        QCOMPARE(paths.removeDuplicates(), 0);
    }

    void filesDroppedDuringARunAreRenamedToo()
    {
        window->drop({tree->path(u"dir"_s)});
        {
            const DuringEvents during([&](int pass) {
                if (pass == 2)
                    window->drop({tree->path(u"more"_s)});
            });
            window->click("buttonRename");
        }
        QCOMPARE(boxes->seen.constFirst().text, u"Total 15\nProcessed 15\nFailed 0"_s);
        QCOMPARE(tree->names(u"more"_s), QStringList({u"xm000"_s, u"xm001"_s, u"xm002"_s}));
    }

    void listClearedDuringARunEndsIt()
    {
        window->drop({tree->path(u"dir"_s)});
        {
            const DuringEvents during([&](int pass) {
                if (pass == 4)
                    window->click("buttonFileListClear");
            });
            window->click("buttonRename");
        }
        QCOMPARE(boxes->seen.constFirst().text, u"Total 0\nProcessed 4\nFailed 0"_s);
    }

    void renameDuringARunIsARunOfItsOwn()
    {
        window->drop({tree->path(u"dir"_s)});
        {
            const DuringEvents during([&](int pass) {
                if (pass == 4)
                    window->get()->on_buttonRename_clicked();
            });
            window->click("buttonRename");
        }
        QCOMPARE(boxes->seen.size(), 2);
        QCOMPARE(boxes->seen.at(0).text, u"Total 12\nProcessed 12\nFailed 0"_s);
        QCOMPARE(boxes->seen.at(1).text, u"Total 12\nProcessed 12\nFailed 0"_s);
        for (const QString &name : tree->names(u"dir"_s))
            QVERIFY2(name.startsWith(u"xxf"_s), qPrintable(name));
    }

    void fileDeletedDuringARunFails_data()
    {
        QTest::addColumn<int>("pass");
        QTest::addColumn<int>("failed");
        QTest::newRow("before its turn") << 5 << 1;
        QTest::newRow("after its turn") << fileCount << 0;
    }

    void fileDeletedDuringARunFails()
    {
        QFETCH(int, pass);
        QFETCH(int, failed);
        window->drop({tree->path(u"dir"_s)});
        {
            const DuringEvents during([&](int current) {
                if (current == pass)
                    QVERIFY(QFile::remove(window->files()->path(fileCount - 1)));
            });
            window->click("buttonRename");
        }
        QCOMPARE(boxes->seen.constFirst().text,
                 u"Total 12\nProcessed %1\nFailed %2"_s.arg(fileCount - failed).arg(failed));
        QVERIFY(window->pathsAgree());
    }

    void leavingTheProgramWhileItWorks_data()
    {
        QTest::addColumn<bool>("quit");
        QTest::addColumn<bool>("running");
        QTest::newRow("quit during a run") << true << true;
        QTest::newRow("quit during an adding") << true << false;
        QTest::newRow("window closed during a run") << false << true;
        QTest::newRow("window closed during an adding") << false << false;
    }

    void leavingTheProgramWhileItWorks()
    {
        QFETCH(bool, quit);
        QFETCH(bool, running);
        const QByteArrayList before = contents();
        if (running)
            window->drop({tree->path(u"dir"_s)});
        bool workEnded = false;
        QTimer::singleShot(0, window->get(), [&] {
            const DuringEvents during([&](int pass) {
                if (pass != 5)
                    return;
                if (quit)
                    QCoreApplication::quit();
                else
                    window->get()->close();
            });
            if (running)
                window->click("buttonRename");
            else
                window->drop({tree->path(u"dir"_s)});
            workEnded = true;
        });
        // Ends when the last window is gone; the work on the stack has come to its end before.
        QApplication::exec();
        QVERIFY(workEnded);
        QVERIFY(window->get()->isHidden());
        QVERIFY(window->pathsAgree());
        QCOMPARE(contents(), before);
        QVERIFY(!window->waitDialog());
    }

    void storm()
    {
        QRandomGenerator random(randomSeed());
        const QList<Action> choices = actions().values();
        const QByteArrayList before = contents();
        for (int round = 0; round < 60; ++round) {
            // Nested work may process events and be disturbed in its turn; a budget ends it.
            int budget = 25;
            const DuringEvents during([&](int) {
                if (budget > 0 && random.bounded(2) == 0) {
                    --budget;
                    choices.at(random.bounded(static_cast<int>(choices.size())))();
                }
            });
            window->drop({tree->path(u"dir"_s), tree->path(u"more"_s)});
            window->click("buttonRename");
            QVERIFY(window->pathsAgree());
            QCOMPARE(contents(), before);
        }
        window->get()->show();
    }
};

QTEST_MAIN(MainWindowReentrance)
#include "tst_mainwindow_reentrance.moc"
