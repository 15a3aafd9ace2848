// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "app/splash.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPainter>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize imageSize(300, 200);

QPixmap whiteImage()
{
    QPixmap image(imageSize);
    image.fill(Qt::white);
    return image;
}

/// The rectangle of all pixels that are darker than the image.
QRect inkOf(const QImage &picture)
{
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qGray(picture.pixel(x, y)) < 200)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

QImage paintedWith(const QString &text)
{
    SplashFrame frame(nullptr);
    frame.image = whiteImage();
    frame.setFixedSize(imageSize);
    frame.text = text;
    return frame.grab().toImage();
}

/// What a splash is like at the moment when it is shown: it lives no longer than the call that shows it.
class ShownSplash final : public QObject
{
public:
    ShownSplash() { QCoreApplication::instance()->installEventFilter(this); }

    int count = 0;
    bool isBold = false;
    bool isTranslucent = false;
    Qt::WindowModality modality = Qt::NonModal;
    QSize size;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (const auto *frame = dynamic_cast<SplashFrame *>(watched);
            frame && event->type() == QEvent::Show) {
            ++count;
            isBold = frame->font().bold();
            isTranslucent = frame->testAttribute(Qt::WA_TranslucentBackground);
            modality = frame->windowModality();
            size = frame->size();
        }
        return false;
    }
};

} // namespace

class TestSplash final : public QObject
{
    Q_OBJECT

private slots:
    void textIsGrayAndBottomRight();
    void textKeepsItsMargins();
    void lastLineStandsOnTheBottomMargin();
    void imageFillsTheFrame();
    void isBoldTranslucentAndModal();
    void holdsTheThreadForItsTime();
    void missingImageStillHoldsTheThread();
    void liesOverAnActiveWindow();
};

void TestSplash::textIsGrayAndBottomRight()
{
    const SplashFrame frame(nullptr);
    QCOMPARE(frame.textColor, QColor(u"#444"_s));
    QCOMPARE(frame.alignment, int(Qt::AlignRight | Qt::AlignBottom));
    QVERIFY(frame.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(frame.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QCOMPARE(frame.windowFlags() & Qt::WindowType_Mask, Qt::Dialog);
}

void TestSplash::textKeepsItsMargins()
{
    const QString text = u"Version: MMM"_s;
    QImage expected = whiteImage().toImage();
    QPainter painter(&expected);
    painter.setFont(SplashFrame(nullptr).font());
    painter.setPen(QColor(u"#444"_s));
    painter.drawText(QRect(0, 0, imageSize.width() - 28, imageSize.height() - 20),
                     Qt::AlignRight | Qt::AlignBottom, text);
    painter.end();
    const QImage painted = paintedWith(text);
    QVERIFY(inkOf(painted).isValid());
    QCOMPARE(inkOf(painted), inkOf(expected));
    QCOMPARE(painted.convertToFormat(expected.format()), expected);
}

void TestSplash::lastLineStandsOnTheBottomMargin()
{
    const QRect one = inkOf(paintedWith(u"HHH"_s));
    const QRect two = inkOf(paintedWith(u"HH\nHHH"_s));
    QCOMPARE(two.bottom(), one.bottom());
    QCOMPARE(two.right(), one.right());
    QVERIFY(two.top() < one.top() - one.height());
}

void TestSplash::imageFillsTheFrame()
{
    SplashFrame frame(nullptr);
    QPixmap small(10, 10);
    small.fill(Qt::blue);
    frame.image = small;
    frame.setFixedSize(40, 30);
    const QImage picture = frame.grab().toImage();
    QCOMPARE(picture.pixelColor(0, 0), QColor(Qt::blue));
    QCOMPARE(picture.pixelColor(39, 29), QColor(Qt::blue));
}

void TestSplash::isBoldTranslucentAndModal()
{
    const ShownSplash shown;
    showSplash(u"Version: 1"_s, whiteImage());
    QCOMPARE(shown.count, 1);
    QVERIFY(shown.isBold);
    QVERIFY(shown.isTranslucent);
    QCOMPARE(shown.modality, Qt::WindowModal);
    QCOMPARE(shown.size, imageSize);
}

void TestSplash::holdsTheThreadForItsTime()
{
    QElapsedTimer timer;
    timer.start();
    showSplash(u"Version: 1\nsecond line"_s, whiteImage());
    QVERIFY(timer.elapsed() >= 1500);
}

void TestSplash::missingImageStillHoldsTheThread()
{
    QElapsedTimer timer;
    timer.start();
    showSplash(u"Version: 1"_s, QPixmap());
    QVERIFY(timer.elapsed() >= 1500);
}

void TestSplash::liesOverAnActiveWindow()
{
    QWidget window;
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    showSplash(u"Version: 1"_s, whiteImage());
    QVERIFY(window.isVisible());
    QVERIFY(window.findChildren<SplashFrame *>().isEmpty());
}

QTEST_MAIN(TestSplash)
#include "tst_splash.moc"
