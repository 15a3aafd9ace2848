// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "support/drivenwindow.h"
#include "support/modalanswer.h"

#include <QFileInfo>
#include <QMap>
#include <QTest>

#include <optional>

/// What a folder holds: names, and what is in the files of that name.
using Contents = QMap<QString, QByteArray>;

/// The real main window, and what a run of it must tell and leave behind.
class FaultRun
{
public:
    FaultRun()
    {
        window.stopLogTimer();
        window->show();
    }
    ~FaultRun() { qInstallMessageHandler(nullptr); }
    Q_DISABLE_COPY_MOVE(FaultRun)

    /// Files with their own names in them, all of them listed.
    QStringList plant(const QString &pattern, int count)
    {
        QStringList paths = tree.addFiles(pattern, count);
        window.drop(paths);
        return paths;
    }
    void run()
    {
        AppLog::instance()->clearPending();
        boxes.seen.clear();
        window.click("buttonRename");
    }
    [[nodiscard]] Contents contents(const QString &folder = {}) const
    {
        Contents result;
        for (const QString &name : tree.names(folder))
            result.insert(name, tree.content(folder.isEmpty() ? name : folder + u'/' + name));
        return result;
    }

    /// What is wrong after a run: the figures, the log, the rows; nothing when all is well. Failed names the
    /// rows that could not be renamed, by the names that they had.
    [[nodiscard]] QString complaint(int total, int processed, const QStringList &failed) const
    {
        const QString figures =
            QStringLiteral("Total %1 Processed %2 Failed %3").arg(total).arg(processed).arg(failed.size());
        QStringList log(QStringLiteral("File renaming started"));
        for (const QString &name : failed)
            log.append(QStringLiteral("Could not rename file '") + name + u'\'');
        log.append(figures);
        if (boxes.seen.size() != 1)
            return QStringLiteral("%1 boxes").arg(boxes.seen.size());
        if (QString(boxes.seen.constFirst().text).replace(u'\n', u' ') != figures)
            return QStringLiteral("report: ") + boxes.seen.constFirst().text;
        if (DrivenWindow::logLines() != log)
            return QStringLiteral("log: ") + DrivenWindow::logLines().join(u'\n');
        if (!window.pathsAgree())
            return QStringLiteral("the set of known paths is out of step");
        if (window.waitDialog())
            return QStringLiteral("the wait dialog is still there");
        const QStringList paths = window.rowPaths();
        for (int row = 0; row < paths.size(); ++row) {
            if (window.rowTexts().at(row) != paths.at(row).section(u'/', -1))
                return QStringLiteral("row shows ") + window.rowTexts().at(row);
        }
        return {};
    }

    TestSettings settings;
    TempTree tree;
    DrivenWindow window;
    BoxAnswerer boxes;
};

/// Fails the test unless the run told and left what it had to.
#define VERIFY_RUN(run, total, processed, failed)                                                            \
    do {                                                                                                     \
        const QString complaint = (run).complaint(total, processed, failed);                                 \
        QVERIFY2(complaint.isEmpty(), qPrintable(complaint));                                                \
    } while (false)
