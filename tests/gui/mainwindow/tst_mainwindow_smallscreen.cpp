// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "app/look.h"
#include "dialogs/dialogruns.h"
#include "dialogs/dialogsettings.h"
#include "dialogs/dialogstart.h"
#include "support/cutoff.h"
#include "support/drivenwindow.h"
#include "support/journalfiles.h"

#include <QApplication>
#include <QDockWidget>
#include <QHBoxLayout>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QListWidget>
#include <QScrollArea>
#include <QSplitter>
#include <QStyleFactory>
#include <QTest>
#include <QTranslator>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

struct Screen
{
    const char *name;
    QSize size;
    double ratio;
};

// In the pixels that windows are measured in. The first is where windows come that nobody put anywhere.
const QList<Screen> allScreens = {{"large", {1920, 1080}, 1},
                                  {"1366x768 at 150 %", {911, 512}, 1.5},
                                  {"1920x1080 at 200 %", {960, 540}, 2},
                                  {"1280x720", {1280, 720}, 1},
                                  {"800x600", {800, 600}, 1}};

/// For the platform without screens.
QByteArray configuration()
{
    QJsonArray screens;
    int x = 0;
    for (const Screen &screen : allScreens) {
        screens.append(QJsonObject{{u"name"_s, QString::fromLatin1(screen.name)},
                                   {u"x"_s, x},
                                   {u"y"_s, 0},
                                   {u"width"_s, screen.size.width()},
                                   {u"height"_s, screen.size.height()},
                                   {u"logicalDpi"_s, 96},
                                   {u"logicalBaseDpi"_s, 96},
                                   {u"dpr"_s, screen.ratio}});
        x += 4000;
    }
    return QJsonDocument(QJsonObject{{u"screens"_s, screens}}).toJson();
}

QStringList languages()
{
    QStringList codes = QDir(QStringLiteral(LOCALE_FOLDER)).entryList({u"orvanto-*.qm"_s});
    codes.prepend(u"en"_s);
    return codes;
}

} // namespace

/// The window on screens without room for it as it is, and on those that have the room.
class MainWindowSmallScreen : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<QTranslator> translator;
    std::unique_ptr<DrivenWindow> window;

    [[nodiscard]] static QScreen *screen(const QString &name)
    {
        const auto screens = QGuiApplication::screens();
        const auto found = std::find_if(screens.begin(), screens.end(),
                                        [&name](const QScreen *one) { return one->name() == name; });
        if (found == screens.end())
            qFatal("no screen %s", qPrintable(name));
        return *found;
    }
    void speak(const QString &language)
    {
        if (language == "en"_L1)
            return;
        translator = std::make_unique<QTranslator>();
        QVERIFY(translator->load(QStringLiteral(LOCALE_FOLDER) + u'/' + language));
        QCoreApplication::installTranslator(translator.get());
    }
    void openOn(const QString &name)
    {
        window = std::make_unique<DrivenWindow>();
        window->get()->setScreen(screen(name));
        window->get()->move(screen(name)->availableGeometry().topLeft() + QPoint(20, 20));
        show();
    }
    void show() const
    {
        window->get()->show();
        QVERIFY(QTest::qWaitForWindowExposed(window->get()));
        QCoreApplication::processEvents();
    }
    void moveTo(const QString &name) const
    {
        window->get()->move(screen(name)->availableGeometry().topLeft());
        QTRY_COMPARE(window->get()->screen(), screen(name));
        QCoreApplication::processEvents();
    }
    [[nodiscard]] QScrollArea *scrollArea() const
    {
        return window->get()->findChild<QScrollArea *>(u"scrollAreaRules"_s);
    }
    [[nodiscard]] QDockWidget *explorer() const { return window->child<QDockWidget>("dockWidgetExplorer"); }
    [[nodiscard]] QDockWidget *log() const { return window->child<QDockWidget>("dockWidgetLog"); }
    /// The classes and names of all widgets, each after what it is in.
    [[nodiscard]] static QStringList tree(const QWidget *root)
    {
        QStringList lines;
        const auto children = root->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
        for (const QWidget *child : children) {
            if (child->isWindow())
                continue;
            lines.append(QString::fromLatin1(child->metaObject()->className()) + u' ' + child->objectName());
            const QStringList below = tree(child);
            for (const QString &line : below)
                lines.append(u' ' + line);
        }
        lines.sort();
        return lines;
    }
    void verifyWhole(const char *when) const
    {
        // Layouts come one event after the other.
        QStringList faults;
        const auto isWhole = [&] {
            faults = cutOffOnScreen(window->get());
            return faults.isEmpty();
        };
        QVERIFY2(QTest::qWaitFor(isWhole, 2000),
                 qPrintable(QLatin1StringView(when) + u":\n"_s + faults.join(u'\n')));
    }

