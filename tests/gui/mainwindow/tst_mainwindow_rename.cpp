// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "support/drivenwindow.h"
#include "support/duringevents.h"
#include "support/faketranslator.h"
#include "support/modalanswer.h"

#include "withoutprivileges.h"

#include <QElapsedTimer>
#include <QMap>
#include <QProgressBar>
#include <QTest>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

QString inGerman(QLatin1StringView context, const QString &text)
{
    static const QMap<QString, QString> texts = {{u"Total"_s, u"Gesamt"_s},
                                                 {u"Processed"_s, u"Verarbeitet"_s},
                                                 {u"Failed"_s, u"Fehler"_s},
                                                 {u"Could not rename file"_s, u"Nicht umbenannt"_s},
                                                 {u"File renaming started"_s, u"Los"_s}};
    return context == "MainWindow"_L1 ? texts.value(text) : QString();
}

/// Counts how often a widget is painted.
class PaintCounter final : public QObject
{
public:
    void count(QObject *widget)
    {
        widget->removeEventFilter(this);
        widget->installEventFilter(this);
    }
    [[nodiscard]] int counted() const { return paintings; }

protected:
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        paintings += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    int paintings = 0;
};

} // namespace

/// The run: what happens on disk, in the list, in the log and in the report.
class MainWindowRename : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<DrivenWindow> window;
    std::unique_ptr<BoxAnswerer> boxes;
    TempTree *tree = nullptr;

    /// The numbers of a report.
    static QString report(int total, int processed, int failed)
    {
        return u"Total %1\nProcessed %2\nFailed %3"_s.arg(total).arg(processed).arg(failed);
    }
    void run() const { window->click("buttonRename"); }

