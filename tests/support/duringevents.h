// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractEventDispatcher>

#include <functional>
#include <utility>

/// Runs a step inside every pass of event processing while it lives: the moment at which a user's click would
/// be delivered. The step is told the number of the pass, from 1; passes that the step itself causes do not
/// count.
class DuringEvents
{
public:
    explicit DuringEvents(std::function<void(int)> stepToRun)
        : step(std::move(stepToRun))
    {
        QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, &context,
                         [this] { run(); });
    }
    Q_DISABLE_COPY_MOVE(DuringEvents)

private:
    void run()
    {
        if (std::exchange(running, true))
            return;
        step(++pass);
        running = false;
    }

    std::function<void(int)> step;
    int pass = 0;
    bool running = false;
    QObject context; ///< the last member: nothing runs once it is gone
};
