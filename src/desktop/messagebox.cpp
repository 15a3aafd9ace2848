// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "desktop/messagebox.h"

#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QWindow>

QMessageBox *createMessageBox(QWidget *parent, QMessageBox::Icon icon)
{
    auto *box = new QMessageBox(parent);
    box->setWindowTitle(QCoreApplication::applicationName());
    box->setWindowFlags(box->windowFlags() & ~Qt::WindowContextHelpButtonHint);
    box->setIcon(icon);
    return box;
}

QPushButton *addMessageButton(QMessageBox *box, QMessageBox::StandardButton button, const QString &text,
                              const QString &iconPath)
{
    QPushButton *added = box->addButton(button);
    added->setText(text);
    added->setIcon(QIcon(iconPath));
    added->setIconSize({24, 24});
    return added;
}

void addCloseButton(QMessageBox *box, const QString &text)
{
    addMessageButton(box, QMessageBox::Ok, text, QStringLiteral(":/img/cancel.png"));
}

int execMessageBox(QMessageBox *box)
{
    const QPointer<QMessageBox> guard(box);
    // Not all windows: the icon in the tray stays alive.
    box->setWindowModality(Qt::WindowModal);
    // But an open dialog, too, where both belong to the same window.
    if (const QWidget *dialog = QApplication::activeModalWidget(); dialog && box->winId() != 0)
        box->windowHandle()->setTransientParent(dialog->windowHandle());
    const int result = box->exec();
    if (!guard)
        return QMessageBox::NoButton;
    box->deleteLater();
    return result;
}
