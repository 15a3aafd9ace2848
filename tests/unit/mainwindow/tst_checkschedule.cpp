// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/checkschedule.h"

#include <QTest>

class TestCheckSchedule final : public QObject
{
    Q_OBJECT

private slots:
    void firstCheckComesAfterEightSeconds();
    void nextChecksComeOnceADay();
};

namespace {

constexpr int ticksPerDay = 4 * 86400;

/// Ticks up to and including the one at which the check is due; limit + 1 when it does not come.
int ticksUntilDue(CheckSchedule &schedule, int limit)
{
    for (int tick = 1; tick <= limit; ++tick) {
        if (schedule.isDue())
            return tick;
    }
    return limit + 1;
}

} // namespace

void TestCheckSchedule::firstCheckComesAfterEightSeconds()
{
    CheckSchedule schedule(250);
    // 32 ticks of a quarter second raise the counter to a day's worth; the tick after them finds it there.
    QCOMPARE(ticksUntilDue(schedule, 100), 33);
}

void TestCheckSchedule::nextChecksComeOnceADay()
{
    CheckSchedule schedule(250);
    QCOMPARE(ticksUntilDue(schedule, 100), 33);
    QCOMPARE(ticksUntilDue(schedule, 2 * ticksPerDay), ticksPerDay + 1);
    QCOMPARE(ticksUntilDue(schedule, 2 * ticksPerDay), ticksPerDay + 1);
}

QTEST_APPLESS_MAIN(TestCheckSchedule)
#include "tst_checkschedule.moc"
