// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "app/startmarker.h"

#include <QApplication>

#include <optional>

class MainWindow;

/// The application object: start-up in a fixed order, and shutdown in the reverse one when it is destroyed.
class Application final : public QApplication
{
    Q_OBJECT

public:
    Application(int &argumentCount, char **arguments);
    ~Application() override;
    Q_DISABLE_COPY_MOVE(Application)

    /// Brings everything up to the visible window. May throw what setupDataDirectory() throws; nothing is
    /// saved then when the object is destroyed.
    void init();
    /// The event loop's result; 0 at once when the program was asked to end meanwhile.
    int run();

private:
    void setValidationPatterns();
    void logStart() const;
    void loadLanguages();
    void createMainWindow();
    void welcome();
    void presentMainWindow();
    void terminate();

    MainWindow *mainWindow = nullptr;
    std::optional<StartMarker> startMarker;
    bool initialized = false;
    bool ended = false;
};
