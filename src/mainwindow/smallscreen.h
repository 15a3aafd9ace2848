// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QSize>

class FlowLayout;
class QDockWidget;
class QMainWindow;
class QScreen;
class QScrollArea;

namespace Ui {
class MainWindow;
}

/// Lets the window fit on screens that have no room for it as it is: there the page of the rules and the
/// log get scroll bars, the buttons below the files further lines, and at the start the docks are closed.
/// Where there is room, nothing is changed.
class SmallScreen final : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the window, whose parts are all there.
    SmallScreen(QMainWindow *ofWindow, const Ui::MainWindow &ofForm);

    [[nodiscard]] bool isTight() const { return page != nullptr; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class When { Start, Later };

    void followWindow();
    void follow(QScreen *ofWindow);
    void reconsider(When when);
    void check();
    void tighten();
    void loosen();
    void wrapButtons();
    void scrollLog();
    void closeDocks();
    void openDocks();
    void shareWidth();
    void stayOnScreen(When when);
    void moveInside();
    void retranslate();

    [[nodiscard]] QSize room() const;
    [[nodiscard]] bool hasRoomFor(QSize least) const;

    QMainWindow *window;
    const Ui::MainWindow &form;
    QPointer<QScreen> screen;
    /// Around the page of the rules; null while there is room, as the two that follow.
    QScrollArea *page = nullptr;
    QScrollArea *log = nullptr;
    FlowLayout *buttons = nullptr;
    QSize leastOfTabs;
    /// That there was no room for.
    QList<QPointer<QDockWidget>> closedDocks;
    QSize roomWithoutDocks;
    bool isBusy = false;
    QElapsedTimer sinceShown;
};
