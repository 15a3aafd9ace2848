// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "bench.h"

#include "app/look.h"
#include "rules/ruleinserttext.h"
#include "rules/rulereplace.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// The page of the kind's editor.
int pageOf(Kind kind)
{
    return static_cast<int>(kind);
}

} // namespace

void prepareBenchmark()
{
    QApplication::setStyle(u"Fusion"_s);
    applyLook();
}

PauseMeter::PauseMeter()
{
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, &context,
                     [this] { pass(); });
    sincePass.start();
}

double PauseMeter::longest()
{
    pass();
    return static_cast<double>(longestPause) * 1e-6;
}

void PauseMeter::pass()
{
    longestPause = std::max(longestPause, sincePass.nsecsElapsed());
    sincePass.start();
}

FileTree::FileTree(int fileCount, int inEachFolder)
    : count(fileCount)
    , filesPerFolder(inEachFolder)
{
    QTemporaryDir directory(u"/dev/shm/orvanto-benchmark-XXXXXX"_s);
    directory.setAutoRemove(false);
    folder = directory.path();
    for (int i = 0; i < count; ++i) {
        if (i % filesPerFolder == 0)
            QDir().mkdir(folder + u"/folder%1"_s.arg(i / filesPerFolder, 4, 10, QChar(u'0')));
        close(open(QFile::encodeName(path(i)).constData(), O_CREAT | O_WRONLY, 0600));
    }
}

FileTree::~FileTree()
{
    QDir(folder).removeRecursively();
}

QString FileTree::path(int file) const
{
    return folder + u"/folder%1/IMG_%2.JPG"_s.arg(file / filesPerFolder, 4, 10, QChar(u'0'))
                        .arg(file, 7, 10, QChar(u'0'));
}

Bench::Bench()
    : window({})
    , list(nullptr)
{
    window.initialize();
    window.show();
    list = window.findChild<ListWidgetFiles *>(u"listWidgetFiles"_s);
    auto *pages = window.findChild<QStackedWidget *>(u"stackedWidgetRules"_s);
    auto *replace = qobject_cast<RuleWidgetReplace *>(pages->widget(pageOf(Kind::Replace)));
    replace->lineEditReplaceWhat->setText(u"IMG_(\\d+)"_s);
    replace->lineEditReplaceWith->setText(u"Holiday \\1"_s);
    replace->toolButtonRegExp->setChecked(true);
    auto *insert = qobject_cast<RuleWidgetInsertText *>(pages->widget(pageOf(Kind::InsertText)));
    insert->lineEditText->setText(u"new_"_s);
}

void Bench::addRule(Kind kind)
{
    window.findChild<QStackedWidget *>(u"stackedWidgetRules"_s)->setCurrentIndex(pageOf(kind));
    window.on_buttonAddRule_clicked();
}

void Bench::clearRules()
{
    window.onClickedRuleList(8);
}

void Bench::openInExplorer(const QString &folder)
{
    auto *tree = window.findChild<QWidget *>(u"dockWidgetExplorer"_s)->findChild<QTreeView *>();
    const QAbstractItemModel *model = tree->model();
    QModelIndex parent;
    const QStringList names = QStringList(u"/"_s) + folder.split(u'/', Qt::SkipEmptyParts);
    for (const QString &name : names) {
        QModelIndexList found;
        while (found.isEmpty()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            if (const QModelIndex first = model->index(0, 0, parent); first.isValid())
                found = model->match(first, Qt::DisplayRole, name, 1, Qt::MatchExactly);
        }
        parent = found.constFirst();
        tree->expand(parent);
    }
    while (model->rowCount(parent) == 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    tree->scrollTo(parent, QAbstractItemView::PositionAtTop);
    QCoreApplication::processEvents();
}

double Bench::rename()
{
    return untilReport([this] { window.on_buttonRename_clicked(); });
}

double Bench::undo()
{
    auto *button = window.findChild<QToolButton *>(u"buttonUndo"_s);
    while (!button->isEnabled())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return untilReport([button] { button->click(); });
}

double Bench::untilReport(const std::function<void()> &action)
{
    QElapsedTimer timer;
    double seconds = 0;
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, &window, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        seconds = static_cast<double>(timer.nsecsElapsed()) * 1e-9;
        box->accept();
    });
    closer.start(1);
    timer.start();
    action();
    return seconds;
}
