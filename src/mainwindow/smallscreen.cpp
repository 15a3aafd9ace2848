// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/smallscreen.h"

#include "core/settingsstore.h"
#include "mainwindow/flowlayout.h"
#include "ui_mainwindow.h"

#include <QCoreApplication>
#include <QDockWidget>
#include <QEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// What window managers put around a window; they tell when it is there already.
constexpr QSize frame(8, 36);
/// Of the tabs, while the page has scroll bars.
constexpr QSize leastWithScrollBars(200, 120);
constexpr int gap = 6;
/// Within so many milliseconds a window manager has placed a window.
constexpr int placingTime = 1000;

QScrollArea *newScrollArea(const QString &name)
{
    auto *area = new QScrollArea;
    area->setObjectName(name);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    return area;
}

void putInto(QScrollArea *area, QWidget *contents)
{
    area->setWidget(contents);
    // What is around it has a background of its own.
    area->viewport()->setAutoFillBackground(false);
    contents->setAutoFillBackground(false);
}

/// What the window needs as it is now. Layouts tell each other of changes by events, one after the other:
/// until then each knows what it knew before.
QSize leastOf(const QWidget *window)
{
    const auto widgets = window->findChildren<QWidget *>();
    for (QWidget *widget : widgets)
        widget->updateGeometry();
    return window->minimumSizeHint();
}

/// While it lives the window does not grow with what it holds.
class SizeKept final
{
public:
    explicit SizeKept(QWidget *ofWindow)
        : window(ofWindow)
    {
        window->layout()->setSizeConstraint(QLayout::SetNoConstraint);
    }
    ~SizeKept() { window->layout()->setSizeConstraint(QLayout::SetDefaultConstraint); }
    Q_DISABLE_COPY_MOVE(SizeKept)

private:
    QWidget *window;
};

/// Taken out of the tabs, to come back around or without something.
class Tab final
{
public:
    explicit Tab(QTabWidget *ofTabs)
        : tabs(ofTabs)
        , icon(tabs->tabIcon(0))
        , text(tabs->tabText(0))
    {
        tabs->removeTab(0);
    }
    void putBack(QWidget *page) const { tabs->insertTab(0, page, icon, text); }

private:
    QTabWidget *tabs;
    QIcon icon;
    QString text;
};

/// A widget that gets another parent loses it.
class FocusKept final
{
public:
    explicit FocusKept(const QWidget *window)
        : focus(window->focusWidget())
    {
    }
    ~FocusKept()
    {
        if (focus)
            focus->setFocus();
    }
    Q_DISABLE_COPY_MOVE(FocusKept)

private:
    QPointer<QWidget> focus;
};

} // namespace

SmallScreen::SmallScreen(QMainWindow *ofWindow, const Ui::MainWindow &ofForm)
    : QObject(ofWindow)
    , window(ofWindow)
    , form(ofForm)
    , leastOfTabs(form.tabWidgetMain->minimumSize())
{
    window->installEventFilter(this);
}

bool SmallScreen::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
        if (!screen) {
            // A place that was kept is taken as it is.
            if (!SettingsStore::instance()->value(SettingKey::WindowGeometryRestore, false).toBool())
                sinceShown.start();
            reconsider(When::Start);
        }
        follow(window->screen());
        break;
    case QEvent::Move:
        followWindow();
        // The place may be that of a window that has grown since. Across several screens it may well lie.
        if (sinceShown.isValid() && !sinceShown.hasExpired(placingTime) &&
            QGuiApplication::screens().size() == 1)
            moveInside();
        break;
    case QEvent::Resize:
        followWindow();
        // It grows by itself when a dock is opened.
        if (screen && !isBusy && !event->spontaneous())
            moveInside();
        break;
    case QEvent::LayoutRequest:
        check();
        break;
    case QEvent::LanguageChange:
        retranslate();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void SmallScreen::followWindow()
{
    if (!screen || screen == window->screen())
        return;
    follow(window->screen());
    reconsider(When::Later);
}

void SmallScreen::follow(QScreen *ofWindow)
{
    if (screen == ofWindow)
        return;
    if (screen)
        screen->disconnect(this);
    screen = ofWindow;
    const auto later = [this] {
        reconsider(When::Later);
        stayOnScreen(When::Start);
    };
    connect(screen, &QScreen::availableGeometryChanged, this, later);
    connect(screen, &QScreen::logicalDotsPerInchChanged, this, later);
}

/// There may be more room than before, or less.
void SmallScreen::reconsider(When when)
{
    if (isBusy || (!isTight() && closedDocks.isEmpty() && hasRoomFor(leastOf(window))))
        return;
    {
        const QScopedValueRollback busy(isBusy, true);
        const SizeKept kept(window);
        if (isTight())
            loosen();
        openDocks();
        if (!hasRoomFor(leastOf(window)) && when == When::Start)
            closeDocks();
        // With the docks closed there may be room for the rest as it is.
        if (!hasRoomFor(leastOf(window)))
            tighten();
    }
    stayOnScreen(when);
}

