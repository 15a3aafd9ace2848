// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/emptyhint.h"
#include "mainwindow/explorermodel.h"
#include "mainwindow/explorerroad.h"
#include "mainwindow/placesrow.h"
#include "support/drivenwindow.h"
#include "support/explorerrows.h"
#include "support/faketranslator.h"

#include <QAccessible>
#include <QDockWidget>
#include <QLayout>
#include <QScrollBar>
#include <QTest>
#include <QTreeView>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const auto listHint = u"Drop files or folders here, or press Ctrl+O"_s;
const auto rulesHint = u"Choose a kind of rule above, fill in its fields and press \"Add\""_s;

/// As the guidelines for web content reckon it, 1 to 21.
double contrast(const QColor &first, const QColor &second)
{
    const auto luminance = [](const QColor &color) {
        const auto linear = [](double part) {
            return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
               0.0722 * linear(color.blueF());
    };
    const auto [darker, lighter] = std::minmax({luminance(first), luminance(second)});
    return (lighter + 0.05) / (darker + 0.05);
}

QString spoken(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Description);
}

} // namespace

/// What the window says and shows to whoever has just met it: hints on empty lists, the explorer at home, the
/// places below it.
class MainWindowFirstMinute : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<TempTree> home;
    std::unique_ptr<DrivenWindow> window;

    [[nodiscard]] static EmptyHint *hintOf(const QAbstractItemView *view)
    {
        return view->findChild<EmptyHint *>();
    }
    [[nodiscard]] QTreeView *explorer() const { return window->child<QTreeView>("treeExplorer"); }
    [[nodiscard]] ExplorerModel *model() const { return qobject_cast<ExplorerModel *>(explorer()->model()); }
    [[nodiscard]] QString currentFolder() const { return model()->path(explorer()->currentIndex()); }
    [[nodiscard]] QList<QToolButton *> places() const
    {
        return window->child<PlacesRow>("placesRow")->findChildren<QToolButton *>();
    }
    [[nodiscard]] QToolButton *place(const QString &name) const
    {
        const auto buttons = places();
        const auto found = std::find_if(buttons.begin(), buttons.end(), [&name](const QToolButton *button) {
            return button->accessibleName() == name;
        });
        return found == buttons.end() ? nullptr : *found;
    }
    void show() const
    {
        window->get()->show();
        QVERIFY(QTest::qWaitForWindowExposed(window->get()));
    }
    void showAtHome() const
    {
        show();
        QTRY_COMPARE(currentFolder(), QDir::homePath());
    }

