// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fuzztarget.h"
#include "mainwindow/savedstate.h"

#include <QCoreApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QToolBar>

using namespace Qt::StringLiterals;

namespace {

/// A window with the main window's docks and tool bar, made in a hundredth of its time.
class Window final : public QMainWindow
{
public:
    Window()
    {
        setCentralWidget(new QWidget);
        auto *toolBar = new QToolBar;
        toolBar->setObjectName(u"toolBar"_s);
        addToolBar(toolBar);
        for (const auto &name : {u"dockWidgetLog"_s, u"dockWidgetExplorer"_s}) {
            auto *dock = new QDockWidget;
            dock->setObjectName(name);
            dock->setWidget(new QWidget);
            addDockWidget(Qt::RightDockWidgetArea, dock);
        }
    }

    /// What people do with it then.
    void use()
    {
        show();
        QCoreApplication::processEvents();
        resize(400, 300);
        const auto docks = findChildren<QDockWidget *>();
        for (QDockWidget *dock : docks) {
            dock->setVisible(dock->isHidden());
            QCoreApplication::processEvents();
            dock->setVisible(dock->isHidden());
            addDockWidget(Qt::LeftDockWidgetArea, dock);
            QCoreApplication::processEvents();
        }
    }
};

} // namespace

int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    startFuzzApplication();
    return 0;
}

/// One byte chooses what the others are: the layout of the docks, or the window's place. What counts as safe
/// ends nothing.
int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    const bool isLayout = input.flag();
    const QByteArray bytes = input.rest();
    if (!(isLayout ? SavedState::isSafeLayout(bytes) : SavedState::isSafeGeometry(bytes)))
        return 0;
    Window window;
    if (!(isLayout ? window.restoreState(bytes) : window.restoreGeometry(bytes)))
        return 0;
    window.show();
    QCoreApplication::processEvents();
    window.resize(400, 300);
    QCoreApplication::processEvents();
    FUZZ_VERIFY(SavedState::isSafeLayout(window.saveState()),
                QString::fromLatin1(window.saveState().toHex()));
    return 0;
}