/// A dock that is opened, or another language, may need more room than there is.
void SmallScreen::check()
{
    if (isBusy || !screen || isTight() || hasRoomFor(window->minimumSizeHint()))
        return;
    {
        const QScopedValueRollback busy(isBusy, true);
        const SizeKept kept(window);
        tighten();
    }
    stayOnScreen(When::Later);
}

void SmallScreen::tighten()
{
    const FocusKept focus(window);
    {
        const Tab tab(form.tabWidgetMain);
        page = newScrollArea(u"scrollAreaRules"_s);
        putInto(page, form.tabFilters);
        tab.putBack(page);
    }
    form.tabWidgetMain->setMinimumSize(leastWithScrollBars);
    wrapButtons();
    scrollLog();
    shareWidth();
}

void SmallScreen::loosen()
{
    const FocusKept focus(window);
    {
        const Tab tab(form.tabWidgetMain);
        tab.putBack(page->takeWidget());
        delete std::exchange(page, nullptr);
    }
    form.tabWidgetMain->setMinimumSize(leastOfTabs);
    QHBoxLayout *row = form.horizontalLayout_2;
    while (QLayoutItem *item = buttons->takeAt(0)) {
        if (QLayout *inner = item->layout())
            row->addLayout(inner);
        else
            row->addItem(item);
    }
    delete std::exchange(buttons, nullptr);
    form.dockWidgetLog->setWidget(log->takeWidget());
    delete std::exchange(log, nullptr);
}

void SmallScreen::wrapButtons()
{
    buttons = new FlowLayout(nullptr, gap);
    while (QLayoutItem *item = form.horizontalLayout_2->takeAt(0))
        buttons->addItem(item);
    form.verticalLayout->addLayout(buttons);
}

/// Its check boxes are wider than the dock in some languages.
void SmallScreen::scrollLog()
{
    QWidget *contents = form.dockWidgetLog->widget();
    log = newScrollArea(u"scrollAreaLog"_s);
    log->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    log->setMinimumHeight(contents->minimumSizeHint().height() +
                          log->horizontalScrollBar()->sizeHint().height());
    form.dockWidgetLog->setWidget(log);
    putInto(log, contents);
}

void SmallScreen::closeDocks()
{
    roomWithoutDocks = room();
    const auto docks = window->findChildren<QDockWidget *>();
    for (QDockWidget *dock : docks) {
        if (dock->isHidden())
            continue;
        dock->hide();
        closedDocks.append(dock);
    }
}

/// Where there is more room now, they are there again if they fit.
void SmallScreen::openDocks()
{
    if (closedDocks.isEmpty() || room() == roomWithoutDocks)
        return;
    const auto docks = std::exchange(closedDocks, {});
    for (QDockWidget *dock : docks) {
        if (dock)
            dock->show();
    }
    if (!hasRoomFor(leastOf(window)))
        closeDocks();
}

/// Lets the page of the rules have no scroll bar below it if the list of files can do with the rest.
void SmallScreen::shareWidth()
{
    const int wanted = page->widget()->minimumSizeHint().width() +
                       page->verticalScrollBar()->sizeHint().width() + frame.width();
    const QMargins margins = form.verticalLayout_3->contentsMargins();
    const int both = room().width() - margins.left() - margins.right() - form.splitter->handleWidth();
    form.splitter->setSizes({wanted, std::max(both - wanted, form.groupBox->minimumSizeHint().width())});
}

void SmallScreen::stayOnScreen(When when)
{
    if (window->isMaximized() || window->isFullScreen())
        return;
    // What it still counts as its least size would not let it become smaller; the layout sets that anew.
    const QSize least = leastOf(window);
    window->setMinimumSize(0, 0);
    window->resize(window->size().boundedTo(room()).expandedTo(least));
    // Who drags a window to another screen would not like it to jump.
    if (when == When::Start && window->testAttribute(Qt::WA_Moved))
        moveInside();
}

void SmallScreen::moveInside()
{
    if (window->isMaximized() || window->isFullScreen())
        return;
    const QRect available = window->screen()->availableGeometry();
    const QSize spare = (room() - window->size()).expandedTo({0, 0});
    const QPoint place = window->pos() - available.topLeft();
    const QPoint inside(std::clamp(place.x(), 0, spare.width()), std::clamp(place.y(), 0, spare.height()));
    // A window that was moved counts as one that has a place of its own.
    if (inside != place)
        window->move(available.topLeft() + inside);
}

void SmallScreen::retranslate()
{
    if (!isTight())
        return;
    // The form's own texts know the page only where the form put it.
    form.tabWidgetMain->setTabText(0, QCoreApplication::translate("MainWindow", "Rules"));
    // Shorter texts may need less room.
    QTimer::singleShot(0, this, [this] { reconsider(When::Later); });
}

/// The largest size that the window may have.
QSize SmallScreen::room() const
{
    return window->screen()->availableGeometry().size() - frame;
}

bool SmallScreen::hasRoomFor(QSize least) const
{
    return least.width() <= room().width() && least.height() <= room().height();
}
