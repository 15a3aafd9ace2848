// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/plannedreport.h"

#include "core/applog.h"
#include "mainwindow/mainwindow.h"
#include "mainwindow/plannedtexts.h"

#include <QMessageBox>
#include <QPushButton>

using namespace Qt::StringLiterals;

void tellNotRenamed(const Failure &failure, Failures &failures)
{
    AppLog::instance()->append(MainWindow::tr("Could not rename file") + u" '%1'"_s.arg(failure.file.name()));
    qDebug("not renamed: %s", qPrintable(idOf(failure.outcome.reason)));
    failures.append(failure);
}

void tellNotPutBack(int row, const FilePath &file, const QString &pathNow, Failures &failures)
{
    // A file that was exchanged may be in the folder of another row.
    const bool isBelow = pathNow.startsWith(QStringView(file.path).first(file.nameAt));
    AppLog::instance()->append(notPutBackText(file.name(), isBelow ? pathNow.sliced(file.nameAt) : pathNow));
    failures.append(
        {row, FilePath::of(pathNow), {.fate = Fate::Unknown, .reason = Fate::Unknown, .path = file.path}});
}

bool showPlannedReport(QWidget *parent, const PlannedReport &report, const Failures &failures)
{
    QMessageBox box(parent);
    if (!report.note.isEmpty()) {
        AppLog::instance()->append(report.note);
        box.setInformativeText(report.note);
    }
    fillReport(box, report.figures, failures);
    const QPushButton *rest = nullptr;
    if (report.offersRest) {
        QPushButton *button = box.addButton(renameWhatCanBeText(), QMessageBox::ActionRole);
        button->setObjectName(u"buttonRenameRest"_s);
        button->setIcon(QIcon(u":/img/start.png"_s));
        button->setIconSize({24, 24});
        button->setAutoDefault(false);
        rest = button;
    }
    box.exec();
    return rest && box.clickedButton() == rest;
}