private slots:
    void init()
    {
        settings = std::make_unique<TestSettings>();
        tree = &settings->tree;
        window = std::make_unique<DrivenWindow>();
        window->stopLogTimer();
        window->get()->show();
        boxes = std::make_unique<BoxAnswerer>();
    }
    void cleanup()
    {
        QVERIFY(window->pathsAgree());
        QVERIFY(!window->waitDialog());
        boxes.reset();
        window.reset();
        settings.reset();
    }

    void emptyListDoesNothingAtAll()
    {
        window->click("buttonPreview");
        window->addInsert(u"x"_s);
        bool dialogSeen = false;
        {
            const DuringEvents watch([&](int) { dialogSeen |= window->waitDialog() != nullptr; });
            run();
            QCoreApplication::processEvents();
        }
        QVERIFY(!dialogSeen);
        QCOMPARE(DrivenWindow::logLines(), QStringList());
        QCOMPARE(boxes->seen.size(), 0);
        QVERIFY(window->preview()->isChecked());
    }

    void filesAreRenamedAndRowsFollow()
    {
        window->drop({tree->addFile(u"dir/a.txt"_s), tree->addFile(u"dir/b.txt"_s)});
        window->addInsert(u"new "_s);
        run();
        QCOMPARE(tree->names(u"dir"_s), QStringList({u"new a.txt"_s, u"new b.txt"_s}));
        QCOMPARE(tree->content(u"dir/new a.txt"_s), QByteArray("dir/a.txt"));
        QCOMPARE(window->rowPaths(),
                 QStringList({tree->path(u"dir/new a.txt"_s), tree->path(u"dir/new b.txt"_s)}));
        QCOMPARE(window->rowTexts(), QStringList({u"new a.txt"_s, u"new b.txt"_s}));
        QCOMPARE(boxes->seen.constFirst().text, report(2, 2, 0));
        // The second run starts from the new names.
        run();
        QCOMPARE(tree->names(u"dir"_s), QStringList({u"new new a.txt"_s, u"new new b.txt"_s}));
    }

    void everyRuleCountsInTheirOrder()
    {
        window->drop({tree->addFile(u"dir/a.txt"_s)});
        window->addInsert(u"2"_s);
        window->addInsert(u"1"_s);
        run();
        QCOMPARE(tree->names(u"dir"_s), QStringList{u"12a.txt"_s});
    }

    void rowsThatComeShowTheirNameOnDiskWithPreviewUp()
    {
        window->addInsert(u"2"_s);
        window->addInsert(u"1"_s);
        window->drop({tree->addFile(u"dir/a.txt"_s)});
        QCOMPARE(window->rowTexts(), QStringList{u"a.txt"_s});
        window->click("buttonPreview");
        window->drop({tree->addFile(u"dir/b.txt"_s)});
        QCOMPARE(window->rowTexts(), QStringList({u"12a.txt"_s, u"12b.txt"_s}));
    }

    void reportBox()
    {
        window->drop({tree->addFile(u"dir/a.txt"_s)});
        window->addInsert(u"x"_s);
        run();
        QCOMPARE(boxes->seen.size(), 1);
        const SeenBox box = boxes->seen.constFirst();
        QCOMPARE(box.title, u"Report"_s);
        QCOMPARE(box.text, u"Total 1\nProcessed 1\nFailed 0"_s);
        QCOMPARE(box.icon, QMessageBox::Information);
        QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(box.styleSheet, u"QLabel{color:#444;font: bold 10pt}"_s);
        QCOMPARE(box.buttonTexts.value(QMessageBox::Ok), u"Close"_s);
        QVERIFY(box.areIconsOf24);
        const QIcon icon = box.buttonIcons.value(QMessageBox::Ok);
        QVERIFY(!icon.isNull());
        QCOMPARE(icon.pixmap(24).toImage(), QIcon(u":/img/cancel.png"_s).pixmap(24).toImage());
        QCOMPARE(box.parent, window->get());
        QVERIFY(!window->get()->findChild<QMessageBox *>());
    }

    void logLinesOfARun()
    {
        window->drop({tree->addFile(u"dir/a.txt"_s), tree->addFile(u"dir/b.txt"_s)});
        window->addReplace(u"a"_s, u"b"_s);
        run();
        QCOMPARE(DrivenWindow::logLines(),
                 QStringList({u"File renaming started"_s, u"Could not rename file 'a.txt'"_s,
                              u"Could not rename file 'b.txt'"_s, u"Total 2 Processed 0 Failed 2"_s}));
    }

    void textsAreTranslated()
    {
        const FakeTranslator translator(inGerman);
        window->drop({tree->addFile(u"dir/a.txt"_s)});
        run();
        QCOMPARE(boxes->seen.constFirst().text, u"Gesamt 1\nVerarbeitet 0\nFehler 1"_s);
        QCOMPARE(DrivenWindow::logLines(),
                 QStringList({u"Los"_s, u"Nicht umbenannt 'a.txt'"_s, u"Gesamt 1 Verarbeitet 0 Fehler 1"_s}));
    }

    void percentSignsInANameAreLoggedAsTheyAre()
    {
        window->drop({tree->addFile(u"dir/%1 %2 'q'.txt"_s)});
        run();
        QCOMPARE(DrivenWindow::logLines().at(1), u"Could not rename file '%1 %2 'q'.txt'"_s);
    }

    void unchangedNameCountsAsFailed()
    {
        window->drop({tree->addFile(u"dir/a.txt"_s)});
        run();
        QCOMPARE(boxes->seen.constFirst().text, report(1, 0, 1));
        QCOMPARE(DrivenWindow::logLines().at(1), u"Could not rename file 'a.txt'"_s);
        QCOMPARE(tree->content(u"dir/a.txt"_s), QByteArray("dir/a.txt"));
        QCOMPARE(window->rowPaths(), QStringList{tree->path(u"dir/a.txt"_s)});
    }

    void twoRowsWithTheSameNewNameTheFirstSucceedsTheSecondFails()
    {
        window->drop({tree->addFile(u"dir/a1.txt"_s), tree->addFile(u"dir/a2.txt"_s)});
        window->addReplace(u"\\d"_s, {}, true);
        run();
        QCOMPARE(tree->names(u"dir"_s), QStringList({u"a.txt"_s, u"a2.txt"_s}));
        QCOMPARE(tree->content(u"dir/a.txt"_s), QByteArray("dir/a1.txt"));
        QCOMPARE(window->rowPaths(), QStringList({tree->path(u"dir/a.txt"_s), tree->path(u"dir/a2.txt"_s)}));
        QCOMPARE(boxes->seen.constFirst().text, report(2, 1, 1));
        QCOMPARE(DrivenWindow::logLines().at(1), u"Could not rename file 'a2.txt'"_s);
    }

    void sameNewNameInTwoFoldersSucceedsTwice()
    {
        window->drop({tree->addFile(u"one/a1"_s), tree->addFile(u"two/a2"_s)});
        window->addReplace(u"\\d"_s, {}, true);
        run();
        QCOMPARE(boxes->seen.constFirst().text, report(2, 2, 0));
        QCOMPARE(tree->names(u"two"_s), QStringList{u"a"_s});
    }

    void whatTheFileSystemRefusesIsCountedAndTheRunGoesOn_data()
    {
        QTest::addColumn<QString>("newName");
        QTest::newRow("empty") << QString();
        QTest::newRow("too long") << u"x"_s.repeated(256);
        QTest::newRow("folder that does not exist") << u"nowhere/a"_s;
        QTest::newRow("a folder in the way") << u"folder"_s;
        QTest::newRow("the folder itself") << u"."_s;
        QTest::newRow("the folder above") << u".."_s;
        QTest::newRow("a dangling link in the way") << u"dangling"_s;
        QTest::newRow("a link to the file in the way") << u"link"_s;
        QTest::newRow("a file in the way") << u"other"_s;
        QTest::newRow("a trailing separator") << u"name/"_s;
        QTest::newRow("a file as folder") << u"other/name"_s;
        QTest::newRow("its own name in another letter case, a link to it") << u"A"_s;
    }

    void whatTheFileSystemRefusesIsCountedAndTheRunGoesOn()
    {
        QFETCH(QString, newName);
        const QString first = tree->addFile(u"dir/a"_s);
        const QString last = tree->addFile(u"dir/z"_s);
        tree->addFile(u"dir/other"_s);
        tree->addFolder(u"dir/folder"_s);
        tree->addLink(u"dir/dangling"_s, tree->path(u"dir/target"_s));
        tree->addLink(u"dir/link"_s, first);
        // Where letter case does not count, this would replace the file.
        if (newName == u"A"_s)
            tree->addLink(u"dir/A"_s, first);
        const QStringList before = tree->names(u"dir"_s);
        window->drop({first, last});
        window->addReplace(u"^a$"_s, newName, true);
        window->addReplace(u"^z$"_s, u"moved"_s, true);
        run();
        QCOMPARE(boxes->seen.constFirst().text, report(2, 1, 1));
        QStringList expected = before;
        expected.replace(expected.indexOf(u"z"_s), u"moved"_s);
        expected.sort();
        QStringList after = tree->names(u"dir"_s);
        after.sort();
        QCOMPARE(after, expected);
        QCOMPARE(tree->content(u"dir/a"_s), QByteArray("dir/a"));
        QCOMPARE(tree->content(u"dir/other"_s), QByteArray("dir/other"));
        QCOMPARE(window->rowPaths(), QStringList({first, tree->path(u"dir/moved"_s)}));
    }

    void linkThatDiffersFromItsFileInLetterCaseReplacesNothing()
    {
        const QString file = tree->addFile(u"dir/a"_s);
        const QString link = tree->addLink(u"dir/A"_s, u"a"_s);
        window->drop({link});
        window->addChangeCase(&RuleWidgetChangeCase::radioButtonLower, false);
        run();
        QCOMPARE(boxes->seen.constFirst().text, report(1, 0, 1));
        QCOMPARE(tree->content(u"dir/a"_s), QByteArray("dir/a"));
        QVERIFY(!QFileInfo(file).isSymLink());
        QVERIFY(QFileInfo(link).isSymLink());
    }

    void letterCaseAloneIsARename()
    {
        window->drop({tree->addFile(u"dir/A.txt"_s)});
        window->addChangeCase(&RuleWidgetChangeCase::radioButtonLower);
        run();
        QCOMPARE(tree->names(u"dir"_s), QStringList{u"a.txt"_s});
        QCOMPARE(boxes->seen.constFirst().text, report(1, 1, 0));
    }

    void nameWithAnExistingFolderMovesTheFileThere()
    {
        tree->addFolder(u"dir/sub"_s);
        window->drop({tree->addFile(u"dir/a"_s)});
        window->addInsert(u"sub/"_s);
        run();
        QCOMPARE(tree->content(u"dir/sub/a"_s), QByteArray("dir/a"));
        QCOMPARE(window->rowPaths(), QStringList{tree->path(u"dir/sub/a"_s)});
    }

    void vanishedFilesAreCountedAndLogged()
    {
        const QStringList paths = tree->addFiles(u"dir/%1"_s, 3);
        window->drop(paths);
        window->addInsert(u"x"_s);
        QVERIFY(QFile::remove(paths.at(1)));
        run();
        QCOMPARE(boxes->seen.constFirst().text, report(3, 2, 1));
        QCOMPARE(DrivenWindow::logLines().at(1), u"Could not rename file '001'"_s);
        QCOMPARE(window->rowPaths().at(1), paths.at(1));
    }

    void folderThatMayNotBeWrittenFailsEveryFile()
    {
        const QStringList paths = tree->addFiles(u"dir/%1"_s, 3);
        window->drop(paths);
        window->addInsert(u"x"_s);
        const auto readable = WithoutPrivileges::readable;
        QVERIFY(QFile::setPermissions(tree->path(), readable | QFile::WriteOwner));
        QVERIFY(QFile::setPermissions(tree->path(u"dir"_s), readable));
        {
            const WithoutPrivileges drop;
            QVERIFY(QFile::exists(paths.at(0)));
            run();
        }
        QVERIFY(QFile::setPermissions(tree->path(u"dir"_s), readable | QFile::WriteOwner));
        QCOMPARE(boxes->seen.constFirst().text, report(3, 0, 3));
        QCOMPARE(tree->names(u"dir"_s), QStringList({u"000"_s, u"001"_s, u"002"_s}));
    }

    void cancelAfterTheThirdOfTenHandlesFour_data()
    {
        QTest::addColumn<int>("failing");
        QTest::newRow("no failure") << -1;
        QTest::newRow("the second fails") << 1;
        QTest::newRow("the fourth fails") << 3;
        QTest::newRow("the fifth would fail") << 4;
    }

    void cancelAfterTheThirdOfTenHandlesFour()
    {
        QFETCH(int, failing);
        const QStringList paths = tree->addFiles(u"dir/%1"_s, 10);
        window->drop(paths);
        window->addInsert(u"x"_s);
        if (failing >= 0)
            QVERIFY(QFile::remove(paths.at(failing)));
        {
            const DuringEvents cancel([&](int pass) {
                if (pass == 3)
                    QTest::mouseClick(window->waitDialog()->buttonCancel, Qt::LeftButton);
            });
            run();
        }
        const int failed = failing >= 0 && failing < 4 ? 1 : 0;
        QCOMPARE(boxes->seen.constFirst().text, report(10, 3 - failed, failed));
        QCOMPARE(DrivenWindow::logLines().constLast(), report(10, 3 - failed, failed).replace(u'\n', u' '));
        for (int row = 0; row < 10; ++row) {
            const bool moved = row < 4 && row != failing;
            const QString name = (moved ? u"dir/x%1"_s : u"dir/%1"_s).arg(row, 3, 10, QChar(u'0'));
            QCOMPARE(window->rowPaths().at(row), tree->path(name));
            QCOMPARE(QFile::exists(tree->path(name)), row != failing);
        }
    }

    void barFollowsTheRunAndNeverReaches100()
    {
        window->drop(tree->addFiles(u"dir/%1"_s, 8));
        window->addInsert(u"x"_s);
        QList<int> bars;
        {
            const DuringEvents watch([&](int) {
                const ProgressDialog *dialog = window->waitDialog();
                if (!dialog || !dialog->isVisible())
                    return;
                QCOMPARE(dialog->windowTitle(), u"Please wait"_s);
                QCOMPARE(dialog->stackedWidget->currentIndex(), 0);
                QCOMPARE(dialog->mode, 1);
                QCOMPARE(dialog->total, 8);
                QVERIFY(dialog->isModal());
                bars.append(dialog->progressBar->value());
            });
            run();
        }
        QCOMPARE(bars, QList<int>({0, 12, 25, 37, 50, 62, 75, 87}));
    }

    void barIsNotPaintedForEachFile()
    {
        // Few files are renamed before the bar is due for the first time.
        window->drop(tree->addFiles(u"dir/%1"_s, 3000));
        window->addInsert(u"x"_s);
        PaintCounter paintings;
        QElapsedTimer clock;
        {
            const DuringEvents watch([&](int) {
                const ProgressDialog *dialog = window->waitDialog();
                if (!dialog || !dialog->isVisible())
                    return;
                paintings.count(dialog->progressBar);
                if (!clock.isValid())
                    clock.start();
                // However fast the machine is, the run lasts until the bar may be painted again.
                while (dialog->current == 200 && !clock.hasExpired(41))
                    QThread::yieldCurrentThread();
            });
            run();
        }
        // One in 40 ms at most, beside those that the window system asks for at the beginning.
        QVERIFY(paintings.counted() > 0);
        QVERIFY2(paintings.counted() <= 4 + clock.elapsed() / 40,
                 qPrintable(QString::number(paintings.counted())));
    }

    void previewIsUpAfterTheRunAndTheListShowsTheNamesOnDisk()
    {
        window->drop({tree->addFile(u"dir/a"_s), tree->addFile(u"dir/b"_s)});
        window->addEnumerate(1);
        window->click("buttonPreview");
        const QStringList shown = window->rowTexts();
        QCOMPARE(shown, QStringList({u"1a"_s, u"2b"_s}));
        run();
        QVERIFY(!window->preview()->isChecked());
        QCOMPARE(window->rowTexts(), shown);
        QCOMPARE(tree->names(u"dir"_s), shown);
    }

    void previewIsReleasedBeforeTheFirstFile()
    {
        window->drop(tree->addFiles(u"dir/%1"_s, 2));
        window->addInsert(u"x"_s);
        window->click("buttonPreview");
        QList<bool> checked;
        {
            const DuringEvents watch([&](int) { checked.append(window->preview()->isChecked()); });
            run();
        }
        QVERIFY(checked.size() >= 2);
        QVERIFY(!checked.contains(true));
    }

    void fullPathsAreShownAfterTheRun()
    {
        window->click("checkBoxShowFullPath");
        const QString path = tree->addFile(u"dir/a"_s);
        window->get()->addPath(tree->path(u"dir//a"_s));
        window->addInsert(u"x"_s);
        run();
        QCOMPARE(window->rowTexts(), QStringList{tree->path(u"dir/xa"_s)});
        QVERIFY(!QFile::exists(path));
    }

    void rowTextsStayUntilTheRunEnds()
    {
        window->drop(tree->addFiles(u"dir/%1"_s, 3));
        window->addInsert(u"x"_s);
        const QStringList before = window->rowTexts();
        {
            const DuringEvents watch([&](int pass) {
                if (pass <= 3)
                    QCOMPARE(window->rowTexts(), before);
            });
            run();
        }
        QCOMPARE(window->rowTexts(), QStringList({u"x000"_s, u"x001"_s, u"x002"_s}));
    }
};

QTEST_MAIN(MainWindowRename)
#include "tst_mainwindow_rename.moc"