private slots:
    void init() { settings = std::make_unique<TestSettings>(); }
    void cleanup()
    {
        window.reset();
        if (translator)
            QCoreApplication::removeTranslator(translator.get());
        translator.reset();
        settings.reset();
    }

    void everythingIsOnTheScreen_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("language");
        const QStringList codes = languages();
        QCOMPARE(codes.size(), 13);
        for (const Screen &one : allScreens) {
            for (const QString &code : codes)
                QTest::addRow("%s, %s", one.name, qPrintable(code)) << QString::fromLatin1(one.name) << code;
        }
    }

    void everythingIsOnTheScreen()
    {
        QFETCH(QString, name);
        QFETCH(QString, language);
        speak(language);
        openOn(name);
        verifyWhole("at the start");
        if (QTest::currentTestFailed())
            return;
        for (int kind = ReplaceKind; kind <= EnumerateKind; ++kind) {
            (void)window->chooseKind(static_cast<RuleKind>(kind));
            verifyWhole("another kind of rule");
        }
        explorer()->show();
        verifyWhole("with the explorer");
        log()->show();
        verifyWhole("with the log, too");
    }

    void dialogsAreOnTheScreen_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("language");
        // The least high, and the least wide.
        const QStringList codes = languages();
        for (const char *name : {"1366x768 at 150 %", "800x600"}) {
            for (const QString &code : codes)
                QTest::addRow("%s, %s", name, qPrintable(code)) << QString::fromLatin1(name) << code;
        }
    }

    void dialogsAreOnTheScreen()
    {
        QFETCH(QString, name);
        QFETCH(QString, language);
        speak(language);
        openOn(name);
        const auto verify = [](const char *which, QDialog &dialog) {
            dialog.show();
            QVERIFY(QTest::qWaitForWindowExposed(&dialog));
            QCoreApplication::processEvents();
            const QStringList faults = cutOffOnScreen(&dialog);
            QVERIFY2(faults.isEmpty(), qPrintable(QLatin1StringView(which) + u":\n"_s + faults.join(u'\n')));
        };
        DialogSettings options(window->get());
        for (int page = 0; page < options.findChild<QListWidget *>(u"listWidget"_s)->count(); ++page) {
            options.findChild<QListWidget *>(u"listWidget"_s)->setCurrentRow(page);
            verify("settings", options);
        }
        DialogStart start(window->get(), Qt::CustomizeWindowHint | Qt::WindowStaysOnTopHint);
        verify("first start", start);
        start.findChild<QStackedWidget *>(u"stackedWidget"_s)->setCurrentIndex(1);
        verify("first start, second page", start);
        JournalledTree files;
        files.tree.addFiles(u"f%1"_s, 2);
        files.interruptedPlan({{u"f000"_s, u"g0"_s}, {u"f001"_s, u"g1"_s}});
        DialogRuns runs(files.journals, window->get());
        verify("runs", runs);
        ProgressDialog wait(window->get());
        verify("wait", wait);
    }

    void scrollBarsReachEveryControlOfTheRules()
    {
        openOn(u"800x600"_s);
        explorer()->show();
        log()->show();
        verifyWhole("with docks");
        QScrollArea *area = scrollArea();
        QVERIFY(area);
        const auto controls = area->widget()->findChildren<QWidget *>();
        int reached = 0;
        for (QWidget *control : controls) {
            if (!control->isVisible() || control->focusPolicy() == Qt::NoFocus)
                continue;
            area->ensureWidgetVisible(control, 0, 0);
            const QRect place(control->mapTo(area->viewport(), QPoint(0, 0)), control->size());
            const QSize seen = place.intersected(area->viewport()->rect()).size();
            QVERIFY2(seen.width() >= std::min(control->width(), area->viewport()->width()) &&
                         seen.height() >= std::min(control->height(), area->viewport()->height()),
                     qPrintable(nameOf(control)));
            ++reached;
        }
        QVERIFY2(reached >= 8, qPrintable(QString::number(reached)));
    }

    void nothingIsChangedWhereThereIsRoom()
    {
        openOn(u"large"_s);
        QVERIFY(!scrollArea());
        QVERIFY(explorer()->isVisible() && log()->isVisible());
        QCOMPARE(window->get()->width(), 1066);
        const int least = window->get()->minimumSizeHint().height();
        QCOMPARE(window->get()->height(), std::max(515, least));
        QCOMPARE(window->child<QHBoxLayout>("horizontalLayout_2")->itemAt(2)->widget()->objectName(),
                 u"checkBoxShowFullPath"_s);
    }

    void docksAreClosedAtTheStartOnly()
    {
        openOn(u"800x600"_s);
        QVERIFY(!explorer()->isVisible() && !log()->isVisible());
        explorer()->show();
        QCoreApplication::processEvents();
        QVERIFY(explorer()->isVisible());
        verifyWhole("with the explorer");
    }

    void rulesNeedNoScrollBarBelowWithoutDocks_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"1366x768 at 150 %", "1920x1080 at 200 %", "800x600"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void rulesNeedNoScrollBarBelowWithoutDocks()
    {
        QFETCH(QString, name);
        openOn(name);
        QVERIFY(scrollArea());
        const auto isRoomEnough = [this] {
            return scrollArea()->viewport()->width() >= scrollArea()->widget()->minimumSizeHint().width();
        };
        QTRY_VERIFY(isRoomEnough());
    }

    void anotherScreenChangesItThereAndBack()
    {
        openOn(u"large"_s);
        const QStringList before = tree(window->get());
        const QSize least = window->get()->minimumSizeHint();
        const QWidget *editor = window->chooseKind(EnumerateKind);
        window->addReplace(u"a"_s, u"b"_s);
        window->ruleTree()->setFocus();
        moveTo(u"800x600"_s);
        QVERIFY(scrollArea());
        verifyWhole("moved");
        QVERIFY(scrollArea()->isAncestorOf(editor));
        QCOMPARE(window->get()->focusWidget(), window->ruleTree());
        QCOMPARE(window->rules().size(), 1);
        QCOMPARE(window->child<QTabWidget>("tabWidgetMain")->tabText(0), u"Rules"_s);
        QVERIFY(!window->child<QTabWidget>("tabWidgetMain")->tabIcon(0).isNull());
        moveTo(u"large"_s);
        QVERIFY(!scrollArea());
        QCOMPARE(tree(window->get()), before);
        QCOMPARE(window->get()->minimumSizeHint(), least);
        QCOMPARE(window->get()->focusWidget(), window->ruleTree());
        QCOMPARE(window->child<QTabWidget>("tabWidgetMain")->tabText(0), u"Rules"_s);
    }

    void docksComeBackWhereThereIsRoom()
    {
        openOn(u"800x600"_s);
        QVERIFY(!explorer()->isVisible());
        moveTo(u"1366x768 at 150 %"_s);
        verifyWhole("moved");
        moveTo(u"large"_s);
        QVERIFY(explorer()->isVisible() && log()->isVisible());
    }

    void languageChangesTheTabOfASmallScreen()
    {
        openOn(u"800x600"_s);
        explorer()->show();
        log()->show();
        QVERIFY(scrollArea());
        speak(u"orvanto-ru_RU.qm"_s);
        QCoreApplication::processEvents();
        QCOMPARE(window->child<QTabWidget>("tabWidgetMain")->tabText(0),
                 QCoreApplication::translate("MainWindow", "Rules"));
        QVERIFY(window->child<QTabWidget>("tabWidgetMain")->tabText(0) != "Rules"_L1);
        verifyWhole("in Russian");
    }

    void placeOfALargerScreenIsBroughtIn()
    {
        openOn(u"large"_s);
        window->get()->resize(1600, 900);
        const QByteArray saved = window->get()->saveGeometry();
        SettingsStore::instance()->setValue(SettingKey::WindowGeometryRestore, true);
        SettingsStore::instance()->setValue(SettingKey::WindowGeometryData,
                                            QString::fromLatin1(saved.toHex()));
        window = std::make_unique<DrivenWindow>();
        window->get()->restoreWindowSettings();
        // As if the large one were gone.
        window->get()->setScreen(screen(u"800x600"_s));
        window->get()->move(screen(u"800x600"_s)->availableGeometry().topLeft() + QPoint(64, 64));
        show();
        verifyWhole("restored");
    }
};

int main(int argc, char **argv)
{
    const TempTree folder;
    folder.addFile(u"screens.json"_s, configuration());
    // A colon, as behind the name of a drive, would end the name there.
    QDir::setCurrent(folder.path());
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=screens.json");
    QApplication application(argc, argv);
    QApplication::setStyle(u"Fusion"_s);
    applyLook();
    MainWindowSmallScreen tests;
    return QTest::qExec(&tests, argc, argv);
}

#include "tst_mainwindow_smallscreen.moc"
