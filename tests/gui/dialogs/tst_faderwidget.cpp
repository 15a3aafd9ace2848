// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "dialogs/faderwidget.h"

#include <QImage>
#include <QPainter>
#include <QStackedWidget>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Paints the fader once more and tells what it painted.
QColor paintOnce(FaderWidget *fader)
{
    QImage image(fader->size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    fader->render(&painter, {}, {}, QWidget::DrawChildren);
    painter.end();
    const QColor first = image.pixelColor(0, 0);
    return image.pixelColor(image.width() - 1, image.height() - 1) == first ? first : QColor();
}

class PaintCounter final : public QObject
{
public:
    int paints = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

} // namespace

class TestFaderWidget final : public QObject
{
    Q_OBJECT

private slots:
    void isHiddenBeforeItStarts();
    void paintsThirteenTimes();
    void fadesStepByStep_data();
    void fadesStepByStep();
    void tooSmallDurationNeverEnds();
    void everyRepaintCounts();
    void takesThePagesColour();
    void keepsItsFirstSize();
    void secondFadeReplacesTheFirst();
    void noPageNoFade();
    void pageGoesWhileFading();
};

void TestFaderWidget::isHiddenBeforeItStarts()
{
    QWidget page;
    page.resize(120, 80);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    const QPointer<FaderWidget> fader = new FaderWidget(&page);
    QCOMPARE(fader->size(), QSize(120, 80));
    QCOMPARE(fader->pos(), QPoint(0, 0));
    QVERIFY(fader->testAttribute(Qt::WA_DeleteOnClose));
    QCOMPARE(fader->metaObject()->className(), "FaderWidget");
    QCOMPARE(fader->property("fadeDuration"), QVariant(200));
    QCoreApplication::processEvents();
    QVERIFY(fader);
    QVERIFY(!fader->isVisible());
}

void TestFaderWidget::paintsThirteenTimes()
{
    QWidget page;
    page.resize(120, 80);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    const QPointer<FaderWidget> fader = new FaderWidget(&page);
    PaintCounter counter;
    fader->installEventFilter(&counter);
    fader->start();
    QVERIFY(fader->isVisible());
    QTRY_VERIFY(fader.isNull());
    QCOMPARE(counter.paints, 13);
}

void TestFaderWidget::fadesStepByStep_data()
{
    QTest::addColumn<int>("duration");
    QTest::addColumn<QList<int>>("alphas");
    QTest::newRow("default") << 200 << QList<int>{255, 235, 215, 195, 175, 155, 135, 115, 95, 75, 55, 35, 15};
    // Deliberate: a larger duration makes the fade faster.
    QTest::newRow("twice") << 400 << QList<int>{255, 215, 175, 135, 95, 55, 15};
    QTest::newRow("integer division") << 859 << QList<int>{255, 170, 85};
    QTest::newRow("at once") << 2550 << QList<int>{255};
}

void TestFaderWidget::fadesStepByStep()
{
    QFETCH(int, duration);
    QFETCH(QList<int>, alphas);
    QWidget page; // not shown: nothing but this test paints
    page.resize(20, 10);
    const QPointer<FaderWidget> fader = new FaderWidget(&page);
    fader->setProperty("fadeDuration", duration);
    fader->start();
    QList<int> painted;
    while (!fader->isHidden() && painted.size() < 300)
        painted.append(paintOnce(fader).alpha());
    QCOMPARE(painted, alphas);
    QTRY_VERIFY(fader.isNull());
}

void TestFaderWidget::tooSmallDurationNeverEnds()
{
    QWidget page;
    page.resize(20, 10);
    const QPointer<FaderWidget> fader = new FaderWidget(&page);
    fader->setFadeDuration(9);
    fader->start();
    for (int i = 0; i < 300; ++i)
        QCOMPARE(paintOnce(fader).alpha(), 255);
    QVERIFY(!fader->isHidden());
}

void TestFaderWidget::everyRepaintCounts()
{
    QWidget page;
    page.resize(120, 80);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    const QPointer<FaderWidget> fader = new FaderWidget(&page);
    PaintCounter counter;
    fader->installEventFilter(&counter);
    fader->start();
    for (int i = 0; i < 13 && fader; ++i)
        fader->repaint();
    // The timer had no chance to fire.
    QCOMPARE(counter.paints, 13);
    QVERIFY(fader->isHidden());
    QTRY_VERIFY(fader.isNull());
}

void TestFaderWidget::takesThePagesColour()
{
    QWidget page;
    page.resize(20, 10);
    QPalette palette = page.palette();
    palette.setColor(QPalette::Window, QColor(10, 120, 230));
    page.setPalette(palette);
    auto *fader = new FaderWidget(&page);
    palette.setColor(QPalette::Window, Qt::red);
    page.setPalette(palette); // too late
    fader->start();
    QCOMPARE(paintOnce(fader), QColor(10, 120, 230, 255));
}

void TestFaderWidget::keepsItsFirstSize()
{
    QWidget page;
    page.resize(120, 80);
    auto *fader = new FaderWidget(&page);
    fader->start();
    page.resize(300, 200);
    QCOMPARE(fader->size(), QSize(120, 80));
}

void TestFaderWidget::secondFadeReplacesTheFirst()
{
    QStackedWidget pages;
    for (int i = 0; i < 3; ++i)
        pages.addWidget(new QWidget);
    pages.resize(200, 100);
    QPointer<FaderWidget> current;
    connect(&pages, &QStackedWidget::currentChanged, this,
            [&](int index) { FaderWidget::fadeIn(current, pages.widget(index)); });
    pages.show();
    QVERIFY(QTest::qWaitForWindowExposed(&pages));
    pages.setCurrentIndex(1);
    const QPointer<FaderWidget> first(current.data());
    QVERIFY(first);
    QCOMPARE(first->parentWidget(), pages.widget(1));
    QCOMPARE(first->size(), pages.size()); // the page has its size although it was never shown before
    pages.setCurrentIndex(2);
    QVERIFY(first != current);
    QVERIFY(first->isHidden());
    QCOMPARE(current->parentWidget(), pages.widget(2));
    QVERIFY(current->isVisible());
    pages.setCurrentIndex(1); // the first one is not deleted yet
    QTRY_VERIFY(!current);
    QVERIFY(!first);
    QVERIFY(pages.findChildren<FaderWidget *>().isEmpty());
}

void TestFaderWidget::noPageNoFade()
{
    QWidget page;
    QPointer<FaderWidget> current;
    FaderWidget::fadeIn(current, nullptr);
    QVERIFY(!current);
    FaderWidget::fadeIn(current, &page);
    const QPointer<FaderWidget> first(current.data());
    FaderWidget::fadeIn(current, nullptr);
    QVERIFY(first->isHidden());
    QTRY_VERIFY(!current);
}

void TestFaderWidget::pageGoesWhileFading()
{
    auto page = std::make_unique<QWidget>();
    page->show();
    QPointer<FaderWidget> current;
    FaderWidget::fadeIn(current, page.get());
    page.reset();
    QVERIFY(!current);
}

QTEST_MAIN(TestFaderWidget)
#include "tst_faderwidget.moc"
