// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/savedstate.h"
#include "support/drivenwindow.h"

#include <QDataStream>
#include <QDockWidget>
#include <QTest>

#include <limits>
#include <string>

using namespace Qt::StringLiterals;

namespace {

/// Builds a layout the way that QMainWindow::saveState() writes it.
class Layout
{
public:
    Layout()
        : stream(&data, QIODevice::WriteOnly)
    {
        stream.setVersion(QDataStream::Qt_5_0);
        *this << 0xff << 0; // Qt's marker, and the version
    }

    Layout &operator<<(int number)
    {
        stream << qint32{number};
        return *this;
    }
    Layout &mark(int byte)
    {
        stream << static_cast<quint8>(byte);
        return *this;
    }
    Layout &dock(const QString &name, int flags = 1)
    {
        mark(0xfb);
        stream << name;
        return mark(flags) << 20 << 20 << 260 << 300;
    }
    /// The head of a sequence, or of tabs, of this many docks.
    Layout &sequence(int count) { return mark(0xfc).mark(2) << count; }
    Layout &tabs(int current, int count) { return (mark(0xfa) << current).mark(2) << count; }
    /// The head of the dock areas, and of one of them.
    Layout &areas(int count) { return mark(0xfd) << count; }
    Layout &area(int where) { return *this << where << 260 << 464; }
    Layout &endOfAreas() { return *this << 800 << 464 << 4 << 4 << 8 << 8; }
    Layout &bothDocks()
    {
        return areas(1)
            .area(1)
            .sequence(2)
            .dock(u"dockWidgetLog"_s)
            .dock(u"dockWidgetExplorer"_s)
            .endOfAreas();
    }
    Layout &toolBar(quint32 place = 0, quint32 placeBelow = 0)
    {
        mark(0xfc) << 1 << 2 << 1;
        stream << u"toolBar"_s;
        mark(1) << 0 << -1;
        stream << place << placeBelow;
        return *this;
    }

    QByteArray data;

private:
    QDataStream stream;
};

/// A number as it stands in the data.
qint32 numberAt(const QByteArray &data, qsizetype at)
{
    QDataStream stream(data.sliced(at, sizeof(qint32)));
    qint32 number = 0;
    stream >> number;
    return number;
}

/// A geometry as QWidget::saveGeometry() writes it, with these edges for the window and, when maximised, for
/// the time after.
QByteArray geometryOf(const QList<int> &current, const QList<int> &normal = {10, 20, 809, 619},
                      bool maximized = false, int version = 3)
{
    QByteArray data;
    QDataStream stream(&data, QIODevice::WriteOnly);
    stream << quint32{0x1d9d0cb} << static_cast<quint16>(version) << quint16{0};
    for (const int edge : {0, 0, 819, 639})
        stream << qint32{edge};
    for (const int edge : normal)
        stream << qint32{edge};
    stream << qint32{0} << static_cast<quint8>(maximized) << quint8{0};
    if (version > 1)
        stream << qint32{QGuiApplication::primaryScreen()->geometry().width()};
    if (version > 2) {
        for (const int edge : current)
            stream << qint32{edge};
    }
    return data;
}

/// As Qt reckons it, but defined for edges that are as far away as numbers go.
int extent(int first, int last)
{
    return static_cast<int>(static_cast<quint32>(last) - static_cast<quint32>(first) + 1U);
}

} // namespace

/// The look at what a window's settings hold before Qt gets it: nothing that Qt can restore is held back, and
/// what would crash or stall it never gets there.
class SavedStateTest final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void layoutsThatQtWritesAreSafe();
    void layoutsThatQtReadsAreSafe_data();
    void layoutsThatQtReadsAreSafe();
    void layoutsThatEndQtAreNot_data();
    void layoutsThatEndQtAreNot();
    void everyByteOfALayout();
    void everyLengthOfALayout();
    void geometriesThatQtReadsAreSafe_data();
    void geometriesThatQtReadsAreSafe();
    void geometriesThatEndQtAreNot_data();
    void geometriesThatEndQtAreNot();
    void everyByteOfAGeometry();
    void unsafeDataLeaveTheWindowAsItIs();

private:
    [[nodiscard]] QByteArray realLayout() const { return window->get()->saveState(0); }

    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<DrivenWindow> window;
};

void SavedStateTest::init()
{
    settings = std::make_unique<TestSettings>();
    window = std::make_unique<DrivenWindow>();
}

void SavedStateTest::cleanup()
{
    window.reset();
    settings.reset();
}

void SavedStateTest::layoutsThatQtWritesAreSafe()
{
    auto *log = window->child<QDockWidget>("dockWidgetLog");
    auto *explorer = window->child<QDockWidget>("dockWidgetExplorer");
    QVERIFY(SavedState::isSafeLayout(realLayout()));
    window->get()->tabifyDockWidget(log, explorer);
    QVERIFY(SavedState::isSafeLayout(realLayout()));
    window->get()->addDockWidget(Qt::LeftDockWidgetArea, log);
    QVERIFY(SavedState::isSafeLayout(realLayout()));
    explorer->setFloating(true);
    QVERIFY(SavedState::isSafeLayout(realLayout()));
    window->get()->removeDockWidget(explorer);
    QVERIFY(SavedState::isSafeLayout(realLayout()));
}

