// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/pathlength.h"
#include "support/drivenwindow.h"
#include "support/duringevents.h"

#include "deepfolders.h"

#include <QChildEvent>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QTest>
#include <QVBoxLayout>

#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

/// Counts the wait dialogs that are built as children of a window.
class DialogCounter : public QObject
{
public:
    explicit DialogCounter(QObject *window) { window->installEventFilter(this); }
    int built = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        // The child is only half made at this time: all that is known is that it is a widget.
        if (event->type() == QEvent::ChildAdded && static_cast<QChildEvent *>(event)->child()->isWidgetType())
            ++built;
        return false;
    }
};

/// What the wait dialog showed in one pass of event processing.
struct Glimpse
{
    bool shown = false;
    int page = -1;
    int bar = -1;
    QString label;
    QString title;
};

} // namespace

/// Adding files and folders: the wait dialog, its pages and its Cancel button.
class MainWindowAdding : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<DrivenWindow> window;
    TempTree *tree = nullptr;

    [[nodiscard]] Glimpse glimpse() const
    {
        const ProgressDialog *dialog = window->waitDialog();
        if (!dialog)
            return {};
        return {dialog->isVisible(), dialog->stackedWidget->currentIndex(), dialog->progressBar->value(),
                dialog->labelText->text(), dialog->windowTitle()};
    }
    /// What the wait dialog showed while the paths were dropped.
    [[nodiscard]] QList<Glimpse> dropAndWatch(const QStringList &paths) const
    {
        QList<Glimpse> seen;
        const DuringEvents watch([&](int) { seen.append(glimpse()); });
        window->drop(paths);
        return seen;
    }
    void clickCancel() const { QTest::mouseClick(window->waitDialog()->buttonCancel, Qt::LeftButton); }

