// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/fileitem.h"
#include "support/drivenwindow.h"
#include "support/duringevents.h"
#include "support/faketranslator.h"
#include "support/modalanswer.h"
#include "support/rowtip.h"

#include <QLabel>
#include <QScrollBar>
#include <QStatusBar>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const auto checking = u"checking…"_s;

} // namespace

/// What the preview says of the run to come.
class MainWindowFates : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<DrivenWindow> window;
    std::unique_ptr<BoxAnswerer> boxes;
    TempTree *tree = nullptr;

    [[nodiscard]] QLabel *label() const { return window->child<QLabel>("labelForecast"); }
    [[nodiscard]] QString data(int row, int role) const
    {
        return window->files()->item(row)->data(role).toString();
    }
    [[nodiscard]] QStringList fates() const
    {
        QStringList ids;
        for (int row = 0; row < window->files()->count(); ++row)
            ids.append(data(row, FileItem::FateRole));
        return ids;
    }
    void waitUntilTold() const { QTRY_VERIFY_WITH_TIMEOUT(label()->text() != checking, 20000); }
    void preview() const
    {
        window->click("buttonPreview");
        waitUntilTold();
    }
    /// Five files, of which one is renamed and the others stay for one reason each.
    void makeTrouble() const
    {
        tree->addFile(u"dir/taken"_s);
        window->drop({tree->addFile(u"dir/1"_s), tree->addFile(u"dir/2"_s), tree->addFile(u"dir/3"_s),
                      tree->addFile(u"dir/4"_s), tree->addFile(u"dir/5"_s)});
        window->addReplace(u"^1$"_s, u"first"_s, true);
        window->addReplace(u"^2$"_s, u"first"_s, true);
        window->addReplace(u"^3$"_s, u"taken"_s, true);
        window->addReplace(u"^4$"_s, u"5"_s, true);
    }
    /// The rows' right end as it is seen.
    [[nodiscard]] QImage endOf(int row) const
    {
        const ListWidgetFiles *list = window->files();
        const QRect rect = list->visualItemRect(list->item(row));
        const QImage seen = list->viewport()->grab().toImage();
        return seen.copy(seen.width() - rect.height(), rect.top(), rect.height(), rect.height());
    }