void SavedStateTest::layoutsThatQtReadsAreSafe_data()
{
    QTest::addColumn<QByteArray>("data");
    const auto floatingAt = [](quint32 x, quint32 width) {
        return width << 17 | (x + 0x7fff) << 1 | 1;
    };
    QTest::newRow("as this window's") << Layout().bothDocks().toolBar().data;
    QTest::newRow("tabs") << Layout()
                                 .areas(1)
                                 .area(0)
                                 .tabs(1, 2)
                                 .dock(u"dockWidgetLog"_s)
                                 .dock(u"dockWidgetExplorer"_s)
                                 .endOfAreas()
                                 .toolBar()
                                 .data;
    QTest::newRow("a dock that is gone")
        << Layout().areas(1).area(3).sequence(1).dock(u"old"_s).endOfAreas().toolBar().data;
    QTest::newRow("a dock without a name")
        << Layout().areas(1).area(1).sequence(1).dock({}).endOfAreas().toolBar().data;
    QTest::newRow("a floating dock")
        << Layout().areas(1).area(1).sequence(1).dock(u"dockWidgetLog"_s, 3).endOfAreas().toolBar().data;
    QTest::newRow("a floating tool bar")
        << Layout().bothDocks().toolBar(floatingAt(40, 300), 60U << 16 | 0x8000).data;
    QTest::newRow("a group that floats")
        << (Layout().bothDocks().mark(0xf9) << 20 << 20 << 300 << 300).sequence(0).toolBar().data;
    QTest::newRow("areas within areas")
        << (Layout().areas(1).area(2).sequence(2).dock(u"dockWidgetLog"_s).mark(0xfc) << 0 << 9 << 3 << 4)
               .tabs(0, 1)
               .dock(u"dockWidgetExplorer"_s)
               .endOfAreas()
               .toolBar()
               .data;
    QTest::newRow("no tool bars") << Layout().bothDocks().data;
    QTest::newRow("a negative number of areas") << Layout().areas(-1).endOfAreas().toolBar().data;
}

void SavedStateTest::layoutsThatQtReadsAreSafe()
{
    QFETCH(QByteArray, data);
    QVERIFY(SavedState::isSafeLayout(data));
    QVERIFY(window->get()->restoreState(data, 0));
    window->get()->show();
    QCoreApplication::processEvents();
    QVERIFY(SavedState::isSafeLayout(realLayout()));
}

void SavedStateTest::layoutsThatEndQtAreNot_data()
{
    QTest::addColumn<QByteArray>("data");
    for (const int area : {4, 5, 1 << 24, -1})
        QTest::addRow("area %d", area)
            << Layout().areas(1).area(area).sequence(0).endOfAreas().toolBar().data;
    constexpr int many = std::numeric_limits<int>::max();
    QTest::newRow("lines of tool bars") << (Layout().bothDocks().mark(0xfc) << many << 2 << 0).data;
    QTest::newRow("tool bars of a line") << (Layout().bothDocks().mark(0xfc) << 1 << 2 << many).data;
    QTest::newRow("a floating tool bar beyond all screens") << Layout().bothDocks().toolBar(~0U, ~0U).data;
    Layout deep;
    deep.areas(1).area(1).sequence(1);
    for (int depth = 0; depth < 300; ++depth)
        (deep.mark(0xfc) << 0 << 9 << 3 << 4).sequence(1);
    QTest::newRow("areas within areas") << deep.dock(u"dockWidgetLog"_s).endOfAreas().toolBar().data;
    Layout groups;
    groups.bothDocks();
    for (int group = 0; group < 10000; ++group)
        (groups.mark(0xf9) << 20 << 20 << 300 << 300).sequence(0);
    QTest::newRow("groups that float") << groups.toolBar().data;
    Layout docks;
    docks.areas(1).area(1).sequence(300000);
    for (int dock = 0; dock < 300000; ++dock)
        docks.dock(u"a"_s);
    QTest::newRow("docks that are gone") << docks.endOfAreas().toolBar().data;
}

void SavedStateTest::layoutsThatEndQtAreNot()
{
    QFETCH(QByteArray, data);
    QVERIFY(!SavedState::isSafeLayout(data));
}