private slots:
    void init()
    {
        settings = std::make_unique<TestSettings>();
        tree = &settings->tree;
        window = std::make_unique<DrivenWindow>();
        window->get()->show();
        QVERIFY(QTest::qWaitForWindowExposed(window->get()));
    }
    void cleanup()
    {
        QVERIFY(window->pathsAgree());
        QVERIFY(!window->waitDialog());
        window.reset();
        settings.reset();
    }

    void waitDialogIsMadeAsItShouldBe()
    {
        const ProgressDialog dialog(window->get());
        QCOMPARE(dialog.size(), QSize(320, 110));
        QVERIFY(dialog.isModal());
        QVERIFY(dialog.isHidden());
        QVERIFY(!(dialog.windowFlags() & Qt::WindowContextHelpButtonHint));
        QCOMPARE(dialog.styleSheet(), u"QLabel,QProgressBar{font:bold 11pt;color:#444}"_s);
        QCOMPARE(dialog.buttonCancel->text(), u"Cancel"_s);
        QCOMPARE(dialog.buttonCancel->iconSize(), QSize(24, 24));
        QVERIFY(!dialog.buttonCancel->icon().isNull());
        QCOMPARE(dialog.buttonCancel->icon().pixmap(24).toImage(),
                 QIcon(u":/img/cancel.png"_s).pixmap(24).toImage());
        QCOMPARE(dialog.buttonCancel->sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
        QCOMPARE(dialog.stackedWidget->count(), 2);
        QCOMPARE(dialog.stackedWidget->currentIndex(), 0);
        QVERIFY(dialog.stackedWidget->widget(0)->isAncestorOf(dialog.progressBar));
        QVERIFY(dialog.stackedWidget->widget(1)->isAncestorOf(dialog.labelText));
        QVERIFY(qobject_cast<QHBoxLayout *>(dialog.stackedWidget->widget(0)->layout()));
        QVERIFY(qobject_cast<QHBoxLayout *>(dialog.stackedWidget->widget(1)->layout()));
        QCOMPARE(dialog.progressBar->minimum(), 0);
        QCOMPARE(dialog.progressBar->maximum(), 100);
        const auto *layout = qobject_cast<QVBoxLayout *>(dialog.layout());
        QVERIFY(layout);
        QCOMPARE(layout->count(), 2);
        const auto *gear = qobject_cast<QLabel *>(layout->itemAt(0)->layout()->itemAt(0)->widget());
        QVERIFY(gear && !gear->pixmap().isNull());
        QCOMPARE(gear->pixmap().toImage(), QPixmap(u":/img/gear.png"_s).toImage());
        QCOMPARE(layout->itemAt(0)->layout()->itemAt(1)->widget(), dialog.stackedWidget);
        QLayout *second = layout->itemAt(1)->layout();
        QCOMPARE(second->count(), 3);
        QCOMPARE(second->itemAt(1)->widget(), dialog.buttonCancel);
    }

    void progress_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("total");
        QTest::addColumn<int>("current");
        QTest::addColumn<int>("bar");
        QTest::newRow("none") << 1 << 10 << 0 << 0;
        QTest::newRow("rounded down") << 1 << 3 << 2 << 66;
        QTest::newRow("all") << 1 << 10 << 10 << 100;
        QTest::newRow("more than all") << 1 << 10 << 25 << 100;
        QTest::newRow("no total") << 1 << 0 << 5 << 0;
        QTest::newRow("negative total") << 1 << -1 << 5 << 0;
        QTest::newRow("beyond 32 bits") << 1 << 100000000 << 50000000 << 50;
        QTest::newRow("text mode") << 2 << 10 << 5 << 42;
        QTest::newRow("mode 0 is text mode") << 0 << 10 << 5 << 42;
    }

    void progress()
    {
        QFETCH(int, mode);
        QFETCH(int, total);
        QFETCH(int, current);
        QFETCH(int, bar);
        ProgressDialog dialog(window->get());
        dialog.progressBar->setValue(42);
        dialog.mode = mode;
        dialog.total = total;
        dialog.setProgress(current);
        QCOMPARE(dialog.current, current);
        QCOMPARE(dialog.progressBar->value(), bar);
    }

    void cancelMerelyHidesTheDialog()
    {
        ProgressDialog dialog(window->get());
        dialog.show();
        QVERIFY(!dialog.isHidden());
        QTest::mouseClick(dialog.buttonCancel, Qt::LeftButton);
        QVERIFY(dialog.isHidden());
        QCOMPARE(dialog.result(), int{QDialog::Rejected});
    }

    void oneFileBuildsNoDialogAtAll()
    {
        const DialogCounter counter(window->get());
        const auto seen = dropAndWatch({tree->addFile(u"a.txt"_s)});
        QCOMPARE(seen.size(), 1);
        QCOMPARE(counter.built, 0);
        QCOMPARE(window->files()->count(), 1);
    }

    void manySingleFilesBuildNoDialogEither()
    {
        const DialogCounter counter(window->get());
        const auto seen = dropAndWatch(tree->addFiles(u"%1.txt"_s, 20));
        // Events are processed after each of them.
        QCOMPARE(seen.size(), 20);
        QCOMPARE(counter.built, 0);
        QCOMPARE(window->files()->count(), 20);
    }

    void folderShowsTheLabelPageWhileScanningThenTheBar()
    {
        tree->addFiles(u"folder/%1.txt"_s, 4);
        const DialogCounter counter(window->get());
        const auto seen = dropAndWatch({tree->path(u"folder"_s)});
        QCOMPARE(counter.built, 1);
        QCOMPARE(seen.size(), 8);
        for (const Glimpse &moment : seen) {
            QVERIFY(moment.shown);
            QCOMPARE(moment.title, u"Please wait"_s);
        }
        for (int i = 0; i < 4; ++i)
            QCOMPARE(seen.at(i).page, 1);
        QCOMPARE(seen.at(0).label, u"Acquire files : 1"_s);
        const QList<int> bars = {0, 25, 50, 75};
        for (int i = 0; i < 4; ++i) {
            QCOMPARE(seen.at(4 + i).page, 0);
            QCOMPARE(seen.at(4 + i).bar, bars.at(i));
            // The last count, whatever was skipped meanwhile.
            QCOMPARE(seen.at(4 + i).label, u"Acquire files : 4"_s);
        }
    }

    void twoFilesInAFolderShowTheBar()
    {
        tree->addFiles(u"folder/%1.txt"_s, 2);
        const auto seen = dropAndWatch({tree->path(u"folder"_s)});
        QCOMPARE(seen.size(), 4);
        QCOMPARE(seen.at(2).page, 0);
        QVERIFY(seen.at(2).shown);
        QCOMPARE(seen.at(3).bar, 50);
    }

    void oneFileInAFolderStaysOnTheLabelPage()
    {
        tree->addFiles(u"folder/%1.txt"_s, 1);
        const auto seen = dropAndWatch({tree->path(u"folder"_s)});
        QCOMPARE(seen.size(), 2);
        for (const Glimpse &moment : seen) {
            QVERIFY(moment.shown);
            QCOMPARE(moment.page, 1);
        }
        QCOMPARE(window->files()->count(), 1);
    }

    void emptyFolderShowsTheLabelPageAndAddsNothing()
    {
        const DialogCounter counter(window->get());
        tree->addFolder(u"folder"_s);
        window->drop({tree->path(u"folder"_s)});
        QCOMPARE(counter.built, 1);
        QCOMPARE(window->files()->count(), 0);
    }

    void cancelledScanStillAddsWhatItFoundWithTheDialogShownAgain()
    {
        tree->addFiles(u"folder/%1.txt"_s, 50);
        QList<Glimpse> seen;
        {
            const DuringEvents watch([&](int pass) {
                seen.append(glimpse());
                if (pass == 7)
                    clickCancel();
            });
            window->drop({tree->path(u"folder"_s)});
        }
        QCOMPARE(window->files()->count(), 7);
        QCOMPARE(seen.size(), 14);
        for (int i = 7; i < 14; ++i) {
            QVERIFY(seen.at(i).shown);
            QCOMPARE(seen.at(i).page, 0);
        }
    }

    void filesOfADroppedFolderComeInNaturalOrder()
    {
        const QStringList inOrder = {u"IMG_1.JPG"_s, u"IMG_2.JPG"_s,   u"IMG_10.JPG"_s, u"9/b.txt"_s,
                                     u"9/c.txt"_s,   u"9/sub/x.txt"_s, u"10/a.txt"_s};
        for (const int i : {4, 6, 2, 0, 5, 1, 3})
            tree->addFile(u"folder/"_s + inOrder.at(i));
        const QString first = tree->addFile(u"z.txt"_s);
        const QString last = tree->addFile(u"a.txt"_s);
        window->drop({first, tree->path(u"folder"_s), last});
        QStringList expected = {first};
        for (const QString &name : inOrder)
            expected.append(tree->path(u"folder/"_s + name));
        QCOMPARE(window->rowPaths(), expected << last);
    }

    void clickIsAnsweredWhateverMatches_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::newRow("nothing matches") << u"*.nosuch"_s;
        QTest::newRow("one matches") << u"5000.txt"_s;
    }

    void clickIsAnsweredWhateverMatches()
    {
        QFETCH(QString, filter);
        tree->addFiles(u"folder/%1.txt"_s, 20000);
        window->child<QLineEdit>("lineEditFileFilter")->setText(filter);
        int passes = 0;
        QElapsedTimer timer;
        timer.start();
        {
            const DuringEvents watch([&](int pass) { passes = pass; });
            window->drop({tree->path(u"folder"_s)});
        }
        // On average: other programs may hold up a single one.
        const qint64 wait = timer.elapsed() / (passes + 1);
        QVERIFY2(passes > 0 && wait < 50, qPrintable(u"%1 passes, %2 ms"_s.arg(passes).arg(wait)));
    }

    void scanWithoutMatchesCanBeCancelled()
    {
        tree->addFiles(u"folder/%1.txt"_s, 20000);
        window->child<QLineEdit>("lineEditFileFilter")->setText(u"*.nosuch"_s);
        int passes = 0;
        const DuringEvents watch([&](int pass) {
            passes = pass;
            if (pass == 1)
                clickCancel();
        });
        window->drop({tree->path(u"folder"_s)});
        QCOMPARE(passes, 1);
        QCOMPARE(window->files()->count(), 0);
    }

    void foldersBeyondTheLongestPathAreLoggedOnce()
    {
        const QString name = QString(200, u'd');
        tree->addFile(u"folder/a.txt"_s);
        tree->addFile(u"folder/b.txt"_s);
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(tree->path(u"folder"_s)));
        QString deepest = tree->path(u"folder"_s);
        // In relative steps: no call takes the whole path.
        while (!isPathTooLong(deepest) && makeAndEnter(name))
            deepest += u'/' + name;
        QVERIFY(QDir::setCurrent(before));
        static QStringList messages;
        messages.clear();
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
            if (type == QtDebugMsg)
                messages.append(text);
        });
        window->drop({tree->path(u"folder"_s)});
        qInstallMessageHandler(nullptr);
        QCOMPARE(window->files()->count(), 2);
        QStringList expected;
        // Windows makes no such folder in the first place.
        if (isPathTooLong(deepest))
            expected.append(u"folders left out, their paths being too long for the system: 1"_s);
        QCOMPARE(messages, expected);
        std::filesystem::remove_all(tree->path(u"folder"_s).toStdU16String());
    }

    void scanCancelledAfterItsFirstFileAddsThatOne()
    {
        tree->addFiles(u"folder/%1.txt"_s, 5);
        const DuringEvents watch([&](int pass) {
            if (pass == 1)
                clickCancel();
        });
        window->drop({tree->path(u"folder"_s)});
        QCOMPARE(window->files()->count(), 1);
    }

    void cancelWhileAddingKeepsTheRowsAddedSoFar()
    {
        tree->addFiles(u"folder/%1.txt"_s, 10);
        const DuringEvents watch([&](int pass) {
            if (pass == 10 + 4)
                clickCancel();
        });
        window->drop({tree->path(u"folder"_s)});
        QCOMPARE(window->files()->count(), 4);
    }

    void closingTheDialogOrEscapeCancelsToo_data()
    {
        QTest::addColumn<bool>("escape");
        QTest::newRow("close") << false;
        QTest::newRow("escape") << true;
    }

    void closingTheDialogOrEscapeCancelsToo()
    {
        QFETCH(bool, escape);
        tree->addFiles(u"folder/%1.txt"_s, 10);
        const DuringEvents watch([&](int pass) {
            if (pass != 13)
                return;
            if (escape)
                QTest::keyClick(window->waitDialog(), Qt::Key_Escape);
            else
                window->waitDialog()->close();
        });
        window->drop({tree->path(u"folder"_s)});
        QCOMPARE(window->files()->count(), 3);
    }

    void cancelOfOneFolderLetsTheNextPathsCome()
    {
        tree->addFiles(u"one/%1.txt"_s, 5);
        const QString single = tree->addFile(u"single.txt"_s);
        const DuringEvents watch([&](int pass) {
            if (pass == 5 + 2)
                clickCancel();
        });
        window->drop({tree->path(u"one"_s), single});
        QCOMPARE(window->files()->count(), 3);
        QCOMPARE(window->rowPaths().constLast(), single);
    }

    void folderOfListedFilesOnlyAddsNothing()
    {
        tree->addFiles(u"folder/%1.txt"_s, 5);
        window->drop({tree->path(u"folder"_s)});
        window->drop({tree->path(u"folder"_s)});
        QCOMPARE(window->files()->count(), 5);
    }

    void rowsAddedWithPreviewOnAreNumberedByTheirRow()
    {
        window->addEnumerate(0, 1);
        window->click("buttonPreview");
        tree->addFiles(u"folder/%1.txt"_s, 12);
        window->drop({tree->path(u"folder"_s)});
        const QStringList texts = window->rowTexts();
        for (int row = 0; row < texts.size(); ++row)
            QVERIFY(texts.at(row).startsWith(u"%1"_s.arg(row, 2, 10, QChar(u'0'))));
        QCOMPARE(texts.size(), 12);
    }
};

QTEST_MAIN(MainWindowAdding)
#include "tst_mainwindow_adding.moc"
