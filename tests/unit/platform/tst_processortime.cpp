// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/processortime.h"

#include <QElapsedTimer>
#include <QTest>

#include <thread>

namespace {

void workFor(qint64 milliseconds)
{
    QElapsedTimer wall;
    wall.start();
    while (wall.elapsed() < milliseconds) {
    }
}

} // namespace

class TestProcessorTime final : public QObject
{
    Q_OBJECT

private slots:
    void ownWorkCounts()
    {
        const ProcessorTime time;
        QElapsedTimer wall;
        wall.start();
        QTRY_VERIFY((workFor(10), time.milliseconds() >= 100));
        QVERIFY(time.milliseconds() <= static_cast<double>(wall.nsecsElapsed()) / 1e6 + 1);
    }

    void shortWorkIsToldFromNone()
    {
        const ProcessorTime time;
        workFor(2);
        QVERIFY(time.milliseconds() > 0);
    }

    void workIsDoneAndMeasured()
    {
        int rounds = 0;
        const double taken = processorMilliseconds([&rounds] {
            ++rounds;
            workFor(5);
        });
        QVERIFY(rounds >= 1 && rounds <= 3);
        QVERIFY2(taken > 0 && taken < 40, qPrintable(QString::number(taken)));
        rounds = 0;
        QVERIFY(processorMilliseconds([&rounds] { ++rounds; }) < 1);
    }

    void otherThreadsDoNotCount()
    {
        const ProcessorTime time;
        std::thread other([] { workFor(300); });
        other.join();
        QVERIFY2(time.milliseconds() < 100, qPrintable(QString::number(time.milliseconds())));
    }
};

QTEST_GUILESS_MAIN(TestProcessorTime)
#include "tst_processortime.moc"