void SavedStateTest::everyByteOfALayout()
{
    const QByteArray real = realLayout();
    const qsizetype area = real.indexOf('\xfd') + 5;
    const qsizetype toolBars = real.lastIndexOf('\xfc') + 1;
    QCOMPARE(numberAt(real, area), 1);
    QCOMPARE(numberAt(real, toolBars), 1);
    int restored = 0;
    for (qsizetype at = 0; at < real.size(); ++at) {
        for (int value = 0; value < 256; ++value) {
            QByteArray data = real;
            data[at] = static_cast<char>(value);
            const std::string where = "byte " + std::to_string(at) + " = " + std::to_string(value);
            const bool isSafe = SavedState::isSafeLayout(data);
            // What would end Qt, and here the test: another area, and more tool bars than the data hold.
            if (numberAt(data, area) < 0 || numberAt(data, area) > 3 || numberAt(data, toolBars) > 1000 ||
                numberAt(data, toolBars + 8) > 1000) {
                QVERIFY2(!isSafe, where.c_str());
                continue;
            }
            const bool isRestored = window->get()->restoreState(data, 0);
            QVERIFY2(isSafe || !isRestored, where.c_str());
            restored += isRestored;
        }
    }
    QVERIFY(restored > 20000);
}

void SavedStateTest::everyLengthOfALayout()
{
    const QByteArray real = realLayout();
    for (qsizetype size = 0; size < real.size(); ++size)
        QVERIFY(SavedState::isSafeLayout(real.first(size)) ||
                !window->get()->restoreState(real.first(size), 0));
}

void SavedStateTest::geometriesThatQtReadsAreSafe_data()
{
    QTest::addColumn<QByteArray>("data");
    constexpr int least = std::numeric_limits<int>::min();
    QTest::newRow("over six screens") << geometryOf({0, 0, 11519, 4319});
    QTest::newRow("far away") << geometryOf({100'000'000, -100'000'000, 100'000'799, -99'999'401});
    QTest::newRow("inside out") << geometryOf({800, 600, -800, -600});
    QTest::newRow("beyond all numbers") << geometryOf({least, least, 100, 100});
    QTest::newRow("maximised, the size of now unused")
        << geometryOf({0, 0, 99999, 99999}, {10, 20, 809, 619}, true);
    QTest::newRow("old") << geometryOf({}, {10, 20, 809, 619}, false, 1);
    QTest::newRow("the size of then unused") << geometryOf({10, 20, 809, 619}, {0, 0, 99999, 99999});
}

void SavedStateTest::geometriesThatQtReadsAreSafe()
{
    QFETCH(QByteArray, data);
    QVERIFY(SavedState::isSafeGeometry(data));
    QVERIFY(window->get()->restoreGeometry(data));
    window->get()->show();
    QCoreApplication::processEvents();
}

void SavedStateTest::geometriesThatEndQtAreNot_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("wide") << geometryOf({0, 0, 40000, 600});
    QTest::newRow("high") << geometryOf({0, 0, 800, 40000});
    QTest::newRow("wide and inside out") << geometryOf({0, 600, 40000, 0});
    QTest::newRow("large") << geometryOf({0, 0, 10000, 10000});
    QTest::newRow("large when no longer maximised")
        << geometryOf({0, 0, 799, 599}, {0, 0, 99999, 99999}, true);
    QTest::newRow("large and old") << geometryOf({}, {0, 0, 99999, 99999}, false, 2);
}

void SavedStateTest::geometriesThatEndQtAreNot()
{
    QFETCH(QByteArray, data);
    QVERIFY(!SavedState::isSafeGeometry(data));
}

void SavedStateTest::everyByteOfAGeometry()
{
    const QByteArray real = window->get()->saveGeometry();
    QVERIFY(SavedState::isSafeGeometry(real));
    int safe = 0;
    for (qsizetype at = 0; at < real.size(); ++at) {
        for (int value = 0; value < 256; ++value) {
            QByteArray data = real;
            data[at] = static_cast<char>(value);
            if (!SavedState::isSafeGeometry(data))
                continue;
            ++safe;
            QMainWindow plain;
            plain.restoreGeometry(data);
            plain.show();
            const QRect place = plain.geometry();
            QVERIFY(extent(place.left(), place.right()) <= 32767);
            QVERIFY(extent(place.top(), place.bottom()) <= 32767);
        }
    }
    QVERIFY(safe > 10000);
}

void SavedStateTest::unsafeDataLeaveTheWindowAsItIs()
{
    SettingsStore *store = SettingsStore::instance();
    store->setValue(SettingKey::MiscIsFirstStart, false);
    store->setValue(SettingKey::WindowLayoutRestore, true);
    store->setValue(SettingKey::WindowGeometryRestore, true);
    const QByteArray layout = realLayout();
    const QSize size = window->get()->size();
    const QByteArray unsafeLayout = Layout().areas(1).area(4).sequence(0).endOfAreas().toolBar().data;
    store->setValue(SettingKey::WindowLayoutData, QString::fromLatin1(unsafeLayout.toHex()));
    store->setValue(SettingKey::WindowGeometryData,
                    QString::fromLatin1(geometryOf({100, 100, 99999, 600}).toHex()));
    window->get()->restoreWindowSettings();
    QCOMPARE(realLayout(), layout);
    QCOMPARE(window->get()->size(), size);
    QCOMPARE(DrivenWindow::logLines(), QStringList());
}

QTEST_MAIN(SavedStateTest)
#include "tst_savedstate.moc"
