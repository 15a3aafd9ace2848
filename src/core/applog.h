// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>
#include <QString>
#include <QStringList>

/// The process-wide application log: stamps lines, keeps them until the log table takes them, and writes them
/// to one file per day of start when asked to. Used on the GUI thread only.
class AppLog final
{
public:
    static AppLog *instance();
    /// Closes the file and deletes the single log, if there is one.
    static void destroy();

    AppLog() = default;
    Q_DISABLE_COPY_MOVE(AppLog)

    /// Stamps the text with the time and queues it as "time|text". With file output on the line is also
    /// written to the log file; a folder or file that cannot be made is silently done without, and so is what
    /// is no regular file.
    void append(QString text);

    /// Lines not yet taken, oldest first. A line that was written to the file ends in a newline.
    [[nodiscard]] QStringList pendingLines() const;
    void clearPending();

    /// Deliberate: switching off leaves an open file open, and switching on again continues in it.
    void setSaveToFile(bool save);

    /// Flushes and closes the file. The next line written opens the file of its own day.
    void close();

private:
    void openFile();

    QStringList pending;
    QFile file;
    bool saveToFile = false;
};

/// Sends everything of Qt's message channel to the log while "Log.IncludeDebugInfo" is true; a fatal message
/// then ends the process.
void installLogMessageHandler();
