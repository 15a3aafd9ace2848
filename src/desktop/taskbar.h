// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include <memory>

/// The shell's taskbar button of one window. Only Windows has one.
class TaskbarList
{
public:
    TaskbarList() = default;
    virtual ~TaskbarList() = default;
    Q_DISABLE_COPY_MOVE(TaskbarList)

    /// Connects to the taskbar and sets the window's progress state to "no progress", once.
    /// Null where there is no such taskbar or the connection fails; nothing is reported.
    [[nodiscard]] static std::unique_ptr<TaskbarList> create(WId window);
};