private slots:
    void init()
    {
        settings = std::make_unique<TestSettings>();
        tree = &settings->tree;
        window = std::make_unique<DrivenWindow>();
        window->stopLogTimer();
        window->get()->show();
        QVERIFY(QTest::qWaitForWindowActive(window->get()));
        boxes = std::make_unique<BoxAnswerer>();
    }
    void cleanup()
    {
        boxes.reset();
        window.reset();
        settings.reset();
    }

    void rowsSayWhatBecomesOfThem()
    {
        makeTrouble();
        QCOMPARE(fates(), QStringList({{}, {}, {}, {}, {}}));
        preview();
        QCOMPARE(fates(), QStringList({u"renamed"_s, u"taken-by-row"_s, u"taken"_s, u"leaves-later"_s,
                                       u"unchanged"_s}));
        const QStringList sentences = {QString(), u"Stays: row 1 takes the name first."_s,
                                       u"Stays: the name is taken."_s,
                                       u"Stays: row 5 still has the name 5."_s, u"Keeps its name."_s};
        for (int row = 0; row < sentences.size(); ++row) {
            QVERIFY(tipIs(window->files()->item(row), sentences.at(row)));
            QCOMPARE(data(row, Qt::AccessibleDescriptionRole), sentences.at(row));
            QCOMPARE(window->files()->item(row)->type(), 0);
        }
        QCOMPARE(window->rowTexts(), QStringList({u"first"_s, u"first"_s, u"taken"_s, u"5"_s, u"5"_s}));
        QCOMPARE(tree->names(u"dir"_s), QStringList({u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"taken"_s}));
    }

    void everyReasonHasItsSentence_data()
    {
        QTest::addColumn<QString>("newName");
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("empty") << QString() << u"empty"_s << u"Stays: the new name is empty or only dots."_s;
        QTest::newRow("dots") << u".."_s << u"empty"_s << u"Stays: the new name is empty or only dots."_s;
        QTest::newRow("too long") << QString(300, u'x') << u"too-long"_s
                                  << u"Stays: the new name is too long."_s;
        QTest::newRow("moved") << u"sub/a"_s << u"separator"_s << u"Moves to the folder %1/sub."_s;
        QTest::newRow("no folder")
            << u"none/a"_s << u"separator"_s
            << u"Stays: there is no such folder. The new name leads to the folder %1/none."_s;
        QTest::newRow("half a character")
            << QString(QChar(0xd83d)) << u"no-text"_s << u"Stays: the new name holds half a character."_s;
    }

    void everyReasonHasItsSentence()
    {
        QFETCH(QString, newName);
        tree->addFolder(u"dir/sub"_s);
        window->drop({tree->addFile(u"dir/a"_s)});
        window->addReplace(u"^a$"_s, newName, true);
        preview();
        QTEST(data(0, FileItem::FateRole), "id");
        QFETCH(QString, sentence);
        if (sentence.contains("%1/"_L1))
            sentence = sentence.replace("%1/"_L1, QDir::toNativeSeparators(tree->path(u"dir"_s) + u'/'));
        QCOMPARE(data(0, Qt::AccessibleDescriptionRole), sentence);
    }

    void nameTakenInAnotherFolderIsToldWithoutIt()
    {
        tree->addFolder(u"dir/sub"_s);
        window->drop({tree->addFile(u"dir/a1"_s), tree->addFile(u"dir/a2"_s)});
        window->addReplace(u"^a\\d$"_s, u"sub/a"_s, true);
        preview();
        QCOMPARE(data(1, Qt::AccessibleDescriptionRole),
                 u"Stays: row 1 takes the name a. The new name leads to the folder %1."_s.arg(
                     QDir::toNativeSeparators(tree->path(u"dir/sub"_s))));
    }

    void fullPathsAreForetoldAsNamesAre()
    {
        makeTrouble();
        preview();
        const QStringList told = fates();
        window->click("checkBoxShowFullPath");
        waitUntilTold();
        QCOMPARE(window->rowTexts().constFirst(), QDir::toNativeSeparators(tree->path(u"dir/first"_s)));
        QCOMPARE(fates(), told);
    }

    void missingFileIsTold()
    {
        const QString path = tree->addFile(u"dir/a"_s);
        window->drop({path});
        window->addInsert(u"x"_s);
        QVERIFY(QFile::remove(path));
        preview();
        QCOMPARE(data(0, FileItem::FateRole), u"missing"_s);
        QVERIFY(tipIs(window->files()->item(0), u"Stays: the file is not there."_s));
    }

    void markupInANameIsText()
    {
        // Windows takes no angle brackets in names.
        window->drop({tree->addFile(u"dir/&lt;b1"_s), tree->addFile(u"dir/&lt;b2"_s)});
        window->addReplace(u"\\d"_s, {}, true);
        preview();
        QCOMPARE(data(1, Qt::AccessibleDescriptionRole), u"Stays: row 1 takes the name &lt;b."_s);
        QVERIFY(tipIs(window->files()->item(1), u"Stays: row 1 takes the name &lt;b."_s));
    }

    // Deliberate: "checking…" stands there before the slot returns, however short the list is.
    void labelSaysCheckingUntilAllIsTold()
    {
        makeTrouble();
        window->click("buttonPreview");
        QCOMPARE(label()->text(), checking);
        QCOMPARE(fates().join(QString()), QString());
        waitUntilTold();
        QCOMPARE(label()->text(), u"5 files: 1 will be renamed, 1 keeps its name, 3 cannot"_s);
        window->get()->on_buttonPreview_clicked();
        QCOMPARE(label()->text(), checking);
        QCOMPARE(fates().join(QString()), QString());
        waitUntilTold();
        QCOMPARE(label()->text(), u"5 files: 1 will be renamed, 1 keeps its name, 3 cannot"_s);
    }

    void labelFollowsTheLanguage()
    {
        const FakeTranslator translator([](QLatin1StringView context, const QString &text) {
            return context == "Fates"_L1 && text == u"%1, %2 selected"_s ? u"%1, davon %2"_s : QString();
        });
        QTRY_COMPARE(label()->text(), u"0 files, davon 0"_s);
    }

    void labelOffersAWayToTroubleWhereThereIsSome()
    {
        window->drop({tree->addFile(u"dir/a1"_s), tree->addFile(u"dir/a2"_s)});
        preview();
        QCOMPARE(label()->toolTip(), QString());
        QCOMPARE(label()->cursor().shape(), Qt::ArrowCursor);
        window->addReplace(u"\\d"_s, {}, true);
        QTRY_COMPARE(label()->toolTip(), u"Go to the next row in trouble (F8)"_s);
        QCOMPARE(label()->cursor().shape(), Qt::PointingHandCursor);
    }

    void labelStandsAtTheStatusBarsRightEnd()
    {
        const auto *bar = window->child<QStatusBar>("statusbar");
        QCOMPARE(label()->parentWidget(), bar);
        QTRY_VERIFY(label()->geometry().left() > bar->width() / 2);
        // A status tip leaves it there.
        window->child<QStatusBar>("statusbar")->showMessage(u"a tip"_s);
        QVERIFY(label()->isVisible());
    }

    void labelCountsTheSelectionWhilePreviewIsUp()
    {
        QCOMPARE(label()->text(), u"0 files, 0 selected"_s);
        window->drop(tree->addFiles(u"dir/%1"_s, 10));
        QTRY_COMPARE(label()->text(), u"10 files, 0 selected"_s);
        window->files()->item(2)->setSelected(true);
        window->files()->item(5)->setSelected(true);
        QTRY_COMPARE(label()->text(), u"10 files, 2 selected"_s);
        preview();
        QVERIFY(label()->text().startsWith("10 files: "_L1));
        window->click("buttonPreview");
        QCOMPARE(label()->text(), u"10 files, 2 selected"_s);
        window->click("buttonFileListClear");
        QTRY_COMPARE(label()->text(), u"0 files, 0 selected"_s);
    }

    void withPreviewUpARowLooksAsEver()
    {
        makeTrouble();
        QTRY_VERIFY(window->files()->visualItemRect(window->files()->item(4)).isValid());
        const QImage before = window->files()->viewport()->grab().toImage();
        preview();
        window->click("buttonPreview");
        QCOMPARE(fates().join(QString()), QString());
        QVERIFY(tipIs(window->files()->item(2), {}));
        QTRY_COMPARE(window->files()->viewport()->grab().toImage(), before);
    }

    void f8AndClicksGoFromTroubleToTrouble()
    {
        makeTrouble();
        preview();
        QList<int> rows;
        const auto note = [&] {
            QCOMPARE(window->files()->selectedItems().size(), 1);
            rows.append(window->files()->currentRow());
        };
        for (int i = 0; i < 4; ++i) {
            QTest::keyClick(window->get(), Qt::Key_F8);
            note();
        }
        QTest::keyClick(window->get(), Qt::Key_F8, Qt::ShiftModifier);
        note();
        QTest::mouseClick(label(), Qt::LeftButton);
        note();
        QTest::mouseClick(label(), Qt::RightButton);
        note();
        // The row that keeps its name is no trouble.
        QCOMPARE(rows, QList<int>({1, 2, 3, 1, 3, 1, 1}));
    }

    void f8WithoutTroubleGoesNowhere()
    {
        window->drop(tree->addFiles(u"dir/%1"_s, 3));
        window->addInsert(u"x"_s);
        preview();
        window->files()->setCurrentRow(1);
        QTest::keyClick(window->get(), Qt::Key_F8);
        QCOMPARE(window->files()->currentRow(), 1);
        window->click("buttonFileListClear");
        QTest::keyClick(window->get(), Qt::Key_F8);
    }

    void f8ScrollsToARowFarAway()
    {
        QStringList paths = tree->addFiles(u"dir/%1"_s, 500);
        window->drop(paths);
        window->addReplace(u"499"_s, u"498"_s);
        preview();
        QTest::keyClick(window->get(), Qt::Key_F8);
        ListWidgetFiles *list = window->files();
        QVERIFY(list->viewport()->rect().contains(list->visualItemRect(list->item(499)).center()));
    }

    void diskIsLookedAtAgainWhenTheWindowBecomesActive()
    {
        window->drop({tree->addFile(u"dir/a"_s)});
        window->addInsert(u"x"_s);
        preview();
        QCOMPARE(fates(), QStringList{u"renamed"_s});
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        tree->addFile(u"dir/xa"_s);
        window->get()->activateWindow();
        QTRY_COMPARE(fates(), QStringList{u"taken"_s});
    }

    void rowsAddedAndRemovedAreTold()
    {
        window->drop({tree->addFile(u"dir/a1"_s)});
        window->addReplace(u"\\d"_s, {}, true);
        preview();
        QCOMPARE(fates(), QStringList{u"renamed"_s});
        window->drop({tree->addFile(u"dir/a2"_s)});
        QTRY_COMPARE(fates(), QStringList({u"renamed"_s, u"taken-by-row"_s}));
        QTRY_COMPARE(label()->text(), u"2 files: 1 will be renamed, 0 keep their names, 1 cannot"_s);
        window->files()->setCurrentRow(0);
        window->get()->onClickedFileList(4);
        QTRY_COMPARE(fates(), QStringList{u"renamed"_s});
        QTRY_COMPARE(label()->text(), u"1 file: 1 will be renamed, 0 keep their names, 0 cannot"_s);
    }

    void rulesAddedWhilePreviewIsDownAreTold()
    {
        window->drop({tree->addFile(u"dir/a1"_s), tree->addFile(u"dir/a2"_s)});
        preview();
        QCOMPARE(fates(), QStringList({u"unchanged"_s, u"unchanged"_s}));
        window->addReplace(u"\\d"_s, {}, true);
        QTRY_COMPARE(fates(), QStringList({u"renamed"_s, u"taken-by-row"_s}));
    }

    void markStandsAtTheRightEndOfWhatIsSeen()
    {
        window->drop({tree->addFile(u"dir/1"_s), tree->addFile(u"dir/2"_s)});
        window->addReplace(u"1"_s, QString(200, u'W'));
        window->addReplace(u"2"_s, QString(300, u'W'));
        preview();
        ListWidgetFiles *list = window->files();
        QTRY_VERIFY(list->visualItemRect(list->item(0)).width() > list->viewport()->width());
        list->scrollToTop();
        const QImage marked = endOf(1);
        QVERIFY(marked != endOf(0));
        // The text under it scrolls, the mark stays.
        list->horizontalScrollBar()->setValue(37);
        QCOMPARE(endOf(1), marked);
    }

    void markIsSeenOnEveryRow()
    {
        window->drop(tree->addFiles(u"dir/%1"_s, 3));
        preview();
        ListWidgetFiles *list = window->files();
        list->item(1)->setSelected(true);
        for (int row = 0; row < 3; ++row) {
            const QImage end = endOf(row);
            QVERIFY(end.pixelColor(end.width() / 2 - 2, end.height() / 2) !=
                    end.pixelColor(end.width() - 1, 0));
        }
    }

    void nameOnDiskIsPaintedWhereThereIsRoom()
    {
        window->drop({tree->addFile(u"dir/old name"_s)});
        window->addReplace(u"old name"_s, u"new"_s);
        preview();
        ListWidgetFiles *list = window->files();
        const QRect row = list->visualItemRect(list->item(0));
        const int textEnd = list->fontMetrics().horizontalAdvance(u"new"_s) + 10;
        const auto hasInk = [&] {
            const QImage seen = list->viewport()->grab(row).toImage();
            for (int x = textEnd; x < textEnd + 50; ++x) {
                for (int y = 2; y < seen.height() - 2; ++y) {
                    if (seen.pixelColor(x, y) != seen.pixelColor(seen.width() / 2, 2))
                        return true;
                }
            }
            return false;
        };
        QVERIFY(hasInk());
        QCOMPARE(data(0, FileItem::OldNameRole), u"old name"_s);
        list->setFixedWidth(textEnd + 40);
        QCoreApplication::processEvents();
        QVERIFY(!hasInk());
        window->click("buttonPreview");
        QCOMPARE(data(0, FileItem::OldNameRole), QString());
    }

    // Whoever asks a row for its text gets the right one, though nothing has been computed yet.
    void textsAreRightWhenTheSlotReturns()
    {
        window->drop(tree->addFiles(u"dir/%1"_s, 3000));
        QCoreApplication::processEvents();
        window->addEnumerate(1, 3);
        window->click("buttonPreview");
        QCOMPARE(window->files()->item(2999)->text(), u"30002999"_s);
        QCOMPARE(window->files()->model()->index(0, 0).data().toString(), u"0001000"_s);
        // What rules and buttons say afterwards counts from the next refresh on.
        window->preview()->setChecked(false);
        window->get()->onClickedRuleList(8);
        QCOMPARE(window->files()->item(1500)->text(), u"15011500"_s);
        window->get()->on_buttonPreview_clicked();
        QCOMPARE(window->files()->item(1500)->text(), u"1500"_s);
    }

    void textThatWaitsKeepsThePathAndTheRowOfItsRefresh()
    {
        window->drop(tree->addFiles(u"dir/%1"_s, 3000));
        window->addEnumerate(1, 3);
        window->click("buttonPreview");
        ListWidgetFiles *list = window->files();
        list->setPath(2000, u"/elsewhere/b"_s);
        QCOMPARE(list->item(2000)->text(), u"20012000"_s);
        list->insertItem(0, list->takeItem(2500));
        QCOMPARE(list->item(0)->text(), u"25012500"_s);
        list->clearSelection();
        list->item(1)->setSelected(true);
        list->removeSelected();
        QCOMPARE(list->item(1)->text(), u"0002001"_s);
        QCOMPARE(list->item(2998)->text(), u"30002999"_s);
    }

    void runIsNotHeldUp()
    {
        window->drop(tree->addFiles(u"dir/%1"_s, 300));
        window->addInsert(u"x"_s);
        preview();
        bool told = false;
        {
            const DuringEvents watch(
                [&](int) { told |= window->waitDialog() && fates().join(QString()).size() > 0; });
            window->click("buttonRename");
        }
        QVERIFY(!told);
        QCOMPARE(boxes->seen.constFirst().text, u"Total 300\nProcessed 300\nFailed 0"_s);
        QTRY_COMPARE(label()->text(), u"300 files, 0 selected"_s);
    }
};

QTEST_MAIN(MainWindowFates)
#include "tst_mainwindow_fates.moc"
