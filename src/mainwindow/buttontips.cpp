// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/buttontips.h"

#include <QAbstractButton>
#include <QAction>
#include <QStringBuilder>
#include <QToolBar>

using namespace Qt::StringLiterals;

namespace {

struct ButtonKeys
{
    QLatin1StringView button;
    QList<QKeySequence> keys;
};

/// What follows the run and what was used last says it itself.
QList<ButtonKeys> buttonsAndKeys()
{
    return {
        {"buttonAddFiles"_L1, {Qt::CTRL | Qt::Key_O, Qt::CTRL | Qt::SHIFT | Qt::Key_O, QKeySequence::Paste}},
        {"buttonSort"_L1, {}},
        {"buttonFileFilterClear"_L1, {}},
        {"buttonFileListUp"_L1, {Qt::ALT | Qt::Key_Up}},
        {"buttonFileListRemove"_L1, {Qt::Key_Delete}},
        {"buttonFileListDown"_L1, {Qt::ALT | Qt::Key_Down}},
        {"buttonFileListClear"_L1, {}},
        {"buttonPreview"_L1, {Qt::Key_F5}},
        {"buttonRename"_L1, {Qt::CTRL | Qt::Key_Return}},
        {"buttonRuns"_L1, {}},
        {"buttonRuleListUp"_L1, {Qt::ALT | Qt::Key_Up}},
        {"buttonRuleListRemove"_L1, {Qt::Key_Delete}},
        {"buttonRuleListDown"_L1, {Qt::ALT | Qt::Key_Down}},
        {"buttonRuleListClear"_L1, {}},
        {"toolButtonOpenLogDir"_L1, {}},
        {"toolButtonClearLog"_L1, {}},
        {"buttonLogo"_L1, {}},
        {"qt_dockwidget_closebutton"_L1, {}},
    };
}

} // namespace

QString tipWithKeys(const QString &text, const QList<QKeySequence> &keys)
{
    if (keys.isEmpty())
        return text;
    QStringList names;
    for (const QKeySequence &key : keys)
        names.append(key.toString(QKeySequence::NativeText));
    return text % " ("_L1 % names.join(", "_L1) % u')';
}

void setButtonTips(const QWidget *window)
{
    const QList<ButtonKeys> all = buttonsAndKeys();
    for (const auto &[name, keys] : all) {
        const auto buttons = window->findChildren<QAbstractButton *>(name);
        for (QAbstractButton *button : buttons)
            button->setToolTip(
                tipWithKeys(button->text().isEmpty() ? button->accessibleName() : button->text(), keys));
    }
    const auto bars = window->findChildren<QToolBar *>();
    for (const QToolBar *bar : bars) {
        const auto actions = bar->actions();
        for (QAction *action : actions) {
            if (!action->statusTip().isEmpty())
                action->setToolTip(tipWithKeys(action->statusTip(), action->shortcuts()));
        }
    }
}
