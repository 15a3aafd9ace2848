// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QThreadPool>

#include <functional>

/// Work in a thread of its own. Whoever waits for it processes events, which its end wakes up:
///
///     const Aside aside([&] { result = ...; });
///     while (!aside.isDone())
///         QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
class Aside final
{
public:
    explicit Aside(const std::function<void()> &work)
    {
        pool.start([this, work] {
            work();
            QMetaObject::invokeMethod(&here, [this] { isOver = true; });
        });
    }
    /// Waits for its end.
    ~Aside() { pool.waitForDone(); }
    Q_DISABLE_COPY_MOVE(Aside)

    [[nodiscard]] bool isDone() const { return isOver; }

private:
    bool isOver = false;
    QObject here;
    QThreadPool pool;
};