private slots:
    void init()
    {
        settings = std::make_unique<TestSettings>();
        home = std::make_unique<TempTree>();
        qputenv("HOME", QFile::encodeName(home->path()));
        qunsetenv("XDG_CONFIG_HOME");
        window = std::make_unique<DrivenWindow>();
    }
    void cleanup()
    {
        window.reset();
        home.reset();
        settings.reset();
    }

    void emptyListsSayWhatToDo()
    {
        show();
        const EmptyHint *ofFiles = hintOf(window->files());
        QVERIFY(ofFiles->isVisible());
        QCOMPARE(ofFiles->text(), listHint);
        QCOMPARE(ofFiles->geometry(), window->files()->viewport()->geometry());
        QCOMPARE(spoken(window->files()), listHint);
        window->drop({home->addFile(u"a"_s)});
        QVERIFY(!ofFiles->isVisible());
        QCOMPARE(spoken(window->files()), QString());
        window->click("buttonFileListClear");
        QVERIFY(ofFiles->isVisible());
        QCOMPARE(spoken(window->files()), listHint);

        const EmptyHint *ofRules = hintOf(window->ruleTree());
        QVERIFY(ofRules->isVisible());
        QCOMPARE(ofRules->text(), rulesHint);
        QCOMPARE(spoken(window->ruleTree()), rulesHint);
        window->addInsert(u"x"_s);
        QVERIFY(!ofRules->isVisible());
        QCOMPARE(spoken(window->ruleTree()), QString());
        window->selectRule(0);
        window->click("buttonRuleListRemove");
        QVERIFY(ofRules->isVisible());
    }

    void hintsCanBeRead()
    {
        show();
        for (QAbstractItemView *view : {static_cast<QAbstractItemView *>(window->files()),
                                        static_cast<QAbstractItemView *>(window->ruleTree())}) {
            const QRect place = hintOf(view)->geometry();
            const QImage with = view->grab(place).toImage();
            hintOf(view)->hide();
            const QImage without = view->grab(place).toImage();
            double best = 1;
            int rows = 0;
            for (int y = 0; y < with.height(); ++y) {
                bool isPainted = false;
                for (int x = 0; x < with.width(); ++x) {
                    if (with.pixel(x, y) == without.pixel(x, y))
                        continue;
                    isPainted = true;
                    best = std::max(best, contrast(with.pixelColor(x, y), without.pixelColor(x, y)));
                }
                rows += isPainted;
            }
            QVERIFY2(best >= 4.5, qPrintable(QString::number(best)));
            QVERIFY2(rows > 6, qPrintable(QString::number(rows)));
        }
    }

    void hintWrapsAndIsNotCutOff()
    {
        show();
        EmptyHint *hint = hintOf(window->files());
        for (const int width : {200, 600}) {
            hint->resize(width, 200);
            const QImage image = hint->grab().toImage();
            const QRgb background = image.pixel(0, 0);
            int top = image.height();
            int bottom = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    if (image.pixel(x, y) == background)
                        continue;
                    QVERIFY(x > 0 && x < image.width() - 1);
                    top = std::min(top, y);
                    bottom = std::max(bottom, y);
                }
            }
            const int lines = width < 300 ? 2 : 1;
            QVERIFY2(bottom - top > (lines - 1) * hint->fontMetrics().height() &&
                         (lines > 1 || bottom - top < 2 * hint->fontMetrics().height()),
                     qPrintable(u"%1 rows"_s.arg(bottom - top)));
        }
    }

    void hintsFollowTheLanguage()
    {
        show();
        {
            const FakeTranslator translator([](QLatin1StringView context, const QString &text) {
                return context == "MainWindow"_L1 ? u'[' + text + u']' : QString();
            });
            QCoreApplication::processEvents();
            QCOMPARE(hintOf(window->files())->text(), u'[' + listHint + u']');
            QCOMPARE(spoken(window->files()), u'[' + listHint + u']');
            QCOMPARE(hintOf(window->ruleTree())->text(),
                     u"[Choose a kind of rule above, fill in its fields and press \"[Add]\"]"_s);
        }
        QCoreApplication::processEvents();
        QCOMPARE(hintOf(window->files())->text(), listHint);
    }

    // Drops and clicks go through it.
    void hintIsNotInTheWay()
    {
        show();
        const QPoint middle = window->files()->mapTo(window->get(), window->files()->rect().center());
        QCOMPARE(window->get()->childAt(middle), window->files()->viewport());
    }

    void explorerStandsOpenAtHome()
    {
        home->addFile(u"inside"_s);
        showAtHome();
        const QModelIndex folder = explorer()->currentIndex();
        QVERIFY(explorer()->isExpanded(folder));
        QCOMPARE(explorerNames(model(), folder), entriesOf(QDir::homePath()).filter(u"inside"_s));
        // Whole, with nothing selected that a drag would take along.
        QCOMPARE(explorer()->rootIndex(), QModelIndex());
        QCOMPARE(model()->path(model()->index(0, 0)), QDir::drives().constFirst().filePath());
        QVERIFY(!explorer()->selectionModel()->hasSelection());
    }

    void nothingIsOpenedBeforeTheExplorerIsShown()
    {
        auto *dock = window->child<QDockWidget>("dockWidgetExplorer");
        dock->hide();
        show();
        QVERIFY(!QTest::qWaitFor([this] { return explorer()->currentIndex().isValid(); }, 300));
        QVERIFY(!model()->isBusy());
        QCOMPARE(explorer()->currentIndex(), QModelIndex());
        dock->show();
        QTRY_COMPARE(currentFolder(), QDir::homePath());
        // Once: what a person leaves it at is left.
        explorer()->setCurrentIndex(model()->index(0, 0));
        dock->hide();
        dock->show();
        QVERIFY(!QTest::qWaitFor([this] { return currentFolder() == QDir::homePath(); }, 300));
        QCOMPARE(explorer()->currentIndex(), model()->index(0, 0));
    }

    void whoeverUsesTheTreeIsNotDisturbed()
    {
        auto *road = explorer()->findChild<ExplorerRoad *>();
        showAtHome();
        home->addFile(u"far/away/file"_s);
        road->goTo(home->path(u"far/away"_s));
        explorer()->collapse(model()->index(0, 0));
        explorer()->setCurrentIndex(model()->index(0, 0));
        QVERIFY(!QTest::qWaitFor([this] { return currentFolder() == home->path(u"far/away"_s); }, 500));
        QCOMPARE(explorer()->currentIndex(), model()->index(0, 0));
    }

    void roadEndsWhereThereIsNothingMore()
    {
        auto *road = explorer()->findChild<ExplorerRoad *>();
        home->addFile(u"there/file"_s);
        showAtHome();
        road->goTo(home->path(u"there/gone/further"_s));
        QTRY_COMPARE(currentFolder(), home->path(u"there"_s));
        // A folder that has come since is found, and a name that begins like another's is another.
        home->addFile(u"there/gone/file"_s);
        home->addFile(u"there/gone more/file"_s);
        road->goTo(home->path(u"there/gone more/"_s));
        QTRY_COMPARE(currentFolder(), home->path(u"there/gone more"_s));
        QVERIFY(explorer()->isExpanded(explorer()->currentIndex()));
    }

    void placeIsOneClickAway()
    {
        home->addFiles(u"many %1"_s, 100);
        home->addFile(u"zzz/file"_s);
        showAtHome();
        QTRY_VERIFY(place(u"Home"_s));
        QCOMPARE(place(u"Home"_s)->toolTip(), "Home\n"_L1 + QDir::toNativeSeparators(QDir::homePath()));
        QVERIFY(!place(u"Home"_s)->icon().isNull());
        explorer()->scrollToTop();
        explorer()->setCurrentIndex(model()->index(0, 0));
        place(u"Home"_s)->click();
        QTRY_COMPARE(currentFolder(), QDir::homePath());
        const QModelIndex folder = explorer()->currentIndex();
        QCOMPARE(explorer()->selectionModel()->selectedIndexes(), QModelIndexList{folder});
        QCOMPARE(explorer()->visualRect(folder).top(), 0);
        QVERIFY(explorer()->verticalScrollBar()->value() > 0);
    }

    void placesFollowTheLanguage()
    {
        show();
        QTRY_VERIFY(place(u"Home"_s));
        const FakeTranslator translator([](QLatin1StringView context, const QString &text) {
            return context == "Places"_L1 ? u'[' + text + u']' : QString();
        });
        QCoreApplication::processEvents();
        QVERIFY(!place(u"Home"_s));
        QVERIFY(place(u"[Home]"_s)->toolTip().startsWith("[Home]\n"_L1));
        QCOMPARE(place(u"[Home]"_s)->statusTip(), u"[Home]"_s);
    }

    // Whatever there is, the dock is no wider for it.
    void placesTakeFurtherLines()
    {
        show();
        QTRY_VERIFY(!places().isEmpty());
        auto *row = window->child<PlacesRow>("placesRow");
        const int width = places().constFirst()->sizeHint().width();
        QTRY_COMPARE(row->minimumSizeHint().width(), width);
        QVERIFY(row->layout()->heightForWidth(width) >= places().size() * width / 2);
    }
};

QTEST_MAIN(MainWindowFirstMinute)
#include "tst_mainwindow_firstminute.moc"
